#include "entry/register_entry.h"

namespace entry {

void registerEntry(core::Screens&) { }

} // namespace entry
