#include "anniversaries/year/year_sql.h"

#include "jet/date_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

/// A person as the statements spell the columns.
struct Spelling {
    QString id;
    QString name;
    QString date;
    QString place; ///< what follows the name
    QString table;
};

QList<Spelling> spellings()
{
    const QString upper = u"NAME as Contact,H_ADD1,H_ADD2,H_CITY"_s;
    const QString lower = upper.toLower().replace(u"contact"_s, u"Contact"_s);
    return {{u"ID"_s, u"NAME"_s, u"M_BD"_s, upper, u"CNT_MAIN"_s},
        {u"ID"_s, u"SPOUSE"_s, u"SP_BD"_s, upper, u"CNT_MAIN"_s},
        {u"ID"_s, u"KID1"_s, u"KID1_BD"_s, upper, u"CNT_MAIN"_s},
        {u"id"_s, u"kid2"_s, u"kid2_bd"_s, lower, u"cnt_main"_s},
        {u"id"_s, u"kid3"_s, u"kid3_bd"_s, lower, u"cnt_main"_s}};
}

/// The columns of an arm. The view of the signs has the date behind the names.
QString columns(YearKind kind, const Spelling& who, const QString& date)
{
    if (kind == YearKind::Birthdays)
        return who.id + u',' + date + u',' + who.name + u',' + who.place;
    QString place = who.place;
    place.insert(place.indexOf(u"Contact"_s) + 7, u',' + date);
    return who.id + u',' + who.name + u',' + place;
}

QString joined(const QStringList& arms)
{
    QString sql = arms.first();
    for (const QString& arm : arms.sliced(1))
        sql += u" union ("_s + arm + u')';
    return sql;
}

} // namespace

QString bornOnDaySql(YearKind kind, QDate day)
{
    QStringList arms;
    for (const Spelling& who : spellings()) {
        arms << u"select %1 from %2 where %3 <> null and day(%3)=%4 and month(%5) = %6"_s.arg(
            columns(kind, who, who.date), who.table, who.date, jet::formatDate(day, u"dd"),
            who.date.toLower(), jet::formatDate(day, u"mm"));
    }
    return joined(arms);
}

// Kept: for the second and third child the view of the signs shows the date of the parent.
QString bornOnDateSql(YearKind kind, QDate date)
{
    QStringList arms;
    for (const Spelling& who : spellings()) {
        const bool showsParent
            = kind == YearKind::Signs && (who.date == u"kid2_bd" || who.date == u"kid3_bd");
        arms << u"select %1 from CNT_MAIN where %2 = # %3 #"_s.arg(
            columns(kind, who, showsParent ? u"M_BD"_s : who.date), who.date.toUpper(),
            jet::formatDate(date, u"dd mmm-yyyy"));
    }
    return joined(arms);
}

// Kept: the spouse is listed for contacts whose own birthday is known, and the view of the signs lists
// everybody.
QString wholeYearSql(YearKind kind)
{
    QStringList arms;
    for (const Spelling& who : spellings()) {
        const QString dated = who.date + (kind == YearKind::Birthdays ? u" as Ndate"_s : u" as NDate"_s);
        const QString tested = who.date == u"SP_BD"_s ? u"M_BD"_s : who.date;
        const QString parts = u"month(%1) as NMonth,Day(%1) as NDay"_s.arg(who.date);
        const QString where = kind == YearKind::Birthdays ? u" where "_s + tested + u" <> null"_s : QString();
        const QString list = kind == YearKind::Birthdays ? columns(kind, who, dated) + u',' + parts
                                                         : columns(kind, who, dated + u',' + parts);
        arms << u"select "_s + list + u" from "_s + who.table + where;
    }
    arms.first() = u'(' + arms.first() + u") "_s;
    return joined(arms)
        + (kind == YearKind::Birthdays ? u" order by nmonth,nday"_s : u" order by NMonth,NDay"_s);
}

QString markedDaysSql()
{
    QStringList arms;
    for (const Spelling& who : spellings()) {
        arms << u"select id,month(%1) as linkidid,day(%1) as sunsign,val(priority) as mark from cnt_main "
                "where %1 is not null  and len(%1) <> 0"_s.arg(who.date);
    }
    return joined(arms) + u" order by linkidid,sunsign,mark"_s;
}

} // namespace anniversaries
