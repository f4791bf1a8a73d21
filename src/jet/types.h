#pragma once

#include <QString>

#include <functional>

namespace jet {

/// How a screen reaches the data. The two ways differ in the wildcards of `like`: Dao knows * ? # and [!a-z],
/// Ado knows % _ and [^a-z].
enum class Way { Dao, Ado };

/// The types of the engine's columns, as the schema names them.
enum class ColumnType { Unknown, Text, Memo, Number, YesNo, Date, AutoNumber };

/// Something the engine was asked to do and did not. Callers need not look: the call itself is harmless.
struct Failure {
    enum class Cause {
        Statement, ///< broken text, unknown name, a value of the wrong type
        Storage, ///< full disk, read-only file, damaged file: the person should hear of it
    };
    Cause cause = Cause::Statement;
    QString statement; ///< the text as the caller wrote it
    QString reason;
};

/// One change that can be taken back.
struct ChangeStep {
    enum class Kind { Added, Changed, Deleted };
    Kind kind = Kind::Changed; ///< of the first row
    int rows = 0;
    QString label; ///< what a person calls the first row
};

using FailureHandler = std::function<void(const Failure&)>;

} // namespace jet
