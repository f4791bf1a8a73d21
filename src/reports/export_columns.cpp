#include "reports/export_columns.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

// What only the program itself makes use of stands at the end.
constexpr ExportColumn kColumns[] = {
    {u"Name", QT_TRANSLATE_NOOP("reports", "Name"), true},
    {u"Title", QT_TRANSLATE_NOOP("reports", "Title")},
    {u"First", QT_TRANSLATE_NOOP("reports", "First name")},
    {u"Mid", QT_TRANSLATE_NOOP("reports", "Middle name")},
    {u"Last", QT_TRANSLATE_NOOP("reports", "Last name")},
    {u"nick", QT_TRANSLATE_NOOP("reports", "Nick name")},
    {u"Maiden", QT_TRANSLATE_NOOP("reports", "Maiden name")},
    {u"sex", QT_TRANSLATE_NOOP("reports", "Gender")},
    {u"Company", QT_TRANSLATE_NOOP("reports", "Company"), true},
    {u"Job_Title", QT_TRANSLATE_NOOP("reports", "Job title")},
    {u"category1", QT_TRANSLATE_NOOP("reports", "Category"), true},
    {u"category2", QT_TRANSLATE_NOOP("reports", "Subcategory")},
    {u"Priority", QT_TRANSLATE_NOOP("reports", "Priority")},
    {u"Product", QT_TRANSLATE_NOOP("reports", "Product")},
    {u"Status", QT_TRANSLATE_NOOP("reports", "Status")},
    {u"region", QT_TRANSLATE_NOOP("reports", "Region")},
    {u"altcontact", QT_TRANSLATE_NOOP("reports", "Alternate contact")},
    {u"AltTitle", QT_TRANSLATE_NOOP("reports", "Title of the alternate contact")},
    {u"Spouse", QT_TRANSLATE_NOOP("reports", "Spouse")},
    {u"Sp_BD", QT_TRANSLATE_NOOP("reports", "Spouse's birthday")},
    {u"SP_Mobile", QT_TRANSLATE_NOOP("reports", "Spouse's mobile")},
    {u"kid1", QT_TRANSLATE_NOOP("reports", "Kid 1")},
    {u"kid2", QT_TRANSLATE_NOOP("reports", "Kid 2")},
    {u"kid3", QT_TRANSLATE_NOOP("reports", "Kid 3")},
    {u"Kid1_BD", QT_TRANSLATE_NOOP("reports", "Birthday of kid 1")},
    {u"Kid2_BD", QT_TRANSLATE_NOOP("reports", "Birthday of kid 2")},
    {u"Kid3_BD", QT_TRANSLATE_NOOP("reports", "Birthday of kid 3")},
    {u"M_BD", QT_TRANSLATE_NOOP("reports", "Birthday")},
    {u"Anniv", QT_TRANSLATE_NOOP("reports", "Anniversary")},
    {u"h_add1", QT_TRANSLATE_NOOP("reports", "Home address 1"), true},
    {u"h_add2", QT_TRANSLATE_NOOP("reports", "Home address 2"), true},
    {u"h_city", QT_TRANSLATE_NOOP("reports", "Home city"), true},
    {u"h_state", QT_TRANSLATE_NOOP("reports", "Home state"), true},
    {u"h_country", QT_TRANSLATE_NOOP("reports", "Home country"), true},
    {u"h_pin", QT_TRANSLATE_NOOP("reports", "Home zip"), true},
    {u"h_std", QT_TRANSLATE_NOOP("reports", "Home area code")},
    {u"H_Ph1", QT_TRANSLATE_NOOP("reports", "Home phone 1"), true},
    {u"h_ph2", QT_TRANSLATE_NOOP("reports", "Home phone 2")},
    {u"h_ph3", QT_TRANSLATE_NOOP("reports", "Home phone 3")},
    {u"h_web", QT_TRANSLATE_NOOP("reports", "Home web page")},
    {u"H_email1", QT_TRANSLATE_NOOP("reports", "Home e-mail 1"), true},
    {u"h_email2", QT_TRANSLATE_NOOP("reports", "Home e-mail 2")},
    {u"Mobile", QT_TRANSLATE_NOOP("reports", "Mobile"), true},
    {u"Sms", QT_TRANSLATE_NOOP("reports", "SMS")},
    {u"fax", QT_TRANSLATE_NOOP("reports", "Fax")},
    {u"w_add1", QT_TRANSLATE_NOOP("reports", "Work 1 address 1")},
    {u"w_add2", QT_TRANSLATE_NOOP("reports", "Work 1 address 2")},
    {u"w_city", QT_TRANSLATE_NOOP("reports", "Work 1 city")},
    {u"w_State", QT_TRANSLATE_NOOP("reports", "Work 1 state")},
    {u"w_country", QT_TRANSLATE_NOOP("reports", "Work 1 country")},
    {u"w_pin", QT_TRANSLATE_NOOP("reports", "Work 1 zip")},
    {u"W_std", QT_TRANSLATE_NOOP("reports", "Work 1 area code")},
    {u"w_Ph1", QT_TRANSLATE_NOOP("reports", "Work 1 phone 1")},
    {u"w_Ph2", QT_TRANSLATE_NOOP("reports", "Work 1 phone 2")},
    {u"w_ph3", QT_TRANSLATE_NOOP("reports", "Work 1 phone 3")},
    {u"W_Tel_XTN", QT_TRANSLATE_NOOP("reports", "Work 1 extension")},
    {u"W_AddType", QT_TRANSLATE_NOOP("reports", "Work 1 type of address")},
    {u"w_email1", QT_TRANSLATE_NOOP("reports", "Work 1 e-mail 1")},
    {u"W_web", QT_TRANSLATE_NOOP("reports", "Work 1 web page")},
    {u"W_Email2", QT_TRANSLATE_NOOP("reports", "Work 1 e-mail 2")},
    {u"W_ADD_DESC", QT_TRANSLATE_NOOP("reports", "Work 1: about the address")},
    {u"b_add1", QT_TRANSLATE_NOOP("reports", "Work 2 address 1")},
    {u"b_add2", QT_TRANSLATE_NOOP("reports", "Work 2 address 2")},
    {u"b_city", QT_TRANSLATE_NOOP("reports", "Work 2 city")},
    {u"b_state", QT_TRANSLATE_NOOP("reports", "Work 2 state")},
    {u"b_country", QT_TRANSLATE_NOOP("reports", "Work 2 country")},
    {u"b_pin", QT_TRANSLATE_NOOP("reports", "Work 2 zip")},
    {u"B_std", QT_TRANSLATE_NOOP("reports", "Work 2 area code")},
    {u"B_Ph1", QT_TRANSLATE_NOOP("reports", "Work 2 phone 1")},
    {u"B_Ph2", QT_TRANSLATE_NOOP("reports", "Work 2 phone 2")},
    {u"B_ph3", QT_TRANSLATE_NOOP("reports", "Work 2 phone 3")},
    {u"b_tel_xtn", QT_TRANSLATE_NOOP("reports", "Work 2 extension")},
    {u"B_Add_Type", QT_TRANSLATE_NOOP("reports", "Work 2 type of address")},
    {u"B_Web", QT_TRANSLATE_NOOP("reports", "Work 2 web page")},
    {u"b_email1", QT_TRANSLATE_NOOP("reports", "Work 2 e-mail 1")},
    {u"b_email2", QT_TRANSLATE_NOOP("reports", "Work 2 e-mail 2")},
    {u"b_note", QT_TRANSLATE_NOOP("reports", "Business note")},
    {u"Relation", QT_TRANSLATE_NOOP("reports", "Relation")},
    {u"Religion", QT_TRANSLATE_NOOP("reports", "Religion")},
    {u"education", QT_TRANSLATE_NOOP("reports", "Education")},
    {u"Hobbies", QT_TRANSLATE_NOOP("reports", "Hobbies")},
    {u"Asso1", QT_TRANSLATE_NOOP("reports", "Association 1")},
    {u"asso2", QT_TRANSLATE_NOOP("reports", "Association 2")},
    {u"User1", QT_TRANSLATE_NOOP("reports", "User 1")},
    {u"User2", QT_TRANSLATE_NOOP("reports", "User 2")},
    {u"User3", QT_TRANSLATE_NOOP("reports", "User 3")},
    {u"memo1", QT_TRANSLATE_NOOP("reports", "Note")},
    {u"Memo", QT_TRANSLATE_NOOP("reports", "Note of later changes")},
    {u"PhotLoc", QT_TRANSLATE_NOOP("reports", "Picture")},
    {u"fam_note", QT_TRANSLATE_NOOP("reports", "Family note")},
    {u"dateEnter", QT_TRANSLATE_NOOP("reports", "Entered on")},
    {u"DateModi", QT_TRANSLATE_NOOP("reports", "Changed on")},
    {u"sunsign", QT_TRANSLATE_NOOP("reports", "Sun sign")},
    {u"location", QT_TRANSLATE_NOOP("reports", "Location")},
    {u"H_ADD_DESC", QT_TRANSLATE_NOOP("reports", "Home: about the address")},
    {u"B_PRODUCT", QT_TRANSLATE_NOOP("reports", "Business product")},
    {u"grp", QT_TRANSLATE_NOOP("reports", "Group")},
    {u"Rate", QT_TRANSLATE_NOOP("reports", "Rate")},
    {u"Amt", QT_TRANSLATE_NOOP("reports", "Amount")},
    {u"Product Group", QT_TRANSLATE_NOOP("reports", "Product group")},
    {u"Action", QT_TRANSLATE_NOOP("reports", "Action")},
    {u"Size", QT_TRANSLATE_NOOP("reports", "Size")},
    {u"qty", QT_TRANSLATE_NOOP("reports", "Quantity")},
    {u"Desc", QT_TRANSLATE_NOOP("reports", "Description")},
    {u"Response", QT_TRANSLATE_NOOP("reports", "Response")},
    {u"User4", QT_TRANSLATE_NOOP("reports", "User 4")},
    {u"User5", QT_TRANSLATE_NOOP("reports", "User 5")},
    {u"id", QT_TRANSLATE_NOOP("reports", "Number of the contact")},
    {u"Nview", QT_TRANSLATE_NOOP("reports", "Way of writing the name")},
    {u"cpsmnbd", QT_TRANSLATE_NOOP("reports", "Birthday in the scheduler")},
    {u"cpsspbd", QT_TRANSLATE_NOOP("reports", "Spouse's birthday in the scheduler")},
    {u"cpsk1bd", QT_TRANSLATE_NOOP("reports", "Birthday of kid 1 in the scheduler")},
    {u"cpsk2bd", QT_TRANSLATE_NOOP("reports", "Birthday of kid 2 in the scheduler")},
    {u"cpsk3bd", QT_TRANSLATE_NOOP("reports", "Birthday of kid 3 in the scheduler")},
    {u"cpsanni", QT_TRANSLATE_NOOP("reports", "Anniversary in the scheduler")},
    {u"selected", QT_TRANSLATE_NOOP("reports", "Selected")},
    {u"fmtree", QT_TRANSLATE_NOOP("reports", "In the family tree")},
    {u"palm", QT_TRANSLATE_NOOP("reports", "Sent to a hand-held")},
    {u"gen_id", QT_TRANSLATE_NOOP("reports", "Parent in the family tree")},
    {u"code_1b", QT_TRANSLATE_NOOP("reports", "Code of the city service")},
    {u"to", QT_TRANSLATE_NOOP("reports", "To")},
    {u"h_Zip", QT_TRANSLATE_NOOP("reports", "Home zip, second field")},
    {u"w_Zip", QT_TRANSLATE_NOOP("reports", "Work 1 zip, second field")},
    {u"b_Zip", QT_TRANSLATE_NOOP("reports", "Work 2 zip, second field")},
};

