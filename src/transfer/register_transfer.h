#pragma once

namespace core {
class Screens;
}

namespace transfer {

void registerTransfer(core::Screens& screens);

} // namespace transfer
