#pragma once

#include "jet/database.h"
#include "views/search/tree_search_sql.h"

#include <QBasicTimer>
#include <QTreeWidget>

namespace views {

/// The caption under which the tree of a kind is opened as a screen of its own.
QString treeSearchTitle(TreeKind kind);

/// The address book as a tree of categories and subcategories, or of regions, countries, states and cities. A
/// branch is read when it is opened. Once a tree can be seen, "Undefined" is written where a column of it is
/// empty, some contacts at a time, so that the window stays alive; then it is built again.
class PlaceTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit PlaceTree(jet::Database& book, QWidget* parent = nullptr);

    /// Builds the tree anew; what was open and current in a tree of this kind is so again.
    void build(TreeKind kind);
    TreeKind kind() const { return m_kind; }
    /// The path of the current node, empty for the root.
    QStringList currentPath() const;

Q_SIGNALS:
    /// The path has as many steps as the node is below the root.
    void nodeChosen(const QStringList& path);
    /// Empty columns have been filled and the tree was built again.
    void normalised();

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void grow();
    void normaliseSome();
    bool normaliseNext();
    QTreeWidgetItem* node(const QString& text, const QStringList& path) const;
    void fill(QTreeWidgetItem* branch);
    QList<QStringList> openPaths() const;
    QTreeWidgetItem* find(const QStringList& path) const;

    jet::Database& m_book;
    QString m_normalised; ///< the state of the book when it was looked through last
    QBasicTimer m_upkeep;
    jet::Recordset m_unclassified; ///< contacts that are being normalised
    int m_lookedAt = 0; ///< so many of them
    int m_contactsAStep = 1000;
    bool m_isDue = false; ///< the book is to be looked through when the tree has been seen
    TreeKind m_kind = TreeKind::Location;
};

} // namespace views
