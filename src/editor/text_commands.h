#pragma once

namespace editor {

/// What a person can do with a text, by tool, menu or key.
enum class TextCommand {
    Bold,
    Italic,
    Underline,
    StrikeOut,
    Bullets,
    Numbers,
    Indent,
    Outdent,
    AlignLeft,
    AlignCenter,
    AlignRight,
    Justify,
    ClearLooks,
    Undo,
    Redo,
    Cut,
    Copy,
    Paste,
    PastePlain,
    Find,
    CheckSpelling,
    OfferWords,
};

} // namespace editor