constexpr QStringView kAll = u"All";

QString conditionOf(QStringView column, const QString& value)
{
    QString text = value.trimmed();
    if (text.isEmpty() || text == kAll)
        return {};
    return u" ["_s + column.toString() + u"]='"_s + text.replace(u'\'', u"''"_s) + u'\'';
}

QString whereClause(const ExportFilter& filter)
{
    QStringList conditions{conditionOf(u"category1", filter.category),
        conditionOf(u"category2", filter.subcategory), conditionOf(u"Priority", filter.priority)};
    conditions.removeAll(QString());
    return conditions.isEmpty() ? QString() : u" where"_s + conditions.join(u" and");
}

QString selectSql(const QStringList& columns, const QString& where)
{
    return u"select ["_s + columns.join(u"],[") + u"] from cnt_main"_s + where + u" order by Name"_s;
}

} // namespace

std::span<const ExportColumn> exportColumns()
{
    return kColumns;
}

QString exportCaption(const ExportColumn& column, const QStringList& userLabels)
{
    constexpr QStringView kUser = u"User";
    const int number = column.name.startsWith(kUser) ? column.name.mid(kUser.size()).toInt() : 0;
    if (number > 0 && number <= userLabels.size())
        return userLabels[number - 1];
    return QCoreApplication::translate("reports", column.caption);
}

QString exportKeysSql(const ExportFilter& filter)
{
    return selectSql({u"id"_s}, whereClause(filter));
}

QString exportSql(const QStringList& columns, const ExportFilter& filter)
{
    return selectSql(columns, whereClause(filter));
}

QString exportSampleSql(const QStringList& columns, const QStringList& keys)
{
    return selectSql(columns, u" where id in ("_s + keys.join(u',') + u')');
}

} // namespace reports
