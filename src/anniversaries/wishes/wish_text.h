#pragma once

#include "anniversaries/occasion.h"

#include <QDate>
#include <QString>

namespace anniversaries {

/// What is wished to whom.
struct Wish {
    Occasion occasion = Occasion::Birthday;
    qint64 id = 0; ///< of the contact, who gets the message
    QString person; ///< who celebrates: the contact, or one of the family
    bool isOwn = true; ///< the contact's own day
    QDate date; ///< the day as the book has it
};

QString wishSubject(Occasion occasion);
/// The kind of mail under which it is kept.
QString wishCategory(Occasion occasion);
/// The whole message, in lines of CR LF.
/// @param first of the contact
/// @param user who signs it
QString wishBody(const Wish& wish, const QString& first, const QString& user);
/// The message that waits for its day. It is signed when it is sent.
QString timedWishBody(const Wish& wish);

} // namespace anniversaries
