#include "letters/lists/mail_tabs.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr MailTabTexts kTabs[kMailTabs] = {
    {QT_TRANSLATE_NOOP("letters", "User List"), QT_TRANSLATE_NOOP("letters", "Nobody is in this list"),
        u"listname", QT_TRANSLATE_NOOP("letters", "List Name"),
        QT_TRANSLATE_NOOP("letters", "No mailing lists yet.\nMake the first with \"Add New List\".")},
    {QT_TRANSLATE_NOOP("letters", "Contacts"), QT_TRANSLATE_NOOP("letters", "No contacts here")},
    {QT_TRANSLATE_NOOP("letters", "Family Tree"),
        QT_TRANSLATE_NOOP("letters", "Nobody stands in the family tree")},
    {QT_TRANSLATE_NOOP("letters", "Associations"), QT_TRANSLATE_NOOP("letters", "Nobody is in this group"),
        u"group", QT_TRANSLATE_NOOP("letters", "Groups"),
        QT_TRANSLATE_NOOP("letters", "No associations yet")},
    {QT_TRANSLATE_NOOP("letters", "Handy Contacts"),
        QT_TRANSLATE_NOOP("letters", "No handy contacts are kept in this book")},
    {QT_TRANSLATE_NOOP("letters", "Groups"), QT_TRANSLATE_NOOP("letters", "Nobody is in this group"),
        u"group", QT_TRANSLATE_NOOP("letters", "Groups"),
        QT_TRANSLATE_NOOP("letters", "No groups are kept in this book")},
    {QT_TRANSLATE_NOOP("letters", "Parties"), QT_TRANSLATE_NOOP("letters", "No guests yet"), u"event",
        QT_TRANSLATE_NOOP("letters", "Parties"),
        QT_TRANSLATE_NOOP("letters", "No parties are planned in this book")},
};

QString translated(const char* text)
{
    return text ? QCoreApplication::translate("letters", text) : QString();
}

} // namespace

QString MailTabTexts::caption() const
{
    return translated(m_caption);
}

QString MailTabTexts::heading() const
{
    return translated(m_heading);
}

QString MailTabTexts::noGroups() const
{
    return translated(m_noGroups);
}

QString MailTabTexts::noMembers() const
{
    return translated(m_noMembers);
}

std::span<const MailTabTexts> mailTabs()
{
    return kTabs;
}

const MailTabTexts& textsOf(MailTab tab)
{
    return kTabs[static_cast<int>(tab)];
}

} // namespace letters
