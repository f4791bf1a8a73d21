#include "telephone/lists/phone_list_tools.h"

#include "telephone/contact_rows.h"

#include <QtGlobal>

namespace telephone {

namespace {

using enum core::Tool::Place;
using Task = core::ToolTask;

constexpr core::Tool kTools[] = {
    rows::kCall,
    rows::kEmail,
    rows::kLetter,
    {.id = u"FullView",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("telephone", "Full view"),
        .task = Task::HandOver,
        .form = u"FullView",
        .places = IconOnly | Menu | GroupStart},
    rows::kEditDetails,
    rows::kAddToList,
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
