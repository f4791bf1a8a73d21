#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/filter_target.h"
#include "core/screen.h"

#include <QHash>

#include <memory>

class QLabel;
class QMenu;
class QStackedWidget;
class QTabWidget;
class QToolButton;

namespace widgets {
class FoundStrip;
class RecordList;
} // namespace widgets

namespace core {
class ContactTools;
class ListPresenter;
} // namespace core

namespace views {

class AddressSource;
class CategoryTree;
class FullViewEdit;
class FullViewHeader;
class FullViewPages;
class KeywordPanel;
class ListEditing;
struct ShownText;

/// What tells the full view and its near copies apart.
struct FullViewKind {
    const char* title; ///< of the tab, for translation
    QStringView frameTitle;
    QStringView callerForm; ///< to which a filter is delivered
    bool browsesOthers = false; ///< has room for what only other address books have
};

/// One contact with everything the book holds of it, beside the list of all contacts or the tree of
/// categories. From here the contact is edited in place or handed to the other screens.
class FullView : public core::Screen, public core::ContactScreen, public core::FilterTarget {
    Q_OBJECT

public:
    explicit FullView(core::Context& context, QWidget* parent = nullptr);
    FullView(core::Context& context, const FullViewKind& kind, QWidget* parent);
    ~FullView() override;

    void load() override;
    bool showContact(qint64 id) override;
    void applyFilter(const QString& whereClause) override;
    void bookChanged() override;
    bool isTouched() const override;

Q_SIGNALS:
    void bookChosen(bool own); ///< another address book is listed, the program's own or one to read only

protected:
    core::ContactTools& tools() const { return *m_tools; }
    void addCommandRow(QWidget* row); ///< below the commands over the list
    /// Lists another address book, which can only be read; without one the program's own.
    void browse(std::unique_ptr<AddressSource> source);
    QString shownName() const;

private:
    class ListedBook;
    class OwnBook;
    class OtherBook;

    void layOut();
    QWidget* layOutBrowser();
    QWidget* layOutRecord();
    void makeMenus();
    void connectControls();

    void openList(const QString& sql, const QString& foundBy = {});
    void openFound(const QString& sql, const QString& foundBy);
    void listBook(std::unique_ptr<ListedBook> book);
    void listOwnBook();
    void selectInList(qint64 id);
    void rowChanged(int row);
    void moveBy(int step);
    void showCounter();
    void display(qint64 id);
    void showSummary(const jet::Recordset& contact);
    void displayNothing();
    void showTexts(const QList<ShownText>& texts);

    void showList();
    void showTree();
    void chooseInTree(qint64 id);
    void refresh();
    void pageChanged(int page);
    bool mayLeaveEdit();
    void save();
    void goToAssociate(const QString& name);
    void storeName(qint64 id, const QString& name);
    void viewLinkedData();
    void openPicture();

    const FullViewKind& m_kind;
    qint64 m_id = 0; ///< the contact shown
    QString m_picture; ///< its picture, as the program writes paths
    QHash<QString, QWidget*> m_controls; ///< those that show a text of the contact
    std::unique_ptr<ListedBook> m_book;

    core::ContactTools* m_tools;
    QMenu* m_menu = nullptr;
    QMenu* m_filterMenu = nullptr;
    widgets::RecordList* DBList1;
    CategoryTree* tvwdb;
    KeywordPanel* frmkeyword;
    ListEditing* m_listEditing;
    QWidget* m_browser = nullptr;
    QStackedWidget* m_lists = nullptr;
    QWidget* m_listPage = nullptr;
    QStackedWidget* m_record = nullptr; ///< a word when nothing is shown, or the tabs
    QTabWidget* TabsEdit = nullptr;
    FullViewHeader* m_header;
    FullViewPages* m_pages = nullptr;
    FullViewEdit* m_edit;
    widgets::FoundStrip* m_found;
    core::ListPresenter* m_list;
    QLabel* lblCounter;
    QToolButton* ssprevious;
    QToolButton* ssnext;
    QToolButton* CmdList;
    QToolButton* CmdTree;
    QToolButton* CmdView;
    QToolButton* CmdRefresh;
};

} // namespace views
