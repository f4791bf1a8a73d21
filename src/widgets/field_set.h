#pragma once

#include "widgets/field_values.h"
#include "widgets/form_kit.h"

#include <QSet>

namespace jet {
class Recordset;
}

namespace widgets {

class DateBox;

/// The fields of a form: what a person enters, control by control, with the column that each shows. All that
/// a form does with its fields as a whole is done here: reading, showing a row, blanking, and telling what
/// was touched since. A name that is not there stops a debug build.
class FieldSet {
public:
    FieldSet() = default;
    /// All fields that the form kit has laid out on these pages, in their order.
    explicit FieldSet(const QWidget* pages);

    const QList<Control>& controls() const { return m_controls; }
    bool has(const QString& name) const { return m_places.contains(name); }
    template <class T = QWidget> T* control(const QString& name) const
    {
        auto* found = qobject_cast<T*>(widget(name));
        Q_ASSERT_X(found, "FieldSet::control", qUtf8Printable(name));
        return found;
    }
    /// What a person calls the field, without its mnemonic.
    QString label(const QString& name) const;

    QString text(const QString& name) const;
    void setText(const QString& name, const QString& text);
    FieldValues values() const;
    void show(const FieldValues& values); ///< fields without a value stay
    /// Each field that has a column shows what the row holds, but for those named.
    void showRow(const jet::Recordset& row, const QSet<QString>& but = {});
    void clear();

    /// What stands there now is what was loaded; touched is what differs from it.
    void keepAsLoaded() { m_loaded = values(); }
    bool isTouched() const { return values() != m_loaded; }
    bool isTouched(const QString& name) const;
    /// The first date that is none; nullptr when there is nothing to mend.
    DateBox* firstBadDate() const;

private:
    QWidget* widget(const QString& name) const;

    QList<Control> m_controls;
    QHash<QString, qsizetype> m_places;
    FieldValues m_loaded;
};

} // namespace widgets
