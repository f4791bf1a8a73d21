#pragma once

#include "anniversaries/occasion.h"
#include "jet/database.h"

#include <QDate>
#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

namespace anniversaries {

/// How many times (years) a copy can be made, from what was typed; nothing for any other text.
std::optional<int> copyTimes(const QString& typed);

/// A row of the list, as the copy sees it.
struct CopiedRow {
    qint64 id = 0; ///< of the contact
    QString name; ///< who celebrates
    QString person; ///< whom the scheduler names
    QString beside; ///< what stands behind the name in the description: the date of birth, the spouse
    QDate date;
    QString priority;
    bool isTicked = false;
    bool wasTicked = false; ///< when the list was read
};

/// Brings the ticks of the list into the tables, row by row: the flags of the contacts, and a row of the
/// scheduler a year for each tick. To be used within one batch.
class SchedulerCopy {
public:
    /// @param times years, beginning with this one
    SchedulerCopy(jet::Database& data, Occasion occasion, int thisYear, int times);

    /// False in a book without a table for the scheduler.
    bool isReady() const { return m_schedule.isValid(); }
    void copy(const CopiedRow& row);

private:
    /// The flag of the date; empty when none of the contact's dates is this one any more.
    QString flagOf(const CopiedRow& row) const;
    void setFlag(const CopiedRow& row, bool copied);
    void addRows(const CopiedRow& row, const QString& key);
    QString keyOf(const CopiedRow& row) const;

    jet::Database& m_data;
    Occasion m_occasion;
    int m_thisYear;
    int m_times;
    jet::Recordset m_schedule;
    // What there is to take away, so that the many rows without a tick cost nothing.
    QSet<qint64> m_flagged;
    QSet<QString> m_scheduled;
};

} // namespace anniversaries
