#pragma once

#include "core/contact_names.h"
#include "core/loaded_row.h"
#include "jet/recordset.h"
#include "platform/contact_sync.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <optional>
#include <span>

namespace views {

/// A field of the simple form, and the column that it shows and writes.
struct SimpleField {
    QStringView control;
    QStringView column;
    bool trimmed = true;
};

/// What stands in the simple form, by control name.
struct SimpleValues {
    QHash<QString, QString> texts;
    std::optional<QDate> birthday;

    QString text(QStringView control) const { return texts.value(control.toString()); }
    friend bool operator==(const SimpleValues&, const SimpleValues&) = default;
};

/// The fields that are written as they are; name, category and birthday have rules of their own.
std::span<const SimpleField> simpleFields();

enum class SimpleRefusal { AllBlank, NoNameView, NoName };

/// Why the form can not be saved; nothing when it can.
std::optional<SimpleRefusal> refusalOf(const SimpleValues& values);

struct SimpleSave {
    QDate today;
    bool mergedCategory = false;
    QString newPriority; ///< of a new contact; blank gives "2"
};

/// Assigns the columns of a new contact, with what the other entry forms give it beside.
void assignNew(jet::Recordset& rows, const SimpleValues& values, const SimpleSave& save);
/// What a change writes: the columns of the form, and no other.
QList<core::ColumnEdit> changedColumns(
    const SimpleValues& values, const SimpleSave& save, const core::TouchedFields& fields);

/// Puts what stands in the form into the contact's item in the mail client; the rest of the item stays.
void fillMailItem(platform::MailContact& item, const SimpleValues& values);

/// What the form shows of the current row of "select * from cnt_main".
SimpleValues simpleValuesOf(const jet::Recordset& row, bool mergedCategory);

} // namespace views
