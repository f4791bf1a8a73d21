#include "jet/date_text.h"

#include <QDateTime>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr std::array<QStringView, 12> kMonths{u"January", u"February", u"March", u"April", u"May", u"June",
    u"July", u"August", u"September", u"October", u"November", u"December"};

/// 1 to 12 for a month's English name or a beginning of it that tells; 0 for anything else.
int monthOfName(QStringView name)
{
    constexpr qsizetype kFewestLetters = 3;
    const auto month = std::find_if(kMonths.begin(), kMonths.end(),
        [name](QStringView full) { return full.startsWith(name, Qt::CaseInsensitive); });
    return name.size() < kFewestLetters || month == kMonths.end() ? 0 : int(month - kMonths.begin()) + 1;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// -1 when it is no number of at most so many digits.
int number(QStringView digits, qsizetype most)
{
    const bool fits
        = !digits.isEmpty() && digits.size() <= most && std::all_of(digits.begin(), digits.end(), isDigit);
    return fits ? digits.toInt() : -1;
}

/// Three runs of letters or digits, with nothing between them but what stands in dates.
using Pieces = std::array<QStringView, 3>;

std::optional<Pieces> split(QStringView text)
{
    const auto isLetter = [](QChar c) { return c.isLetter(); };
    const auto isBetween = [](QChar c) { return c.isSpace() || QStringView(u"-/.,").contains(c); };
    Pieces pieces;
    size_t count = 0;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype from = at;
        const auto pass = [&](auto fits) {
            while (at < text.size() && fits(text[at]))
                ++at;
            return at > from;
        };
        if (pass(isBetween))
            continue;
        if ((!pass(isDigit) && !pass(isLetter)) || count == pieces.size())
            return {};
        pieces[count++] = text.mid(from, at - from);
    }
    return count == pieces.size() ? std::optional(pieces) : std::nullopt;
}

enum class Years { OfTwoOrFourDigits, OfAnyDigits };

struct Reading {
    DateOrder order;
    Years years;
    QDate latest = {};
};

QDate dateOf(QStringView year, int month, QStringView day, const Reading& reading)
{
    constexpr int kFirstYear = 100; // what is stored of an earlier one reads as a year of two digits
    constexpr int kLastShortYear = 29;
    const bool isShort = year.size() <= 2;
    const int written = number(year, 4);
    if (written < 0 || (!isShort && written < kFirstYear)
        || (reading.years == Years::OfTwoOrFourDigits && year.size() % 2 != 0))
        return {};
    const int full = !isShort ? written : written + (written <= kLastShortYear ? 2000 : 1900);
    const QDate date(full, month, number(day, 2));
    if (isShort && reading.latest.isValid() && date > reading.latest)
        return QDate(full - 100, month, date.day());
    return date;
}

QDate dateOf(QStringView text, const Reading& reading)
{
    auto pieces = split(text);
    if (!pieces)
        return {};
    auto& [first, second, third] = *pieces;
    const auto word = std::find_if(
        pieces->begin(), pieces->end(), [](QStringView piece) { return piece.front().isLetter(); });
    if (word != pieces->end()) {
        const int month = monthOfName(*word);
        std::rotate(word, word + 1, pieces->end());
        return first.size() > 2 ? dateOf(first, month, second, reading)
                                : dateOf(second, month, first, reading);
    }
    if (first.size() > 2)
        return dateOf(first, number(second, 2), third, reading);
    const bool isDayFirst = reading.order == DateOrder::DayFirst;
    if (isDayFirst != (number(isDayFirst ? second : first, 2) > 12))
        std::swap(first, second);
    return dateOf(third, number(first, 2), second, reading);
}

std::optional<QTime> timeOf(QStringView text)
{
    text = text.trimmed();
    bool afternoon = false;
    bool halves = false;
    if (text.endsWith(u"am", Qt::CaseInsensitive) || text.endsWith(u"pm", Qt::CaseInsensitive)) {
        halves = true;
        afternoon = text.endsWith(u"pm", Qt::CaseInsensitive);
        text = text.chopped(2).trimmed();
    }
    const auto parts = text.split(u':');
    if (parts.size() < 2 || parts.size() > 3)
        return {};
    int values[3] = {0, 0, 0};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool ok = false;
        values[i] = parts[i].size() <= 2 ? parts[i].toInt(&ok) : -1;
        if (!ok)
            return {};
    }
    if (halves && (values[0] < 1 || values[0] > 12))
        return {};
    if (halves)
        values[0] = values[0] % 12 + (afternoon ? 12 : 0);
    const QTime time(values[0], values[1], values[2]);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

} // namespace

