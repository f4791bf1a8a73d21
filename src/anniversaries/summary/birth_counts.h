#pragma once

#include "jet/recordset.h"

#include <QList>
#include <QString>

namespace anniversaries {

/// By what birthdays are counted.
enum class CountBy { SunSign, Month };

QString countsSql(CountBy by);
QString totalSql(CountBy by);
QString countsHeadings(CountBy by);

struct BirthCount {
    QString name; ///< of the sign or the month
    int count = 0;
    QString percent;
};
QList<BirthCount> birthCounts(const jet::Recordset& rows, CountBy by, int total);

/// With one digit behind the point where it is not 0: "33.3", "50.", ".5".
QString percentText(int count, int total);

} // namespace anniversaries
