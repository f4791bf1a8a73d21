#pragma once

namespace core {
class Screens;
}

namespace shell {

/// The frame's own screens.
void registerShell(core::Screens& screens);

} // namespace shell
