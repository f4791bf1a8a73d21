#include "telephone/search/number_union.h"

#include "core/sql_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

/// The members behind the first one stand in brackets.
QString unionOf(const QStringList& members)
{
    return members.first() + u" union ("_s + members.mid(1).join(u") union ("_s) + u')';
}

} // namespace

std::span<const SearchedSlot> searchedSlots()
{
    // Kept: the mobile numbers go by the home city.
    static constexpr SearchedSlot slots[]
        = {{u"h_ph1", u"h_city"}, {u"h_ph2", u"h_city"}, {u"h_ph3", u"h_city"}, {u"b_ph1", u"b_city"},
            {u"b_ph2", u"b_city"}, {u"b_ph3", u"b_city"}, {u"w_ph1", u"w_city"}, {u"w_ph2", u"w_city"},
            {u"w_ph3", u"w_city"}, {u"mobile", u"h_city"}, {u"sp_mobile", u"h_city"}};
    return slots;
}

// Kept: a piece is looked for in the whole book, whatever the city.
QString numbersSql(const QString& city, const QString& piece)
{
    QStringList members;
    for (const SearchedSlot& slot : searchedSlots()) {
        const QString column = slot.column.toString();
        QString condition = column + u" <> null  and len("_s + column + u")<> 0 "_s;
        if (!piece.isEmpty())
            condition = column + u" like '*"_s + core::inQuotes(piece) + u"*' and "_s + column
                + u" <> null and len("_s + column + u")<> 0 "_s;
        else if (!city.isEmpty())
            condition.prepend(slot.city.toString() + u" = '"_s + core::inQuotes(city) + u"' and "_s);
        members << u"select id,name,category1, "_s + column + u" as phone  from cnt_main where "_s
                + condition;
    }
    return unionOf(members);
}

QString numbersBeginningSql(const QString& begin, const QString& city)
{
    QStringList members;
    for (const SearchedSlot& slot : searchedSlots()) {
        const QString column = slot.column.toString();
        const QString inCity = city.isEmpty()
            ? QString()
            : slot.city.toString() + u" = '"_s + core::inQuotes(city) + u"' and"_s;
        members << u"select id,name,category1, "_s + column + u" as phone from cnt_main where "_s + inCity
                + u' ' + column + u" <> null  and len("_s + column + u")<> 0 and "_s + column + u" like '"_s
                + core::inQuotes(begin) + u"*'"_s;
    }
    return unionOf(members);
}

QString homeCitiesSql()
{
    return u"select distinct h_city from cnt_main where len(h_city)<>0 order by h_city"_s;
}

} // namespace telephone
