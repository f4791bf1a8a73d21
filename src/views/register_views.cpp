#include "views/register_views.h"

namespace views {

void registerViews(core::Screens&) { }

} // namespace views
