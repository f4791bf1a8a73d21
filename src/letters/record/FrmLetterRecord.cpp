#include "letters/record/FrmLetterRecord.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/list_presenter.h"
#include "core/screens.h"
#include "core/tool_set.h"
#include "jet/date_text.h"
#include "letters/record/letter_actions.h"
#include "letters/record/letter_pane.h"
#include "letters/record/record_statements.h"
#include "letters/record/record_tools.h"
#include "output/grid/list_print.h"
#include "widgets/found_strip.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QMenu>
#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

using enum core::Tool::Place;

constexpr core::Tool kTools[] = {
    {.id = u"CmdRefresh",
        .icon = u"restore",
        .text = QT_TRANSLATE_NOOP("letters", "Refresh"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Read the record anew (F5)"),
        .places = Labelled,
        .key = Qt::Key_F5,
        .keyIn = core::Tool::KeyIn::Screen},
    {.id = u"SortByType",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("letters", "By direction, then date"),
        .places = FilterMenu},
    {.id = u"SortByName",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("letters", "By name"),
        .places = FilterMenu},
    {.id = u"SortByDate",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("letters", "By date"),
        .places = FilterMenu},
    {.id = u"SortByName,Date",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("letters", "By name, then date"),
        .places = FilterMenu},
    {.id = u"ViewLetterField",
        .icon = u"note",
        .text = QT_TRANSLATE_NOOP("letters", "Opening lines"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Show the opening and further lines in the list"),
        .places = IconOnly | GroupStart},
    {.id = u"ViewAddressField",
        .icon = u"location",
        .text = QT_TRANSLATE_NOOP("letters", "Addresses"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Show the addresses in the list"),
        .places = IconOnly},
    {.id = u"FindReplace",
        .icon = u"search",
        .text = QT_TRANSLATE_NOOP("letters", "Find and replace"),
        .form = u"FrmFind",
        .places = IconOnly},
};

constexpr QStringView kSorts[] = {u"SortByType", u"SortByName", u"SortByDate", u"SortByName,Date"};

constexpr QStringView kLetterHeadings
    = u"|Date          |Direction  |Person               |Type        |Category     "
      u"|Opening 1        |Opening 2        |Opening 3        |Further 1        "
      u"|Further 2        ";
constexpr QStringView kAddressHeadings
    = u"|Date          |Direction  |Person               |Type        |Category     "
      u"|Address 1         |Address 2         |City         |State        "
      u"|Country       |Pin     ";

QStringList columnsWith(const QStringList& others)
{
    return QStringList{{}, u"Date"_s, u"type1"_s, u"person"_s, u"Mailtype"_s, u"mailcateg"_s} + others;
}

QStringList letterColumns()
{
    return columnsWith({u"Open1"_s, u"Open2"_s, u"Open3"_s, u"Memo1"_s, u"Memo2"_s});
}

QStringList addressColumns()
{
    return columnsWith({u"Add1"_s, u"Add2"_s, u"city"_s, u"State"_s, u"Country"_s, u"Pin"_s});
}

} // namespace

FrmLetterRecord::FrmLetterRecord(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "letters"}, this))
    , m_grid(new widgets::HeadingGrid)
    , m_list(new core::ListPresenter(context.data, m_grid, this))
    , m_strip(new widgets::FoundStrip)
    , m_recordTools(new RecordTools(context, m_grid, this))
    , m_pane(new LetterPane(context))
{
    setWindowTitle(tr("Letter Record"));
    layOut();
    connectTools();
    m_list->setStrip(m_strip, u"select count(*) from cnt_letters"_s);
    connect(m_strip, &widgets::FoundStrip::clearWanted, this, &FrmLetterRecord::showAll);
    connect(m_list, &core::ListPresenter::currentChanged, this, &FrmLetterRecord::followList);
}

