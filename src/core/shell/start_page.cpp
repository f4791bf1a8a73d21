#include "core/shell/start_page.h"

#include "core/shell/coming_birthdays.h"
#include "core/shell/start_page_rows.h"
#include "platform/clock.h"
#include "widgets/theme.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr int kTypedMs = 150;
// One letter finds nearly everybody.
constexpr int kLeastTyped = 2;
constexpr int kMostShown = 10;
constexpr int kDaysAhead = 14;

struct Favourite {
    QStringView tool;
    const char* caption;
    const char* toolTip;
    QStringView icon;
};
constexpr Favourite kFavourites[] = {
    {u"NewContact", QT_TRANSLATE_NOOP("shell", "New contact"),
        QT_TRANSLATE_NOOP("shell", "Enter a contact with all its details"), u"person-add"},
    {u"FullView", QT_TRANSLATE_NOOP("shell", "Contacts Full View"),
        QT_TRANSLATE_NOOP("shell", "Look through the contacts one by one"), u"persons"},
    {u"Search", QT_TRANSLATE_NOOP("shell", "Search"),
        QT_TRANSLATE_NOOP("shell", "Find contacts by any field"), u"search"},
    {u"BirthdayList", QT_TRANSLATE_NOOP("shell", "Birthdays"),
        QT_TRANSLATE_NOOP("shell", "Who has a birthday, and how old they turn"), u"cake"},
    {u"Phone", QT_TRANSLATE_NOOP("shell", "Phone dialer"),
        QT_TRANSLATE_NOOP("shell", "Dial a number and keep a record of the call"), u"phone"},
    {u"Creator", QT_TRANSLATE_NOOP("shell", "Letters"),
        QT_TRANSLATE_NOOP("shell", "Write a letter to one contact or many"), u"letter"},
    {u"EMails", QT_TRANSLATE_NOOP("shell", "E-mail"),
        QT_TRANSLATE_NOOP("shell", "Write to one contact or many"), u"envelope"},
    {u"CSetup", QT_TRANSLATE_NOOP("shell", "Address Book Setup"),
        QT_TRANSLATE_NOOP("shell", "Categories, lists and defaults"), u"setup"},
};

} // namespace

