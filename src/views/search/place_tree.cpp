#include "views/search/place_tree.h"

#include "widgets/long_text.h"
#include "widgets/theme.h"

#include <QElapsedTimer>
#include <QTimerEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int KeyRole = Qt::UserRole + 1;
constexpr int FilledRole = Qt::UserRole + 2;

constexpr int kStepMs = 25; ///< that the normalising may hold the window
constexpr qint64 kFewest = 100; ///< contacts of a step
constexpr qint64 kMost = 20'000;

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
    if (const QString state = m_book.state(); state.isEmpty() || state != m_normalised)
        m_isDue = true;
    if (std::exchange(m_kind, kind) != kind)
        clear();
    grow();
}

void PlaceTree::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);
    if (m_isDue && !m_upkeep.isActive())
        m_upkeep.start(0, this);
}

void PlaceTree::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_upkeep.timerId())
        normaliseSome();
    else
        QTreeWidget::timerEvent(event);
}

void PlaceTree::normaliseSome()
{
    if (std::exchange(m_isDue, false)) {
        m_unclassified = m_book.openRecordset(unclassifiedSql());
        m_lookedAt = 0;
    }
    const bool isFilled = m_lookedAt > 0;
    if (m_lookedAt < m_unclassified.count() && normaliseNext())
        return;
    m_upkeep.stop();
    m_unclassified = {};
    m_normalised = m_book.state();
    if (!isFilled)
        return;
    grow();
    Q_EMIT normalised();
}

// False when it can not be written, which goes for the others, too.
bool PlaceTree::normaliseNext()
{
    QElapsedTimer clock;
    clock.start();
    const int last = std::min(m_lookedAt + m_contactsAStep, m_unclassified.count()) - 1;
    const jet::Upkeep upkeep(m_book);
    jet::Batch batch(m_book);
    for (const QString& statement :
        normalisingStatements(m_unclassified.keyAt(m_lookedAt), m_unclassified.keyAt(last)))
        m_book.execute(statement);
    if (!batch.commit())
        return false;
    m_lookedAt = last + 1;
    const qint64 took = std::max<qint64>(1, clock.elapsed());
    m_contactsAStep = int(std::clamp<qint64>(m_contactsAStep * kStepMs / took, kFewest, kMost));
    return true;
}

void PlaceTree::grow()
{
    const TreeKind kind = m_kind;
    const bool again = topLevelItemCount() > 0;
    const QList<QStringList> open = again ? openPaths() : QList<QStringList>{{}};
    const QStringList current = again ? currentPath() : QStringList();
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
