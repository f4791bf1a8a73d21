// Birthdays, the marks of the year, the search for a number and the change of a numbering plan, beside what
// plain SQLite takes for the same in the same run.

#include "beside_plain.h"

#include "anniversaries/list/birthday_list_sql.h"
#include "anniversaries/year/year_sql.h"
#include "telephone/replacer/replacement.h"
#include "telephone/search/number_union.h"
#include "tools/book_generator.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace bench;

namespace {

constexpr int kThisYear = 2026;

struct Person {
    QStringView name;
    QStringView date;
    QStringView flag;
};
constexpr Person kPersons[] = {{u"name", u"m_bd", u"cpsmnbd"}, {u"spouse", u"sp_bd", u"cpsspbd"},
    {u"kid1", u"kid1_bd", u"cpsk1bd"}, {u"kid2", u"kid2_bd", u"cpsk1bd"}, {u"kid3", u"kid3_bd", u"cpsk1bd"}};

/// The columns speak of %name, %date and %flag.
QString plainBirthdays(const QString& columns, const QString& order)
{
    QStringList arms;
    for (const Person& person : kPersons) {
        QString arm = u"SELECT "_s + columns
            + u" FROM cnt_main WHERE %name IS NOT NULL AND length(%name) <> 0 AND %date IS NOT NULL AND "
              "length(%date) <> 0"_s;
        arms << arm.replace(u"%name"_s, person.name.toString())
                    .replace(u"%date"_s, person.date.toString())
                    .replace(u"%flag"_s, person.flag.toString());
    }
    return arms.join(u" UNION "_s) + order;
}

QString plainList()
{
    return plainBirthdays(u"CAST(substr(%date,6,2) AS INTEGER) AS linkidid, CAST(substr(%date,9,2) AS "
                          u"INTEGER) AS sunsign, id, name "
                          u"AS "
                          "contact, %name AS who, %date, %date, 2026 - CAST(substr(%date,1,4) AS INTEGER) AS "
                          "gen_id, category1, category2, "
                          "priority, first, h_city, %flag"_s,
        u" ORDER BY linkidid, sunsign, category1, category2, who"_s);
}

QString plainMarks()
{
    return plainBirthdays(
        u"CAST(substr(%date,6,2) AS INTEGER) AS m, CAST(substr(%date,9,2) AS INTEGER) AS d, priority"_s,
        u" ORDER BY m, d"_s);
}

QString plainNumbers(const QString& piece)
{
    QStringList arms;
    for (const telephone::SearchedSlot& slot : telephone::searchedSlots()) {
        arms << u"SELECT id, name, category1, %1 AS phone FROM cnt_main WHERE %1 LIKE '%%2%' AND %1 IS NOT "
                u"NULL "
                "AND length(%1) <> 0"_s.arg(slot.column, piece);
    }
    return arms.join(u" UNION "_s);
}

class Bench {
public:
    Bench(const QString& folder, int count, int times)
        : m_count(count)
        , m_times(times)
    {
        const QString path = folder + u"/book-%1.db"_s.arg(count);
        if (!tools::makeBook(path, count) || m_book.open(path) != jet::Database::OpenResult::Opened)
            stop(path);
        m_plain = std::make_unique<Plain>(folder + u"/plain-%1.db"_s.arg(count), path);
    }

    void run()
    {
        birthdays();
        marks();
        numbers();
        replacing();
    }

private:
    void add(const QString& name, const std::pair<double, double>& taken, double goal)
    {
        print({name, m_count, taken.first, taken.second, goal});
    }

    void birthdays()
    {
        const QString ours = anniversaries::fullListSql(
            anniversaries::Occasion::Birthday, anniversaries::Regrouping::Refresh, kThisYear);
        same(u"birthdays"_s, openList(m_book, ours), m_plain->open(plainList()));
        // Closed and opened again, so that nothing is kept of the time before.
        const QString path = m_book.path();
        const auto cold = [&] {
            m_book.close();
            m_book.open(path);
            openList(m_book, ours);
        };
        add(u"birthdays: the list with its first page, all rows known"_s,
            inTurns(m_times, cold, [&] { m_plain->open(plainList()); }), 0.33);
        int edited = 0;
        const auto again = [&] {
            m_book.execute(
                u"update cnt_main set m_bd=#%1-Mar-1990# where id=%2"_s.arg(1 + edited % 28).arg(50));
            ++edited;
            openList(m_book, ours);
        };
        add(u"  again after one edit, with the edit"_s,
            inTurns(m_times, again, [&] { m_plain->open(plainList()); }), 0.05);
        add(u"  all cells read"_s,
            inTurns(
                std::min(m_times, 3), [&] { walkOurs(m_book, ours); }, [&] { m_plain->walk(plainList()); }),
            1.3);
    }

