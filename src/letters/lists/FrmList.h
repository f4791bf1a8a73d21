#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/contacts_target.h"
#include "core/screen.h"
#include "letters/lists/list_kinds.h"

class QLabel;
class QPushButton;

namespace widgets {
class FilledCombo;
class RecordList;
} // namespace widgets

namespace letters {

/// Adds people whom another screen has chosen to a list of any kind, or to a new mailing list.
class FrmList : public core::Screen, public core::ContactScreen, public core::ContactsTarget {
    Q_OBJECT

public:
    explicit FrmList(core::Context& context, QWidget* parent = nullptr);

    void load() override;
    bool showContact(qint64 id) override;
    bool takeContacts(const QList<qint64>& ids, const QString& listName) override;
    bool isTouched() const override; ///< a name for a new list has been typed
    void bookChanged() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showPeople();
    void readLists();
    void follow();
    /// Nothing for an empty name.
    std::optional<PickedList> picked() const;
    void add();
    void tell(const PickedList& list, const MembersAdded& added);

    QList<qint64> m_people;
    QList<PickedList> m_lists;
    widgets::RecordList* m_names;
    widgets::FilledCombo* cmbList = nullptr;
    QLabel* lblPeople = nullptr;
    QLabel* lblWhat = nullptr;
    QPushButton* cmdOk = nullptr;
};

} // namespace letters
