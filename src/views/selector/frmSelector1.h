#pragma once

#include "core/handover/filter_target.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"
#include "views/search/tree_search_sql.h"

#include <array>

class QAction;
class QSplitter;
class QStackedWidget;
class QTabBar;
class QToolBar;

namespace core {
class ContactTools;
}

namespace views {

class FormTree2;
class NameChoicesPanel;
class PicturePane;
class PlaceTree;
class TreeChoicesPanel;

/// The advanced search: by the tree of locations or categories, by names, by a choice for each of many
/// fields, or by pictures. What is found stands in the result pane beside it.
class frmSelector1 : public core::Screen, public core::PageScreen, public core::FilterTarget {
    Q_OBJECT

public:
    explicit frmSelector1(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    /// "Location", "Name", "Category", "Search" or "Picture".
    void openPage(const QString& page) override;
    void applyFilter(const QString& whereClause) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Tab;
    static const std::array<Tab, 5> kTabs;

    QToolBar* layOutTools();
    void makeTools();
    QWidget* layOutSearch();
    void connectControls();

    void enterTab();
    void chooseTab(int tab);
    void enterLocation();
    void enterNames();
    void enterCategory();
    void enterSearch();
    void enterPictures();
    void shareRoom(bool pictures);
    void resetChoices();
    void showAlone(bool alone);
    void showTree(TreeKind kind);
    void openKeyword();

    bool m_entered = false; ///< what the tab shows has been read
    bool m_wide = false; ///< the pictures have the larger half
    QList<int> m_otherSizes{500, 500}; ///< of the splitter when the other way is taken

    core::ContactTools* m_tools;
    core::ContactTools* m_contactTools;
    QList<QAction*> m_pageTools; ///< those that are out of sight with the search
    QTabBar* SSActiveTabs1;
    QStackedWidget* m_panes;
    QSplitter* m_splitter;
    QWidget* m_search;
    PlaceTree* SSTree1;
    NameChoicesPanel* m_names;
    TreeChoicesPanel* m_choices;
    PicturePane* m_pictures;
    FormTree2* m_results;
};

} // namespace views
