#include "letters/creator/letter_form.h"

#include <QCoreApplication>

namespace letters {

// Kept: the folder of the personal letters is spelled so; documents of many years lie in it.
const LetterForm kPersonalLetter{.name = u"FrmLetter",
    .title = QT_TRANSLATE_NOOP("letters", "Letter Creator"),
    .kind = u"Personal",
    .mergeFolder = u"C:\\ovuserfilkes",
    .hasNote = true};

const LetterForm kBusinessLetter{.name = u"FrmBusinessLetter",
    .title = QT_TRANSLATE_NOOP("letters", "Letter Creator"),
    .kind = u"Business",
    .mergeFolder = u"C:\\OVUserfiles"};

const LetterForm kGroupLetter{.name = u"FrmGrpLetter",
    .title = QT_TRANSLATE_NOOP("letters", "Group Letter"),
    .kind = u"Group",
    .mergeFolder = u"C:\\OVUserfiles",
    .forGroups = true};

QStringView stockTextFor(QStringView occasion)
{
    if (occasion == u"Birthday2")
        return u"Birthday";
    return occasion == u"Anniversary" ? occasion : QStringView();
}

} // namespace letters
