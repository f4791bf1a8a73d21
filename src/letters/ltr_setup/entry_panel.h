#pragma once

#include "core/setup_panel.h"
#include "letters/ltr_setup/stored_lists.h"

class QLabel;
class QPushButton;

namespace widgets {
class FormKit;
class HeadingGrid;
} // namespace widgets

namespace letters {

/// One list of what the creators offer: its entries, and the fields in which the chosen one is changed or a
/// new one typed. What can not be stored is said in a hint below.
class EntryPanel : public core::SetupPanel {
    Q_OBJECT

public:
    EntryPanel(core::Context& context, const StoredList& list, QWidget* parent = nullptr);

    const StoredList& list() const { return m_list; }
    void refresh() override;
    bool isTouched() const override;
    void beginNew(); ///< with the focus where a new entry is typed

private:
    void layOut();
    void layOutFields(widgets::FormKit& form);
    void addText(widgets::FormKit& form, const QString& label, const QString& column);
    void connectControls();
    void readRows(const EntryPlace& current);
    void rowChosen();
    void rowChanged();
    void show(const Entry& entry);
    Entry typed() const;
    QString typedValue() const;
    int rowOf(const EntryPlace& place) const;
    bool mayMove();
    void save();
    void remove();
    void tell(const QString& hint);

    const StoredList& m_list;
    EntryPlace m_place; ///< of the entry that is being changed; of no value while a new one is typed
    Entry m_shown; ///< as the fields were filled
    bool m_isReading = false;

    widgets::HeadingGrid* m_rows;
    QHash<QString, QWidget*> m_fields; ///< by column
    QPushButton* m_new = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_delete = nullptr;
    QLabel* m_hint;
};

} // namespace letters
