#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/filter_target.h"
#include "core/screen.h"
#include "jet/recordset.h"

#include <QHash>

class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;
class QTabWidget;
class QToolBar;
class QToolButton;

namespace widgets {
class PictureBox;
class RecordList;
}

namespace views {

class CategoryTree;
class FullViewEdit;
class KeywordPanel;
class ListEditing;

/// What tells the full view and its near copies apart.
struct FullViewKind {
    const char* title; ///< of the tab, for translation
    QStringView frameTitle;
    QStringView callerForm; ///< to which a filter is delivered
};

/// One contact with everything the book holds of it, beside the list of all contacts or the tree of categories. From
/// here the contact is edited in place or handed to the other screens.
class FullView : public core::Screen, public core::ContactScreen, public core::FilterTarget {
    Q_OBJECT

public:
    explicit FullView(core::Context& context, QWidget* parent = nullptr);
    FullView(core::Context& context, const FullViewKind& kind, QWidget* parent);

    void load() override;
    bool showContact(qint64 id) override;
    void applyFilter(const QString& whereClause) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct ToolRow;
    static const ToolRow kTools[];

    void layOut();
    QWidget* layOutBrowser();
    QWidget* layOutRecord();
    QWidget* layOutHeader();
    void buildTools();
    void wire();
    QAction* tool(QStringView id) const;

    void openList(const QString& sql);
    void reopenList(); ///< the same selection, with the same contact selected
    void selectInList(qint64 id);
    void selectAfterSearch();
    void rowChanged(int row);
    void moveBy(int step);
    void display(qint64 id);
    void displayNothing();
    void showCounter();
    void showList();
    void showTree();
    void chooseInTree(qint64 id);
    void refresh();
    void pageChanged(int page);
    void save();
    void goToAssociate(const QPushButton* label);
    void storeName(qint64 id, const QString& name);

    /// The contact of the name shown; 0 when there is none or its name breaks the look-up.
    qint64 contactByName() const;
    /// Shows another screen for the contact of the name shown, or says that there is none.
    void handOver(QStringView form);
    void openSelector();
    void openBriefView();
    void editDetails();
    void printLabel();
    void viewLinked();
    void dial();
    void writeLetter();
    void writeMail();
    void sendSms();
    void editList();
    void printRecord();
    void searchKeyword();
    void filter();
    void filterByTabs();
    void askFilter(QStringView form);
    void openPicture();

    const FullViewKind& m_kind;
    QString Data4; ///< the statement behind the list
    qint64 m_id = 0; ///< the contact shown
    QString m_picture; ///< its picture, as the program writes paths
    bool m_wasShown = false;
    QHash<QString, QWidget*> m_texts; ///< the controls that show a contact, by name

    QToolBar* SSActiveToolBars1;
    QMenu* m_menu;
    QMenu* m_filterMenu;
    widgets::RecordList* DBList1;
    CategoryTree* tvwdb;
    KeywordPanel* frmkeyword;
    ListEditing* m_listEditing;
    QWidget* m_browser;
    QStackedWidget* m_lists;
    QStackedWidget* m_pages; ///< a word when nothing is shown, or the record
    QTabWidget* TabsEdit;
    FullViewEdit* m_edit;
    widgets::PictureBox* ix1;
    QLabel* m_summary;
    QLabel* m_associates;
    QLabel* lblCounter;
    QPushButton* SSCommand8;
    QPushButton* LblAsso1;
    QPushButton* LblAsso2;
    QToolButton* ssprevious;
    QToolButton* ssnext;
    QToolButton* CmdList;
    QToolButton* CmdTree;
    QToolButton* CmdView;
    QToolButton* CmdRefresh;
};

} // namespace views
