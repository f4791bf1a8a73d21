#include "views/search/hit_actions.h"

#include "core/handover/contact_screen.h"
#include "core/handover/mail_composer.h"
#include "core/handover/page_screen.h"
#include "core/screens.h"
#include "views/edit_contact.h"
#include "views/search/search_clauses.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kSelector = u"frmSelector";
constexpr QStringView kFullView = u"FullView";

QAction* makeAction(
    const QString& name, QStringView icon, const QString& text, bool available, QWidget* screen)
{
    auto* action = new QAction(text, screen);
    action->setObjectName(name);
    widgets::setIcon(action, icon);
    action->setEnabled(available);
    if (!available)
        action->setToolTip(HitActions::tr("%1\nNot available yet").arg(text));
    return action;
}

} // namespace

struct HitActions::ActionRow {
    QStringView id;
    QStringView icon;
    const char* text;
    QStringView form;
    void (HitActions::*perform)(QStringView form);
};

const HitActions::ActionRow HitActions::kActions[] = {
    {u"FullView", u"card", QT_TRANSLATE_NOOP("views", "Full view"), kFullView, &HitActions::showIn},
    {u"EditDetails", u"person-edit", QT_TRANSLATE_NOOP("views", "Edit details"), u"FormMain",
        &HitActions::edit},
    {u"Call", u"phone", QT_TRANSLATE_NOOP("views", "Call"), u"FrmDialer", &HitActions::showIn},
    {u"Email2", u"envelope", QT_TRANSLATE_NOOP("views", "E-mail"), u"FormEmail", &HitActions::addRecipient},
    {u"Letter", u"letter", QT_TRANSLATE_NOOP("views", "Letter"), u"FrmLetter", &HitActions::showIn},
    {u"ViewLinkedItem", u"link", QT_TRANSLATE_NOOP("views", "Linked records"), u"frmCntViewer",
        &HitActions::showIn},
};

HitActions::HitActions(core::Context& context, std::function<qint64()> currentId, QWidget* screen)
    : QObject(screen)
    , m_context(context)
    , m_currentId(std::move(currentId))
    , m_menu(new QMenu(screen))
{
    m_menu->setObjectName(u"HitMenu"_s);
    m_menu->setToolTipsVisible(true);
    m_open = makeAction(u"OpenHit"_s, u"next", tr("Go to the contact"),
        m_context.screens.has(kSelector) || m_context.screens.has(kFullView), screen);
    connect(m_open, &QAction::triggered, this, &HitActions::openHit);
    m_menu->addAction(m_open);
    m_menu->addSeparator();
    for (const ActionRow& row : kActions) {
        QAction* action = makeAction(row.id.toString(), row.icon,
            QCoreApplication::translate("views", row.text), m_context.screens.has(row.form), screen);
        connect(action, &QAction::triggered, this, [this, &row] {
            if (select(m_currentId()))
                (this->*row.perform)(row.form);
        });
        m_menu->addAction(action);
    }
}

bool HitActions::select(qint64 id)
{
    if (id == 0)
        return false;
    const jet::Recordset contact = m_context.data.openRecordset(hitSql(id));
    const QString name = contact.textOrEmpty(u"Name");
    if (name.trimmed().isEmpty())
        return false;
    m_context.shared.selectedContactId = id;
    m_context.shared.selectedContactName = name;
    return true;
}

// The selector shows the contact in its note view. A book without the selector has the full view for it.
void HitActions::openHit()
{
    if (!select(m_currentId()))
        return;
    if (!m_context.screens.has(kSelector))
        return showIn(kFullView);
    if (auto* selector = m_context.screens.load<core::PageScreen>(kSelector))
        selector->openPage(u"Search"_s);
    showIn(kSelector);
}

void HitActions::showIn(QStringView form)
{
    if (auto* screen = m_context.screens.load<core::ContactScreen>(form))
        screen->showContact(m_context.shared.selectedContactId);
    m_context.screens.show(form);
}

void HitActions::edit(QStringView)
{
    editContact(m_context, m_context.shared.selectedContactId);
}

void HitActions::addRecipient(QStringView form)
{
    if (auto* composer = m_context.screens.load<core::MailComposer>(form))
        composer->AddRecipient(m_context.shared.selectedContactId);
    m_context.screens.show(form);
}

} // namespace views
