#include "anniversaries/year/year_view.h"

#include "anniversaries/list/birthday_list_sql.h"
#include "anniversaries/list/frmbday.h"
#include "anniversaries/wishes/send_wish.h"
#include "anniversaries/wishes/TimedWishPanel.h"
#include "anniversaries/wishes/wish_tools.h"
#include "anniversaries/year/year_sign.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/screens.h"
#include "jet/date_text.h"
#include "output/grid/list_print.h"
#include "platform/clock.h"
#include "platform/printer.h"
#include "widgets/day_calendar.h"
#include "widgets/heading_grid.h"
#include "widgets/theme.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr YearVariant kBirthdays{YearKind::Birthdays, u"FormAviewbday",
    QT_TRANSLATE_NOOP("anniversaries", "Birthday Date & Signs"), u"CON002",
    u"||Date                   |Name                            |Contact                                 ",
    u"  is Birthday of ", u"Birthday2", false};
// Kept: this view speaks of an anniversary, though it lists birthdays.
constexpr YearVariant kSigns{YearKind::Signs, u"FormZodiacYr",
    QT_TRANSLATE_NOOP("anniversaries", "Zodiac Date & Signs"), u"CON0026",
    u"    |Date                      |Name                                        |Contact                   "
    u"   "
    u"                    ",
    u"  is Anniversary of ", u"Anniversary", true};

constexpr int kIcon = core::Tool::IconOnly;
constexpr core::Tool kTools[] = {
    {.id = u"Birthday",
        .icon = u"cake",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Birthday wishes"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Wishes are for the birthday; keep an e-mail for it"),
        .places = kIcon},
    {.id = u"Ann",
        .icon = u"rings",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Anniversary wishes"),
        .toolTip
        = QT_TRANSLATE_NOOP("anniversaries", "Wishes are for the wedding anniversary; keep an e-mail for it"),
        .places = kIcon},
    tools::kSendLetter,
    tools::kSendEmail,
    tools::kSendToday,
    tools::kConfirm,
    {.id = u"TransTask",
        .icon = u"calendar",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Copy to Scheduler"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Copy birthdays to the scheduler, in their list"),
        .form = u"frmbday",
        .places = kIcon | core::Tool::GroupStart},
    {.id = u"Print",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Print the list"),
        .places = kIcon | core::Tool::GroupStart},
    {.id = u"PrintYear",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Print the year"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "The calendar on one page"),
        .places = kIcon},
    tools::kExport,
};

QStringList marks()
{
    return {u"PriI"_s, u"PriII"_s};
}

QLabel* textLabel(const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

} // namespace

YearView::YearView(core::Context& context, const YearVariant& variant, QWidget* parent)
    : Screen(context, parent)
    , m_variant(variant)
    , m_tools(new core::ToolSet(context.screens, {kTools, "anniversaries"}, this))
    , m_contactTools(new core::ContactTools(context, core::hitTools(),
          {.callerForm = variant.form.toString(),
              .chosen =
                  [this] {
                      const qint64 id = Grid1->currentKey();
                      return core::ChosenContact{id, id};
                  }},
          this))
    , SSYear1(new widgets::DayCalendar(widgets::DayCalendar::Span::Year))
    , Grid1(new widgets::HeadingGrid)
    , SSSplitter1(new QSplitter)
    , lblsaka(textLabel(u"lblsaka"_s))
    , lblZodiac(textLabel(u"lblZodiac"_s))
    , lblBday(textLabel(u"lblBday"_s))
    , lblPerson(textLabel(u"lblPerson"_s))
    , lbldate(textLabel(u"lbldate"_s))
    , CmdView(new QPushButton(tr("&View All")))
    , famTimedEmails(new TimedWishPanel(context, this))
{
    setWindowTitle(QCoreApplication::translate("anniversaries", variant.title));
    QToolBar* bar = m_tools->makeToolBar(this);
    bar->setObjectName(u"SSActiveToolBars1"_s);
    SSSplitter1->setObjectName(u"SSSplitter1"_s);
    SSSplitter1->setChildrenCollapsible(false);
    SSSplitter1->addWidget(layOutList());
    SSSplitter1->addWidget(layOutYear());
    SSSplitter1->setStretchFactor(0, 2);
    SSSplitter1->setStretchFactor(1, 3);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(SSSplitter1, 1);
    connectTools();
    setFocusProxy(SSYear1);
}

