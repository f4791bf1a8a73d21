#include "telephone/dialer/dialer_statements.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace telephone {

QString memoryListsSql()
{
    return u"select distinct LIST from CNT_PHONENUM"_s;
}

QString memorySlotsSql(const QString& list)
{
    return u"select * from cnt_phonenum where list = '"_s + core::inQuotes(list) + u'\'';
}

QString memorySlotSql(const QString& list, int slot)
{
    return memorySlotsSql(list) + u" and cmbnum = "_s + QString::number(slot);
}

QString memoryStoreSql(const QString& list, int slot)
{
    return u"select * from CNT_PHONENUM where [LIST] = '"_s + core::inQuotes(list) + u"' and [CMBNUM] ="_s
        + QString::number(slot);
}

QString memoryByCaptionSql(const QString& caption)
{
    return u"select * from cnt_phonenum where name like '"_s + core::inQuotes(caption) + u'\'';
}

QString renameListSql(const QString& from, const QString& to)
{
    return u"update cnt_phonenum set list = '"_s + core::inQuotes(to) + u"' where list ='"_s
        + core::inQuotes(from) + u'\'';
}

QString deleteListSql(const QString& list)
{
    return u"Delete * from cnt_phonenum where list='"_s + core::inQuotes(list) + u'\'';
}

QString storePrefixesSql(const DialPrefixes& prefixes)
{
    return u"update cntb_setup set prefix2 ='"_s + core::inQuotes(prefixes.p2) + u"',prefix1 ='"_s
        + core::inQuotes(prefixes.p1) + u"',pbx ='"_s + core::inQuotes(prefixes.pbx) + u"',prefix3='"_s
        + core::inQuotes(prefixes.p3) + u'\'';
}

QString homeCitySql(bool on)
{
    return u"update cntb_setup set DialerCity="_s + (on ? u"True"_s : u"False"_s);
}

QString cityCodesSql(bool national)
{
    return national ? u"select CITY,STD from WIA_INDIA where len(CITY) > 0 and len(STD) > 0 order by CITY"_s
                    : u"select CITY,CITYISD from WIA_CITY where len(CITY) > 0 and len(CITYISD) > 0 and "
                      u"[COUNTRY ID] in (select ID from WIA_GLOBALMAS where [COUNTRY] <> 'India') order by "
                      u"CITY "_s;
}

QString cityTimeSql(const QString& label)
{
    return u"select * from wia_city where city like '"_s + core::inQuotes(label) + u'\'';
}

QString peopleSql()
{
    return u"select  distinct id,name from cnt_main where name<> null and len(trim(name)) <> 0 order by name"_s;
}

QString peopleOfSql(const QString& category)
{
    return u"select  distinct id,name from cnt_main where Category1='"_s + core::inQuotes(category)
        + u"' and not isnull(name) and len(name) <> 0 order by name"_s;
}

QString peopleCategoriesSql()
{
    return u"select distinct CATEGORY1 from CNT_MAIN where [CATEGORY1] is not null"_s;
}

QString memoryContactsSql(const MemoryChoice& choice)
{
    struct Term {
        const QString& value;
        const char16_t* column;
    };
    const Term terms[]
        = {{choice.category, u"category1"}, {choice.subcategory, u"category2"}, {choice.city, u"h_city"}};
    QString sql = u"select * from cnt_main "_s;
    QString word = u" Where "_s;
    for (const Term& term : terms) {
        if (term.value.trimmed().isEmpty() || term.value == u"All")
            continue;
        sql += word + u' ' + QString::fromUtf16(term.column) + u" like '"_s + core::inQuotes(term.value)
            + u'\'';
        word = u" And "_s;
    }
    return sql + u" order by category1"_s;
}

QString memorySubcategoriesSql(const QString& category)
{
    return u"select distinct category2 from cnt_main where category1='"_s + core::inQuotes(category) + u'\'';
}

QString phoneListNamesSql()
{
    return u"select distinct LISTNAME from CNT_PHLIST where [LISTNAME] <> null"_s;
}

QString contactsOfPhoneListSql(const QString& list)
{
    return u"select * from CNT_MAIN where ID in (select PERID from CNT_PHLIST where [LISTNAME] = '"_s
        + core::inQuotes(list) + u"')"_s;
}

QString callsOfPersonSql(const QString& name)
{
    return u"select name,date,time from cnt_phcall where name='"_s + core::inQuotes(name)
        + u"' order by time Desc,date desc"_s;
}

QString purposesSql()
{
    return u"select distinct PURPOSE from CNTB_OTHER where [PURPOSE] is not null"_s;
}

QString responsesSql()
{
    return u"select distinct RESPONSE from CNTB_OTHER where [RESPONSE] is not null"_s;
}

} // namespace telephone
