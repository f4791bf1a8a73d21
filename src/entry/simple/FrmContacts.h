#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/entry_form.h"
#include "core/record_editor.h"
#include "core/screen.h"
#include "entry/form/form_values.h"
#include "widgets/field_set.h"

class QLabel;

namespace core {
class ContactTools;
class ListPresenter;
} // namespace core

namespace widgets {
class RecordList;
}

namespace entry {

/// The quick view and the simple add: a list of names, and a short form with the fields used most. What was
/// typed and not saved is never left without a question.
class FrmContacts : public core::Screen, public core::ContactScreen, public core::EntryForm {
    Q_OBJECT

public:
    explicit FrmContacts(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool isTouched() const override { return m_fields.isTouched(); }
    void bookChanged() override;
    bool showContact(qint64 id) override;
    bool beginNew() override;
    /// Category and subcategory may have become one entry, or two.
    void vocabulariesChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* layOutForm();
    void layOutName(QWidget* page);
    void setSources();
    void connectControls();

    void display(qint64 id);
    void startNew();
    void showForm();
    void fillFromCard();
    void save();
    qint64 add(const FormValues& now);
    qint64 change(const FormValues& now);
    void refuse(const FormValues& now);
    void cancel();
    void afterDelete(qint64 gone);
    void rowChanged(int row);
    void showHead();

    core::RecordEditor m_editor;
    widgets::FieldSet m_fields;
    bool m_isMerged = false; ///< category and subcategory stand in one list

    core::ContactTools* m_tools;
    widgets::RecordList* DBList1;
    core::ListPresenter* m_list;
    QLabel* lblname;
    QLabel* m_mode;
};

} // namespace entry
