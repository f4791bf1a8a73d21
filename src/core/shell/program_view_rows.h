#pragma once

#include "core/command_table.h"

#include <QString>

#include <functional>
#include <vector>

/// What the program can do, by subject, as the tool bar table says it.
namespace shell {

struct Tool;
struct ToolGroup;

struct ProgramRow {
    const Tool* tool;
    const core::Action* action;
};
struct ProgramSubject {
    const ToolGroup* group;
    std::vector<ProgramRow> rows; ///< at least one
};

/// Who the program is for decides what is shown of it.
struct ProgramUser {
    bool inHomeCountry = false;
    bool ofBusiness = false;
};
/// Leaves out what can not be done, and tools that only lead to others.
std::vector<ProgramSubject> programSubjects(
    ProgramUser user, const std::function<bool(const core::Action& action)>& canPerform);

/// Whether all words that were typed stand in the texts, in any case and order.
bool holdsAllWords(const QString& typed, const QString& texts);

} // namespace shell
