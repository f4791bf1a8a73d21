#include "telephone/calls/Form1.h"

#include "core/contact_lookups.h"
#include "core/date_patterns.h"
#include "core/handover/contact_screen.h"
#include "core/list_presenter.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/tool_set.h"
#include "output/grid/list_print.h"
#include "output/preview/FrmReportViewer.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "telephone/calls/call_reports.h"
#include "telephone/dialer/call_save_panel.h"
#include "telephone/number_hand_over.h"
#include "telephone/weekday_date.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QDateTime>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

namespace {

using enum core::Tool::Place;

constexpr QStringView kDialer = u"FrmDialer";

constexpr core::Tool kTools[] = {
    {.id = u"Call",
        .icon = u"phone",
        .text = QT_TRANSLATE_NOOP("telephone", "Call"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Show the number in the dialer (Enter, double click)"),
        .form = kDialer,
        .places = Labelled | Menu},
    {.id = u"EditCall",
        .icon = u"edit",
        .text = QT_TRANSLATE_NOOP("telephone", "Change"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Change purpose, response and next call (F2)"),
        .places = Labelled | Menu,
        .key = Qt::Key_F2},
    {.id = u"DoneCall",
        .icon = u"star",
        .text = QT_TRANSLATE_NOOP("telephone", "Done"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "The call need not be made any more"),
        .places = Labelled | Menu},
    {.id = u"DeleteCall",
        .icon = u"delete",
        .text = QT_TRANSLATE_NOOP("telephone", "Delete"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Delete the call from the record (Del)"),
        .places = Labelled | Menu,
        .key = Qt::Key_Delete},
    {.id = u"PrintCalls",
        .icon = u"report",
        .text = QT_TRANSLATE_NOOP("telephone", "Print"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Print the calls by person, date or purpose"),
        .places = Labelled | GroupStart},
};

/// How a page shows its rows.
struct Page {
    const char* title;
    QStringView headings;
    QStringList columns;
    QStringView datePattern;
    QStringView outline;
};
const Page& pageOf(int tab)
{
    static const Page pages[] = {
        {QT_TRANSLATE_NOOP("telephone", "Calls"),
            u"|Name                       |Date             |Time                              |Number       "
            u" "
            u"   |Purpose           |Response     |Next Call     ",
            {{}, u"lname"_s, u"date"_s, u"time1"_s, u"numb"_s, u"todo"_s, u"result"_s, u"nextcall"_s},
            u"ddd-d  mmm-yy", {}},
        {QT_TRANSLATE_NOOP("telephone", "By Person"),
            u"|Date             |Time       |Number           |Purpose           |Response     |Next Call    "
            u" ",
            {{}, u"date"_s, u"time"_s, u"numb"_s, u"todo"_s, u"result"_s, u"nextcall"_s}, u"ddd-d  mmm-yy",
            u"lname"},
        {QT_TRANSLATE_NOOP("telephone", "By Month"),
            u"|Date        |Time       |Name                       |Number           |Purpose           "
            u"|Response     |Next Call     ",
            {{}, u"date"_s, u"time1"_s, u"lname"_s, u"numb"_s, u"todo"_s, u"result"_s, u"nextcall"_s},
            u"ddd,d mmm", u"mnth"},
        {QT_TRANSLATE_NOOP("telephone", "Call Later"),
            u"|Next Call      |Name                       |Date            |Time       |Number           "
            u"|Purpose           |Response     ",
            {{}, u"nextcall"_s, u"lname"_s, u"date"_s, u"time"_s, u"numb"_s, u"todo"_s, u"result"_s},
            u"dd-mmm-yyyy", {}},
    };
    return pages[tab];
}
constexpr int kTabs = 4;

QString previousCall()
{
    return u"Previous Call"_s;
}

} // namespace

Form1::Form1(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "telephone"}, this))
    , sstab1(new QTabBar)
    , FG1(new widgets::HeadingGrid)
    , m_list(new core::ListPresenter(context.data, FG1, this))
    , m_show(new QPushButton(tr("Sho&w")))
    , m_allDays(new QPushButton(tr("&All days")))
    , m_editor(new CallSavePanel(context))
{
    setWindowTitle(tr("Previous Calls"));
    layOut();
    connectTools();
    connectControls();
}

void Form1::layOut()
{
    sstab1->setDrawBase(false);
    for (int tab = 0; tab < kTabs; ++tab)
        sstab1->addTab(QCoreApplication::translate("telephone", pageOf(tab).title));
    auto* body = new QWidget;
    widgets::FormKit form(body);
    form.group()
        .fixedCombo(u"Combo1"_s, tr("Pers&on"))
        .beside()
        .fixedCombo(u"CmbPurpose"_s, tr("P&urpose"))
        .beside()
        .fixedCombo(u"CmbResponse"_s, tr("&Response"))
        .date(u"ssdtFrom"_s, tr("&From"))
        .grow(2)
        .beside()
        .date(u"ssdtTo"_s, tr("&to"))
        .grow(2)
        .beside()
        .widget(u"Command1"_s, {}, m_show)
        .hint(tr("Calls of these days; with one date, of that day"))
        .beside()
        .widget(u"CmdAllDates"_s, {}, m_allDays)
        .hint(tr("Calls of all days again"))
        .wide(u"sstab1"_s, tr("Which calls are listed"), sstab1)
        .wide(u"FG1"_s, tr("Calls"), FG1)
        .caption(u"lblCount"_s)
        .wide(u"frmCallSaveAs"_s, tr("The call that is changed"), m_editor);
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("&Help"), u"help", tr("What this screen is for"))
        .stretch()
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    m_editor->hide();
    widgets::setIcon(m_show, u"filter");
    widgets::setIcon(m_allDays, u"restore");
    for (QPushButton* button : {m_show, m_allDays}) {
        button->setAutoDefault(false);
        button->setAccessibleName(button->text().remove(u'&'));
    }
    Combo1 = child<widgets::FilledCombo>(body, u"Combo1"_s);
    CmbPurpose = child<widgets::FilledCombo>(body, u"CmbPurpose"_s);
    CmbResponse = child<widgets::FilledCombo>(body, u"CmbResponse"_s);
    m_from = child<widgets::DateBox>(body, u"ssdtFrom"_s);
    m_to = child<widgets::DateBox>(body, u"ssdtTo"_s);
    m_count = child<QLabel>(body, u"lblCount"_s);
    FG1->setContextMenuPolicy(Qt::CustomContextMenu);

    auto* bar = m_tools->makeToolBar(this);
    auto* lists = new output::ListTools(context(), FG1, this, tr("Previous Calls"));
    lists->addTo(bar);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(body, 1);
    setFocusProxy(FG1);

    auto* prints = new QMenu(this);
    for (int i = 0; i < int(callReports().size()); ++i) {
        QAction* print = prints->addAction(QCoreApplication::translate("telephone", callReports()[i].title),
            this, [this, i] { this->print(i); });
        print->setObjectName(callReports()[i].name.toString());
    }
    m_tools->action(u"PrintCalls")->setMenu(prints);
    if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(m_tools->action(u"PrintCalls"))))
        button->setPopupMode(QToolButton::InstantPopup);
}

