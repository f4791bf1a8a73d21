#pragma once

#include "core/command_table.h"
#include "core/context.h"

#include <QObject>

namespace shell {

/// Does what the rows of the command table say. The frame gives it the few things that only a window can do.
class ActionPerformer : public QObject {
    Q_OBJECT

public:
    explicit ActionPerformer(core::Context& context, QObject* parent = nullptr);

    bool perform(const core::Action& action);
    /// Whether the screen or program behind an action is there; a tool for which it is not looks disabled.
    bool canPerform(const core::Action& action) const;

Q_SIGNALS:
    void listBarHidden();
    void dropDownWanted(const QString& toolBarPage);
    void closeWanted();
    void restoreWanted();

private:
    bool run(const core::Inert&) { return true; }
    bool run(const core::OpenScreen& open);
    bool run(const core::OpenLaunchPad& open);
    bool run(const core::EditColumns& edit);
    bool run(const core::ListReport& report);
    bool run(const core::LaunchLinkAndSync& launch);
    bool run(const core::StartSibling& start);
    bool run(const core::RequestReport& request);
    bool run(const core::TextReport& report);
    bool run(const core::OpenFile& open);
    bool run(const core::OpenHelpFile& open);
    bool run(const core::ShowLinkedRecords& show);
    bool run(const core::EndProgram& end);
    bool run(const core::CloseFrame& close);
    bool run(const core::HideListBar& hide);
    bool run(const core::DropDown& drop);
    bool run(const core::Restore& restore);
    bool run(const core::NewContact& create);
    bool run(const core::EditContact& edit);

    bool openScreen(QStringView form, QStringView page, core::Shown shown = core::Shown::Modelessly);

    core::Context& m_context;
};

} // namespace shell
