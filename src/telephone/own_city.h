#pragma once

#include "jet/database.h"

namespace telephone {

/// Where the person who owns the book lives; blank when that is not known.
inline QString ownCity(jet::Database& book)
{
    return book.openRecordset(QStringLiteral("select h_city from cnt_user "))
        .textOrEmpty(u"h_city")
        .trimmed();
}

} // namespace telephone
