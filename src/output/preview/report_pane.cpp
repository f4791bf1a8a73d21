#include "output/preview/report_pane.h"

#include "core/progress.h"
#include "output/preview/page_list.h"
#include "output/preview/page_view.h"
#include "output/preview/report_pictures.h"
#include "output/preview/save_report_file.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSpinBox>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

using enum core::Tool::Place;
constexpr auto kScreen = core::Tool::KeyIn::Screen;

constexpr core::Tool kTools[] = {
    {.id = u"Print",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("output", "Print"),
        .places = Labelled,
        .key = int(Qt::CTRL) | int(Qt::Key_P),
        .keyIn = kScreen},
    {.id = u"SaveReportAs",
        .icon = u"save",
        .text = QT_TRANSLATE_NOOP("output", "Save Report As"),
        .places = Labelled},
    {.id = u"FirstPage",
        .icon = u"arrow-up",
        .text = QT_TRANSLATE_NOOP("output", "First page"),
        .places = IconOnly | GroupStart},
    {.id = u"PreviousPage",
        .icon = u"previous",
        .text = QT_TRANSLATE_NOOP("output", "Previous page"),
        .places = IconOnly},
    {.id = u"NextPage",
        .icon = u"next",
        .text = QT_TRANSLATE_NOOP("output", "Next page"),
        .places = IconOnly},
    {.id = u"LastPage",
        .icon = u"arrow-down",
        .text = QT_TRANSLATE_NOOP("output", "Last page"),
        .places = IconOnly},
    {.id = u"StopPages",
        .icon = u"cancel",
        .text = QT_TRANSLATE_NOOP("output", "Stop"),
        .toolTip = QT_TRANSLATE_NOOP("output", "Stop making pages"),
        .places = IconOnly},
    {.id = u"ZoomOut",
        .icon = u"zoom-out",
        .text = QT_TRANSLATE_NOOP("output", "Smaller"),
        .places = IconOnly,
        .key = int(Qt::CTRL) | int(Qt::Key_Minus),
        .keyIn = kScreen},
    {.id = u"ZoomIn",
        .icon = u"zoom-in",
        .text = QT_TRANSLATE_NOOP("output", "Larger"),
        .places = IconOnly,
        .key = int(Qt::CTRL) | int(Qt::Key_Plus),
        .keyIn = kScreen},
    {.id = u"FitWidth",
        .icon = u"fit-width",
        .text = QT_TRANSLATE_NOOP("output", "As wide as the window"),
        .places = IconOnly,
        .key = int(Qt::CTRL) | int(Qt::Key_0),
        .keyIn = kScreen},
    {.id = u"FitPage",
        .icon = u"fit-page",
        .text = QT_TRANSLATE_NOOP("output", "The whole page"),
        .places = IconOnly},
    {.id = u"FindInReport",
        .icon = u"search",
        .text = QT_TRANSLATE_NOOP("output", "Find the next place"),
        .places = IconOnly | GroupStart,
        .key = Qt::Key_F3,
        .keyIn = kScreen},
};

struct SaveRow {
    QStringView name;
    const char* text;
    ReportFormat format;
};
constexpr SaveRow kSaves[] = {
    {u"SaveHtml", QT_TRANSLATE_NOOP("output", "Save As HTML"), ReportFormat::Html},
    {u"SavePdf", QT_TRANSLATE_NOOP("output", "Save As PDF"), ReportFormat::Pdf},
    {u"SaveRtf", QT_TRANSLATE_NOOP("output", "Save As RTF"), ReportFormat::Rtf},
};

constexpr int kPagesAStep = 50; ///< milliseconds between two looks at the stop button

/// Those that stand below the pages.
const QStringList kFootTools{u"ZoomOut"_s, u"ZoomIn"_s, u"FitWidth"_s, u"FitPage"_s, u"FindInReport"_s};

} // namespace

