#pragma once

#include <QDate>
#include <QHash>
#include <QString>

#include <optional>

namespace entry {

/// What stands in the controls of an entry form, by control name, read once for a decision or a save.
struct FormValues {
    QHash<QString, QString> texts;
    QHash<QString, std::optional<QDate>> dates; ///< nothing when the control holds no valid date

    QString text(QStringView control) const { return texts.value(control.toString()); }
    QString trimmed(QStringView control) const { return text(control).trimmed(); }
    std::optional<QDate> date(QStringView control) const { return dates.value(control.toString()); }
};

} // namespace entry
