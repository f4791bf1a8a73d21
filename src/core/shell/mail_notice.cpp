#include "core/shell/mail_notice.h"

#include "core/frame.h"
#include "platform/message_boxes.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using platform::MailNews;

namespace shell {

MailNotice::MailNotice(core::Context& context, platform::MailPost& post, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_post(post)
{
    connect(&post, &platform::MailPost::news, this, &MailNotice::hear);
}

void MailNotice::hear(const MailNews& news)
{
    m_toTell << news;
    // Behind what a person is just doing, so that a box does not stop it half-way.
    if (!m_isTelling && m_toTell.size() == 1)
        QTimer::singleShot(0, this, &MailNotice::tellNext);
}

void MailNotice::tellNext()
{
    m_isTelling = true;
    while (!m_toTell.isEmpty())
        tell(m_toTell.takeFirst());
    m_isTelling = false;
}

void MailNotice::tell(const MailNews& news)
{
    using Kind = MailNews::Kind;
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    const QString subject = news.subject.isEmpty() ? tr("(no subject)") : news.subject.left(200);
    switch (news.kind) {
    case Kind::Sent: m_context.frame.showNotice(tr("Sent \"%1\"").arg(subject)); break;
    case Kind::Delayed:
        m_context.frame.showNotice(
            tr("\"%1\" could not be sent yet and is tried again: %2").arg(subject, news.words));
        break;
    case Kind::Refused:
        boxes.warning(tr("The message \"%1\" was not sent. It is kept in the folder \"Failed\" of the outbox."
                         "\n\nThe mail server said: %2")
                          .arg(subject, news.words),
            title);
        break;
    case Kind::Unclear:
        if (boxes.ask(
                tr("The message \"%1\" was handed over to the mail server, but its answer did not come. "
                   "The server may have sent it or not.\n\nDo you want to send it once more? Those who "
                   "have got it would get it twice.")
                    .arg(subject),
                title, platform::Icon::Warning)
            == platform::Answer::Yes)
            m_post.sendAgain(news.name);
        else
            m_post.giveUp(news.name);
        break;
    case Kind::AccountMissing:
        offerSetUp(
            tr("The message is kept in the outbox. It is sent when you have set up your mail account in "
               "the Address Book Setup, on the tab \"Mail\".\n\nDo you want to do this now?"));
        break;
    case Kind::PasswordMissing:
        offerSetUp(
            tr("The messages in the outbox wait for the password of your mail account. It is entered in "
               "the Address Book Setup, on the tab \"Mail\".\n\nDo you want to do this now?"));
        break;
    case Kind::AccountFault:
        offerSetUp(
            tr("The message \"%1\" waits in the outbox, since the mail account can not be used.\n\n%2\n\n"
               "Do you want to look at the account in the Address Book Setup?")
                .arg(subject, news.words));
        break;
    }
}

void MailNotice::offerSetUp(const QString& text)
{
    if (m_context.services.boxes.ask(text, m_context.shared.AppTitle) == platform::Answer::Yes)
        m_context.frame.perform(core::OpenScreen{.form = u"FrmOthers", .page = u"Mail"});
}

} // namespace shell
