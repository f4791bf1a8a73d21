#include <QtTest>

#include "jet/database.h"
#include "support/test_book.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int kContacts = 5400;

QString unionOf(const QStringList& arms, const QString& order)
{
    return arms.join(u" union "_s) + order;
}

/// The same selection in a wording that the engine reads as a whole: its rows are the measure.
QString readWhole(QString sql)
{
    return sql.replace(0, 6, u"select distinct"_s);
}

QStringList dates(const QString& arm)
{
    QStringList arms;
    for (const auto& [name, date] : {std::pair(u"name"_s, u"m_bd"_s), std::pair(u"spouse"_s, u"sp_bd"_s),
             std::pair(u"kid1"_s, u"kid1_bd"_s)})
        arms << arm.arg(name, date);
    return arms;
}

QStringList phones(const QString& condition)
{
    QStringList arms;
    for (const QString& column : {u"h_ph1"_s, u"h_ph2"_s, u"mobile"_s})
        arms << u"select id,name,%1 as phone from cnt_main where %2%1 <> null and len(%1)<> 0"_s.arg(
            column, QString(condition).replace(u'@', column));
    return arms;
}

} // namespace

/// A union over one large table is answered from what the engine knows of its rows: the same rows in the same
/// order as when all is read, right after every write.
class UnionTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_book = std::make_unique<support::TestBook>(support::TestBook::Rows::None);
        m_dice.seed(7);
        jet::Batch batch(data());
        for (int i = 0; i < kContacts; ++i)
            QVERIFY(data().execute(u"insert into cnt_main (name) values ('Person %1')"_s.arg(i % 900)));
        for (int i = 0; i < 9000; ++i)
            editOne();
        QVERIFY(batch.commit());
    }

    void sameRows_data()
    {
        QTest::addColumn<QString>("sql");
        QTest::addColumn<bool>("isQuick");
        const QString day
            = u"select month(%2) as mon,day(%2) as dd,id,name as contact,%1,2026 - year(%2) as age,"
              "category1,cpsmnbd as done from cnt_main where %1 is not null and len(%1) <> 0 and "
              "%2 is not null"_s;
        const QString bare = u"select id,%2 as nd,%1 as who,month(%2) as mon,day(%2) as dd from cnt_main"_s;
        const auto row = [](const char* name, const QString& sql, bool isQuick = true) {
            QTest::newRow(name) << sql << isQuick;
        };
        row("by day", unionOf(dates(day), u" order by mon,dd,category1,name"_s));
        row("by age", unionOf(dates(day), u" order by age"_s));
        row("no date sorts first", unionOf(dates(bare), u" order by mon,dd"_s));
        row("by key", unionOf(phones({}), {}));
        row("by a text", unionOf(dates(day), u" order by category1,mon"_s), false);
        row("descending", unionOf(dates(day), u" order by mon desc"_s), false);
        for (const char* typed : {"*9*", "*98*", "98*", "9*", "*1-2*", "98", "*zz*"})
            row(typed, unionOf(phones(u"@ like '%1' and "_s.arg(QLatin1StringView(typed))), {}));
        row("two columns asked", unionOf(phones(u"@ like '*98*' and name like '*son 1*' and "_s), {}));
        row("one of the texts", unionOf(phones(u"(@ like '98*' or name like '*son 12*') and "_s), {}));
    }
    void sameRows()
    {
        QFETCH(QString, sql);
        QFETCH(bool, isQuick);
        QCOMPARE(!data().openRecordset(sql).holdsRows(), isQuick);
        QTRY_VERIFY(!sql.contains(u"like") || data().searchMemory() > 0); // texts are read on a thread
        compare(sql);
        for (int round = 0; round < 3; ++round) {
            for (int i = 0; i < 1 << 3 * round; ++i)
                editOne();
            compare(sql);
        }
    }

    // What was written and given up, written by another program, or emptied at one stroke.
    void sameRowsAfterEachKindOfWrite()
    {
        const QString sql = unionOf(phones({}), {});
        compare(sql);
        {
            jet::Batch outer(data());
            editOne();
            {
                jet::Batch inner(data());
                QVERIFY(data().execute(u"update cnt_main set mobile='111' where id<50"_s));
                compare(sql);
                inner.rollBack();
            }
            compare(sql);
            QVERIFY(data().execute(u"delete * from cnt_main where id<20"_s));
            compare(sql);
            outer.rollBack();
        }
        compare(sql);
        jet::Database other;
        QCOMPARE(other.open(data().path()), jet::Database::OpenResult::Opened);
        QVERIFY(other.execute(u"update cnt_main set mobile='222' where id=100"_s));
        compare(sql);
    }

    void rowsByKeyAndRuns()
    {
        const jet::Recordset rows = data().openRecordset(unionOf(
            dates(u"select month(%2) as mon,day(%2) as dd,id,%1 from cnt_main where %2 is not null"_s),
            u" order by mon,dd"_s));
        int first = -1;
        for (int row = 0; row < rows.count() && first < 0; ++row)
            first = rows.valueAt(row, 2).toInt() == 4321 ? row : -1;
        QCOMPARE(rows.rowOf(2, 4321), first);
        QCOMPARE(rows.rowOf(2, kContacts + 1), -1);
        int row = 0;
        for (const jet::Recordset::Run& run : rows.leadingRuns()) {
            QCOMPARE(rows.valueAt(row, 1).toInt(), run.numbers[1]);
            row += run.rows;
            QCOMPARE(rows.valueAt(row - 1, 1).toInt(), run.numbers[1]);
        }
        QCOMPARE(row, rows.count());
    }

    // Updates of one batch look at the texts in memory, those that an update before them has changed
    // included.
    void updatesFindTheirRows()
    {
        const QString sql = unionOf(phones(u"@ like '98*' and "_s), {});
        QVERIFY(data().openRecordset(sql).isValid());
        QTRY_VERIFY(data().searchMemory() > 0);
        const QStringList changes{u"h_ph1 98 77"_s, u"h_ph2 98 77"_s, u"h_ph1 77 98"_s, u"mobile 9 98"_s,
            u"h_ph1 98 9"_s, u"mobile 98 0"_s};
        for (int round = 0; round < 3; ++round) {
            jet::Batch batch(data());
            for (const QString& change : changes) {
                const QStringList part = change.split(u' ');
                const QString where = part[0] + u" like '"_s + part[1] + u"*'"_s;
                const QString count = u"select count(id) as n from cnt_main where "_s + where;
                const qint64 rows = data().openRecordset(count).number(u"n");
                const jet::Outcome outcome = data().execute(
                    u"update cnt_main set %1 = '%2' & mid(%1,3,9) where %3"_s.arg(part[0], part[2], where));
                QCOMPARE(outcome.changed, int(rows));
                editOne();
            }
            QVERIFY(batch.commit());
            compare(sql);
        }
    }

    // A list that is on the screen while its rows go, all of them at one stroke.
    void rowsThatWentMeanwhile()
    {
        const QString sql = unionOf(phones({}), {});
        const jet::Recordset rows = data().openRecordset(sql);
        const int count = rows.count();
        QVERIFY(count > 1000);
        QVERIFY(data().execute(u"delete * from cnt_main"_s));
        QCOMPARE(rows.count(), count);
        QCOMPARE(rows.textAt(count - 1, 2), QString());
        QVERIFY(data().execute(u"insert into cnt_main (id,mobile) values (9000,'98')"_s));
        QCOMPARE(data().openRecordset(sql).count(), 1);
    }

