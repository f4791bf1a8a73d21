#include "entry/form/save_checks.h"

namespace entry {

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
