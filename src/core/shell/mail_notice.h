#pragma once

#include "core/context.h"
#include "platform/mail_post.h"

#include <QObject>

namespace shell {

/// Says what became of mail on its way: in the notice strip what went well or goes on by itself, in a box
/// what a person has to do something about. One box after the other.
class MailNotice : public QObject {
    Q_OBJECT

public:
    MailNotice(core::Context& context, platform::MailPost& post, QObject* parent = nullptr);

private:
    void hear(const platform::MailNews& news);
    void tellNext();
    void tell(const platform::MailNews& news);
    void offerSetUp(const QString& text);

    core::Context& m_context;
    platform::MailPost& m_post;
    QList<platform::MailNews> m_toTell;
    bool m_isTelling = false;
};

} // namespace shell
