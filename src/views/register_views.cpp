#include "views/register_views.h"

#include "core/screens.h"
#include "views/FormSearch.h"
#include "views/FormTree2.h"
#include "views/frmCntViewer.h"
#include "views/FrmContacts.h"
#include "views/frmDetailView.h"
#include "views/frmFilter.h"
#include "views/FrmFind.h"
#include "views/frmNoteView.h"
#include "views/frmSelector.h"
#include "views/frmSelector1.h"
#include "views/frmTabFilter.h"
#include "views/FullView.h"
#include "views/FullViewWeb.h"

using namespace Qt::StringLiterals;

namespace views {

void registerViews(core::Screens& screens)
{
    screens.add<FormSearch>(u"FormSearch"_s);
    screens.add<FormTree2>(u"FormTree2"_s);
    screens.add<frmCntViewer>(u"frmCntViewer"_s);
    screens.add<FrmContacts>(u"FrmContacts"_s);
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
