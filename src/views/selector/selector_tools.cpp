#include "views/selector/selector_tools.h"

#include "core/handover/contact_screen.h"
#include "core/handover/mail_composer.h"
#include "core/mail_key.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "platform/contact_sync.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "views/edit_contact.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace views {

namespace {

/// Where a tool stands; the first of a group stands behind a line.
enum Place {
    Bar = 1, ///< in the tool bar, with its text
    IconOnly = 2,
    Menu = 4,
    FilterMenu = 8,
    First = 16,
};

QString translated(const char* text)
{
    return QCoreApplication::translate("views", text);
}

} // namespace

struct SelectorTools::ToolRow {
    QStringView id;
    QStringView icon;
    const char* text;
    QStringView form; ///< the screen without which the tool is disabled
    void (SelectorTools::*perform)(QStringView form);
    int places;
    Qt::Key key = Qt::Key_unknown; ///< works in the widgets to which the selector adds the tool
};

const SelectorTools::ToolRow SelectorTools::kTools[] = {
    {u"Edit", u"person-edit", QT_TRANSLATE_NOOP("views", "&Edit"), u"FormMain", &SelectorTools::edit,
        Bar | Menu, Qt::Key_F2},
    {u"Delete", u"delete", QT_TRANSLATE_NOOP("views", "&Delete"), {}, &SelectorTools::remove, Bar | Menu,
        Qt::Key_Delete},
    {u"Caller", u"phone", QT_TRANSLATE_NOOP("views", "&Call"), u"FrmDialer", &SelectorTools::showIn,
        Bar | Menu | First},
    {u"ID_Ex", u"envelope", QT_TRANSLATE_NOOP("views", "E-&mail"), u"FormEmail", &SelectorTools::addRecipient,
        Bar | Menu},
    {u"Letter2", u"letter", QT_TRANSLATE_NOOP("views", "&Letter"), u"FrmLetter", &SelectorTools::showIn,
        Bar | Menu},
    {u"lrecord", u"report", QT_TRANSLATE_NOOP("views", "Letter &record"), u"FrmLetterRecord",
        &SelectorTools::showIn, Bar | Menu},
    {u"ID_Filter", u"filter", QT_TRANSLATE_NOOP("views", "&Filter"), u"frmFilter", &SelectorTools::askFilter,
        IconOnly | First},
    {u"CommonFilter", u"filter", QT_TRANSLATE_NOOP("views", "&Common filter"), u"frmFilter",
        &SelectorTools::askFilter, FilterMenu},
    {u"TabFilter", u"category", QT_TRANSLATE_NOOP("views", "Filter by &tabs"), u"frmTabFilter",
        &SelectorTools::askFilter, IconOnly | FilterMenu},
    {u"Simple", u"list", QT_TRANSLATE_NOOP("views", "&Simple"), {}, &SelectorTools::simple,
        IconOnly | Menu | First},
    {u"Details", u"card", QT_TRANSLATE_NOOP("views", "Detail&s"), {}, &SelectorTools::details,
        IconOnly | Menu},
};

SelectorTools::SelectorTools(core::Context& context, Host host, QWidget* screen)
    : QObject(screen)
    , m_context(context)
    , m_host(std::move(host))
{
    for (const ToolRow& tool : kTools) {
        const QString text = translated(tool.text);
        auto* action = new QAction(text, screen);
        action->setObjectName(tool.id.toString());
        widgets::setIcon(action, tool.icon);
        if (tool.key != Qt::Key_unknown)
            action->setShortcut(tool.key);
        action->setShortcutContext(Qt::WidgetShortcut);
        const bool available = tool.form.isEmpty() || m_context.screens.has(tool.form);
        action->setEnabled(available);
        if (!available)
            action->setToolTip(tr("%1\nNot available yet").arg(QString(text).remove(u'&')));
        connect(action, &QAction::triggered, this, [this, &tool] { (this->*tool.perform)(tool.form); });
        m_actions.insert(tool.id.toString(), action);
    }
}

QAction* SelectorTools::action(QStringView id) const
{
    QAction* found = m_actions.value(id.toString());
    Q_ASSERT_X(found, "SelectorTools::action", qUtf8Printable(id.toString()));
    return found;
}

