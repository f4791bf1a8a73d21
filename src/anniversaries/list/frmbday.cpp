#include "anniversaries/list/frmbday.h"

#include "anniversaries/calendar_file/save_calendar.h"
#include "anniversaries/list/birthday_tools.h"
#include "anniversaries/list/copy_panel.h"
#include "anniversaries/list/day_detail.h"
#include "anniversaries/list/month_panel.h"
#include "anniversaries/wishes/send_letter.h"
#include "anniversaries/wishes/TimedWishPanel.h"
#include "core/contact_lookups.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/report_request.h"
#include "core/screens.h"
#include "core/vocabularies.h"
#include "output/grid/list_print.h"
#include "platform/clock.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr QStringView kSummary = u"FrmBirthSum";
constexpr QStringView kYearView = u"FormAviewbday";
constexpr QStringView kNotWhileCopying[] = {u"Simple", u"Details", u"TransTask", u"Confirm"};
/// What is beside the list takes no more room than it needs.
const QList<int> kAllToList{10'000, 1};
/// By the order of Regrouping.
const QString kRegroupings[] = {u"Refresh"_s, u"Categ"_s, u"Priority"_s, u"Month"_s, u"Age"_s, u"City"_s};

QString all()
{
    return u"All"_s;
}

/// What a filter chose; empty for all.
QString chosenIn(const QComboBox* combo)
{
    const QString text = combo->currentText();
    return text.trimmed().isEmpty() || text == all() ? QString() : text;
}

} // namespace

