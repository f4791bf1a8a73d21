#include "letters/lists/mail_list_sql.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace letters {

namespace {

/// Where a kind of group keeps its names and members.
struct GroupTables {
    QStringView names; ///< the statement of all groups
    QStringView members; ///< the subselection of the ids of contacts, of the grid
    QStringView printed; ///< the same as it is printed
};

/// In the order of MailTab. "%1" is the group.
constexpr GroupTables kTables[kMailTabs] = {
    {u"select distinct listname from cnt_maillist where listname is not null and listname <> ''",
        u"id IN(SELECT perid from [cnt_maillist] WHERE listname='%1')", u""},
    {u"", u"", u""},
    {u"", u"fmtree=true", u""},
    {u"select [GROUP],ID from CNT_ASSOGRP where [GROUP] <> null",
        u"id IN (select CNTID from CNT_ASSOMEMBER where [GROUPID] = %1)",
        u"id IN(SELECT cntid FROM [cnt_assomember] WHERE Groupid = %1)"},
    {u"", u"id in (SELECT cntid FROM [wma_handycontacts])", u"id in(select cntid from [wma_handycontacts])"},
    {u"select [group],id from wma_kittygroup where [group] <> null",
        u"id IN(select CNTID from WMA_KITTYMEMBER where [GROUPID] = %1)",
        u"id IN(SELECT cntid FROM [wma_kittymember] WHERE Groupid = %1)"},
    {u"select [event],id from wma_partyplanner where [event] <> null",
        u"id IN (SELECT gid FROM [wma_partyguest] where [PID] = %1)",
        u"id IN(SELECT gid FROM [wma_partyguest] WHERE PID = %1)"},
};

const GroupTables& tablesOf(MailTab tab)
{
    return kTables[static_cast<int>(tab)];
}

QString ofGroup(QStringView condition, const MailGroup& group)
{
    return condition.toString().replace(
        u"%1"_s, group.tab == MailTab::Lists ? core::inQuotes(group.name) : QString::number(group.id));
}

// Kept: behind the city stands a blank that belongs to the pattern, so that the town of one's own finds only
// those who have it with a blank.
QString bookCondition(const MailFilter& filter)
{
    QString clause;
    const auto add
        = [&clause](const QString& term) { clause += (clause.isEmpty() ? u" where "_s : u" and "_s) + term; };
    if (filter.priority1 && filter.priority2)
        add(u"([PRIORITY] like '1' or [PRIORITY] like '2')"_s);
    else if (filter.priority1 || filter.priority2)
        add(filter.priority1 ? u"[PRIORITY] like '1'"_s : u" [PRIORITY] like '2'"_s);
    if (!filter.city.isEmpty())
        add(u" [H_CITY] like '%1 '"_s.arg(core::inQuotes(filter.city)));
    return clause;
}

QString familyCondition(const MailFilter& filter)
{
    return u" relation LIKE '%1' and  [FMTREE] = True "_s.arg(core::inQuotes(filter.relation));
}

QString columnList(const QString& prefix, output::AddressSet address)
{
    QStringList columns{u"name"_s, u"company"_s};
    columns += output::addressColumns(address);
    return prefix + columns.join(u',' + prefix);
}

} // namespace

bool hasGroups(MailTab tab)
{
    return !tablesOf(tab).names.isEmpty();
}

QString mailGroupsSql(MailTab tab)
{
    return tablesOf(tab).names.toString();
}

QString mailMembersSql(const MailGroup& group, const MailFilter& filter)
{
    const QString condition = ofGroup(tablesOf(group.tab).members, group);
    switch (group.tab) {
    case MailTab::Lists: return u"SELECT DISTINCT id,name,selected FROM [cnt_main] WHERE "_s + condition;
    case MailTab::Contacts: return u"select * from CNT_MAIN"_s + bookCondition(filter) + u" order by NAME"_s;
    case MailTab::Family:
        return core::isAll(filter.relation)
            ? u"SELECT distinct id,name,selected FROM [cnt_main] WHERE "_s + condition
            : u"SELECT DISTINCT name,selected FROM [cnt_main]  where ("_s + familyCondition(filter) + u')';
    case MailTab::Handy: return u"SELECT distinct name,selected from cnt_main where "_s + condition;
    case MailTab::Associations:
    case MailTab::Groups:
    case MailTab::Parties: break;
    }
    return u"select id AS perid,name,selected FROM [cnt_main] WHERE "_s + condition;
}

bool isReadAsPattern(MailTab tab, const MailFilter& filter)
{
    return tab == MailTab::Contacts || (tab == MailTab::Family && !core::isAll(filter.relation));
}

QString mailMembersCondition(const MailGroup& group, const MailFilter& filter)
{
    if (group.tab == MailTab::Contacts) {
        const QString clause = bookCondition(filter).mid(u" where "_s.size());
        return clause.isEmpty() ? u"1=1"_s : clause;
    }
    if (group.tab == MailTab::Family && !core::isAll(filter.relation))
        return familyCondition(filter);
    return ofGroup(tablesOf(group.tab).members, group);
}

