#include "support/screen_fixture.h"

#include "widgets/date_box.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace support {

void RecordingFrame::place(core::Screen* screen, core::Shown shown)
{
    placed << screen->objectName() + (shown == core::Shown::Modally ? u" modally"_s : QString());
    screen->resize(1180, 720);
    screen->show();
}

void RecordingFrame::bringForward(core::Screen* screen)
{
    broughtForward << screen->objectName();
}

void RecordingFrame::showNotice(const QString& text, const QString& actionText, std::function<void()> action)
{
    notices << (actionText.isEmpty() ? text : text + u" ["_s + actionText + u']');
    noticeAction = std::move(action);
}

bool RecordingFrame::perform(const core::Action& action)
{
    performed.push_back(action);
    return able;
}

bool RecordingFrame::canPerform(const core::Action&) const
{
    return able;
}

bool TargetScreen::showContact(qint64 id)
{
    contacts << id;
    return knowsContacts;
}

ScreenFixture::ScreenFixture(TestBook::Rows rows)
    : book(rows)
    , drive(root.path(), book.folder())
    , clock(QDate(2024, 3, 15))
    , schema(TestBook::schema())
    , context{book.data(), book.data(), schema, shared, screens, frame,
          {drive, boxes, shell, sounds, folders, favourites, help, mailContacts, clock, printer, mail,
              mailAccounts, modem, modem, wordProcessor, scanner, speller}}
{
    screens.setContext(context);
    widgets::DateBox::setToday([this] { return clock.today(); });
}

ScreenFixture::~ScreenFixture()
{
    screens.unloadAll();
    widgets::DateBox::setToday([] { return QDate(); });
}

void ScreenFixture::addTarget(const QString& form)
{
    screens.add<TargetScreen>(form);
}

TargetScreen* ScreenFixture::target(const QString& form)
{
    return dynamic_cast<TargetScreen*>(screens.find(form));
}

void ScreenFixture::execute(const QString& sql)
{
    if (!context.data.execute(sql).ok)
        qFatal("a statement of the test was refused: %s", qUtf8Printable(sql));
}

QString ScreenFixture::verify()
{
    const QString boxFailures = boxes.verify();
    const QString statementFailures = book.unexpected();
    return boxFailures.isEmpty() || statementFailures.isEmpty() ? boxFailures + statementFailures
                                                                : boxFailures + u'\n' + statementFailures;
}

} // namespace support
