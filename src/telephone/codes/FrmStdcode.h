#pragma once

#include "core/screen.h"
#include "telephone/codes/code_list_sql.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class QTimer;
class QToolBar;

namespace widgets {
class HeadingGrid;
}

namespace telephone {

/// The telephone codes of cities: listed by country or state, and found by what is typed of the city or of
/// the code. A code goes to the dialer.
class FrmStdcode : public core::Screen {
    Q_OBJECT

public:
    explicit FrmStdcode(core::Context& context, QWidget* parent = nullptr);

    void load() override;

private:
    void layOut();
    QToolBar* layOutTools();
    void showList();
    void typed(SearchBy by);
    void search();
    void showFound();
    void takeRow(int row);
    QString codeOf(int row) const;
    void dial();

    SearchBy m_searchBy = SearchBy::City;
    QTabBar* SSActiveTabs1;
    widgets::HeadingGrid* FGCity;
    QCheckBox* chkMain = nullptr;
    QLineEdit* Text1 = nullptr;
    QLineEdit* Text2 = nullptr;
    QPushButton* SSCommand1 = nullptr;
    QLabel* m_count = nullptr;
    QTimer* m_typing; ///< runs while something is being typed
};

} // namespace telephone