QString printedMembersSql(
    const MailGroup& group, output::AddressSet address, bool onlySelected, const QString& listed)
{
    const QString columns = columnList({}, address);
    const QString condition = ofGroup(tablesOf(group.tab).printed, group);
    switch (group.tab) {
    case MailTab::Lists:
        return u"select "_s + columnList(u"b."_s, address).toUpper().replace(u"B."_s, u"b."_s)
            + u" from [cnt_maillist] a,[cnt_main] b WHERE a.listname= '"_s + core::inQuotes(group.name)
            + (onlySelected ? u"' AND a.PERID=b.ID AND b.selected = true"_s : u"' and  a.PERID=b.ID"_s);
    case MailTab::Contacts: {
        if (!onlySelected)
            return listed;
        // The order stays behind the conditions.
        const qsizetype order = listed.lastIndexOf(u" order by "_s);
        const QString body = order < 0 ? listed : listed.left(order);
        return body + (body.contains(u" where "_s) ? u" and (selected=true)"_s : u" where (selected=true)"_s)
            + (order < 0 ? QString() : listed.mid(order));
    }
    case MailTab::Family:
        return onlySelected
            ? u"SELECT * FROM [cnt_main] WHERE fmtree = true AND selected = true ORDER BY name"_s
            : u"SELECT * FROM [cnt_main] WHERE fmtree=true ORDER BY name"_s;
    case MailTab::Handy: {
        // Kept: of the second work address all but the first line is read from the first one, and without a
        // selection a bracket is missing, so that nobody is listed.
        const bool isWork2 = address == output::AddressSet::Work2;
        const QString ofHandy = isWork2 ? u"name,company,b_add1,w_add2,w_city,w_state,w_pin"_s : columns;
        const QString select = u"SELECT "_s + ofHandy + u" FROM [cnt_main] where "_s;
        if (onlySelected)
            return select + u"selected=true and "_s + condition;
        return select + (isWork2 ? condition.chopped(1) : condition);
    }
    case MailTab::Associations:
    case MailTab::Groups:
    case MailTab::Parties: break;
    }
    return u"SELECT "_s + columns + u" FROM [cnt_main] WHERE "_s
        + (onlySelected ? u"selected = true AND "_s : QString()) + condition;
}

QString savedMembersSql(const MailGroup& group, const MailFilter& filter, output::AddressSet address)
{
    constexpr QStringView prefixes[] = {u"h", u"w", u"b"};
    const QString prefix = prefixes[static_cast<int>(address)].toString();
    QString columns = u"name"_s;
    for (const QStringView part : {u"_add1", u"_add2", u"_city", u"_state", u"_country", u"_pin"})
        columns += u',' + prefix + part.toString();
    return u"select "_s + columns + u" from [cnt_main] where "_s + mailMembersCondition(group, filter)
        + u" order by name"_s;
}

QString memberIdsSql(const MailGroup& group, const MailFilter& filter)
{
    return u"select id,name from [cnt_main] where "_s + mailMembersCondition(group, filter)
        + u" order by name"_s;
}

QString defaultTownSql()
{
    return u"select * from CNT_TOPCITIES where [DEFAULT]=true"_s;
}

QString relationsSql()
{
    return u"select distinct RELATION from CNT_MAIN where [RELATION] <> null and [RELATION] <> ''"_s;
}

QString addableContactsSql(const AddFilter& filter)
{
    QString clause;
    const auto add = [&clause](QStringView column, const QString& value) {
        if (!core::isAll(value))
            clause += (clause.isEmpty() ? u" where "_s : u" and "_s) + u' ' + column.toString() + u" LIKE '"_s
                + core::inQuotes(value) + u'\'';
    };
    add(u"first", filter.first);
    add(u"last", filter.last);
    add(u"h_city", filter.city);
    add(u"category1", filter.category);
    return u"SELECT * FROM [cnt_main] "_s + clause;
}

QString firstNamesSql()
{
    return u"SELECT DISTINCT first FROM [cnt_main] WHERE len(first) <> 0 ORDER BY first"_s;
}

QString lastNamesSql()
{
    return u"SELECT DISTINCT last FROM [cnt_main] WHERE len(last) <> 0 ORDER BY last"_s;
}

QString citiesSql()
{
    return u"select distinct h_city from cnt_main WHERE len(h_city) <>0 ORDER BY h_city"_s;
}

QString categoriesSql()
{
    return u"select distinct category1 from cnt_main WHERE len(category1) <> 0 ORDER BY category1"_s;
}

// Rows without the mark are not written anew, which takes a tenth of the time.
QString clearSelectionSql()
{
    return u"update [cnt_main] set selected=false where selected=true"_s;
}

QString selectContactSql(qint64 id, bool selected)
{
    return u"update [cnt_main] set selected=%1 where id=%2"_s.arg(
        selected ? u"true"_s : u"false"_s, QString::number(id));
}

} // namespace letters
