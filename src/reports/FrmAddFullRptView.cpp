#include "reports/FrmAddFullRptView.h"

#include "core/date_patterns.h"
#include "core/progress.h"
#include "core/report_request.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sibling_start.h"
#include "core/tool_set.h"
#include "jet/date_text.h"
#include "output/preview/page_view.h"
#include "output/preview/report_pane.h"
#include "platform/card_folder.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/shell.h"
#include "platform/special_folders.h"
#include "reports/family_rows.h"
#include "reports/list_layouts.h"
#include "reports/other_books.h"
#include "widgets/theme.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

using enum core::Tool::Place;

constexpr int kChoicesWidth = 216;
constexpr QStringView kOwnName = u"FrmAddFullRptView";

constexpr core::Tool kTools[] = {
    {.id = u"CommonFilter",
        .icon = u"filter",
        .text = QT_TRANSLATE_NOOP("reports", "Common filter"),
        .form = u"frmFilter",
        .places = FilterMenu},
    {.id = u"TabFilter",
        .icon = u"category",
        .text = QT_TRANSLATE_NOOP("reports", "Filter by tabs"),
        .form = u"frmTabFilter",
        .places = FilterMenu},
    {.id = u"NoFilter",
        .icon = u"restore",
        .text = QT_TRANSLATE_NOOP("reports", "No filter"),
        .places = FilterMenu | GroupStart},
    {.id = u"UseOrvaneContactDatabase",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("reports", "Orvane Contacts"),
        .places = Menu},
    {.id = u"UseMSOutlookDatabase",
        .icon = u"envelope",
        .text = QT_TRANSLATE_NOOP("reports", "Contacts of the mail program"),
        .places = Menu},
    {.id = u"UseMSOutlookExpressDatabase",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("reports", "Address book of the second mail program"),
        .places = Menu},
    {.id = u"UseVCFFile",
        .icon = u"folder",
        .text = QT_TRANSLATE_NOOP("reports", "Folder of vCard files"),
        .places = Menu},
};

/// In the order of Source.
constexpr QStringView kSources[]
    = {u"UseOrvaneContactDatabase", u"UseMSOutlookDatabase", u"UseMSOutlookExpressDatabase", u"UseVCFFile"};

/// The address book under its names, as requests have them; the others are lists.
struct BookName {
    QStringView name;
    Layout layout;
};
constexpr BookName kBookNames[] = {
    {u"Address Book", Layout::FullByFirst},
    {u"Address Book- Full", Layout::FullByFirst},
    {u"Address Book-Short", Layout::ShortByFirst},
};

QString ownBookSql()
{
    return u"select * from cnt_main order by name"_s;
}

QString oneNameSql(const QString& name)
{
    return u"SELECT * FROM [cnt_main] WHERE name = '"_s + name + u"' "_s;
}

QPushButton* menuButton(const QString& name, const QString& text, QStringView icon, QMenu* menu)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    widgets::setIcon(button, icon);
    button->setMenu(menu);
    return button;
}

} // namespace

FrmAddFullRptView::FrmAddFullRptView(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "reports"}, this))
    , m_pane(new output::ReportPane(context))
    , m_options(new QButtonGroup(this))
    , Option1(new QRadioButton(tr("&More Reports")))
    , MoreReports(new QListWidget)
    , CmbColor(new QComboBox)
    , CmdView(menuButton(
          u"CmdView"_s, tr("&Filter"), u"filter", m_tools->makeMenu(u"FilterMenu"_s, this, FilterMenu)))
    , CmdDatabase(
          menuButton(u"CmdDatabase"_s, tr("&Address book"), u"persons", m_tools->makeMenu(u"MenuDb"_s, this)))
    , lblFilter(new QLabel)
    , ProgressBar1(new QProgressBar)
    , CmdHelp(new QPushButton(tr("&Help")))
{
    setWindowTitle(tr("Reports - Addresses"));
    auto* choices = new QScrollArea;
    choices->setWidget(layOutChoices());
    choices->setWidgetResizable(true);
    choices->setFrameShape(QFrame::NoFrame);
    choices->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    choices->setFixedWidth(kChoicesWidth);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(choices);
    layout->addWidget(m_pane, 1);
    connectTools();
    connect(m_pane, &output::ReportPane::exitRequested, this, &Screen::closeRequested);
    connect(m_pane->pages(), &output::PageView::pagesChanged, this, &FrmAddFullRptView::followPages);
    connect(CmbColor, &QComboBox::activated, this, &FrmAddFullRptView::chooseColor);
    connect(CmdHelp, &QPushButton::clicked, this, [this] { showHelp(u"CON0028"_s, CmdHelp); });
    followPages();
    followFilter();
}

