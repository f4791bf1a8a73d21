#pragma once

#include "anniversaries/wishes/send_letter.h"
#include "core/tool.h"

#include <QtGlobal>

/// The tools that the birthday list and the views of the year have alike, as rows of their tables.
namespace anniversaries::tools {

inline constexpr int kWish = core::Tool::IconOnly | core::Tool::Menu;

inline constexpr core::Tool kSendLetter{.id = u"SendLetter",
    .icon = u"letter",
    .text = QT_TRANSLATE_NOOP("anniversaries", "Send by letter"),
    .form = kLetterScreen,
    .places = kWish | core::Tool::GroupStart};
inline constexpr core::Tool kSendEmail{.id = u"SendEmail",
    .icon = u"envelope",
    .text = QT_TRANSLATE_NOOP("anniversaries", "Send by e-mail"),
    .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Write the wishes as an e-mail and look at it"),
    .places = kWish};
inline constexpr core::Tool kSendToday{.id = u"sendtoday",
    .icon = u"next",
    .text = QT_TRANSLATE_NOOP("anniversaries", "Send to Outbox today"),
    .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Send the wishes by e-mail at once"),
    .places = kWish};
inline constexpr core::Tool kConfirm{.id = u"Confirm",
    .icon = u"question",
    .text = QT_TRANSLATE_NOOP("anniversaries", "Confirm before sending"),
    .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Keep an e-mail with the wishes for the day"),
    .places = kWish};
inline constexpr core::Tool kExport{.id = u"Export",
    .icon = u"export",
    .text = QT_TRANSLATE_NOOP("anniversaries", "Export"),
    .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Save the list as a file"),
    .places = core::Tool::IconOnly};

} // namespace anniversaries::tools
