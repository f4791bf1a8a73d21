#include "core/shell/action_performer.h"

#include "core/frame.h"
#include "core/handover/contact_screen.h"
#include "core/handover/entry_form.h"
#include "core/handover/page_screen.h"
#include "core/report_request.h"
#include "core/save_texts.h"
#include "core/screens.h"
#include "core/sibling_start.h"
#include "platform/drive.h"
#include "platform/help_viewer.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

constexpr QStringView kEntryForm = u"FormMain";
constexpr QStringView kHelpFile = u"\\UserFiles\\Help\\OrvaneHelp.chm";

/// The screen that an action needs; empty for an action that needs none.
struct ScreenNeeded {
    QStringView operator()(const core::OpenScreen& open) const { return open.form; }
    QStringView operator()(const core::OpenLaunchPad&) const { return u"FrmLaunchDisk"; }
    QStringView operator()(const core::EditColumns&) const { return u"FormUserEdit"; }
    QStringView operator()(const core::ListReport&) const { return u"FrmAddFullRptView"; }
    QStringView operator()(const core::ShowLinkedRecords&) const { return u"frmCntViewer"; }
    QStringView operator()(const core::NewContact&) const { return kEntryForm; }
    QStringView operator()(const core::EditContact&) const { return kEntryForm; }
    template <class Other> QStringView operator()(const Other&) const { return {}; }
};

} // namespace

ActionPerformer::ActionPerformer(core::Context& context, QObject* parent)
    : QObject(parent)
    , m_context(context)
{
}

bool ActionPerformer::perform(const core::Action& action)
{
    return std::visit([this](const auto& what) { return run(what); }, action);
}

bool ActionPerformer::canPerform(const core::Action& action) const
{
    const QStringView form = std::visit(ScreenNeeded{}, action);
    return form.isEmpty() || m_context.screens.has(form);
}

bool ActionPerformer::openScreen(QStringView form, QStringView page, core::Shown shown)
{
    if (!m_context.screens.has(form))
        return false;
    auto* paged = m_context.screens.load<core::PageScreen>(form);
    if (paged && !page.isEmpty())
        paged->openPage(page.toString());
    return m_context.screens.show(form, shown);
}

bool ActionPerformer::run(const core::OpenScreen& open)
{
    if (open.listBar == core::ListBar::Hidden)
        Q_EMIT listBarHidden();
    if (!open.letterKind.isEmpty())
        m_context.shared.LetterKind = open.letterKind.toString();
    core::Screen* screen = m_context.screens.load(open.form);
    if (screen && !open.title.isEmpty())
        screen->offerFrameTitle(open.title.toString());
    return openScreen(open.form, open.page, open.shown);
}

bool ActionPerformer::run(const core::OpenLaunchPad& open)
{
    m_context.shared.LaunchMode = open.mode.toString();
    return openScreen(u"FrmLaunchDisk", open.mode);
}

bool ActionPerformer::run(const core::EditColumns& edit)
{
    return openScreen(u"FormUserEdit", edit.columnSet);
}

bool ActionPerformer::run(const core::ListReport& report)
{
    return openScreen(u"FrmAddFullRptView", report.page);
}

bool ActionPerformer::run(const core::LaunchLinkAndSync& launch)
{
    if (launch.ask == core::Ask::Yes) {
        const auto answer = m_context.services.boxes.ask(
            tr("Do you wish to close  Orvane Contact and Open Orvane Link & Sync? "),
            m_context.shared.AppTitle);
        if (answer == platform::Answer::No)
            return false;
    }
    return core::startSibling(m_context, {.program = core::kLinkAndSync});
}

// The key is left only for a program that is there; nobody else would take it away again.
bool ActionPerformer::run(const core::StartSibling& start)
{
    QStringList statements;
    if (!start.key.isEmpty() && m_context.services.shell.siblingExists(u'\\' + start.program.toString()))
        statements << u"update ov_setup set key='"_s + start.key.toString() + u"'"_s;
    return core::startSibling(m_context, {start.program, statements});
}

bool ActionPerformer::run(const core::RequestReport& request)
{
    const QString report = request.subModule.toString();
    return core::requestReport(m_context, report,
        {u"update ov_setup set key='report'"_s, u"update ov_setup set rptMod='Contacts'"_s,
            u"update ov_setup set rptSubMod='"_s + report + u"'"_s});
}

bool ActionPerformer::run(const core::TextReport& report)
{
    return core::saveBookText(m_context, report.labels, qobject_cast<QWidget*>(parent()));
}

bool ActionPerformer::run(const core::OpenFile& open)
{
    if (m_context.services.drive.exists(open.path))
        return m_context.services.shell.openFile(open.path);
    return m_context.screens.show(u"FrmProjectMsg", core::Shown::Modally);
}

bool ActionPerformer::run(const core::OpenHelpFile&)
{
    m_context.services.help.openHelp(kHelpFile);
    return true;
}

bool ActionPerformer::run(const core::ShowLinkedRecords&)
{
    return run(core::OpenScreen{.form = u"frmCntViewer", .title = u"Contacts Link Viewer"});
}

bool ActionPerformer::run(const core::EndProgram&)
{
    if (!m_context.screens.mayCloseAll())
        return false;
    m_context.services.shell.endProgram();
    return true;
}

bool ActionPerformer::run(const core::CloseFrame&)
{
    Q_EMIT closeWanted();
    return true;
}

bool ActionPerformer::run(const core::HideListBar&)
{
    Q_EMIT listBarHidden();
    return true;
}

bool ActionPerformer::run(const core::DropDown& drop)
{
    Q_EMIT dropDownWanted(drop.toolBarPage.toString());
    return true;
}

bool ActionPerformer::run(const core::NewContact&)
{
    if (!m_context.screens.show(kEntryForm))
        return false;
    auto* form = m_context.screens.find<core::EntryForm>(kEntryForm);
    return form && form->beginNew();
}

bool ActionPerformer::run(const core::EditContact&)
{
    const qint64 id = m_context.shared.selectedContactId;
    auto* form = m_context.screens.load<core::ContactScreen>(kEntryForm);
    if (!form)
        return false;
    if (id == 0 || !form->showContact(id)) {
        m_context.services.boxes.information(tr("Record not selected"), m_context.shared.AppTitle);
        return false;
    }
    return m_context.screens.show(kEntryForm);
}

bool ActionPerformer::run(const core::Restore&)
{
    Q_EMIT restoreWanted();
    return true;
}

} // namespace shell
