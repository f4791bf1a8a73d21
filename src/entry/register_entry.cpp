#include "entry/register_entry.h"

#include "core/screens.h"
#include "entry/FormMain.h"

using namespace Qt::StringLiterals;

namespace entry {

void registerEntry(core::Screens& screens)
{
    screens.add(u"FormMain"_s,
        [](core::Context& context) -> core::Screen* { return new FormMain(context, detailedForm()); });
}

} // namespace entry
