#pragma once

#include <QString>

/// The statements of the dialer. Apostrophes of the values are doubled; wildcards stand for what they do.
namespace telephone {

inline constexpr int kMemorySlots = 10;

QString memoryListsSql();
QString memorySlotsSql(const QString& list);
QString memorySlotSql(const QString& list, int slot);
/// The row that is edited, or the place where one is added.
QString memoryStoreSql(const QString& list, int slot);
QString memoryByCaptionSql(const QString& caption);
QString renameListSql(const QString& from, const QString& to);
QString deleteListSql(const QString& list);

struct DialPrefixes {
    QString p1, p2, p3, pbx;
};
QString storePrefixesSql(const DialPrefixes& prefixes);
QString homeCitySql(bool on);

/// Codes of all cities, those of the home country or those of the others.
QString cityCodesSql(bool national);
QString cityTimeSql(const QString& label);

/// The people from whom one is picked.
QString peopleSql();
QString peopleOfSql(const QString& category);
QString peopleCategoriesSql();

/// From whom a number for the memory is taken; "All" or nothing is no condition.
struct MemoryChoice {
    QString category;
    QString subcategory;
    QString city;
};
QString memoryContactsSql(const MemoryChoice& choice);
QString memorySubcategoriesSql(const QString& category);
QString phoneListNamesSql();
QString contactsOfPhoneListSql(const QString& list);

QString callsOfPersonSql(const QString& name);
QString purposesSql();
QString responsesSql();

} // namespace telephone
