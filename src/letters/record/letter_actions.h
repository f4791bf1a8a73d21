#pragma once

#include "core/context.h"

#include <QList>

/// What can be done with letters of the record, alike on all screens that list them.
namespace letters {

/// Deletes letters after a question, as one step that can be taken back; the files that belong to them stay.
/// @return whether they are gone
bool deleteLetters(core::Context& context, const QList<qint64>& ids);
/// Shows a letter in the creator that it was written with, to be read, printed or sent once more.
void writeAgain(core::Context& context, qint64 letter);
void editLetter(core::Context& context, qint64 letter);
/// The person of a letter in the full view; says "Record not selected" for one who is not in the book.
void showPerson(core::Context& context, qint64 letter);
/// A letter as a report, to be printed or saved.
void printLetter(core::Context& context, qint64 letter);

} // namespace letters
