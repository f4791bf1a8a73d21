#include "telephone/register_telephone.h"

#include "core/screens.h"
#include "telephone/lists/FrmPhList.h"
#include "telephone/lists/FrmTelTxt.h"

using namespace Qt::StringLiterals;

namespace telephone {

void registerTelephone(core::Screens& screens)
{
    screens.add<FrmPhList>(u"FrmPhList"_s);
    screens.add<FrmTelTxt>(u"FrmTelTxt"_s);
}

} // namespace telephone
