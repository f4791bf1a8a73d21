#include "views/contact_tools.h"

#include "core/handover/contact_screen.h"
#include "core/handover/mail_composer.h"
#include "core/handover/page_screen.h"
#include "core/save_cards.h"
#include "core/screens.h"
#include "core/sibling_start.h"
#include "platform/message_boxes.h"
#include "platform/special_folders.h"
#include "views/edit_contact.h"
#include "views/full_view/full_view_sql.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

enum class Place { Labelled, IconOnly, MenuOnly, LabelledFirst, IconOnlyFirst, MenuOnlyFirst };

bool startsGroup(Place place)
{
    return place == Place::LabelledFirst || place == Place::IconOnlyFirst || place == Place::MenuOnlyFirst;
}

constexpr QStringView kFind = u"FrmFind";

/// What find and replace works on, and the word that tells it.
struct Replaced {
    const char* text;
    QStringView callerWord;
};

constexpr Replaced kReplaced[] = {
    {QT_TRANSLATE_NOOP("views", "&Letters..."), u"Letters"},
    {QT_TRANSLATE_NOOP("views", "&Meetings..."), u"Associations"},
    {QT_TRANSLATE_NOOP("views", "&Record of e-mails..."), u"FrmEmilRec"},
    {QT_TRANSLATE_NOOP("views", "&Database of e-mails..."), u"emailtodb"},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("views", text);
}

} // namespace

struct ContactTools::ToolRow {
    QStringView id;
    QStringView icon;
    const char* text;
    QStringView form; ///< the screen without which the tool is disabled
    void (ContactTools::*perform)(); ///< null for what is not there yet
    Place place = Place::IconOnly;
};

// The first of a group stands behind a line.
const ContactTools::ToolRow ContactTools::kTools[] = {
    {u"EditDetails", u"person-edit", QT_TRANSLATE_NOOP("views", "Edit details"), u"FormMain",
        &ContactTools::editDetails, Place::Labelled},
    {u"Edit", u"edit", QT_TRANSLATE_NOOP("views", "Edit names in the list"), {}, &ContactTools::editList},
    {u"Call", u"phone", QT_TRANSLATE_NOOP("views", "Call"), u"FrmDialer", &ContactTools::call,
        Place::LabelledFirst},
    {u"SMS", u"sms", QT_TRANSLATE_NOOP("views", "SMS"), u"frmSms", &ContactTools::sms, Place::Labelled},
    {u"Email2", u"envelope", QT_TRANSLATE_NOOP("views", "E-mail"), u"FormEmail", &ContactTools::email,
        Place::Labelled},
    {u"Letter", u"letter", QT_TRANSLATE_NOOP("views", "Letter"), u"FrmLetter", &ContactTools::letter,
        Place::Labelled},
    {u"DetailView", u"card", QT_TRANSLATE_NOOP("views", "Detail view"), u"frmSelector",
        &ContactTools::openSelector, Place::IconOnlyFirst},
    {u"BriefView", u"list", QT_TRANSLATE_NOOP("views", "Brief view"), u"FrmContacts",
        &ContactTools::openBriefView},
    {u"ViewLinkedItem", u"link", QT_TRANSLATE_NOOP("views", "Linked records"), u"frmCntViewer",
        &ContactTools::viewLinkedItem},
    {u"Search", u"search", QT_TRANSLATE_NOOP("views", "Search for a keyword"), {}, &ContactTools::search,
        Place::IconOnlyFirst},
    {u"CommonFilter", u"filter", QT_TRANSLATE_NOOP("views", "Filter"), u"frmFilter",
        &ContactTools::commonFilter},
    {u"TabFilter", u"category", QT_TRANSLATE_NOOP("views", "Filter by tabs"), u"frmTabFilter",
        &ContactTools::tabFilter},
    {u"PrintRecord", u"report", QT_TRANSLATE_NOOP("views", "Print the address book"), {},
        &ContactTools::printRecord, Place::IconOnlyFirst},
    {u"PrintSingle", u"printer", QT_TRANSLATE_NOOP("views", "Print this contact"), {}, nullptr},
    {u"PrintLabel", u"note", QT_TRANSLATE_NOOP("views", "Print a label"), u"FrmlblReport",
        &ContactTools::printLabel},
    {u"SaveasVCF", u"save", QT_TRANSLATE_NOOP("views", "Save as vCard"), {}, &ContactTools::saveAsCard,
        Place::MenuOnlyFirst},
    {u"SavetoDesktop", u"export", QT_TRANSLATE_NOOP("views", "Save to the desktop"), {},
        &ContactTools::saveToDesktop, Place::MenuOnly},
    {u"SaveToDesktopAll", u"export", QT_TRANSLATE_NOOP("views", "Save all to the desktop"), {},
        &ContactTools::saveAllToDesktop, Place::MenuOnly},
};