QWidget* YearView::layOutList()
{
    Grid1->setObjectName(u"Grid1"_s);
    Grid1->setAccessibleName(tr("Who was born on that day"));
    Grid1->setEmptyText(tr("Nobody of the address book was born on that day."));
    Grid1->setContextMenuPolicy(Qt::CustomContextMenu);
    Grid1->letColumnsGiveWay();
    const bool national = shared().NationalMode;
    const auto shown = [national](const QVariant& date) {
        return jet::formatDate(date.toDate(), national ? u"dd MMM-yyyy" : u"MMM-dd-yyyy");
    };
    for (const QString& column : {u"M_BD"_s, u"Ndate"_s})
        Grid1->showAs(column, shown);
    QFont large = lblsaka->font();
    large.setPointSizeF(large.pointSizeF() * 1.4);
    large.setBold(true);
    lblsaka->setFont(large);
    auto* help = new QPushButton(tr("&Help"));
    help->setObjectName(u"CmdHelp"_s);
    widgets::setIcon(help, u"help");
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(m_variant.help.toString(), help); });
    CmdView->setObjectName(u"CmdView"_s);
    CmdView->setToolTip(tr("All birthdays of the year, or those of one date"));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(help);
    buttons->addStretch(1);
    buttons->addWidget(CmdView);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(8, 6, 8, 8);
    layout->setSpacing(4);
    for (QWidget* part : std::initializer_list<QWidget*>{lblsaka, lblZodiac, lbldate, lblBday, lblPerson})
        layout->addWidget(part);
    layout->addWidget(Grid1, 1);
    layout->addWidget(famTimedEmails);
    layout->addLayout(buttons);
    page->setMinimumWidth(300);
    return page;
}

QWidget* YearView::layOutYear()
{
    SSYear1->setObjectName(u"SSYear1"_s);
    SSYear1->setStyles(marks());
    SSYear1->setMonthStyles({u"One"_s, u"Two"_s, u"Three"_s, u"Four"_s, u"Five"_s, u"Six"_s, u"Seven"_s,
        u"Eight"_s, u"Nine"_s, u"Ten"_s, u"Eleven"_s, u"Twelve"_s});
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(8, 6, 8, 8);
    layout->addWidget(SSYear1, 1);
    layout->addWidget(layOutLegend());
    return page;
}

QWidget* YearView::layOutLegend()
{
    auto* legend = new QWidget;
    auto* layout = new QHBoxLayout(legend);
    layout->setContentsMargins(0, 4, 0, 0);
    const QString texts[] = {tr("Birthday, priority 1 or 2"), tr("Birthday, priority 3 or 4")};
    for (int style = 0; style < marks().size(); ++style) {
        auto* color = new QLabel;
        color->setAutoFillBackground(true);
        QPalette own = palette();
        own.setColor(QPalette::Window, widgets::DayCalendar::styleColor(style, palette()));
        color->setPalette(own);
        color->setFixedSize(14, 14);
        layout->addWidget(color);
        layout->addWidget(new QLabel(texts[style]));
    }
    layout->addStretch(1);
    return legend;
}

