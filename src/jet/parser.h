#pragma once

#include "jet/lexer.h"
#include "jet/syntax_tree.h"

#include <optional>

namespace jet {

/// Reads the dialect's five statements: select (with union), update, delete, insert, drop table. One
/// statement a text; a single `;` may end it. Nesting is bounded, so hostile texts fail instead of filling
/// the stack.
/// @param error is set when the result is empty
std::optional<Statement> parseStatement(const std::vector<Token>& tokens, QString* error);

/// Reads a bare condition such as "id=5", by which recordsets are searched.
ExpressionPtr parseCondition(const std::vector<Token>& tokens, QString* error);

} // namespace jet
