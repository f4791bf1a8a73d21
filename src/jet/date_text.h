#pragma once

#include <QDate>
#include <QString>
#include <QStringView>
#include <QTime>
#include <QVariant>

#include <optional>

namespace jet {

/// Reads a date as people and statements write it: 15-Jun-2026, 15 Jun-2026, 15/June/2026, Jun 15-2026,
/// 2026-06-15, 6/15/2026 (month first, swapped when the first number is over 12), two-digit years (00 to 29
/// are 20xx), each with or without a time. Month names are English in any case.
/// @return "YYYY-MM-DD", with " HH:MM:SS" only when there is a time; nothing when it is no date.
std::optional<QString> parseDateText(QStringView text);

/// The stored form of a date column.
QString isoDate(QDate date, QTime time = {});
/// The value of a stored date: QDate, or QDateTime when it has a time of day; an invalid variant for anything
/// else.
QVariant dateFromIso(QStringView iso);

/// A date in the patterns of the dialect's format(): d, dd, mmm, mmmm, m, mm, yy, yyyy in any case; English
/// names.
QString formatIsoDate(QStringView iso, QStringView pattern);

} // namespace jet
