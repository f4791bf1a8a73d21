#include "entry/form/contact_columns.h"

#include "core/contact_category.h"
#include "core/text_pieces.h"
#include "jet/date_text.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

/// What all tables begin with; they differ in how blank categories and dates are written.
constexpr std::array<ColumnRow, 35> person(Rule category1, Rule category2, Rule date)
{
    return {{
        {u"Title", u"Cmbtitle"},
        {u"Name", u"", Rule::Name},
        {u"category1", u"DtcmbCate", category1, u"DtcmbSubCate"},
        {u"category2", u"DtcmbSubCate", category2, u"DtcmbCate"},
        {u"h_city", u"dtcmbcity"},
        {u"sex", u"CmbSex"},
        {u"Nview", u"cmbnview"},
        {u"First", u"dtcmbfname"},
        {u"Last", u"dtcmblname"},
        {u"h_add1", u"txtadd1"},
        {u"h_add2", u"txtadd2"},
        {u"h_state", u"dtcmbstate"},
        {u"h_country", u"dtcmbcountry"},
        {u"h_pin", u"dtcmbpin"},
        {u"Spouse", u"dtcspouse"},
        {u"kid1", u"dtckid1"},
        {u"kid2", u"dtckid2"},
        {u"kid3", u"dtckid3"},
        {u"Sp_BD", u"DateSpouse", date},
        {u"Kid1_BD", u"Datekid1", date},
        {u"Kid2_BD", u"datekid2", date},
        {u"Kid3_BD", u"datekid3", date},
        {u"Priority", u"cmbpriority", Rule::Priority},
        {u"h_std", u"txtstd"},
        {u"H_Ph1", u"txtph1"},
        {u"h_ph2", u"txtph2"},
        {u"h_ph3", u"txtph3"},
        {u"Mobile", u"txtMobile"},
        {u"SP_Mobile", u"txtspmobile"},
        {u"h_web", u"txtweb", Rule::AsTyped},
        {u"H_email1", u"txtemail1", Rule::Email, u"cboemail1"},
        {u"h_email2", u"txtemail2", Rule::AsTyped},
        {u"Sms", u"txtSMS", Rule::AsTyped},
        {u"M_BD", u"DateBday", date},
        {u"Anniv", u"DateAnn", date},
    }};
}

template <std::size_t First, std::size_t Second>
constexpr std::array<ColumnRow, First + Second> joined(
    const std::array<ColumnRow, First>& first, const ColumnRow (&second)[Second])
{
    std::array<ColumnRow, First + Second> all{};
    std::copy(first.begin(), first.end(), all.begin());
    std::copy(std::begin(second), std::end(second), all.begin() + First);
    return all;
}

constexpr ColumnRow kDetailedAddRest[] = {
    {u"b_add1", u"txtbadd1"},
    {u"Product", u"Dtcmbbproduct", Rule::OrUndefined},
    // Kept: the first line of the Work 1 address is written a second time.
    {u"b_add1", u"txtbadd1"},
    {u"b_add2", u"txtbadd2"},
    {u"b_city", u"dtcmbbcity"},
    {u"b_state", u"dtcmbbstate"},
    {u"b_country", u"dtcmbbcountry"},
    {u"b_pin", u"dtcmbbpin"},
    {u"B_std", u"txtbstd"},
    {u"B_Ph1", u"txtbph1"},
    {u"b_tel_xtn", u"txtbxtn"},
    {u"B_Ph2", u"txtbph2"},
    {u"B_ph3", u"txtbph3"},
    {u"b_email1", u"txtbemail1"},
    {u"b_email2", u"txtbemail2"},
    {u"B_Web", u"txtbweb", Rule::AsTyped},
    {u"b_note", u"txtbnote", Rule::AsTyped},
    {u"Job_Title", u"dtcmbjob", Rule::AsTyped},
    {u"Company", u"txtcmpny"},
    {u"B_Add_Type", u"txtbaddty"},
    {u"w_add1", u"txtwadd1"},
    {u"w_add2", u"txtwadd2"},
    {u"w_city", u"dtcmbwcity"},
    // Kept: the address type again in the place of the Work 2 state, so a new contact has none.
    {u"B_Add_Type", u"txtbaddty"},
    {u"w_country", u"dtcmbwcountry"},
    {u"w_pin", u"dtcmbwpin"},
    {u"w_Ph1", u"txtwph1"},
    {u"W_AddType", u"dtcmbbadtyp"},
    {u"W_Tel_XTN", u"txtwxtn"},
    {u"w_Ph2", u"txtwph2"},
    {u"w_ph3", u"txtwph3"},
    {u"W_std", u"txtwstd"},
    {u"fax", u"txtfax", Rule::AsTyped},
    {u"Status", u"Dtcmbstatus", Rule::OrUndefined},
    {u"Mid", u"dtcmbmid", Rule::AsTyped},
    {u"nick", u"dtcmbnick", Rule::AsTyped},
    {u"Relation", u"dtcmbrelation", Rule::AsTyped},
    {u"Religion", u"dtcmbreligion", Rule::AsTyped},
    {u"education", u"CmbEducation", Rule::AsTyped},
    {u"region", u"dtcmbregion", Rule::OrUndefined},
    {u"Hobbies", u"txthobby"},
    {u"Asso1", u"dtcmbasso1"},
    {u"asso2", u"dtcmbasso2"},
    // Kept: a new note goes to memo1, a changed one to Memo; the form reads memo1.
    {u"memo1", u"txtMemo"},
    {u"dateEnter", u"", Rule::Today},
    {u"DateModi", u"", Rule::Today},
    {u"Maiden", u"dtcmbmaiden"},
    {u"altcontact", u"txtaltcontact"},
    {u"AltTitle", u"dtcmbalttitle"},
    {u"User1", u"cmbuser1"},
    {u"User2", u"cmbuser2"},
    {u"User3", u"cmbuser3"},
    {u"PhotLoc", u"Photo"},
};
constexpr auto kDetailedAdd = joined(person(Rule::Category1, Rule::Category2, Rule::Date), kDetailedAddRest);