QWidget* FrmAddFullRptView::layOutChoices()
{
    auto* choices = new QWidget;
    auto* column = new QVBoxLayout(choices);
    column->setContentsMargins(10, 8, 8, 8);
    layOutLayouts(column);
    layOutMore(column);
    layOutLooks(column);
    layOutFoot(column);
    return choices;
}

void FrmAddFullRptView::layOutLayouts(QVBoxLayout* column)
{
    for (const bool isFull : {true, false}) {
        auto* group = new QGroupBox(isFull ? tr("FULL") : tr("SHORT"));
        auto* options = new QVBoxLayout(group);
        options->setContentsMargins(8, 6, 6, 6);
        options->setSpacing(3);
        for (const LayoutRow& row : layoutRows()) {
            if (row.isFull != isFull)
                continue;
            const QString caption = QCoreApplication::translate("reports", row.caption);
            auto* option = new QRadioButton(caption);
            option->setObjectName(row.option.toString());
            option->setAccessibleName(group->title() + u' ' + caption);
            m_options->addButton(option);
            options->addWidget(option);
            connect(option, &QRadioButton::clicked, this, [this, &row] { chooseLayout(row.layout); });
        }
        column->addWidget(group);
    }
}

void FrmAddFullRptView::layOutMore(QVBoxLayout* column)
{
    Option1->setObjectName(u"Option1"_s);
    // Not by the arrow keys, which only look at what is there: it may end the program.
    Option1->setFocusPolicy(Qt::ClickFocus);
    Option1->setToolTip(tr("Phone list, birthdays, family tree and other lists"));
    m_options->addButton(Option1);
    column->addWidget(Option1);
    connect(Option1, &QRadioButton::clicked, this, &FrmAddFullRptView::moreReports);
    MoreReports->setObjectName(u"MoreReports"_s);
    MoreReports->setAccessibleName(tr("More reports"));
    for (const ListRow& row : listRows()) {
        // The same list under the name that a command has for it is offered once.
        if (row.name == u"Pphone1")
            continue;
        auto* item = new QListWidgetItem(QCoreApplication::translate("reports", row.title), MoreReports);
        item->setData(Qt::UserRole, row.name.toString());
    }
    MoreReports->setMinimumHeight(120);
    MoreReports->setVisible(false);
    column->addWidget(MoreReports, 100);
    const auto choose
        = [this](const QListWidgetItem* item) { showReport(item->data(Qt::UserRole).toString()); };
    connect(MoreReports, &QListWidget::itemClicked, this, choose);
    connect(MoreReports, &QListWidget::itemActivated, this, choose);
}

void FrmAddFullRptView::layOutLooks(QVBoxLayout* column)
{
    CmbColor->setObjectName(u"CmbColor"_s);
    auto* label = new QLabel(tr("&Colours"));
    label->setBuddy(CmbColor);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(CmbColor, 1);
    column->addLayout(row);
    column->addWidget(CmdDatabase);
    column->addWidget(CmdView);
    lblFilter->setObjectName(u"lblFilter"_s);
    lblFilter->setWordWrap(true);
    lblFilter->setTextFormat(Qt::PlainText);
    lblFilter->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(lblFilter);
}

void FrmAddFullRptView::layOutFoot(QVBoxLayout* column)
{
    column->addStretch(1);
    ProgressBar1->setObjectName(u"ProgressBar1"_s);
    ProgressBar1->setAccessibleName(tr("Pages made"));
    ProgressBar1->setTextVisible(false);
    ProgressBar1->setFixedHeight(8);
    QSizePolicy keepsItsPlace = ProgressBar1->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    ProgressBar1->setSizePolicy(keepsItsPlace);
    column->addWidget(ProgressBar1);
    CmdHelp->setObjectName(u"CmdHelp"_s);
    widgets::setIcon(CmdHelp, u"help");
    column->addWidget(CmdHelp);
}

