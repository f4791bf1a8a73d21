#include "core/scheduler_rows.h"

#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr int kYears = 3;

/// Day and month of a date in another year, 28 February for the 29th in a year that has none; empty without
/// a date.
QString inYear(const std::optional<QDate>& date, int year)
{
    const QDate day = date ? date->addYears(year - date->year()) : QDate();
    return jet::formatDate(day, u"dd-mmm-yyyy");
}

void appendFamily(QList<SchedulerRow>& rows, const ScheduledDates& dates, const QString& person, int year,
    FamilyRows family)
{
    if (family == FamilyRows::SpouseAndKids && !dates.spouse.isEmpty())
        rows.append({u"Birthday"_s, inYear(dates.spouseBirthday, year), u"Birthday of Spouse "_s + person,
            person, {}});
    for (int kid = 0; kid < 3; ++kid) {
        const QString date = inYear(dates.kidBirthdays[kid], year);
        if (family == FamilyRows::KidsByName && dates.kidBirthdays[kid])
            rows.append({u"Birthday"_s, date, u"Birthday of Kid "_s + dates.kids[kid], person,
                QString::number(dates.id) + u"Bd"_s});
        else if (family == FamilyRows::SpouseAndKids && !dates.kids[kid].isEmpty())
            rows.append({u"Birthday"_s, date, u"Birthday of Kid "_s + person, person, {}});
    }
}

} // namespace

QList<SchedulerRow> schedulerRows(const ScheduledDates& dates, int thisYear, FamilyRows family)
{
    QList<SchedulerRow> rows;
    const QString person = dates.first + u' ' + dates.last;
    const QString id = QString::number(dates.id);
    for (int year = thisYear; year < thisYear + kYears; ++year) {
        rows.append(
            {u"Birthday"_s, inYear(dates.birthday, year), u"Birthday of "_s + person, person, id + u"Bd"_s});
        appendFamily(rows, dates, person, year, family);
        // Kept: whether there is an anniversary row is asked of the anniversary, its day comes from the third
        // kid.
        if (dates.anniversary)
            rows.append({u"Anniversary"_s, inYear(dates.kidBirthdays[2], year), u"Anniversary of "_s + person,
                person, id + u"An"_s});
    }
    return rows;
}

void addSchedulerRows(jet::Database& data, const QList<SchedulerRow>& rows)
{
    jet::Recordset schedule = data.openRecordset(u"select * from ovs_schedular"_s);
    if (!schedule.isValid())
        return;
    const auto textOrNull = [](const QString& text) { return text.isEmpty() ? QVariant() : QVariant(text); };
    for (const SchedulerRow& row : rows) {
        schedule.addNew();
        schedule.set(u"Done", false);
        schedule.set(u"categ1", row.kind);
        schedule.set(u"Date", textOrNull(row.date));
        schedule.set(u"Priority", 2);
        schedule.set(u"Type", row.kind);
        schedule.set(u"person", row.person);
        schedule.set(u"desc", row.description);
        schedule.set(u"Diary", false);
        // A birthday comes again each year, but every year has a row of its own here.
        schedule.set(u"recurring", false);
        schedule.set(u"Outlook", false);
        schedule.set(u"Frm", u"Contact"_s);
        schedule.set(u"b_a_id", textOrNull(row.origin));
        schedule.update();
    }
}

} // namespace core
