#pragma once

struct sqlite3;

namespace jet {

/// Registers the collation JET and the functions of the dialect under names of their own (jet_mid, jet_month,
/// ...), since the file engine's functions of the same names mean other things.
void registerDialect(sqlite3* connection);

} // namespace jet