ReportPane::ReportPane(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_tools(new core::ToolSet(context.screens, {kTools, "output"}, this))
    , arV(new PageView(bookPictures(context.services.drive)))
    , m_bar(new QToolBar)
    , m_foot(new QToolBar)
    , m_page(new QSpinBox)
    , m_pageCount(new QLabel)
    , m_find(new QLineEdit)
    , m_notFound(new QLabel(tr("Not found")))
{
    m_bar->setObjectName(u"ReportTools"_s);
    m_foot->setObjectName(u"ReportLook"_s);
    arV->setObjectName(u"arV"_s);
    fillBar();
    fillFoot();
    auto* list = new PageList(arV);
    list->setObjectName(u"PageList"_s);
    auto* pages = new QHBoxLayout;
    pages->setSpacing(0);
    pages->addWidget(list);
    pages->addWidget(arV, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_bar);
    layout->addLayout(pages, 1);
    layout->addWidget(m_foot);
    setFocusProxy(arV);
    connectTools();
    followPages();
}

void ReportPane::fillBar()
{
    m_bar->setIconSize({20, 20});
    m_tools->addTo(m_bar, kFootTools);
    widgets::letTextsGiveWay(m_bar);
    m_page->setObjectName(u"PageNumber"_s);
    m_page->setAccessibleName(tr("Page"));
    m_page->findChild<QLineEdit*>()->setAccessibleName(tr("Page"));
    m_page->setToolTip(tr("Page"));
    m_page->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_page->setAlignment(Qt::AlignRight);
    m_page->setFixedWidth(m_page->fontMetrics().horizontalAdvance(u"000000"_s) + 12);
    m_page->setKeyboardTracking(false);
    m_pageCount->setObjectName(u"PageCount"_s);
    m_pageCount->setMinimumWidth(m_pageCount->fontMetrics().horizontalAdvance(u" of 00000… "_s));
    QAction* next = m_tools->action(u"NextPage");
    m_bar->insertWidget(next, m_page);
    m_bar->insertWidget(next, m_pageCount);
    addSaveMenu();
}

void ReportPane::fillFoot()
{
    m_foot->setIconSize({18, 18});
    QStringList others;
    for (const core::Tool& tool : kTools) {
        if (!kFootTools.contains(tool.id))
            others << tool.id.toString();
    }
    m_tools->addTo(m_foot, others);
    m_find->setObjectName(u"FindText"_s);
    m_find->setAccessibleName(tr("Find in the report"));
    m_find->setPlaceholderText(tr("Find"));
    m_find->setClearButtonEnabled(true);
    m_find->setMinimumWidth(90);
    m_find->setMaximumWidth(220);
    m_foot->insertWidget(m_tools->action(u"FindInReport"), m_find);
    m_notFound->setObjectName(u"NotFound"_s);
    QPalette colours = m_notFound->palette();
    colours.setColor(QPalette::WindowText, widgets::warningColor());
    m_notFound->setPalette(colours);
    m_foot->addWidget(m_notFound)->setVisible(false);
}

void ReportPane::addSaveMenu()
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"SaveReportMenu"_s);
    for (const SaveRow& row : kSaves) {
        QAction* action = menu->addAction(QCoreApplication::translate("output", row.text));
        action->setObjectName(row.name.toString());
        connect(action, &QAction::triggered, this, [this, &row] { save(row.format); });
    }
    menu->addSeparator();
    QAction* exit = menu->addAction(tr("Exit"));
    exit->setObjectName(u"ExitReport"_s);
    connect(exit, &QAction::triggered, this, &ReportPane::exitRequested);
    QAction* save = m_tools->action(u"SaveReportAs");
    save->setMenu(menu);
    if (auto* button = qobject_cast<QToolButton*>(m_bar->widgetForAction(save)))
        button->setPopupMode(QToolButton::InstantPopup);
}

