#include "entry/form_variant.h"

#include <QtGlobal>

#include <array>

namespace entry {

namespace {

constexpr std::array<QStringView, 4> kAllSexes{u"Male", u"Female", u"Lesbians", u"Gays"};

} // namespace

const FormVariant& detailedForm()
{
    static const FormVariant variant{
        .form = u"FormMain",
        .caption = QT_TRANSLATE_NOOP("entry", "Detailed Add Form"),
        .title = QT_TRANSLATE_NOOP("entry", "Contacts Detailed Add/Edit"),
        .helpCode = u"CON0018",
        .sexes = kAllSexes,
        .addColumns = detailedAddColumns(),
        .editColumns = detailedEditColumns(),
        .updatesMailOnEdit = true,
        .homeSuffixOnAdd = u"  H",
        .workSuffixOnAdd = u"  W",
        // Kept: three blanks on a change against two on a new contact.
        .homeSuffixOnEdit = u"   H",
        .workSuffixOnEdit = u"   W",
    };
    return variant;
}

} // namespace entry
