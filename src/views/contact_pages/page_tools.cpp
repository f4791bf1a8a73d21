#include "views/contact_pages/page_tools.h"

#include "core/contact_tools.h"

#include <QToolBar>

#include <utility>

namespace views {

namespace {

using enum core::Tool::Place;

constexpr core::Tool kTools[] = {
    {.id = u"AddToList",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("views", "Add to a list..."),
        .task = core::ToolTask::HandOver,
        .form = u"FrmList",
        .places = IconOnly},
    {.id = u"PrintLabel",
        .icon = u"note",
        .text = QT_TRANSLATE_NOOP("views", "Print a label"),
        .task = core::ToolTask::HandOver,
        .form = u"FrmlblReport",
        .places = IconOnly},
};

} // namespace

QToolBar* makePageTools(core::Context& context, QWidget* page, std::function<qint64()> shown)
{
    const auto* tools = new core::ContactTools(context, {kTools, "views"},
        {.callerForm = {},
            .chosen =
                [shown = std::move(shown)] {
                    const qint64 id = shown();
                    return core::ChosenContact{id, id};
                }},
        page);
    QToolBar* bar = tools->makeToolBar(page);
    bar->setObjectName(kPageTools);
    return bar;
}

} // namespace views
