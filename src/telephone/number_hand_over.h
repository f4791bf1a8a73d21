#pragma once

#include "core/context.h"

class QAbstractButton;

namespace telephone {

/// Shows a number in the dialer.
/// @param who whom it belongs to
void handOverNumber(core::Context& context, const QString& number, const QString& who);

/// Whether there is a dialer to hand a number to.
bool hasDialer(const core::Context& context);

/// A button that dials can be pressed while there are a dialer and a number; else its tool tip says what is
/// missing.
void enableDialling(
    const core::Context& context, QAbstractButton* button, bool hasNumber, const QString& withoutNumber);

} // namespace telephone