void FrmAddFullRptView::connectTools()
{
    auto* sources = new QActionGroup(this);
    for (std::size_t source = 0; source < std::size(kSources); ++source) {
        QAction* tool = m_tools->action(kSources[source]);
        tool->setCheckable(true);
        tool->setChecked(source == 0);
        sources->addAction(tool);
        connect(
            tool, &QAction::triggered, this, [this, source] { chooseSource(static_cast<Source>(source)); });
    }
    for (const auto& [id, form] :
        {std::pair(u"CommonFilter", u"frmFilter"), std::pair(u"TabFilter", u"frmTabFilter")})
        connect(m_tools->action(id), &QAction::triggered, this, [this, form = form] { askFilter(form); });
    connect(m_tools->action(u"NoFilter"), &QAction::triggered, this, [this] { applyFilter({}); });
}

void FrmAddFullRptView::load()
{
    fillColors();
}

void FrmAddFullRptView::fillColors()
{
    // Schemes of the person's own, if there are any, stand in the book.
    for (jet::Database* database : {&context().info, &context().data}) {
        if (!database->tables().contains(u"wia_colorScheme"_s, Qt::CaseInsensitive))
            continue;
        jet::Recordset schemes = database->openRecordset(u"Select * From wia_colorScheme"_s);
        for (; schemes.hasRow(); schemes.moveNext()) {
            const QString name = schemes.textOrEmpty(u"schemename");
            if (!name.isEmpty() && CmbColor->findText(name) < 0)
                CmbColor->addItem(name);
        }
    }
    CmbColor->setEnabled(CmbColor->count() > 0);
}

void FrmAddFullRptView::chooseColor()
{
    const QString sql
        = u"Select * From wia_colorscheme where schemename='"_s + CmbColor->currentText() + u'\'';
    jet::Recordset scheme = context().info.openRecordset(sql);
    if (!scheme.hasRow())
        scheme = context().data.openRecordset(sql);
    if (!scheme.hasRow())
        return;
    m_colors = output::colorsOf(static_cast<int>(scheme.number(u"FormColor")));
    showAgain();
}

void FrmAddFullRptView::chooseLayout(Layout layout)
{
    m_layout = layout;
    m_list.clear();
    m_contact.clear();
    MoreReports->setVisible(false);
    showLayout();
}

void FrmAddFullRptView::chooseSource(Source source)
{
    m_source = source;
    m_contact.clear();
    showAgain();
    followFilter();
}

// The other program has more to offer when it is there; else the lists are our own.
void FrmAddFullRptView::moreReports()
{
    if (context().services.shell.siblingExists(u'\\' + core::kLinkAndSync.toString())) {
        const QString report = u"Address Book"_s;
        core::requestReport(context(), report, core::reportNote(report));
        return;
    }
    MoreReports->setVisible(true);
    if (MoreReports->currentRow() < 0)
        MoreReports->setCurrentRow(0);
    MoreReports->setFocus();
    showReport(MoreReports->currentItem()->data(Qt::UserRole).toString());
}

void FrmAddFullRptView::askFilter(QStringView form)
{
    shared().CallerForm = kOwnName.toString();
    context().screens.show(form, core::Shown::Modally);
}

void FrmAddFullRptView::applyFilter(const QString& whereClause)
{
    m_filter = whereClause.trimmed().isEmpty() ? QString() : whereClause;
    m_contact.clear();
    followFilter();
    showAgain();
}

void FrmAddFullRptView::followFilter()
{
    const bool isOwn = m_source == Source::OwnBook;
    m_tools->action(u"NoFilter")->setEnabled(!m_filter.isEmpty());
    CmdView->setEnabled(isOwn);
    CmdDatabase->setToolTip(sourceName());
    lblFilter->setText(!isOwn    ? sourceName()
            : m_filter.isEmpty() ? QString()
                                 : tr("Filtered: %1").arg(m_filter.simplified().section(u' ', 1)));
    lblFilter->setVisible(!lblFilter->text().isEmpty());
}

QString FrmAddFullRptView::sourceName() const
{
    return m_tools->action(kSources[static_cast<int>(m_source)])->text();
}

bool FrmAddFullRptView::showReport(const QString& name)
{
    for (const BookName& book : kBookNames) {
        if (book.name == name) {
            findChild<QRadioButton*>(rowOf(book.layout).option.toString())->setChecked(true);
            chooseLayout(book.layout);
            return true;
        }
    }
    if (!listRow(name))
        return false;
    Option1->setChecked(true);
    MoreReports->setVisible(true);
    for (int row = 0; row < MoreReports->count(); ++row) {
        if (MoreReports->item(row)->data(Qt::UserRole) == name)
            MoreReports->setCurrentRow(row);
    }
    // Once the list has got its room.
    QTimer::singleShot(0, MoreReports, [this] { MoreReports->scrollToItem(MoreReports->currentItem()); });
    m_layout.reset();
    m_contact.clear();
    m_list = name;
    showList(name);
    return true;
}

