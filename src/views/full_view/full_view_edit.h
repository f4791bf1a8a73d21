#pragma once

#include "core/context.h"
#include "core/record_editor.h"
#include "widgets/field_set.h"

#include <QWidget>

class QLabel;
class QTabWidget;

namespace widgets {
class FormKit;
}

namespace views {

/// The page "Edit" of the full view: the record shown, in fields that can be changed.
class FullViewEdit : public QWidget {
    Q_OBJECT

public:
    explicit FullViewEdit(core::Context& context, QWidget* parent = nullptr);

    /// Fills the fields from the contact; without one they are blank.
    void loadContact(qint64 id);
    qint64 contact() const { return m_editor.id(); }
    bool isTouched() const { return m_fields.isTouched(); }
    /// Writes what was changed; false when it was not stored, which the person has been told.
    bool saveContact();
    void tell(const QString& text); ///< beside the save button, until something changes

Q_SIGNALS:
    void saveRequested();

private:
    QWidget* addPage(QTabWidget* tabs, const QString& title, QStringView icon) const;
    void layOutPerson(QWidget* page);
    void layOutAddresses(QWidget* page);
    void layOutNumbers(QWidget* page);
    void layOutFamily(QWidget* page);
    void connectLists();
    widgets::FormKit kit(QWidget* page) const;

    core::Context& m_context;
    widgets::FieldSet m_fields;
    core::RecordEditor m_editor;
    QLabel* m_note = nullptr;
};

} // namespace views
