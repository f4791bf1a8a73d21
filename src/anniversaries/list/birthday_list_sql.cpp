#include "anniversaries/list/birthday_list_sql.h"

#include "core/dated_persons.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

// Kept: all children show whether the birthday of the first one was copied.
QStringView shownTick(const core::DatedPerson& person)
{
    constexpr int kFirstChild = 2;
    const auto persons = core::datedPersons();
    return &person > &persons[kFirstChild] ? persons[kFirstChild].copied : person.copied;
}

QString fullBirthdays(int thisYear)
{
    QString sql;
    for (const core::DatedPerson& person : core::datedPersons()) {
        const bool isFirst = sql.isEmpty();
        const QString arm = isFirst
            ? u"select month(%1) as linkidid,day(%1) as sunsign,id,name as contact,%2 ,%1,%1,%3 - "
              "year(%1) as gen_id ,category1,category2,priority,first,h_city,%4 as [Copy To "
              "Scheduler] from cnt_main where %2 is not null  and len(%2) <> 0 and %1 is not null  "
              "and len(%1) <> 0 "_s
            : u"union (select month(%1) as linkidid,day(%1) as sunsign,id,name as contact,%2,%1 "
              ",%1,%3 - year(%1) as gen_id ,category1,category2,priority,first,h_city,%4 as [Copy "
              "To Scheduler] from cnt_main where %2 is not null and len(%2) <> 0  and %1 is not "
              "null  and len(%1) <> 0 ) "_s;
        sql += arm.arg(person.date, person.name, QString::number(thisYear), shownTick(person));
    }
    return sql;
}

QString fullAnniversaries(int thisYear)
{
    return u"select  month(Anniv) as linkidid,name,spouse ,id,priority ,Anniv,category1,category2,h_city,%1 "
           u"- "
           "year(Anniv) as gen_id, cpsanni as [Copy To Scheduler] from cnt_main where anniv is not null and "
           "len(anniv) <>0"_s.arg(thisYear);
}

struct GroupRow {
    Regrouping regrouping;
    QStringView order; ///< of birthdays; of anniversaries too where those have none of their own
    QStringView anniversaryOrder;
    QStringView column;
    const char16_t* birthdays; ///< headings
    const char16_t* anniversaries;
};

// "Contcat" is what these lists have been headed by ever since.
constexpr GroupRow kGroups[] = {
    {Regrouping::Refresh, u" order by linkidid,sunsign,category1,category2,name ",
        u" order by month(anniv),day(anniv),name ", u"",
        u"   |Birthday     |Priority     |Category         |Sub Category    |Contact Person              "
        u"|Contact                     |Date of Birth       |Age |Copy to Scheduler",
        u"   |Anniversary    |Priority       |Category           |Sub Category       |Contact Person         "
        u"|Spouse                "},
    {Regrouping::Categ, u" order by Category1,category2", {}, u"category1",
        u"   |Category         |Sub Category    |Priority|Contact Person               |Contcat              "
        u"       |Birthday        |Date of Birth       |Age |Copy to Scheduler",
        u"   |Category           |Sub Category      |Priority |Contcat Person        |Spouse               "
        u"|Anniversary"},
    {Regrouping::Priority, u" order by Priority", {}, u"priority",
        u"   |Priority |Category         |Sub Category   |Contact Person            |Contact               "
        u"      |Birthday        |Date of Birth       |Age |Copy to Scheduler",
        u"   |Priority |Category           |Sub Category      |Contact Person         |Spouse               "
        u"|Anniversary"},
    {Regrouping::Month, u" order by linkidid", u" order by month(anniv),day(anniv)", u"linkidid",
        u"   |Month       |Category         |Sub Category    |Priority  |Contact Person               "
        u"|Contact                     |Birthday        |Date of Birth       |Age |Copy to Scheduler",
        u"   |Month    |Category           |Sub Category     |Priority        |Contcat Person         "
        u"|Spouse               |Anniversary"},
    {Regrouping::Age, u" order by Gen_ID", {}, u"gen_id",
        u"   |Age     |Category         |Sub Category   |Priority  |Contact Person          |Contact        "
        u"             |Birthday        |Date of Birth       |Copy to Scheduler",
        u"   |Age |Category           |Sub Category     |Priority        |Contact Person         |Spouse     "
        u"          |Anniversary"},
    {Regrouping::City, u" order by h_city", {}, u"h_city",
        u"   |City             |Category         |Sub Category   |Priority  |Contact Person               "
        u"|Contact                     |Birthday        |Date of Birth       |Age   |Copy to Scheduler",
        u"   |City                   |Category           |Sub Category     |Priority        |Contcat Person  "
        u"       |Spouse               |Anniversary"},
};