void FrmLetterRecord::layOut()
{
    m_grid->setObjectName(u"Grid1"_s);
    m_grid->setAccessibleName(tr("Letters"));
    m_grid->setEmptyText(
        tr("No letter was kept yet. Letters that you save in the letter creator stand here."));
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_grid);
    splitter->addWidget(m_pane);
    splitter->setSizes({300, 320});
    auto* page = new QVBoxLayout;
    page->setContentsMargins(8, 6, 8, 8);
    page->addWidget(m_strip);
    page->addWidget(splitter, 1);
    auto* bar = m_recordTools->makeToolBar(this);
    m_tools->addTo(bar);
    auto* sorts = m_tools->makeMenu(u"SortMenu"_s, this, FilterMenu);
    QAction* sort = bar->addAction(tr("Order"));
    sort->setObjectName(u"SortBy"_s);
    sort->setToolTip(tr("The order of the record"));
    sort->setMenu(sorts);
    if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(sort))) {
        button->setPopupMode(QToolButton::InstantPopup);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    }
    auto* lists = new output::ListTools(context(), m_grid, this, windowTitle());
    lists->addTo(bar);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(page, 1);
    setFocusProxy(m_grid);
}

void FrmLetterRecord::connectTools()
{
    const auto on = [this](QStringView id, auto perform) {
        connect(m_tools->action(id), &QAction::triggered, this, perform);
        m_grid->addAction(m_tools->action(id));
    };
    connect(m_recordTools, &RecordTools::removeWanted, this, &FrmLetterRecord::remove);
    on(u"CmdRefresh", [this] { showAll(); });
    on(u"ViewLetterField", [this] { showColumns(kLetterHeadings, letterColumns()); });
    on(u"ViewAddressField", [this] { showColumns(kAddressHeadings, addressColumns()); });
    on(u"FindReplace", [this] {
        shared().CallerForm = u"Letters"_s;
        context().screens.show(u"FrmFind", core::Shown::Modally);
    });
    for (const QStringView id : kSorts)
        connect(m_tools->action(id), &QAction::triggered, this, [this, id] { open(recordSql(id)); });
}

void FrmLetterRecord::load()
{
    setFrameTitle(windowTitle());
    m_grid->showAs(u"Date"_s, [pattern = core::datePattern(shared().NationalMode)](const QVariant& date) {
        return date.toDate().isValid() ? jet::formatDate(date.toDate(), pattern) : QString();
    });
    m_grid->setHeadings(kLetterHeadings, letterColumns());
    open(recordSql());
}

void FrmLetterRecord::bookChanged()
{
    m_list->refresh();
    followList();
}

bool FrmLetterRecord::showContact(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactNameSql(id));
    if (!contact.hasRow())
        return false;
    open(recordOfSql(id), contact.textOrEmpty(u"Name").simplified());
    return true;
}

void FrmLetterRecord::refreshList(const QString& sql)
{
    if (sql.isEmpty())
        bookChanged();
    else
        open(sql);
}

void FrmLetterRecord::open(const QString& sql, const QString& foundBy)
{
    m_list->open(sql, foundBy);
    if (m_grid->currentRow() < 0)
        m_grid->setCurrentRow(0);
    followList();
}

void FrmLetterRecord::showAll()
{
    open(recordSql());
}

void FrmLetterRecord::showColumns(QStringView headings, const QStringList& columns)
{
    const qint64 key = m_grid->currentKey();
    m_grid->setHeadings(headings, columns);
    m_list->refresh();
    m_list->point(key);
}

void FrmLetterRecord::followList()
{
    const qint64 letter = m_grid->currentKey();
    m_pane->show(letter);
    m_recordTools->follow();
    setPosition(m_list->position());
}

// Kept: the letter stands in the list until it is read anew, so that one sees what one has deleted and can
// take it back.
void FrmLetterRecord::remove()
{
    if (!deleteLetters(context(), {m_grid->currentKey()}))
        return;
    inform(tr("Data deleted.To see effect click Refresh"));
    m_pane->show(m_grid->currentKey());
    context().screens.tellBookChanged(this);
    noteBookRead();
}

} // namespace letters