ContactTools::ContactTools(core::Context& context, Host host, QWidget* screen)
    : QObject(screen)
    , m_context(context)
    , m_host(std::move(host))
    , m_screen(screen)
{
    for (const ToolRow& tool : kTools) {
        auto* action = new QAction(translated(tool.text), screen);
        action->setObjectName(tool.id.toString());
        widgets::setIcon(action, tool.icon);
        const bool available = isAvailable(tool);
        action->setEnabled(available);
        if (!available)
            action->setToolTip(tr("%1\nNot available yet").arg(translated(tool.text)));
        if (tool.perform)
            connect(
                action, &QAction::triggered, this, [this, perform = tool.perform] { (this->*perform)(); });
        m_actions.insert(tool.id.toString(), action);
    }
    action(u"Edit")->setCheckable(true);
}

bool ContactTools::isAvailable(const ToolRow& tool) const
{
    return tool.perform && (tool.form.isEmpty() || m_context.screens.has(tool.form));
}

QAction* ContactTools::action(QStringView id) const
{
    QAction* found = m_actions.value(id.toString());
    Q_ASSERT_X(found, "ContactTools::action", qUtf8Printable(id.toString()));
    return found;
}

QToolBar* ContactTools::makeToolBar(QWidget* parent) const
{
    auto* bar = new QToolBar(parent);
    bar->setIconSize({20, 20});
    addTo(bar, {});
    return bar;
}

