#pragma once

#include "jet/recordset.h"

#include <QDate>

#include <span>

namespace entry {

/// Whom a duplicate can be made of: somebody who is only named in a contact.
struct DuplicateChoice {
    QStringView option; ///< the control that chooses it
    QStringView label; ///< the control that shows the name
    QStringView word; ///< as the question says it
    QStringView column; ///< that holds the name
    const char* caption;
    bool isPersonal; ///< no choice in a book for business
};

std::span<const DuplicateChoice> duplicateChoices();

/// What goes along with the name.
struct DuplicateParts {
    bool home = false; ///< address and telephones
    bool work = false; ///< both addresses and telephones
    bool classes = false; ///< status, religion, region
    bool mail = false; ///< e-mail and web addresses
};

struct Duplicate {
    QString first; ///< the name that the source holds
    QString category;
    QString subcategory;
    QString priority;
    DuplicateParts parts;
    QDate today;
};

/// What the new contact is called: the name, and the source's last name behind a blank, whatever they are.
QString duplicateName(const QString& first, const QString& last);

/// Assigns the columns of a new row, in the order in which books have them, from the source's row.
void assignDuplicate(jet::Recordset& added, const jet::Recordset& source, const Duplicate& duplicate);

/// The names to choose the source from; a filter gives its where clause with the leading word.
QString duplicateNamesSql(const QString& category, const QString& whereClause);
QString duplicateSourceSql(const QString& name);
QString duplicateCategoriesSql();
QString duplicateSubcategoriesSql(const QString& category);

} // namespace entry
