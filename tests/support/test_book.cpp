#include "support/test_book.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace support {

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray shipped(const char* name)
{
    return contents(QStringLiteral(ORVANE_SOURCE_DIR "/data/") + QLatin1StringView(name));
}

QString cell(const QVariant& value)
{
    if (!value.isValid())
        return u"null"_s;
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(u"yyyy-MM-dd HH:mm:ss");
    return value.typeId() == QMetaType::QDate ? value.toDate().toString(Qt::ISODate) : value.toString();
}

void addSampleRows(jet::Database& data)
{
    jet::Batch batch(data);
    const QByteArray lines = contents(QStringLiteral(ORVANE_SOURCE_DIR "/tests/jet/data/rows.jsonl"));
    for (const QByteArray& line : lines.split('\n')) {
        const QJsonObject entry = QJsonDocument::fromJson(line).object();
        if (entry.isEmpty())
            continue;
        jet::Recordset rows = data.openRecordset(u"select * from ["_s + entry[u"table"].toString() + u']');
        rows.addNew();
        const QJsonObject row = entry[u"row"].toObject();
        for (auto column = row.begin(); column != row.end(); ++column)
            rows.set(column.key(), column.value().isNull() ? QVariant() : column.value().toVariant());
        if (!rows.update())
            qFatal("a sample row was refused: %s", line.constData());
    }
}

} // namespace

TestBook::TestBook(Rows rows)
{
    m_data.setColumnsNeverEqualToNull(columnsNeverEqualToNull());
    if (!jet::Database::create(path()) || m_data.open(path()) != jet::Database::OpenResult::Opened)
        qFatal("no test database");
    jet::Schema all = schema();
    for (jet::SchemaTable& table : all.tables)
        table.database = u"data"_s;
    if (!m_data.applySchema(all, u"data"_s))
        qFatal("the schema was refused");
    if (rows == Rows::Sample)
        addSampleRows(m_data);
    m_data.setFailureHandler([this](const jet::Failure& failure) {
        m_failures << failure.reason + u" in: "_s + failure.statement.left(300);
    });
}

QString TestBook::path() const
{
    return m_folder.filePath(u"Orvanedata.dll"_s);
}

jet::Schema TestBook::schema()
{
    jet::Schema all = jet::Schema::fromCsv(shipped("schema.csv"));
    all.addIndexes(shipped("indexes.csv"));
    all.addDefaults(shipped("defaults.csv"));
    return all;
}

QList<jet::SchemaIndex> TestBook::indexesFor(const jet::Schema& small)
{
    static const QRegularExpression name(u"\\[(\\w+)\\]"_s);
    QList<jet::SchemaIndex> indexes = schema().indexes;
    indexes.removeIf([&small](const jet::SchemaIndex& index) {
        QStringList needed = index.columns;
        for (const auto& match : name.globalMatch(index.condition))
            needed << match.captured(1);
        const jet::SchemaTable* table = small.table(index.table);
        for (const jet::SchemaColumn& column : table ? table->columns : QList<jet::SchemaColumn>())
            needed.removeAll(column.name);
        return !needed.isEmpty();
    });
    return indexes;
}

QList<jet::ColumnName> TestBook::columnsNeverEqualToNull()
{
    return jet::columnNamesFromCsv(shipped("never_equal_to_null.csv"));
}

QString TestBook::unexpected()
{
    QStringList problems;
    for (const QString& failure : m_failures) {
        const auto expected = std::find_if(m_expected.begin(), m_expected.end(),
            [&](const QString& piece) { return failure.contains(piece); });
        if (expected == m_expected.end())
            problems << u"unexpected: "_s + failure;
        else
            m_expected.erase(expected);
    }
    for (const QString& piece : m_expected)
        problems << u"did not come: "_s + piece;
    m_failures.clear();
    m_expected.clear();
    return problems.join(u'\n');
}

QStringList TestBook::rowsOf(const jet::Recordset& set)
{
    QStringList result;
    for (int row = 0; row < set.count(); ++row) {
        QStringList cells;
        for (int column = 0; column < set.columns().size(); ++column)
            cells << cell(set.valueAt(row, column));
        result << cells.join(u'|');
    }
    return result;
}

QStringList TestBook::rows(const QString& sql, jet::Way way)
{
    return rowsOf(m_data.openRecordset(sql, way));
}

QString TestBook::firstText(const QString& sql)
{
    return m_data.openRecordset(sql).textAt(0);
}

} // namespace support
