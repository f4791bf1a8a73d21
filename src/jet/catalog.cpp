#include "jet/catalog.h"

#include "jet/same_name.h"

#include <bit>

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
    // Twice as many places as columns at the least, so that a name is found at the first or second look.
    if (places.size() < 2 * columns.size() + 1) {
        places.assign(std::bit_ceil(2 * columns.size() + 1), -1);
        for (size_t i = 0; i < columns.size(); ++i) {
            size_t place = columns[i].hash() % places.size();
            while (places[place] >= 0)
                place = (place + 1) % places.size();
            places[place] = int(i);
        }
    }
    const uint hash = CatalogColumn::hashOf(columnName);
    for (size_t place = hash % places.size(); places[place] >= 0; place = (place + 1) % places.size()) {
        const CatalogColumn& candidate = columns[size_t(places[place])];
        if (candidate.isCalled(columnName, hash))
            return &candidate;
    }
    return nullptr;
}

} // namespace jet
