#pragma once

#include <QString>
#include <QStringList>

/// The statements of the record of letters.
namespace letters {

/// How the record is ordered, by the id of the tool that does it.
QString recordSql(QStringView order = u"Refresh");
/// The letters to and from one person, in the order of the record.
QString recordOfSql(qint64 person);
QString letterRowSql(qint64 letter);
QString deleteLetterSql(qint64 letter);

/// By what the letters are put together.
enum class LetterGroup { Person, Category, Month };

/// The groups and how many letters each has: `name`, `letters`, and for persons `key`, by which two of one
/// name are told apart.
QString letterGroupsSql(LetterGroup group);
/// The letters of a group, newest first; of all where the group is empty.
/// @param name of the group as it stands in the list, empty text for letters without one
/// @param person the person's id; 0 goes by the name
/// @param sought words that the letters must hold, empty for any
struct LetterChoice {
    LetterGroup group = LetterGroup::Person;
    bool isAll = true;
    QString name = {};
    qint64 person = 0;
    QString sought = {};
};
QString lettersOfSql(const LetterChoice& choice);
/// Puts letters into a category; an empty one takes them out of theirs.
QString moveLettersSql(const QList<qint64>& letters, const QString& category);
/// The categories that letters can be put into.
QString mailCategoriesSql();

/// What the summary counts by.
enum class LetterCount { Direction, Type, Category, Month, Person };
QString letterCountsSql(LetterCount by);

} // namespace letters
