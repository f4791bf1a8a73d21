#include "letters/lists/mail_list_tools.h"

#include <QtGlobal>

namespace letters {

namespace {

using enum core::Tool::Place;
using Task = core::ToolTask;

constexpr core::Tool kTools[] = {
    {.id = u"PrintAll",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("letters", "Print all"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Labels or a list of all members"),
        .places = Labelled},
    {.id = u"PrintSelected",
        .icon = u"report",
        .text = QT_TRANSLATE_NOOP("letters", "Print selected"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Labels or a list of the members that are selected"),
        .places = Labelled},
    {.id = u"GroupLetter",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("letters", "Group letter"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Write a letter to all members"),
        .form = u"FrmGrpLetter",
        .places = Labelled | GroupStart},
    {.id = u"MSWord",
        .icon = u"note",
        .text = QT_TRANSLATE_NOOP("letters", "Word processor"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Begin a letter to the member in the word processor"),
        .places = Labelled | Menu},
    {.id = u"Letter",
        .icon = u"letter",
        .text = QT_TRANSLATE_NOOP("letters", "Letter"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Write a letter to the member"),
        .task = Task::HandOver,
        .form = u"FrmLetter",
        .places = Labelled | Menu},
    {.id = u"Email2",
        .icon = u"envelope",
        .text = QT_TRANSLATE_NOOP("letters", "E-mail"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Write an e-mail to the member"),
        .task = Task::AddRecipient,
        .form = u"FormEmail",
        .places = Labelled | Menu},
    {.id = u"PrintLabel",
        .icon = u"note",
        .text = QT_TRANSLATE_NOOP("letters", "Print a label"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "A sheet of labels of the member alone"),
        .task = Task::HandOver,
        .form = u"FrmlblReport",
        .places = Menu | GroupStart},
    {.id = u"AddToList",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("letters", "Add to a list..."),
        .task = Task::HandOver,
        .form = u"FrmList",
        .places = Menu},
    {.id = u"FullView",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("letters", "Full view"),
        .task = Task::HandOver,
        .form = u"FullView",
        .places = IconOnly | Menu | GroupStart},
    {.id = u"EditDetails",
        .icon = u"person-edit",
        .text = QT_TRANSLATE_NOOP("letters", "Edit details"),
        .task = Task::EditContact,
        .form = u"FormMain",
        .places = IconOnly | Menu},
};

} // namespace

core::ToolTable mailListTools()
{
    return {kTools, "letters"};
}

} // namespace letters
