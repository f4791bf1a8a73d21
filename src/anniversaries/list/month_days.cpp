#include "anniversaries/list/month_days.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

std::span<const DayColumn> dayColumns()
{
    static constexpr DayColumn columns[] = {{u"m_bd", Occasion::Birthday}, {u"sp_bd", Occasion::Birthday},
        {u"kid1_bd", Occasion::Birthday}, {u"kid2_bd", Occasion::Birthday}, {u"kid3_bd", Occasion::Birthday},
        {u"anniv", Occasion::Anniversary}};
    return columns;
}

QString daysSql(QStringView column)
{
    return u"select distinct month(%1) as linkidid,day(%1) as sunsign,Priority from cnt_main where %1<> null"_s
        .arg(column);
}

QStringList dayStyles()
{
    return {u"Birth12"_s, u"Birth34"_s, u"Anniv12"_s, u"Anniv34"_s};
}

QString dayStyle(Occasion occasion, const QString& priority)
{
    const QString kind = occasion == Occasion::Birthday ? u"Birth"_s : u"Anniv"_s;
    if (priority == u"1" || priority == u"2")
        return kind + u"12"_s;
    return priority == u"3" || priority == u"4" ? kind + u"34"_s : QString();
}

} // namespace anniversaries
