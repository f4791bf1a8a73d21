#pragma once

#include <QString>

namespace core {

/// What all screens know of one another and of the settings, alive from start to end. Read at the frame's
/// start, then written by the screens as they hand over.
struct SharedState {
    bool NationalMode
        = false; ///< the user lives in the home country: day-first dates, all rows of the vocabularies
    bool ContMerge = false; ///< category and subcategory are kept as one entry, joined by "-"
    QString CurrentSql = QStringLiteral("select * from cnt_main"); ///< the contact selection in force
    QString DocumentsPath;
    QString AppTitle = QStringLiteral("Orvane Contacts"); ///< title of message boxes
    QString ModuleName;
    int GridFontSize = 8;
    QString PhotoStoreMode = QStringLiteral("Link"); ///< "Copy", "Move" or "Link"
    QString LaunchMode; ///< the page of the launch pad
    QString LetterKind; ///< "Business" for the business letter creator
    QString CallerForm; ///< who asked for a filter or a save-as, by form name
    bool EditRequested = false; ///< an entry form is being opened for a record that exists
    QString TableName; ///< the operation under way, such as "Contact-AddData"
    qint64 selectedContactId = 0; ///< the row last chosen in any list
    QString selectedContactName;
    QString selectorMdiFlag; ///< "MDI" while a child screen holds the frame
    bool failedSaveIsTold = false; ///< the person hears of a failed write from the save itself
};

} // namespace core
