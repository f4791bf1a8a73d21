#include "core/contact_names.h"

#include <array>

using namespace Qt::StringLiterals;

namespace core {

namespace {

struct ViewRow {
    NameView view;
    QStringView words;
};
constexpr std::array<ViewRow, 6> kViews{{
    {NameView::FirstLast, u"First,Last"},
    {NameView::LastFirst, u"Last,First"},
    {NameView::Company, u"Company"},
    {NameView::FirstLastCompany, u"First,Last (Company)"},
    {NameView::LastFirstCompany, u"Last,First (Company)"},
    {NameView::CompanyLastFirst, u"Company (Last,First)"},
}};

} // namespace

QStringList nameViews()
{
    QStringList words;
    for (const ViewRow& row : kViews)
        words << row.words.toString();
    return words;
}

std::optional<NameView> nameViewOf(QStringView text)
{
    for (const ViewRow& row : kViews) {
        if (text.trimmed() == row.words)
            return row.view;
    }
    return {};
}

QString composeName(NameView view, const NameParts& parts)
{
    const QString first = parts.first.trimmed();
    const QString last = parts.last.trimmed();
    const QString company = parts.company.trimmed();
    switch (view) {
    case NameView::FirstLast: return first + u' ' + last;
    case NameView::LastFirst: return last + u' ' + first;
    case NameView::Company: return company;
    case NameView::FirstLastCompany: return first + u' ' + last + u' ' + company;
    case NameView::LastFirstCompany: return last + u' ' + first + u' ' + company;
    case NameView::CompanyLastFirst: return company + u' ' + last + u' ' + first;
    }
    return {};
}

QString nameForLabel(NameView view, const NameParts& parts)
{
    switch (view) {
    case NameView::FirstLast: return parts.title + u' ' + parts.first + u' ' + parts.last;
    case NameView::LastFirst: return parts.title + u' ' + parts.last + u" , "_s + parts.first;
    case NameView::Company: return parts.company;
    case NameView::FirstLastCompany: return parts.first + u' ' + parts.last + u' ' + parts.company;
    case NameView::LastFirstCompany: return parts.last + u" , "_s + parts.first + u' ' + parts.company;
    case NameView::CompanyLastFirst: return parts.company + u' ' + parts.last + u" , "_s + parts.first;
    }
    return {};
}

} // namespace core
