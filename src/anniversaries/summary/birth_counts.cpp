#include "anniversaries/summary/birth_counts.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace anniversaries {

QString countsSql(CountBy by)
{
    return by == CountBy::SunSign
        ? u"SELECT sunsign,count(sunsign) FROM [cnt_main] WHERE len(sunsign) <> 0 GROUP BY sunsign"_s
        : u"SELECT month(m_bd),count(month(m_bd)) FROM [cnt_main] WHERE len(m_bd) <> 0 GROUP BY month(m_bd)"_s;
}

QString totalSql(CountBy by)
{
    return by == CountBy::SunSign ? u"SELECT count(sunsign) AS mda FROM [cnt_main]"_s
                                  : u"SELECT count(month(m_bd)) AS mda FROM [cnt_main]"_s;
}

QString countsHeadings(CountBy by)
{
    return by == CountBy::SunSign ? u"|SunSign|Count|Percent"_s : u"|Month|Count|Percent"_s;
}

QList<BirthCount> birthCounts(const jet::Recordset& rows, CountBy by, int total)
{
    QList<BirthCount> counts;
    for (int row = 0; row < rows.count(); ++row) {
        const int count = rows.valueAt(row, 1).toInt();
        const QString name = by == CountBy::SunSign
            ? rows.textAt(row, 0)
            : QLocale(QLocale::English).monthName(rows.valueAt(row, 0).toInt());
        counts << BirthCount{name, count, percentText(count, total)};
    }
    return counts;
}

// Kept: the point stays where nothing stands behind it or before it.
QString percentText(int count, int total)
{
    if (total <= 0)
        return {};
    QString text = QString::number(100.0 * count / total, 'f', 1);
    if (text.endsWith(u'0'))
        text.chop(1);
    return text.startsWith(u'0') ? text.mid(1) : text;
}

} // namespace anniversaries
