#include "views/search/place_tree.h"

#include "widgets/long_text.h"
#include "widgets/theme.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int KeyRole = Qt::UserRole + 1;
constexpr int FilledRole = Qt::UserRole + 2;

QStringList pathOf(const QTreeWidgetItem* item)
{
    return item->data(0, PathRole).toStringList();
}

} // namespace

QString treeSearchTitle(TreeKind kind)
{
    return kind == TreeKind::Category ? PlaceTree::tr("Category Tree Search")
                                      : PlaceTree::tr("Location Tree Search");
}

// Twelve passes over the book for nothing would cost the most where there is most to read, so one pass asks
// first. The first time in a large book takes a while.
void normaliseBook(jet::Database& book)
{
    if (book.openRecordset(unclassifiedSql()).textAt(0) == u"0")
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    {
        const jet::Upkeep upkeep(book);
        jet::Batch together(book, jet::Batch::Mode::KeepWhatSucceeds);
        for (const QString& statement : normalisingStatements())
            book.execute(statement);
    }
    QGuiApplication::restoreOverrideCursor();
}

PlaceTree::PlaceTree(jet::Database& book, QWidget* parent)
    : QTreeWidget(parent)
    , m_book(book)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemExpanded, this, &PlaceTree::fill);
    const auto choose = [this](const QTreeWidgetItem* item) { Q_EMIT nodeChosen(pathOf(item)); };
    connect(this, &QTreeWidget::itemClicked, this, choose);
    connect(this, &QTreeWidget::itemActivated, this, choose);
}

void PlaceTree::build(TreeKind kind)
{
    // What was looked through before and has not changed since is as it should be.
    if (const QString state = m_book.state(); state.isEmpty() || state != m_normalised) {
        normaliseBook(m_book);
        m_normalised = m_book.state();
    }
    const bool again = topLevelItemCount() > 0 && kind == m_kind;
    const QList<QStringList> open = again ? openPaths() : QList<QStringList>{{}};
    const QStringList current = again ? currentPath() : QStringList();
    m_kind = kind;
    setAccessibleName(kind == TreeKind::Category ? tr("Contacts by category") : tr("Contacts by location"));
    clear();
    auto* root = node(treeRootText(kind), {});
    root->setIcon(0, widgets::icon(kind == TreeKind::Category ? u"category" : u"location"));
    addTopLevelItem(root);
    for (const QStringList& path : open) {
        if (QTreeWidgetItem* branch = find(path); branch && path.size() < treeDepth(kind))
            branch->setExpanded(true);
    }
    QTreeWidgetItem* found = find(current);
    setCurrentItem(found ? found : root);
    scrollToItem(currentItem());
}

QStringList PlaceTree::currentPath() const
{
    return currentItem() ? pathOf(currentItem()) : QStringList();
}

QTreeWidgetItem* PlaceTree::node(const QString& text, const QStringList& path) const
{
    auto* item = new QTreeWidgetItem({text});
    item->setData(0, PathRole, path);
    item->setData(0, KeyRole, treeNodeKey(path));
    if (path.size() > 1)
        item->setToolTip(0, widgets::tipOf(treeNodeKey(path)));
    item->setData(0, FilledRole, path.size() == treeDepth(m_kind));
    if (path.size() < treeDepth(m_kind))
        item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
}

void PlaceTree::fill(QTreeWidgetItem* branch)
{
    if (branch->data(0, FilledRole).toBool())
        return;
    branch->setData(0, FilledRole, true);
    const QStringList path = pathOf(branch);
    const jet::Recordset rows = m_book.openRecordset(treeBranchesSql(m_kind, path));
    QList<QTreeWidgetItem*> children;
    children.reserve(rows.count());
    for (int row = 0; row < rows.count(); ++row) {
        const QString text = rows.textAt(row, 0);
        children << node(text, path + QStringList{text});
    }
    branch->addChildren(children);
    if (children.isEmpty())
        branch->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

// From the root down, so that each is there when it is opened again.
QList<QStringList> PlaceTree::openPaths() const
{
    QList<QStringList> paths;
    QList<const QTreeWidgetItem*> level{topLevelItem(0)};
    while (!level.isEmpty()) {
        QList<const QTreeWidgetItem*> below;
        for (const QTreeWidgetItem* item : level) {
            if (!item->isExpanded())
                continue;
            paths << pathOf(item);
            for (int i = 0; i < item->childCount(); ++i)
                below << item->child(i);
        }
        level = below;
    }
    return paths;
}

// Null when a step of the path is not there, or has not been read.
QTreeWidgetItem* PlaceTree::find(const QStringList& path) const
{
    QTreeWidgetItem* found = topLevelItem(0);
    for (const QString& step : path) {
        QTreeWidgetItem* next = nullptr;
        for (int i = 0; i < found->childCount() && !next; ++i) {
            if (found->child(i)->text(0).compare(step, Qt::CaseInsensitive) == 0)
                next = found->child(i);
        }
        if (!next)
            return nullptr;
        found = next;
    }
    return found;
}

} // namespace views