StartPage::StartPage(
    core::Context& context, const std::function<bool(const core::Action&)>& isAvailable, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_day(new QLabel(this))
    , m_count(new QLabel(this))
    , m_search(new QLineEdit(this))
    , m_heading(new QLabel(this))
    , m_contacts(makeList(u"lstStartContacts"_s, tr("Contacts")))
    , m_contactPart(new QWidget(this))
    , m_birthdayPart(new QWidget(this))
    , m_birthdays(makeList(u"lstStartBirthdays"_s, tr("Birthdays of the next days")))
    , m_first(new QToolButton(this))
{
    setObjectName(u"StartPage"_s);
    m_day->setObjectName(u"lblToday"_s);
    QFont large = m_day->font();
    large.setPointSizeF(large.pointSizeF() * 1.9);
    large.setBold(true);
    m_day->setFont(large);
    m_count->setObjectName(u"lblContacts"_s);
    m_count->setForegroundRole(QPalette::PlaceholderText);
    m_search->setObjectName(u"txtStartSearch"_s);
    m_search->setPlaceholderText(tr("Find a contact by name, company, mobile number or e-mail"));
    m_search->setAccessibleName(tr("Find a contact"));
    m_search->installEventFilter(this);
    m_heading->setObjectName(u"lblStartList"_s);
    m_first->setObjectName(u"cmdFirstContact"_s);
    m_first->setText(tr("Add your first contact"));
    m_first->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_first->setIconSize({56, 56});
    m_first->setMinimumSize(300, 150);
    widgets::setIcon(m_first, u"person-add");

    constexpr int kBirthdaysMs = 400;
    m_birthdaysDue.setSingleShot(true);
    m_birthdaysDue.setInterval(kBirthdaysMs);
    connect(&m_birthdaysDue, &QTimer::timeout, this, &StartPage::readBirthdays);
    m_typed.setSingleShot(true);
    m_typed.setInterval(kTypedMs);
    connect(m_search, &QLineEdit::textChanged, &m_typed, qOverload<>(&QTimer::start));
    connect(m_search, &QLineEdit::returnPressed, this, &StartPage::choose);
    connect(&m_typed, &QTimer::timeout, this, &StartPage::search);
    connect(m_contacts, &QListWidget::itemClicked, this, &StartPage::choose);
    connect(m_contacts, &QListWidget::itemActivated, this, &StartPage::choose);
    const auto showBirthday = [this](const QListWidgetItem* item) {
        Q_EMIT contactWanted(item->data(Qt::UserRole).toLongLong());
    };
    connect(m_birthdays, &QListWidget::itemClicked, this, showBirthday);
    connect(m_birthdays, &QListWidget::itemActivated, this, showBirthday);
    connect(m_first, &QToolButton::clicked, this, [this] { Q_EMIT toolWanted(u"NewContact"_s); });

    auto* column = new QWidget(this);
    column->setMaximumWidth(640);
    auto* centre = new QVBoxLayout(column);
    centre->setSpacing(8);
    centre->addStretch(1);
    centre->addWidget(m_day, 0, Qt::AlignHCenter);
    centre->addWidget(m_count, 0, Qt::AlignHCenter);
    centre->addSpacing(10);
    centre->addWidget(m_first, 0, Qt::AlignHCenter);
    centre->addWidget(m_search);
    centre->addLayout(layOutLists(), 4);
    centre->addSpacing(10);
    centre->addWidget(layOutTools(isAvailable), 0, Qt::AlignHCenter);
    centre->addStretch(1);
    auto* whole = new QHBoxLayout(this);
    whole->addStretch(1);
    whole->addWidget(column, 8);
    whole->addStretch(1);
}

QListWidget* StartPage::makeList(const QString& name, const QString& accessibleName)
{
    auto* list = new QListWidget(this);
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setFrameShape(QFrame::NoFrame);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTextElideMode(Qt::ElideRight);
    return list;
}

// Side by side, so that both can be seen in a low window.
QLayout* StartPage::layOutLists()
{
    auto* contacts = new QVBoxLayout(m_contactPart);
    contacts->setContentsMargins(0, 0, 0, 0);
    contacts->addWidget(m_heading);
    contacts->addWidget(m_contacts, 1);
    auto* birthdays = new QVBoxLayout(m_birthdayPart);
    birthdays->setContentsMargins(0, 0, 0, 0);
    birthdays->addWidget(new QLabel(tr("Birthdays of the next days")));
    birthdays->addWidget(m_birthdays, 1);
    m_birthdayPart->hide();
    auto* lists = new QHBoxLayout;
    lists->setSpacing(16);
    lists->addWidget(m_contactPart, 1);
    lists->addWidget(m_birthdayPart, 1);
    return lists;
}

QWidget* StartPage::layOutTools(const std::function<bool(const core::Action&)>& isAvailable)
{
    auto* tools = new QWidget(this);
    auto* grid = new QGridLayout(tools);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(10);
    for (const Favourite& favourite : kFavourites) {
        const core::Action* action = core::toolAction(favourite.tool);
        auto* button = new QToolButton(tools);
        const QString tool = favourite.tool.toString();
        button->setObjectName(u"start_"_s + tool);
        button->setText(QCoreApplication::translate("shell", favourite.caption));
        button->setToolTip(QCoreApplication::translate("shell", favourite.toolTip));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize({32, 32});
        button->setFixedSize(146, 84);
        widgets::setIcon(button, favourite.icon);
        button->setEnabled(action && isAvailable(*action));
        connect(button, &QToolButton::clicked, this, [this, tool] { Q_EMIT toolWanted(tool); });
        m_tools << button;
    }
    placeTools();
    return tools;
}

// Four in a row, without holes.
void StartPage::placeTools()
{
    constexpr int kInARow = 4;
    auto* grid = static_cast<QGridLayout*>(m_tools.first()->parentWidget()->layout());
    int place = 0;
    for (QToolButton* button : std::as_const(m_tools)) {
        const bool shown = m_showsAll || button->isEnabled();
        button->setVisible(shown);
        grid->removeWidget(button);
        if (shown) {
            grid->addWidget(button, place / kInARow, place % kInARow);
            ++place;
        }
    }
}

void StartPage::setToday(QDate today)
{
    m_day->setText(QLocale().toString(today, QLocale::LongFormat));
    m_bookRead.clear(); // other birthdays are near
}

void StartPage::showWhatIsToCome(bool shown)
{
    m_showsAll = shown;
    placeTools();
}

void StartPage::showBirthdays(bool shown)
{
    m_showsBirthdays = shown;
    m_bookRead.clear();
}

// Behind the first picture of the page: a large book takes a moment.
void StartPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    QTimer::singleShot(0, this, &StartPage::readBook);
}

