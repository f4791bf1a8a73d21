#pragma once

#include <QStringView>

#include <span>

namespace core {

/// What a tool does. Those that hand a contact over mean the one that the screen of the tool tells.
enum class ToolTask {
    NotYet, ///< disabled, whatever is there
    Own, ///< what the screen itself does when the action is triggered
    Open, ///< shows the form
    EditContact, ///< in the detailed entry form
    DeleteContact, ///< after a question
    HandOver, ///< shows the contact in the form
    AddRecipient, ///< adds the contact to those of the mail that the form composes
    OpenPage, ///< shows the contact on a page of the form
    Filter, ///< the form asks for a filter and brings it to the screen
    SaveCard, ///< among the program's own files
    SaveCardToDesktop,
    SaveAllCardsToDesktop,
    PrintContact, ///< the contacts of its name, in the form
    SaveTextToDesktop,
    SaveAllTextToDesktop,
    RequestReport, ///< the address book, printed by the program that does this
};

/// A tool of a screen, as a row of its table.
struct Tool {
    enum Place {
        Labelled = 1, ///< in the tool bar, with its text
        IconOnly = 2,
        Menu = 4,
        FilterMenu = 8,
        GroupStart = 16, ///< stands behind a line
    };
    enum class KeyIn { List, Screen };

    QStringView id; ///< object name of its action
    QStringView icon;
    const char* text; ///< for translation, as the tool tip is
    const char* toolTip = nullptr; ///< the text where none is given
    ToolTask task = ToolTask::Own;
    QStringView form = {}; ///< without this screen the tool is disabled
    QStringView orForm = {}; ///< unless there is this one, which shows a contact too
    QStringView page = {};
    QStringView column = {}; ///< nothing happens for a contact that has nothing in it
    bool byName = false; ///< goes by the name where the screen tells one
    int places = 0; ///< of Place
    int key = 0; ///< a QKeyCombination
    KeyIn keyIn = KeyIn::List; ///< in the widgets to which the action is added, or in all of the screen
};

struct ToolTable {
    std::span<const Tool> tools;
    const char* translationContext;
};

} // namespace core
