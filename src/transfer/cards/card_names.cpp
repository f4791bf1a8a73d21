#include "transfer/cards/card_names.h"

#include "core/contact_names.h"

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

using core::NameView;
using formats::CardContact;

bool hasCompany(NameView view)
{
    return view != NameView::FirstLast && view != NameView::LastFirst;
}

bool isLastFirst(NameView view)
{
    return view == NameView::LastFirst || view == NameView::LastFirstCompany
        || view == NameView::CompanyLastFirst;
}

core::NameParts partsOf(const CardContact& contact)
{
    return {contact.text(u"Title"), contact.text(u"First"), contact.text(u"Last"), contact.text(u"Company")};
}

bool isNameless(const CardContact& contact)
{
    const core::NameParts parts = partsOf(contact);
    return QString(parts.first + parts.last + parts.company).trimmed().isEmpty();
}

/// The full name as first and last name, without the firm that stands in it too.
void split(CardContact& contact, NameView view)
{
    QString name = contact.text(u"Name").simplified();
    const QString company = contact.text(u"Company").simplified();
    if (view == NameView::Company || (name == company && !name.isEmpty()))
        return;
    if (hasCompany(view) && !company.isEmpty()) {
        if (name.endsWith(u' ' + company))
            name.chop(company.size() + 1);
        else if (name.startsWith(company + u' '))
            name = name.mid(company.size() + 1);
    }
    const qsizetype blank = isLastFirst(view) ? name.indexOf(u' ') : name.lastIndexOf(u' ');
    const QString start = blank < 0 ? name : name.left(blank);
    const QString rest = blank < 0 ? QString() : name.mid(blank + 1);
    contact.set(u"First", isLastFirst(view) && blank >= 0 ? rest : start);
    contact.set(u"Last", isLastFirst(view) && blank >= 0 ? start : rest);
}

NameView viewFor(const CardContact& contact)
{
    const QString name = contact.text(u"Name").simplified();
    const core::NameParts parts = partsOf(contact);
    static const QStringList views = core::nameViews();
    for (const QString& words : views) {
        const NameView view = *core::nameViewOf(words);
        if (!name.isEmpty() && core::composeName(view, parts).simplified() == name)
            return view;
    }
    const bool isFirm = QString(parts.first + parts.last).trimmed().isEmpty() && !parts.company.isEmpty();
    return isFirm ? NameView::Company : NameView::FirstLast;
}

QString wordsOf(NameView view)
{
    for (const QString& words : core::nameViews()) {
        if (core::nameViewOf(words) == view)
            return words;
    }
    return {};
}

} // namespace

void completeName(CardContact& contact)
{
    const auto told = core::nameViewOf(contact.text(u"Nview"));
    const QString name = contact.text(u"Name").simplified();
    // Some write the whole name where the family name belongs.
    if (contact.text(u"First").isEmpty() && !name.isEmpty() && contact.text(u"Last").contains(u' ')
        && contact.text(u"Last").simplified() == name)
        contact.set(u"Last", {});
    const QString parts = contact.text(u"First") + contact.text(u"Last") + contact.text(u"Mid");
    if (parts.trimmed().isEmpty() && !name.isEmpty())
        split(contact, told.value_or(NameView::FirstLast));
    for (const QStringView other :
        {u"nick", u"H_email1", u"b_email1", u"Mobile", u"H_Ph1", u"B_Ph1", u"Name", u"memo1"}) {
        if (!isNameless(contact))
            break;
        if (!contact.text(other).isEmpty())
            contact.set(u"First", contact.text(other).simplified().left(255));
    }
    if (isNameless(contact))
        contact.set(u"First", u"(no name)"_s);
    // What stands there is kept, also when it is none of the views.
    const bool isTold = !contact.text(u"Nview").isEmpty();
    const NameView view = told.value_or(viewFor(contact));
    if (!isTold)
        contact.set(u"Nview", wordsOf(view));
    if (name.isEmpty() && !isTold)
        contact.set(u"Name", core::composeName(view, partsOf(contact)).trimmed());
}

} // namespace transfer
