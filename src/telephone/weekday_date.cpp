#include "telephone/weekday_date.h"

#include "jet/date_text.h"

#include <QLocale>

namespace telephone {

QString weekdayDate(QDate date, QStringView pattern)
{
    constexpr QStringView weekday = u"ddd";
    if (!date.isValid() || !pattern.startsWith(weekday))
        return jet::formatDate(date, pattern);
    return QLocale::c().dayName(date.dayOfWeek(), QLocale::ShortFormat)
        + jet::formatDate(date, pattern.sliced(weekday.size()));
}

} // namespace telephone
