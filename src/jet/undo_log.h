#pragma once

#include "jet/step_rows.h"
#include "jet/types.h"

#include <QStringList>

#include <deque>
#include <functional>

namespace jet {

class Engine;

/// The last changes of this run in all tables, each step with what its rows held before and after. The file
/// engine itself names each row that a statement is about to change. A statement or a batch is one step, or
/// all that was written while a Step was open.
class UndoLog {
public:
    static constexpr size_t kMostSteps = 20;

    /// The first of the labels has the last word on what a step is called.
    UndoLog(Engine& engine, const QList<ColumnName>& labels);
    ~UndoLog();
    UndoLog(const UndoLog&) = delete;
    UndoLog& operator=(const UndoLog&) = delete;

    // To be told of each statement that could change rows.
    void endStatement(bool succeeded); ///< one that failed has changed none
    void endTransaction();
    /// Forgets what was changed since the transaction began, or since it held that many rows.
    void rollBack(size_t toRows);
    void rollBack() { rollBack(m_committedRows); }
    size_t pendingRows() const { return m_current.rows.rows().size(); }

    void beginStep(const QString& name);
    void endStep();
    void follow(StepFollower follower);
    void setUpkeep(bool on) { m_isUpkeep = on; }

    const ChangeStep* last() const { return m_done.empty() ? nullptr : &m_done.back().change; }
    const ChangeStep* lastUndone() const { return m_undone.empty() ? nullptr : &m_undone.back().change; }
    /// Writes the cells of the last step, in the transaction that is open: all of them, or the transaction is
    /// to be given up.
    TakenBack write(StepDirection direction);
    /// The step that was written stands on the other side from now on; one that can not be written is gone.
    void settle(StepDirection direction, TakenBack result);

private:
    struct Step {
        ChangeStep change;
        StepRows rows;
        std::vector<StepFollower> followers = {};
    };
    struct Table {
        QByteArray name;
        int label = -1; ///< its place in the labels
        int labelColumn = -1;
    };
    /// What a row is called, while the step is gathered.
    struct Name {
        size_t row;
        int label;
        QString text;
    };
    struct Upkept {
        int table;
        sqlite3_int64 id;
        int column;
        CellValue value;
    };

    static void beforeChange(void* self, sqlite3* connection, int operation, const char* database,
        const char* table, sqlite3_int64 oldId, sqlite3_int64 newId);
    void note(int operation, int table, sqlite3_int64 oldId, sqlite3_int64 newId);
    void noteUpkeep(int table, sqlite3_int64 id);
    void noteName(int table, sqlite3_value* before, sqlite3_value* after);
    int tableNumber(const char* name);
    void closeStep();
    void applyUpkeep();
    void describe(Step& step) const;
    Step emptyStep() const;
    bool writeRow(const StepRows& rows, size_t row, StepDirection direction, bool* isStorageFault);

    Engine& m_engine;
    sqlite3* m_connection;
    QString m_fileBeside;
    struct Label {
        QString table;
        int column;
    };
    std::vector<Label> m_labels;
    std::vector<Table> m_tables;
    int m_lastTable = -1;

    Step m_current;
    std::vector<Name> m_names;
    std::vector<Upkept> m_upkept;
    size_t m_sureRows = 0; ///< of statements that are known to have succeeded
    size_t m_sureUpkept = 0;
    size_t m_committedRows = 0; ///< of an open Step
    int m_openSteps = 0;
    bool m_isWriting = false;
    bool m_isUpkeep = false;
    qint64 m_nextId = 1;
    std::deque<Step> m_done;
    std::deque<Step> m_undone;
};

} // namespace jet
