#include "telephone/replacer/replacer_lists.h"

#include "core/sql_text.h"

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

/// The cities of the contacts, each with its own condition behind it.
QString citiesWith(const QString& compared)
{
    const auto also = [&](QStringView column) {
        return compared.isEmpty() ? QString() : u"and "_s + column.toString() + compared;
    };
    return u"select id,name,category1,h_city as City  from cnt_main where  h_city <> null  and len(h_city)<> 0 "_s
        + also(u"h_city")
        + u"union (select id,name,category1,w_city as City  from cnt_main where w_city <> null  and len(w_city)<> 0 "_s
        + also(u"w_city")
        + u")union (select id,name,category1,b_city as City  from cnt_main where b_city <> null  and len(b_city)<> 0 "_s
        + also(u"b_city") + u')';
}

} // namespace

QString codesSql()
{
    return u"select id,name,h_city, h_std as Std  from cnt_main where  h_std <> null  and len(h_std)<> 0 "
           u"union "
           "(select id,name,w_city, w_std as Std  from cnt_main where w_std <> null  and len(w_std)<> 0 "
           ")union "
           "(select id,name,b_city, b_std as Std  from cnt_main where b_std <> null  and len(b_std)<> 0 )"_s;
}

// Kept: the codes at work stand beside the city of another address.
QString codesBeginningSql(const QString& begin)
{
    const QString pattern = u" like '"_s + core::inQuotes(begin) + u"*'"_s;
    return u"select id,name,h_city, h_std as std  from cnt_main where h_std <> null  and len(h_std)<> 0 and h_std"_s
        + pattern
        + u"union (select id,name,h_city, b_std as std  from cnt_main where b_std <> null  and len(b_std)<> 0 and b_std"_s
        + pattern
        + u")union (select id,name,B_city, w_std as std  from cnt_main where w_std <> null  and len(w_std)<> 0 and w_std"_s
        + pattern + u')';
}

QString citiesSql()
{
    return citiesWith({});
}

QString citiesBeginningSql(const QString& begin)
{
    return citiesWith(u" like '"_s + core::inQuotes(begin) + u"*' "_s);
}

QString contactsOfCitySql(const QString& city)
{
    return citiesWith(u" = '"_s + core::inQuotes(city) + u"' "_s);
}

QString allCitiesSql()
{
    return u"select distinct h_city as City  from cnt_main where  h_city <> null  and len(h_city)<> 0 union "
           "(select w_city as City from cnt_main where w_city <> null  and len(w_city)<> 0 )union (select "
           "b_city as City from cnt_main where b_city <> null  and len(b_city)<> 0 )"_s;
}

} // namespace telephone
