#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace jet {

/// One word of the dialect. Texts are unescaped, names are without their brackets.
struct Token {
    enum class Kind { Word, Name, Text, Number, Date, Symbol, End };
    Kind kind = Kind::End;
    QString text; ///< word, name, text value, normalised number, ISO date, or the symbol
    int literal
        = -1; ///< its place among the values that are bound, -1 for a value that stays in the statement

    bool isWord(QStringView word) const
    {
        return kind == Kind::Word && text.size() == word.size()
            && text.compare(word, Qt::CaseInsensitive) == 0;
    }
    bool isSymbol(QStringView symbol) const { return kind == Kind::Symbol && text == symbol; }
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
    QString
        shape; ///< the statement with a mark in the place of each bound value: what translations are kept by
    QString error; ///< empty when all is well
};

/// Splits a statement. Fails on anything that is no word of the dialect: a lone apostrophe, a hash mark that
/// closes no date, `--`, `||`, `!=`.
Lexed lex(QStringView sql);

} // namespace jet
