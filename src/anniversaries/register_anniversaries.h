#pragma once

namespace core {
class Screens;
}

namespace anniversaries {

void registerAnniversaries(core::Screens& screens);

} // namespace anniversaries
