#pragma once

namespace core {
class Screens;
}

namespace letters {

void registerLetters(core::Screens& screens);

} // namespace letters
