#include "core/shell/menu_table.h"

#include <QtGlobal>

namespace shell {

namespace {

constexpr auto kTool = MenuRow::Kind::Tool;
constexpr auto kPage = MenuRow::Kind::Page;
constexpr MenuRow kLine{MenuRow::Kind::Line};

constexpr MenuRow kContactsMenu[] = {
    {kTool, u"NewContact", QT_TRANSLATE_NOOP("shell", "&New")},
    {kTool, u"ID_SimpleAdd", QT_TRANSLATE_NOOP("shell", "&Quick add")},
    {kTool, u"EditContact", QT_TRANSLATE_NOOP("shell", "&Edit")},
    {kTool, {}, QT_TRANSLATE_NOOP("shell", "&Delete"), u"DeleteContact"},
    kLine,
    {kPage, u"ID_AddM", QT_TRANSLATE_NOOP("shell", "More ways to &add")},
    {kPage, u"ID_AddBasic", QT_TRANSLATE_NOOP("shell", "&Basic add")},
    {kPage, u"ID_Edit", QT_TRANSLATE_NOOP("shell", "More ways to &change")},
    kLine,
    {kPage, u"Data", QT_TRANSLATE_NOOP("shell", "&Import")},
    {kPage, u"ID_DataTransfer", QT_TRANSLATE_NOOP("shell", "E&xport")},
    {kTool, u"RestoreBackup", QT_TRANSLATE_NOOP("shell", "&Restore from a backup")},
    kLine,
    {kTool, {}, QT_TRANSLATE_NOOP("shell", "&Print the list..."), u"ListPrint"},
    {kTool, {}, QT_TRANSLATE_NOOP("shell", "Export the &list..."), u"FileExport"},
    {kTool, {}, QT_TRANSLATE_NOOP("shell", "&Size of its texts"), u"ListSize"},
    kLine,
    {kTool, u"Exit"},
};
constexpr MenuRow kViewMenu[] = {
    {kTool, u"Addbook", QT_TRANSLATE_NOOP("shell", "Address &book"), u"addbook"},
    {kPage, u"ID_AddBook"},
    {kPage, u"ID_ViewOther"},
    {kPage, u"AddressBook"},
    {kPage, u"ID_List"},
    {kPage, u"ID_Lookup"},
    {kTool, u"BirthdayList", QT_TRANSLATE_NOOP("shell", "Birthda&y list"), u"blist"},
    {kPage, u"BirthdayList1"},
    kLine,
};
constexpr MenuRow kCommunicateMenu[] = {
    {kTool, u"Phone", QT_TRANSLATE_NOOP("shell", "Phone &dialer"), u"pdialer"},
    {kTool, u"Letters", QT_TRANSLATE_NOOP("shell", "Letter creator"), u"Letters"},
    {kTool, u"EMails", QT_TRANSLATE_NOOP("shell", "E-mail creator"), u"Email"},
    kLine,
    {kPage, u"ID_PDialer"},
    {kPage, u"ID_PhoneDialer"},
    {kPage, u"ID_Letter"},
    {kPage, u"ID_EMails"},
};
constexpr MenuRow kToolsMenu[] = {
    {kTool, u"FamilyTree", QT_TRANSLATE_NOOP("shell", "Family tree"), u"ftree"},
    {kTool, u"Linked", QT_TRANSLATE_NOOP("shell", "Contacts Link Viewer"), u"Lk"},
    kLine,
    {kPage, u"Functions"},
    {kPage, u"OtherFunctions"},
    {kPage, u"ID_Report"},
    {kPage, u"Setup"},
    {kPage, u"Programs"},
};

} // namespace

std::span<const MenuRow> contactsMenu()
{
    return kContactsMenu;
}

std::span<const MenuRow> viewMenu()
{
    return kViewMenu;
}

std::span<const MenuRow> communicateMenu()
{
    return kCommunicateMenu;
}

std::span<const MenuRow> toolsMenu()
{
    return kToolsMenu;
}

} // namespace shell
