#pragma once

namespace core {
class Screens;
}

namespace entry {

/// The screens that create and change contacts.
void registerEntry(core::Screens& screens);

} // namespace entry
