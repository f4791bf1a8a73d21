#include "letters/creator/letter_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

using formats::RichText;
using formats::TextParagraph;

namespace {

constexpr QStringView kIndent = u"\t\t";
// What the head of a letter to several may hold beside its markers, such as a date.
constexpr qsizetype kLongestHead = 20;
constexpr QStringView kDear = u"Dear ";

struct Marker {
    QStringView line;
    QString (*value)(const Recipient&);
};
// Kept: the marker of the first address line is two lines.
constexpr std::array kMarkers{
    Marker{u"<<Person Name>>", [](const Recipient& to) { return to.name; }},
    Marker{u"<<", nullptr},
    Marker{u"Address1>>", [](const Recipient& to) { return to.address.line1; }},
    Marker{u"<<    Address2>>", [](const Recipient& to) { return to.address.line2; }},
    Marker{u"<<   City>>", [](const Recipient& to) { return to.address.city; }},
    Marker{u"<<   State>>", [](const Recipient& to) { return to.address.state; }},
    Marker{u"<<Country>>", [](const Recipient& to) { return to.address.country; }},
    Marker{u"<<Pin>>", [](const Recipient& to) { return to.address.pin; }},
};

QString salutationLine(const Recipient& recipient)
{
    return u"Dear   \t"_s + recipient.salutation;
}

QString groupSalutationLine()
{
    return u"Dear \t"_s;
}

struct HeadPlace {
    qsizetype address; ///< lines that are as they were composed
    qsizetype greeting; ///< the line that speaks to the reader; -1 without one
};

/// A name in the address may begin as the greeting does, so that is looked for below the address.
HeadPlace headIn(const RichText& letter, const RichText& head)
{
    const auto& lines = letter.paragraphs;
    const qsizetype last = std::min(lines.size(), head.paragraphs.size() - 1);
    HeadPlace place{0, -1};
    while (
        place.address < last && lines.at(place.address).plain() == head.paragraphs.at(place.address).plain())
        ++place.address;
    const qsizetype end = std::min(lines.size(), place.address + kLongestHead);
    for (qsizetype at = place.address; at < end && place.greeting < 0; ++at) {
        if (lines.at(at).plain().startsWith(kDear))
            place.greeting = at;
    }
    return place;
}

/// A line of the head to which a person has added something beside its markers.
QString withValues(const QString& line, const Recipient& recipient)
{
    QString filled;
    for (qsizetype at = 0; at < line.size();) {
        const auto marker = std::find_if(kMarkers.begin(), kMarkers.end(), [&](const Marker& candidate) {
            return candidate.value && candidate.line.startsWith(u"<<")
                && QStringView(line).sliced(at).startsWith(candidate.line);
        });
        const bool isMarker = marker != kMarkers.end();
        filled += isMarker ? marker->value(recipient) : line.mid(at, 1);
        at += isMarker ? marker->line.size() : 1;
    }
    return filled;
}

/// A line of the text; more than one for a value that holds several.
void addLines(RichText& text, const QString& value, QStringView before = {})
{
    for (const QString& line : value.split(u'\n'))
        text.append(RichText::fromPlain(before.toString() + line));
}

void addIndented(RichText& text, const QString& line)
{
    if (!line.trimmed().isEmpty())
        addLines(text, line, kIndent);
}

/// Another text in place of a paragraph, which looks as that one did where it begins.
QList<TextParagraph> inLooksOf(const TextParagraph& model, const QString& text)
{
    QList<TextParagraph> paragraphs = RichText::fromPlain(text).paragraphs;
    for (TextParagraph& paragraph : paragraphs) {
        paragraph.align = model.align;
        paragraph.list = model.list;
        paragraph.indent = model.indent;
        for (formats::TextRun& run : paragraph.runs)
            run.style = model.runs.isEmpty() ? formats::CharStyle() : model.runs.constFirst().style;
    }
    return paragraphs;
}

} // namespace

Recipient recipientOf(const jet::Recordset& contact, AddressType type)
{
    const QString name = contact.textOrEmpty(u"Name");
    return {.id = contact.number(u"id"),
        .name = name,
        .salutation = name,
        .address = letterAddress(contact, type),
        .category = contact.textOrEmpty(u"category1")};
}

RichText letterHead(const Recipient& recipient)
{
    RichText head;
    const LetterAddress& address = recipient.address;
    for (const QString& line : {recipient.name, address.line1, address.line2, address.city, address.state,
             address.country, address.pin}) {
        if (!line.trimmed().isEmpty())
            addLines(head, line);
    }
    addLines(head, salutationLine(recipient));
    return head;
}

RichText groupHead()
{
    RichText head;
    for (const Marker& marker : kMarkers)
        addLines(head, marker.line.toString());
    addLines(head, groupSalutationLine());
    return head;
}

RichText composedLetter(const RichText& head, const LetterParts& parts)
{
    RichText letter = head;
    for (const QString& opening : parts.openings)
        addIndented(letter, opening);
    letter.append(parts.body);
    addLines(letter, {});
    for (const QString& closing : parts.closings)
        addIndented(letter, closing);
    addIndented(letter, parts.ending);
    addIndented(letter, parts.signature);
    return letter;
}

