#include "core/shell/list_bar.h"

#include "core/shell/tool_bar_table.h"
#include "widgets/theme.h"

#include <QCoreApplication>
#include <QHeaderView>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int kKind = Qt::UserRole;
constexpr int kId = Qt::UserRole + 1;

const core::Action* actionOf(Row kind, QStringView id)
{
    return kind == Row::Tool ? core::toolAction(id) : core::shortCodeAction(id);
}

QString translated(const char* text)
{
    return QCoreApplication::translate("shell", text);
}

} // namespace

ListBar::ListBar(const IsAvailable& isAvailable, QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(u"ListBar"_s);
    setAccessibleName(tr("Areas of the program"));
    setHeaderHidden(true);
    setIndentation(14);
    setRootIsDecorated(false);
    setExpandsOnDoubleClick(false);
    setUniformRowHeights(true);
    setFrameShape(QFrame::NoFrame);
    for (const ListBarArea& area : listBarAreas()) {
        auto* top = new QTreeWidgetItem(this, {translated(area.caption)});
        top->setIcon(0, widgets::icon(area.icon));
        QFont bold = font();
        bold.setBold(true);
        top->setFont(0, bold);
        top->setSizeHint(0, QSize(0, 26));
        for (const ListBarRow& row : area.rows) {
            auto* item = new QTreeWidgetItem(top, {translated(row.caption)});
            item->setData(0, kKind, int(row.kind));
            item->setData(0, kId, row.id.toString());
            item->setSizeHint(0, QSize(0, 26));
            const core::Action* action = actionOf(row.kind, row.id);
            if (!action || !isAvailable(*action)) {
                item->setDisabled(true);
                item->setToolTip(0, tr("Not available yet"));
            }
        }
    }
    for (int area = 0; area < 3; ++area)
        topLevelItem(area)->setExpanded(true);
    setMinimumWidth(minimumSizeHint().width());
    showWhatIsToCome(false);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) { start(item); });
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        // A click is enough for the mouse; this is the way of the keyboard.
        if (!(QGuiApplication::mouseButtons() & Qt::LeftButton) && hasFocus() && item->childCount() == 0)
            start(item);
    });
}

void ListBar::showWhatIsToCome(bool shown)
{
    for (int area = 0; area < topLevelItemCount(); ++area) {
        QTreeWidgetItem* top = topLevelItem(area);
        bool offersSomething = false;
        for (int row = 0; row < top->childCount(); ++row) {
            const bool isThere = shown || !top->child(row)->isDisabled();
            top->child(row)->setHidden(!isThere);
            offersSomething = offersSomething || isThere;
        }
        top->setHidden(!offersSomething);
    }
}

void ListBar::start(const QTreeWidgetItem* item)
{
    if (item->childCount() > 0) {
        const_cast<QTreeWidgetItem*>(item)->setExpanded(!item->isExpanded());
        return;
    }
    const core::Action* action = actionOf(Row(item->data(0, kKind).toInt()), item->data(0, kId).toString());
    if (action && !item->isDisabled())
        Q_EMIT chosen(*action);
}

} // namespace shell
