#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/entry_form.h"
#include "core/handover/save_source.h"
#include "core/record_editor.h"
#include "core/screen.h"
#include "entry/form/form_variant.h"
#include "widgets/field_set.h"
#include "widgets/fields.h"

class QTabWidget;

namespace widgets {
class HeadingGrid;
} // namespace widgets

namespace entry {

class AssistPanel;
class EntryAssists;
class PhotoField;
class UserFields;

/// The entry form with every column of a contact. It waits, adds or edits; the buttons of a mode show only in
/// it. The shorter forms are the same class with another variant.
class FormMain : public core::Screen,
                 public core::ContactScreen,
                 public core::SaveSource,
                 public core::EntryForm {
    Q_OBJECT

public:
    explicit FormMain(
        core::Context& context, const FormVariant& variant = detailedForm(), QWidget* parent = nullptr);
    ~FormMain() override;

    void load() override;
    bool isTouched() const override;
    /// Goes to the edit mode with this contact.
    bool showContact(qint64 id) override;
    bool beginNew() override;

    bool mayBeSaved() override;
    formats::CardValues cardValues() const override;
    QString mailKey() const override;
    platform::MailChange mailChange() const override;
    qint64 saveContact() override;
    /// Category and subcategory may have become one entry, or two.
    void vocabulariesChanged() override;

protected:
    bool event(QEvent* event) override;

private:
    enum class Mode { Idle, Adding, Editing };

    void layOut();
    void wire();

    FormValues values() const;
    QWidget* control(const QString& name) const { return widgets::child<QWidget>(this, name); }
    void setText(const QString& name, const QString& text);

    void go(Mode mode);
    void startAdding();
    void startEditing();
    void cancel();
    void clearForm();
    void chooseRecord(const QString& id);
    bool showRecord(const QString& id);
    void showNameLabel();
    void toggleAssist();
    void turnPage(bool simple);

    void save();
    qint64 add(const FormValues& values, const QString& name);
    qint64 edit(const FormValues& values, const QString& name);
    /// What the columns get, the picture where it was put by now.
    SaveOptions saveOptions(const QString& name) const;
    qint64 addAgain(const jet::Recordset& read, const FormValues& values, const QString& name);
    void endSave(const QString& name);
    jet::Recordset& contacts();
    void takeUsualNameView();
    void refuse(int refusal);

    void saveAs();

    const FormVariant& m_variant;
    jet::Recordset Adodc1; ///< all contacts in order, for the position; opened when one is looked for
    bool m_isMerged = false; ///< category and subcategory stand in one list
    bool IsEditing = false;
    Mode m_mode = Mode::Idle;
    QTabWidget* sstab1;
    widgets::HeadingGrid* grdEditList;
    AssistPanel* m_assist;
    EntryAssists* m_assists = nullptr;
    UserFields* m_userFields = nullptr;
    PhotoField* m_photo = nullptr;
    widgets::FieldSet m_fields;
    core::RecordEditor m_editor; ///< the contact that is changed
};

} // namespace entry
