#include "core/contact_record.h"

#include "core/contact_names.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

using Item = platform::MailContact;
using Address = platform::MailAddress;

struct ItemText {
    QStringView column;
    QString Item::*field;
};
constexpr ItemText kItemTexts[] = {
    {u"Title", &Item::title},
    {u"First", &Item::first},
    {u"Mid", &Item::middle},
    {u"Last", &Item::last},
    {u"nick", &Item::nick},
    {u"Company", &Item::company},
    {u"Job_Title", &Item::jobTitle},
    {u"H_Ph1", &Item::homePhone1},
    {u"h_ph2", &Item::homePhone2},
    {u"h_ph3", &Item::homePhone3},
    {u"Mobile", &Item::mobile},
    {u"fax", &Item::fax},
    {u"H_email1", &Item::email1},
    {u"h_email2", &Item::email2},
    {u"b_email1", &Item::email3},
    {u"h_web", &Item::homeWeb},
    {u"B_Web", &Item::workWeb},
    {u"Spouse", &Item::spouse},
    {u"Hobbies", &Item::hobby},
    {u"memo1", &Item::note},
    {u"User1", &Item::user1},
    {u"User2", &Item::user2},
    {u"User3", &Item::user3},
};
constexpr QString Item::*kWorkPhones[] = {&Item::workPhone1, &Item::workPhone2, &Item::workPhone3};

/// The end of the six columns of an address, behind "h_", "b_" or "w_".
constexpr QStringView kAddressColumns[] = {u"add1", u"add2", u"city", u"state", u"pin", u"country"};
constexpr QString Address::*kAddressParts[] = {
    &Address::street1, &Address::street2, &Address::city, &Address::state, &Address::pin, &Address::country};

void take(QString& field, const ContactRecord& contact, const QString& column)
{
    if (contact.has(column))
        field = contact.text(column);
}

void takeAddress(Address& address, const ContactRecord& contact, const QString& prefix)
{
    for (std::size_t part = 0; part < std::size(kAddressParts); ++part)
        take(address.*kAddressParts[part], contact, prefix + kAddressColumns[part].toString());
}

formats::CardAddress cardAddress(const ContactRecord& contact, const QString& prefix)
{
    const auto column = [&](int part) { return contact.text(prefix + kAddressColumns[part].toString()); };
    return {column(0), column(1), column(2), column(3), column(4), column(5)};
}

} // namespace

RecordColumns::RecordColumns(const jet::Recordset& rows, const QStringList& wanted)
{
    const QStringList columns = rows.columns();
    for (int column = 0; column < columns.size(); ++column) {
        if (wanted.isEmpty() || wanted.contains(columns[column], Qt::CaseInsensitive))
            m_columns.push_back({column, columns[column].toLower()});
    }
}

ContactRecord::ContactRecord(const jet::Recordset& row)
    : ContactRecord(row, RecordColumns(row))
{
}

ContactRecord::ContactRecord(const jet::Recordset& row, const RecordColumns& columns)
{
    if (!row.hasRow())
        return;
    m_values.reserve(qsizetype(columns.m_columns.size()));
    for (const RecordColumns::Column& column : columns.m_columns)
        m_values.insert(column.key, row.value(column.index));
}

QDate ContactRecord::date(QStringView column) const
{
    return m_values.value(key(column)).toDate();
}

void fillMailItem(platform::MailContact& item, const ContactRecord& contact, WorkAddress work)
{
    for (const ItemText& row : kItemTexts)
        take(item.*row.field, contact, row.column.toString());
    const bool isFirst = work == WorkAddress::First;
    const QString workPrefix = isFirst ? u"b_"_s : u"w_"_s;
    for (int number = 0; number < 3; ++number)
        take(item.*kWorkPhones[number], contact, workPrefix + u"ph"_s + QString::number(number + 1));
    takeAddress(item.home, contact, u"h_"_s);
    takeAddress(item.work, contact, workPrefix);
    if (isFirst)
        takeAddress(item.other, contact, u"w_"_s);
    item.fullName = contact.text(u"Name");
    item.fileAs = nameViewOf(contact.text(u"Nview")) == NameView::Company ? item.company : item.fullName;
    if (contact.has(u"M_BD"))
        item.birthday = contact.date(u"M_BD");
    if (contact.has(u"Anniv"))
        item.anniversary = contact.date(u"Anniv");
}

formats::CardValues cardValuesOf(const ContactRecord& contact)
{
    formats::CardValues card;
    card.name = contact.text(u"Name");
    card.nameView = contact.text(u"Nview");
    card.title = contact.text(u"Title");
    card.first = contact.text(u"First");
    card.middle = contact.text(u"Mid");
    card.last = contact.text(u"Last");
    card.nick = contact.text(u"nick");
    card.company = contact.text(u"Company");
    card.spouse = contact.text(u"Spouse");
    card.workPhones = {contact.text(u"w_Ph1"), contact.text(u"w_Ph2"), contact.text(u"w_ph3")};
    card.homePhones = {contact.text(u"H_Ph1"), contact.text(u"h_ph2"), contact.text(u"h_ph3")};
    card.mobile = contact.text(u"Mobile");
    card.fax = contact.text(u"fax");
    card.work = cardAddress(contact, u"w_"_s);
    card.home = cardAddress(contact, u"h_"_s);
    card.postal = cardAddress(contact, u"b_"_s);
    card.birthday = contact.date(u"M_BD");
    card.email = contact.text(u"H_email1");
    card.secondEmail = contact.text(u"h_email2");
    card.workEmail = contact.text(u"b_email1");
    card.web = contact.text(u"h_web");
    return card;
}

} // namespace core
