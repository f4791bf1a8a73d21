#pragma once

namespace core {
class Screens;
}

namespace telephone {

void registerTelephone(core::Screens& screens);

} // namespace telephone
