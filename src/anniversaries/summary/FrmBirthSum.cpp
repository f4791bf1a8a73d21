#include "anniversaries/summary/FrmBirthSum.h"

#include "core/tool_set.h"
#include "output/grid/list_print.h"
#include "output/print_chart.h"
#include "widgets/bar_chart.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QLabel>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr core::Tool kTools[] = {
    {.id = u"PrintChart",
        .icon = u"picture",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Print the bars"),
        .places = core::Tool::Labelled},
};

} // namespace

FrmBirthSum::FrmBirthSum(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tabs(new QTabBar)
    , m_total(new QLabel)
    , Grid1(new widgets::HeadingGrid)
    , m_chart(new widgets::BarChart)
    , m_tools(new core::ToolSet(context.screens, {kTools, "anniversaries"}, this))
    , m_listTools(new output::ListTools(context, Grid1, this, tr("Birthdays Summary")))
{
    setWindowTitle(tr("Birthdays Summary"));
    layOut();
    connect(m_tabs, &QTabBar::currentChanged, this, &FrmBirthSum::showCounts);
    connect(m_tools->action(u"PrintChart"), &QAction::triggered, this, &FrmBirthSum::printChart);
    connect(Grid1, &widgets::HeadingGrid::currentRowChanged, m_chart, &widgets::BarChart::setCurrent);
    connect(m_chart, &widgets::BarChart::chosen, Grid1, &widgets::HeadingGrid::setCurrentRow);
    setFocusProxy(Grid1);
}

void FrmBirthSum::layOut()
{
    m_tabs->setObjectName(u"SSActiveTabs1"_s);
    m_tabs->setAccessibleName(tr("By what birthdays are counted"));
    m_tabs->addTab(tr("SunSign-Wise Summary"));
    m_tabs->addTab(tr("Month-Wise Summary"));
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_total->setObjectName(u"lblTotal"_s);
    m_total->setTextFormat(Qt::PlainText);
    QFont bold = m_total->font();
    bold.setBold(true);
    m_total->setFont(bold);
    Grid1->setObjectName(u"Grid1"_s);
    Grid1->setAccessibleName(tr("Birthdays counted"));
    Grid1->setEmptyText(tr("No birthday is known"));
    Grid1->letColumnsGiveWay();
    m_chart->setObjectName(u"Chart"_s);
    m_chart->setAccessibleName(tr("Birthdays as bars"));
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(Grid1);
    splitter->addWidget(m_chart);
    splitter->setSizes({300, 500});
    auto* page = new QVBoxLayout;
    page->setContentsMargins(8, 6, 8, 8);
    page->setSpacing(6);
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

void FrmBirthSum::load()
{
    setFrameTitle(tr("Birthdays Summary"));
    showCounts();
}

void FrmBirthSum::bookChanged()
{
    showCounts();
}

CountBy FrmBirthSum::shownBy() const
{
    return m_tabs->currentIndex() == 0 ? CountBy::SunSign : CountBy::Month;
}

void FrmBirthSum::showCounts()
{
    const CountBy by = shownBy();
    const int total = int(context().data.openRecordset(totalSql(by)).number(u"mda"));
    QList<QStringList> rows;
    QList<widgets::BarChart::Bar> bars;
    for (const BirthCount& each : birthCounts(context().data.openRecordset(countsSql(by)), by, total)) {
        rows << QStringList{each.name, QString::number(each.count), each.percent};
        bars << widgets::BarChart::Bar{each.name, each.count};
    }
    Grid1->setHeadings(countsHeadings(by), {{}, u"Name"_s, u"Count"_s, u"Percent"_s});
    Grid1->setRows(rows, {u"Name"_s, u"Count"_s, u"Percent"_s});
    m_chart->setBars(bars);
    m_total->setText(u"Summary  :  "_s + QString::number(total) + u"   Birthdays   "_s);
}

void FrmBirthSum::printChart()
{
    if (!output::printChart(
            context().services.printer, *m_chart, m_tabs->tabText(m_tabs->currentIndex()), this))
        warn(tr("The bars could not be printed."));
}

} // namespace anniversaries