constexpr ColumnRow kDetailedEditRest[] = {
    {u"b_add1", u"txtbadd1"},
    {u"Product", u"Dtcmbbproduct", Rule::OrUndefined},
    {u"b_add2", u"txtbadd2"},
    {u"b_city", u"dtcmbbcity"},
    {u"b_state", u"dtcmbbstate"},
    {u"b_country", u"dtcmbbcountry"},
    {u"b_pin", u"dtcmbbpin"},
    {u"B_std", u"txtbstd"},
    {u"B_Ph1", u"txtbph1"},
    {u"B_Ph2", u"txtbph2"},
    {u"B_ph3", u"txtbph3"},
    {u"b_email1", u"txtbemail1"},
    {u"b_email2", u"txtbemail2"},
    {u"B_Web", u"txtbweb", Rule::AsTyped},
    {u"b_note", u"txtbnote", Rule::AsTyped},
    {u"Job_Title", u"dtcmbjob", Rule::AsTyped},
    {u"Company", u"txtcmpny"},
    {u"w_add1", u"txtwadd1"},
    {u"w_add2", u"txtwadd2"},
    {u"w_city", u"dtcmbwcity"},
    {u"w_State", u"dtcmbwstate"},
    {u"w_country", u"dtcmbwcountry"},
    {u"w_pin", u"dtcmbwpin"},
    {u"w_Ph1", u"txtwph1"},
    {u"w_Ph2", u"txtwph2"},
    {u"w_ph3", u"txtwph3"},
    {u"W_std", u"txtwstd"},
    // Kept: the fax is not among the columns that a change writes.
    {u"Status", u"Dtcmbstatus", Rule::OrUndefined},
    {u"Mid", u"dtcmbmid", Rule::AsTyped},
    {u"nick", u"dtcmbnick", Rule::AsTyped},
    {u"Relation", u"dtcmbrelation", Rule::AsTyped},
    {u"Religion", u"dtcmbreligion", Rule::AsTyped},
    {u"education", u"CmbEducation", Rule::AsTyped},
    {u"region", u"dtcmbregion", Rule::OrUndefined},
    {u"Hobbies", u"txthobby"},
    {u"Asso1", u"dtcmbasso1"},
    {u"asso2", u"dtcmbasso2"},
    // Kept: see memo1 of a new contact.
    {u"Memo", u"txtMemo"},
    {u"DateModi", u"", Rule::TodayInWords},
    {u"Maiden", u"dtcmbmaiden"},
    {u"altcontact", u"txtaltcontact"},
    {u"AltTitle", u"dtcmbalttitle"},
    {u"User1", u"cmbuser1"},
    {u"User2", u"cmbuser2"},
    {u"User3", u"cmbuser3"},
    {u"B_Add_Type", u"txtbaddty"},
    {u"b_tel_xtn", u"txtbxtn"},
    {u"W_AddType", u"dtcmbbadtyp"},
    {u"W_Tel_XTN", u"txtwxtn"},
    {u"PhotLoc", u"Photo"},
};
constexpr auto kDetailedEdit
    = joined(person(Rule::Category1, Rule::Category2, Rule::DateInWords), kDetailedEditRest);

