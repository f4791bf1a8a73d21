#include "letters/register_letters.h"

#include "core/screens.h"
#include "letters/creator/FrmBusinessLetter.h"
#include "letters/creator/FrmEmailInsert.h"
#include "letters/creator/FrmGrpLetter.h"
#include "letters/creator/FrmLetter.h"
#include "letters/labels/FrmlblReport.h"
#include "letters/lists/FormMailList.h"
#include "letters/lists/FrmList.h"
#include "letters/lists/FrmMailLstAdd.h"
#include "letters/ltr_setup/FormLtrSetUp.h"
#include "letters/record/FrmEditLetterRecord.h"
#include "letters/record/Frmgmail.h"
#include "letters/record/FrmLetterRecord.h"
#include "letters/record/FrmLettSum.h"
#include "letters/record/PaperLetter.h"

using namespace Qt::StringLiterals;

namespace letters {

void registerLetters(core::Screens& screens)
{
    screens.add<FormMailList>(u"FormMailList"_s);
    screens.add<FrmMailLstAdd>(u"FrmMailLstAdd"_s);
    screens.add<FrmList>(u"FrmList"_s);
    screens.add<FrmlblReport>(u"FrmlblReport"_s);
    screens.add<FrmLetterRecord>(u"FrmLetterRecord"_s);
    screens.add<FrmEditLetterRecord>(u"FrmEditLetterRecord"_s);
    screens.add<Frmgmail>(u"Frmgmail"_s);
    screens.add<FrmLettSum>(u"FrmLettSum"_s);
    screens.add<frmgmail1>(u"frmgmail1"_s);
    screens.add<frmScan>(u"frmScan"_s);
    screens.add<FrmLetter>(u"FrmLetter"_s);
    screens.add<FrmBusinessLetter>(u"FrmBusinessLetter"_s);
    screens.add<FrmGrpLetter>(u"FrmGrpLetter"_s);
    screens.add<FrmEmailInsert>(u"FrmEmailInsert"_s);
    screens.add<FormLtrSetUp>(u"FormLtrSetUp"_s);
}

} // namespace letters
