#pragma once

#include "jet/lexer.h"
#include "jet/translator.h"

#include <sqlite3.h>

#include <optional>
#include <vector>

namespace jet {

/// What is bound beside the values of the statement, for the slots that ask for it.
struct BoundTexts {
    std::vector<QByteArray> rowLists;
    QByteArray least;
    QByteArray beyond;
};

/// Binds the values of one text to a translation. False, and why, when one does not fit its column.
bool bindValues(sqlite3_stmt* statement, const std::vector<Slot>& slots, const std::vector<Literal>& literals,
    const BoundTexts& texts, QString* refusal);

/// Where the rows lie that can be like the pattern by whose column they are sorted; nothing when that may be
/// anywhere.
std::optional<BoundTexts> stretchOf(
    const Translation& translation, const std::vector<Literal>& literals, Way way);

QByteArray jsonList(const std::vector<sqlite3_int64>& numbers);

} // namespace jet