void FrmAddFullRptView::showContactReport(const QString& name)
{
    m_layout = Layout::FullByFirst;
    m_list.clear();
    m_contact = name;
    m_source = Source::OwnBook;
    m_tools->action(kSources[0])->setChecked(true);
    findChild<QRadioButton*>(rowOf(*m_layout).option.toString())->setChecked(true);
    MoreReports->setVisible(false);
    followFilter();
    showLayout();
}

void FrmAddFullRptView::showAgain()
{
    if (!m_list.isEmpty())
        showList(m_list);
    else if (m_layout)
        showLayout();
    else
        showSource();
}

ReportHead FrmAddFullRptView::head(const QString& title) const
{
    return {title,
        jet::formatDate(context().services.clock.today(), core::datePattern(shared().NationalMode)),
        m_colors};
}

std::shared_ptr<const output::ReportSource> FrmAddFullRptView::rowsOf(const QString& sql) const
{
    return std::make_shared<output::RecordsetSource>(
        context().data.openRecordset(sql), output::reportDates(shared().NationalMode));
}

std::shared_ptr<const output::ReportSource> FrmAddFullRptView::otherRows(Layout layout) const
{
    const core::Services& services = context().services;
    if (m_source == Source::MailClient)
        return sortedFor(layout, reports::rowsOf(services.mailContacts.list()));
    const QString folder = m_source == Source::CardFolder
        ? core::readSettings(context().data).textOrEmpty(u"VCFPath")
        : platform::addressBookFolder(services.folders);
    const platform::CardFolder cards(services.drive, folder);
    const auto files = static_cast<int>(cards.files().size());
    core::Progress progress(
        u"cardProgress"_s, windowTitle(), tr("Reading %1 cards").arg(files), files, window());
    return sortedFor(
        layout, reports::rowsOf(cards, [&progress](int done) { return progress.advance(done); }));
}

void FrmAddFullRptView::showLayout()
{
    const LayoutRow& row = rowOf(*m_layout);
    const QString title = tr("Address Book - %1").arg(QCoreApplication::translate("reports", row.caption));
    const auto source = m_source != Source::OwnBook ? otherRows(*m_layout)
        : m_contact.isEmpty()                       ? rowsOf(layoutSql(*m_layout, m_filter))
                                                    : rowsOf(oneNameSql(m_contact));
    show(addressReport(*m_layout, source, head(m_contact.isEmpty() ? title : m_contact)));
}

// Before a layout is chosen all contacts of the address book stand one behind the other.
void FrmAddFullRptView::showSource()
{
    const Layout layout = Layout::FullByCategory;
    const bool isOwn = m_source == Source::OwnBook;
    output::Report report
        = addressReport(layout, isOwn ? rowsOf(ownBookSql()) : otherRows(layout), head(tr("Address Book")));
    report.grouping.reset();
    show(report);
}

void FrmAddFullRptView::showList(const QString& name)
{
    const ListRow& row = *listRow(name);
    const QString sql = listSql(row, m_filter, context().services.clock.today().year());
    const ReportHead listHead = head(QCoreApplication::translate("reports", row.title));
    if (name == u"Family Tree")
        return show(printedList(row,
            std::make_shared<output::ListSource>(
                familyColumns(), familyRows(context().data.openRecordset(sql))),
            listHead));
    show(printedList(row, rowsOf(sql), listHead));
}

void FrmAddFullRptView::show(const output::Report& report)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_pane->show(report, m_page);
    QApplication::restoreOverrideCursor();
    noteBookRead();
    if (report.isEmpty() && !m_isFollowing)
        inform(tr("No records are available for the selection"));
}

void FrmAddFullRptView::followPages()
{
    const output::PageView* pages = m_pane->pages();
    ProgressBar1->setVisible(pages->isCounting());
    if (pages->isCounting()) {
        ProgressBar1->setMaximum(pages->report()->source->count());
        ProgressBar1->setValue(pages->rowsDone());
    }
}

void FrmAddFullRptView::bookChanged()
{
    if (!m_pane->pages()->hasPages() || m_source != Source::OwnBook)
        return;
    m_page = m_pane->pages()->currentPage();
    m_isFollowing = true;
    showAgain();
    m_isFollowing = false;
    m_page = 1;
}

} // namespace reports
