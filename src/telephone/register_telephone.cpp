#include "telephone/register_telephone.h"

#include "core/screens.h"
#include "telephone/calls/Form1.h"
#include "telephone/calls/FrmCall.h"
#include "telephone/codes/FrmCityUtil.h"
#include "telephone/codes/FrmColony.h"
#include "telephone/codes/Frmintstd.h"
#include "telephone/codes/frmstd.h"
#include "telephone/codes/FrmStdcode.h"
#include "telephone/dialer/FrmDialer.h"
#include "telephone/lists/FrmPhList.h"
#include "telephone/lists/FrmTelTxt.h"
#include "telephone/replacer/FrmPhReplacer.h"
#include "telephone/search/FrmPhSearch.h"

using namespace Qt::StringLiterals;

namespace telephone {

void registerTelephone(core::Screens& screens)
{
    screens.add<FrmStdcode>(u"FrmStdcode"_s);
    screens.add<frmstd>(u"frmstd"_s);
    screens.add<Frmintstd>(u"Frmintstd"_s);
    screens.add<FrmCityUtil>(u"FrmCityUtil"_s);
    screens.add<FrmColony>(u"FrmColony"_s);
    screens.add<FrmPhList>(u"FrmPhList"_s);
    screens.add<FrmTelTxt>(u"FrmTelTxt"_s);
    screens.add<FrmPhSearch>(u"FrmPhSearch"_s);
    screens.add<FrmPhReplacer>(u"FrmPhReplacer"_s);
    screens.add<FrmDialer>(u"FrmDialer"_s);
    screens.add<Form1>(u"Form1"_s);
    screens.add<FrmCall>(u"FrmCall"_s);
}

} // namespace telephone
