#pragma once

#include "anniversaries/occasion.h"
#include "formats/icalendar.h"
#include "jet/database.h"

#include <QDate>
#include <QString>

#include <functional>

namespace anniversaries {

/// A birthday or wedding day of the book.
struct CelebratedDay {
    Occasion occasion = Occasion::Birthday;
    qint64 id = 0; ///< of the contact
    QString name; ///< who was born, or married
    QString with; ///< whose family it is, blank for the contact; of a wedding day the spouse
    QDate date;
};

/// All of them, one after the other, until the answer is false.
/// @return false when a selection failed or the reading was stopped
bool forEachCelebratedDay(jet::Database& data, const std::function<bool(const CelebratedDay&)>& each);
int countCelebratedDays(jet::Database& data);

/// The day for calendar programs, with who it is and how old, or how long married, they are this year. A
/// year that nobody living was born in stands for one that is not known.
formats::YearlyDay yearlyDay(const CelebratedDay& day, int thisYear);

} // namespace anniversaries
