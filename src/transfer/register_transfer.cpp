#include "transfer/register_transfer.h"

#include "core/screens.h"
#include "transfer/cards/FormCardImport.h"
#include "transfer/cards/FrmvCard.h"
#include "transfer/cards/FrmVCF.h"

using namespace Qt::StringLiterals;

namespace transfer {

void registerTransfer(core::Screens& screens)
{
    screens.add<FormCardImport>(u"FormCardImport"_s);
    screens.add<FrmVCF>(u"FrmVCF"_s);
    screens.add<FrmvCard>(u"FrmvCard"_s);
}

} // namespace transfer
