#include "jet/schema.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace jet {

QList<QStringList> parseCsv(const QByteArray& csv)
{
    QList<QStringList> rows;
    QStringList row;
    QByteArray field;
    bool quoted = false;
    bool started = false;
    const auto endField = [&] {
        row << QString::fromUtf8(field);
        field.clear();
        started = false;
    };
    const auto endRow = [&] {
        endField();
        if (row.size() > 1 || !row.first().isEmpty())
            rows << row;
        row.clear();
    };
    for (qsizetype i = 0; i < csv.size(); ++i) {
        const char c = csv[i];
        if (quoted) {
            if (c != '"')
                field += c;
            else if (i + 1 < csv.size() && csv[i + 1] == '"')
                field += csv[++i];
            else
                quoted = false;
        } else if (c == '"' && !started) {
            quoted = true;
            started = true;
        } else if (c == ',') {
            endField();
        } else if (c == '\n') {
            endRow();
        } else if (c != '\r') {
            field += c;
            started = true;
        }
    }
    if (started || !field.isEmpty() || !row.isEmpty())
        endRow();
    return rows;
}

QList<ColumnName> columnNamesFromCsv(const QByteArray& csv)
{
    QList<ColumnName> names;
    const auto rows = parseCsv(csv);
    for (const QStringList& row : rows.sliced(1))
        names << ColumnName{row.value(0), row.value(1)};
    return names;
}

Schema Schema::fromCsv(const QByteArray& csv)
{
    static const QHash<QString, ColumnType> types{
        {u"text"_s, ColumnType::Text},
        {u"memo"_s, ColumnType::Memo},
        {u"number"_s, ColumnType::Number},
        {u"yesno"_s, ColumnType::YesNo},
        {u"date"_s, ColumnType::Date},
        {u"autonumber"_s, ColumnType::AutoNumber},
    };
    Schema schema;
    const auto rows = parseCsv(csv);
    for (qsizetype i = 1; i < rows.size(); ++i) {
        const QStringList& row = rows[i];
        if (row.size() < 4)
            continue;
        if (schema.tables.isEmpty() || schema.tables.last().name != row[1])
            schema.tables.append(SchemaTable{row[0], row[1], {}});
        const int size = row.size() > 4 && row[4].toInt() > 0 ? row[4].toInt() : 255;
        schema.tables.last().columns.append(
            SchemaColumn{row[2], types.value(row[3], ColumnType::Text), size, {}});
    }
    return schema;
}

void Schema::addIndexes(const QByteArray& csv)
{
    const auto rows = parseCsv(csv);
    for (const QStringList& row : rows.sliced(1))
        indexes.append(SchemaIndex{row.value(0), row.value(1), row.value(2).split(u' '), row.value(3)});
}

void Schema::addDefaults(const QByteArray& csv)
{
    const auto rows = parseCsv(csv);
    for (const QStringList& row : rows.sliced(1)) {
        for (SchemaTable& table : tables) {
            for (SchemaColumn& column : table.columns) {
                if (table.name.compare(row.value(0), Qt::CaseInsensitive) == 0
                    && column.name.compare(row.value(1), Qt::CaseInsensitive) == 0)
                    column.defaultValue = row.value(2);
            }
        }
    }
}

const SchemaTable* Schema::table(QStringView name) const
{
    for (const SchemaTable& candidate : tables) {
        if (name.compare(candidate.name, Qt::CaseInsensitive) == 0)
            return &candidate;
    }
    return nullptr;
}

int Schema::textSize(QStringView tableName, QStringView column) const
{
    if (const SchemaTable* found = table(tableName)) {
        for (const SchemaColumn& candidate : found->columns) {
            if (column.compare(candidate.name, Qt::CaseInsensitive) == 0)
                return candidate.size;
        }
    }
    return 255;
}

} // namespace jet
