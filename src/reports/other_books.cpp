#include "reports/other_books.h"

#include "formats/card_file.h"
#include "platform/card_folder.h"

#include <QCollator>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

using formats::CardFields;
using platform::MailAddress;
using platform::MailContact;

template <class Item> struct ColumnOf {
    QStringView column;
    QString (*text)(const Item& item);
};

constexpr ColumnOf<MailContact> kMailColumns[] = {
    {u"First", [](const MailContact& c) { return c.first; }},
    {u"Mid", [](const MailContact& c) { return c.middle; }},
    {u"Last", [](const MailContact& c) { return c.last; }},
    {u"Name",
        [](const MailContact& c) { return c.fullName.isEmpty() ? c.first + u' ' + c.last : c.fullName; }},
    {u"Company", [](const MailContact& c) { return c.company; }},
    {u"Job_Title", [](const MailContact& c) { return c.jobTitle; }},
    {u"category1", [](const MailContact& c) { return c.categories; }},
    {u"h_add1", [](const MailContact& c) { return c.home.street1; }},
    {u"h_add2", [](const MailContact& c) { return c.home.street2; }},
    {u"h_city", [](const MailContact& c) { return c.home.city; }},
    {u"h_pin", [](const MailContact& c) { return c.home.pin; }},
    {u"h_state", [](const MailContact& c) { return c.home.state; }},
    {u"h_country", [](const MailContact& c) { return c.home.country; }},
    {u"H_Ph1", [](const MailContact& c) { return c.homePhone1; }},
    {u"h_ph2", [](const MailContact& c) { return c.homePhone2; }},
    {u"h_ph3", [](const MailContact& c) { return c.homePhone3; }},
    {u"w_add1", [](const MailContact& c) { return c.work.street1; }},
    {u"w_add2", [](const MailContact& c) { return c.work.street2; }},
    {u"w_city", [](const MailContact& c) { return c.work.city; }},
    {u"w_pin", [](const MailContact& c) { return c.work.pin; }},
    {u"w_State", [](const MailContact& c) { return c.work.state; }},
    {u"w_country", [](const MailContact& c) { return c.work.country; }},
    {u"w_Ph1", [](const MailContact& c) { return c.workPhone1; }},
    {u"w_Ph2", [](const MailContact& c) { return c.workPhone2; }},
    {u"w_ph3", [](const MailContact& c) { return c.workPhone3; }},
    {u"b_add1", [](const MailContact& c) { return c.other.street1; }},
    {u"b_add2", [](const MailContact& c) { return c.other.street2; }},
    {u"b_city", [](const MailContact& c) { return c.other.city; }},
    {u"b_pin", [](const MailContact& c) { return c.other.pin; }},
    {u"b_state", [](const MailContact& c) { return c.other.state; }},
    {u"b_country", [](const MailContact& c) { return c.other.country; }},
    {u"Mobile", [](const MailContact& c) { return c.mobile; }},
    {u"fax", [](const MailContact& c) { return c.fax; }},
    {u"H_email1", [](const MailContact& c) { return c.email1; }},
    {u"h_email2", [](const MailContact& c) { return c.email2; }},
    {u"b_email1", [](const MailContact& c) { return c.email3; }},
    {u"h_web", [](const MailContact& c) { return c.homeWeb; }},
    {u"B_Web", [](const MailContact& c) { return c.workWeb; }},
    {u"Spouse", [](const MailContact& c) { return c.spouse; }},
    {u"memo1", [](const MailContact& c) { return c.note; }},
};

// A card of ours has one name; its first and its last word stand for the two that layouts are sorted by.
constexpr ColumnOf<CardFields> kCardColumns[] = {
    {u"Name", [](const CardFields& c) { return c.fullName.isEmpty() ? c.name : c.fullName; }},
    {u"First", [](const CardFields& c) { return c.fullName.section(u' ', 0, 0); }},
    {u"Last", [](const CardFields& c) { return c.fullName.section(u' ', 1); }},
    {u"Company", [](const CardFields& c) { return c.company; }},
    {u"Job_Title", [](const CardFields& c) { return c.jobTitle; }},
    {u"h_add1", [](const CardFields& c) { return c.homeAddress; }},
    {u"w_add1", [](const CardFields& c) { return c.workAddress; }},
    {u"b_add1", [](const CardFields& c) { return c.postalAddress; }},
    {u"H_Ph1", [](const CardFields& c) { return c.homePhones.join(u", "); }},
    {u"w_Ph1", [](const CardFields& c) { return c.workPhones.join(u", "); }},
    {u"Mobile", [](const CardFields& c) { return c.mobile; }},
    {u"fax", [](const CardFields& c) { return c.faxes.join(u", "); }},
    // The preferred address goes to the work field here, the others to the home one.
    {u"b_email1", [](const CardFields& c) { return c.preferredEmails.join(u", "); }},
    {u"H_email1", [](const CardFields& c) { return c.emails.join(u", "); }},
    {u"B_Web", [](const CardFields& c) { return c.workWeb; }},
    {u"Spouse", [](const CardFields& c) { return c.spouse; }},
    {u"M_BD", [](const CardFields& c) { return c.birthday; }},
};

template <class Item, std::size_t Size> QStringList columnsOf(const ColumnOf<Item> (&table)[Size])
{
    QStringList columns;
    for (const ColumnOf<Item>& row : table)
        columns << row.column.toString();
    return columns;
}

template <class Item, std::size_t Size>
QStringList rowOf(const Item& item, const ColumnOf<Item> (&table)[Size])
{
    QStringList texts;
    for (const ColumnOf<Item>& row : table)
        texts << row.text(item).trimmed();
    return texts;
}

} // namespace

BookRows rowsOf(const std::vector<MailContact>& contacts)
{
    BookRows rows{columnsOf(kMailColumns), {}};
    for (const MailContact& contact : contacts)
        rows.rows << rowOf(contact, kMailColumns);
    return rows;
}

BookRows rowsOf(const platform::CardFolder& cards, const std::function<bool(int done)>& progress)
{
    constexpr int kFilesAStep = 25;
    BookRows rows{columnsOf(kCardColumns), {}};
    int done = 0;
    for (const QString& file : cards.files()) {
        rows.rows << rowOf(formats::readCard(cards.text(file)), kCardColumns);
        if (++done % kFilesAStep == 0 && progress && !progress(done))
            break;
    }
    return rows;
}

std::shared_ptr<const output::ReportSource> sortedFor(Layout layout, BookRows rows)
{
    const LayoutRow& wanted = rowOf(layout);
    const qsizetype key = rows.columns.indexOf(wanted.groupBy.toString());
    if (!wanted.clause.isEmpty())
        rows.rows.removeIf([key](const QStringList& row) { return row.value(key).isEmpty(); });
    QCollator order;
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(rows.rows.begin(), rows.rows.end(), [&](const QStringList& a, const QStringList& b) {
        return order.compare(a.value(key), b.value(key)) < 0;
    });
    return std::make_shared<output::ListSource>(std::move(rows.columns), std::move(rows.rows));
}

} // namespace reports
