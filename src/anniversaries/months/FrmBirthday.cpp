#include "anniversaries/months/FrmBirthday.h"

#include "anniversaries/months/month_list_sql.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/list_presenter.h"
#include "jet/date_text.h"
#include "output/grid/list_print.h"
#include "platform/clock.h"
#include "widgets/heading_grid.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"

#include <QAction>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr int kMonths = 12;
constexpr QStringView kFonts[] = {u"Small Fonts", u"Verdana"};
constexpr core::Tool kTools[] = {
    {.id = u"Letter Record",
        .icon = u"letter",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Letter Record"),
        .task = core::ToolTask::Open,
        .form = u"FrmLetterRecord",
        .places = core::Tool::Labelled},
    {.id = u"Small Fonts",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Small Fonts"),
        .places = core::Tool::Menu},
    {.id = u"Verdana",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Verdana"),
        .places = core::Tool::Menu},
};

} // namespace

FrmBirthday::FrmBirthday(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , Grid1(new widgets::HeadingGrid)
    , SSTab(new QTabBar)
    , m_count(new QLabel)
    , m_tools(new core::ToolSet(context.screens, {kTools, "anniversaries"}, this))
    , m_listTools(new output::ListTools(context, Grid1, this, tr("Birthdays")))
    , m_contactTools(new core::ContactTools(context, core::hitTools(),
          {.callerForm = u"FrmBirthday"_s,
              .chosen =
                  [this] {
                      const qint64 id = Grid1->currentKey();
                      return core::ChosenContact{id, id};
                  }},
          this))
    , m_list(new core::ListPresenter(context.data, Grid1, this))
{
    setWindowTitle(tr("Birthday Viewer"));
    layOut();
    connectFonts();
    connect(SSTab, &QTabBar::currentChanged, this, &FrmBirthday::showMonth);
    connect(m_list, &core::ListPresenter::currentChanged, this, &FrmBirthday::showPosition);
    connect(Grid1, &widgets::HeadingGrid::chosen, m_contactTools->action(u"FullView"), &QAction::trigger);
    connect(Grid1, &QWidget::customContextMenuRequested, this, &FrmBirthday::popUpMenu);
    setFocusProxy(Grid1);
}

void FrmBirthday::layOut()
{
    QToolBar* bar = m_listTools->makeToolBar(this);
    m_tools->addTo(bar);
    auto* texts = new QToolButton;
    texts->setObjectName(u"TextSize"_s);
    texts->setText(tr("Texts"));
    texts->setToolTip(tr("How large the texts of the list are, and their font"));
    texts->setPopupMode(QToolButton::InstantPopup);
    auto* sizes = new QMenu(texts);
    m_listTools->addTo(sizes, {u"ListPrint"_s, u"Exports"_s});
    sizes->addSeparator();
    m_tools->addTo(sizes);
    texts->setMenu(sizes);
    bar->addWidget(texts);

    SSTab->setObjectName(u"SSTab"_s);
    SSTab->setAccessibleName(tr("Months"));
    SSTab->setDrawBase(false);
    SSTab->setExpanding(false);
    for (int month = 1; month <= kMonths; ++month)
        SSTab->addTab(QLocale(QLocale::English).monthName(month));
    SSTab->addTab(tr("All"));
    Grid1->setObjectName(u"Grid1"_s);
    Grid1->setAccessibleName(tr("People born in the month"));
    Grid1->setContextMenuPolicy(Qt::CustomContextMenu);
    Grid1->setEmptyText(tr("Nobody of the address book was born in this month"));
    m_count->setObjectName(u"lblCount"_s);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    auto* SSCommand1 = new QPushButton(tr("&Export..."));
    SSCommand1->setObjectName(u"SSCommand1"_s);
    SSCommand1->setAutoDefault(false);
    SSCommand1->setToolTip(tr("Save the list as an Excel, CSV, text or HTML file"));
    widgets::setIcon(SSCommand1, u"export");
    connect(SSCommand1, &QPushButton::clicked, m_listTools->action(u"Exports"), &QAction::trigger);

    auto* foot = new QHBoxLayout;
    foot->addWidget(m_count);
    foot->addStretch(1);
    foot->addWidget(SSCommand1);
    auto* page = new QVBoxLayout;
    page->setContentsMargins(8, 6, 8, 8);
    page->setSpacing(6);
    page->addWidget(SSTab);
    page->addWidget(Grid1, 1);
    page->addLayout(foot);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(page, 1);
}

// Where there is no room for all months they have short names.
void FrmBirthday::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    const auto nameMonths = [this](QLocale::FormatType format) {
        for (int month = 1; month <= kMonths; ++month)
            SSTab->setTabText(month - 1, QLocale(QLocale::English).monthName(month, format));
    };
    nameMonths(QLocale::LongFormat);
    int wanted = 0;
    for (int tab = 0; tab < SSTab->count(); ++tab)
        wanted += SSTab->tabRect(tab).width();
    if (wanted > SSTab->parentWidget()->contentsRect().width() - 16)
        nameMonths(QLocale::ShortFormat);
}

// A font that this computer has not would look like any other.
void FrmBirthday::connectFonts()
{
    for (const QStringView family : kFonts) {
        QAction* tool = m_tools->action(family);
        tool->setCheckable(true);
        if (!QFontDatabase::hasFamily(family.toString())) {
            tool->setEnabled(false);
            tool->setToolTip(tr("This computer has no font of that name"));
        }
        connect(tool, &QAction::triggered, this, [this, family](bool on) {
            for (const QStringView each : kFonts)
                m_tools->action(each)->setChecked(on && each == family);
            QFont font = Grid1->font();
            font.setFamily(on ? family.toString() : this->font().family());
            Grid1->setFont(font);
        });
    }
}

void FrmBirthday::load()
{
    setFrameTitle(tr("Birthday Viewer"));
    Grid1->setHeadings(monthListColumns().join(u'|'), monthListColumns());
    for (const QString& column : monthListDates())
        Grid1->showAs(
            column, [](const QVariant& date) { return jet::formatDate(date.toDate(), u"mmm-dd-yyyy"); });
    SSTab->setCurrentIndex(context().services.clock.today().month() - 1);
    showMonth();
}

void FrmBirthday::bookChanged()
{
    m_list->refresh();
    showPosition();
}

void FrmBirthday::showMonth()
{
    m_list->open(monthListSql(SSTab->currentIndex() + 1));
    showPosition();
}

void FrmBirthday::showPosition()
{
    setPosition(m_list->position());
    m_count->setText(tr("%1 people").arg(Grid1->recordCount()));
}

void FrmBirthday::popUpMenu(const QPoint& at)
{
    if (Grid1->currentKey() == 0)
        return;
    QMenu menu;
    m_contactTools->addTo(&menu);
    menu.addSeparator();
    m_listTools->addTo(&menu);
    menu.exec(Grid1->viewport()->mapToGlobal(at));
}

} // namespace anniversaries
