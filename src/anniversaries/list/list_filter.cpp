#include "anniversaries/list/list_filter.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

bool isOneOf(const QString& priority, QStringView one, QStringView other)
{
    const QString trimmed = priority.trimmed();
    return trimmed == one || trimmed == other;
}

} // namespace

bool isShown(const FilteredRow& row, const ListFilter& filter, QDate today)
{
    if (filter.next60 && !isWithinNext60(row.date, today))
        return false;
    if (filter.hides34 && isOneOf(row.priority, u"3", u"4"))
        return false;
    if (filter.hides12 && isOneOf(row.priority, u"1", u"2"))
        return false;
    const auto matches = [](const QString& wanted, const QString& value) {
        return wanted.isEmpty() || wanted.compare(value, Qt::CaseInsensitive) == 0;
    };
    return matches(filter.category, row.category) && matches(filter.priority, row.priority);
}

// Kept: in late December the days of January count as over.
bool isWithinNext60(QDate date, QDate today)
{
    constexpr int kDays = 60;
    const QDate day = date.isValid() ? QDate(today.year(), date.month(), date.day()) : QDate();
    return day.isValid() && day >= today && day <= today.addDays(kDays);
}

QDate dayInYear(QDate date, int year)
{
    return date.isValid() ? date.addYears(year - date.year()) : QDate();
}

} // namespace anniversaries
