#include "core/setup/FrmOthers.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using platform::MailAccount;
using platform::MailSecurity;
using platform::PasswordPlace;
using widgets::child;

/// The page on which a person sets up how their mail leaves.
class MailPanelTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<support::ScreenFixture>(); }
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void savesTheAccountAndHandsThePasswordOver()
    {
        open();
        fill();
        support::type(m_form, u"txtMailPassword"_s, u" pass'word "_s);
        QVERIFY(m_form->isTouched());
        support::click(m_form, u"cmdMailSave"_s);
        QCOMPARE(hint(), u"Saved."_s);
        QVERIFY(m_fixture->mailAccounts.kept == account());
        QCOMPARE(m_fixture->mailAccounts.password, u" pass'word "_s);
        QCOMPARE(password()->text(), QString());
        QCOMPARE(password()->placeholderText(), u"Kept in the secret store of the desktop"_s);
        QVERIFY(!m_form->isTouched());

        // Opened anew it shows the same, but not the password.
        m_fixture->screens.unloadAll();
        open();
        QCOMPARE(shown(),
            (QStringList{u"Asha Rao"_s, u"asha@x.in"_s, u"smtp.x.in"_s, u"587"_s, u"asha"_s, QString()}));
        QCOMPARE(child<QComboBox>(m_form, u"cboMailSecurity"_s)->currentText(), u"STARTTLS"_s);
        QCOMPARE(password()->placeholderText(), u"Kept in the secret store of the desktop"_s);
    }

    void saysWhereThePasswordIs_data()
    {
        support::columns<int, QString, QString>("place", "typed", "hint");
        QTest::newRow("in memory")
            << int(PasswordPlace::Memory) << u"p"_s
            << u"Saved. No secret store runs on this desktop, so the password is known until the "
               "program ends, and is asked for after the next start."_s;
        QTest::newRow("nowhere") << int(PasswordPlace::SecretStore) << QString()
                                 << u"Saved. Mail can be sent when the password is entered."_s;
    }
    void saysWhereThePasswordIs()
    {
        QFETCH(int, place);
        QFETCH(QString, typed);
        m_fixture->mailAccounts.place = PasswordPlace(place);
        open();
        fill();
        if (!typed.isEmpty())
            support::type(m_form, u"txtMailPassword"_s, typed);
        support::click(m_form, u"cmdMailSave"_s);
        QTEST(hint(), "hint");
    }

    void saysWhatIsWrong_data()
    {
        support::columns<QString, QString, QString>("control", "typed", "hint");
        const QString server = u"The name of the mail server can not be used."_s;
        QTest::newRow("no address") << u"txtMailAddress"_s << u"Asha"_s
                                    << u"The e-mail address can not be used."_s;
        QTest::newRow("no server") << u"txtMailServer"_s << u" "_s << server;
        QTest::newRow("an address as server") << u"txtMailServer"_s << u"smtp.x.in/path"_s << server;
        QTest::newRow("a full disk") << u"txtMailName"_s << u"A"_s
                                     << u"The account could not be stored: full."_s;
        QTest::newRow("no port") << u"txtMailPort"_s << QString()
                                 << u"The port is a number from 1 to 65535."_s;
        QTest::newRow("open and far") << u"cboMailSecurity"_s << u"None (a server on this computer)"_s
                                      << u"Only a server on this computer can be used without encryption."_s;
    }
    void saysWhatIsWrong()
    {
        QFETCH(QString, control);
        QFETCH(QString, typed);
        QFETCH(QString, hint);
        m_fixture->mailAccounts.refusal = control == u"txtMailName" ? hint : QString();
        open();
        fill();
        if (control == u"cboMailSecurity")
            support::choose(m_form, control, typed);
        else
            support::type(m_form, control, typed);
        support::click(m_form, u"cmdMailSave"_s);
        QCOMPARE(this->hint(), hint);
        QVERIFY(!m_fixture->mailAccounts.kept);
        support::click(m_form, u"cmdMailTest"_s);
        QCOMPARE(m_fixture->mailAccounts.tests.empty(), control != u"txtMailName");
        QVERIFY(m_form->isTouched());
    }

    void theTestTellsWhatTheServerSaid()
    {
        open();
        fill();
        support::type(m_form, u"txtMailPassword"_s, u"secret"_s);
        auto& accounts = m_fixture->mailAccounts;
        for (const bool sent : {true, false}) {
            support::click(m_form, u"cmdMailTest"_s);
            QCOMPARE(hint(), u"A test is on its way to asha@x.in ..."_s);
            QVERIFY(!child<QPushButton>(m_form, u"cmdMailTest"_s)->isEnabled());
            accounts.pendingTest(sent, u"<b>250</b>"_s);
            QCOMPARE(hint(),
                sent ? u"The test was sent. The mail server said: <b>250</b>"_s
                     : u"The test was not sent. <b>250</b>"_s);
        }
        QCOMPARE(child<QLabel>(m_form, u"lblMailHint"_s)->textFormat(), Qt::PlainText);
        QVERIFY(accounts.tests.at(0).first == account());
        QVERIFY(accounts.tests.at(0).second == u"secret"_s);
        // Trying it out keeps nothing. The screen may be gone when the answer comes.
        QVERIFY(!accounts.kept && accounts.password.isEmpty());
        support::click(m_form, u"cmdMailTest"_s);
        m_fixture->screens.unloadAll();
        accounts.pendingTest(true, QString());
    }

    void whatIsTypedStaysUntilItIsSavedOrRemoved()
    {
        m_fixture->mailAccounts.kept = account();
        m_fixture->mailAccounts.password = u"p"_s;
        open();
        support::type(m_form, u"txtMailName"_s, u"Other"_s);
        m_form->bookChanged();
        QCOMPARE(shown().value(0), u"Other"_s);
        m_fixture->boxes.expect(
            u"Do you want to remove the mail account? Messages in the outbox stay there."_s,
            platform::Answer::No);
        support::click(m_form, u"cmdMailRemove"_s);
        QVERIFY(m_fixture->mailAccounts.kept.has_value());
        m_fixture->boxes.expect(
            u"Do you want to remove the mail account? Messages in the outbox stay there."_s,
            platform::Answer::Yes);
        support::click(m_form, u"cmdMailRemove"_s);
        QVERIFY(!m_fixture->mailAccounts.kept.has_value());
        QCOMPARE(shown(), (QStringList{QString(), QString(), QString(), u"465"_s, QString(), QString()}));
        // The usual port follows the encryption, one's own stays.
        support::choose(m_form, u"cboMailSecurity"_s, u"STARTTLS"_s);
        QCOMPARE(shown().value(3), u"587"_s);
        support::type(m_form, u"txtMailPort"_s, u"2525"_s);
        support::choose(m_form, u"cboMailSecurity"_s, u"TLS"_s);
        QCOMPARE(shown().value(3), u"2525"_s);
    }