void YearView::connectTools()
{
    const auto on = [this](QStringView id, auto perform) {
        connect(m_tools->action(id), &QAction::triggered, this, perform);
    };
    auto* occasions = new QActionGroup(this);
    for (const QStringView id : {u"Birthday", u"Ann"}) {
        m_tools->action(id)->setCheckable(true);
        occasions->addAction(m_tools->action(id));
    }
    m_tools->action(m_variant.kind == YearKind::Birthdays ? u"Birthday" : u"Ann")->setChecked(true);
    on(u"Birthday", [this] { timeWish(Occasion::Birthday); });
    on(u"Ann", [this] { timeWish(Occasion::Anniversary); });
    on(u"Confirm", [this] { timeWish(currentWish().occasion); });
    on(u"SendLetter", &YearView::writeLetter);
    on(u"SendEmail", [this] { sendWish(context(), currentWish(), WishWay::Show); });
    on(u"sendtoday", [this] { sendWish(context(), currentWish(), WishWay::Outbox); });
    on(u"TransTask", [this] {
        context().screens.show(u"frmbday");
        if (auto* list = context().screens.find<frmbday>(u"frmbday"))
            list->beginCopy();
    });
    on(u"Print", [this] { output::ListPrint(context(), Grid1, windowTitle()); });
    on(u"PrintYear", &YearView::printYear);
    on(u"Export", [this] { output::exportList(context(), Grid1, windowTitle()); });
    connect(SSYear1, &widgets::DayCalendar::dateSelected, this, &YearView::listDay);
    connect(Grid1, &widgets::HeadingGrid::currentRowChanged, this, &YearView::showRow);
    connect(Grid1, &widgets::HeadingGrid::chosen, m_contactTools->action(u"FullView"), &QAction::trigger);
    connect(Grid1, &QWidget::customContextMenuRequested, this, &YearView::popUpMenu);
    connect(CmdView, &QPushButton::clicked, this, &YearView::toggleView);
    connect(famTimedEmails, &TimedWishPanel::closed, this, [this] { Grid1->setFocus(); });
}

void YearView::load()
{
    const QDate today = context().services.clock.today();
    SSYear1->setToday(today);
    listDay(today);
    if (m_variant.byDateAtFirst)
        fill(bornOnDateSql(m_variant.kind, today));
    setFrameTitle(windowTitle());
    QTimer::singleShot(0, this, &YearView::markDays);
}

bool YearView::isTouched() const
{
    return famTimedEmails->isTouched();
}

void YearView::bookChanged()
{
    markDays();
    const qint64 key = Grid1->currentKey();
    fill(m_sql);
    if (key != 0)
        Grid1->selectKey(key);
}

// The days are the same in every year. Where several people share one, the most important is what it shows.
void YearView::markDays()
{
    SSYear1->clearDays();
    const auto mark = [this](int month, int day, int priority) {
        if (priority >= 1 && priority <= 4 && SSYear1->styleOf(month, day) != u"PriI")
            SSYear1->setDayStyle(month, day, marks().at(priority <= 2 ? 0 : 1));
    };
    const jet::Recordset days = context().data.openRecordset(markedDaysSql());
    const auto runs = days.leadingRuns();
    for (const jet::Recordset::Run& run : runs)
        mark(run.numbers[0], run.numbers[1], run.numbers[2]);
    for (int row = 0; runs.empty() && row < days.count(); ++row)
        mark(days.valueAt(row, 1).toInt(), days.valueAt(row, 2).toInt(), days.valueAt(row, 3).toInt());
}

// Kept: on 29 February the sign of the day before stays.
void YearView::listDay(QDate day)
{
    if (const QString sign = yearSign(day); !sign.isEmpty())
        lblZodiac->setText(sign);
    // The number and the name of the month run together.
    lblsaka->setText(
        lblZodiac->text() + u"--"_s + QString::number(day.month()) + jet::formatDate(day, u"mmm dd"));
    if (m_showsAll)
        return;
    fill(bornOnDaySql(m_variant.kind, day));
}

void YearView::toggleView()
{
    m_showsAll = !m_showsAll;
    CmdView->setText(m_showsAll ? tr("&View Date Wise") : tr("&View All"));
    SSSplitter1->widget(1)->setVisible(!m_showsAll);
    Grid1->setEmptyText(m_showsAll ? tr("No birthday is known. Enter them in the details of a contact.")
                                   : tr("Nobody of the address book was born on that day."));
    fill(m_showsAll ? wholeYearSql(m_variant.kind) : bornOnDateSql(m_variant.kind, SSYear1->selectedDate()));
}

