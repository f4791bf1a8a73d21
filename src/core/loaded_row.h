#pragma once

#include "jet/recordset.h"

#include <QHash>
#include <QList>
#include <QString>

#include <functional>

namespace core {

/// A value that a form is about to write into a column.
struct ColumnEdit {
    QString column;
    QVariant value;
    bool isTouched = false; ///< the person changed a field that it is made of
    bool isAlways = false; ///< the program's own, such as the day of the change
    QString label; ///< what the person calls the field
};

/// What a form knows of its fields beside their values.
struct TouchedFields {
    std::function<bool(const QString& control)> isTouched;
    std::function<QString(const QString& control)> label; ///< what the person calls it
};

/// A column that the person changed here and somebody else in the book.
struct EditClash {
    QString label;
    QString mine;
    QString stored;
};

/// A row as a form loaded it, so that a save writes what the person changed and does not take back what
/// another screen, the set-up or another program stored meanwhile.
///
/// Column by column: stored still as loaded, the form's value is written. Stored otherwise, and not touched
/// here, the newer value stays. Both: a clash, which the person decides.
class LoadedRow {
public:
    LoadedRow() = default;
    explicit LoadedRow(const jet::Recordset& row);

    QList<EditClash> clashes(const jet::Recordset& stored, const QList<ColumnEdit>& edits) const;
    /// Assigns to the row that is being edited. What clashes is written as well.
    void assign(jet::Recordset& stored, const QList<ColumnEdit>& edits) const;

private:
    bool isAsLoaded(const jet::Recordset& stored, const QString& column) const;

    QHash<QString, QVariant> m_values; ///< by lower-case column
};

/// The question before clashes are overwritten, with both values of each. Default of the answer is No.
QString clashQuestion(const QList<EditClash>& clashes);

} // namespace core
