#pragma once

#include "jet/engine.h"
#include "jet/recordset.h"
#include "jet/row_store.h"

#include <QElapsedTimer>

#include <deque>
#include <optional>
#include <vector>

namespace jet {

/// What a Recordset holds: keys and perhaps rows, the position, and the changes of the row that is being
/// edited.
class RecordsetData {
public:
    RecordsetData(std::shared_ptr<Engine> engine, Request request, Way way, QString text);

    bool load();
    int count() const { return m_isKeyset ? int(m_keys.size()) : m_union ? m_union->rows() : m_held.rows(); }
    const std::vector<ResultColumn>& columns() const { return m_request.plan->translation.columns; }
    int columnIndex(QStringView name) const;

    QString text(int row, int column);
    qint64 number(int row, int column);
    bool isSameText(int row, int otherRow, int column);
    QVariant value(int row, int column);
    qint64 key(int row) const { return m_isKeyset ? m_keys[size_t(row)] : 0; }

    bool holdsRows() const { return m_rowsHeld; }
    int find(QStringView criterion, int from);
    /// The first row with that number in a column; -1 when there is none.
    int rowOf(int column, qint64 wanted);
    std::vector<Recordset::Run> leadingRuns() const;
    int leadingColumn() const;

    bool isEditable() const;
    void begin(bool adding);
    bool set(QStringView column, const QVariant& value);
    bool update();
    void cancel() { m_editing = Editing::Nothing; }
    bool removeCurrent();

    int position = 0;
    qint64 lastAddedKey = 0;

private:
    enum class Editing { Nothing, Row, NewRow };
    struct Change {
        QString column;
        QVariant stored;
    };
    struct Place {
        const RowStore* store;
        int row;
    };

    bool readRows(const Prepared& statement);
    void fetch(int row, int rows);
    const RowStore* block(int block);
    Place look(int row); ///< where the cells of a row are, fetching it when only its key is held
    bool updateNow();
    bool removeNow();
    bool write(const QString& sql, std::optional<qint64> key);
    void forgetHeldRows();

    std::shared_ptr<Engine> m_engine;
    Request m_request;
    Way m_way;
    QString m_text;
    bool m_isKeyset = false;
    bool m_rowsHeld = false;
    std::vector<qint64> m_keys;
    std::shared_ptr<const UnionKeys> m_union; ///< of a union whose rows are read as they are looked at
    std::vector<std::unique_ptr<RowStore>> m_blocks; ///< of it
    std::deque<int> m_readBlocks; ///< the one read first in front
    qint64 m_blockBytes = 0;
    RowStore m_held;
    RowStore m_fetched; ///< the row of a keyset that was looked at last, and perhaps the next ones
    int m_firstFetched = 0;
    int m_fetchedRow = -1; ///< that was looked at last
    QElapsedTimer m_sinceFetch;
    int m_changesAtFetch = 0; ///< what was changed since may be that row
    Editing m_editing = Editing::Nothing;
    std::vector<Change> m_changes;
};

} // namespace jet
