#pragma once

#include "jet/types.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

namespace jet {

struct SchemaColumn {
    QString name;
    ColumnType type = ColumnType::Text;
    int size = 255; ///< characters of a text column that a screen lets a person type
    QString defaultValue = {}; ///< what statements rely on to stand in a row that nobody set
};

struct SchemaTable {
    QString database; ///< "data" or "info"
    QString name;
    QList<SchemaColumn> columns;
};

/// Each is there for a statement that must not read the whole table.
struct SchemaIndex {
    QString name;
    QString table;
    QStringList columns;
    QString condition; ///< as the file engine has it; blank for all rows
};

/// The tables of both databases as the schema file lists them: one CSV row a column, with the columns
/// database, table, column, type, size.
struct Schema {
    QList<SchemaTable> tables;
    QList<SchemaIndex> indexes;

    /// CSV rows of name, table, columns with blanks between, condition.
    void addIndexes(const QByteArray& csv);
    /// CSV rows of table, column, value.
    void addDefaults(const QByteArray& csv);
    static Schema fromCsv(const QByteArray& csv);
    const SchemaTable* table(QStringView name) const;
    int textSize(QStringView tableName, QStringView column) const; ///< 255 where the schema says nothing
};

/// CSV rows of table, column.
QList<ColumnName> columnNamesFromCsv(const QByteArray& csv);
/// Splits CSV text (comma, double quotes, UTF-8) into rows; the rows may differ in length.
QList<QStringList> parseCsv(const QByteArray& csv);

} // namespace jet