std::optional<QDate> readDate(QStringView text, DateOrder order, QDate latest)
{
    const QDate date = dateOf(text, {order, Years::OfTwoOrFourDigits, latest});
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<QString> parseDateText(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty() || text.size() > 40)
        return {};
    QTime time;
    const qsizetype colon = text.indexOf(u':');
    if (colon >= 0) {
        qsizetype gap = text.left(colon).lastIndexOf(u' ');
        if (gap < 0 && colon > 0)
            gap = text.left(colon).lastIndexOf(u'T');
        const auto found = timeOf(gap < 0 ? text : text.mid(gap + 1));
        if (!found)
            return {};
        time = *found;
        // A time of day alone stands on the engine's day zero.
        if (gap < 0)
            return isoDate(QDate(1899, 12, 30), time);
        text = text.left(gap).trimmed();
    }
    const QDate date = dateOf(text, {DateOrder::MonthFirst, Years::OfAnyDigits});
    return date.isValid() ? std::optional(isoDate(date, time)) : std::nullopt;
}

QString isoDate(QDate date, QTime time)
{
    if (!date.isValid())
        return {};
    QString iso = formatDate(date, u"yyyy-mm-dd");
    if (time.isValid() && (time != QTime(0, 0) || date == QDate(1899, 12, 30)))
        iso += u' ' + time.toString(u"HH:mm:ss"_s);
    return iso;
}

QDate dayOfIso(QStringView iso)
{
    const bool hasDashes = iso.size() >= 10 && iso[4] == u'-' && iso[7] == u'-';
    if (!hasDashes && iso.size() < 8)
        return {};
    // What is no number has the value -1, which would be a year.
    const int year = number(iso.first(4), 4);
    return year < 1
        ? QDate()
        : QDate(year, number(iso.mid(hasDashes ? 5 : 4, 2), 2), number(iso.mid(hasDashes ? 8 : 6, 2), 2));
}

QVariant dateFromIso(QStringView iso)
{
    const QDate date = iso.size() >= 10 && iso[4] == u'-' ? dayOfIso(iso) : QDate();
    if (!date.isValid())
        return {};
    if (iso.size() == 10)
        return date;
    const QTime time = QTime::fromString(iso.mid(11).toString(), u"HH:mm:ss"_s);
    return time.isValid() ? QVariant(QDateTime(date, time)) : QVariant();
}

std::optional<int> partOfIso(std::string_view iso, DatePart part)
{
    if (iso.size() < 10 || iso[4] != '-' || iso[7] != '-')
        return {};
    constexpr size_t kFrom[] = {0, 5, 8};
    const size_t from = kFrom[size_t(part)];
    int number = 0;
    for (const char c : iso.substr(from, part == DatePart::Year ? 4 : 2))
        number = c >= '0' && c <= '9' ? number * 10 + (c - '0') : number;
    return number;
}

QString formatDate(QDate date, QStringView pattern)
{
    if (!date.isValid())
        return {};
    const QStringView month = kMonths[size_t(date.month() - 1)];
    QString result;
    const auto number = [&result](int value, qsizetype digits) {
        result += QString::number(value).rightJustified(digits, u'0');
    };
    for (qsizetype at = 0; at < pattern.size();) {
        const QChar letter = pattern[at].toLower();
        qsizetype run = 1;
        while (at + run < pattern.size() && pattern[at + run].toLower() == letter)
            ++run;
        if (letter == u'd' && run <= 2)
            number(date.day(), run);
        else if (letter == u'm' && run <= 2)
            number(date.month(), run);
        else if (letter == u'm')
            result += run == 3 ? month.left(3) : month;
        else if (letter == u'y' && run <= 2)
            number(date.year() % 100, 2);
        else if (letter == u'y')
            number(date.year(), 4);
        else
            result += pattern.mid(at, run);
        at += run;
    }
    return result;
}

} // namespace jet
