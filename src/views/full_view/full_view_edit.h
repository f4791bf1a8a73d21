#pragma once

#include "core/context.h"

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
    qint64 contact() const { return m_id; }
    /// Writes the contact back; false when there is none or it could not be stored.
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
    qint64 m_id = 0;
    QLabel* m_note = nullptr;
};

} // namespace views
