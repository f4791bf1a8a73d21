#pragma once

#include <QStringView>

namespace jet {

/// The words that mean something to the grammar. Each word of a statement is looked up once, when it is read;
/// the parser asks what it is at every turn.
enum class Keyword : unsigned char {
    None,
    // These are never names where an operand is wanted. Any other word is: columns are called default, group,
    // from, to, desc, date.
    Select,
    And,
    Or,
    Not,
    Like,
    In,
    Between,
    Is,
    Union,
    Where,
    Having,
    Null,
    True,
    False,
    // These are never the alias of a table, and so are Where, Union and Having.
    On,
    Inner,
    Left,
    Right,
    Join,
    Set,
    All,
    As,
    Asc,
    By,
    Delete,
    Desc,
    Distinct,
    Drop,
    Exists,
    From,
    Group,
    Insert,
    Into,
    Mod,
    Order,
    Table,
    Update,
    Values,
    HiddenKey, ///< the key that each table has in the file and the dialect does not know
};

Keyword keywordOf(QStringView word); ///< in any mix of case
QStringView textOf(Keyword keyword);

} // namespace jet
