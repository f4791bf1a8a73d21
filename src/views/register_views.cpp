#include "views/register_views.h"

#include "core/screens.h"
#include "views/frmDetailView.h"
#include "views/FullView.h"

using namespace Qt::StringLiterals;

namespace views {

void registerViews(core::Screens& screens)
{
    screens.add<FullView>(u"FullView"_s);
    screens.add<frmDetailView>(u"frmDetailView"_s);
}

} // namespace views
