#pragma once

#include "core/contact_tools.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "views/search/tree_search_sql.h"

#include <functional>

class QAction;
class QLabel;
class QMenu;
class QRadioButton;

namespace widgets {
class HeadingGrid;
}

namespace core {
class ListPresenter;
}

namespace views {

class PlaceTree;
class ResultDetail;

/// The contacts that a search or a node of a tree gives, with a panel about the current one. It is the result
/// pane of the advanced search, and alone a screen with a tree of its own, by location or category.
class FormTree2 : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    /// With a parent it is a pane of that screen.
    explicit FormTree2(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    /// "Location" or "Category": the kind of its own tree.
    void openPage(const QString& page) override;

    void showNode(TreeKind kind, const QStringList& path);
    void showFound(const QString& whereClause);
    void showThumbnail(qint64 id);
    /// Runs the last filter again.
    void refresh();

    qint64 currentId() const;
    core::ChosenContact currentContact() const { return {currentId(), currentId(), m_name}; }
    /// The menu of a row, in place of its own.
    void setRowMenu(QMenu* menu) { m_menu = menu; }
    /// For the tool bar of the screen that it is a pane of; alone it has its own.
    core::ToolSet* tools() const { return m_tools; }
    /// A tool whose key works in the grid.
    void addRowAction(QAction* action);

protected:
    void showEvent(QShowEvent* event) override;

private:
    using Filter = std::function<ResultQuery(ViewBy)>;

    void connectTools();
    QWidget* layOutResults();
    QWidget* layOutFoot();
    void connectControls();

    ViewBy view() const;
    bool run(const Filter& filter);
    void apply(const Filter& filter);
    void rowChanged(int row);
    void select();
    void viewChanged();
    void showTree();

    Filter m_last;
    QString m_name; ///< of the current contact

    TreeKind m_kind = TreeKind::Category; ///< alone only
    core::ToolSet* m_tools;
    core::ContactTools* m_hits;
    QMenu* m_menu;
    PlaceTree* SSTree1 = nullptr; ///< alone only
    widgets::HeadingGrid* FG1;
    core::ListPresenter* m_list;
    ResultDetail* m_detail;
    QRadioButton* Option1;
    QRadioButton* Option2;
    QLabel* lblcount;
};

} // namespace views
