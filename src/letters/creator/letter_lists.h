#pragma once

#include <QString>

/// The statements behind the lists of a letter creator.
namespace letters {

QString stockTextsSql(); ///< captions of the stored texts of letters
QString stockTextSql(const QString& caption);
QString recipientNamesSql();
QString openingsSql();
QString furtherLinesSql();
QString closingLinesSql();
QString endingsSql();
QString letterTypesSql();
QString letterCategoriesSql();
QString recipientCategoriesSql();
QString signersSql(); ///< the user and the family
QString commonWordsSql(const QString& prefix);
QString lettersToSql(const QString& person); ///< what was written to somebody
QString mergedTextSql(qint64 letterId);
QString letterByIdSql(qint64 letterId);
QString storedPhrasesSql();

/// From whom recipients are chosen.
enum class PeopleOf { Book, Category, MailingList, PrintSelection };
QString mailingListsSql();
/// Id, name and city, by name.
/// @param group name of the category or the mailing list
/// @param beginning of the name; empty for all
QString peopleSql(PeopleOf source, const QString& group, const QString& beginning);

} // namespace letters
