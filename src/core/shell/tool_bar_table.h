#pragma once

#include "core/command_table.h"

#include <QStringView>

#include <span>

/// What the frame shows of the command table: the pages of the tool bar with their tools, and the areas of
/// the list bar. Every tool of the command table stands on exactly one page, so each can be reached. Captions
/// and tool tips are in the context "shell" and are translated where they are shown.
namespace shell {

struct Tool {
    QStringView id;
    const char* caption;
    const char* toolTip;
    QStringView icon; // a file of resources/icons, without its ending
    QStringView shortcut = {};
};

struct ToolGroup {
    QStringView page; // as the drop-downs name it
    const char* caption; // with its mnemonic
    QStringView icon;
    std::span<const Tool> tools;
};

/// What the id of a row is: both kinds of the command table have their place in the list bar.
enum class Row { ShortCode, Tool };

struct ListBarRow {
    Row kind;
    QStringView id;
    const char* caption;
};

struct ListBarArea {
    const char* caption;
    QStringView icon;
    std::span<const ListBarRow> rows;
};

std::span<const ToolGroup> toolGroups();
std::span<const ListBarArea> listBarAreas();

/// Tools of pages that are not there yet: they make room for them, and no more.
bool givesRoomOnly(const core::Action& action);

} // namespace shell
