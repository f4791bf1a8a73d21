#pragma once

#include "jet/database.h"

#include <QString>
#include <QStringList>

namespace core {

/// The word lists behind the fields of the entry screens. Some are the user's own, in the data database,
/// others are shipped, in the information database.
enum class Vocabulary {
    FirstNames,
    LastNames,
    MiddleNames,
    NickNames,
    Companies,
    Countries,
    TopCities,
    Relations,
    Religions,
    Regions,
    Educations,
    Hobbies,
    EmailSuffixes,
    JobTitles,
    AddressTypes,
    Statuses,
    Products,
    CompanySuffixes,
    User1,
    User2,
    User3,
    Categories,
    MergedCategories, ///< "category-subcategory"
};

/// The statement of a list. In the home country a list shows all its rows, elsewhere only those marked 'C' as
/// common; the companies show one side only.
QString vocabularySql(Vocabulary list, bool nationalMode);
bool isInInformation(Vocabulary list);

QString subcategoriesSql(const QString& category);

/// The first column of a selection as texts, without nulls.
QStringList firstColumn(jet::Database& database, const QString& sql);

/// Reads a list from the database in which it lies.
QStringList readVocabulary(jet::Database& data, jet::Database& info, Vocabulary list, bool nationalMode);

} // namespace core
