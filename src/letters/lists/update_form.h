#pragma once

#include "jet/recordset.h"

#include <QByteArray>
#include <QString>

namespace letters {

/// The page that goes to a contact with what the book has of the contact, to be mended and mailed back. Its
/// inputs are called as the columns of the book, so that an answer can be taken in.
/// @param contact the row, with all its columns
/// @param ownAddress where the answer goes; a placeholder stands there where it is empty
/// @return the bytes of the file, in code page 1252 with CR LF; letters beyond that page by their number
QByteArray updateForm(const jet::Recordset& contact, const QString& ownAddress);

/// The text of the mail with which the page goes.
QString updateMailBody(const QString& name);
QString updateMailSubject();

} // namespace letters
