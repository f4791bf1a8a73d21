#include "core/shell/start_page.h"

#include "widgets/theme.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

struct Favourite {
    QStringView tool;
    const char* caption;
    const char* toolTip;
    QStringView icon;
};
constexpr Favourite kFavourites[] = {
    {u"Edit", QT_TRANSLATE_NOOP("shell", "New contact"),
        QT_TRANSLATE_NOOP("shell", "Enter a contact with all its details"), u"person-add"},
    {u"FullView", QT_TRANSLATE_NOOP("shell", "Full view"),
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
    {u"CSetup", QT_TRANSLATE_NOOP("shell", "Set-up"),
        QT_TRANSLATE_NOOP("shell", "Categories, lists and defaults"), u"setup"},
};

} // namespace

StartPage::StartPage(const std::function<bool(const core::Action&)>& isAvailable, QWidget* parent)
    : QWidget(parent)
    , m_day(new QLabel(this))
{
    setObjectName(u"StartPage"_s);
    m_day->setObjectName(u"lblToday"_s);
    QFont large = m_day->font();
    large.setPointSizeF(large.pointSizeF() * 1.9);
    large.setBold(true);
    m_day->setFont(large);
    auto* hint = new QLabel(tr("What would you like to do?"), this);
    hint->setEnabled(false);

    auto* buttons = new QGridLayout;
    buttons->setSpacing(12);
    int place = 0;
    for (const Favourite& favourite : kFavourites) {
        const core::Action* action = core::toolAction(favourite.tool);
        auto* button = new QToolButton(this);
        const QString tool = favourite.tool.toString();
        button->setObjectName(u"start_"_s + tool);
        button->setText(QCoreApplication::translate("shell", favourite.caption));
        button->setToolTip(QCoreApplication::translate("shell", favourite.toolTip));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize({40, 40});
        button->setFixedSize(140, 110);
        widgets::setIcon(button, favourite.icon);
        button->setEnabled(action && isAvailable(*action));
        connect(button, &QToolButton::clicked, this, [this, tool] { Q_EMIT toolWanted(tool); });
        buttons->addWidget(button, place / 4, place % 4);
        ++place;
    }
    auto* centre = new QVBoxLayout;
    centre->setSpacing(8);
    centre->addStretch(2);
    centre->addWidget(m_day, 0, Qt::AlignHCenter);
    centre->addWidget(hint, 0, Qt::AlignHCenter);
    centre->addSpacing(18);
    centre->addLayout(buttons);
    centre->addStretch(3);
    auto* whole = new QHBoxLayout(this);
    whole->addStretch();
    whole->addLayout(centre);
    whole->addStretch();
}

void StartPage::setToday(QDate today)
{
    m_day->setText(QLocale().toString(today, QLocale::LongFormat));
}

} // namespace shell
