// A program that sends message after message until it is killed, for mailbox_client_test. It says the number
// of each message that the outbox has taken, in a line, when it has.
//
//     mail_sender FOLDER PORT FIRST LAST

#include <cstdio>

#include <QCoreApplication>
#include <QTimer>

#include "support/mail_account.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    support::MailAccount mail(arguments.value(1), arguments.value(2).toInt());
    int number = arguments.value(3).toInt();
    const int last = arguments.value(4).toInt();
    QTimer next;
    QObject::connect(&next, &QTimer::timeout, &app, [&] {
        if (number > last) {
            if (!mail.post.isBusy())
                QCoreApplication::quit();
            return;
        }
        platform::MailItem item;
        item.To = u"a@x.in"_s;
        item.Subject = QString::number(number);
        item.Body = QString(20'000, u'b');
        if (mail.client.Send(item)) {
            std::printf("%d\n", number);
            std::fflush(stdout);
        }
        ++number;
    });
    mail.post.begin();
    next.start(3);
    return QCoreApplication::exec();
}
