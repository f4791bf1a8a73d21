#pragma once

#include <QDate>
#include <QString>
#include <QStringView>
#include <QTime>
#include <QVariant>

#include <optional>
#include <string_view>

// The one place of the house that reads and writes dates. Months have English names in every locale.

namespace jet {

/// The first of three numbers, unless that can be no month.
enum class DateOrder { DayFirst, MonthFirst };

/// Reads a date as a person types it: 15 Jun-2026, Jun 15, 2026 or 2026 June 15, the month in three letters
/// or more of its name; 2026-06-15; 15/6/2026. Years of two digits, 00 to 29, are 20xx, unless that is after
/// `latest`; no year lies before 100.
std::optional<QDate> readDate(QStringView text, DateOrder order, QDate latest = {});

/// The same for statements: the month comes first, a year may have one or three digits, and a time may
/// follow.
/// @return "YYYY-MM-DD", with " HH:MM:SS" only when there is a time; nothing when it is no date.
std::optional<QString> parseDateText(QStringView text);

/// The stored form of a date column; "" for an invalid date.
QString isoDate(QDate date, QTime time = {});
/// The value of a stored date: QDate, or QDateTime when it has a time of day; an invalid variant for anything
/// else.
QVariant dateFromIso(QStringView iso);
/// The day at the beginning of an ISO date, also without its dashes, as cards have it.
QDate dayOfIso(QStringView iso);

enum class DatePart { Year, Month, Day };
/// A part of a stored date, read in place, as lists do that look at every row; nothing for another text.
std::optional<int> partOfIso(std::string_view iso, DatePart part);

/// A date by a pattern of d, dd, m, mm, mmm, mmmm, yy, yyyy in any case; anything else stays as it is. "" for
/// an invalid date.
QString formatDate(QDate date, QStringView pattern);

} // namespace jet
