#pragma once

#include <QChar>
#include <QString>
#include <QStringList>

#include <functional>

/// What may be dialled before a number, and the numbers that may follow it.
namespace telephone {

/// The address that a number belongs to.
enum class NumberKind { None, Home, W, B };

/// Where a text of the contact or of the settings comes from, by its column.
using ColumnText = std::function<QString(QStringView column)>;

/// Codes in front of a number: the area code whole and in its parts, then the prefixes of the settings.
QStringList offeredPrefixes(NumberKind kind, const ColumnText& contact, const ColumnText& settings);
/// The three numbers of that kind and the mobile ones.
QStringList offeredNumbers(NumberKind kind, const ColumnText& contact);

/// What a person picked in both lists, as it is dialled.
QString pickedNumber(const QString& prefix, const QString& number);

/// A slot of the memory ends in the tag of its number, which tells where its code stands.
struct SlotTag {
    NumberKind kind = NumberKind::None; ///< for which codes and numbers are offered
    QStringView code; ///< the column of the area code; empty for a number that has none
};
SlotTag slotTag(const QString& caption);
/// The number of a memory slot with its code before it.
QString memoryNumber(const QString& code, const QString& number);

/// What is dialled for a number of the person that is clicked.
/// @param place in numberSlots(), the mobile numbers included
QString clickedNumber(int place, const ColumnText& contact);
/// The column of the area code that stands beside a number of the person; empty for mobile numbers.
QStringView clickedCode(int place);

/// The kind of the first address at which the person has a number.
NumberKind firstKind(const ColumnText& contact);

/// Digits and a leading "+" only, for a telephone program. Empty when nothing is left.
QString telephoneAddress(const QString& number);

} // namespace telephone