void StartPage::readBook()
{
    if (!m_context.data.isOpen() || m_bookRead == m_context.data.state())
        return;
    m_bookRead = m_context.data.state();
    const qint64 contacts = m_context.data.openRecordset(contactCountSql()).number(u"n");
    m_count->setText(contacts == 1 ? tr("1 contact") : tr("%1 contacts").arg(QLocale().toString(contacts)));
    m_count->setVisible(contacts > 0); // of an empty book the button says enough
    m_first->setVisible(contacts == 0);
    m_search->setVisible(contacts > 0);
    search();
    // Of a large book this is the longest part: the rest of the page is there before, and a screen that is
    // opened at once too.
    m_birthdaysDue.start();
}

void StartPage::readBirthdays()
{
    // Whoever comes back to the page has it read then.
    if (!isVisible())
        return m_bookRead.clear();
    m_birthdays->clear();
    const QDate today = m_context.services.clock.today();
    const auto coming = m_showsBirthdays && m_context.data.isOpen()
        ? comingBirthdays(m_context.data, today, kDaysAhead, kMostShown)
        : QList<ComingBirthday>();
    for (const ComingBirthday& one : coming) {
        const qint64 days = today.daysTo(one.day);
        const QString when = days == 0 ? tr("Today")
            : days == 1                ? tr("Tomorrow")
                                       : QLocale().toString(one.day, u"ddd d MMM"_s);
        QString who = one.contact.isEmpty() ? one.name : tr("%1 (%2)").arg(one.name, one.contact);
        if (one.age)
            who = tr("%1, %2").arg(who).arg(*one.age);
        auto* item = new QListWidgetItem(when + u"  "_s + who, m_birthdays);
        item->setData(Qt::UserRole, one.id);
        item->setToolTip(who.toHtmlEscaped());
    }
    m_birthdayPart->setVisible(!coming.isEmpty());
}

void StartPage::search()
{
    const QString typed = m_search->text().trimmed();
    if (typed.size() < kLeastTyped)
        fill(tr("Changed lately"), changedLatelySql(m_context.services.clock.today()));
    else
        fill(tr("Found"), startSearchSql(typed));
}

void StartPage::fill(const QString& heading, const QString& sql)
{
    m_contacts->clear();
    for (auto rows = m_context.data.openRecordset(sql); rows.hasRow() && m_contacts->count() < kMostShown;
         rows.moveNext()) {
        const QString name = rows.textOrEmpty(u"name").simplified();
        auto* item = new QListWidgetItem(name.isEmpty() ? tr("(without a name)") : name, m_contacts);
        item->setData(Qt::UserRole, rows.number(u"id"));
    }
    const bool hasSome = m_contacts->count() > 0;
    m_heading->setText(hasSome || m_search->text().isEmpty() ? heading : tr("Nothing found"));
    m_contactPart->setVisible(hasSome || !m_search->text().isEmpty());
    m_contacts->setVisible(hasSome);
}

// The one that is chosen in the list, else the first.
void StartPage::choose()
{
    if (m_typed.isActive()) {
        m_typed.stop();
        search();
    }
    const QListWidgetItem* item = m_contacts->currentItem() ? m_contacts->currentItem() : m_contacts->item(0);
    if (item && (m_contacts->hasFocus() || !m_search->text().trimmed().isEmpty()))
        Q_EMIT contactWanted(item->data(Qt::UserRole).toLongLong());
}

// The arrow down goes from the box into the list.
bool StartPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down && m_contacts->count() > 0) {
        m_contacts->setFocus();
        m_contacts->setCurrentRow(0);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace shell
