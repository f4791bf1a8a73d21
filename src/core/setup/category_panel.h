#pragma once

#include "core/contact_category.h"
#include "core/setup_panel.h"

class QPushButton;
class QStackedWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace setup {

class CategoryDeletion;

/// The categories as a flat list or a tree; beside it the chosen one, which can be renamed in all records or
/// deleted in one of three ways, and new ones.
class CategoryPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit CategoryPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    enum class State { New, Edit, View };

    QWidget* layOutList();
    QWidget* layOutFields();
    void connectControls();
    void go(State state);
    void readTree();
    void fillBranch(QTreeWidgetItem* branch);
    void selectInTree(const core::Category& category, qint64 id);
    void switchView();
    bool mayShowAnother();
    void rowChanged(int row);
    void treeChanged(QTreeWidgetItem* item);
    void showCategory(qint64 id, const core::Category& category);
    void typed();
    void startNew();
    void takeFactoryCategory(const QString& both);
    void cancel();
    void save();
    void add(const core::Category& category);
    void rename(const core::Category& category);
    void askToDelete();
    void stored(qint64 id);

    State m_state = State::View;
    qint64 m_id = 0; ///< of the row that is shown, 0 for none
    core::Category m_old;
    bool m_isFilling = false;

    QStackedWidget* m_views;
    widgets::HeadingGrid* FG;
    QTreeWidget* SSTree1;
    QPushButton* CmdList;
    widgets::FilledCombo* DBCcat = nullptr;
    widgets::FilledCombo* DBCSubCat = nullptr;
    widgets::FilledCombo* m_factory = nullptr;
    QLabel* lblflg = nullptr;
    QLabel* m_hint;
    CategoryDeletion* m_deletion;
};

} // namespace setup
