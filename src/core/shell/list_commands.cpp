#include "core/shell/list_commands.h"

#include "core/screen.h"
#include "core/shell/key_arbiter.h"
#include "output/grid/list_print.h"
#include "platform/message_boxes.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QPointer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

using widgets::HeadingGrid;

/// The screen that holds a list, or its window, by the name that a person reads.
QString titleOf(const QWidget* list)
{
    for (const QWidget* above = list; above; above = above->parentWidget()) {
        if (const auto* screen = qobject_cast<const core::Screen*>(above))
            return screen->frameTitle();
    }
    return list->window()->windowTitle();
}

HeadingGrid* listAround(QWidget* widget)
{
    for (QWidget* above = widget; above; above = above->parentWidget()) {
        if (auto* list = qobject_cast<HeadingGrid*>(above))
            return list;
    }
    return nullptr;
}

bool isToBeTaken(const HeadingGrid* list)
{
    return list->contextMenuPolicy() != Qt::NoContextMenu;
}

bool hasNoMenu(const HeadingGrid* list)
{
    return list->contextMenuPolicy() == Qt::DefaultContextMenu;
}

} // namespace

ListCommands::ListCommands(core::Context& context, FrontScreen frontScreen, QMenu* menu, KeyArbiter& keys)
    : QObject(menu)
    , m_context(context)
    , m_frontScreen(std::move(frontScreen))
{
    const struct {
        QString name;
        QStringView icon;
        QString key;
        Command command;
    } rows[] = {
        {u"ListPrint"_s, u"printer", u"Ctrl+P"_s, [this](HeadingGrid* list) { print(list); }},
        {u"FileExport"_s, u"export", u"Ctrl+Shift+X"_s, [this](HeadingGrid* list) { exportToFile(list); }},
    };
    for (const auto& row : rows) {
        auto* action = menu->findChild<QAction*>(row.name);
        action->setShortcut(QKeySequence(row.key));
        widgets::setIcon(action, row.icon);
        connect(
            action, &QAction::triggered, this, [this, command = row.command] { withListInFront(command); });
        keys.add(action);
    }
    auto* sizes = new QMenu(menu);
    sizes->setObjectName(u"ListSizes"_s);
    menu->findChild<QAction*>(u"ListSize"_s)->setMenu(sizes);
    fillSizes(sizes, [this] { return listInFront(); });
    qApp->installEventFilter(this);
}

bool ListCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    auto* list = widget ? qobject_cast<HeadingGrid*>(widget) : nullptr;
    if (!list && widget)
        list = qobject_cast<HeadingGrid*>(widget->parentWidget());
    const bool isOfList = list && (widget == list || widget == list->viewport());
    if (!isOfList || !hasNoMenu(list))
        return false;
    offer(list, static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
}

HeadingGrid* ListCommands::listInFront() const
{
    const QWidget* screen = m_frontScreen();
    if (!screen)
        return nullptr;
    HeadingGrid* focused = listAround(QApplication::focusWidget());
    if (focused && screen->isAncestorOf(focused) && isToBeTaken(focused))
        return focused;
    HeadingGrid* largest = nullptr;
    const auto area = [](const QWidget* list) { return list->width() * list->height(); };
    for (auto* list : screen->findChildren<HeadingGrid*>()) {
        if (list->isVisible() && isToBeTaken(list) && (!largest || area(list) > area(largest)))
            largest = list;
    }
    return largest;
}

void ListCommands::withListInFront(const Command& command) const
{
    if (HeadingGrid* list = listInFront())
        command(list);
    else
        m_context.services.boxes.information(
            tr("There is no list in front. Open a screen that shows one."), m_context.shared.AppTitle);
}

void ListCommands::print(HeadingGrid* list) const
{
    output::ListPrint(m_context, list, titleOf(list));
}

void ListCommands::exportToFile(HeadingGrid* list) const
{
    output::exportList(m_context, list, titleOf(list));
}

void ListCommands::fillSizes(QMenu* sizes, const std::function<HeadingGrid*()>& list) const
{
    auto* group = new QActionGroup(sizes);
    const core::ToolTable table = output::listTools();
    for (const core::Tool& tool : table.tools) {
        const auto size = output::listSizeOfTool(tool.id);
        if (!size)
            continue;
        QAction* action = sizes->addAction(QCoreApplication::translate(table.translationContext, tool.text));
        action->setObjectName(tool.id.toString());
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, sizes, [list, size] {
            if (HeadingGrid* one = list())
                output::setListSize(one, *size);
        });
        connect(sizes, &QMenu::aboutToShow, action, [action, list, size] {
            HeadingGrid* one = list();
            action->setEnabled(one != nullptr);
            action->setChecked(one && output::listSizeOf(one) == *size);
        });
    }
}

void ListCommands::offer(HeadingGrid* list, const QPoint& place) const
{
    auto* menu = new QMenu(list);
    menu->setObjectName(u"ListMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QPointer<HeadingGrid> kept = list;
    const auto add = [&](const QString& text, const QString& name, QStringView icon, const Command& command) {
        QAction* action = menu->addAction(text);
        action->setObjectName(name);
        widgets::setIcon(action, icon);
        // Behind the end of the menu, which is a child of the list and would wait for a dialog.
        connect(
            action, &QAction::triggered, this,
            [kept, command] {
                if (kept)
                    command(kept);
            },
            Qt::QueuedConnection);
    };
    add(tr("&Print the list..."), u"ListPrint"_s, u"printer", [this](HeadingGrid* one) { print(one); });
    add(tr("E&xport the list..."), u"FileExport"_s, u"export",
        [this](HeadingGrid* one) { exportToFile(one); });
    QMenu* sizes = menu->addMenu(tr("&Size of its texts"));
    fillSizes(sizes, [kept] { return kept.data(); });
    menu->popup(place);
}

} // namespace shell