void Form1::connectTools()
{
    const auto on = [this](QStringView id, auto perform) {
        connect(m_tools->action(id), &QAction::triggered, this, perform);
        FG1->addAction(m_tools->action(id));
    };
    on(u"Call", &Form1::callAgain);
    on(u"EditCall", &Form1::editCall);
    on(u"DoneCall", &Form1::finishCall);
    on(u"DeleteCall", &Form1::deleteCall);
    QMenu* menu = m_tools->makeMenu(u"CallMenu"_s, this);
    connect(FG1, &QWidget::customContextMenuRequested, this, [this, menu](const QPoint& at) {
        if (FG1->currentKey() != 0)
            menu->popup(FG1->viewport()->mapToGlobal(at));
    });
    connect(FG1, &widgets::HeadingGrid::chosen, m_tools->action(u"Call"), &QAction::trigger);
}

void Form1::connectControls()
{
    Combo1->setSource([this] { return QStringList{previousCall()} + choices(0); });
    CmbPurpose->setSource([this] { return QStringList{u"All"_s} + choices(1); });
    CmbResponse->setSource([this] { return QStringList{u"All"_s} + choices(2); });
    const auto follow = [this](widgets::FilledCombo* combo, CallFilter filter) {
        connect(
            combo, &QComboBox::currentTextChanged, this, [this, combo, filter] { filterBy(filter, combo); });
    };
    follow(Combo1, CallFilter::Person);
    follow(CmbPurpose, CallFilter::Purpose);
    follow(CmbResponse, CallFilter::Response);
    connect(sstab1, &QTabBar::currentChanged, this, [this] {
        resetFilters();
        showTab();
    });
    connect(m_list, &core::ListPresenter::currentChanged, this, &Form1::followList);
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"Command1"_s, [this] { narrow(); });
    onClick(u"CmdAllDates"_s, [this] { showAllDates(); });
    onClick(u"CmdHelp"_s, [this] { showHelp(u"CON001"_s, child<QPushButton>(this, u"CmdHelp"_s)); });
    onClick(u"CmdExit"_s, [this] { Q_EMIT closeRequested(); });
    for (widgets::DateBox* box : {m_from, m_to})
        connect(box, &QLineEdit::returnPressed, this, &Form1::narrow);
    connect(m_editor, &CallSavePanel::cancelled, this, [this] {
        if (mayDiscard())
            closeEditor();
    });
    connect(m_editor, &CallSavePanel::saved, this, [this](const QString& name) {
        closeEditor();
        tellSaved(tr("the call to %1").arg(name));
        bookChanged();
        context().screens.tellBookChanged(this);
    });
}

