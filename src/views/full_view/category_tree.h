#pragma once

#include "jet/database.h"

#include <QTreeWidget>

#include <optional>

namespace views {

/// The address book as a tree of categories, subcategories and people. A branch is read when it is opened,
/// and nothing at all before the tree is seen for the first time.
class CategoryTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit CategoryTree(jet::Database& book, QWidget* parent = nullptr);

    /// Forgets all branches; they are read anew as they are opened.
    void rebuild();
    /// Walks to a person and selects the leaf; where there is none, nothing is selected. Waits for the tree
    /// to be seen.
    void reveal(const QString& category, const QString& subcategory, const QString& name);

Q_SIGNALS:
    void contactChosen(qint64 id);

protected:
    void showEvent(QShowEvent* event) override;

private:
    enum class Kind { Root, Categ, SubCateg, Person };
    struct Wanted {
        QString category;
        QString subcategory;
        QString name;
    };

    QTreeWidgetItem* node(Kind kind, const QString& text, const QString& key) const;
    void fill(QTreeWidgetItem* branch);
    void choose(QTreeWidgetItem* item);
    void walk(const Wanted& wanted);
    QTreeWidgetItem* childOf(QTreeWidgetItem* branch, const QString& text);

    jet::Database& m_book;
    std::optional<Wanted> m_wanted;
};

} // namespace views