frmbday::frmbday(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, birthdayTools(), this))
    , m_contactTools(new core::ContactTools(context, core::hitTools(),
          {.callerForm = u"frmbday"_s,
              .chosen =
                  [this] {
                      const qint64 id = FGBday->currentKey();
                      return core::ChosenContact{id, id};
                  }},
          this))
    , FGBday(new widgets::HeadingGrid)
    , m_list(new DayList(context, FGBday, this))
    , SSActiveTabs1(new QTabBar)
    , ssTabMerge(new QTabBar)
    , OptAll(new QRadioButton(tr("View &All")))
    , Opt60(new QRadioButton(tr("View Next &60 days")))
    , DBCcat(new widgets::FilledCombo(nullptr, widgets::FilledCombo::Typing::ListOnly))
    , DBCPriority(new widgets::FilledCombo(nullptr, widgets::FilledCombo::Typing::ListOnly))
    , m_month(new MonthPanel(context))
    , m_detail(new DayDetail)
    , Frame7(new CopyPanel(context, m_list, this))
    , famTimedEmails(new TimedWishPanel(context, this))
    , m_splitter(new QSplitter)
{
    setWindowTitle(tr("Birthdays and Anniversaries"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(layOutList());
    m_splitter->addWidget(layOutSide());
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    m_splitter->setSizes(kAllToList);
    auto* below = new QVBoxLayout;
    below->setContentsMargins(6, 4, 6, 6);
    below->setSpacing(6);
    below->addWidget(m_splitter, 1);
    below->addWidget(layOutFoot());
    QToolBar* bar = m_tools->makeToolBar(this);
    bar->setObjectName(u"SSActiveToolBars1"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(below, 1);
    connectTools();
    connectControls();
    setFocusProxy(FGBday);
}

QWidget* frmbday::layOutList()
{
    SSActiveTabs1->setObjectName(u"SSActiveTabs1"_s);
    SSActiveTabs1->setAccessibleName(tr("What is celebrated"));
    SSActiveTabs1->addTab(tr("Birthday"));
    SSActiveTabs1->addTab(tr("Anniversary"));
    ssTabMerge->setObjectName(u"ssTabMerge"_s);
    ssTabMerge->setAccessibleName(tr("Groups of the list"));
    for (const QString& name : kRegroupings)
        ssTabMerge->addTab(name);
    for (QTabBar* tabs : {SSActiveTabs1, ssTabMerge}) {
        tabs->setDrawBase(false);
        tabs->setExpanding(false);
    }
    FGBday->setObjectName(u"FGBday"_s);
    FGBday->setAccessibleName(tr("Birthdays or anniversaries"));
    FGBday->setContextMenuPolicy(Qt::CustomContextMenu);
    FGBday->letColumnsGiveWay();

    auto* heads = new QHBoxLayout;
    heads->addWidget(SSActiveTabs1);
    heads->addSpacing(24);
    heads->addWidget(ssTabMerge);
    heads->addStretch(1);
    auto* depth = new QLabel;
    depth->setObjectName(u"lblDepth"_s);
    depth->setForegroundRole(QPalette::PlaceholderText);
    heads->addWidget(depth);
    auto* list = new QWidget;
    auto* layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(heads);
    layout->addWidget(layOutFilters());
    layout->addWidget(FGBday, 1);
    layout->addWidget(m_month->legend());
    layout->addWidget(Frame7);
    layout->addWidget(famTimedEmails);
    return list;
}

QWidget* frmbday::layOutFilters()
{
    const auto name = [](QWidget* control, const QString& objectName, const QString& toolTip) {
        control->setObjectName(objectName);
        control->setToolTip(toolTip);
    };
    name(OptAll, u"OptAll"_s, tr("Read the whole list anew"));
    name(Opt60, u"Opt60"_s, tr("Only the days of the next 60 days, up to the end of the year"));
    name(DBCcat, u"DBCcat"_s, tr("Only the people of a category"));
    name(DBCPriority, u"DBCPriority"_s, tr("Only the people of a priority"));
    OptAll->setChecked(true);
    auto* filters = new QWidget;
    auto* layout = new QHBoxLayout(filters);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(OptAll);
    layout->addWidget(Opt60);
    layout->addStretch(1);
    const auto combo = [&](widgets::FilledCombo* control, const QString& label) {
        auto* part = new QWidget;
        auto* row = new QHBoxLayout(part);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(6);
        auto* shown = new QLabel(label);
        shown->setBuddy(control);
        control->setAccessibleName(QString(label).remove(u'&'));
        control->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        control->setMinimumContentsLength(8);
        row->addWidget(shown);
        row->addWidget(control);
        layout->addWidget(part);
        return part;
    };
    m_categoryFilter = combo(DBCcat, tr("Cate&gory"));
    combo(DBCPriority, tr("P&riority"));
    return filters;
}

QPushButton* frmbday::toolButton(const QString& name, const QString& text, QStringView tool)
{
    const QAction* action = m_tools->action(tool);
    auto* button = new QPushButton(action->icon(), text);
    button->setObjectName(name);
    button->setToolTip(action->toolTip());
    button->setEnabled(action->isEnabled());
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::enabledChanged, button, &QPushButton::setEnabled);
    return button;
}

QWidget* frmbday::layOutSide()
{
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(6);
    buttons->addStretch(1);
    buttons->addWidget(toolButton(u"cmdletter"_s, tr("Send by &letter"), u"SendLetter"));
    buttons->addWidget(toolButton(u"cmdemail"_s, tr("Send by &e-mail"), u"SendEmail"));
    buttons->addWidget(toolButton(u"cmdSend"_s, tr("Send to Out&box today"), u"sendtoday"));
    buttons->addWidget(toolButton(u"cmdLeter"_s, tr("&Confirm before sending"), u"Confirm"));
    m_side = new QWidget;
    m_sideLayout = new QBoxLayout(QBoxLayout::TopToBottom, m_side);
    m_sideLayout->setContentsMargins(3, 0, 0, 0);
    m_sideLayout->addWidget(m_month);
    m_sideLayout->addWidget(m_detail, 1);
    m_sideLayout->addLayout(buttons);
    return m_side;
}

// Beside the month there is room for the whole list in a wide window only; in a narrow one it stands below,
// and makes way for the panels.
void frmbday::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    settleSide();
}

void frmbday::settleSide()
{
    constexpr int kWide = 990;
    const bool isWide = width() >= kWide;
    m_side->setVisible(isWide || !(Frame7->isVisibleTo(this) || famTimedEmails->isVisibleTo(this)));
    const Qt::Orientation orientation = isWide ? Qt::Horizontal : Qt::Vertical;
    if (orientation == m_splitter->orientation())
        return;
    m_splitter->setOrientation(orientation);
    m_sideLayout->setDirection(isWide ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_sideLayout->setSpacing(isWide ? 6 : 16);
    m_splitter->setSizes(kAllToList);
}

QWidget* frmbday::layOutFoot()
{
    const auto button = [](const QString& name, const QString& text, QStringView icon, const QString& tip) {
        auto* made = new QPushButton(text);
        made->setObjectName(name);
        made->setToolTip(tip);
        made->setAutoDefault(false);
        widgets::setIcon(made, icon);
        return made;
    };
    auto* year = button(u"CmdAview"_s, tr("&Year View"), u"calendar", tr("All birthdays in a year"));
    year->setEnabled(context().screens.has(kYearView));
    connect(year, &QPushButton::clicked, this, [this] { context().screens.show(kYearView); });
    auto* summary
        = button(u"SSCommand8"_s, tr("Su&mmary"), u"zodiac", tr("How many birthdays a sign and a month has"));
    summary->setEnabled(context().screens.has(kSummary));
    connect(summary, &QPushButton::clicked, this, [this] { context().screens.show(kSummary); });
    auto* counts = button(u"Label18"_s, tr("By sign and month"), {}, summary->toolTip());
    counts->setFlat(true);
    counts->setFocusPolicy(Qt::NoFocus); // the keys have the button beside it
    counts->setEnabled(summary->isEnabled());
    connect(counts, &QPushButton::clicked, summary, &QPushButton::click);
    auto* help = button(u"CmdHelp"_s, tr("&Help"), u"help", {});
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0032"_s, help); });
    auto* foot = new QWidget;
    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(help);
    layout->addWidget(m_month->legendButton());
    layout->addStretch(1);
    layout->addWidget(toolButton(u"SSCommand2"_s, tr("Copy to &Scheduler"), u"TransTask"));
    layout->addWidget(toolButton(u"SSCommand5"_s, tr("E&xport"), u"Export"));
    layout->addWidget(year);
    layout->addWidget(counts);
    layout->addWidget(summary);
    return foot;
}

void frmbday::connectTools()
{
    const auto on = [this](QStringView id, auto perform) {
        connect(m_tools->action(id), &QAction::triggered, this, perform);
    };
    for (const QStringView id : {u"ViewNext", u"Priority1", u"Priority2"}) {
        m_tools->action(id)->setCheckable(true);
        on(id, &frmbday::followFilter);
    }
    on(u"SendLetter", &frmbday::sendLetter);
    on(u"SendEmail", [this] { sendWish(context(), currentWish(), WishWay::Show); });
    on(u"sendtoday", [this] { sendWish(context(), currentWish(), WishWay::Outbox); });
    on(u"Confirm", &frmbday::timeWishOfRow);
    on(u"TransTask", &frmbday::beginCopy);
    on(u"Print", &frmbday::print);
    on(u"Export", &frmbday::exportGrid);
    on(u"SaveCalendar", [this] { saveCalendarFile(context(), this); });
    on(u"ColorLegend", [this] { m_month->toggleLegend(); });
    const auto toDepth = [this](bool isFull) {
        showView({m_list->view().occasion, isFull, Regrouping::Refresh});
    };
    on(u"Simple", [toDepth] { toDepth(false); });
    on(u"Details", [toDepth] { toDepth(true); });
}

void frmbday::connectControls()
{
    connect(SSActiveTabs1, &QTabBar::currentChanged, this, [this](int tab) {
        ListView view = m_list->view();
        view.occasion = tab == 0 ? Occasion::Birthday : Occasion::Anniversary;
        showView(view);
    });
    // The tab in front reads the list anew too.
    connect(ssTabMerge, &QTabBar::tabBarClicked, this, [this](int tab) {
        if (tab == ssTabMerge->currentIndex())
            m_list->refresh();
    });
    connect(ssTabMerge, &QTabBar::currentChanged, this, [this](int tab) {
        ListView view = m_list->view();
        view.regrouping = static_cast<Regrouping>(tab);
        showView(view);
    });
    connect(OptAll, &QRadioButton::clicked, this, &frmbday::viewAll);
    connect(Opt60, &QRadioButton::clicked, this, [this] {
        m_tools->action(u"ViewNext")->setChecked(true);
        followFilter();
    });
    const auto offer = [this](widgets::FilledCombo* combo, const QString& sql) {
        combo->setSource([this, sql] {
            QStringList values = core::firstColumn(context().data, sql);
            values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
            return QStringList{all()} + values;
        });
        combo->setText(all());
        connect(combo, &QComboBox::currentTextChanged, this, &frmbday::followFilter);
    };
    offer(DBCcat, categoriesSql());
    offer(DBCPriority, prioritiesSql());
    connect(m_list, &DayList::currentChanged, this, &frmbday::rowChanged);
    connect(m_month, &MonthPanel::dateSelected, this, &frmbday::goToDay);
    connect(Frame7, &CopyPanel::closed, this, &frmbday::copyEnded);
    connect(famTimedEmails, &TimedWishPanel::closed, this, [this] {
        settleSide();
        FGBday->setFocus();
    });
    connect(FGBday, &widgets::HeadingGrid::chosen, m_contactTools->action(u"FullView"), &QAction::trigger);
    connect(FGBday, &QWidget::customContextMenuRequested, this, &frmbday::popUpMenu);
}

// The list is read for what is asked for first; a command opens the page after this.
void frmbday::load()
{
    QTimer::singleShot(0, this, [this] {
        if (!m_isRead)
            showView(m_list->view());
        m_month->readDays();
    });
    showDepth();
}

void frmbday::openPage(const QString& page)
{
    const bool isAnniversary = page.compare(u"Anniversary"_s, Qt::CaseInsensitive) == 0;
    ListView view = m_list->view();
    view.occasion = isAnniversary ? Occasion::Anniversary : Occasion::Birthday;
    if (m_isRead && view == m_list->view())
        return;
    if (Frame7->isVisibleTo(this)) { // its ticks are those of the list in front
        if (!mayDiscard())
            return;
        Frame7->leave();
    }
    showView(view);
}

bool frmbday::isTouched() const
{
    return Frame7->isTouched() || famTimedEmails->isTouched();
}

// Ticks that are being chosen stay.
void frmbday::bookChanged()
{
    DBCcat->refill();
    DBCPriority->refill();
    m_month->readDays();
    if (!m_isRead || Frame7->isVisibleTo(this))
        return;
    m_list->refresh();
    showEmptyText();
}

void frmbday::vocabulariesChanged()
{
    Screen::vocabulariesChanged();
    DBCcat->refill();
}

void frmbday::showView(const ListView& view)
{
    m_isRead = true;
    const QSignalBlocker quietTabs(SSActiveTabs1);
    const QSignalBlocker quietGroups(ssTabMerge);
    SSActiveTabs1->setCurrentIndex(view.occasion == Occasion::Birthday ? 0 : 1);
    ssTabMerge->setCurrentIndex(static_cast<int>(view.regrouping));
    m_list->open(view);
    showDepth();
    showEmptyText();
    rowChanged();
}

void frmbday::showEmptyText()
{
    if (m_list->rows() > 0)
        FGBday->setEmptyText(tr("No day of the list is as chosen above"));
    else if (m_list->view().occasion == Occasion::Birthday)
        FGBday->setEmptyText(tr("No birthday is known. Enter them in the details of a contact."));
    else
        FGBday->setEmptyText(tr("No anniversary is known. Enter them in the details of a contact."));
}

// What the short list does not have can not be filtered by, nor copied.
void frmbday::showDepth()
{
    const bool isFull = m_list->view().isFull;
    const bool isBirthday = m_list->view().occasion == Occasion::Birthday;
    setFrameTitle(isBirthday ? tr("Birthday List") : tr("Anniversary List"));
    findChild<QLabel*>(u"lblDepth"_s)->setText(isFull ? tr("Full View") : tr("Short View"));
    m_tools->action(u"Simple")->setVisible(isFull);
    m_tools->action(u"Details")->setVisible(!isFull);
    m_tools->action(u"TransTask")->setEnabled(isFull);
    ssTabMerge->setVisible(isFull);
    m_categoryFilter->setVisible(isFull);
    for (const QString& name : {u"SSCommand2"_s, u"SSCommand5"_s, u"CmdAview"_s})
        findChild<QPushButton*>(name)->setVisible(isFull);
    if (!isFull)
        DBCcat->setText(all());
}

void frmbday::followFilter()
{
    const auto isDown = [this](QStringView id) { return m_tools->action(id)->isChecked(); };
    (isDown(u"ViewNext") ? Opt60 : OptAll)->setChecked(true);
    m_list->setFilter({.next60 = isDown(u"ViewNext"),
        .hides34 = isDown(u"Priority1"),
        .hides12 = isDown(u"Priority2"),
        .category = chosenIn(DBCcat),
        .priority = chosenIn(DBCPriority)});
}

void frmbday::viewAll()
{
    m_tools->action(u"ViewNext")->setChecked(false);
    followFilter();
    m_list->refresh();
}

void frmbday::rowChanged()
{
    setPosition(m_list->position());
    const std::optional<ListedDay> day = m_list->current();
    if (!day)
        return m_detail->clear();
    m_detail->display(*day, m_list->view().occasion);
    m_month->choose(dayInYear(day->date, context().services.clock.today().year()));
}

void frmbday::goToDay(QDate day)
{
    if (!m_list->goTo(day))
        m_detail->clear(m_list->view().occasion == Occasion::Birthday
                ? tr("No birthday of the list is on that day")
                : tr("No anniversary of the list is on that day"));
}

void frmbday::beginCopy()
{
    if (Frame7->isVisibleTo(this) || !mayDiscard())
        return;
    if (!m_isRead || !m_list->view().isFull)
        showView({m_list->view().occasion, true, m_list->view().regrouping});
    famTimedEmails->hide();
    for (QWidget* control : {static_cast<QWidget*>(SSActiveTabs1), static_cast<QWidget*>(ssTabMerge),
             static_cast<QWidget*>(OptAll)})
        control->setEnabled(false); // they read the list anew, and with it the ticks
    for (const QStringView id : kNotWhileCopying)
        m_tools->action(id)->setEnabled(false);
    Frame7->ask();
    settleSide();
}

void frmbday::copyEnded()
{
    for (QWidget* control : {static_cast<QWidget*>(SSActiveTabs1), static_cast<QWidget*>(ssTabMerge),
             static_cast<QWidget*>(OptAll)})
        control->setEnabled(true);
    for (const QStringView id : kNotWhileCopying)
        m_tools->action(id)->setEnabled(true);
    settleSide();
    m_list->refresh();
    FGBday->setFocus();
}

Wish frmbday::currentWish() const
{
    const std::optional<ListedDay> day = m_list->current();
    if (!day)
        return {};
    return {.occasion = m_list->view().occasion,
        .id = day->id,
        .person = day->name,
        .isOwn = day->name == day->contact,
        .date = day->date};
}

// Kept: in the short view the letter goes by the name of who celebrates, whoever has that name.
void frmbday::sendLetter()
{
    const std::optional<ListedDay> day = m_list->current();
    const bool isFull = m_list->view().isFull;
    jet::Recordset contact = !day
        ? jet::Recordset()
        : context().data.openRecordset(
            isFull ? contactOfRowSql(day->contact, day->category1) : contactNamedSql(day->name));
    if (isFull && day && !contact.hasRow()) // it has no category
        contact = context().data.openRecordset(core::contactByIdSql(day->id));
    writeWishLetter(context(), contact,
        m_list->view().occasion == Occasion::Birthday ? u"Birthday2"_s : u"Anniversary"_s);
}

void frmbday::timeWishOfRow()
{
    const Wish wish = currentWish();
    if (wish.id == 0)
        return inform(tr("Record not selected"));
    if (!mayDiscard())
        return;
    famTimedEmails->ask(wish);
    settleSide();
}

void frmbday::print()
{
    const bool isBirthday = m_list->view().occasion == Occasion::Birthday;
    const QString report = isBirthday ? u"Birthday"_s : u"Anniversaries"_s;
    QStringList note = core::reportNote(report);
    if (isBirthday)
        note << note.constLast();
    core::requestReport(context(), report, note);
}

void frmbday::exportGrid()
{
    output::exportList(context(), FGBday, u"Contact-Birthday"_s);
}

void frmbday::popUpMenu(const QPoint& at)
{
    if (FGBday->currentKey() == 0)
        return;
    QMenu menu;
    m_tools->addTo(&menu);
    menu.addSeparator();
    m_contactTools->addTo(&menu);
    menu.exec(FGBday->viewport()->mapToGlobal(at));
}

} // namespace anniversaries
