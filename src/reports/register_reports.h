#pragma once

namespace core {
class Screens;
}

namespace reports {

void registerReports(core::Screens& screens);

} // namespace reports
