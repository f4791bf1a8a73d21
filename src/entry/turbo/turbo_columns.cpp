#include "entry/turbo/turbo_columns.h"

#include "entry/form/entered_contact.h"

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

/// The states are for the mail client only.
constexpr ColumnRow kStates[] = {{u"h_state", u"TxtHState"}, {u"w_state", u"TxtWState"}};

platform::MailContact turboMailContact(const FormValues& values)
{
    QList<ColumnRow> columns(std::begin(kColumns), std::end(kColumns));
    columns << kStates[0] << kStates[1];
    platform::MailContact item;
    core::fillMailItem(item, enteredContact(columns, values, turboName(values)), core::WorkAddress::Second);
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
