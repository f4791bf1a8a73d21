#pragma once

#include <QString>

namespace core {

/// A screen that takes the where clause of a filter, with its leading word, and shows what it selects.
class FilterTarget {
public:
    virtual ~FilterTarget() = default;
    virtual void applyFilter(const QString& whereClause) = 0;
};

} // namespace core
