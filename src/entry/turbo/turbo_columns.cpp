#include "entry/turbo/turbo_columns.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

// Kept: the states and the address type can be filled in and are written to no column.
constexpr ColumnRow kColumns[] = {
    {u"dateEnter", u"", Rule::Today},
    {u"DateModi", u"", Rule::Today},
    {u"Name", u"", Rule::Name},
    {u"First", u"txtfirst", Rule::AsTyped},
    {u"Last", u"txtlast", Rule::AsTyped},
    {u"category1", u"txtCat", Rule::Category1},
    {u"category2", u"", Rule::Category2, u"txtCat"},
    // Kept: company and suffix are joined without a blank.
    {u"Company", u"txtcompany", Rule::Joined, u"txtcompsuffix"},
    {u"h_add1", u"txthadd1", Rule::AsTyped},
    {u"h_add2", u"txthadd2", Rule::AsTyped},
    {u"h_city", u"txthcity", Rule::AsTyped},
    {u"h_pin", u"TxthZip", Rule::AsTyped},
    {u"Priority", u"TxtPriority", Rule::Priority},
    {u"h_country", u"txthcountry", Rule::AsTyped},
    {u"w_add1", u"txtwadd1", Rule::AsTyped},
    {u"w_add2", u"txtwadd2", Rule::AsTyped},
    {u"w_city", u"txtwcity", Rule::AsTyped},
    {u"w_pin", u"TxtwZip", Rule::AsTyped},
    // Kept: the work address gets the home country, whatever stands in its own box.
    {u"w_country", u"txthcountry", Rule::AsTyped},
    {u"h_std", u"txthstd", Rule::AsTyped},
    {u"H_Ph1", u"txthph1", Rule::AsTyped},
    {u"h_ph2", u"txthph2", Rule::AsTyped},
    {u"h_ph3", u"txthph3", Rule::AsTyped},
    {u"W_std", u"txtwstd", Rule::AsTyped},
    {u"w_Ph1", u"txtwph1", Rule::AsTyped},
    {u"w_Ph2", u"txtwph2", Rule::AsTyped},
    {u"w_ph3", u"txtwph3", Rule::AsTyped},
    {u"Mobile", u"txtMobile", Rule::AsTyped},
    {u"fax", u"txtfax", Rule::AsTyped},
    {u"H_email1", u"txthemail1", Rule::Email, u"txthemailSuffix"},
    {u"b_email1", u"txtwemail1", Rule::AsTyped},
    {u"region", u"txtregion", Rule::AsTyped},
    {u"Status", u"txtstatus", Rule::OrUndefined},
    {u"Product", u"txtproduct", Rule::OrUndefined},
    {u"nick", u"txtnick", Rule::AsTyped},
    {u"Maiden", u"TxtMaiden", Rule::AsTyped},
    {u"b_note", u"TxtBusiness", Rule::AsTyped},
    {u"Job_Title", u"txtJobTitle", Rule::AsTyped},
    {u"Relation", u"TxtRelation", Rule::AsTyped},
    {u"h_web", u"txtHweb", Rule::AsTyped},
    {u"B_Web", u"txtWweb", Rule::AsTyped},
    {u"Spouse", u"TxtSpouse", Rule::AsTyped},
    {u"Hobbies", u"TxtHobbies", Rule::AsTyped},
    {u"kid1", u"Txtkid1", Rule::AsTyped},
    {u"kid2", u"TxtKid2", Rule::AsTyped},
    {u"kid3", u"TxtKid3", Rule::AsTyped},
    {u"Kid1_BD", u"Datekid1", Rule::Date},
    {u"Kid2_BD", u"datekid2", Rule::Date},
    {u"Kid3_BD", u"datekid3", Rule::Date},
    {u"M_BD", u"dtpBirtday", Rule::Date},
    {u"Anniv", u"SSDateAnn", Rule::Date},
    {u"User1", u"TxtUser1", Rule::AsTyped},
    {u"User2", u"TxtUser2", Rule::AsTyped},
    {u"User3", u"TxtUser3", Rule::AsTyped},
};

platform::MailContact turboMailContact(const FormValues& values)
{
    const auto text = [&values](QStringView box) { return values.trimmed(box); };
    platform::MailContact item;
    item.first = text(u"txtfirst");
    item.last = text(u"txtlast");
    item.nick = text(u"txtnick");
    item.fullName = item.fileAs = turboName(values);
    item.company = QString(values.text(u"txtcompany") + values.text(u"txtcompsuffix")).trimmed();
    item.jobTitle = text(u"txtJobTitle");
    item.home = {text(u"txthadd1"), text(u"txthadd2"), text(u"txthcity"), text(u"TxtHState"),
        text(u"TxthZip"), text(u"txthcountry")};
    item.work = {text(u"txtwadd1"), text(u"txtwadd2"), text(u"txtwcity"), text(u"TxtWState"),
        text(u"TxtwZip"), text(u"txthcountry")};
    item.homePhone1 = text(u"txthph1");
    item.homePhone2 = text(u"txthph2");
    item.homePhone3 = text(u"txthph3");
    item.workPhone1 = text(u"txtwph1");
    item.workPhone2 = text(u"txtwph2");
    item.workPhone3 = text(u"txtwph3");
    item.mobile = text(u"txtMobile");
    item.fax = text(u"txtfax");
    if (!text(u"txthemail1").isEmpty())
        item.email1 = values.text(u"txthemail1") + u'@' + values.text(u"txthemailSuffix");
    item.email3 = text(u"txtwemail1");
    item.homeWeb = text(u"txtHweb");
    item.workWeb = text(u"txtWweb");
    item.birthday = values.date(u"dtpBirtday").value_or(QDate());
    item.anniversary = values.date(u"SSDateAnn").value_or(QDate());
    item.spouse = text(u"TxtSpouse");
    item.hobby = text(u"TxtHobbies");
    item.user1 = text(u"TxtUser1");
    item.user2 = text(u"TxtUser2");
    item.user3 = text(u"TxtUser3");
    return item;
}

} // namespace

std::span<const ColumnRow> turboColumns()
{
    return kColumns;
}

QString turboName(const FormValues& values)
{
    return values.text(u"txtfirst") + u' ' + values.text(u"txtlast");
}

NewContact newTurboContact(const FormValues& values)
{
    NewContact contact;
    contact.name = turboName(values);
    contact.mail = turboMailContact(values);
    contact.dates.first = values.trimmed(u"txtfirst");
    contact.dates.last = values.trimmed(u"txtlast");
    constexpr QStringView kids[][2]
        = {{u"Txtkid1", u"Datekid1"}, {u"TxtKid2", u"datekid2"}, {u"TxtKid3", u"datekid3"}};
    for (int kid = 0; kid < 3; ++kid) {
        contact.dates.kids[kid] = values.trimmed(kids[kid][0]);
        contact.dates.kidBirthdays[kid] = values.date(kids[kid][1]);
    }
    contact.dates.birthday = values.date(u"dtpBirtday");
    contact.dates.anniversary = values.date(u"SSDateAnn");
    contact.family = core::FamilyRows::KidsByName;
    contact.favourites = {{values.text(u"txtHweb"), u"  H"_s}, {values.text(u"txtWweb"), u"  W"_s}};
    return contact;
}

} // namespace entry
