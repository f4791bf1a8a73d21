#pragma once

#include "core/screen.h"
#include "telephone/lists/phone_list_sql.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTabBar;
class QToolBar;

namespace core {
class ContactTools;
}

namespace widgets {
class FilledCombo;
class HeadingGrid;
class RecordList;
} // namespace widgets

namespace telephone {

class ContactPane;

/// Makes lists of telephone numbers from the contacts, shows the lists of four kinds, prints and saves them.
class FrmPhList : public core::Screen {
    Q_OBJECT

public:
    explicit FrmPhList(core::Context& context, QWidget* parent = nullptr);
    ~FrmPhList() override;

    void load() override;
    bool isTouched() const override; ///< a name for a new list has been typed
    void bookChanged() override;

private:
    QWidget* layOutLists();
    QWidget* layOutNumbers();
    QToolBar* layOutTools();
    void layOutFoot(QWidget* foot);
    void connectLists();
    void connectKeys();
    void makeMenus();

    ListKind kind() const;
    QString listColumn() const; ///< the one with the names of the lists
    void showPerson();

    void leaveTab();
    void chooseTab();
    void readLists();
    void pointAtList();
    void typeList(const QString& typed);
    void chooseList(const QString& list);
    void readNumbers();
    void fillNumbers(const QString& sql);
    void showNumber();
    void showWide(bool wide);

    void addPerson();
    void beginList(bool begin);
    void saveList();
    void deleteNumber();
    void deleteList();
    void afterChange();

    void printReport();
    void exportList();

    QString m_list; ///< the one that is selected; empty for none
    QString m_numbersSql;
    core::ContactTools* m_tools;
    ContactPane* m_contacts;
    widgets::HeadingGrid* FG; ///< of the contacts
    widgets::HeadingGrid* FGPhone;
    widgets::RecordList* list1;
    widgets::HeadingGrid* m_chosenIn; ///< the grid in which a contact was chosen last
    QTabBar* SSActiveTabs1;
    QWidget* m_building; ///< what changes a list
    QWidget* m_naming; ///< what names a new list
    QWidget* m_ticks; ///< what the contacts are narrowed down by
    widgets::FilledCombo* DBCombo1 = nullptr;
    QCheckBox* Check1;
    QCheckBox* Check2;
    QCheckBox* Check3;
    QPushButton* SSCommand6 = nullptr;
    QPushButton* SSCommand11 = nullptr;
    QLineEdit* Text1;
    QLabel* lblname;
    QMenu* m_numberMenu;
};

} // namespace telephone
