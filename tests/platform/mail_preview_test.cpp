#include "platform/mail_preview.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/mail_account.h"
#include "support/mail_server.h"
#include "support/person.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// A message for which there is no mail program: shown by ours, and never lost.
class MailPreviewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void doesWhatThePersonChooses_data()
    {
        // choice: a button, a key, or nothing for a dialog that is closed
        support::columns<QString, int, QString>("button", "key", "folder");
        QTest::newRow("send") << u"cmdSend"_s << 0 << u"Sent"_s;
        QTest::newRow("send by Enter") << QString() << int(Qt::Key_Return) << u"Sent"_s;
        QTest::newRow("keep") << u"cmdKeep"_s << 0 << u"Outbox"_s;
        QTest::newRow("do not send") << u"cmdDraft"_s << 0 << u"Drafts"_s;
        QTest::newRow("Esc") << QString() << int(Qt::Key_Escape) << u"Drafts"_s;
        QTest::newRow("closed") << QString() << 0 << u"Drafts"_s;
    }
    void doesWhatThePersonChooses()
    {
        QFETCH(QString, button);
        QFETCH(int, key);
        QFETCH(QString, folder);
        const QTemporaryDir home;
        const support::MailServer server;
        support::MailAccount mail(home.path(), server.port());
        mail.shell.opens = false;
        mail.client.setPreview(
            [](const platform::MailItem& item) { return platform::showMailPreview(item); });
        QStringList shown;
        QTimer::singleShot(0, this, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog && dialog->objectName() == u"MailPreview");
            for (const auto* line : dialog->findChildren<QLineEdit*>())
                shown << line->text();
            shown << dialog->findChild<QPlainTextEdit*>(u"txtBody"_s)->toPlainText();
            if (!button.isEmpty())
                support::click(dialog, button);
            else if (key != 0)
                QTest::keyClick(dialog, Qt::Key(key));
            else
                dialog->close();
        });
        const platform::MailItem item{.To = u"Asha <a@x.in>"_s,
            .BCC = u"h@x.in"_s,
            .Subject = u"<i>S</i>"_s,
            .HTMLBody = u"<p>&lt;b&gt; <i>Text</i></p>"_s,
            .Attachments = {support::put(home.filePath(u"a.txt"_s))}};
        QCOMPARE(mail.client.Display(item).cause, QString());
        QCOMPARE(shown, (QStringList{item.To, item.BCC, item.Subject, u"a.txt"_s, u"<b> Text"_s}));
        // A message that only waits must not leave by itself.
        QTRY_COMPARE_WITH_TIMEOUT(mail.client.Items(folder).value.size(), 1, 20'000);
        QTest::qWait(100);
        QCOMPARE(server.taken().size(), folder == u"Sent" ? 1 : 0);
        const QString entry = mail.client.Items(folder).value.value(0);
        QCOMPARE(mail.client.Item(entry).value.Subject, item.Subject);
        QCOMPARE(mail.client.Text(entry).value.HTMLBody, item.HTMLBody);
        QCOMPARE(mail.client.Text(entry).value.Attachments, QStringList{u"a.txt"_s});
        // What was laid ready for the mail program that is not there is gone.
        QVERIFY(QDir(home.filePath(u"MailBox/Shown"_s)).isEmpty());
    }
};

QTEST_MAIN(MailPreviewTest)
#include "mail_preview_test.moc"
