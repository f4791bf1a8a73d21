#pragma once

#include <QStringView>

#include <span>

/// What stands in the menus of the frame, line by line. Captions are in the context "shell".
namespace shell {

/// One line of a menu: a tool, with a caption of its own where that reads better, a page as a sub-menu, or a
/// line between.
struct MenuRow {
    enum class Kind { Tool, Page, Line } kind;
    QStringView id = {};
    const char* caption = nullptr;
    QStringView name = {}; ///< of an entry beside the tool's own
};

std::span<const MenuRow> contactsMenu();
std::span<const MenuRow> viewMenu();
std::span<const MenuRow> communicateMenu();
std::span<const MenuRow> toolsMenu();

} // namespace shell
