#include "entry/form/form_variant.h"

#include "entry/form/entry_pages.h"

#include <QtGlobal>

#include <array>

namespace entry {

namespace {

constexpr std::array<QStringView, 4> kAllSexes{u"Male", u"Female", u"Lesbians", u"Gays"};
constexpr std::array<QStringView, 2> kTwoSexes{u"Male", u"Female"};

constexpr std::array<EntryPage, 5> kAllPages{{
    {u"Contact", QT_TRANSLATE_NOOP("entry", "&1 Contact"), u"card", contactPage},
    {u"Work1", QT_TRANSLATE_NOOP("entry", "&2 Work 1"), u"work", workOnePage},
    {u"Work2", QT_TRANSLATE_NOOP("entry", "&3 Work 2"), u"work", workTwoPage},
    {u"Personal", QT_TRANSLATE_NOOP("entry", "&4 Personal"), u"family", personalPage},
    {u"Picture", QT_TRANSLATE_NOOP("entry", "&5 Picture"), u"picture", picturePage},
}};

constexpr std::array<EntryPage, 4> kBriefPages{{
    {u"Contact", QT_TRANSLATE_NOOP("entry", "&1 Contact"), u"card", contactPage},
    {u"Work2", QT_TRANSLATE_NOOP("entry", "&2 Work"), u"work", briefWorkPage},
    {u"Personal", QT_TRANSLATE_NOOP("entry", "&3 Personal"), u"family", briefPersonalPage},
    {u"Picture", QT_TRANSLATE_NOOP("entry", "&4 Picture"), u"picture", picturePage},
}};

constexpr std::array<ChangedColumn, 3> kBriefChanged{{
    {u"txtbemail1", u"w_email1"},
    {u"txtbemail2", u"W_Email2"},
    {u"txtbweb", u"W_web"},
}};

} // namespace

const FormVariant& detailedForm()
{
    static const FormVariant variant{
        .form = u"FormMain",
        .caption = QT_TRANSLATE_NOOP("entry", "Detailed Add Form"),
        .title = QT_TRANSLATE_NOOP("entry", "Contacts Detailed Add/Edit"),
        .helpCode = u"CON0018",
        .pages = kAllPages,
        .sexes = kAllSexes,
        .addColumns = detailedAddColumns(),
        .editColumns = detailedEditColumns(),
        .changedColumns = {},
        .hasUserFields = true,
        .updatesMailOnEdit = true,
        .homeSuffixOnAdd = u"  H",
        .workSuffixOnAdd = u"  W",
        // Kept: three blanks on a change against two on a new contact.
        .homeSuffixOnEdit = u"   H",
        .workSuffixOnEdit = u"   W",
    };
    return variant;
}

const FormVariant& businessForm()
{
    static const FormVariant variant = [] {
        FormVariant business = detailedForm();
        business.form = u"FormMainBusiness";
        business.caption = QT_TRANSLATE_NOOP("entry", "Business Add Form");
        business.title = QT_TRANSLATE_NOOP("entry", "Contacts Business Add/Edit");
        business.helpCode = u"CON0020";
        business.sexes = kTwoSexes;
        // Kept: a new contact reaches the mail client, a change of one does not.
        business.updatesMailOnEdit = false;
        return business;
    }();
    return variant;
}

const FormVariant& briefForm()
{
    static const FormVariant variant = [] {
        FormVariant brief = detailedForm();
        brief.form = u"FormMain1";
        brief.caption = QT_TRANSLATE_NOOP("entry", "Brief  Add Form"); // with two blanks
        brief.title = QT_TRANSLATE_NOOP("entry", "Contacts Basic Add");
        brief.helpCode = u"CON0019";
        brief.pages = kBriefPages;
        brief.addColumns = briefAddColumns();
        brief.editColumns = briefEditColumns();
        brief.changedColumns = kBriefChanged;
        brief.hasUserFields = false;
        // Kept: one blank on a change against two on a new contact.
        brief.homeSuffixOnEdit = u" H";
        brief.workSuffixOnEdit = u" W";
        return brief;
    }();
    return variant;
}

} // namespace entry
