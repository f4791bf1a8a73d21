#pragma once

#include <QStringList>

/// The words of cards: what their names, labels, dates and lines mean to a person.
namespace formats {

/// The column that a property with one text means; empty for none.
QStringView columnOfProperty(const QString& property);
/// By any of the names that programs gave it.
bool isAnniversary(const QString& property);

/// What a line of the note calls a property; any other is called by its own name.
QString labelOfProperty(const QString& property);

/// The types of a value in small letters, without those that say nothing to a person.
QStringList wordsOfTypes(const QStringList& types);

/// The label that a person has chosen; "_$!<HomePage>!$_" is one that the writer would translate.
QString plainLabel(const QString& label);

/// For columns of one line: what stands on several, with ", " between.
QString onOneLine(const QString& text);

/// Day ("2026-06-15") and perhaps time, as written, of a date in one of the ways of cards; blank for one
/// without a year or a day.
struct CardDate {
    QString day;
    QString time;
};
CardDate cardDate(const QString& text);
bool isMidnight(const QString& time); ///< or no time

} // namespace formats
