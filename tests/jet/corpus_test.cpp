#include "support/test_book.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace Qt::StringLiterals;

/// Every statement that the screens compose, each alone on the sample rows: rows or none, done or refused as
/// a whole.
class CorpusTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_template = std::make_unique<support::TestBook>(support::TestBook::Rows::Sample);
        QVERIFY(m_template->data().backUpTo(m_template->folder() + u"/template"_s));
        m_copy.setColumnsNeverEqualToNull(support::TestBook::columnsNeverEqualToNull());
        QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/tests/jet/data/statements.jsonl"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        m_lines = file.readAll().trimmed().split('\n');
        QVERIFY(m_lines.size() > 1000);
    }

    void statements()
    {
        QStringList wrong;
        for (const QByteArray& line : m_lines) {
            const QJsonObject entry = QJsonDocument::fromJson(line).object();
            const QString sql = entry[u"sql"].toString();
            const auto way = entry[u"way"].toString() == u"ado" ? jet::Way::Ado : jet::Way::Dao;
            const QString expected = entry[u"expect"].toString();
            const QString got = outcome(sql, way, expected == u"ok");
            if (got != expected)
                wrong << expected + u" expected, "_s + got + u": "_s + sql.left(300) + u"  -- "_s + m_reason;
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(u"%1 wrong:\n"_s.arg(wrong.size()) + wrong.join(u'\n')));
    }

private:
    QString outcome(const QString& sql, jet::Way way, bool action)
    {
        jet::Database& data = fresh(action);
        m_reason.clear();
        data.setFailureHandler([this](const jet::Failure& failure) { m_reason = failure.reason; });
        if (action)
            return data.execute(sql, way).ok ? u"ok"_s : u"error"_s;
        const jet::Recordset rows = data.openRecordset(sql, way);
        if (rows.isValid())
            return rows.isEmpty() ? u"empty"_s : u"rows"_s;
        // A refused action must fail as one as well.
        return data.execute(sql, way).ok ? u"done"_s : u"error"_s;
    }

    // Selections change nothing and share one copy; each action gets its own.
    jet::Database& fresh(bool action)
    {
        if (!action && m_isFresh)
            return m_copy;
        m_copy.close();
        const QString path = m_template->folder() + u"/copy"_s;
        for (const QString& end : {u""_s, u"-wal"_s, u"-shm"_s})
            QFile::remove(path + end);
        QFile::copy(m_template->folder() + u"/template"_s, path);
        m_copy.open(path, jet::Database::Kind::Information);
        m_isFresh = !action;
        return m_copy;
    }

    std::unique_ptr<support::TestBook> m_template;
    QList<QByteArray> m_lines;
    jet::Database m_copy;
    bool m_isFresh = false;
    QString m_reason;
};

QTEST_GUILESS_MAIN(CorpusTest)
#include "corpus_test.moc"
