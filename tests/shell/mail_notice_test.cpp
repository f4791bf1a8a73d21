#include "core/shell/mail_notice.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/mail_account.h"
#include "support/mail_server.h"
#include "support/screen_fixture.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using platform::Answer;

namespace {

constexpr int kWaitMs = 20'000;
const QString kOnTheTab
    = u" in the Address Book Setup, on the tab \"Mail\".\n\nDo you want to do this now?"_s;

} // namespace

/// What a person is told of mail on its way, and what their answers do.
class MailNoticeTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsWhatBecameOfIt_data()
    {
        // to: empty for one that was on its way when the program ended; box: without one it stands in the
        // strip
        support::columns<QString, QString, QString, int, QString>("to", "user", "box", "answer", "end");
        const int yes = int(Answer::Yes);
        const int no = int(Answer::No);
        const QString text = u"The message \"<b>S</b>\" "_s;
        QTest::newRow("sent") << u"a@x.in"_s << QString() << QString() << no << u"Sent \"<b>S</b>\""_s;
        QTest::newRow("delayed")
            << u"later@x.in"_s << QString() << QString() << no
            << u"\"<b>S</b>\" could not be sent yet and is tried again: 451 Come back later"_s;
        QTest::newRow("refused") << u"refused@x.in"_s << QString()
                                 << text
                + u"was not sent. It is kept in the folder \"Failed\" of the outbox.\n\nThe "
                  "mail server said: 550 No such person here"_s
                                 << -1 << u"Outbox/Failed"_s;
        QTest::newRow("password")
            << u"a@x.in"_s << u"asha"_s
            << u"The messages in the outbox wait for the password of your mail account. It is "
               "entered"_s
                + kOnTheTab
            << yes << u"setup"_s;
        const QString unclear = text
            + u"was handed over to the mail server, but its answer did not come. The server may have sent it "
              "or not.\n\nDo you want to send it once more? Those who have got it would get it twice."_s;
        QTest::newRow("unclear, no") << QString() << QString() << unclear << no << u"Outbox/Failed"_s;
        QTest::newRow("unclear, yes") << QString() << QString() << unclear << yes << u"Sent \"<b>S</b>\""_s;
    }
    void tellsWhatBecameOfIt()
    {
        QFETCH(QString, to);
        QFETCH(QString, user);
        QFETCH(QString, box);
        QFETCH(int, answer);
        QFETCH(QString, end);
        support::ScreenFixture fixture;
        const support::MailServer server;
        support::MailAccount mail(fixture.root.path(), 0);
        shell::MailNotice notices(fixture.context, mail.post);
        platform::MailAccount account = support::MailAccount::open(server.port());
        account.user = user;
        QVERIFY(mail.accounts.store(account));
        if (!box.isEmpty())
            answer < 0 ? fixture.boxes.expect(box) : fixture.boxes.expect(box, Answer(answer));
        if (to.isEmpty()) {
            support::put(fixture.root.filePath(u"MailBox/Outbox/Sending/cur/1"_s),
                "To: a@x.in\r\nSubject: <b>S</b>\r\n\r\nText\r\n");
            mail.post.begin();
        } else {
            QVERIFY(mail.client.Send({.To = to, .Subject = u"<b>S</b>"_s, .Body = u"Text"_s}));
        }
        const auto reached = [&] {
            return end == u"setup" ? !fixture.frame.performed.empty()
                : end.startsWith(u"Outbox")
                ? mail.client.Items(end).value.size() == 1 && !fixture.boxes.shown.isEmpty()
                : fixture.frame.notices.value(0) == end;
        };
        QTRY_VERIFY_WITH_TIMEOUT(reached(), kWaitMs);
        if (end == u"setup")
            QCOMPARE(std::get<core::OpenScreen>(fixture.frame.performed[0]).page, u"Mail");
        QCOMPARE(fixture.verify(), QString());
    }

    // The person is asked once, and not in the middle of what they do.
    void asksForAnAccountOnce()
    {
        support::ScreenFixture fixture;
        support::MailAccount mail(fixture.root.path(), 0);
        shell::MailNotice notices(fixture.context, mail.post);
        fixture.boxes.expect(
            u"The message is kept in the outbox. It is sent when you have set up your mail account"_s
                + kOnTheTab,
            Answer::No);
        for (int i = 0; i < 2; ++i) {
            QVERIFY(mail.client.Send({.To = u"a@x.in"_s, .Subject = u"S"_s}));
            QCOMPARE(fixture.boxes.shown.size(), i);
            QTRY_COMPARE(fixture.boxes.shown.size(), 1);
        }
        QTest::qWait(50);
        QVERIFY(fixture.frame.performed.empty());
        QCOMPARE(fixture.verify(), QString());
    }
};

QTEST_MAIN(MailNoticeTest)
#include "mail_notice_test.moc"
