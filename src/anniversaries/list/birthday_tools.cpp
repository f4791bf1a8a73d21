#include "anniversaries/list/birthday_tools.h"

#include "anniversaries/wishes/wish_tools.h"

#include <QCoreApplication>

namespace anniversaries {

namespace {

constexpr int kFull = core::Tool::Labelled;
constexpr int kIcon = core::Tool::IconOnly;
constexpr core::Tool kTools[] = {
    {.id = u"ViewNext",
        .icon = u"clock",
        .text = QT_TRANSLATE_NOOP("anniversaries", "View Next"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Only the days of the next 60 days"),
        .places = kFull},
    {.id = u"Priority1",
        .icon = u"star",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Priority 1 && 2"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Hides the people of priority 3 and 4"),
        .places = kFull},
    {.id = u"Priority2",
        .icon = u"filter",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Priority 3 && 4"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Hides the people of priority 1 and 2"),
        .places = kFull},
    tools::kSendLetter,
    tools::kSendEmail,
    tools::kSendToday,
    tools::kConfirm,
    {.id = u"TransTask",
        .icon = u"calendar",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Copy to Scheduler"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Copy the ticked days to the scheduler"),
        .places = kFull | core::Tool::GroupStart},
    {.id = u"Print",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Print"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "The list as a report"),
        .places = kIcon | core::Tool::GroupStart},
    tools::kExport,
    {.id = u"SaveCalendar",
        .icon = u"save",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Save as calendar file"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "All days as a file for other calendars"),
        .places = kIcon},
    {.id = u"ColorLegend",
        .icon = u"colors",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Legend"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "What the colours of the days mean"),
        .places = kIcon},
    {.id = u"Simple",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Go to Simple"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Short View"),
        .places = kFull | core::Tool::GroupStart},
    {.id = u"Details",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("anniversaries", "Go to Details"),
        .toolTip = QT_TRANSLATE_NOOP("anniversaries", "Full View"),
        .places = kFull},
};

} // namespace

core::ToolTable birthdayTools()
{
    return {kTools, "anniversaries"};
}

} // namespace anniversaries