QStringList Form1::choices(int column) const
{
    QStringList values;
    const jet::Recordset rows = context().data.openRecordset(callChoicesSql());
    for (int row = 0; row < rows.count(); ++row) {
        const QString value = rows.textAt(row, column);
        if (!value.trimmed().isEmpty())
            values << value;
    }
    values.removeDuplicates();
    values.sort(Qt::CaseInsensitive);
    return values;
}

void Form1::load()
{
    setFrameTitle(windowTitle());
    for (widgets::DateBox* box : {m_from, m_to})
        box->setFormat(core::datePattern(shared().NationalMode));
    resetFilters();
    showTab();
}

void Form1::bookChanged()
{
    for (widgets::FilledCombo* combo : {Combo1, CmbPurpose, CmbResponse})
        combo->refill();
    m_list->refresh();
    followList();
}

bool Form1::isTouched() const
{
    return m_editor->isTouched();
}

void Form1::showTab()
{
    const int tab = sstab1->currentIndex();
    const Page& page = pageOf(tab);
    FG1->setEmptyText(m_dates.isEmpty() || tab == kToMake
            ? (tab == kToMake ? tr("No call is left to be made") : tr("No call was saved yet"))
            : tr("No call was made on these days"));
    FG1->setHeadings(page.headings, page.columns);
    const auto dateText = [pattern = page.datePattern.toString()](
                              const QVariant& date) { return weekdayDate(date.toDate(), pattern); };
    const auto timeText = [](const QVariant& time) { return time.toDateTime().time().toString(u"HH:mm"_s); };
    for (const QString& column : {u"date"_s, u"nextcall"_s})
        FG1->showAs(column, dateText);
    for (const QString& column : {u"time"_s, u"time1"_s})
        FG1->showAs(column, timeText);
    FG1->showAs(u"mnth"_s, [](const QVariant& month) { return monthText(month.toString()); });
    FG1->setOutline(page.outline.toString());
    m_tools->action(u"DoneCall")->setVisible(tab == kToMake);
    switch (tab) {
    case kByPerson: return openList(callsByPersonSql(m_dates));
    case kByMonth: return openList(callsByMonthSql(m_dates));
    case kToMake: return openList(callsToMakeSql());
    default: return openList(allCallsSql(m_dates));
    }
}

void Form1::openList(const QString& sql)
{
    m_list->open(sql);
    followList();
}

void Form1::filterBy(CallFilter filter, const widgets::FilledCombo* combo)
{
    if (m_isResetting || combo->currentText().isEmpty())
        return;
    const QString chosen = combo->currentText();
    m_isResetting = true;
    for (widgets::FilledCombo* other : {Combo1, CmbPurpose, CmbResponse}) {
        if (other != combo)
            other->setText(other == Combo1 ? previousCall() : u"All"_s);
    }
    m_dates.clear();
    m_from->setDate({});
    m_to->setDate({});
    if (sstab1->currentIndex() != kCalls) {
        const QSignalBlocker quiet(sstab1);
        sstab1->setCurrentIndex(kCalls);
        showTab();
    }
    m_isResetting = false;
    openList(filteredCallsSql(filter, chosen == u"All" || chosen == previousCall() ? QString() : chosen));
}

