#pragma once

#include "jet/schema.h"

#include <QList>
#include <QStringList>

namespace jet {
class Database;
}

namespace core {

/// The number of the tables as `data/schema.csv` and the engine's indexes describe them. Raise it by one with
/// each table, column or index that is added; an older book is then brought up to date when it is opened.
constexpr int kSchemaVersion = 4;

/// Rows of one table as the program ships them.
struct ShippedRows {
    QString table;
    QStringList columns;
    QList<QStringList> rows;
};

/// The databases of the schema, by the names that `data/schema.csv` gives them.
enum class BookPart {
    Data, ///< the user's book
    Information, ///< names and places, never changed by the user
    LetterSide, ///< a small database of its own for letters
};

jet::Schema bookSchema();
/// What a database of the books is to be told, see jet::Database::setColumnsNeverEqualToNull().
QList<jet::ColumnName> columnsNeverEqualToNull();
QString schemaName(BookPart part);
QList<ShippedRows> shippedRows(BookPart part);

/// Makes all that the schema has and the database has not, with the shipped rows of each table that is new
/// and the version number, in one transaction.
bool bringUpToDate(jet::Database& database, BookPart part);

} // namespace core
