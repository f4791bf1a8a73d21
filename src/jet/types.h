#pragma once

#include <QString>

#include <functional>

namespace jet {

/// How a screen reaches the data. The two ways differ in the wildcards of `like`: Dao knows * ? # and [!a-z],
/// Ado knows % _ and [^a-z].
enum class Way { Dao, Ado };

/// The types of the engine's columns, as the schema names them.
enum class ColumnType { Unknown, Text, Memo, Number, YesNo, Date, AutoNumber };

/// A column, in any mix of case.
struct ColumnName {
    QString table;
    QString column;
};

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
    qint64 id = 0;
    QString name; ///< as the Step was called that it was made in, or blank
    // Of the rows that it is called after, those of the first label that it touched.
    Kind kind = Kind::Changed;
    int rows = 0;
    QString label; ///< of the first row
    QString table;
    qint64 rowId = 0;
    bool isKept = true; ///< false when there was no room for what its rows held
};

enum class StepDirection { Back, Again };
/// How it went to take a step back, or to do it again.
enum class TakenBack {
    Done,
    Nothing, ///< there is no step
    ChangedSince, ///< somebody else changed its rows; the step is gone
    NotKept, ///< there was no room for it; the step is gone
    NotWritten, ///< the file could not be written; it may be possible another time
};
/// Told when the step it was given to was taken back or done again, for what it did outside of the book.
using StepFollower = std::function<void(StepDirection)>;

using FailureHandler = std::function<void(const Failure&)>;
/// Called when other changes than before can be taken back or done again. It may be in the middle of a write,
/// so it looks later.
using StepsHandler = std::function<void()>;
/// Called about every 50 milliseconds while a write waits for another program; false gives up. It may paint
/// and read, and must not close the database.
using WaitHandler = std::function<bool()>;

} // namespace jet