const GroupRow& groupRow(Regrouping regrouping)
{
    return kGroups[static_cast<size_t>(regrouping)];
}

/// The columns under the headings, from what these say.
QStringList columnsUnder(const QString& headings, Occasion occasion)
{
    struct Named {
        QStringView heading;
        QStringView birthday;
        QStringView anniversary;
    };
    static constexpr Named known[] = {{u"", u"", u""}, {u"Date", u"m_bd", u""}, {u"Birthday", u"m_bd", u""},
        {u"Date of Birth", u"m_bd:2", u""}, {u"Anniversary", u"", u"Anniv"},
        {u"Priority", u"priority", u"priority"}, {u"Category", u"category1", u"category1"},
        {u"Sub Category", u"category2", u"category2"}, {u"Contact Person", u"contact", u"name"},
        {u"Contcat Person", u"", u"name"}, {u"Contact", u"name", u""}, {u"Contcat", u"name", u""},
        {u"Spouse", u"", u"spouse"}, {u"Age", u"gen_id", u"gen_id"}, {u"Month", u"linkidid", u"linkidid"},
        {u"City", u"h_city", u"h_city"}, {u"Copy to Scheduler", u"Copy To Scheduler", u"Copy To Scheduler"}};
    QStringList columns;
    for (const QString& heading : headings.split(u'|')) {
        const auto named = std::find_if(std::begin(known), std::end(known),
            [&](const Named& each) { return each.heading == heading.trimmed(); });
        Q_ASSERT(named != std::end(known));
        columns << (occasion == Occasion::Birthday ? named->birthday : named->anniversary).toString();
    }
    return columns;
}

} // namespace

QString fullListSql(Occasion occasion, Regrouping regrouping, int thisYear)
{
    const GroupRow& group = groupRow(regrouping);
    if (occasion == Occasion::Birthday)
        return fullBirthdays(thisYear) + group.order.toString();
    return fullAnniversaries(thisYear)
        + (group.anniversaryOrder.isEmpty() ? group.order : group.anniversaryOrder).toString();
}

QString shortListSql(Occasion occasion)
{
    if (occasion == Occasion::Anniversary)
        return u"select name, spouse ,id,priority ,Anniv from cnt_main where anniv is not null and "
               u"len(anniv) "
               "<> 0  order by month(anniv),day(anniv)"_s;
    QString sql;
    for (const core::DatedPerson& person : core::datedPersons()) {
        const QString arm = u"select month(%1) as linkid,day(%1) as sunsign,id,priority,name as contact,%2, "
                            "%1 from cnt_main where %2 is not null  and len(%2) <> 0 and %1 is not null and "
                            "len(%1) <> 0 "_s.arg(person.date, person.name);
        const bool isLast = &person == &core::datedPersons().back();
        const QString order = isLast ? u"order by linkid,sunsign "_s : QString();
        sql += sql.isEmpty() ? arm : u"union ("_s + arm + order + u") "_s;
    }
    return sql;
}

ListHead fullListHead(Occasion occasion, Regrouping regrouping)
{
    const GroupRow& group = groupRow(regrouping);
    const bool ofBirthdays = occasion == Occasion::Birthday;
    const QString headings = QString::fromUtf16(ofBirthdays ? group.birthdays : group.anniversaries);
    return {headings, columnsUnder(headings, occasion), group.column.toString()};
}

ListHead shortListHead(Occasion occasion)
{
    const QString headings = occasion == Occasion::Birthday
        ? u"|Date                 |Priority              |Contact Person                       |Contact"_s
        : u"   |Anniversary           |Priority          |Contact Person               |Spouse                "_s;
    return {headings, columnsUnder(headings, occasion), {}};
}

QString categoriesSql()
{
    return u"Select distinct category1 from cnt_main"_s;
}

QString prioritiesSql()
{
    return u"Select distinct Priority from cnt_main"_s;
}

QString dateColumn(Occasion occasion)
{
    return occasion == Occasion::Birthday ? u"m_bd"_s : u"Anniv"_s;
}

QString secondDateColumn()
{
    return u"m_bd:2"_s;
}

QString tickColumn()
{
    return u"Copy To Scheduler"_s;
}

QString contactOfRowSql(const QString& contact, const QString& category)
{
    return u"select * from cnt_main where name= %1 and category1=%2"_s.arg(quoted(contact), quoted(category));
}

QString contactNamedSql(const QString& name)
{
    return u"select * from cnt_main where name= "_s + quoted(name);
}

QString quoted(const QString& text)
{
    return u'\'' + QString(text).replace(u'\'', u"''"_s) + u'\'';
}

} // namespace anniversaries
