#include "letters/record/FrmLettSum.h"

#include "core/tool_set.h"
#include "letters/record/record_statements.h"
#include "output/grid/list_print.h"
#include "output/print_chart.h"
#include "widgets/bar_chart.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr core::Tool kTools[] = {
    {.id = u"PrintChart",
        .icon = u"picture",
        .text = QT_TRANSLATE_NOOP("letters", "Print the bars"),
        .places = core::Tool::Labelled},
};

/// In the order of LetterCount.
constexpr const char* kTitles[] = {
    QT_TRANSLATE_NOOP("letters", "Sent and received"),
    QT_TRANSLATE_NOOP("letters", "By type"),
    QT_TRANSLATE_NOOP("letters", "By category"),
    QT_TRANSLATE_NOOP("letters", "By month"),
    QT_TRANSLATE_NOOP("letters", "By person"),
};

constexpr int kMostBars = 24; ///< more can not be told from one another

} // namespace

FrmLettSum::FrmLettSum(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tabs(new QTabBar)
    , m_total(new QLabel)
    , m_grid(new widgets::HeadingGrid)
    , m_chart(new widgets::BarChart)
    , m_tools(new core::ToolSet(context.screens, {kTools, "letters"}, this))
    , m_listTools(new output::ListTools(context, m_grid, this, tr("Letter Summary")))
{
    setWindowTitle(tr("Letter Summary"));
    layOut();
    connect(m_tabs, &QTabBar::currentChanged, this, &FrmLettSum::showCounts);
    connect(m_tools->action(u"PrintChart"), &QAction::triggered, this, &FrmLettSum::printChart);
    connect(m_grid, &widgets::HeadingGrid::currentRowChanged, m_chart, &widgets::BarChart::setCurrent);
    connect(m_chart, &widgets::BarChart::chosen, m_grid, &widgets::HeadingGrid::setCurrentRow);
    setFocusProxy(m_grid);
}

void FrmLettSum::layOut()
{
    m_tabs->setObjectName(u"SSActiveTabs1"_s);
    m_tabs->setAccessibleName(tr("By what letters are counted"));
    for (const char* title : kTitles)
        m_tabs->addTab(QCoreApplication::translate("letters", title));
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_total->setObjectName(u"lblTotal"_s);
    m_total->setTextFormat(Qt::PlainText);
    m_grid->setObjectName(u"Grid1"_s);
    m_grid->setAccessibleName(tr("Letters counted"));
    m_grid->setEmptyText(tr("No letter was kept yet"));
    m_grid->letColumnsGiveWay();
    m_chart->setObjectName(u"Chart"_s);
    m_chart->setAccessibleName(tr("Letters as bars"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_grid);
    splitter->addWidget(m_chart);
    splitter->setSizes({320, 480});
    auto* page = new QVBoxLayout;
    page->setContentsMargins(8, 6, 8, 8);
    page->addWidget(m_tabs);
    page->addWidget(m_total);
    page->addWidget(splitter, 1);
    QToolBar* bar = m_listTools->makeToolBar(this);
    m_tools->addTo(bar);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(page, 1);
}

void FrmLettSum::load()
{
    setFrameTitle(windowTitle());
    showCounts();
}

void FrmLettSum::bookChanged()
{
    showCounts();
}

void FrmLettSum::showCounts()
{
    const auto by = static_cast<LetterCount>(m_tabs->currentIndex());
    const jet::Recordset counts = context().data.openRecordset(letterCountsSql(by));
    int total = 0;
    for (int row = 0; row < counts.count(); ++row)
        total += counts.valueAt(row, 1).toInt();
    QList<QStringList> rows;
    QList<widgets::BarChart::Bar> bars;
    for (int row = 0; row < counts.count(); ++row) {
        const int count = counts.valueAt(row, 1).toInt();
        const QString name = counts.textAt(row, 0).simplified();
        const QString shown = name.isEmpty() ? tr("(none)") : name;
        rows << QStringList{shown, QString::number(count), QString::number(100.0 * count / total, 'f', 1)};
        if (bars.size() < kMostBars)
            bars << widgets::BarChart::Bar{shown, count};
    }
    m_grid->setHeadings(u"|Letters                          |Count    |Percent    ",
        {{}, u"Name"_s, u"Count"_s, u"Percent"_s});
    m_grid->setRows(rows, {u"Name"_s, u"Count"_s, u"Percent"_s});
    m_chart->setBars(bars);
    m_total->setText(total == 1 ? tr("1 letter") : tr("%1 letters").arg(total));
}

void FrmLettSum::printChart()
{
    if (!output::printChart(
            context().services.printer, *m_chart, m_tabs->tabText(m_tabs->currentIndex()), this))
        warn(tr("The bars could not be printed."));
}

} // namespace letters