    void marks()
    {
        const QString path = m_book.path();
        const auto ours = [&] {
            m_book.close();
            m_book.open(path);
            const jet::Recordset days = m_book.openRecordset(anniversaries::markedDaysSql());
            if (m_count >= 5000 && days.leadingRuns().empty())
                stop(u"no runs"_s);
        };
        add(u"year view: its days marked"_s, inTurns(m_times, ours, [&] { m_plain->open(plainMarks()); }), 0);
    }

    void numbers()
    {
        for (const QString& piece : {u"987"_s, u"9876"_s, u"98"_s, u"9"_s}) {
            const QString ours = telephone::numbersSql({}, piece);
            const QString begins = telephone::numbersBeginningSql(piece, {});
            openList(m_book, ours);
            while (m_count >= 5000 && m_book.searchMemory() < 1'000'000)
                QThread::msleep(5);
            QThread::msleep(300); // until the thread that reads the texts has ended
            const int rows = openList(m_book, ours);
            same(u"numbers"_s, rows, m_plain->open(plainNumbers(piece)));
            const auto plain = [&] { m_plain->open(plainNumbers(piece)); };
            add(u"number search: '%1' in eleven columns, %2 rows"_s.arg(piece).arg(rows),
                inTurns(
                    m_times, [&] { openList(m_book, ours); }, plain),
                0.1);
            add(u"  those that begin so"_s,
                inTurns(
                    m_times, [&] { openList(m_book, begins); }, plain),
                0.1);
        }
        const QString all = telephone::numbersSql({}, {});
        add(u"number search: all numbers"_s,
            inTurns(
                m_times, [&] { openList(m_book, all); }, [&] { m_plain->open(plainNumbers({})); }),
            0);
    }

    /// There and back again, so that each run finds as many numbers.
    void replacing()
    {
        const auto set = [](const QString& from, const QString& to) {
            return u"UPDATE cnt_main SET %1 = '"_s + to + u"' || substr(%1, "_s
                + QString::number(from.size() + 1) + u", 9) WHERE %1 LIKE '"_s + from + u"%'"_s;
        };
        const QString home = u"h_ph1"_s;
        m_book.execute(u"update cnt_main set h_ph1='981234567' where id<=10000"_s);
        m_plain->run(u"UPDATE cnt_main SET h_ph1 = '981234567' WHERE id <= 10000"_s);
        int rows = 0;
        bool isBack = false;
        const auto ours = [&] {
            rows = telephone::replaceAll(m_book,
                {telephone::ReplacedPart::Numbers, isBack ? u"7712"_s : u"9812"_s,
                    isBack ? u"9812"_s : u"7712"_s})
                       .rows;
            isBack = !isBack;
        };
        bool isPlainBack = false;
        const auto one = [&] {
            m_plain->run(
                set(isPlainBack ? u"7712"_s : u"9812"_s, isPlainBack ? u"9812"_s : u"7712"_s).arg(home));
            isPlainBack = !isPlainBack;
        };
        const auto taken = inTurns(m_times, ours, one);
        add(u"numbers replaced, %1 changed, beside one update of one column"_s.arg(rows), taken, 2);
        const auto eleven = [&] {
            m_plain->run(u"BEGIN"_s);
            for (const telephone::SearchedSlot& slot : telephone::searchedSlots())
                m_plain->run(set(isPlainBack ? u"7712"_s : u"9812"_s, isPlainBack ? u"9812"_s : u"7712"_s)
                                 .arg(slot.column));
            m_plain->run(u"COMMIT"_s);
            isPlainBack = !isPlainBack;
        };
        add(u"  beside the same eleven updates"_s, inTurns(m_times, ours, eleven), 0);
    }

    int m_count;
    int m_times;
    jet::Database m_book;
    std::unique_ptr<Plain> m_plain;
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const bool quick = QCoreApplication::arguments().contains(u"--quick");
    const QTemporaryDir folder(QCoreApplication::applicationDirPath() + u"/bench-XXXXXX"_s);
    if (!folder.isValid())
        stop(folder.errorString());
    std::printf("%-70s %7s %12s %12s %7s\n", "", "n", "ours us", "plain us", "ratio");
    for (const int count : quick ? std::vector<int>{10000} : std::vector<int>{10000, 100000})
        Bench(folder.path(), count, quick ? 3 : 7).run();
    return 0;
}
