#pragma once

namespace core {
class Screens;
}

namespace views {

/// The screens that show contacts.
void registerViews(core::Screens& screens);

} // namespace views