private:
    static MailAccount account()
    {
        return {u"Asha Rao"_s, u"asha@x.in"_s, u"smtp.x.in"_s, 587, MailSecurity::StartTls, u"asha"_s};
    }
    void open()
    {
        m_form = m_fixture->open<setup::FrmOthers>(u"FrmOthers"_s);
        m_form->openPage(u"Mail"_s);
        m_form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_form));
    }
    void fill()
    {
        support::type(m_form, u"txtMailName"_s, u" Asha Rao "_s);
        support::type(m_form, u"txtMailAddress"_s, u"asha@x.in"_s);
        support::type(m_form, u"txtMailServer"_s, u"smtp.x.in"_s);
        support::choose(m_form, u"cboMailSecurity"_s, u"STARTTLS"_s);
        support::type(m_form, u"txtMailUser"_s, u"asha"_s);
    }
    QString hint() const { return child<QLabel>(m_form, u"lblMailHint"_s)->text(); }
    QLineEdit* password() const { return child<QLineEdit>(m_form, u"txtMailPassword"_s); }
    QStringList shown() const
    {
        QStringList all;
        for (const QString& name : {u"txtMailName"_s, u"txtMailAddress"_s, u"txtMailServer"_s,
                 u"txtMailPort"_s, u"txtMailUser"_s, u"txtMailPassword"_s})
            all << child<QLineEdit>(m_form, name)->text();
        return all;
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    setup::FrmOthers* m_form = nullptr;
};

QTEST_MAIN(MailPanelTest)
#include "mail_panel_test.moc"
