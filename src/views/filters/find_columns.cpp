#include "views/filters/find_columns.h"

#include <QString>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr FindColumn kLetters[] = {
    {QT_TRANSLATE_NOOP("views", "Type"), u"Type"},
    {QT_TRANSLATE_NOOP("views", "Mail Type"), u"Mailtype"},
    {QT_TRANSLATE_NOOP("views", "Mail Category"), u"mailcateg"},
    {QT_TRANSLATE_NOOP("views", "Person Category"), u"category1"},
    {QT_TRANSLATE_NOOP("views", "Person"), u"Person"},
};

constexpr FindColumn kAssociations[] = {
    {QT_TRANSLATE_NOOP("views", "Date"), u"Date"},
    {QT_TRANSLATE_NOOP("views", "Place"), u"Place"},
    {QT_TRANSLATE_NOOP("views", "Details"), u"Details"},
};

constexpr FindColumn kMailDatabase[] = {
    {QT_TRANSLATE_NOOP("views", "From"), u"From"},
    {QT_TRANSLATE_NOOP("views", "Subject"), u"Subject"},
    {QT_TRANSLATE_NOOP("views", "Name"), u"Name"},
    {QT_TRANSLATE_NOOP("views", "Add1"), u"Add1"},
    {QT_TRANSLATE_NOOP("views", "Add2"), u"Add2"},
    {QT_TRANSLATE_NOOP("views", "city"), u"city"},
    {QT_TRANSLATE_NOOP("views", "State"), u"State"},
    {QT_TRANSLATE_NOOP("views", "Pin"), u"Pin"},
    {QT_TRANSLATE_NOOP("views", "Country"), u"Country"},
    {QT_TRANSLATE_NOOP("views", "Ph1"), u"Ph1"},
    {QT_TRANSLATE_NOOP("views", "Ph2"), u"Ph2"},
    {QT_TRANSLATE_NOOP("views", "Email1"), u"Email1"},
    {QT_TRANSLATE_NOOP("views", "Email2"), u"Email2"},
    {QT_TRANSLATE_NOOP("views", "Followup"), u"Followup"},
    {QT_TRANSLATE_NOOP("views", "Priority"), u"Priority"},
    {QT_TRANSLATE_NOOP("views", "Group"), u"Group"},
    {QT_TRANSLATE_NOOP("views", "Category"), u"Category"},
    {QT_TRANSLATE_NOOP("views", "Location"), u"Location"},
    {QT_TRANSLATE_NOOP("views", "Product Group"), u"Product Group"},
    {QT_TRANSLATE_NOOP("views", "Product"), u"Product"},
    {QT_TRANSLATE_NOOP("views", "Size"), u"Size"},
    {QT_TRANSLATE_NOOP("views", "Qty"), u"Qty"},
    {QT_TRANSLATE_NOOP("views", "Rate"), u"Rate"},
    {QT_TRANSLATE_NOOP("views", "Amt"), u"Amt"},
    {QT_TRANSLATE_NOOP("views", "desc"), u"desc"},
    {QT_TRANSLATE_NOOP("views", "Action"), u"Action"},
    {QT_TRANSLATE_NOOP("views", "Response"), u"Response"},
    {QT_TRANSLATE_NOOP("views", "Status"), u"Status"},
    {QT_TRANSLATE_NOOP("views", "to"), u"to"},
};

constexpr FindColumn kMailRecord[] = {
    {QT_TRANSLATE_NOOP("views", "Type"), u"type"},
    {QT_TRANSLATE_NOOP("views", "Mail Type"), u"mailtype"},
    {QT_TRANSLATE_NOOP("views", "Mail Category"), u"mailcateg"},
    {QT_TRANSLATE_NOOP("views", "Person Category"), u"category1"},
    {QT_TRANSLATE_NOOP("views", "Person"), u"Person"},
};

constexpr FindTarget kTargets[] = {
    {u"Letters", u"cnt_letters", u"FrmLetterRecord", {}, kLetters},
    {u"Associations", u"Cnt_Association", u"FrmAssoParty", {}, kAssociations},
    {u"emailtodb", u"cnt_emaildb", u"FrmEmailtoDb", {}, kMailDatabase},
};

constexpr FindTarget kMail{{}, u"cnt_emails", u"FrmEmilRec",
    u"select id,person,category1,type,date,mailtype,mailcateg from cnt_emails  order by person", kMailRecord};

} // namespace

const FindTarget& findTarget(QStringView callerWord)
{
    const auto* found = std::find_if(std::begin(kTargets), std::end(kTargets),
        [callerWord](const FindTarget& target) { return target.word == callerWord; });
    return found == std::end(kTargets) ? kMail : *found;
}

QString replaceSql(const FindTarget& target, QStringView column, const QString& find, const QString& replace)
{
    // A name of two words can not be told from two names.
    const QString name = column.contains(u' ') ? u'[' + column.toString() + u']' : column.toString();
    return u"update "_s + target.table.toString() + u" set "_s + name + u" = '"_s + replace + u"' where "_s
        + name + u" = '"_s + find + u'\'';
}

} // namespace views
