#pragma once

#include "jet/database.h"

#include <QString>

#include <span>

/// The settings of the address book: switches, defaults, prefixes, fonts.
namespace setup {

/// A check box that writes at once.
struct Switch {
    QStringView control;
    const char* caption;
    QStringView column;
    QStringView statement; ///< before the value
};
std::span<const Switch> switches();
const Switch& switchOf(QStringView control);
/// The row that holds the column of a switch.
QString switchRowSql(const Switch& which);
QString switchSql(const Switch& which, bool on);

QString companySuffixSql(const QString& suffix);

/// What a new contact starts with, and where copies of letters and mails go.
struct Defaults {
    QString category;
    QString subcategory;
    QString priority;
    QString letters; ///< journal category and subcategory, joined by "-"
    QString mails;
    QString associations;
    QString cardFolder;

    friend bool operator==(const Defaults&, const Defaults&) = default;
};
QString settingsSql();
/// Journal categories on offer, joined by "-".
QString journalCategoriesSql();
Defaults defaultsOf(const jet::Recordset& settings);
bool saveDefaults(jet::Database& data, const Defaults& defaults);

struct DialPrefixes {
    QString first;
    QString second;
    QString third;
    QString exchange;
};
QString dialPrefixesSql(const DialPrefixes& prefixes);

/// What becomes of a letter's or picture's file: stored as a number, known to the program by a word.
struct StoreRule {
    int stored;
    QStringView mode;
    const char* caption;
};
std::span<const StoreRule> storeRules();
QString storeRuleSql(const StoreRule& rule);

struct GridFont {
    QStringView name;
    const char* caption;
    int size;
};
std::span<const GridFont> gridFonts();
bool saveGridFont(jet::Database& data, int size);

} // namespace setup
