#pragma once

#include <QStringView>

#include <span>

namespace views {

/// A field that find and replace offers.
struct FindColumn {
    const char* caption; ///< for translation
    QStringView column;
};

/// What find and replace works on for one caller.
struct FindTarget {
    QStringView word; ///< by which the caller names itself
    QStringView table;
    QStringView form; ///< the screen whose list is read again afterwards
    QStringView listSql; ///< by which it is read; empty for its own
    std::span<const FindColumn> columns;
};

/// Any word that nobody else has stands for the record of mail.
const FindTarget& findTarget(QStringView callerWord);

/// Puts the new text where the whole value of the column is the old one.
QString replaceSql(const FindTarget& target, QStringView column, const QString& find, const QString& replace);

} // namespace views
