#include "views/register_views.h"

#include "core/screens.h"
#include "views/FormSearch.h"
#include "views/frmDetailView.h"
#include "views/frmFilter.h"
#include "views/frmTabFilter.h"
#include "views/FullView.h"

using namespace Qt::StringLiterals;

namespace views {

void registerViews(core::Screens& screens)
{
    screens.add<FullView>(u"FullView"_s);
    screens.add<FormSearch>(u"FormSearch"_s);
    screens.add<frmDetailView>(u"frmDetailView"_s);
    screens.add<frmFilter>(u"frmFilter"_s);
    screens.add<frmTabFilter>(u"frmTabFilter"_s);
}

} // namespace views
