#include "entry/simple/simple_columns.h"

#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr ColumnRow kColumns[] = {
    {u"Name", u"", Rule::Name},
    {u"category1", u"DtcmbCate", Rule::Category1, u"DtcmbSubCate"},
    {u"category2", u"DtcmbSubCate", Rule::Category2, u"DtcmbCate"},
    {u"Title", u"Cmbtitle"},
    {u"First", u"dtcmbfname"},
    {u"Last", u"dtcmblname"},
    {u"Company", u"txtcmpny"},
    {u"Nview", u"cmbnview"},
    {u"h_std", u"txtstd"},
    {u"H_Ph1", u"txtph1"},
    {u"B_Ph1", u"txtbph1"},
    {u"Mobile", u"txtMobile"},
    {u"H_email1", u"txtemail1"},
    {u"b_email1", u"txtbemail1"},
    {u"h_add1", u"txtadd1"},
    {u"h_add2", u"txtadd2"},
    {u"h_city", u"dtcmbcity"},
    {u"h_pin", u"dtcmbpin"},
    {u"h_state", u"dtcmbstate"},
    {u"h_country", u"dtcmbcountry"},
    {u"memo1", u"txtMemo", Rule::AsTyped},
    {u"M_BD", u"DateBday", Rule::Date},
    {u"DateModi", u"", Rule::Today},
};

constexpr ColumnRow kColumnsOfNew[] = {
    {u"Priority", u"cmbpriority", Rule::Priority},
    {u"Product", u"", Rule::OrUndefined},
    {u"Status", u"", Rule::OrUndefined},
    {u"region", u"", Rule::OrUndefined},
    {u"dateEnter", u"", Rule::Today},
};

} // namespace

std::span<const ColumnRow> simpleColumns()
{
    return kColumns;
}

std::span<const ColumnRow> simpleColumnsOfNew()
{
    return kColumnsOfNew;
}

// Of a joined entry that nobody touched the pieces stay: a category may have a dash in its name.
QList<core::ColumnEdit> simpleEdits(
    const FormValues& values, const SaveOptions& options, const core::TouchedFields& fields)
{
    QList<core::ColumnEdit> edits = columnEdits(kColumns, values, options, fields);
    if (options.mergedCategory)
        edits.removeIf([](const core::ColumnEdit& edit) {
            return edit.column.startsWith(u"category"_s) && !edit.isTouched;
        });
    return edits;
}

QString simpleName(const FormValues& values)
{
    const auto view = core::nameViewOf(values.text(u"cmbnview"));
    return view ? core::composeName(*view, namePartsOf(values)) : QString();
}

// Kept: the preferred mail address of a card is the one at work, and the other one is that at home.
FormValues simpleValuesOf(const formats::CardFields& card)
{
    FormValues values;
    const auto set = [&values](const QString& control, const QString& text) {
        if (!text.trimmed().isEmpty())
            values.texts.insert(control, text.trimmed());
    };
    const QString name = card.fullName.simplified();
    const qsizetype blank = name.lastIndexOf(u' ');
    set(u"dtcmbfname"_s, blank < 0 ? name : name.left(blank));
    set(u"dtcmblname"_s, blank < 0 ? QString() : name.mid(blank + 1));
    set(u"txtcmpny"_s, card.company);
    set(u"txtMobile"_s, card.mobile);
    set(u"txtph1"_s, card.homePhones.value(0));
    set(u"txtbph1"_s, card.workPhones.value(0));
    set(u"txtbemail1"_s, card.preferredEmails.value(0));
    set(u"txtemail1"_s, card.emails.value(0));
    set(u"txtadd1"_s, card.home.line1);
    set(u"txtadd2"_s, card.home.line2);
    set(u"dtcmbcity"_s, card.home.city);
    set(u"dtcmbpin"_s, card.home.pin);
    set(u"dtcmbstate"_s, card.home.state);
    set(u"dtcmbcountry"_s, card.home.country);
    // The card shows its day with the month in letters.
    if (const auto day = jet::readDate(card.birthday, jet::DateOrder::DayFirst))
        values.dates.insert(u"DateBday"_s, day);
    return values;
}

std::optional<Refusal> refusalOfSimple(const FormValues& values)
{
    const core::NameParts parts = namePartsOf(values);
    if (QString(parts.first + parts.last + parts.company).trimmed().isEmpty())
        return Refusal::AllBlank;
    if (const auto refusal = refusalOfSave(values))
        return refusal;
    if (simpleName(values).trimmed().isEmpty())
        return Refusal::NeitherNameNorCompany;
    return {};
}

} // namespace entry
