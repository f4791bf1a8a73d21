#pragma once

#include "core/handover/contact_screen.h"
#include "core/screen.h"
#include "views/contact_pages/simple_contact.h"

class QLabel;

namespace core {
class ContactTools;
}

namespace widgets {
class DateBox;
class RecordList;
} // namespace widgets

namespace views {

/// The quick view and the simple add: a list of names, and a short form with the fields used most. What was
/// typed and not saved is never left without a question.
class FrmContacts : public core::Screen, public core::ContactScreen {
    Q_OBJECT

public:
    explicit FrmContacts(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool isTouched() const override { return values() != m_untouched; }
    void bookChanged() override;
    bool showContact(qint64 id) override;
    /// Category and subcategory may have become one entry, or two.
    void vocabulariesChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* layOutForm();
    void layOutName(QWidget* page);
    void setSources();
    void connectControls();

    SimpleValues values() const;
    void showValues(const SimpleValues& values);
    void display(qint64 id);
    void startNew();
    void save();
    SimpleSave saveOptions() const;
    bool reachesOthers() const;
    qint64 add(const SimpleValues& now);
    qint64 change(const SimpleValues& now);
    void tellMailClient(const SimpleValues& now, bool isNew);
    void refuse(SimpleRefusal refusal);
    void cancel();
    void afterDelete();
    void rowChanged(int row);
    void readList();
    void showHead();

    qint64 m_id = 0; ///< the contact on the form, 0 for a new one
    core::LoadedRow m_loaded; ///< the contact that is changed
    SimpleValues m_untouched; ///< what stood on the form before anybody typed
    bool m_quiet = false; ///< the list moves by itself
    bool m_isMerged = false; ///< category and subcategory stand in one list

    core::ContactTools* m_tools;
    widgets::RecordList* DBList1;
    widgets::DateBox* DateBday = nullptr;
    QLabel* lblname;
    QLabel* m_mode;
};

} // namespace views