void ContactTools::addTo(QToolBar* bar, const QStringList& without) const
{
    bool isDue = false;
    for (const ToolRow& tool : kTools) {
        if (tool.place == Place::MenuOnly || tool.place == Place::MenuOnlyFirst)
            continue;
        isDue |= startsGroup(tool.place);
        if (without.contains(tool.id))
            continue;
        if (std::exchange(isDue, false))
            bar->addSeparator();
        bar->addAction(action(tool.id));
        if (tool.place == Place::Labelled || tool.place == Place::LabelledFirst)
            static_cast<QToolButton*>(bar->widgetForAction(action(tool.id)))
                ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
}

QMenu* ContactTools::makeMenu(QWidget* parent)
{
    auto* menu = new QMenu(parent);
    menu->setToolTipsVisible(true);
    addTo(menu, {});
    return menu;
}

void ContactTools::addTo(QMenu* menu, const QStringList& without)
{
    bool isDue = !menu->isEmpty();
    for (const ToolRow& tool : kTools) {
        isDue |= startsGroup(tool.place);
        if (without.contains(tool.id))
            continue;
        if (std::exchange(isDue, false))
            menu->addSeparator();
        menu->addAction(action(tool.id));
    }
    menu->addSeparator();
    QMenu* replacing = menu->addMenu(tr("Find and &replace in"));
    replacing->setObjectName(u"MenuReplace"_s);
    widgets::setIcon(replacing->menuAction(), u"search");
    replacing->setEnabled(m_context.screens.has(kFind));
    for (const Replaced& row : kReplaced) {
        QAction* replace = replacing->addAction(translated(row.text));
        connect(replace, &QAction::triggered, this, [this, &row] { replaceIn(row.callerWord); });
    }
}

jet::Recordset ContactTools::shownContact() const
{
    const qint64 id = m_host.shownId();
    if (id != 0)
        return m_context.data.openRecordset(contactByIdSql(id));
    return m_host.shownName ? namedContact() : jet::Recordset();
}

// Kept: of two contacts with one name the first is called, written to and looked up.
jet::Recordset ContactTools::namedContact() const
{
    if (!m_host.shownName)
        return shownContact();
    const QString name = m_host.shownName();
    return name.isEmpty() ? jet::Recordset() : m_context.data.openRecordset(contactByNameSql(name));
}

void ContactTools::notSelected()
{
    m_context.services.boxes.information(tr("Record not selected"), m_context.shared.AppTitle);
}

void ContactTools::handOver(QStringView form, const jet::Recordset& contact)
{
    if (!contact.hasRow())
        return notSelected();
    m_context.shared.selectedContactId = contact.number(u"id");
    m_context.shared.selectedContactName = contact.textOrEmpty(u"Name");
    if (auto* screen = m_context.screens.load<core::ContactScreen>(form))
        screen->showContact(contact.number(u"id"));
    m_context.screens.show(form);
}

void ContactTools::openSelector()
{
    const jet::Recordset contact = shownContact();
    if (!contact.hasRow())
        return notSelected();
    m_context.shared.selectedContactId = contact.number(u"id");
    if (auto* selector = m_context.screens.load<core::PageScreen>(u"frmSelector"))
        selector->openPage(u"Detail"_s);
    m_context.screens.show(u"frmSelector");
}

void ContactTools::openBriefView()
{
    handOver(u"FrmContacts", shownContact());
}

// By the row of the list, not by the name.
void ContactTools::editDetails()
{
    const qint64 id = m_host.listedId();
    if (id == 0)
        return notSelected();
    editContact(m_context, id);
}

void ContactTools::printLabel()
{
    m_context.screens.show(u"FrmlblReport");
}

void ContactTools::viewLinkedItem()
{
    handOver(u"frmCntViewer", namedContact());
}

void ContactTools::call()
{
    handOver(u"FrmDialer", namedContact());
}

void ContactTools::letter()
{
    handOver(u"FrmLetter", namedContact());
}

void ContactTools::email()
{
    const jet::Recordset contact = namedContact();
    if (!contact.hasRow())
        return notSelected();
    m_context.shared.selectedContactId = contact.number(u"id");
    if (auto* composer = m_context.screens.load<core::MailComposer>(u"FormEmail"))
        composer->AddRecipient(contact.number(u"id"));
    m_context.screens.show(u"FormEmail");
}

void ContactTools::sms()
{
    const jet::Recordset contact = namedContact();
    if (!contact.hasRow())
        return notSelected();
    if (contact.value(u"Sms").isValid())
        handOver(u"frmSms", contact);
}

void ContactTools::editList()
{
    Q_EMIT listEditingWanted(action(u"Edit")->isChecked());
}

void ContactTools::printRecord()
{
    core::startSibling(m_context,
        {.program = core::kLinkAndSync,
            .statements = {
                u"update ov_setup set key='report'"_s,
                u"update ov_setup set key='report'"_s,
                // Kept: the misspelt word is written and overwritten at once.
                u"update ov_setup set rptMod='Contacs'"_s,
                u"update ov_setup set rptMod='Contacts'"_s,
                u"update ov_setup set rptSubMod='Address Book- Full'"_s,
            }});
}

void ContactTools::commonFilter()
{
    askFilter(u"frmFilter");
}

void ContactTools::tabFilter()
{
    askFilter(u"frmTabFilter");
}

void ContactTools::askFilter(QStringView form)
{
    m_context.shared.CallerForm = m_host.callerForm;
    m_context.screens.show(form, core::Shown::Modally);
}

void ContactTools::saveAsCard()
{
    saveCard(u"C:\\OVUserFiles\\VCF"_s);
}

void ContactTools::saveToDesktop()
{
    saveCard(m_context.services.folders.SpecialFolderPath(platform::csidlDesktop));
}

void ContactTools::saveCard(const QString& folder)
{
    const jet::Recordset contact = shownContact();
    if (!contact.hasRow())
        return notSelected();
    core::saveCards(m_context, contact.textOrEmpty(u"id"), folder, m_screen);
}

void ContactTools::saveAllToDesktop()
{
    const jet::Recordset all = m_context.data.openRecordset(contactListSql());
    if (all.isEmpty())
        return notSelected();
    QStringList ids;
    ids.reserve(all.count());
    for (int row = 0; row < all.count(); ++row)
        ids << QString::number(all.keyAt(row));
    core::saveCards(m_context, ids.join(u','),
        m_context.services.folders.SpecialFolderPath(platform::csidlDesktop), m_screen);
}

void ContactTools::replaceIn(QStringView callerWord)
{
    m_context.shared.CallerForm = callerWord.toString();
    m_context.screens.show(kFind, core::Shown::Modally);
}

void ContactTools::search()
{
    Q_EMIT searchWanted();
}

} // namespace views
