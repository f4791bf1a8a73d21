#pragma once

#include <QString>

namespace jet {
class Database;
}

/// Books of invented people, for trying the program and for the benchmarks. The same number of contacts
/// always gives the same book.
namespace tools {

/// Adds contacts that use all columns and hold what breaks programs: nulls beside empty texts, accents,
/// emoji, apostrophes, very long values, wildcards in cities, dates before 1900 and on 29 February, people of
/// one name, and firms without a person. Some journal entries, calls, phone lists and mailing lists go with
/// them.
bool addContacts(jet::Database& database, int count);

/// Makes a complete data database with so many contacts; not over a file that is there.
bool makeBook(const QString& path, int count);

} // namespace tools
