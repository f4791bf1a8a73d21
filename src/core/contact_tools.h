#pragma once

#include "core/context.h"
#include "core/tool_set.h"

#include <functional>

namespace core {

/// The contact that the tools of a screen are for, as that screen knows it.
struct ChosenContact {
    qint64 id = 0; ///< of the contact shown; 0 for none, and for one of another address book
    qint64 listedId = 0; ///< of the row of the list, by which the entry form edits
    QString name = {}; ///< by which tools go that go by name, and by which a contact without an id is found
};

/// What the screen with the tools wants of them.
struct ContactToolsHost {
    QString callerForm; ///< to which filters are delivered
    std::function<ChosenContact()> chosen;
    bool tellsName = false; ///< tools go by the name as far as they can
    bool needsName = true; ///< a contact with a blank name counts as none
    bool saysNone = true; ///< "Record not selected"; else nothing happens
    bool sounds = false; ///< an edit can be heard
    std::function<void()> beforeFilter = {}; ///< sets the choices of the screen itself back
};

/// The tools of a screen that has a current contact: each hands it to another screen, found by form name, or
/// edits, deletes or saves it. The same for all screens, whatever their tables name.
class ContactTools : public ToolSet {
    Q_OBJECT

public:
    ContactTools(Context& context, const ToolTable& table, ContactToolsHost host, QWidget* screen);

    /// Makes a contact the one last chosen; false when there is none, or it may not be without a name.
    bool select(qint64 id);
    /// With what find and replace can work on.
    void addReplaceMenu(QMenu* menu);

Q_SIGNALS:
    void contactDeleted(qint64 id);

private:
    void perform(const Tool& tool);
    void performOnContact(const Tool& tool, const jet::Recordset& contact);
    jet::Recordset contactFor(const Tool& tool) const;
    bool counts(const jet::Recordset& contact) const;
    void notSelected() const;
    void select(const jet::Recordset& contact);

    void edit();
    void remove(qint64 id, const QString& name);
    void handOver(QStringView form, qint64 id);
    void addRecipient(QStringView form, qint64 id);
    void openPage(const Tool& tool, qint64 id);
    void askFilter(QStringView form);
    void printContact(QStringView form, const QString& name);
    void requestReport();
    void saveCards(const QString& ids, const QString& folder);
    void saveAllCards();

    Context& m_context;
    ContactToolsHost m_host;
    QWidget* m_screen;
};

/// Hands a contact over to the detailed entry form in its edit mode; says "Error" when it is not there any
/// more, and is false then.
bool editContact(Context& context, qint64 id);

} // namespace core
