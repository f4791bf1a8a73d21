#include "views/register_views.h"

#include "core/screens.h"
#include "views/contact_pages/frmCntViewer.h"
#include "views/contact_pages/frmDetailView.h"
#include "views/contact_pages/frmNoteView.h"
#include "views/filters/frmFilter.h"
#include "views/filters/FrmFind.h"
#include "views/filters/frmTabFilter.h"
#include "views/full_view/FullView.h"
#include "views/full_view/FullViewWeb.h"
#include "views/search/FormSearch.h"
#include "views/search/FormTree2.h"
#include "views/selector/frmSelector.h"
#include "views/selector/frmSelector1.h"

using namespace Qt::StringLiterals;

namespace views {

void registerViews(core::Screens& screens)
{
    screens.add<FormSearch>(u"FormSearch"_s);
    screens.add<FormTree2>(u"FormTree2"_s);
    screens.add<frmCntViewer>(u"frmCntViewer"_s);
    screens.add<frmDetailView>(u"frmDetailView"_s);
    screens.add<frmFilter>(u"frmFilter"_s);
    screens.add<FrmFind>(u"FrmFind"_s);
    screens.add<frmNoteView>(u"frmNoteView"_s);
    screens.add<frmSelector1>(u"frmSelector1"_s);
    screens.add<frmSelector>(u"frmSelector"_s);
    screens.add<frmTabFilter>(u"frmTabFilter"_s);
    screens.add<FullView>(u"FullView"_s);
    screens.add<FullViewWeb>(u"FullViewWeb"_s);
}

} // namespace views
