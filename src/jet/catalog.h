#pragma once

#include "jet/types.h"

#include <QString>

#include <functional>
#include <vector>

namespace jet {

/// A column of a table. Statements name dozens of the 126 columns of a contact, so names are told apart by a
/// hash of their letters before they are compared.
class CatalogColumn {
public:
    CatalogColumn(QString columnName, ColumnType columnType);

    QString name;
    ColumnType type;
    bool isNeverEqualToNull = false; ///< whether "<> null" never holds for it, instead of "is not null"

    bool isCalled(QStringView other, uint otherHash) const;
    uint hash() const { return m_hash; }
    static uint hashOf(QStringView text);

private:
    uint m_hash;
};

struct CatalogTable {
    QString name;
    std::vector<CatalogColumn> columns;
    const CatalogColumn* column(QStringView columnName) const;

    mutable std::vector<int> places = {}; ///< of the columns, by hash; made at the first look
};

/// Finds a table without regard to case; nullptr when there is none.
using Catalog = std::function<const CatalogTable*(QStringView)>;

} // namespace jet
