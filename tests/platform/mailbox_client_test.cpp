#include "platform/mailbox_client.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/mail_account.h"
#include "support/mail_server.h"

#include <QTcpServer>
#include <QtTest>

#include <csignal>

using namespace Qt::StringLiterals;
using Kind = platform::MailNews::Kind;
using platform::MailItem;

namespace {

constexpr int kWaitMs = 20'000;
const QString kPassword = u"se&crété"_s;

MailItem itemTo(const QString& to, const QString& subject = u"Hello"_s)
{
    MailItem item;
    item.To = to;
    item.Subject = subject;
    item.Body = u"Text"_s;
    return item;
}

} // namespace

/// Mail on its way: what is kept, what leaves, what a person is told, and that none is lost or goes twice.
class MailboxClientTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_news.clear();
    }
    void cleanup()
    {
        m_mail.reset();
        m_server.reset();
    }

    void sendsToAllAndFilesIt()
    {
        start();
        const QString file = support::put(m_folder->filePath(u"चित्र.png"_s), QByteArray(200'000, '\x89'));
        MailItem item = itemTo(u"a@x.in; Rao, B <b@x.in>"_s, u"नमस्ते"_s);
        item.CC = u"c@x.in"_s;
        item.BCC = u"hidden@x.in"_s;
        item.Body = u".\n..\nlast\n."_s;
        item.HTMLBody = u"<b>b</b>"_s;
        item.Attachments = {file};
        QCOMPARE(m_mail->client.Send(item).cause, QString());
        QTRY_COMPARE_WITH_TIMEOUT(told(), QStringList{u"Sent नमस्ते"_s}, kWaitMs);
        const QJsonObject taken = m_server->taken().value(0);
        QCOMPARE(taken[u"recipients"].toVariant().toStringList(),
            (QStringList{u"a@x.in"_s, u"b@x.in"_s, u"c@x.in"_s, u"hidden@x.in"_s}));
        QCOMPARE(taken[u"sender"].toString(), u"me@x.in"_s);
        QCOMPARE(taken[u"from"].toString(), u"Asha Rao <me@x.in>"_s);
        QCOMPARE(taken[u"text"].toString(), item.Body);
        QCOMPARE(taken[u"bcc"].toString(), u"None"_s);
        QCOMPARE(taken[u"attachments"][0][0].toString(), u"चित्र.png"_s);
        QCOMPARE(inFolders(), QStringList{u"Sent: नमस्ते"_s});
        const QString entry = m_mail->client.Items(u"Sent"_s).value.value(0);
        const platform::MailHead head = m_mail->client.Item(entry).value;
        QCOMPARE(head.SenderName + u'|' + head.SenderEmailAddress + u'|' + head.Subject,
            u"Asha Rao|me@x.in|नमस्ते"_s);
        QCOMPARE(head.ReceivedTime, m_mail->clock.now());
        const platform::MailText text = m_mail->client.Text(entry).value;
        QCOMPARE(text.Body, item.Body);
        QCOMPARE(text.Attachments, QStringList{u"चित्र.png"_s});
    }

    void refusesWhatCanNotBeSent_data()
    {
        support::columns<QString, QString, QString, QString>("to", "bcc", "attachment", "cause");
        const auto row = [](const char* name, const QString& to, const QString& bcc, const QString& file,
                             const QString& cause) { QTest::newRow(name) << to << bcc << file << cause; };
        const QString a = u"a@x.in;"_s;
        const QString noAddress = u"\"%1\" is no e-mail address."_s;
        const QString unread = u"The attachment \"%1\" can not be read."_s;
        row("nobody", u" ; "_s, {}, {}, u"The message names nobody to send it to."_s);
        row("a name", a + u"Asha"_s, {}, {}, noAddress.arg(u"Asha"_s));
        row("command", a, u"b@x.in>\r\nRCPT TO:<c@x.in"_s, {}, noAddress.arg(u"b@x.in> RCPT TO:<c@x.in"_s));
        row("too many", a.repeated(501), {}, {}, u"A message goes to at most 500 addresses."_s);
        row("no file", a, {}, u"/none/f.txt"_s, u"The attachment \"/none/f.txt\" is not there."_s);
        row("a folder", a, {}, u"/tmp"_s, unread.arg(u"tmp"_s));
        row("a device", a, {}, u"/dev/zero"_s, unread.arg(u"zero"_s));
        row("too large", a, {}, u"large"_s,
            u"The attachments have more than 25 MB together, which mail servers do not take."_s);
    }
    void refusesWhatCanNotBeSent()
    {
        QFETCH(QString, to);
        QFETCH(QString, bcc);
        QFETCH(QString, attachment);
        start();
        MailItem item = itemTo(to);
        item.BCC = bcc;
        if (attachment == u"large")
            attachment = support::put(m_folder->filePath(u"large"_s), QByteArray(26'300'000, 'x'));
        if (!attachment.isEmpty())
            item.Attachments = {attachment};
        QTEST(m_mail->client.Send(item).cause, "cause");
        QCOMPARE(inFolders(), QStringList());
    }

    void aFullDiskIsTold()
    {
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        QVERIFY(m_mail->client.CreateItem());
        MailItem item = itemTo(u"a@x.in"_s);
        item.Body = QString(9000, u'b');
        {
            const support::FullDisk full;
            QVERIFY(m_mail->client.Send(item).cause.startsWith(u"The message could not be kept: "));
        }
        QCOMPARE(inFolders(), QStringList());
        QVERIFY(QDir(m_folder->filePath(u"MailBox/Outbox/tmp"_s)).isEmpty());
    }

    void whatTheServerSaysDecides_data()
    {
        // news: "kind words" in their order; folder: where it lies at the end; count: how often it was taken
        support::columns<QString, QStringList, QString, int>("to", "news", "folder", "count");
        const auto row = [](const QString& to, const QStringList& news, const QString& folder, int count) {
            QTest::newRow(qPrintable(to)) << to << news << folder << count;
        };
        const QString failed = u"Outbox/Failed"_s;
        const QString sending = u"Outbox/Sending"_s;
        const QString late = u"Unclear The mail server did not answer in time."_s;
        row(u"a@x.in"_s, {u"Sent"_s}, u"Sent"_s, 1);
        row(u"a@x.in;refused@x.in"_s, {u"Refused 550 No such person here"_s}, failed, 0);
        row(u"heavy@x.in"_s, {u"Refused 554-Your message is not liked"_s}, failed, 0);
        row(u"later@x.in;a@x.in"_s, {u"Delayed 451 Come back later"_s, u"Sent"_s}, u"Sent"_s, 1);
        row(u"dies@x.in"_s, {u"Unclear The connection to the mail server broke off."_s}, sending, 0);
        row(u"lost@x.in"_s, {late}, sending, 0);
        row(u"slow@x.in"_s, {late}, sending, 1);
    }
    void whatTheServerSaysDecides()
    {
        QFETCH(QString, to);
        QFETCH(QStringList, news);
        start();
        QVERIFY(m_mail->client.Send(itemTo(to)));
        const auto words = [this] {
            QStringList all;
            for (const platform::MailNews& each : m_news)
                all << (each.kind == Kind::Sent ? u"Sent"_s : nameOf(each.kind) + u' ' + each.words);
            return all;
        };
        QTRY_COMPARE_WITH_TIMEOUT(words(), news, kWaitMs);
        // A while later nothing more has come of it.
        QTRY_VERIFY_WITH_TIMEOUT(!m_mail->post.isBusy(), kWaitMs);
        QTest::qWait(300);
        QCOMPARE(words(), news);
        QFETCH(QString, folder);
        QCOMPARE(inFolders(), QStringList{folder + u": Hello"_s});
        QTEST(int(m_server->taken().size()), "count");
        if (folder == u"Outbox/Failed")
            QCOMPARE(
                m_mail->client.Item(m_mail->client.Items(folder).value.first()).value.note, m_news[0].words);
    }

    void oneThatFailsHoldsUpNoOther()
    {
        start();
        for (const QString& to : {u"later@x.in"_s, u"refused@x.in"_s, u"a@x.in"_s})
            QVERIFY(m_mail->client.Send(itemTo(to, to)));
        QTRY_COMPARE_WITH_TIMEOUT(inFolders(),
            (QStringList{u"Outbox/Failed: refused@x.in"_s, u"Sent: later@x.in"_s, u"Sent: a@x.in"_s}),
            kWaitMs);
        QStringList taken = m_server->subjects();
        taken.sort();
        QCOMPARE(taken, (QStringList{u"a@x.in"_s, u"later@x.in"_s}));
    }

    // A server that takes the call and says nothing, and one that is not there: the window lives, and the
    // message goes as soon as there is one.
    void waitsForAServer()
    {
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        listen();
        {
            QTcpServer mute;
            QVERIFY(mute.listen(QHostAddress::LocalHost));
            m_mail->accounts.store(support::MailAccount::open(mute.serverPort()));
            QElapsedTimer time;
            time.start();
            QVERIFY(m_mail->client.Send(itemTo(u"a@x.in"_s)));
            QVERIFY(time.elapsed() < 1000);
            QTRY_COMPARE_WITH_TIMEOUT(told(), QStringList{u"Delayed Hello"_s}, kWaitMs);
        }
        QTest::qWait(500);
        m_server = std::make_unique<support::MailServer>();
        m_mail->accounts.store(support::MailAccount::open(m_server->port()));
        QTRY_COMPARE_WITH_TIMEOUT(told(), (QStringList{u"Delayed Hello"_s, u"Sent Hello"_s}), kWaitMs);
    }

    void withoutAnAccountItIsKeptAndToldOnce()
    {
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        listen();
        QVERIFY(m_mail->client.Send(itemTo(u"a@x.in"_s, u"1"_s)));
        QVERIFY(m_mail->client.Send(itemTo(u"a@x.in"_s, u"2"_s)));
        QCOMPARE(told(), QStringList{u"AccountMissing "_s});
        // A new start with a full outbox is no reason to ask once more.
        m_news.clear();
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        listen();
        m_mail->post.begin();
        QTest::qWait(50);
        QCOMPARE(told(), QStringList());
        m_server = std::make_unique<support::MailServer>();
        m_mail->accounts.store(support::MailAccount::open(m_server->port()));
        QTRY_COMPARE_WITH_TIMEOUT(m_server->subjects(), (QStringList{u"1"_s, u"2"_s}), kWaitMs);
        // Written before there was an account, and from its person all the same.
        QCOMPARE(m_server->taken().value(0)[u"from"].toString(), u"Asha Rao <me@x.in>"_s);
    }

    void judgesTheServer_data()
    {
        support::columns<int, bool, QString, QString>("kind", "trusted", "password", "news");
        const int tls = int(support::MailServer::Kind::Tls);
        const int startTls = int(support::MailServer::Kind::StartTls);
        const QString fault = u"AccountFault %1"_s;
        QTest::newRow("tls") << tls << true << kPassword << u"Sent"_s;
        QTest::newRow("starttls") << startTls << true << kPassword << u"Sent"_s;
        for (const int kind : {tls, startTls}) {
            QTest::addRow("not trusted %d", kind)
                << kind << false << kPassword
                << fault.arg(u"The certificate of the mail server can not be trusted."_s);
            QTest::addRow("wrong password %d", kind)
                << kind << true << u"other"_s << fault.arg(u"535 5.7.8 Authentication credentials invalid"_s);
            QTest::addRow("no password %d", kind) << kind << true << QString() << u"PasswordMissing "_s;
        }
        QTest::newRow("no encryption") << int(support::MailServer::Kind::Open) << true << kPassword
                                       << fault.arg(u"The mail server offers no encryption."_s);
    }
    void judgesTheServer()
    {
        QFETCH(int, kind);
        QFETCH(bool, trusted);
        QFETCH(QString, password);
        QFETCH(QString, news);
        m_server = std::make_unique<support::MailServer>(support::MailServer::Kind(kind));
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        QVERIFY(m_mail->client.Send(itemTo(u"a@x.in"_s)));
        listen();
        platform::MailAccount account = support::MailAccount::open(m_server->port());
        account.user = u"asha"_s;
        account.security = kind == int(support::MailServer::Kind::Tls) ? platform::MailSecurity::Tls
                                                                       : platform::MailSecurity::StartTls;
        if (trusted)
            m_mail->accounts.setAuthorities(support::MailServer::certificate());
        QVERIFY(m_mail->accounts.store(account));
        // It comes a moment later than the account, and is not asked for in between.
        m_mail->accounts.keepPassword(password, [](platform::PasswordPlace) {});
        QTRY_COMPARE_WITH_TIMEOUT(m_news.size(), 1, kWaitMs);
        QCOMPARE(
            m_news[0].kind == Kind::Sent ? u"Sent"_s : nameOf(m_news[0].kind) + u' ' + m_news[0].words, news);
        const bool isSent = news == u"Sent";
        QCOMPARE(inFolders(), QStringList{isSent ? u"Sent: Hello"_s : u"Outbox: Hello"_s});
        if (isSent)
            QVERIFY(m_server->taken()[0][u"encrypted"].toBool() && m_server->taken()[0][u"login"].toBool());
        // The password stands in no file.
        QDirIterator files(m_folder->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        int count = 0;
        for (; files.hasNext(); ++count)
            QVERIFY(!support::bytesOf(files.next()).contains(kPassword.toUtf8()));
        QVERIFY(count >= 2);
    }

    // It was given for one server and user; to another it must not go.
    void aPasswordStaysWithItsServer()
    {
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 25);
        platform::MailAccount account = support::MailAccount::open(25);
        account.user = u"asha"_s;
        QVERIFY(m_mail->accounts.store(account));
        m_mail->accounts.keepPassword(kPassword, [](platform::PasswordPlace) {});
        QTRY_COMPARE(m_mail->secrets.secrets.size(), 1);
        account.port = 2525;
        QVERIFY(m_mail->accounts.store(account));
        QTest::qWait(20);
        QCOMPARE(m_mail->secrets.secrets.size(), 1);
        account.server = u"127.0.0.1"_s;
        QVERIFY(m_mail->accounts.store(account));
        QTRY_VERIFY(m_mail->secrets.secrets.isEmpty());
    }

    void displayHandsItToTheMailProgram()
    {
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        MailItem item = itemTo(u"Asha <a@x.in>; b+c@x.in"_s, u"50% & more?"_s);
        item.BCC = u"h@x.in"_s;
        item.Body = u"Dear Ä,\nx"_s;
        QVERIFY(m_mail->client.Display(item));
        QCOMPARE(m_mail->shell.openedAddresses,
            QStringList{u"mailto:a@x.in,b%2Bc@x.in?bcc=h@x.in&subject=50%25%20%26%20more%3F"
                        "&body=Dear%20%C3%84%2C%0D%0Ax"_s});
        item.Body = QString(3000, u'x');
        item.Attachments = {support::put(m_folder->filePath(u"a.txt"_s))};
        QVERIFY(m_mail->client.Display(item));
        QCOMPARE(m_mail->shell.openedFiles.size(), 1);
        const QJsonObject shown = support::secondOpinion(support::bytesOf(m_mail->shell.openedFiles[0]));
        QCOMPARE(shown[u"unsent"].toString(), u"1"_s);
        QCOMPARE(shown[u"bcc"].toString(), u"h@x.in"_s);
        QCOMPARE(shown[u"text"].toString(), item.Body);
        QCOMPARE(shown[u"attachments"].toArray().size(), 1);
        QCOMPARE(inFolders(), QStringList());
    }

    void foldersOfOthersAreReadAndNoneElse()
    {
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), 0);
        const QByteArray mail = "From: Zoe <z@x.in>\nSubject: S\n\nText";
        support::put(m_folder->filePath(u"MailBox/Inbox/cur/17.a.host:2,S"_s), mail);
        support::put(m_folder->filePath(u"MailBox/Inbox/new/18.a.host"_s), mail);
        support::put(m_folder->filePath(u"MailBox/Inbox/Club/new/1"_s), mail);
        QDir(m_folder->path()).mkpath(u"MailBox/Inbox/Club/cur"_s);
        support::put(m_folder->filePath(u"MailBox/Other/file"_s), mail);
        support::put(m_folder->filePath(u"new/1"_s), mail);
        QDir(m_folder->path()).mkdir(u"cur"_s);
        QFile::link(m_folder->path(), m_folder->filePath(u"MailBox/Link"_s));
        QStringList names;
        for (const platform::MailFolder& folder : m_mail->client.Folders().value)
            names << folder.EntryID + (folder.hasFolders ? u"+"_s : QString());
        QCOMPARE(names, (QStringList{u"Drafts"_s, u"Inbox+"_s, u"Outbox+"_s, u"Sent"_s}));
        QCOMPARE(m_mail->client.Folders(u"Inbox"_s).value[0].EntryID, u"Inbox/Club"_s);
        QCOMPARE(m_mail->client.Items(u"Inbox"_s).value,
            (QStringList{u"Inbox/18.a.host"_s, u"Inbox/17.a.host"_s}));
        QCOMPARE(m_mail->client.Item(u"Inbox/17.a.host"_s).value.SenderName, u"Zoe"_s);
        // Marked as answered meanwhile.
        QVERIFY(QFile::rename(m_folder->filePath(u"MailBox/Inbox/cur/17.a.host:2,S"_s),
            m_folder->filePath(u"MailBox/Inbox/cur/17.a.host:2,RS"_s)));
        QCOMPARE(m_mail->client.Text(u"Inbox/17.a.host"_s).value.Body, u"Text"_s);
        for (const QString& wrong :
            {u".."_s, u"../"_s, u"Inbox/.."_s, u"/"_s, u"Link"_s, u"Other"_s, u"Inbox/Club/../.."_s})
            QVERIFY2(!m_mail->client.Items(wrong), qPrintable(wrong));
        for (const QString& wrong :
            {u"Inbox/../Inbox/18.a.host"_s, u"Inbox/none"_s, u"../1"_s, u"Inbox/"_s, u""_s})
            QVERIFY2(!m_mail->client.Text(wrong), qPrintable(wrong));
    }

    // Killed at any time: what the outbox has taken is somewhere, whole, once; and nobody gets it twice.
    void killedInTheMiddle()
    {
        start();
        m_mail.reset();
        constexpr int kRounds = 12;
        QSet<QString> promised;
        for (int round = 0; round < kRounds; ++round) {
            QProcess sender;
            sender.start(QStringLiteral(ORVANE_MAIL_SENDER),
                {m_folder->path(), QString::number(m_server->port()), QString::number(round * 1000),
                    QString::number(round * 1000 + 999)});
            QVERIFY(sender.waitForReadyRead(kWaitMs));
            QTest::qWait(40 + 37 * round);
            ::kill(pid_t(sender.processId()), SIGKILL);
            sender.waitForFinished();
            for (const QByteArray& line : sender.readAll().split('\n').toList()) {
                if (!line.isEmpty())
                    promised << QString::fromLatin1(line);
            }
        }
        QVERIFY(promised.size() > kRounds);

        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), m_server->port());
        listen();
        m_mail->post.begin();
        QTRY_COMPARE_WITH_TIMEOUT(m_mail->client.Items(u"Outbox"_s).value, QStringList(), 60'000);
        QTRY_VERIFY_WITH_TIMEOUT(!m_mail->post.isBusy(), kWaitMs);
        const QStringList taken = m_server->subjects();
        const QSet<QString> takenOnce(taken.begin(), taken.end());
        QCOMPARE(taken.size(), takenOnce.size());
        QStringList sent;
        QStringList unclear;
        for (const QString& each : inFolders())
            (each.startsWith(u"Sent: ") ? sent : unclear) << each.section(u": "_s, 1);
        qInfo("%d promised, %d taken by the server, %d sent, %d unclear after %d kills", int(promised.size()),
            int(taken.size()), int(sent.size()), int(unclear.size()), kRounds);
        // At most the one that was being answered when the program was killed.
        QVERIFY(unclear.size() <= kRounds);
        for (const QString& folder : {u"Sent"_s, u"Outbox/Sending"_s}) {
            for (const QString& entry : m_mail->client.Items(folder).value)
                QCOMPARE(m_mail->client.Text(entry).value.Body.trimmed().size(), 20'000);
        }
        QStringList told;
        for (const platform::MailNews& each : m_news) {
            if (each.kind == Kind::Unclear)
                told << each.subject;
        }
        QCOMPARE(told, unclear);
        for (const QString& each : sent)
            QVERIFY2(takenOnce.contains(each), qPrintable(each));
        const QSet<QString> kept
            = QSet<QString>(sent.begin(), sent.end()).unite({unclear.begin(), unclear.end()});
        QCOMPARE(kept.size(), sent.size() + unclear.size());
        QVERIFY(kept.contains(promised));
        QVERIFY(kept.contains(takenOnce));
    }

    void sendTestTellsWhatTheServerSaid()
    {
        start();
        QStringList words;
        const auto hear = [&words](bool sent, const QString& said) {
            words << (sent ? u"sent: "_s : u"not sent: "_s) + said;
        };
        m_mail->accounts.sendTest(support::MailAccount::open(m_server->port()), std::nullopt, hear);
        m_mail->accounts.sendTest(support::MailAccount::open(m_server->port()), std::nullopt, hear);
        QTRY_COMPARE_WITH_TIMEOUT(words,
            (QStringList{u"not sent: A test is on its way already."_s, u"sent: 250 Taken as 1"_s}), kWaitMs);
        platform::MailAccount far = support::MailAccount::open(25);
        far.server = u"mail.x.in"_s;
        m_mail->accounts.sendTest(far, std::nullopt, hear);
        QCOMPARE(words.last(), u"not sent: Only a server on this computer can be used without encryption."_s);
        QCOMPARE(m_server->taken()[0][u"to"].toString(), u"Asha Rao <me@x.in>"_s);
    }

private:
    void start()
    {
        m_server = std::make_unique<support::MailServer>();
        QVERIFY(m_server->port() > 0);
        m_mail = std::make_unique<support::MailAccount>(m_folder->path(), m_server->port());
        listen();
    }
    void listen()
    {
        connect(&m_mail->post, &platform::MailPost::news, this,
            [this](const platform::MailNews& news) { m_news << news; });
    }
    static QString nameOf(Kind kind)
    {
        static const QStringList names{u"Sent"_s, u"Refused"_s, u"Delayed"_s, u"Unclear"_s,
            u"AccountMissing"_s, u"PasswordMissing"_s, u"AccountFault"_s};
        return names.value(int(kind));
    }
    QStringList told() const
    {
        QStringList all;
        for (const platform::MailNews& each : m_news)
            all << nameOf(each.kind) + u' ' + each.subject;
        return all;
    }
    /// "folder: subject" of all messages, each folder in the order in which they came.
    QStringList inFolders()
    {
        QStringList all;
        for (const QString& folder :
            {u"Drafts"_s, u"Outbox"_s, u"Outbox/Failed"_s, u"Outbox/Sending"_s, u"Sent"_s}) {
            QStringList entries = m_mail->client.Items(folder).value;
            std::reverse(entries.begin(), entries.end());
            for (const QString& entry : entries)
                all << folder + u": "_s + m_mail->client.Item(entry).value.Subject;
        }
        return all;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<support::MailServer> m_server;
    std::unique_ptr<support::MailAccount> m_mail;
    QList<platform::MailNews> m_news;
};

QTEST_GUILESS_MAIN(MailboxClientTest)
#include "mailbox_client_test.moc"
