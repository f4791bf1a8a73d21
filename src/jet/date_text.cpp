#include "jet/date_text.h"

#include <QDateTime>

#include <array>
#include <vector>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr std::array<QStringView, 12> kMonths{u"January", u"February", u"March", u"April", u"May", u"June",
    u"July", u"August", u"September", u"October", u"November", u"December"};

/// 1 to 12 for a month's English name or its first three letters; 0 for anything else.
int monthOfName(QStringView name)
{
    if (name.size() < 3)
        return 0;
    for (int month = 1; month <= 12; ++month) {
        const QStringView full = kMonths[size_t(month - 1)];
        if (name.compare(full, Qt::CaseInsensitive) == 0
            || name.compare(full.left(3), Qt::CaseInsensitive) == 0)
            return month;
    }
    return name.compare(u"Sept", Qt::CaseInsensitive) == 0 ? 9 : 0;
}

struct Piece {
    QStringView text;
    int number = -1; ///< -1 for a word
};

std::optional<std::vector<Piece>> split(QStringView text)
{
    std::vector<Piece> pieces;
    qsizetype at = 0;
    while (at < text.size()) {
        const QChar c = text[at];
        const qsizetype from = at;
        if (c >= u'0' && c <= u'9') {
            while (at < text.size() && text[at] >= u'0' && text[at] <= u'9')
                ++at;
            if (at - from > 4)
                return {};
            pieces.push_back({text.mid(from, at - from), text.mid(from, at - from).toInt()});
        } else if (c.isLetter()) {
            while (at < text.size() && text[at].isLetter())
                ++at;
            pieces.push_back({text.mid(from, at - from), -1});
        } else if (c == u' ' || c == u'-' || c == u'/' || c == u',' || c == u'.') {
            ++at;
        } else {
            return {};
        }
        if (pieces.size() > 3)
            return {};
    }
    return pieces;
}

int fullYear(const Piece& piece)
{
    if (piece.text.size() > 2)
        return piece.number;
    return piece.number + (piece.number <= 29 ? 2000 : 1900);
}

QDate dateOf(QStringView text)
{
    const auto pieces = split(text);
    if (!pieces || pieces->size() != 3)
        return {};
    const auto& [a, b, c] = std::tie((*pieces)[0], (*pieces)[1], (*pieces)[2]);
    const int wordB = b.number < 0 ? monthOfName(b.text) : 0;
    const int wordA = a.number < 0 ? monthOfName(a.text) : 0;
    if (c.number < 0)
        return {};
    if (wordB > 0 && a.number >= 0)
        return a.text.size() > 2 ? QDate(a.number, wordB, c.number) : QDate(fullYear(c), wordB, a.number);
    if (wordA > 0 && b.number >= 0)
        return QDate(fullYear(c), wordA, b.number);
    if (a.number < 0 || b.number < 0)
        return {};
    if (a.text.size() > 2)
        return QDate(a.number, b.number, c.number);
    if (a.number > 12)
        return QDate(fullYear(c), b.number, a.number);
    return QDate(fullYear(c), a.number, b.number);
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
    const QDate date = dateOf(text);
    if (!date.isValid() || date.year() < 100 || date.year() > 9999)
        return {};
    return isoDate(date, time);
}

QString isoDate(QDate date, QTime time)
{
    QString iso = u"%1-%2-%3"_s.arg(date.year(), 4, 10, QChar(u'0'))
                      .arg(date.month(), 2, 10, QChar(u'0'))
                      .arg(date.day(), 2, 10, QChar(u'0'));
    if (time.isValid() && (time != QTime(0, 0) || date == QDate(1899, 12, 30)))
        iso += u' ' + time.toString(u"HH:mm:ss"_s);
    return iso;
}

QVariant dateFromIso(QStringView iso)
{
    if (iso.size() < 10 || iso[4] != u'-' || iso[7] != u'-')
        return {};
    const QDate date(iso.mid(0, 4).toInt(), iso.mid(5, 2).toInt(), iso.mid(8, 2).toInt());
    if (!date.isValid())
        return {};
    if (iso.size() == 10)
        return date;
    const QTime time = QTime::fromString(iso.mid(11).toString(), u"HH:mm:ss"_s);
    return time.isValid() ? QVariant(QDateTime(date, time)) : QVariant();
}

QString formatIsoDate(QStringView iso, QStringView pattern)
{
    const QVariant value = dateFromIso(iso);
    const QDate date = value.toDate();
    if (!date.isValid())
        return {};
    QString result;
    for (qsizetype at = 0; at < pattern.size();) {
        const QChar letter = pattern[at].toLower();
        qsizetype run = 1;
        while (at + run < pattern.size() && pattern[at + run].toLower() == letter)
            ++run;
        const QStringView month = kMonths[size_t(date.month() - 1)];
        if (letter == u'd' && run <= 2)
            result += u"%1"_s.arg(date.day(), int(run), 10, QChar(u'0'));
        else if (letter == u'm' && run <= 2)
            result += u"%1"_s.arg(date.month(), int(run), 10, QChar(u'0'));
        else if (letter == u'm')
            result += run == 3 ? month.left(3) : month;
        else if (letter == u'y')
            result += run <= 2 ? u"%1"_s.arg(date.year() % 100, 2, 10, QChar(u'0'))
                               : QString::number(date.year());
        else
            result += pattern.mid(at, run);
        at += run;
    }
    return result;
}

} // namespace jet
