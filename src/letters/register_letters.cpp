#include "letters/register_letters.h"

#include "core/screens.h"
#include "letters/creator/FrmBusinessLetter.h"
#include "letters/creator/FrmEmailInsert.h"
#include "letters/creator/FrmGrpLetter.h"
#include "letters/creator/FrmLetter.h"

using namespace Qt::StringLiterals;

namespace letters {

void registerLetters(core::Screens& screens)
{
    screens.add<FrmLetter>(u"FrmLetter"_s);
    screens.add<FrmBusinessLetter>(u"FrmBusinessLetter"_s);
    screens.add<FrmGrpLetter>(u"FrmGrpLetter"_s);
    screens.add<FrmEmailInsert>(u"FrmEmailInsert"_s);
}

} // namespace letters
