#pragma once

#include "core/contact_category.h"
#include "core/setup/category_statements.h"
#include "core/setup_panel.h"

class QButtonGroup;
class QRadioButton;

namespace widgets {
class FilledCombo;
}

namespace setup {

/// Asks what becomes of the contacts of a category that is to go, and deletes it. Hidden until then.
class CategoryDeletion : public core::SetupPanel {
    Q_OBJECT

public:
    explicit CategoryDeletion(core::Context& context, QWidget* parent = nullptr);

    void ask(const core::Category& category);
    void refresh() override;

Q_SIGNALS:
    void deleted();

private:
    void layOut();
    void connectControls();
    void followChoice();
    void carryOut();
    bool isTargetFit(const core::Category& target);
    bool keepCopy();

    core::Category m_category;
    QButtonGroup* m_choice;
    QRadioButton* optDel1;
    QRadioButton* optDel3;
    QRadioButton* optDel2;
    widgets::FilledCombo* cmbCateg1 = nullptr;
    widgets::FilledCombo* cmbCateg2 = nullptr;
    QLabel* m_what;
    QLabel* m_hint;
};

} // namespace setup
