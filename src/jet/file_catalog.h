#pragma once

#include "jet/catalog.h"
#include "jet/prepared.h"

#include <QHash>
#include <QList>

#include <memory>
#include <unordered_map>

namespace jet {

/// The tables of one file with their columns, each read from the file when a statement first names it. What
/// was found stays where it is until forget(), which whoever makes, alters or drops a table has to call.
class FileCatalog {
public:
    explicit FileCatalog(Statements& statements)
        : m_statements(statements)
    {
    }

    /// Null when there is none, and for the file engine's own.
    const CatalogTable* table(QStringView name);
    void forget()
    {
        m_tables.clear();
        m_last = nullptr;
    }

    void setColumnsNeverEqualToNull(const QList<ColumnName>& columns) { m_neverEqualToNull = columns; }
    const QList<ColumnName>& columnsNeverEqualToNull() const { return m_neverEqualToNull; }

private:
    std::unique_ptr<CatalogTable> read(const QString& name);

    Statements& m_statements;
    QList<ColumnName> m_neverEqualToNull;
    std::unordered_map<QString, std::unique_ptr<CatalogTable>> m_tables; ///< by lower-case name
    const CatalogTable* m_last = nullptr; ///< a statement asks for the same table time and again
};

} // namespace jet
