#pragma once

#include "core/tool.h"

#include <QtGlobal>

/// The tools for a contact that the lists of numbers have alike, as rows of their tables.
namespace telephone::rows {

inline constexpr int kWithText = core::Tool::Labelled | core::Tool::Menu;

inline constexpr core::Tool kCall{.id = u"Call",
    .icon = u"phone",
    .text = QT_TRANSLATE_NOOP("telephone", "Call"),
    .toolTip = QT_TRANSLATE_NOOP("telephone", "Show the person in the dialer"),
    .task = core::ToolTask::HandOver,
    .form = u"FrmDialer",
    .places = kWithText};
inline constexpr core::Tool kEmail{.id = u"Email2",
    .icon = u"envelope",
    .text = QT_TRANSLATE_NOOP("telephone", "E-mail"),
    .task = core::ToolTask::AddRecipient,
    .form = u"FormEmail",
    .places = kWithText};
inline constexpr core::Tool kLetter{.id = u"Letter",
    .icon = u"letter",
    .text = QT_TRANSLATE_NOOP("telephone", "Letter"),
    .task = core::ToolTask::HandOver,
    .form = u"FrmLetter",
    .places = kWithText};
inline constexpr core::Tool kEditDetails{.id = u"EditDetails",
    .icon = u"person-edit",
    .text = QT_TRANSLATE_NOOP("telephone", "Edit details"),
    .task = core::ToolTask::EditContact,
    .form = u"FormMain",
    .places = core::Tool::IconOnly | core::Tool::Menu};
inline constexpr core::Tool kAddToList{.id = u"AddToList",
    .icon = u"persons",
    .text = QT_TRANSLATE_NOOP("telephone", "Add to a list..."),
    .task = core::ToolTask::HandOver,
    .form = u"FrmList",
    .places = core::Tool::Menu};

} // namespace telephone::rows
