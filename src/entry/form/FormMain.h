#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/save_source.h"
#include "core/screen.h"
#include "entry/form/form_variant.h"
#include "widgets/form_kit.h"

class QTabWidget;

namespace widgets {
class HeadingGrid;
class PictureBox;
} // namespace widgets

namespace entry {

class AssistPanel;
class EntryAssists;
class UserFields;

/// The entry form with every column of a contact. It waits, adds or edits; the buttons of a mode show only in
/// it. The shorter forms are the same class with another variant.
class FormMain : public core::Screen, public core::ContactScreen, public core::SaveSource {
    Q_OBJECT

public:
    explicit FormMain(
        core::Context& context, const FormVariant& variant = detailedForm(), QWidget* parent = nullptr);
    ~FormMain() override;

    void load() override;
    bool isTouched() const override;
    /// Goes to the edit mode with this contact.
    bool showContact(qint64 id) override;

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
    QWidget* control(const QString& name) const;
    void setText(const QString& name, const QString& text);

    void go(Mode mode);
    void startAdding();
    void startEditing();
    void cancel();
    void clearForm();
    void showSubcategory(bool shown);
    void chooseRecord(const QString& id);
    bool showRecord(const QString& id);
    void showNameLabel();
    void toggleAssist();
    void turnPage(bool simple);

    void save();
    bool isEdit() const { return IsEditing || shared().EditRequested; }
    qint64 add(const FormValues& values, const QString& name);
    qint64 edit(const FormValues& values, const QString& name);
    void endSave();
    void refuse(int refusal);

    void selectPhoto();
    void saveAs();

    const FormVariant& m_variant;
    jet::Recordset Adodc1; ///< all contacts in order, for the position
    bool m_isMerged = false; ///< category and subcategory stand in one list
    bool IsEditing = false;
    Mode m_mode = Mode::Idle;
    QTabWidget* sstab1;
    widgets::HeadingGrid* grdEditList;
    AssistPanel* m_assist;
    EntryAssists* m_assists = nullptr;
    UserFields* m_userFields = nullptr;
    widgets::PictureBox* Photo = nullptr;
    QList<widgets::Control> m_fields;
    QString m_photoPath; ///< as the contact stores it
    QHash<QString, QString> m_untouched; ///< what the form held when its mode began
};

} // namespace entry
