#pragma once

#include "jet/keywords.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace jet {

/// One word of the dialect. Texts are unescaped, names are without their brackets. The text is a view into
/// the statement, or into what the Lexed keeps.
struct Token {
    enum class Kind : unsigned char { Word, Name, Text, Number, Date, Symbol, End };
    Kind kind = Kind::End;
    Keyword keyword = Keyword::None; ///< of a word or name
    int literal = -1; ///< its place among the values that are bound, -1 for one that stays in the statement
    QStringView text; ///< word, name, text value, normalised number, ISO date, or the symbol

    bool isWord(Keyword word) const { return keyword == word && kind == Kind::Word; }
    bool isSymbol(char16_t symbol) const
    {
        return kind == Kind::Symbol && text.size() == 1 && text.front() == symbol;
    }
};

/// A value of the statement that is bound, not written, so that statements that differ in it share a
/// translation.
struct Literal {
    enum class Kind { Text, Number, Date };
    Kind kind = Kind::Text;
    QString text;
};

struct Lexed {
    std::vector<Token> tokens; ///< ends with one End
    std::vector<Literal> literals;
    QStringList numbers; ///< the texts of normalised numbers, which stand in no statement
    QString shape; ///< the statement with a mark for each bound value: what translations are kept by
    QString error; ///< empty when all is well
};

/// Splits a statement. Fails on anything that is no word of the dialect: a lone apostrophe, a hash mark that
/// closes no date, `--`, `||`, `!=`.
Lexed lex(QStringView sql);

} // namespace jet
