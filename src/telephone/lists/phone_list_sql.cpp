#include "telephone/lists/phone_list_sql.h"

#include "core/sql_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace telephone {

QString listNamesSql(ListKind kind)
{
    switch (kind) {
    case ListKind::User: return u"select distinct listname from cnt_phlist where listname <> null"_s;
    case ListKind::Dialer: return u"select distinct list from cnt_phonenum where list <> null"_s;
    case ListKind::Associations: return u"select distinct [group] from cnt_assogrp where [group] <> null"_s;
    case ListKind::Contacts: break;
    }
    return {};
}

QString listNumbersSql(ListKind kind, const QString& list)
{
    const QString name = core::inQuotes(list);
    switch (kind) {
    case ListKind::User:
        return u"select cnt_main.id as idd,cnt_phlist.name,cnt_phlist.phone from cnt_main,cnt_phlist where "
               "cnt_phlist.listname='%1' and cnt_phlist.perid=cnt_main.id order by cnt_phlist.name"_s.arg(
                   name);
    // Kept: the names come from the dialer's memory, the numbers from the user's list of the same name.
    case ListKind::Dialer:
        return u"select perid as idd,cnt_phlist.name,cnt_phlist.phone from cnt_phlist where listname='%1' "
               "order by cnt_phlist.name"_s.arg(name);
    case ListKind::Associations:
        return u"select cnt_main.id as idd,cnt_main.name,cnt_main.h_ph1 as phone from "
               "cnt_main,cnt_assogrp,cnt_assomember where cnt_assogrp.group='%1' and "
               "cnt_assogrp.id=cnt_assomember.groupid and cnt_assomember.cntid=cnt_main.id order by "
               "cnt_main.name"_s.arg(name);
    case ListKind::Contacts: break;
    }
    return {};
}

QString newListSql(const QString& list)
{
    return u"select * from cnt_phlist where listname= '%1'"_s.arg(core::inQuotes(list));
}

QString defaultCitySql()
{
    return u"select * from cnt_topcities where default=true"_s;
}

// Kept: where there is a default city, the ticks count for nothing.
QString contactPhonesSql(const ContactTicks& ticks, bool hasDefaultCity, const QString& homeCity)
{
    const QString contacts = u"select id,name,h_ph1 as phone  from cnt_main "_s;
    if (hasDefaultCity)
        return contacts + u"order by name"_s;
    const QString inCity = u"where h_city ='%1'"_s.arg(core::inQuotes(homeCity));
    if (!ticks.priority1 && !ticks.priority2) {
        return ticks.homeCityOnly
            ? u"select id,name,h_ph1 as phone from cnt_main "_s + inCity + u" order by name"_s
            : contacts + u"where 1>2 order by name"_s;
    }
    const bool both = ticks.priority1 && ticks.priority2;
    const QString priority = both ? u"priority='1' or priority='2'"_s
        : ticks.priority1         ? u"priority='1'"_s
                                  : u"priority='2'"_s;
    if (!ticks.homeCityOnly)
        return contacts + u"where "_s + priority + u" order by name"_s;
    return contacts + inCity + u" and "_s + (both ? u'(' + priority + u')' : priority) + u" order by name"_s;
}

QString printedNumbersSql(ListKind kind, const QString& list)
{
    switch (kind) {
    case ListKind::User: return listNumbersSql(kind, list);
    case ListKind::Dialer:
        return u"select * from cnt_phlist where listname='%1'order by name"_s.arg(core::inQuotes(list));
    case ListKind::Contacts: return u"select * from cnt_main where priority = '1'order by name"_s;
    case ListKind::Associations: break;
    }
    return u"select cnt_main.name,cnt_main.h_ph1,cnt_main.h_ph2,cnt_main.h_ph3,cnt_main.w_ph1,cnt_main.w_ph2 "
           "from cnt_main,cnt_assogrp,cnt_assomember where cnt_assogrp.group='%1' and "
           "cnt_assogrp.id=cnt_assomember.groupid and cnt_assomember.cntid=cnt_main.id order by "
           "cnt_main.name"_s.arg(core::inQuotes(list));
}

QString filteredContactsSql(const ContactFilter& filter)
{
    QString clause;
    const auto add = [&clause](QStringView column, const QString& value) {
        if (!core::isAll(value))
            clause += (clause.isEmpty() ? u" where "_s : u" and "_s) + u' ' + column.toString() + u" like '"_s
                + core::inQuotes(value) + u'\'';
    };
    if (!core::isAll(filter.category))
        clause = u"where category1 like '%1'"_s.arg(core::inQuotes(filter.category));
    add(u"category2", filter.subcategory);
    add(u"h_city", filter.city);
    return u"Select * from cnt_main "_s + clause;
}

QString allContactsSql()
{
    return u"SELECT * FROM CNT_Main order by name"_s;
}

QString contactCategoriesSql()
{
    return u"select distinct category1 from cnt_main where len(category1) <> 0"_s;
}

QString contactSubcategoriesSql(const QString& category)
{
    return u"select distinct category2 from cnt_main where category1='%1' and  len(category2) <> 0 order by "
           "category2"_s.arg(core::inQuotes(category));
}

QString contactCitiesSql()
{
    return u"select distinct h_city from cnt_main where len(h_city) <> 0 order by h_city"_s;
}

// Kept: "or" stands without brackets, so that category and city hold for one side of it only.
QString filteredNumbersSql(const NumberFilter& filter)
{
    QString clause;
    if (!core::isAll(filter.category))
        clause = u"where category1 like '%1'"_s.arg(core::inQuotes(filter.category));
    if (!core::isAll(filter.priority)) {
        QStringList terms;
        const bool isUpTo = filter.priority.startsWith(u"<="_s);
        const int last = filter.priority.mid(isUpTo ? 2 : 0).toInt();
        for (int priority = isUpTo ? 1 : last; priority <= last; ++priority)
            terms << u"priority = '%1'"_s.arg(priority);
        clause += (clause.isEmpty() ? u"where "_s : u"  and  "_s) + u' ' + terms.join(u" or "_s) + u' ';
    }
    if (!core::isAll(filter.city))
        clause += (clause.isEmpty() ? u" where "_s : u" and "_s) + u" city like '"_s
            + core::inQuotes(filter.city) + u'\'';
    return u"select * from cnt_phlist "_s + clause;
}

} // namespace telephone
