#pragma once

#include "core/context.h"
#include "telephone/replacer/replacement.h"

class QCheckBox;
class QWidget;

namespace telephone {

/// Runs a replacement, with a preview before it unless the person wants none, and says what was changed, with
/// the way to take it back.
/// @return whether something was changed
bool replaceWithPreview(core::Context& context, const Replacement& replacement, QWidget* over);

/// "Show what will change before replacing", kept for this computer.
QCheckBox* makePreviewBox(core::Context& context, QWidget* parent);
/// Brings such a box up to what another one was set to.
void followPreviewSetting(const core::Context& context, QCheckBox* box);

} // namespace telephone
