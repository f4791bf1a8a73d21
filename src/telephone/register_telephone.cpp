#include "telephone/register_telephone.h"

#include "core/screens.h"

using namespace Qt::StringLiterals;

namespace telephone {

void registerTelephone(core::Screens&) { }

} // namespace telephone
