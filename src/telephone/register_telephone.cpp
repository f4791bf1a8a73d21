#include "telephone/register_telephone.h"

#include "core/screens.h"
#include "telephone/dialer/FrmDialer.h"

using namespace Qt::StringLiterals;

namespace telephone {

void registerTelephone(core::Screens& screens)
{
    screens.add<FrmDialer>(u"FrmDialer"_s);
}

} // namespace telephone
