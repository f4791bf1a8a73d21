#include "core/contact_tools.h"

#include "core/contact_lookups.h"
#include "core/contact_tool_table.h"
#include "core/handover/contact_screen.h"
#include "core/handover/mail_composer.h"
#include "core/handover/page_screen.h"
#include "core/handover/report_screen.h"
#include "core/mail_key.h"
#include "core/report_request.h"
#include "core/save_cards.h"
#include "core/save_failure.h"
#include "core/save_texts.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "platform/contact_sync.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "platform/special_folders.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

#include <utility>

using namespace Qt::StringLiterals;

namespace core {

namespace {

constexpr QStringView kEntryForm = u"FormMain";
constexpr QStringView kFind = u"FrmFind";

} // namespace

ContactTools::ContactTools(Context& context, const ToolTable& table, ContactToolsHost host, QWidget* screen)
    : ToolSet(context.screens, table, screen)
    , m_context(context)
    , m_host(std::move(host))
    , m_screen(screen)
{
    connect(this, &ToolSet::triggered, this, &ContactTools::perform);
}

void ContactTools::perform(const Tool& tool)
{
    switch (tool.task) {
    case ToolTask::Own: return;
    case ToolTask::Filter: return askFilter(tool.form);
    case ToolTask::RequestReport: return requestReport();
    case ToolTask::SaveAllCardsToDesktop: return saveAllCards();
    case ToolTask::SaveAllTextToDesktop: saveBookText(m_context, true, m_screen); return;
    case ToolTask::EditContact: return edit();
    default: break;
    }
    const jet::Recordset contact = contactFor(tool);
    if (!counts(contact))
        return notSelected();
    if (tool.column.isEmpty() || contact.value(tool.column).isValid())
        performOnContact(tool, contact);
}

void ContactTools::performOnContact(const Tool& tool, const jet::Recordset& contact)
{
    const qint64 id = contact.number(u"id");
    const auto folder
        = [this] { return m_context.services.folders.SpecialFolderPath(platform::csidlDesktop); };
    switch (tool.task) {
    case ToolTask::SaveCard: return saveCards(QString::number(id), u"C:\\OVUserFiles\\VCF"_s);
    case ToolTask::SaveCardToDesktop: return saveCards(QString::number(id), folder());
    case ToolTask::SaveTextToDesktop: return saveContactText(m_context, id);
    default: break;
    }
    select(contact);
    switch (tool.task) {
    case ToolTask::DeleteContact: return remove(id, contact.textOrEmpty(u"Name"));
    case ToolTask::HandOver: return handOver(tool.form, id);
    case ToolTask::AddRecipient: return addRecipient(tool.form, id);
    case ToolTask::OpenPage: return openPage(tool, id);
    case ToolTask::PrintContact: return printContact(tool.form, contact.textOrEmpty(u"Name"));
    default: break;
    }
}

// Kept: of two contacts with one name the first is called, written to and looked up. What stands in another
// address book has no id here, and is looked for by its name whatever the tool.
jet::Recordset ContactTools::contactFor(const Tool& tool) const
{
    const ChosenContact chosen = m_host.chosen();
    if (chosen.id != 0 && !(tool.byName && m_host.tellsName))
        return m_context.data.openRecordset(contactByIdSql(chosen.id));
    if (!m_host.tellsName || chosen.name.isEmpty())
        return {};
    return m_context.data.openRecordset(contactByNameSql(chosen.name));
}

bool ContactTools::counts(const jet::Recordset& contact) const
{
    return contact.hasRow() && !(m_host.needsName && contact.textOrEmpty(u"Name").trimmed().isEmpty());
}

void ContactTools::notSelected() const
{
    if (m_host.saysNone)
        m_context.services.boxes.information(tr("Record not selected"), m_context.shared.AppTitle);
}

bool ContactTools::select(qint64 id)
{
    if (id == 0)
        return false;
    const jet::Recordset contact = m_context.data.openRecordset(contactNameSql(id));
    if (!counts(contact))
        return false;
    select(contact);
    return true;
}

void ContactTools::select(const jet::Recordset& contact)
{
    m_context.shared.selectedContactId = contact.number(u"id");
    m_context.shared.selectedContactName = contact.textOrEmpty(u"Name");
}

// By the row of the list, not by the name. A contact that has gone meanwhile is left to the entry form, which
// says that there is an error.
void ContactTools::edit()
{
    const qint64 id = m_host.chosen().listedId;
    const jet::Recordset contact
        = id == 0 ? jet::Recordset() : m_context.data.openRecordset(contactNameSql(id));
    if (id == 0 || (contact.hasRow() && !counts(contact)))
        return notSelected();
    if (contact.hasRow())
        select(contact);
    if (editContact(m_context, id) && m_host.sounds)
        m_context.services.sounds.play(sounds::Edit);
}

void ContactTools::remove(qint64 id, const QString& name)
{
    // The title names the record, as the question may not.
    if (m_context.services.boxes.ask(tr("Are you sure you want to delete this record?"),
            tr("Delete %1").arg(name.simplified()), platform::Icon::Warning)
        != platform::Answer::Yes)
        return;
    // What could not be deleted is still there, also for the mail client.
    if (!m_context.data.execute(u"delete * from cnt_main where id= %1"_s.arg(id)))
        return tellFailedSave(m_context);
    if (readSettings(m_context.data).flag(u"UpdOutllook"))
        m_context.services.mailContacts.remove(mailKeyOf(id));
    m_context.services.sounds.play(sounds::Delete);
    Q_EMIT contactDeleted(id);
    m_context.screens.tellBookChanged();
}

void ContactTools::handOver(QStringView form, qint64 id)
{
    if (auto* screen = m_context.screens.load<ContactScreen>(form))
        screen->showContact(id);
    m_context.screens.show(form);
}

void ContactTools::addRecipient(QStringView form, qint64 id)
{
    if (auto* composer = m_context.screens.load<MailComposer>(form))
        composer->AddRecipient(id);
    m_context.screens.show(form);
}

void ContactTools::openPage(const Tool& tool, qint64 id)
{
    if (!m_context.screens.has(tool.form))
        return handOver(tool.orForm, id);
    if (auto* screen = m_context.screens.load<PageScreen>(tool.form))
        screen->openPage(tool.page.toString());
    handOver(tool.form, id);
}

void ContactTools::askFilter(QStringView form)
{
    if (m_host.beforeFilter)
        m_host.beforeFilter();
    m_context.shared.CallerForm = m_host.callerForm;
    m_context.screens.show(form, Shown::Modally);
}

void ContactTools::printContact(QStringView form, const QString& name)
{
    if (auto* screen = m_context.screens.load<ReportScreen>(form))
        screen->showContactReport(name);
    m_context.screens.show(form);
}

void ContactTools::requestReport()
{
    const QString report = u"Address Book- Full"_s;
    core::requestReport(m_context, report, reportNote(report));
}

void ContactTools::saveCards(const QString& ids, const QString& folder)
{
    core::saveCards(m_context, ids, folder, m_screen);
}

void ContactTools::saveAllCards()
{
    const jet::Recordset all = m_context.data.openRecordset(contactListSql());
    if (all.isEmpty())
        return notSelected();
    QStringList ids;
    ids.reserve(all.count());
    for (int row = 0; row < all.count(); ++row)
        ids << QString::number(all.keyAt(row));
    saveCards(ids.join(u','), m_context.services.folders.SpecialFolderPath(platform::csidlDesktop));
}

void ContactTools::addReplaceMenu(QMenu* menu)
{
    menu->addSeparator();
    QMenu* replacing = menu->addMenu(tr("Find and &replace in"));
    replacing->setObjectName(u"MenuReplace"_s);
    widgets::setIcon(replacing->menuAction(), u"search");
    replacing->setEnabled(m_context.screens.has(kFind));
    for (const ReplaceRow& row : replaceRows()) {
        QAction* replace = replacing->addAction(QCoreApplication::translate("core", row.text));
        connect(replace, &QAction::triggered, this, [this, &row] {
            m_context.shared.CallerForm = row.callerWord.toString();
            m_context.screens.show(kFind, Shown::Modally);
        });
    }
}

bool editContact(Context& context, qint64 id)
{
    context.shared.EditRequested = true;
    auto* form = context.screens.load<ContactScreen>(kEntryForm);
    const bool found = !form || form->showContact(id);
    if (!found) {
        context.shared.EditRequested = false;
        context.services.boxes.information(ContactTools::tr("Error"), context.shared.AppTitle);
    }
    context.screens.show(kEntryForm);
    return found;
}

} // namespace core
