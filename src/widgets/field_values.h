#pragma once

#include <QDate>
#include <QHash>
#include <QString>

#include <optional>

namespace widgets {

/// What stands in the fields of a form, by control name, read once for a decision or a save. It knows no
/// widget, so that rules can be written and tested on it.
struct FieldValues {
    QHash<QString, QString> texts;
    QHash<QString, std::optional<QDate>> dates; ///< nothing when the field is empty

    QString text(QStringView control) const { return texts.value(control.toString()); }
    QString trimmed(QStringView control) const { return text(control).trimmed(); }
    std::optional<QDate> date(QStringView control) const { return dates.value(control.toString()); }

    bool operator==(const FieldValues&) const = default;
};

} // namespace widgets
