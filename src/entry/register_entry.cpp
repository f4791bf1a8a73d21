#include "entry/register_entry.h"

#include "core/screens.h"
#include "entry/duplicator/FrmDuplicator.h"
#include "entry/form/FormMain.h"
#include "entry/form/FrmAddSave.h"
#include "entry/simple/FrmContacts.h"
#include "entry/turbo/TurboAdd.h"

using namespace Qt::StringLiterals;

namespace entry {

void registerEntry(core::Screens& screens)
{
    for (const auto variant : {detailedForm, briefForm, businessForm}) {
        screens.add(variant().form.toString(),
            [variant](core::Context& context) -> core::Screen* { return new FormMain(context, variant()); });
    }
    screens.add<FrmContacts>(u"FrmContacts"_s);
    screens.add<FrmAddSave>(u"FrmAddSave"_s);
    screens.add<FrmDuplicator>(u"FrmDuplicator"_s);
    screens.add<TurboAdd>(u"TurboAdd"_s);
}

} // namespace entry
