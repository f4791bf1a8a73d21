#pragma once

#include "jet/database.h"

#include <optional>

namespace entry {

/// What a picked city fills in beside itself. What is not known stays as it was; a null column is blank.
struct CityChain {
    std::optional<QString> country;
    std::optional<QString> region;
    std::optional<QString> std;
    std::optional<QString> state;
};

/// `country` is the one whose cities were listed, "All" or empty for all of them.
CityChain cityChain(jet::Database& info, const QString& city, const QString& country);

} // namespace entry
