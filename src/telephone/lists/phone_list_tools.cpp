#include "telephone/lists/phone_list_tools.h"

#include <QtGlobal>

namespace telephone {

namespace {

using enum core::Tool::Place;
using Task = core::ToolTask;

constexpr core::Tool kTools[] = {
    {.id = u"Call",
        .icon = u"phone",
        .text = QT_TRANSLATE_NOOP("telephone", "Call"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Show the person in the dialer"),
        .task = Task::HandOver,
        .form = u"FrmDialer",
        .places = Labelled | Menu},
    {.id = u"Email2",
        .icon = u"envelope",
        .text = QT_TRANSLATE_NOOP("telephone", "E-mail"),
        .task = Task::AddRecipient,
        .form = u"FormEmail",
        .places = Labelled | Menu},
    {.id = u"Letter",
        .icon = u"letter",
        .text = QT_TRANSLATE_NOOP("telephone", "Letter"),
        .task = Task::HandOver,
        .form = u"FrmLetter",
        .places = Labelled | Menu},
    {.id = u"FullView",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("telephone", "Full view"),
        .task = Task::HandOver,
        .form = u"FullView",
        .places = IconOnly | Menu | GroupStart},
    {.id = u"EditDetails",
        .icon = u"person-edit",
        .text = QT_TRANSLATE_NOOP("telephone", "Edit details"),
        .task = Task::EditContact,
        .form = u"FormMain",
        .places = IconOnly | Menu},
    {.id = u"Export",
        .icon = u"export",
        .text = QT_TRANSLATE_NOOP("telephone", "Export"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Write the numbers of the list to a file"),
        .places = Labelled | GroupStart},
};

} // namespace

core::ToolTable phoneListTools()
{
    return {kTools, "telephone"};
}

} // namespace telephone
