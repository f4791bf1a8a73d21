#include "support/test_book.h"

#include <QFile>
#include <QtTest>

using namespace Qt::StringLiterals;

/// The dialect as data/dialect.txt tells it; the head of that file says how it is written.
class DialectTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_template = std::make_unique<support::TestBook>(support::TestBook::Rows::Sample);
        QVERIFY(m_template->data().backUpTo(m_template->folder() + u"/template"_s));
        m_data.setColumnsNeverEqualToNull(support::TestBook::columnsNeverEqualToNull());
    }

    void dialect_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<int>("firstLine");
        QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/tests/jet/data/dialect.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList all = QString::fromUtf8(file.readAll()).split(u'\n');
        QStringList lines;
        QString title;
        qsizetype from = 0;
        for (qsizetype i = 0; i <= all.size(); ++i) {
            if (i < all.size() && !all[i].startsWith(u"== "_s)) {
                lines << all[i];
                continue;
            }
            if (!title.isEmpty())
                QTest::newRow(qPrintable(title)) << lines << int(from);
            if (i < all.size())
                title = all[i].mid(3);
            from = i + 2;
            lines.clear();
        }
    }

    void dialect()
    {
        QFETCH(const QStringList, lines);
        QFETCH(const int, firstLine);
        openFresh();
        QStringList wrong;
        for (qsizetype i = 0; i < lines.size(); ++i) {
            const QString line = lines[i];
            if (line.isEmpty() || line.startsWith(u'#'))
                continue;
            const QString verb = line.section(u": "_s, 0, 0);
            const QString sql
                = line.section(u": "_s, 1).replace(u"\\n"_s, u"\r\n"_s).replace(u"\\t"_s, u"\t"_s);
            QStringList expected;
            while (i + 1 < lines.size() && lines[i + 1].startsWith(u'='))
                expected << lines[++i].mid(2).split(u" / "_s);
            for (const QString& each : sql.split(u" | "_s)) {
                m_reason.clear();
                const QString problem = check(verb, each, expected);
                if (!problem.isEmpty())
                    wrong << u"line %1: %2\n    %3 %4"_s.arg(firstLine + int(i)).arg(each, problem, m_reason);
            }
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(u'\n' + wrong.join(u'\n')));
    }

private:
    QString check(const QString& verb, const QString& sql, const QStringList& expected)
    {
        if (verb == u"do")
            return m_data.execute(sql).ok ? QString() : u"was refused"_s;
        if (verb.startsWith(u"do "_s)) {
            const jet::Outcome outcome = m_data.execute(sql);
            return outcome.ok && outcome.changed == verb.mid(3).toInt()
                ? QString()
                : u"changed %1"_s.arg(outcome.changed);
        }
        if (verb == u"fails") {
            if (m_data.openRecordset(sql).isValid() || m_data.execute(sql).ok)
                return u"did not fail"_s;
            return m_reason.isEmpty() ? u"failed in silence"_s : QString();
        }
        if (verb == u"columns")
            return difference(m_data.openRecordset(sql).columns(), expected);
        if (verb == u"get" || verb == u"ado")
            return difference(rows(sql, verb == u"ado" ? jet::Way::Ado : jet::Way::Dao), expected);
        if (verb == u"yes" || verb == u"no" || verb == u"null") {
            const QString asked
                = u"select iif(isnull("_s + sql + u"),'null',iif("_s + sql + u",'yes','no')) from cnt_user"_s;
            return difference(rows(asked, jet::Way::Dao), {verb});
        }
        return u"unknown verb"_s;
    }

    static QString difference(const QStringList& got, const QStringList& expected)
    {
        return got == expected ? QString() : u"gives\n    = "_s + got.join(u"\n    = "_s);
    }

    QStringList rows(const QString& sql, jet::Way way)
    {
        const jet::Recordset set = m_data.openRecordset(sql, way);
        return set.isValid() ? support::TestBook::rowsOf(set) : QStringList{u"(refused)"_s};
    }

    void openFresh()
    {
        m_data.close();
        const QString path = m_template->folder() + u"/copy"_s;
        QFile::remove(path);
        QVERIFY(QFile::copy(m_template->folder() + u"/template"_s, path));
        QCOMPARE(m_data.open(path, jet::Database::Kind::Information), jet::Database::OpenResult::Opened);
        m_data.setFailureHandler([this](const jet::Failure& failure) { m_reason = failure.reason; });
    }

    std::unique_ptr<support::TestBook> m_template;
    jet::Database m_data;
    QString m_reason;
};

QTEST_GUILESS_MAIN(DialectTest)
#include "dialect_test.moc"
