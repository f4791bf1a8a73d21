#include "entry/form/mail_contact.h"

#include "core/contact_names.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

using Item = platform::MailContact;
using Address = platform::MailAddress;

struct TextRow {
    QStringView control;
    QString Item::*field;
};
constexpr TextRow kTexts[] = {
    {u"Cmbtitle", &Item::title},
    {u"dtcmbfname", &Item::first},
    {u"dtcmbmid", &Item::middle},
    {u"dtcmblname", &Item::last},
    {u"dtcmbnick", &Item::nick},
    {u"txtcmpny", &Item::company},
    {u"dtcmbjob", &Item::jobTitle},
    {u"txtph1", &Item::homePhone1},
    {u"txtph2", &Item::homePhone2},
    {u"txtph3", &Item::homePhone3},
    {u"txtbph1", &Item::workPhone1},
    {u"txtbph2", &Item::workPhone2},
    {u"txtbph3", &Item::workPhone3},
    {u"txtMobile", &Item::mobile},
    {u"txtfax", &Item::fax},
    {u"txtemail2", &Item::email2},
    {u"txtbemail1", &Item::email3},
    {u"txtweb", &Item::homeWeb},
    {u"txtbweb", &Item::workWeb},
    {u"dtcspouse", &Item::spouse},
    {u"txthobby", &Item::hobby},
    {u"cmbuser1", &Item::user1},
    {u"cmbuser2", &Item::user2},
    {u"cmbuser3", &Item::user3},
};

struct AddressRow {
    Address Item::*address;
    QStringView controls[6];
};
constexpr AddressRow kAddresses[] = {
    {&Item::home, {u"txtadd1", u"txtadd2", u"dtcmbcity", u"dtcmbstate", u"dtcmbpin", u"dtcmbcountry"}},
    {&Item::work, {u"txtbadd1", u"txtbadd2", u"dtcmbbcity", u"dtcmbbstate", u"dtcmbbpin", u"dtcmbbcountry"}},
    {&Item::other, {u"txtwadd1", u"txtwadd2", u"dtcmbwcity", u"dtcmbwstate", u"dtcmbwpin", u"dtcmbwcountry"}},
};
constexpr QString Address::*kAddressParts[] = {
    &Address::street1, &Address::street2, &Address::city, &Address::state, &Address::pin, &Address::country};

QString withSuffix(const QString& address, const QString& suffix)
{
    return address.trimmed().isEmpty() ? QString() : QString(address + u'@' + suffix);
}

} // namespace

void fillMailContact(platform::MailContact& item, const FormValues& values, const QString& name)
{
    const auto take = [&values](QString& field, QStringView control) {
        if (values.texts.contains(control.toString()))
            field = values.trimmed(control);
    };
    for (const TextRow& row : kTexts)
        take(item.*row.field, row.control);
    for (const AddressRow& row : kAddresses) {
        for (size_t part = 0; part < std::size(kAddressParts); ++part)
            take(item.*row.address.*kAddressParts[part], row.controls[part]);
    }
    item.fullName = name;
    item.fileAs = core::nameViewOf(values.text(u"cmbnview")) == core::NameView::Company ? item.company : name;
    if (values.texts.contains(u"txtemail1"_s))
        item.email1 = withSuffix(values.text(u"txtemail1"), values.text(u"cboemail1"));
    if (values.texts.contains(u"txtMemo"_s))
        item.note = values.text(u"txtMemo");
    if (values.dates.contains(u"DateBday"_s))
        item.birthday = values.date(u"DateBday").value_or(QDate());
    if (values.dates.contains(u"DateAnn"_s))
        item.anniversary = values.date(u"DateAnn").value_or(QDate());
}

} // namespace entry
