#include "views/full_view/category_tree.h"

#include "views/full_view/full_view_sql.h"
#include "widgets/theme.h"

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int KindRole = Qt::UserRole;
constexpr int KeyRole = Qt::UserRole + 1;
constexpr int FilledRole = Qt::UserRole + 2;

} // namespace

CategoryTree::CategoryTree(jet::Database& book, QWidget* parent)
    : QTreeWidget(parent)
    , m_book(book)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setAccessibleName(tr("Contacts by category"));
    connect(this, &QTreeWidget::itemExpanded, this, &CategoryTree::fill);
    connect(this, &QTreeWidget::itemClicked, this, &CategoryTree::choose);
    connect(this, &QTreeWidget::itemActivated, this, &CategoryTree::choose);
    rebuild();
}

void CategoryTree::rebuild()
{
    clear();
    m_wanted.reset();
    auto* root = node(Kind::Root, u"Orvane Contact Address Book"_s, u"M"_s);
    root->setIcon(0, widgets::icon(u"home"));
    addTopLevelItem(root);
    if (isVisible())
        root->setExpanded(true);
}

void CategoryTree::reveal(const QString& category, const QString& subcategory, const QString& name)
{
    const Wanted wanted{category, subcategory, name};
    if (isVisible())
        walk(wanted);
    else
        m_wanted = wanted;
}

void CategoryTree::showEvent(QShowEvent* event)
{
    QTreeWidget::showEvent(event);
    topLevelItem(0)->setExpanded(true);
    if (const auto wanted = std::exchange(m_wanted, {}))
        walk(*wanted);
}

QTreeWidgetItem* CategoryTree::node(Kind kind, const QString& text, const QString& key) const
{
    auto* item = new QTreeWidgetItem({text});
    item->setData(0, KindRole, int(kind));
    item->setData(0, KeyRole, key);
    if (kind != Kind::Person)
        item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
    return item;
}

void CategoryTree::fill(QTreeWidgetItem* branch)
{
    if (branch->data(0, FilledRole).toBool())
        return;
    branch->setData(0, FilledRole, true);
    const auto kind = Kind(branch->data(0, KindRole).toInt());
    QString sql;
    switch (kind) {
    case Kind::Root: sql = treeCategoriesSql(); break;
    case Kind::Categ: sql = treeSubcategoriesSql(branch->text(0)); break;
    case Kind::SubCateg: sql = treePeopleSql(branch->text(0)); break;
    case Kind::Person: return;
    }
    const auto childKind = Kind(int(kind) + 1);
    const jet::Recordset rows = m_book.openRecordset(sql);
    const int textColumn = childKind == Kind::Person ? rows.columnIndex(u"name") : 0;
    QList<QTreeWidgetItem*> children;
    children.reserve(rows.count());
    for (int row = 0; row < rows.count(); ++row) {
        const QString key = childKind == Kind::Person ? rows.textAt(row, 0) : QString();
        children << node(childKind, rows.textAt(row, textColumn), key);
    }
    branch->addChildren(children);
    if (children.isEmpty())
        branch->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
}

void CategoryTree::choose(QTreeWidgetItem* item)
{
    if (Kind(item->data(0, KindRole).toInt()) == Kind::Person)
        Q_EMIT contactChosen(item->data(0, KeyRole).toString().toLongLong());
}

QTreeWidgetItem* CategoryTree::childOf(QTreeWidgetItem* branch, const QString& text)
{
    fill(branch);
    for (int i = 0; i < branch->childCount(); ++i) {
        if (branch->child(i)->text(0).compare(text, Qt::CaseInsensitive) == 0)
            return branch->child(i);
    }
    return nullptr;
}

void CategoryTree::walk(const Wanted& wanted)
{
    QTreeWidgetItem* found = childOf(topLevelItem(0), wanted.category);
    if (found)
        found = childOf(found, wanted.subcategory);
    if (found)
        found = childOf(found, wanted.name);
    setCurrentItem(found);
    if (found)
        scrollToItem(found);
}

} // namespace views
