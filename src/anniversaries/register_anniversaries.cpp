#include "anniversaries/register_anniversaries.h"

#include "anniversaries/list/frmbday.h"
#include "anniversaries/months/FrmBirthday.h"
#include "anniversaries/summary/FrmBirthSum.h"
#include "anniversaries/year/frmzodiac.h"
#include "anniversaries/year/year_view.h"
#include "core/screens.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

void registerAnniversaries(core::Screens& screens)
{
    screens.add<frmbday>(u"frmbday"_s);
    screens.add<FrmBirthday>(u"FrmBirthday"_s);
    screens.add<FrmBirthSum>(u"FrmBirthSum"_s);
    screens.add<FormAviewbday>(u"FormAviewbday"_s);
    screens.add<FormZodiacYr>(u"FormZodiacYr"_s);
    screens.add<frmzodiac>(u"frmzodiac"_s);
}

} // namespace anniversaries
