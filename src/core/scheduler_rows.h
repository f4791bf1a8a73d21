#pragma once

#include "jet/database.h"

#include <QDate>
#include <QList>

#include <optional>

namespace core {

/// The dates of one contact that the scheduler may get, as an entry form holds them.
struct ScheduledDates {
    qint64 id = 0;
    QString first;
    QString last;
    QString spouse;
    QString kids[3];
    std::optional<QDate> birthday;
    std::optional<QDate> spouseBirthday;
    std::optional<QDate> kidBirthdays[3];
    std::optional<QDate> anniversary;
};

/// One row of ovs_schedular.
struct SchedulerRow {
    QString kind; ///< "Birthday" or "Anniversary": categ1 and Type
    QString date; ///< dd-MMM-yyyy; empty when the contact has no such date
    QString description;
    QString person;
    QString origin; ///< b_a_id
};

/// Whose birthdays beside the contact's own get rows.
enum class FamilyRows {
    SpouseAndKids, ///< those with a name; the rows name the contact
    KidsByName, ///< kids with a date, under their own names; never the spouse
};

/// The rows for this year and the next two.
QList<SchedulerRow> schedulerRows(
    const ScheduledDates& dates, int thisYear, FamilyRows family = FamilyRows::SpouseAndKids);

void addSchedulerRows(jet::Database& data, const QList<SchedulerRow>& rows);

} // namespace core
