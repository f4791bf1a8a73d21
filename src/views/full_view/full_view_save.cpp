#include "views/full_view/full_view_save.h"

#include "core/contact_category.h"

using namespace Qt::StringLiterals;

namespace views {

namespace {

enum class Stored {
    AsTyped,
    Trimmed,
    OrUndefined, ///< trimmed, "Undefined" for a blank
    FullName, ///< first and last name
    Date, ///< null for none
};

struct SaveColumn {
    QStringView column;
    QStringView control;
    Stored how = Stored::AsTyped;
};

// Kept: the birthdays of contact and spouse and the anniversary are not among them, so this page can't change
// them.
constexpr SaveColumn kSaved[] = {
    {u"category1", u"CmbECategory", Stored::OrUndefined},
    {u"category2", u"CmbESubCategory", Stored::OrUndefined},
    {u"First", u"CmbEFirst"},
    {u"Last", u"CmbELast"},
    {u"Name", u"", Stored::FullName},
    {u"Job_Title", u"CmbEJobTitle"},
    {u"Priority", u"CmbEPriority"},
    {u"Company", u"TxtECompany"},
    {u"Product", u"CmbEProduct"},
    {u"h_add1", u"TxtEHAdd1"},
    {u"h_add2", u"TxtEHAdd2"},
    {u"h_city", u"CmbEHCity"},
    {u"h_state", u"TxtEHState"},
    {u"h_country", u"CmbEHCountry"},
    {u"h_pin", u"TxtEHPin"},
    {u"W_AddType", u"TxtEWType"},
    {u"w_add1", u"TxtEWAdd1"},
    {u"w_add2", u"TxtEWAdd2"},
    {u"w_city", u"CmbEWCity"},
    {u"w_State", u"TxtEWState"},
    {u"w_country", u"CmbEWCountry"},
    {u"w_pin", u"TxtEWPin"},
    {u"B_Add_Type", u"TxtEBType"},
    {u"b_add1", u"TxtEBAdd1"},
    {u"b_add2", u"TxtEBAdd2"},
    {u"b_city", u"CmbEBCity"},
    {u"b_state", u"TxtEBState"},
    {u"b_country", u"CmbEBCountry"},
    {u"b_pin", u"TxtEBPin"},
    {u"h_std", u"TxtEHStd"},
    {u"H_Ph1", u"TxtEHPh1"},
    {u"h_ph2", u"TxtEHPh2"},
    {u"h_ph3", u"TxtEHPh3"},
    {u"Mobile", u"TxtEMobile"},
    {u"W_std", u"TxtEWStd"},
    {u"w_Ph1", u"TxtEWPh1"},
    {u"w_Ph2", u"TxtEWPh2"},
    {u"w_ph3", u"TxtEWPh3"},
    {u"SP_Mobile", u"TxtESpMobile"},
    {u"B_std", u"TxtEBStd"},
    {u"B_Ph1", u"TxtEBPh1"},
    {u"B_Ph2", u"TxtEBPh2"},
    {u"B_ph3", u"TxtEBPh3"},
    {u"fax", u"TxtEFax"},
    {u"H_email1", u"TxtEHEmail1"},
    {u"h_email2", u"TxtEHEmail2"},
    {u"b_email1", u"TxtEWEmail1"},
    {u"b_email2", u"TxtEWEmail2"},
    {u"h_web", u"TxtEHWeb"},
    {u"B_Web", u"TxtEWWeb"},
    {u"Status", u"CmbEStatus"},
    {u"region", u"CmbERegion"},
    {u"Relation", u"CmbERelation"},
    {u"Spouse", u"TxtESpouse"},
    {u"kid1", u"TxtEKid1", Stored::Trimmed},
    {u"kid2", u"TxtEKid2", Stored::Trimmed},
    {u"kid3", u"TxtEKid3", Stored::Trimmed},
    {u"Kid1_BD", u"DtpEKid1", Stored::Date},
    {u"Kid2_BD", u"DtpEKid2", Stored::Date},
    {u"Kid3_BD", u"DtpEKid3", Stored::Date},
    {u"Religion", u"CmbEReligion"},
    {u"education", u"CmbEEducation"},
    {u"Hobbies", u"CmbEHobbies"},
    {u"Asso1", u"TxtEAsso1"},
    {u"asso2", u"TxtEAsso2"},
    {u"nick", u"CmbENick"},
    {u"sex", u"CmbEGender"},
    {u"altcontact", u"TxtEAltContact"},
    {u"AltTitle", u"TxtEAltTitle"},
    {u"b_note", u"TxtEBNote"},
    {u"User1", u"CmbEUser1"},
    {u"User2", u"CmbEUser2"},
    {u"User3", u"CmbEUser3"},
};

constexpr EditSource kTexts[] = {
    {u"CmbECategory", u"category1"},
    {u"CmbESubCategory", u"category2"},
    {u"CmbEFirst", u"First"},
    {u"CmbELast", u"Last"},
    {u"CmbENick", u"nick"},
    {u"CmbEGender", u"sex"},
    {u"CmbEJobTitle", u"Job_Title"},
    {u"CmbEPriority", u"Priority"},
    {u"TxtECompany", u"Company"},
    {u"CmbEProduct", u"Product"},
    {u"TxtEHAdd1", u"h_add1"},
    {u"TxtEHAdd2", u"h_add2"},
    {u"CmbEHCity", u"h_city"},
    {u"TxtEHState", u"h_state"},
    {u"CmbEHCountry", u"h_country"},
    {u"TxtEHPin", u"h_pin"},
    {u"TxtEWType", u"W_AddType"},
    {u"TxtEWAdd1", u"w_add1"},
    {u"TxtEWAdd2", u"w_add2"},
    {u"CmbEWCity", u"w_city"},
    {u"TxtEWState", u"w_State"},
    {u"CmbEWCountry", u"w_country"},
    {u"TxtEWPin", u"w_pin"},
    {u"TxtEBType", u"B_Add_Type"},
    {u"TxtEBAdd1", u"b_add1"},
    {u"TxtEBAdd2", u"b_add2"},
    {u"CmbEBCity", u"b_city"},
    {u"TxtEBState", u"b_state"},
    {u"CmbEBCountry", u"b_country"},
    {u"TxtEBPin", u"b_pin"},
    {u"TxtEHStd", u"h_std"},
    {u"TxtEHPh1", u"H_Ph1"},
    {u"TxtEHPh2", u"h_ph2"},
    {u"TxtEHPh3", u"h_ph3"},
    {u"TxtEMobile", u"Mobile"},
    {u"TxtEWStd", u"W_std"},
    {u"TxtEWPh1", u"w_Ph1"},
    {u"TxtEWPh2", u"w_Ph2"},
    {u"TxtEWPh3", u"w_ph3"},
    {u"TxtESpMobile", u"SP_Mobile"},
    {u"TxtEBStd", u"B_std"},
    {u"TxtEBPh1", u"B_Ph1"},
    {u"TxtEBPh2", u"B_Ph2"},
    {u"TxtEBPh3", u"B_ph3"},
    {u"TxtEFax", u"fax"},
    {u"TxtEHEmail1", u"H_email1"},
    {u"TxtEHEmail2", u"h_email2"},
    {u"TxtEWEmail1", u"b_email1"},
    {u"TxtEWEmail2", u"b_email2"},
    // Kept: both web addresses go into the one box, where the second wins; the home web box stays empty, and
    // saving then clears the home web address.
    {u"TxtEWWeb", u"h_web"},
    {u"TxtEWWeb", u"B_Web"},
    {u"CmbEStatus", u"Status"},
    {u"CmbERegion", u"region"},
    {u"CmbERelation", u"Relation"},
    {u"CmbEReligion", u"Religion"},
    {u"CmbEEducation", u"education"},
    {u"CmbEHobbies", u"Hobbies"},
    {u"TxtESpouse", u"Spouse"},
    {u"TxtEKid1", u"kid1"},
    {u"TxtEKid2", u"kid2"},
    {u"TxtEKid3", u"kid3"},
    {u"TxtEAsso1", u"Asso1"},
    {u"TxtEAsso2", u"asso2"},
    {u"TxtEAltContact", u"altcontact"},
    {u"TxtEAltTitle", u"AltTitle"},
    {u"TxtEBNote", u"b_note"},
    {u"CmbEUser1", u"User1"},
    {u"CmbEUser2", u"User2"},
    {u"CmbEUser3", u"User3"},
};

constexpr EditSource kDates[] = {
    // Kept: the book has no columns of these two names, so both dates stay empty.
    {u"DtpEAnniversary", u"anniversary"},
    {u"DtpEBirthday", u"Main_BD"},
    {u"DtpEKid1", u"Kid1_BD"},
    {u"DtpEKid2", u"Kid2_BD"},
    {u"DtpEKid3", u"Kid3_BD"},
};

QVariant valueOf(const SaveColumn& saved, const widgets::FieldValues& page)
{
    const QString control = saved.control.toString();
    switch (saved.how) {
    case Stored::AsTyped: return page.text(control);
    case Stored::Trimmed: return page.text(control).trimmed();
    case Stored::OrUndefined: return core::orUndefined(page.text(control));
    case Stored::FullName: return QString(page.text(u"CmbEFirst") + u' ' + page.text(u"CmbELast"));
    case Stored::Date:
        if (const auto date = page.date(control))
            return *date;
        return {};
    }
    return {};
}

} // namespace

std::span<const EditSource> editTexts()
{
    return kTexts;
}

std::span<const EditSource> editDates()
{
    return kDates;
}

QList<core::ColumnEdit> editPageColumns(const widgets::FieldValues& page, const core::TouchedFields& fields)
{
    QList<core::ColumnEdit> edits;
    for (const SaveColumn& saved : kSaved) {
        const QString control = saved.how == Stored::FullName ? u"CmbEFirst"_s : saved.control.toString();
        const bool isTouched
            = fields.isTouched(control) || (saved.how == Stored::FullName && fields.isTouched(u"CmbELast"_s));
        edits.append(
            {saved.column.toString(), valueOf(saved, page), isTouched, false, fields.label(control)});
    }
    return edits;
}

} // namespace views
