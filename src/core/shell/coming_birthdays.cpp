#include "core/shell/coming_birthdays.h"

#include "core/dated_persons.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int kOldest = 130;

/// The day of a month and day in the first year in which it is not past.
QDate nextDay(QDate born, QDate today)
{
    for (int year = today.year();; ++year) {
        const QDate day(year, born.month(), qMin(born.day(), QDate(year, born.month(), 1).daysInMonth()));
        if (day >= today)
            return day;
    }
}

/// What holds for the birthdays within some days: a piece for each month, by its number and its days.
QString within(QStringView column, QDate today, int days)
{
    QStringList pieces;
    const QDate end = today.addDays(days);
    for (QDate from = today; from <= end; from = QDate(from.year(), from.month(), 1).addMonths(1)) {
        const QDate to = qMin(end, QDate(from.year(), from.month(), from.daysInMonth()));
        // The last day of a February stands for the 29th as well.
        const int last = to.day() == to.daysInMonth() ? 31 : to.day();
        pieces << u"(month(%1)=%2 and day(%1) between %3 and %4)"_s.arg(column)
                      .arg(from.month())
                      .arg(from.day())
                      .arg(last);
    }
    return u'(' + pieces.join(u" or "_s) + u')';
}

} // namespace

QList<ComingBirthday> comingBirthdays(jet::Database& data, QDate today, int days, int most)
{
    QStringList arms;
    for (const core::DatedPerson& person : core::datedPersons()) {
        arms
            << u"select month(%2) as mon,day(%2) as dd,id,%1 as who,name as contact,%2 as born from cnt_main "
               "where %1 is not null and len(%1) <> 0 and %3"_s.arg(
                   person.name, person.date, within(person.date, today, days));
    }
    QList<ComingBirthday> coming;
    const jet::Recordset rows = data.openRecordset(arms.join(u" union "_s) + u" order by mon,dd"_s);
    // Those of January stand in front of those of December: at the turn of the year all are looked at.
    for (int row = 0; row < rows.count(); ++row) {
        const QDate born = rows.valueAt(row, 5).toDate();
        if (!born.isValid())
            continue;
        ComingBirthday one{rows.valueAt(row, 2).toLongLong(), rows.textAt(row, 3).simplified(),
            rows.textAt(row, 4).simplified(), nextDay(born, today), {}};
        if (one.name == one.contact)
            one.contact.clear();
        if (const int age = one.day.year() - born.year(); age >= 0 && age <= kOldest)
            one.age = age;
        coming << one;
        const bool isInOrder = today.addDays(days).year() == today.year();
        if (isInOrder && coming.size() == most)
            break;
    }
    std::stable_sort(coming.begin(), coming.end(),
        [](const ComingBirthday& a, const ComingBirthday& b) { return a.day < b.day; });
    return coming.mid(0, most);
}

} // namespace shell