// The address of this form is that of Work 2.
// Kept: its e-mails and web address go to the columns of Work 1 when a contact is new, and to those of Work 2
// when it is changed.
constexpr ColumnRow kBriefAddRest[] = {
    {u"w_add1", u"txtwadd1"},
    {u"Product", u"Dtcmbbproduct", Rule::OrUndefined},
    // Kept: the first line of the address is written a second time.
    {u"w_add1", u"txtwadd1"},
    {u"w_add2", u"txtwadd2"},
    {u"b_email1", u"txtbemail1"},
    {u"b_email2", u"txtbemail2"},
    {u"B_Web", u"txtbweb", Rule::AsTyped},
    {u"w_city", u"dtcmbwcity"},
    {u"w_State", u"dtcmbwstate"},
    {u"w_country", u"dtcmbwcountry"},
    {u"w_pin", u"dtcmbwpin"},
    {u"W_std", u"txtwstd"},
    {u"w_Ph1", u"txtwph1"},
    {u"W_Tel_XTN", u"txtwxtn"},
    {u"w_Ph2", u"txtwph2"},
    {u"w_ph3", u"txtwph3"},
    {u"Job_Title", u"dtcmbjob", Rule::AsTyped},
    {u"Company", u"txtcmpny"},
    {u"W_AddType", u"dtcmbbadtyp"},
    {u"fax", u"txtfax", Rule::AsTyped},
    {u"Status", u"Dtcmbstatus", Rule::OrUndefined},
    {u"Mid", u"dtcmbmid", Rule::AsTyped},
    {u"nick", u"dtcmbnick", Rule::AsTyped},
    {u"Relation", u"dtcmbrelation", Rule::AsTyped},
    {u"Religion", u"dtcmbreligion", Rule::AsTyped},
    {u"education", u"CmbEducation", Rule::AsTyped},
    {u"region", u"dtcmbregion", Rule::OrUndefined},
    {u"Hobbies", u"txthobby"},
    {u"Asso1", u"dtcmbasso1"},
    {u"asso2", u"dtcmbasso2"},
    {u"memo1", u"txtMemo"},
    {u"dateEnter", u"", Rule::Today},
    {u"DateModi", u"", Rule::Today},
    {u"Maiden", u"dtcmbmaiden"},
    {u"altcontact", u"txtaltcontact"},
    {u"AltTitle", u"dtcmbalttitle"},
    {u"PhotLoc", u"Photo"},
};
constexpr auto kBriefAdd = joined(person(Rule::Category1, Rule::Category2, Rule::Date), kBriefAddRest);

// Kept: of all classes only the product gets "Undefined" in the place of a blank when a contact is changed;
// and as in the detailed form a change does not write the fax.
constexpr ColumnRow kBriefEditRest[] = {
    {u"w_add1", u"txtwadd1"},
    {u"Product", u"Dtcmbbproduct", Rule::OrUndefined},
    {u"w_add2", u"txtwadd2"},
    {u"w_email1", u"txtbemail1"},
    {u"W_Email2", u"txtbemail2"},
    {u"W_web", u"txtbweb", Rule::AsTyped},
    {u"w_city", u"dtcmbwcity"},
    {u"w_State", u"dtcmbwstate"},
    {u"w_country", u"dtcmbwcountry"},
    {u"w_pin", u"dtcmbwpin"},
    {u"W_std", u"txtwstd"},
    {u"w_Ph1", u"txtwph1"},
    {u"w_Ph2", u"txtwph2"},
    {u"w_ph3", u"txtwph3"},
    {u"Job_Title", u"dtcmbjob", Rule::AsTyped},
    {u"Company", u"txtcmpny"},
    {u"Status", u"Dtcmbstatus"},
    {u"Mid", u"dtcmbmid", Rule::AsTyped},
    {u"nick", u"dtcmbnick", Rule::AsTyped},
    {u"Relation", u"dtcmbrelation", Rule::AsTyped},
    {u"Religion", u"dtcmbreligion", Rule::AsTyped},
    {u"education", u"CmbEducation", Rule::AsTyped},
    {u"region", u"dtcmbregion"},
    {u"Hobbies", u"txthobby"},
    {u"Asso1", u"dtcmbasso1"},
    {u"asso2", u"dtcmbasso2"},
    {u"DateModi", u"", Rule::TodayInWords},
    {u"Maiden", u"dtcmbmaiden"},
    {u"altcontact", u"txtaltcontact"},
    {u"AltTitle", u"dtcmbalttitle"},
    {u"Memo", u"txtMemo"},
    {u"W_AddType", u"dtcmbbadtyp"},
    {u"W_Tel_XTN", u"txtwxtn"},
    {u"PhotLoc", u"Photo"},
};
constexpr auto kBriefEdit
    = joined(person(Rule::Category1AsTyped, Rule::Category2AsTyped, Rule::DateInWords), kBriefEditRest);

