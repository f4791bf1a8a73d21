#pragma once

#include "jet/types.h"

#include <QByteArray>
#include <QString>

#include <deque>
#include <memory>
#include <optional>
#include <sqlite3.h>

struct sqlite3_session;

namespace jet {

/// The last changes of one table in this run, each with the rows as they were before. The file engine itself
/// notes what statements, recordsets and batches change; a statement or a batch is one step.
class UndoLog {
public:
    static constexpr size_t kMostSteps = 20;
    /// Of all steps together. A step beyond it can not be taken back, nor can those before it.
    static constexpr qsizetype kMostBytes = 32 * 1024 * 1024;

    /// `labelColumn` holds what a person calls a row.
    UndoLog(sqlite3* connection, const QString& table, const QString& labelColumn);
    ~UndoLog();
    UndoLog(const UndoLog&) = delete;
    UndoLog& operator=(const UndoLog&) = delete;

    /// Makes a step of what was changed since the last call; nothing within a transaction.
    void endStep();
    /// Forgets what was changed since the last step.
    void skip();
    const ChangeStep* last() const { return m_steps.empty() ? nullptr : &m_steps.back().change; }
    /// Takes the last step back, all of it or nothing. False when its rows have become others since; the step
    /// is gone in either case.
    bool undoLast();

private:
    struct EndSession {
        void operator()(sqlite3_session* session) const;
    };
    struct Step {
        ChangeStep change;
        QByteArray rows;
    };

    void begin();
    ChangeStep describe(QByteArray& rows) const;
    QString labelOf(sqlite3_int64 id) const;

    sqlite3* m_connection;
    QByteArray m_table;
    QString m_labelSql;
    int m_labelColumn = -1;
    std::unique_ptr<sqlite3_session, EndSession> m_session;
    std::deque<Step> m_steps;
    qsizetype m_bytes = 0;
};

} // namespace jet