QToolBar* SelectorTools::makeToolBar(QWidget* parent) const
{
    auto* bar = new QToolBar(parent);
    bar->setIconSize({20, 20});
    for (const ToolRow& tool : kTools) {
        if (!(tool.places & (Bar | IconOnly)))
            continue;
        if ((tool.places & First) && !bar->actions().isEmpty())
            bar->addSeparator();
        bar->addAction(action(tool.id));
        if (tool.places & Bar)
            static_cast<QToolButton*>(bar->widgetForAction(action(tool.id)))
                ->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    }
    return bar;
}

QMenu* SelectorTools::makeMenu(QWidget* parent) const
{
    return makeMenuOf(Menu, u"Menu"_s, parent);
}

QMenu* SelectorTools::makeFilterMenu(QWidget* parent) const
{
    return makeMenuOf(FilterMenu, u"FilterMenu"_s, parent);
}

QMenu* SelectorTools::makeMenuOf(int place, const QString& name, QWidget* parent) const
{
    auto* menu = new QMenu(parent);
    menu->setObjectName(name);
    menu->setToolTipsVisible(true);
    for (const ToolRow& tool : kTools) {
        if (!(tool.places & place))
            continue;
        if ((tool.places & First) && !menu->isEmpty())
            menu->addSeparator();
        menu->addAction(action(tool.id));
    }
    return menu;
}

// A contact that has gone meanwhile is left to the screen that gets it: the entry form says that there is an
// error.
qint64 SelectorTools::select()
{
    const qint64 id = m_host.currentId();
    const jet::Recordset contact = id == 0
        ? jet::Recordset()
        : m_context.data.openRecordset(u"select id,name from cnt_main where id=%1"_s.arg(id));
    const QString name = contact.textOrEmpty(u"name");
    if (id == 0 || (contact.hasRow() && name.trimmed().isEmpty())) {
        m_context.services.boxes.information(tr("Record not selected"), m_context.shared.AppTitle);
        return 0;
    }
    m_context.shared.selectedContactId = id;
    m_context.shared.selectedContactName = name;
    return id;
}

void SelectorTools::askFilter(QStringView form)
{
    m_host.beforeFilter();
    m_context.shared.CallerForm = m_host.callerForm;
    m_context.screens.show(form, core::Shown::Modally);
}

void SelectorTools::simple(QStringView)
{
    Q_EMIT simpleWanted();
}

void SelectorTools::details(QStringView)
{
    Q_EMIT detailsWanted();
}

void SelectorTools::edit(QStringView)
{
    const qint64 id = select();
    if (id != 0 && editContact(m_context, id))
        m_context.services.sounds.play(core::sounds::Edit);
}

void SelectorTools::remove(QStringView)
{
    const qint64 id = select();
    if (id == 0)
        return;
    // The title names the record, as the question may not.
    const QString name = m_context.shared.selectedContactName.simplified();
    if (m_context.services.boxes.ask(tr("Are you sure you want to delete this record?"),
            tr("Delete %1").arg(name), platform::Icon::Warning)
        != platform::Answer::Yes)
        return;
    // What could not be deleted is still there, also for the mail client.
    if (!m_context.data.execute(u"delete * from cnt_main where id= %1"_s.arg(id)))
        return core::tellFailedSave(m_context);
    const jet::Recordset setup = m_context.data.openRecordset(u"Select * from cntb_Setup");
    if (setup.hasRow() && setup.flag(u"UpdOutllook"))
        m_context.services.mailContacts.remove(core::mailKeyOf(id));
    m_context.services.sounds.play(core::sounds::Delete);
    Q_EMIT contactDeleted(id);
    m_context.screens.tellBookChanged();
}

void SelectorTools::showIn(QStringView form)
{
    const qint64 id = select();
    if (id == 0)
        return;
    if (auto* screen = m_context.screens.load<core::ContactScreen>(form))
        screen->showContact(id);
    m_context.screens.show(form);
}

void SelectorTools::addRecipient(QStringView form)
{
    const qint64 id = select();
    if (id == 0)
        return;
    if (auto* composer = m_context.screens.load<core::MailComposer>(form))
        composer->AddRecipient(id);
    m_context.screens.show(form);
}

} // namespace views