void ReportPane::connectTools()
{
    const auto on = [this](QStringView id, auto work) {
        connect(m_tools->action(id), &QAction::triggered, this, std::move(work));
    };
    on(u"Print", [this] { print(); });
    on(u"FirstPage", [this] { arV->goToPage(1); });
    on(u"PreviousPage", [this] { arV->goToPage(arV->currentPage() - 1); });
    on(u"NextPage", [this] { arV->goToPage(arV->currentPage() + 1); });
    on(u"LastPage", [this] { arV->goToPage(arV->pageCount()); });
    on(u"StopPages", [this] { arV->stopCounting(); });
    on(u"ZoomOut", [this] { arV->zoomBy(1 / 1.2); });
    on(u"ZoomIn", [this] { arV->zoomBy(1.2); });
    on(u"FitWidth", [this] { arV->setFit(PageView::Fit::Width); });
    on(u"FitPage", [this] { arV->setFit(PageView::Fit::Page); });
    on(u"FindInReport", [this] { arV->findNext(); });
    connect(m_page, &QSpinBox::valueChanged, arV, &PageView::goToPage);
    connect(m_find, &QLineEdit::textChanged, arV, &PageView::find);
    connect(m_find, &QLineEdit::returnPressed, arV, &PageView::findNext);
    connect(
        m_find, &QLineEdit::textChanged, this, [this] { m_foot->actions().constLast()->setVisible(false); });
    connect(arV, &PageView::searched, this,
        [this](bool found) { m_foot->actions().constLast()->setVisible(!found); });
    connect(arV, &PageView::pagesChanged, this, &ReportPane::followPages);
    connect(arV, &PageView::currentPageChanged, this, &ReportPane::followPages);
}

void ReportPane::followPages()
{
    const QSignalBlocker quiet(m_page);
    const int page = arV->currentPage();
    const int pages = arV->pageCount();
    m_page->setRange(pages > 0 ? 1 : 0, pages);
    m_page->setValue(page);
    m_pageCount->setText(arV->isCounting() ? tr(" of %1…").arg(pages) : tr(" of %1").arg(pages));
    for (const QStringView id :
        {u"Print", u"SaveReportAs", u"ZoomIn", u"ZoomOut", u"FitWidth", u"FitPage", u"FindInReport"})
        m_tools->action(id)->setEnabled(pages > 0);
    m_page->setEnabled(pages > 0);
    m_find->setEnabled(pages > 0);
    m_tools->action(u"FirstPage")->setEnabled(page > 1);
    m_tools->action(u"PreviousPage")->setEnabled(page > 1);
    m_tools->action(u"NextPage")->setEnabled(page < pages);
    m_tools->action(u"LastPage")->setEnabled(page < pages);
    m_tools->action(u"StopPages")->setEnabled(arV->isCounting());
}

void ReportPane::show(const Report& report, int page)
{
    m_find->clear();
    arV->show(report, page);
}

void ReportPane::clear()
{
    m_find->clear();
    arV->clear();
}

void ReportPane::print()
{
    const Report& report = *arV->report();
    ReportPager pager(report);
    {
        core::Progress progress(u"pagesProgress"_s, tr("Print"),
            tr("Making the pages of %1").arg(report.title), report.source->count(), window());
        while (pager.step(kPagesAStep)) {
            if (!progress.advance(pager.rowsDone()))
                return;
        }
    }
    const PagePainter painter(pager, arV->pictures());
    const platform::PrintJob job{.title = report.title,
        .paperWidth = report.paper.width,
        .paperHeight = report.paper.height,
        .pages = pager.pageCount(),
        .paint = [&](QPainter& paper, int page) {
            painter.paint(paper, pager.page(page), {.pages = pager.pageCount(), .found = {}});
        }};
    if (m_context.services.printer.print(job, window()) == platform::Printed::Failed)
        m_context.services.boxes.warning(
            tr("%1 could not be printed. The printer took no page.").arg(report.title),
            m_context.shared.AppTitle);
}

void ReportPane::save(ReportFormat format)
{
    saveReportFile(m_context, *arV->report(), format, arV->pictures(), window());
}

} // namespace output
