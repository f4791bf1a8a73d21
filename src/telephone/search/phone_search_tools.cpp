#include "telephone/search/phone_search_tools.h"

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
    {.id = u"Details",
        .icon = u"link",
        .text = QT_TRANSLATE_NOOP("telephone", "Details"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "View all linked data"),
        .task = Task::HandOver,
        .form = u"frmCntViewer",
        .places = Labelled | Menu | GroupStart},
    {.id = u"FullView",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("telephone", "Full view"),
        .task = Task::HandOver,
        .form = u"FullView",
        .places = IconOnly | Menu},
    rows::kEditDetails,
    rows::kAddToList,
    {.id = u"SavetoDesktop",
        .icon = u"export",
        .text = QT_TRANSLATE_NOOP("telephone", "Save to the desktop"),
        .task = Task::SaveCardToDesktop,
        .places = IconOnly | Menu | GroupStart},
    {.id = u"SaveasVCF",
        .icon = u"save",
        .text = QT_TRANSLATE_NOOP("telephone", "Save as vCard"),
        .task = Task::SaveCard,
        .places = IconOnly | Menu},
    {.id = u"Print",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("telephone", "Print"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Print the telephone numbers of all contacts"),
        .places = IconOnly | GroupStart},
    {.id = u"Refresh",
        .icon = u"restore",
        .text = QT_TRANSLATE_NOOP("telephone", "Refresh"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Show all numbers of your own city"),
        .places = Labelled,
        .key = Qt::Key_F5,
        .keyIn = core::Tool::KeyIn::Screen},
};

} // namespace

core::ToolTable phoneSearchTools()
{
    return {kTools, "telephone"};
}

} // namespace telephone
