#pragma once

#include "widgets/field_values.h"

#include <QString>

#include <memory>

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
    /// What stood unsaved in a form that closes without a question, by form name, until it is opened again.
    QHash<QString, widgets::FieldValues> unsavedEntries;
    QString selectorMdiFlag; ///< "MDI" while a child screen holds the frame
    /// Set while a save is being told of as failed, so that nobody tells of it again.
    std::shared_ptr<bool> failedSaveIsTold = std::make_shared<bool>(false);
};

} // namespace core
