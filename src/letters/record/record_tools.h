#pragma once

#include "core/context.h"
#include "core/tool_set.h"

namespace widgets {
class HeadingGrid;
}

namespace letters {

/// What can be done with the letter in hand, on all screens that list the record: in the tool bar, in the
/// menu of the list, and by keys.
class RecordTools : public core::ToolSet {
    Q_OBJECT

public:
    RecordTools(core::Context& context, widgets::HeadingGrid* grid, QWidget* screen);

    /// To be told when another letter is the one in hand.
    void follow();

Q_SIGNALS:
    void removeWanted();

private:
    core::Context& m_context;
    widgets::HeadingGrid* m_grid;
};

} // namespace letters
