#pragma once

#include <QStringView>

#include <span>
#include <variant>

/// What each command of the program does. A tool id, a deferred key, a short code of the list bar and a label
/// of the launch pad are each one row with an action; the frame performs actions and knows no screen by name.
/// Nothing here knows a widget, and a form that nobody has registered simply does not open.
namespace core {

enum class Shown { Modelessly, Modally };
enum class ListBar { Stays, Hidden };
enum class Ask { No, Yes };

/// Shows the screen of that form name, on a page if one is named. A title goes to the frame first.
struct OpenScreen {
    QStringView form = {};
    QStringView page = {};
    QStringView title = {};
    Shown shown = Shown::Modelessly;
    QStringView letterKind = {};
    ListBar listBar = ListBar::Stays;
};

/// Shows the launch pad on the page of that name, which becomes the shared launch mode.
struct OpenLaunchPad {
    QStringView mode = {};
};

/// Shows FormUserEdit, then has it offer this set of columns.
struct EditColumns {
    QStringView columnSet = {};
};

/// A report page of the full list of contacts.
struct ListReport {
    QStringView page = {};
};

/// Ends this program and starts Orvane Link & Sync, after a question if so told.
struct LaunchLinkAndSync {
    Ask ask = Ask::No;
};

/// Ends this program and starts another one of the suite. A key is left in ov_setup for it, a keystroke is
/// sent to it; either may be empty.
struct StartSibling {
    QStringView program = {};
    QStringView key = {};
    QStringView keystroke = {};
};

/// Leaves the request for a report in ov_setup and hands over to Orvane Link & Sync.
struct RequestReport {
    QStringView subModule = {};
};

/// Writes the address book to a text file, with or without a label before each value.
struct TextReport {
    bool labels = true;
};

/// Opens a file of the program with whatever the computer opens it with.
struct OpenFile {
    QStringView path = {};
};

/// Shows the page of the tool bar that a group drops down.
struct DropDown {
    QStringView toolBarPage = {};
};

/// Begins a new contact in the entry form at once.
struct NewContact { };
/// Shows the contact that was chosen last in the entry form, to be changed.
struct EditContact { };
struct OpenHelpFile { };
struct ShowLinkedRecords { };
struct EndProgram { };
struct CloseFrame { };
struct HideListBar { };
/// Restores the address book from a backup.
struct Restore { };
/// Does nothing on purpose: the tool only opens a drop-down, or stands for this very program.
struct Inert { };

using Action = std::variant<Inert, OpenScreen, OpenLaunchPad, EditColumns, ListReport, LaunchLinkAndSync,
    StartSibling, RequestReport, TextReport, OpenFile, OpenHelpFile, ShowLinkedRecords, EndProgram,
    CloseFrame, HideListBar, DropDown, Restore, NewContact, EditContact>;

struct Command {
    QStringView id;
    Action action;
};

/// Each look-up gives nullptr for what is not listed. Ids, labels and codes are compared exactly; a deferred
/// key is lower-cased by the caller, as it is read.
const Action* toolAction(QStringView toolId);
const Action* keyAction(QStringView key);
const Action* shortCodeAction(QStringView code);
const Action* launchPadAction(QStringView label);
/// The page that a group of tools drops down; the first row that names the group counts.
const Action* dropDownAction(QStringView group);

std::span<const Command> toolCommands();
std::span<const Command> keyCommands();
std::span<const Command> shortCodeCommands();
std::span<const Command> launchPadCommands();
std::span<const Command> dropDownCommands();

/// Tools that the business edition hides.
std::span<const QStringView> personalTools();
/// Tools that only a user in the home country sees.
std::span<const QStringView> homeCountryTools();

} // namespace core
