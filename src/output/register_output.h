#pragma once

namespace core {
class Screens;
}

namespace output {

void registerOutput(core::Screens& screens);

} // namespace output