void YearView::fill(const QString& sql)
{
    m_sql = sql;
    const QString date = dateColumn();
    Grid1->fill(m_variant.heading, context().data.openRecordset(sql),
        m_variant.kind == YearKind::Birthdays ? QStringList{{}, {}, date, u"NAME"_s, u"Contact"_s}
                                              : QStringList{{}, date, u"NAME"_s, u"Contact"_s});
    if (Grid1->rowCount() > 0)
        Grid1->setCurrentRow(0);
    showRow();
}

QString YearView::dateColumn() const
{
    return m_sql.contains(u"as ndate"_s, Qt::CaseInsensitive) ? u"NDate"_s : u"M_BD"_s;
}

void YearView::showRow()
{
    const Wish wish = currentWish();
    const QString day = wish.date.isValid()
        ? jet::formatDate(wish.date, shared().NationalMode ? u"dd MMM" : u"MMM dd")
        : QString();
    lblBday->setText(day);
    lblPerson->setText(wish.person);
    lbldate->setText(day.isEmpty() ? QString() : day + m_variant.born.toString() + wish.person);
    setPosition(Grid1->currentRow() < 0 ? QString()
                                        : u"%1 Of %2"_s.arg(Grid1->currentRow() + 1).arg(Grid1->rowCount()));
}

Wish YearView::currentWish() const
{
    if (Grid1->currentRow() < 0)
        return {};
    const QString person = Grid1->currentText(u"NAME"_s);
    const jet::Recordset& rows = Grid1->recordset();
    const QVariant date = rows.valueAt(Grid1->sourceRow(Grid1->currentRow()), rows.columnIndex(dateColumn()));
    return {.occasion = m_tools->action(u"Ann")->isChecked() ? Occasion::Anniversary : Occasion::Birthday,
        .id = Grid1->currentKey(),
        .person = person,
        .isOwn = person == Grid1->currentText(u"Contact"_s),
        .date = date.toDate()};
}

void YearView::timeWish(Occasion occasion)
{
    Wish wish = currentWish();
    wish.occasion = occasion;
    if (wish.id == 0)
        return inform(tr("Record not selected"));
    if (mayDiscard())
        famTimedEmails->ask(wish);
}

void YearView::writeLetter()
{
    const QString sql = contactNamedSql(Grid1->currentText(u"Contact"_s));
    writeWishLetter(context(), context().data.openRecordset(sql), m_variant.letter.toString());
}

void YearView::printYear()
{
    constexpr double kLong = 16838; // A4, twips
    constexpr double kShort = 11906;
    constexpr double kMargin = 720;
    const QString title = windowTitle() + u" - "_s + QString::number(SSYear1->firstShown().year());
    const platform::PrintJob job{title, kLong, kShort, 1, [this, title](QPainter& painter, int) {
                                     QFont font = painter.font();
                                     font.setPixelSize(180);
                                     painter.setFont(font);
                                     const QRectF paper(0, 0, kLong, kShort);
                                     const QRectF page = paper.adjusted(kMargin, kMargin, -kMargin, -kMargin);
                                     painter.drawText(page, Qt::AlignHCenter | Qt::AlignTop, title);
                                     SSYear1->print(painter, page.adjusted(0, 400, 0, 0));
                                 }};
    if (context().services.printer.print(job, this) == platform::Printed::Failed)
        warn(tr("The year could not be printed."));
}

void YearView::popUpMenu(const QPoint& at)
{
    if (Grid1->currentKey() == 0)
        return;
    QMenu menu;
    m_tools->addTo(&menu);
    menu.addSeparator();
    m_contactTools->addTo(&menu);
    menu.exec(Grid1->viewport()->mapToGlobal(at));
}

FormAviewbday::FormAviewbday(core::Context& context, QWidget* parent)
    : YearView(context, kBirthdays, parent)
{
}

FormZodiacYr::FormZodiacYr(core::Context& context, QWidget* parent)
    : YearView(context, kSigns, parent)
{
}

} // namespace anniversaries
