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
        // Of these the person should hear.
        DiskFull,
        ReadOnly, ///< the file or its folder may not be written
        Damaged, ///< the file is no sound database
        Locked, ///< another program keeps the file to itself
        Storage, ///< any other trouble with the file
    };
    bool isOfStorage() const { return cause != Cause::Statement; }

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
/// Called about every 50 milliseconds while a write waits for another program; false gives up. It may paint
/// and read, and must not close the database.
using WaitHandler = std::function<bool()>;

} // namespace jet
