#pragma once

#include <QStringView>

namespace letters {

/// What one letter creator has different from the others.
struct LetterForm {
    QStringView name;
    const char* title;
    QStringView kind; ///< of the letters that it keeps, until an occasion says another
    QStringView mergeFolder; ///< of merged documents
    bool hasNote = false;
    bool forGroups = false; ///< speaks to several, also while there is only one
};

extern const LetterForm kPersonalLetter;
extern const LetterForm kBusinessLetter;
extern const LetterForm kGroupLetter;

/// The caption of the stored text for an occasion that another screen asks a letter for ("Birthday2");
/// empty for none.
QStringView stockTextFor(QStringView occasion);

/// Where letters are written to until the person says otherwise.
inline constexpr QStringView kLetterFolder = u"C:\\OVUserfiles\\Letters";

} // namespace letters
