#include "entry/form/save_checks.h"

namespace entry {

const char* refusalText(Refusal refusal)
{
    switch (refusal) {
    case Refusal::AllBlank:
        return QT_TRANSLATE_NOOP(
            "entry", "First, Last and Company are blank. At least one of these should not be blank.");
    case Refusal::NoNameView: return QT_TRANSLATE_NOOP("entry", "Not a Valid Name View");
    case Refusal::NeitherNameNorCompany:
        return QT_TRANSLATE_NOOP("entry", "Either Name or Company should be entered");
    }
    return "";
}

core::NameParts namePartsOf(const FormValues& values)
{
    return {values.text(u"Cmbtitle"), values.text(u"dtcmbfname"), values.text(u"dtcmblname"),
        values.text(u"txtcmpny")};
}

std::optional<Refusal> refusalOfSave(const FormValues& values)
{
    const core::NameParts parts = namePartsOf(values);
    if (parts.first.isEmpty() && parts.last.isEmpty() && parts.company.isEmpty())
        return Refusal::AllBlank;
    if (!core::nameViewOf(values.text(u"cmbnview")))
        return Refusal::NoNameView;
    if (parts.first.trimmed().isEmpty() && parts.last.trimmed().isEmpty()
        && parts.company.trimmed().isEmpty())
        return Refusal::NeitherNameNorCompany;
    return {};
}

// Kept: a contact with one of the four views that hold the company can not be changed here.
std::optional<Refusal> refusalOfEdit(const FormValues& values)
{
    const auto view = core::nameViewOf(values.text(u"cmbnview"));
    if (view != core::NameView::FirstLast && view != core::NameView::LastFirst)
        return Refusal::NoNameView;
    const core::NameParts parts = namePartsOf(values);
    if (parts.first.trimmed().isEmpty() && parts.last.trimmed().isEmpty()
        && parts.company.trimmed().isEmpty())
        return Refusal::NeitherNameNorCompany;
    return {};
}

} // namespace entry