QVariant dateValue(const std::optional<QDate>& date, bool inWords)
{
    if (!date)
        return {};
    return inWords ? QVariant(jet::formatDate(*date, u"dd/mmm/yyyy")) : QVariant(*date);
}

} // namespace

std::span<const ColumnRow> detailedAddColumns()
{
    return kDetailedAdd;
}
std::span<const ColumnRow> detailedEditColumns()
{
    return kDetailedEdit;
}

std::span<const ColumnRow> briefAddColumns()
{
    return kBriefAdd;
}
std::span<const ColumnRow> briefEditColumns()
{
    return kBriefEdit;
}

QVariant valueOf(const ColumnRow& row, const FormValues& values, const SaveOptions& options)
{
    const auto category = [&](QStringView first, QStringView second) {
        return core::storedCategory(values.text(first), values.text(second), options.mergedCategory);
    };
    const auto typedCategory = [&](QStringView control, QStringView merged, int part) {
        return options.mergedCategory ? core::PickByDash(values.text(merged), part).trimmed()
                                      : values.trimmed(control);
    };
    switch (row.rule) {
    case Rule::Trimmed: return values.trimmed(row.control);
    case Rule::AsTyped: return values.text(row.control);
    case Rule::OrUndefined: return core::orUndefined(values.text(row.control));
    case Rule::Priority: {
        const QString priority = values.trimmed(row.control);
        return priority.isEmpty() ? u"2"_s : priority;
    }
    case Rule::Name: return options.name;
    case Rule::Category1: return category(row.control, row.second).category;
    case Rule::Category2: return category(row.second, row.control).subcategory;
    case Rule::Category1AsTyped: return typedCategory(row.control, row.control, 1);
    case Rule::Category2AsTyped: return typedCategory(row.control, row.second, 2);
    // Kept: the sign stands there also when nothing was entered round it.
    case Rule::Email: return QString(values.text(row.control) + u'@' + values.text(row.second));
    case Rule::Joined: return QString(values.text(row.control) + values.text(row.second));
    case Rule::Date: return dateValue(values.date(row.control), false);
    case Rule::DateInWords: return dateValue(values.date(row.control), true);
    case Rule::Today: return options.today;
    case Rule::TodayInWords: return dateValue(options.today, true);
    }
    return {};
}

void assign(jet::Recordset& rows, std::span<const ColumnRow> columns, const FormValues& values,
    const SaveOptions& options)
{
    for (const ColumnRow& row : columns)
        rows.set(row.column, valueOf(row, values, options));
}

namespace {

/// The controls that a column is made of.
QStringList controlsOf(const ColumnRow& row)
{
    if (row.rule == Rule::Name)
        return {u"dtcmbfname"_s, u"dtcmblname"_s, u"txtcmpny"_s, u"cmbnview"_s};
    QStringList controls;
    for (const QStringView control : {row.control, row.second}) {
        if (!control.isEmpty())
            controls << control.toString();
    }
    return controls;
}

} // namespace

QList<core::ColumnEdit> columnEdits(std::span<const ColumnRow> columns, const FormValues& values,
    const SaveOptions& options, const core::TouchedFields& fields)
{
    QList<core::ColumnEdit> edits;
    for (const ColumnRow& row : columns) {
        const QStringList controls = controlsOf(row);
        edits.append({row.column.toString(), valueOf(row, values, options),
            std::ranges::any_of(controls, fields.isTouched), controls.isEmpty(),
            controls.isEmpty() ? QString() : fields.label(controls.constFirst())});
    }
    return edits;
}

} // namespace entry
