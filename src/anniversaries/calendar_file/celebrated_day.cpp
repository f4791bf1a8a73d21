#include "anniversaries/calendar_file/celebrated_day.h"

#include "core/dated_persons.h"

#include <QCoreApplication>
#include <QCryptographicHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

/// Programs that keep dates without a year write one of these, or earlier ones.
constexpr int kEarliestKnown = 1850;
/// Many calendars know nothing before it.
constexpr int kFirstOfCalendars = 1970;

QString birthdaysSql()
{
    QString sql;
    for (const core::DatedPerson& person : core::datedPersons()) {
        const QString arm
            = u"select id,%1 as who,%2 as born,name as contact from cnt_main where %1 is not null "
              "and len(%1) <> 0 and %2 is not null"_s.arg(person.name, person.date);
        sql += sql.isEmpty() ? arm : u" union ("_s + arm + u')';
    }
    return sql;
}

QString weddingsSql()
{
    return u"select id,name,spouse,anniv from cnt_main where anniv is not null order by id"_s;
}

QString translated(const char* text)
{
    return QCoreApplication::translate("anniversaries", text);
}

QString summary(const CelebratedDay& day)
{
    if (day.occasion == Occasion::Birthday)
        return day.with.isEmpty() ? translated("Birthday of %1").arg(day.name)
                                  : translated("Birthday of %1 (%2)").arg(day.name, day.with);
    return day.with.isEmpty() ? translated("Anniversary of %1").arg(day.name)
                              : translated("Anniversary of %1 and %2").arg(day.name, day.with);
}

QString years(const CelebratedDay& day, int thisYear)
{
    const int year = day.date.year();
    if (year < kEarliestKnown || year > thisYear)
        return {};
    const char* text = day.occasion == Occasion::Birthday
        ? QT_TRANSLATE_NOOP("anniversaries", "born %1, %2 in %3")
        : QT_TRANSLATE_NOOP("anniversaries", "since %1, %2 years in %3");
    return translated(text).arg(year).arg(thisYear - year).arg(thisYear);
}

} // namespace

bool forEachCelebratedDay(jet::Database& data, const std::function<bool(const CelebratedDay&)>& each)
{
    const jet::Recordset birthdays = data.openRecordset(birthdaysSql());
    const jet::Recordset weddings = data.openRecordset(weddingsSql());
    for (int row = 0; row < birthdays.count(); ++row) {
        const QString name = birthdays.textAt(row, 1).simplified();
        const QString contact = birthdays.textAt(row, 3).simplified();
        const CelebratedDay day{Occasion::Birthday, birthdays.valueAt(row, 0).toLongLong(), name,
            name == contact ? QString() : contact, birthdays.valueAt(row, 2).toDate()};
        if (day.date.isValid() && !each(day))
            return false;
    }
    for (int row = 0; row < weddings.count(); ++row) {
        const CelebratedDay day{Occasion::Anniversary, weddings.valueAt(row, 0).toLongLong(),
            weddings.textAt(row, 1).simplified(), weddings.textAt(row, 2).simplified(),
            weddings.valueAt(row, 3).toDate()};
        if (day.date.isValid() && !each(day))
            return false;
    }
    return birthdays.isValid() && weddings.isValid();
}

int countCelebratedDays(jet::Database& data)
{
    return data.openRecordset(birthdaysSql()).count() + data.openRecordset(weddingsSql()).count();
}

formats::YearlyDay yearlyDay(const CelebratedDay& day, int thisYear)
{
    const QString age = years(day, thisYear);
    const bool isLeapDay = day.date.month() == 2 && day.date.day() == 29;
    const int first = std::clamp(day.date.year(), kFirstOfCalendars, std::max(kFirstOfCalendars, thisYear));
    // A program that reads a later file finds its days again by these.
    const QString kind = day.occasion == Occasion::Birthday ? u"bd"_s : u"an"_s;
    const QByteArray who = (day.name + u'|' + day.with).toUtf8();
    const QString hash
        = QString::fromLatin1(QCryptographicHash::hash(who, QCryptographicHash::Sha1).toHex().left(10));
    return {.uid = u"%1-%2-%3@orvane-contacts"_s.arg(kind).arg(day.id).arg(hash),
        .first = isLeapDay ? QDate(first, 2, 28) : QDate(first, day.date.month(), day.date.day()),
        .isLeapDay = isLeapDay,
        .summary = age.isEmpty() ? summary(day) : summary(day) + u" ("_s + age + u')',
        .description = age};
}

} // namespace anniversaries
