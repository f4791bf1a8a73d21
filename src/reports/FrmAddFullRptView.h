#pragma once

#include "core/handover/filter_target.h"
#include "core/handover/page_screen.h"
#include "core/handover/report_screen.h"
#include "core/screen.h"
#include "reports/address_layouts.h"

#include <optional>

class QButtonGroup;
class QComboBox;
class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace core {
class ToolSet;
}
namespace output {
class ReportPane;
}

namespace reports {

/// Previews the address book in one of six layouts, in colours, filtered, from one of four address books,
/// and the lists that are printed elsewhere when the program for them is there.
class FrmAddFullRptView : public core::Screen,
                          public core::FilterTarget,
                          public core::PageScreen,
                          public core::ReportScreen {
    Q_OBJECT

public:
    explicit FrmAddFullRptView(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    void bookChanged() override;
    void applyFilter(const QString& whereClause) override;
    /// The name of a list, such as "Pname".
    void openPage(const QString& page) override { showReport(page); }
    bool showReport(const QString& name) override;
    void showContactReport(const QString& name) override;

private:
    enum class Source { OwnBook, MailClient, AddressBook, CardFolder };

    QWidget* layOutChoices();
    void layOutLayouts(QVBoxLayout* column);
    void layOutMore(QVBoxLayout* column);
    void layOutLooks(QVBoxLayout* column);
    void layOutFoot(QVBoxLayout* column);
    void connectTools();
    void fillColors();

    void chooseLayout(Layout layout);
    void chooseSource(Source source);
    void chooseColor();
    void moreReports();
    void askFilter(QStringView form);
    void followFilter();

    void showAgain();
    void showLayout();
    void showSource();
    void showList(const QString& name);
    void show(const output::Report& report);
    using Screen::show;
    void followPages();
    ReportHead head(const QString& title) const;
    std::shared_ptr<const output::ReportSource> rowsOf(const QString& sql) const;
    std::shared_ptr<const output::ReportSource> otherRows(Layout layout) const;
    QString sourceName() const;

    std::optional<Layout> m_layout;
    QString m_list; ///< the list that is shown, when it is no layout
    QString m_contact; ///< the one name that is shown
    QString m_filter; ///< where clause, with its leading word
    Source m_source = Source::OwnBook;
    output::SectionColors m_colors;
    int m_page = 1; ///< to begin at
    bool m_isFollowing = false; ///< the book, without being asked

    core::ToolSet* m_tools;
    output::ReportPane* m_pane;
    QButtonGroup* m_options;
    QRadioButton* Option1;
    QListWidget* MoreReports;
    QComboBox* CmbColor;
    QPushButton* CmdView;
    QPushButton* CmdDatabase;
    QLabel* lblFilter;
    QProgressBar* ProgressBar1;
    QPushButton* CmdHelp;
};

} // namespace reports
