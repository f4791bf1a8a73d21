#include "jet/file_catalog.h"

#include "jet/same_name.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

ColumnType columnTypeOf(const QString& declared)
{
    static const QHash<QString, ColumnType> types{
        {u"TEXT"_s, ColumnType::Text},
        {u"MEMOTEXT"_s, ColumnType::Memo},
        {u"DATETEXT"_s, ColumnType::Date},
        {u"NUMBER"_s, ColumnType::Number},
        {u"YESNOINT"_s, ColumnType::YesNo},
        {u"INTEGER"_s, ColumnType::AutoNumber},
    };
    return types.value(declared.toUpper(), ColumnType::Unknown);
}

QString columnText(sqlite3_stmt* statement, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
        sqlite3_column_bytes(statement, column));
}

} // namespace

const CatalogTable* FileCatalog::table(QStringView name)
{
    if (m_last && sameName(m_last->name, name))
        return m_last;
    const QString key = name.toString().toLower();
    if (const auto known = m_tables.find(key); known != m_tables.end())
        return m_last = known->second.get();
    if (key.startsWith(u"sqlite_"))
        return nullptr;
    auto table = read(key);
    return table ? m_last = m_tables.emplace(key, std::move(table)).first->second.get() : nullptr;
}

std::unique_ptr<CatalogTable> FileCatalog::read(const QString& name)
{
    const Prepared columns = m_statements.once(
        u"SELECT t.name, c.name, c.type FROM sqlite_master t, pragma_table_info(t.name) c "
        "WHERE t.type = 'table' AND t.name = ?1 COLLATE NOCASE ORDER BY c.cid"_s);
    if (!columns)
        return nullptr;
    const QByteArray utf8 = name.toUtf8();
    sqlite3_bind_text(columns.get(), 1, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    std::unique_ptr<CatalogTable> table;
    while (sqlite3_step(columns.get()) == SQLITE_ROW) {
        if (!table)
            table = std::make_unique<CatalogTable>(CatalogTable{columnText(columns.get(), 0), {}});
        CatalogColumn column(columnText(columns.get(), 1), columnTypeOf(columnText(columns.get(), 2)));
        column.isNeverEqualToNull
            = std::any_of(m_neverEqualToNull.begin(), m_neverEqualToNull.end(), [&](const ColumnName& never) {
                  return sameName(never.table, table->name) && sameName(never.column, column.name);
              });
        table->columns.push_back(std::move(column));
    }
    return table;
}

} // namespace jet