RichText composedLetter(const Recipient& recipient, const LetterParts& parts)
{
    return composedLetter(letterHead(recipient), parts);
}

std::optional<RichText> withOtherHead(
    const RichText& letter, const RichText& oldHead, const RichText& newHead)
{
    const auto& before = oldHead.paragraphs;
    const bool isThere = letter.paragraphs.size() >= before.size()
        && std::equal(before.begin(), before.end(), letter.paragraphs.begin(),
            [](const TextParagraph& a, const TextParagraph& b) { return a.plain() == b.plain(); });
    if (!isThere || before.isEmpty() || newHead.paragraphs.isEmpty())
        return std::nullopt;
    RichText changed;
    const qsizetype last = newHead.paragraphs.size() - 1;
    for (qsizetype line = 0; line <= last; ++line) {
        const TextParagraph& model = letter.paragraphs.at(line == last ? before.size() - 1 : 0);
        changed.paragraphs << inLooksOf(model, newHead.paragraphs.at(line).plain());
    }
    changed.paragraphs << letter.paragraphs.mid(before.size());
    return changed;
}

RichText mergedLetter(const RichText& groupLetter, const Recipient& recipient)
{
    RichText merged;
    size_t next = 0; // markers stand in their order, each once
    qsizetype at = 0;
    const auto& lines = groupLetter.paragraphs;
    const qsizetype greeting = headIn(groupLetter, {}).greeting;
    const qsizetype end = greeting < 0 ? std::min(lines.size(), kLongestHead) : greeting + 1;
    for (; at < end; ++at) {
        const QString line = lines.at(at).plain();
        if (line.trimmed() == u"Dear") {
            merged.paragraphs << inLooksOf(lines.at(at), salutationLine(recipient));
            ++at;
            break;
        }
        const auto marker = std::find_if(kMarkers.begin() + next, kMarkers.end(),
            [&line](const Marker& candidate) { return line == candidate.line; });
        if (marker == kMarkers.end()) {
            const QString filled = at <= greeting ? withValues(line, recipient) : line;
            merged.paragraphs << (filled == line ? QList{lines.at(at)} : inLooksOf(lines.at(at), filled));
            continue;
        }
        next = size_t(marker - kMarkers.begin()) + 1;
        const QString value = marker->value ? marker->value(recipient) : QString();
        if (!value.trimmed().isEmpty())
            merged.paragraphs << inLooksOf(lines.at(at), value);
    }
    merged.paragraphs << lines.mid(at);
    return merged;
}

RichText belowHead(const RichText& letter, const RichText& head)
{
    const auto [address, greeting] = headIn(letter, head);
    return {.paragraphs = letter.paragraphs.mid(greeting < 0 ? address : greeting + 1)};
}

std::optional<QString> spokenTo(const RichText& letter, const RichText& head)
{
    const qsizetype greeting = headIn(letter, head).greeting;
    if (greeting < 0)
        return std::nullopt;
    return letter.paragraphs.at(greeting).plain().mid(kDear.size()).trimmed();
}

void readFromMerged(const RichText& merged, Recipient& recipient, LetterParts& parts)
{
    const auto& lines = merged.paragraphs;
    const QString start = salutationLine({});
    for (qsizetype at = 0, end = std::min(lines.size(), kLongestHead); at < end; ++at) {
        if (const QString line = lines.at(at).plain(); line.startsWith(start)) {
            recipient.salutation = line.mid(start.size());
            break;
        }
    }
    const qsizetype last = lines.size() - 1;
    const bool isSigned = last > 0 && lines.at(last - 1).plain() == kIndent.toString() + parts.ending;
    if (isSigned && lines.at(last).plain().startsWith(kIndent))
        parts.signature = lines.at(last).plain().mid(kIndent.size());
    if (!merged.isFormatted() || composedLetter(recipient, parts).plain() != merged.plain())
        return;
    const qsizetype tail = composedLetter(
        RichText(), {.closings = parts.closings, .ending = parts.ending, .signature = parts.signature})
                               .paragraphs.size();
    const qsizetype body = parts.body.paragraphs.size();
    parts.body.paragraphs = lines.mid(lines.size() - tail - body, body);
}

RichText openingsAndBody(const LetterParts& parts)
{
    RichText text;
    for (const QString& opening : parts.openings) {
        if (!opening.trimmed().isEmpty())
            addLines(text, opening);
    }
    text.append(parts.body);
    return text;
}

QString previewBody(const LetterParts& parts)
{
    QString body;
    for (const QString& opening : parts.openings)
        body += opening + u'\n';
    return body + parts.body.plain() + u'\n';
}

QString familyNames(const jet::Recordset& contact)
{
    QStringList names;
    for (const QStringView column : {u"Spouse", u"Kid1", u"Kid2", u"Kid3"}) {
        const QString name = contact.textOrEmpty(column).trimmed();
        if (!name.isEmpty())
            names << name;
    }
    if (names.isEmpty())
        return u"all"_s;
    const QString last = names.takeLast();
    return (names.isEmpty() ? QString() : names.join(u", "_s) + u" & "_s) + last + u'.';
}

QString familyGreeting(const QString& names)
{
    return u"  Say my Hello to "_s + names;
}

} // namespace letters
