#include "core/store/book_schema.h"

#include "jet/database.h"

#include <QDir>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

// The rows lie in a static library, whose resources a program only has when it asks for them. Not in a
// namespace: the macro declares a function of the global one.
static void useShippedFiles()
{
    Q_INIT_RESOURCE(data);
}

namespace core {

namespace {

QByteArray shippedFile(const QString& name)
{
    useShippedFiles();
    QFile file(u":/data/"_s + name);
    const bool found = file.open(QIODevice::ReadOnly);
    Q_ASSERT_X(found, "shippedFile", qPrintable(name));
    return file.readAll();
}

ShippedRows readRows(const QString& table, const QString& file)
{
    QList<QStringList> rows = jet::parseCsv(shippedFile(file));
    const QStringList columns = rows.takeFirst();
    return {table, columns, std::move(rows)};
}

} // namespace

jet::Schema bookSchema()
{
    jet::Schema schema = jet::Schema::fromCsv(shippedFile(u"schema.csv"_s));
    schema.addIndexes(shippedFile(u"indexes.csv"_s));
    schema.addDefaults(shippedFile(u"defaults.csv"_s));
    return schema;
}

QList<jet::ColumnName> columnsNeverEqualToNull()
{
    return jet::columnNamesFromCsv(shippedFile(u"never_equal_to_null.csv"_s));
}

QString schemaName(BookPart part)
{
    switch (part) {
    case BookPart::Data: return u"data"_s;
    case BookPart::Information: return u"info"_s;
    case BookPart::LetterSide: return u"letter-side-db"_s;
    }
    return {};
}

QList<ShippedRows> shippedRows(BookPart part)
{
    QList<ShippedRows> all;
    if (part == BookPart::Data) {
        useShippedFiles();
        for (const QString& file : QDir(u":/data/seed"_s).entryList({u"*.csv"_s}, QDir::Files, QDir::Name))
            all << readRows(file.chopped(4), u"seed/"_s + file);
    } else if (part == BookPart::Information) {
        const ShippedRows tables = readRows({}, u"reference/tables.csv"_s);
        for (const QStringList& row : tables.rows)
            all << readRows(row.at(1), u"reference/"_s + row.at(0));
    }
    return all;
}

bool bringUpToDate(jet::Database& database, BookPart part)
{
    const QStringList before = database.tables();
    jet::Batch whole(database);
    bool done = database.applySchema(bookSchema(), schemaName(part));
    for (const ShippedRows& shipped : shippedRows(part)) {
        if (!before.contains(shipped.table, Qt::CaseInsensitive))
            done = done && database.appendRows(shipped.table, shipped.columns, shipped.rows);
    }
    done = done && database.setVersion(kSchemaVersion);
    if (!done) {
        whole.rollBack();
        return false;
    }
    return whole.commit();
}

} // namespace core
