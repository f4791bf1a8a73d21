#include "jet/same_name.h"
#include "jet/translator.h"

namespace jet {

CatalogColumn::CatalogColumn(QString columnName, ColumnType columnType)
    : name(std::move(columnName))
    , type(columnType)
    , m_hash(hashOf(name))
{
}

bool CatalogColumn::isCalled(QStringView other, uint otherHash) const
{
    return m_hash == otherHash && sameName(name, other);
}

uint CatalogColumn::hashOf(QStringView text)
{
    uint hash = 2166136261u;
    for (const QChar c : text) {
        const ushort u = c.unicode();
        const uint folded = u >= 'A' && u <= 'Z' ? u + 32u : u < 0x80 ? u : 0;
        hash = (hash ^ folded) * 16777619u;
    }
    return hash;
}

const CatalogColumn* CatalogTable::column(QStringView columnName) const
{
    const uint hash = CatalogColumn::hashOf(columnName);
    for (const CatalogColumn& candidate : columns) {
        if (candidate.isCalled(columnName, hash))
            return &candidate;
    }
    return nullptr;
}

} // namespace jet
