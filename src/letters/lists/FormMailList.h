#pragma once

#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "letters/labels/label_panel.h"
#include "letters/lists/mail_list_sql.h"

class QButtonGroup;
class QCheckBox;
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
} // namespace widgets

namespace letters {

class MemberPane;
class PrintDialog;

/// The mailing lists and the members of other groups: kept, printed as labels and lists, saved as files, and
/// written to.
class FormMailList : public core::Screen, public core::PageScreen {
    Q_OBJECT

public:
    explicit FormMailList(core::Context& context, QWidget* parent = nullptr);
    ~FormMailList() override;

    void load() override;
    /// "List:Name" or "Association:Name" shows that one; any other page the mailing lists.
    void openPage(const QString& page) override;
    void bookChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolBar* layOutTools();
    QWidget* layOutGroups();
    QWidget* layOutFilters();
    QWidget* layOutListTools();
    QWidget* layOutFiles();
    void makeMenus();
    void connectControls();

    MailTab tab() const;
    MailFilter filter() const;
    void chooseTab();
    void readGroups();
    void chooseGroup();
    bool pointAt(const QString& group);
    void showMembers();
    void showPlace();

    void addPeople(const QString& list);
    void removeMember();
    void renameList();
    void deleteList();
    void afterChange();

    void askWhatToPrint(bool onlySelected);
    void print(const LabelChoice& choice);
    void saveAsFile();
    void writeGroupLetter();
    void startLetter();

    bool m_onlySelected = false; ///< of the members, to be printed
    QString m_town; ///< the default of the towns
    core::ContactTools* m_tools;
    MemberPane* m_members;
    PrintDialog* m_print;
    QTabBar* SSActiveTabs1;
    widgets::HeadingGrid* list1;
    QWidget* m_groups; ///< or what narrows the members down
    QWidget* m_filters;
    QWidget* m_listTools; ///< what changes a mailing list
    QList<QCheckBox*> m_ticks; ///< first and second priority, the town of one's own
    widgets::FilledCombo* cmbRelation;
    QButtonGroup* m_formats;
    QButtonGroup* m_addresses;
};

} // namespace letters
