#include "output/counts/count_screen.h"

#include "core/tool_set.h"
#include "output/grid/list_print.h"
#include "platform/printer.h"
#include "widgets/bar_chart.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QLabel>
#include <QPainter>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr core::Tool kTools[] = {
    {.id = u"PrintChart",
        .icon = u"picture",
        .text = QT_TRANSLATE_NOOP("output", "Print the bars"),
        .places = core::Tool::Labelled},
};

constexpr qsizetype kMostBars = 24; ///< more can not be told from one another

} // namespace

CountScreen::CountScreen(core::Context& context, const Texts& texts, QWidget* parent)
    : Screen(context, parent)
    , m_tabs(new QTabBar)
    , m_total(new QLabel)
    , Grid1(new widgets::HeadingGrid)
    , m_chart(new widgets::BarChart)
    , m_tools(new core::ToolSet(context.screens, {kTools, "output"}, this))
    , m_listTools(new ListTools(context, Grid1, this, texts.title))
{
    setWindowTitle(texts.title);
    layOut(texts);
    connect(m_tabs, &QTabBar::currentChanged, this, &CountScreen::showCounts);
    connect(m_tools->action(u"PrintChart"), &QAction::triggered, this, &CountScreen::printChart);
    connect(Grid1, &widgets::HeadingGrid::currentRowChanged, m_chart, &widgets::BarChart::setCurrent);
    connect(m_chart, &widgets::BarChart::chosen, Grid1, &widgets::HeadingGrid::setCurrentRow);
    setFocusProxy(Grid1);
}

void CountScreen::layOut(const Texts& texts)
{
    m_tabs->setObjectName(u"SSActiveTabs1"_s);
    m_tabs->setAccessibleName(texts.tabsName);
    for (const QString& tab : texts.tabs)
        m_tabs->addTab(tab);
    m_tabs->setDrawBase(false);
    m_tabs->setExpanding(false);
    m_total->setObjectName(u"lblTotal"_s);
    m_total->setTextFormat(Qt::PlainText);
    QFont bold = m_total->font();
    bold.setBold(true);
    m_total->setFont(bold);
    Grid1->setObjectName(u"Grid1"_s);
    Grid1->setAccessibleName(texts.gridName);
    Grid1->setEmptyText(texts.empty);
    Grid1->letColumnsGiveWay();
    m_chart->setObjectName(u"Chart"_s);
    m_chart->setAccessibleName(texts.chartName);
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

void CountScreen::load()
{
    setFrameTitle(windowTitle());
    showCounts();
}

int CountScreen::tab() const
{
    return m_tabs->currentIndex();
}

void CountScreen::showRows(QStringView headings, const QList<Row>& rows, const QString& total)
{
    QList<QStringList> texts;
    QList<widgets::BarChart::Bar> bars;
    for (const Row& row : rows) {
        texts << QStringList{row.name, QString::number(row.count), row.percent};
        if (bars.size() < kMostBars)
            bars << widgets::BarChart::Bar{row.name, row.count};
    }
    Grid1->setHeadings(headings, {{}, u"Name"_s, u"Count"_s, u"Percent"_s});
    Grid1->setRows(texts, {u"Name"_s, u"Count"_s, u"Percent"_s});
    m_chart->setBars(bars);
    m_total->setText(total);
}

void CountScreen::printChart()
{
    constexpr double kWide = 11906; // A4, in twips
    constexpr double kHigh = 16838;
    constexpr double kMargin = 1134;
    const QString title = m_tabs->tabText(tab());
    const platform::PrintJob job{
        title, kWide, kHigh, 1, [this, title](QPainter& painter, int) {
            const QRectF page = QRectF(0, 0, kWide, kHigh).adjusted(kMargin, kMargin, -kMargin, -kMargin);
            QFont font = painter.font();
            font.setPixelSize(320);
            painter.setFont(font);
            painter.drawText(page, Qt::AlignLeft | Qt::AlignTop, title);
            font.setPixelSize(200);
            painter.setFont(font);
            m_chart->print(painter, page.adjusted(0, 600, 0, -page.height() / 2));
        }};
    if (context().services.printer.print(job, this) == platform::Printed::Failed)
        warn(tr("The bars could not be printed."));
}

} // namespace output
