#pragma once

#include <QString>

#include <vector>

namespace jet {

/// What a condition asks of the texts of a row, at the least: a row can only fit when this holds.
struct TextFilter {
    enum class Kind {
        Pattern, ///< the column is like the literal
        Any, ///< one of the parts holds
        All, ///< each of the parts holds
    };
    Kind kind = Kind::Pattern;
    QString column = {};
    int literal = -1;
    std::vector<TextFilter> parts = {};
    bool isWhole = true; ///< the condition asks for nothing else
};

} // namespace jet