private:
    jet::Database& data() { return m_book->data(); }
    int below(int end) { return int(m_dice() % unsigned(end)); }

    /// Twins, equal numbers at home and abroad, texts that differ in case only, empty ones and none.
    void editOne()
    {
        static const QStringList texts{u"'981-2345'"_s, u"'98'"_s, u"'0981'"_s, u"'A1-2'"_s, u"'a1-2'"_s,
            u"'É 98'"_s, u"''"_s, u"null"_s, u"'9'"_s};
        static const QStringList dates{u"#3-Mar-1990#"_s, u"#3-Mar-1991#"_s, u"#29-Feb-2000#"_s, u"null"_s,
            u"#31-Dec-0100#"_s, u"#1-Jan-9999#"_s};
        static const QStringList numbers{u"h_ph1"_s, u"h_ph2"_s, u"mobile"_s, u"spouse"_s, u"kid1"_s};
        static const QStringList days{u"m_bd"_s, u"sp_bd"_s, u"kid1_bd"_s};
        const QString set = below(2) ? numbers.at(below(5)) + u'=' + texts.at(below(9))
                                     : days.at(below(3)) + u'=' + dates.at(below(6));
        QVERIFY(
            data().execute(u"update cnt_main set %1,category1='%2' where id=%3"_s.arg(set).arg(below(5)).arg(
                1 + below(kContacts))));
    }

    void compare(const QString& sql)
    {
        const jet::Recordset ours = data().openRecordset(sql);
        const jet::Recordset whole = data().openRecordset(readWhole(sql));
        QVERIFY(whole.holdsRows());
        QCOMPARE(ours.count(), whole.count());
        for (int row = 0; row < ours.count(); ++row) {
            for (int column = 0; column < whole.columns().size(); ++column)
                QCOMPARE(ours.textAt(row, column), whole.textAt(row, column));
        }
    }

    std::unique_ptr<support::TestBook> m_book;
    std::mt19937 m_dice;
};

QTEST_GUILESS_MAIN(UnionTest)
#include "union_test.moc"
