#pragma once

#include "core/context.h"

class QWidget;

namespace core {

/// Writes the vCards of a list of ids, with "," between, to a folder and tells the person how it went. A long
/// list shows how far it is and can be stopped.
/// @param saved what is said of it, with %1 for the folder; the usual words where none are given
/// @return how many contacts were written
int saveCards(
    Context& context, const QString& idList, const QString& folder, QWidget* over, const QString& saved = {});

/// Names with ", " between: the first few of a long list, each on one line and not longer than one reads.
QString namesForReading(const QStringList& names, int all);

} // namespace core
