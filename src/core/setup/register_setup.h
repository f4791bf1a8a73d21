#pragma once

namespace core {
class Screens;
}

namespace setup {

/// The screens that keep what the program offers.
void registerSetup(core::Screens& screens);

} // namespace setup
