#include "letters/creator/letter_tools.h"

#include <QtGlobal>

namespace letters {

namespace {

using enum core::Tool::Place;

constexpr core::Tool kTools[] = {
    {.id = u"NewLetter",
        .icon = u"file",
        .text = QT_TRANSLATE_NOOP("letters", "New"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Begin another letter"),
        .places = Labelled},
    {.id = u"Save",
        .icon = u"save",
        .text = QT_TRANSLATE_NOOP("letters", "Save"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Keep the letter in the record (Ctrl+S)"),
        .places = Labelled,
        .key = int(Qt::CTRL) | int(Qt::Key_S),
        .keyIn = core::Tool::KeyIn::Screen},
    {.id = u"PrintPreview",
        .icon = u"report",
        .text = QT_TRANSLATE_NOOP("letters", "Preview"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Show the letter as it is printed, in the chosen style"),
        .places = Labelled},
    {.id = u"Select Recipients",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("letters", "Select recipients"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Choose people by category, mailing list or print selection"),
        .places = Labelled | GroupStart},
    {.id = u"InserPhrase",
        .icon = u"note",
        .text = QT_TRANSLATE_NOOP("letters", "Insert phrase"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Put a stored phrase in where the caret is"),
        .form = u"FrmEmailInsert",
        .places = Labelled},
    {.id = u"Mailmerge",
        .icon = u"letter",
        .text = QT_TRANSLATE_NOOP("letters", "Mail merge"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "One document of all letters, for the word processor"),
        .places = Labelled | GroupStart},
    {.id = u"SaveasWord",
        .icon = u"export",
        .text = QT_TRANSLATE_NOOP("letters", "Word processor"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "The merge, and the letter as a file of its own beside it"),
        .places = IconOnly},
    {.id = u"SaveasAccess",
        .icon = u"drive",
        .text = QT_TRANSLATE_NOOP("letters", "Save as database"),
        .toolTip
        = QT_TRANSLATE_NOOP("letters", "The letters as a database of their own, with a CSV file beside it"),
        .places = IconOnly},
    {.id = u"Setup",
        .icon = u"setup",
        .text = QT_TRANSLATE_NOOP("letters", "Set-up"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Change the stored texts and phrases"),
        .form = u"FormLtrSetUp",
        .places = IconOnly | GroupStart},
    {.id = u"Style1",
        .icon = u"report",
        .text = QT_TRANSLATE_NOOP("letters", "With a &letterhead"),
        .places = Menu},
    {.id = u"Style2", .icon = u"report", .text = QT_TRANSLATE_NOOP("letters", "&Classic"), .places = Menu},
    {.id = u"Style3", .icon = u"report", .text = QT_TRANSLATE_NOOP("letters", "&Modern"), .places = Menu},
    {.id = u"Cut1", .icon = u"cut", .text = QT_TRANSLATE_NOOP("letters", "Cu&t"), .places = FilterMenu},
    {.id = u"Copy1", .icon = u"copy", .text = QT_TRANSLATE_NOOP("letters", "&Copy"), .places = FilterMenu},
    {.id = u"Paste1", .icon = u"paste", .text = QT_TRANSLATE_NOOP("letters", "&Paste"), .places = FilterMenu},
};

constexpr core::Tool kWholeLetterTools[] = {
    {.id = u"Font",
        .icon = u"edit",
        .text = QT_TRANSLATE_NOOP("letters", "Font"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "The font of what is selected"),
        .places = Labelled},
    {.id = u"Spelling",
        .icon = u"spelling",
        .text = QT_TRANSLATE_NOOP("letters", "Spelling"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Check the spelling word by word"),
        .places = Labelled},
    {.id = u"Cut", .icon = u"cut", .text = QT_TRANSLATE_NOOP("letters", "Cu&t"), .places = Menu},
    {.id = u"Copy", .icon = u"copy", .text = QT_TRANSLATE_NOOP("letters", "&Copy"), .places = Menu},
    {.id = u"Paste", .icon = u"paste", .text = QT_TRANSLATE_NOOP("letters", "&Paste"), .places = Menu},
};

} // namespace

core::ToolTable letterTools()
{
    return {kTools, "letters"};
}

core::ToolTable wholeLetterTools()
{
    return {kWholeLetterTools, "letters"};
}

} // namespace letters
