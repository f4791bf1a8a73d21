#pragma once

#include "core/context.h"

namespace core {

/// What a person did, as "Undo %1" and "Undone: %1" have it: "adding Asha Oberoi and 2 more".
QString described(const jet::ChangeStep& change);

/// Takes the last change of the address book back, or does the one taken back last again; all open screens
/// hear of it, and the person by a notice that offers the way back. A notice about one change gives its id:
/// nothing happens when it is not the next one any more.
void takeBack(Context& context, jet::StepDirection direction = jet::StepDirection::Back, qint64 onlyStep = 0);

} // namespace core
