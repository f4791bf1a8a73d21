#pragma once

#include "core/context.h"

namespace core {

/// Why something was not stored, in plain words: "the disk is full". A piece of a sentence.
QString reasonOf(const jet::Failure& failure);
/// What a person is told at a save that failed, with what can be done about it.
QString savingFailed(const jet::Failure& failure);

/// Says that the person hears of the failure from the save itself; the general notice keeps silent then.
void noteFailedSaveIsTold(Context& context);
/// To be called by a save that a person made and that failed: tells why, by the last failure of the book.
/// The general notice about failed writes then keeps silent about this one.
void tellFailedSave(Context& context);

} // namespace core
