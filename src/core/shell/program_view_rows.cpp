#include "core/shell/program_view_rows.h"

#include "core/shell/tool_bar_table.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

bool contains(std::span<const QStringView> ids, QStringView id)
{
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

/// What leads to other tools only, which are listed themselves, and to this very list.
bool leadsToOthers(const core::Action& action)
{
    const auto* open = std::get_if<core::OpenScreen>(&action);
    return std::holds_alternative<core::DropDown>(action)
        || std::holds_alternative<core::OpenLaunchPad>(action) || (open && open->form == u"FrmPrgView");
}

} // namespace

std::vector<ProgramSubject> programSubjects(
    ProgramUser user, const std::function<bool(const core::Action& action)>& canPerform)
{
    std::vector<ProgramSubject> subjects;
    for (const ToolGroup& group : toolGroups()) {
        ProgramSubject subject{&group, {}};
        for (const Tool& tool : group.tools) {
            const core::Action* action = core::toolAction(tool.id);
            const bool isForUser = !(user.ofBusiness && contains(core::personalTools(), tool.id))
                && (user.inHomeCountry || !contains(core::homeCountryTools(), tool.id));
            if (action && isForUser && !givesRoomOnly(*action) && !leadsToOthers(*action)
                && canPerform(*action))
                subject.rows.push_back({&tool, action});
        }
        if (!subject.rows.empty())
            subjects.push_back(std::move(subject));
    }
    return subjects;
}

bool holdsAllWords(const QString& typed, const QString& texts)
{
    const QStringList words = typed.split(u' ', Qt::SkipEmptyParts);
    return std::all_of(words.begin(), words.end(),
        [&texts](const QString& word) { return texts.contains(word, Qt::CaseInsensitive); });
}

} // namespace shell
