#pragma once

#include "jet/types.h"

#include <QStringList>

#include <deque>
#include <memory>
#include <sqlite3.h>
#include <vector>

namespace jet {

/// The last changes of one table in this run, each with what its rows held before and after. The file engine
/// itself names each row that a statement is about to change; a statement or a batch is one step.
class UndoLog {
public:
    static constexpr size_t kMostSteps = 20;
    /// Of all steps together. A step beyond it can not be taken back, nor can those before it.
    static constexpr size_t kMostBytes = 32 * 1024 * 1024;

    /// `columns` are all of the table in their order; `labelColumn` holds what a person calls a row.
    UndoLog(
        sqlite3* connection, const QString& table, const QStringList& columns, const QString& labelColumn);
    ~UndoLog();
    UndoLog(const UndoLog&) = delete;
    UndoLog& operator=(const UndoLog&) = delete;

    /// To be told of each statement that could change rows: one that failed has changed none.
    void endStatement(bool succeeded);
    /// Forgets what was changed since the last step: it was rolled back, or no person did it.
    void skip();
    /// Notes nothing for a while.
    void pause(bool on) { m_isPaused = on; }
    const ChangeStep* last() const { return m_steps.empty() ? nullptr : &m_steps.back().change; }
    /// Takes the last step back, all of it or nothing. False when its rows have become others since; the step
    /// is gone in either case.
    bool undoLast();

private:
    struct Free {
        void operator()(sqlite3_value* value) const { sqlite3_value_free(value); }
    };
    struct Cell {
        int column;
        std::unique_ptr<sqlite3_value, Free> before; ///< null for null, and in a row that was not there
        std::unique_ptr<sqlite3_value, Free> after;
    };
    struct Row {
        ChangeStep::Kind kind;
        sqlite3_int64 id;
        std::vector<Cell> cells; ///< of a changed row only those that were changed
    };
    struct Step {
        ChangeStep change;
        std::vector<Row> rows;
        size_t bytes = 0;
    };

    static void beforeChange(void* self, sqlite3* connection, int operation, const char* database,
        const char* table, sqlite3_int64 oldId, sqlite3_int64 newId);
    void note(int operation, sqlite3_int64 id);
    void closeStep();
    bool undo(const Row& row);
    QString undoSql(const Row& row) const;

    sqlite3* m_connection;
    QByteArray m_table;
    QStringList m_columns; ///< in brackets
    int m_labelColumn;
    Step m_pending;
    size_t m_pendingOfSucceeded = 0; ///< rows of statements that are known to have succeeded
    bool m_isTooMuch = false;
    bool m_isUndoing = false;
    bool m_isPaused = false;
    std::deque<Step> m_steps;
    size_t m_bytes = 0;
};

} // namespace jet
