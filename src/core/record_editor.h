#pragma once

#include "core/context.h"
#include "core/loaded_row.h"

namespace core {

/// The row that a form changes, from its loading to its save: written is what the person changed, an
/// overwriting of what somebody else stored meanwhile is asked for, and whatever goes wrong is told at the
/// save. The form keeps what stands in it then.
class RecordEditor {
public:
    enum class Outcome {
        Stored,
        NotStored, ///< and the person knows why
        Gone, ///< nobody was told yet that the row was deleted meanwhile
    };

    /// `table` has its key in the column id.
    explicit RecordEditor(Context& context, const QString& table = QStringLiteral("cnt_main"));

    qint64 id() const { return m_id; } ///< of the row that is changed, 0 for one that is new
    /// The row as it stands; without one the form is for a new record from now on.
    jet::Recordset load(qint64 id);
    void take(const jet::Recordset& row); ///< one that the form has read itself
    void startNew();

    /// The three steps of store(), for a save that does more between them. A failure of the last is told by
    /// the caller, when nothing of the save is under way any more.
    jet::Recordset open() const;
    bool mayOverwrite(const jet::Recordset& stored, const QList<ColumnEdit>& edits) const;
    bool write(jet::Recordset& stored, const QList<ColumnEdit>& edits) const;

    Outcome store(const QList<ColumnEdit>& edits) const;
    /// For a form that does nothing else about it.
    void sayGone() const;

private:
    QString rowSql(qint64 id) const;

    Context& m_context;
    QString m_table;
    qint64 m_id = 0;
    LoadedRow m_loaded;
};

} // namespace core
