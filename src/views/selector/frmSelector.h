#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/filter_target.h"
#include "core/handover/page_screen.h"
#include "core/screen.h"

class QLabel;
class QProgressBar;
class QTabBar;
class QToolBar;
class QToolButton;

namespace core {
class ContactTools;
class ListPresenter;
} // namespace core

namespace widgets {
class AlphabetTabs;
class HeadingGrid;
} // namespace widgets

namespace views {

class QuickCombos;
class SelectorPage;

/// The standing list of all contacts, by letters and in several orders, beside a page that shows the contact
/// chosen. The other screens that need a contact use the one that was last chosen here.
class frmSelector : public core::Screen,
                    public core::ContactScreen,
                    public core::FilterTarget,
                    public core::PageScreen {
    Q_OBJECT

public:
    explicit frmSelector(core::Context& context, QWidget* parent = nullptr);
    ~frmSelector() override;

    void load() override;
    void bookChanged() override;
    /// Chooses it in the list, which shows all contacts by name when it does not hold it.
    bool showContact(qint64 id) override;
    /// The clause of a filter, without its leading word.
    void applyFilter(const QString& whereClause) override;
    /// "Detail", "Brief", "Personal", "Business", "Full", or "Search"; with the contact last chosen.
    void openPage(const QString& page) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void layOut();
    QWidget* layOutTools();
    QWidget* layOutOrder();
    QWidget* layOutList();
    void connectControls();

    void list(); ///< the routine of all tabs, combos and filters
    void fitColumns();
    void listAgain();
    void listAll();
    void narrow(const QString& clause);
    void setAllChoices();
    void rowChanged(int row);
    void showState();
    void rememberPage();
    void forget(qint64 id);
    void setSimple(bool simple);
    void setInFull(bool inFull);

    QString m_clause; ///< of the quick combos or of a filter, without its leading word
    bool m_simple = false;

    core::ContactTools* m_tools;
    QTabBar* SSActiveTabs1;
    widgets::AlphabetTabs* Tabs1;
    QuickCombos* Frame1;
    widgets::HeadingGrid* FG1;
    core::ListPresenter* m_list;
    SelectorPage* m_page;
    QToolBar* m_bar = nullptr;
    QWidget* m_order = nullptr; ///< tabs and combos
    QWidget* m_listSide = nullptr;
    QLabel* m_sorted; ///< by what the list is sorted
    QLabel* m_count;
    QToolButton* m_showAll;
    QProgressBar* PG1;
    QToolButton* CmdFilter;
    QToolButton* CmdView;
};

} // namespace views