void Form1::resetFilters()
{
    m_isResetting = true;
    Combo1->setText(previousCall());
    CmbPurpose->setText(u"All"_s);
    CmbResponse->setText(u"All"_s);
    m_isResetting = false;
}

void Form1::narrow()
{
    // That of the editor is asked for by its own save.
    for (widgets::DateBox* box : {m_from, m_to}) {
        if (box->holdsBadText())
            return box->askToMend();
    }
    m_dates = callDates(m_from->date(), m_to->date());
    resetFilters();
    if (sstab1->currentIndex() == kToMake)
        sstab1->setCurrentIndex(kCalls);
    else
        showTab();
}

void Form1::showAllDates()
{
    m_from->setDate({});
    m_to->setDate({});
    narrow();
}

void Form1::followList()
{
    const bool hasCall = FG1->currentKey() != 0;
    for (const QStringView id : {u"EditCall"_s, u"DoneCall"_s, u"DeleteCall"_s})
        m_tools->action(id)->setEnabled(hasCall);
    m_tools->action(u"Call")->setEnabled(hasCall && hasDialer(context()));
    const int count = FG1->recordCount();
    m_count->setText(count == 1 ? tr("1 call") : tr("%1 calls").arg(count));
    setPosition(m_list->position());
}

// The person is shown too, as long as the book has it.
void Form1::callAgain()
{
    const jet::Recordset call = context().data.openRecordset(
        u"select * from cnt_phcall where id="_s + QString::number(FG1->currentKey()));
    if (!call.hasRow())
        return inform(tr("Record not selected"));
    // By the name that the person has now, by which the dialer knows whose number it is.
    const jet::Recordset person = context().data.openRecordset(core::contactByIdSql(call.number(u"PerId")));
    if (auto* dialer = context().screens.load<core::ContactScreen>(kDialer))
        dialer->showContact(call.number(u"PerId"));
    handOverNumber(context(), call.textOrEmpty(u"Numb"),
        person.hasRow() ? person.textOrEmpty(u"Name") : call.textOrEmpty(u"Name"));
}

void Form1::editCall()
{
    if (!mayDiscard() || !m_editor->edit(FG1->currentKey()))
        return;
    m_editor->show();
    child<QWidget>(m_editor, u"DBPurpose"_s)->setFocus();
}

void Form1::closeEditor()
{
    m_editor->hide();
    FG1->setFocus();
}

void Form1::finishCall()
{
    {
        const jet::Step step(context().data, tr("a call to be made"));
        if (!context().data.execute(
                u"update cnt_phcall set CallLater=False where id="_s + QString::number(FG1->currentKey())))
            return core::tellFailedSave(context());
    }
    playSound(core::sounds::Save);
    tellSaved(tr("the call as done"));
    bookChanged();
    context().screens.tellBookChanged(this);
}

void Form1::deleteCall()
{
    const qint64 key = FG1->currentKey();
    if (key == 0
        || context().services.boxes.ask(
               tr("Are you sure you want to delete this record?"), shared().AppTitle, platform::Icon::Warning)
            != platform::Answer::Yes)
        return;
    const qint64 next = m_list->neighbourOf(key);
    {
        const jet::Step step(context().data, tr("deleting a call"));
        if (!context().data.execute(u"Delete * from cnt_phcall where id="_s + QString::number(key)))
            return core::tellFailedSave(context());
    }
    playSound(core::sounds::Delete);
    m_list->refresh();
    m_list->point(next);
    followList();
    context().screens.tellBookChanged(this);
}

void Form1::print(int report)
{
    const CallReportRow& row = callReports()[report];
    const QString title = QCoreApplication::translate("telephone", row.title);
    output::ShowReportViewer(context(),
        callReport(row, context().data.openRecordset(callReportSql(row, m_dates)),
            core::datePattern(shared().NationalMode), context().services.clock.today()),
        title);
}

void Form1::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return Screen::keyPressEvent(event);
    if (m_editor->isHidden())
        Q_EMIT closeRequested();
    else if (mayDiscard())
        closeEditor();
}

} // namespace telephone
