#include "anniversaries/months/month_list_sql.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

QString monthListSql(int month)
{
    constexpr int kMonths = 12;
    const QString selection
        = u"Select First as [First Name],Last as [Last Name],Company,Name,H_Email1 as [Home Email1],H_Email2 "
          "as [Home Email2],M_BD as [Birthday],Anniv as[Anniversary],Category1 as [Category],Category2 as "
          "[Sub],Sp_BD as [Spouse Birthday],kid1 as Kid1,Kid1_BD as [Kid1 Birthday1],kid2 as Kid2,Kid2_BD as "
          "[Kid2 Birthday2],kid3 as Kid3,Kid3_BD as [Kid3 Birthday3],Fam_Note as [Family Note] from Cnt_Main"_s;
    return month >= 1 && month <= kMonths ? selection + u" where month (M_BD) ='%1'"_s.arg(month) : selection;
}

QStringList monthListColumns()
{
    return {u"First Name"_s, u"Last Name"_s, u"Company"_s, u"Name"_s, u"Home Email1"_s, u"Home Email2"_s,
        u"Birthday"_s, u"Anniversary"_s, u"Category"_s, u"Sub"_s, u"Spouse Birthday"_s, u"Kid1"_s,
        u"Kid1 Birthday1"_s, u"Kid2"_s, u"Kid2 Birthday2"_s, u"Kid3"_s, u"Kid3 Birthday3"_s,
        u"Family Note"_s};
}

QStringList monthListDates()
{
    return {u"Birthday"_s, u"Anniversary"_s, u"Spouse Birthday"_s, u"Kid1 Birthday1"_s, u"Kid2 Birthday2"_s,
        u"Kid3 Birthday3"_s};
}

} // namespace anniversaries
