#include "formats/mail_message.h"
#include "support/columns.h"
#include "support/mail_server.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using formats::Mailbox;

namespace {

QByteArray foreignMessage()
{
    return "From: =?iso-8859-1?Q?Zo=EB?= <zoe@example.net>\n"
           "To: undisclosed-recipients:;\n"
           "Subject: =?utf-8?B?4KSo4KSu4KS44KWN4KSk4KWH?=\n again\n"
           "Date: Fri, 15 Mar 2024 10:00:00 +0530\n"
           "Content-Type: multipart/mixed; boundary=x\n\n"
           "--x\nContent-Type: text/plain; charset=iso-8859-1\n"
           "Content-Transfer-Encoding: quoted-printable\n\nCaf=E9=\n!\n"
           "--x\nContent-Type: text/plain; name=notes.txt\n\nno body\n"
           "--x\nContent-Type: text/html\n\n<p>Hi</p>\n"
           "--x--\n";
}

} // namespace

/// Messages that leave, judged by another program, and messages that came.
class MailMessageTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void partsLinesOfAddresses_data()
    {
        support::columns<QString, QStringList, QStringList>("line", "good", "wrong");
        const auto row = [](const QString& line, const QStringList& good, const QStringList& wrong = {}) {
            QTest::newRow(qPrintable(line.isEmpty() ? u"nothing"_s : line.left(60))) << line << good << wrong;
        };
        row(QString(), {});
        row(u" ; ,; "_s, {});
        row(u"a@x.in;b@x.in, c@x.in;"_s, {u"a@x.in"_s, u"b@x.in"_s, u"c@x.in"_s});
        row(u"Asha Rao <a@x.in>;\"Rao, B\" <b@x.in>"_s, {u"Asha Rao <a@x.in>"_s, u"\"Rao, B\" <b@x.in>"_s});
        row(u"Rao, Asha <a@x.in>, b@x.in"_s, {u"\"Rao, Asha\" <a@x.in>"_s, u"b@x.in"_s});
        row(u"\"A \\\"B; C\" <a@x.in>"_s, {u"\"A \\\"B; C\" <a@x.in>"_s});
        row(u"a@x.in (Asha, at home)"_s, {u"\"Asha, at home\" <a@x.in>"_s});
        row(u"<a+b.c_d@sub.x-y.co.in>"_s, {u"a+b.c_d@sub.x-y.co.in"_s});
        row(u"a@bücher.example"_s, {u"a@xn--bcher-kva.example"_s});
        row(u"\"Open <a@x.in>; b@x.in"_s, {u"\"\\\"Open\" <a@x.in>"_s, u"b@x.in"_s});
        row(u"Asha; b@x.in"_s, {u"b@x.in"_s}, {u"Asha"_s});
        row(u"Rao, Asha"_s, {}, {u"Rao"_s, u"Asha"_s});
        const QString longLocal = QString(65, u'a') + u"@x.in"_s;
        for (const QString& wrong : {u"@x.in"_s, u"a@"_s, u"a b@x.in"_s, u"a@x..in"_s, u"a@-x.in"_s,
                 u".a@x.in"_s, u"ज@x.in"_s, u"a@x.in>"_s, u"a\r\nRCPT TO:<b@x.in>"_s,
                 u"a@x.in\r\nBcc: b@x.in"_s, u"a@x\u0000.in"_s, longLocal})
            row(wrong, {}, {wrong});
    }
    void partsLinesOfAddresses()
    {
        QFETCH(QString, line);
        const formats::Mailboxes read = formats::readMailboxes(line);
        QStringList good;
        for (const Mailbox& mailbox : read.good)
            good << formats::writtenMailbox(mailbox);
        QTEST(good, "good");
        QTEST(read.wrong, "wrong");
    }

    void anotherProgramReadsWhatWasWritten()
    {
        const QString text = u".\n..two\nFrom here\n"_s + QString(3000, u'x') + u"\nनमस्ते €\r\nend  \n"_s;
        const formats::MailDraft draft{.from = Mailbox{u"Räo, \"A\""_s, u"me@x.in"_s},
            .to = {{u"Jürgen"_s, u"j@x.in"_s}, {{}, u"k@x.in"_s}},
            .cc = {{u"C"_s, u"c@x.in"_s}},
            .bcc = {{u"Hidden"_s, u"h@x.in"_s}, {{}, u"k@x.in"_s}},
            .subject = u"नमस्ते दुनिया: a long subject that can not stand in one line of a header at all"_s,
            .body = text,
            .htmlBody = u"<p>नमस्ते</p>"_s,
            .attachments = {{u"चित्र \"1\".png"_s, "image/png", QByteArray("\0\r\n.\n\xff", 6)},
                {u"mail.eml"_s, "message/rfc822", "From: x\n\ny"}},
            .date = QDateTime(QDate(2024, 3, 15), QTime(12, 0), Qt::OffsetFromUTC, 19800),
            .isUnsent = true};
        const QByteArray stored = formats::mailBytes(draft);
        QJsonObject read = support::secondOpinion(stored);
        const auto check = [&read](QStringView field, const QString& expected) {
            QCOMPARE(read[field].toVariant().toString(), expected);
        };
        check(u"from", u"\"Räo, \\\"A\\\"\" <me@x.in>"_s);
        check(u"to", u"Jürgen <j@x.in>, k@x.in"_s);
        check(u"cc", u"C <c@x.in>"_s);
        check(u"subject", draft.subject);
        check(u"date", u"Fri, 15 Mar 2024 12:00:00 +0530"_s);
        check(u"unsent", u"1"_s);
        check(u"text", QString(text).replace(u"\r\n"_s, u"\n"_s));
        check(u"html", draft.htmlBody);
        QVERIFY(read[u"id"].toString().endsWith(u"@x.in>"));
        QCOMPARE(read[u"defects"].toArray().size(), 0);
        QVERIFY(read[u"longestLine"].toInt() <= 200);
        QCOMPARE(read[u"bareLineEnds"].toInt(), 0);
        const auto attachment = [](const formats::MailAttachment& of, const char* type) {
            return QJsonArray{of.name, QLatin1StringView(type),
                QLatin1StringView(QCryptographicHash::hash(of.bytes, QCryptographicHash::Sha256).toHex())};
        };
        QCOMPARE(read[u"attachments"].toArray(),
            (QJsonArray{attachment(draft.attachments[0], "image/png"),
                attachment(draft.attachments[1], "application/octet-stream")}));

        // On its way nobody reads who got it unseen.
        const formats::SendableMail mail = formats::sendable(stored, {});
        QCOMPARE(mail.recipients, (QByteArrayList{"j@x.in", "k@x.in", "c@x.in", "h@x.in"}));
        QVERIFY(
            stored.contains("h@x.in") && !mail.bytes.contains("h@x.in") && !mail.bytes.contains("Hidden"));
        QJsonObject sent = support::secondOpinion(mail.bytes);
        for (QJsonObject* each : {&read, &sent}) {
            each->remove(u"bcc"_s);
            each->remove(u"headers"_s);
        }
        QCOMPARE(sent, read);
    }

    void theSenderIsWrittenOnTheWay()
    {
        const QByteArray mail = formats::mailBytes({.to = {{{}, u"a@x.in"_s}},
            .bcc = std::vector<Mailbox>(300, {u"Hid"_s, u"h@x.in"_s}),
            .body = u"b"_s});
        const QByteArray sent = formats::sendable(mail, {u"Zoë\r\nBcc: b@x.in"_s, u"z@x.in"_s}).bytes;
        QCOMPARE(support::secondOpinion(sent)[u"from"].toString(), u"\"Zoë Bcc: b@x.in\" <z@x.in>"_s);
        QVERIFY(!sent.contains("h@x.in"));
    }

    void noTextBecomesAHeader_data()
    {
        support::columns<QString>("text");
        for (const QString& end :
            {u"\r\n"_s, u"\n"_s, u"\r"_s, u"\r\n\r\n"_s, u"\u2028"_s, u"\u0085"_s, u"\0"_s})
            QTest::newRow(qPrintable(QString::fromLatin1(end.toUtf8().toHex())))
                << u"x"_s + end + u"X-Evil: 1"_s;
        QTest::newRow("folded") << u"x\r\n \r\nX-Evil: 1"_s;
        QTest::newRow("encoded") << u"=?utf-8?Q?x=0D=0AX-Evil:_1?="_s;
        QTest::newRow("half a character") << u"x\xd800\r\nX-Evil: 1"_s;
    }
    void noTextBecomesAHeader()
    {
        QFETCH(QString, text);
        const formats::MailDraft draft{.from = Mailbox{text, u"me@x.in"_s},
            .to = {{text, u"a@x.in"_s}},
            .bcc = {{text, u"h@x.in"_s}},
            .subject = text,
            .body = text,
            .attachments = {{text + u".txt"_s, "text/plain", "x"}},
            .date = QDateTime(QDate(2024, 3, 15), QTime(12, 0))};
        const QByteArray mail = formats::sendable(formats::mailBytes(draft), {}).bytes;
        QCOMPARE(support::secondOpinion(mail)[u"headers"].toArray(),
            (QJsonArray{u"content-type"_s, u"date"_s, u"from"_s, u"message-id"_s, u"mime-version"_s,
                u"subject"_s, u"to"_s}));
        QVERIFY(!mail.left(mail.indexOf("\r\n\r\n")).contains("\nX-Evil"));
        QVERIFY(!mail.contains("h@x.in"));
    }

    void readsMessagesOfOthers()
    {
        const formats::MailTop top = formats::readMailTop(foreignMessage());
        QCOMPARE(top.from, (Mailbox{u"Zoë"_s, u"zoe@example.net"_s}));
        QCOMPARE(top.subject, u"नमस्ते again"_s);
        QCOMPARE(top.date.toUTC(), QDateTime(QDate(2024, 3, 15), QTime(4, 30), Qt::UTC));
        const formats::MailTexts texts = formats::readMailTexts(foreignMessage());
        QCOMPARE(texts.body, u"Café!"_s);
        QCOMPARE(texts.htmlBody, u"<p>Hi</p>"_s);
        QCOMPARE(texts.attachments, QStringList{u"notes.txt"_s});
    }

    // A cut or changed byte anywhere is no reason to fall over, nor are a thousand parts in one another.
    void survivesDamage()
    {
        const QByteArray whole = foreignMessage();
        for (qsizetype at = 0; at < whole.size(); ++at) {
            QByteArray changed = whole;
            changed[at] = char(at * 37);
            for (const QByteArray& bytes : {whole.left(at), changed}) {
                formats::readMailTop(bytes);
                formats::readMailTexts(bytes);
                formats::sendable(bytes, {});
            }
        }
        QByteArray deep;
        for (int i = 0; i < 2000; ++i) {
            const QByteArray mark = QByteArray::number(i);
            deep += "Content-Type: multipart/mixed; boundary=" + mark + "\n\n--" + mark + "\n";
        }
        QElapsedTimer time;
        time.start();
        QCOMPARE(formats::readMailTexts(deep).body, QString());
        QVERIFY(time.elapsed() < 10000);
    }
};

QTEST_GUILESS_MAIN(MailMessageTest)
#include "mail_message_test.moc"
