#include "letters/register_letters.h"

#include "core/screens.h"
#include "letters/labels/FrmlblReport.h"
#include "letters/lists/FormMailList.h"
#include "letters/lists/FrmList.h"
#include "letters/lists/FrmMailLstAdd.h"

using namespace Qt::StringLiterals;

namespace letters {

void registerLetters(core::Screens& screens)
{
    screens.add<FormMailList>(u"FormMailList"_s);
    screens.add<FrmMailLstAdd>(u"FrmMailLstAdd"_s);
    screens.add<FrmList>(u"FrmList"_s);
    screens.add<FrmlblReport>(u"FrmlblReport"_s);
}

} // namespace letters
