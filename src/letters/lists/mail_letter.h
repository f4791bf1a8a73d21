#pragma once

#include "jet/recordset.h"

#include <QByteArray>
#include <QDate>

namespace letters {

/// The beginning of a letter to a contact, for the word processor: date, address, salutation.
QByteArray mailLetter(const jet::Recordset& contact, QDate day, bool nationalMode);

} // namespace letters
