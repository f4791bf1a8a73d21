#include "formats/card_file.h"

#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace formats {

namespace {

// ---- reading

/// The lines of the first card, without its frame; `take` answers false when it has heard enough.
template <class Take> void eachCardLine(QStringView text, Take take)
{
    bool inside = false;
    qsizetype at = 0;
    for (int lines = 0; at < text.size() && lines < maxCardLines; ++lines) {
        const qsizetype found = text.indexOf(u'\n', at);
        const qsizetype end = found < 0 ? text.size() : found;
        QStringView line = text.mid(at, end - at);
        at = end + 1;
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.size() > maxCardLine)
            continue;
        const bool begins = line.trimmed().compare("BEGIN:VCARD"_L1, Qt::CaseInsensitive) == 0;
        if (!inside) {
            inside = begins;
            continue;
        }
        if (begins || line.trimmed().compare("END:VCARD"_L1, Qt::CaseInsensitive) == 0 || !take(line))
            return;
    }
}

/// One line without blanks at its ends; what a damaged card has of control characters counts as blanks.
QString shownText(QStringView value)
{
    QString text = value.toString();
    for (QChar& c : text) {
        if (c.category() == QChar::Other_Control)
            c = u' ';
    }
    return text.trimmed();
}

QStringList filledParts(QStringView value)
{
    QStringList parts;
    for (const QStringView part : value.split(u';')) {
        const QString text = shownText(part);
        if (!text.isEmpty())
            parts << text;
    }
    return parts;
}

QString shownDate(QStringView value)
{
    const QString text = shownText(value);
    const QDate date = jet::dayOfIso(text);
    return date.isValid() ? jet::formatDate(date, u"dd/mmm/yyyy") : text;
}

/// "12 Park Road - Pune (MH) India": what the card has of it. Kept: the pin code is not shown.
QString shownAddress(QStringView value)
{
    const QList<QStringView> parts = value.split(u';');
    const auto part = [&parts](int number) { return shownText(parts.value(number)); };
    QStringList lines;
    for (const QString& line : {part(0), part(1), part(2)}) {
        // The word by which the cards of this program mark the work address is no part of the street.
        if (!line.isEmpty() && line != "office"_L1)
            lines << line;
    }
    QString shown = lines.join(u' ');
    if (!part(3).isEmpty())
        shown += u" - "_s + part(3);
    if (!part(4).isEmpty())
        shown += u" ("_s + part(4) + u')';
    if (!part(6).isEmpty())
        shown += u' ' + part(6);
    return shown.trimmed();
}

CardAddress addressParts(QStringView value)
{
    const QList<QStringView> parts = value.split(u';');
    const auto part = [&parts](int number) { return shownText(parts.value(number)); };
    QStringList more;
    for (const QString& line : {part(1), part(0)}) {
        if (!line.isEmpty())
            more << line;
    }
    return {part(2), more.join(u", "_s), part(3), part(4), part(5), part(6)};
}

enum class As { Text, Parts, FirstPart, Date, Address };

/// Where the value behind the start of a line goes: into one text, or to the end of several.
struct Tag {
    QStringView start;
    As as;
    QString CardFields::*text = nullptr;
    QStringList CardFields::*list = nullptr;
};

using C = CardFields;

// Kept: the web address that this program writes stands behind "URL:" and is read by no row of this table.
constexpr Tag kTags[] = {
    {u"N:", As::Parts, &C::name},
    {u"FN:", As::Text, &C::fullName},
    {u"NICKNAME:", As::Text, &C::nick},
    {u"ORG:", As::FirstPart, &C::company},
    {u"EMAIL;PREF;INTERNET:", As::Text, nullptr, &C::preferredEmails},
    {u"EMAIL;INTERNET:", As::Text, nullptr, &C::emails},
    {u"SPOUSE:", As::Text, &C::spouse},
    {u"TITLE:", As::Text, &C::jobTitle},
    {u"BDAY:", As::Date, &C::birthday},
    {u"URL;WORK:", As::Text, &C::workWeb},
    {u"TEL;WORK;VOICE:", As::Text, nullptr, &C::workPhones},
    {u"TEL;WORK;FAX:", As::Text, nullptr, &C::faxes},
    {u"TEL;HOME;VOICE:", As::Text, nullptr, &C::homePhones},
    {u"TEL;HOME;FAX:", As::Text, nullptr, &C::faxes},
    {u"TEL;CELL;VOICE:", As::Text, &C::mobile},
    {u"ADR;WORK:", As::Address, &C::workAddress},
    {u"ADR;HOME:", As::Address, &C::homeAddress},
    {u"ADR;POSTAL:", As::Address, &C::postalAddress},
};

QString shownAs(As as, QStringView value)
{
    switch (as) {
    case As::Text: return shownText(value);
    case As::Parts: return filledParts(value).join(u' ');
    case As::FirstPart: return shownText(value.left(value.indexOf(u';')));
    case As::Date: return shownDate(value);
    case As::Address: return shownAddress(value);
    }
    return {};
}

// ---- writing

QString ownAddress(const CardAddress& address)
{
    return address.line1 + u' ' + address.line2 + u';' + address.city + u';' + address.state + u';'
        + address.pin + u';' + address.country;
}

// A form without any part of a name, as of a company, has the name it is listed by.
QString enteredName(const CardValues& v)
{
    const bool nameless = QString(v.first + v.middle + v.last).trimmed().isEmpty();
    return nameless ? v.name + u';' : v.first + u' ' + v.middle + u' ' + v.last + u';';
}

/// A line end in a value would start another property.
QString onOneLine(QString value)
{
    return value.replace("\r\n"_L1, " "_L1).replace(u'\n', u' ').replace(u'\r', u' ');
}

enum class Of { Both, Contact, Entered };

struct LineRow {
    QStringView start;
    QString (*value)(const CardValues& v);
    Of of = Of::Both;
};

QString nothing(const CardValues&)
{
    return {};
}

// Kept: the name line holds the name view and the title; the scheme stands before every web address, also one
// that has its own; the last line is in mixed case.
constexpr LineRow kLines[] = {
    {u"BEGIN:VCARD", nothing},
    {u"VERSION:2.1", nothing},
    {u"N:", [](const CardValues& v) { return QString(v.nameView + u';' + v.title + u';'); }, Of::Contact},
    {u"N:", enteredName, Of::Entered},
    {u"FN:", [](const CardValues& v) { return v.name; }},
    {u"NICKNAME:", [](const CardValues& v) { return v.nick; }},
    {u"ORG:", [](const CardValues& v) { return v.company; }},
    {u"SPOUSE:", [](const CardValues& v) { return v.spouse; }},
    {u"TEL;WORK;VOICE:", [](const CardValues& v) { return v.workPhones[0]; }},
    {u"TEL;WORK;VOICE:", [](const CardValues& v) { return v.workPhones[1]; }},
    {u"TEL;WORK;VOICE:", [](const CardValues& v) { return v.workPhones[2]; }},
    {u"TEL;HOME;VOICE:", [](const CardValues& v) { return v.homePhones[0]; }},
    {u"TEL;HOME;VOICE:", [](const CardValues& v) { return v.homePhones[1]; }},
    {u"TEL;HOME;VOICE:", [](const CardValues& v) { return v.homePhones[2]; }},
    {u"TEL;CELL;VOICE:", [](const CardValues& v) { return v.mobile; }},
    {u"TEL;WORK;FAX:", [](const CardValues& v) { return v.fax; }},
    {u"ADR;WORK:;office;", [](const CardValues& v) { return ownAddress(v.work); }},
    {u"ADR;HOME:;;", [](const CardValues& v) { return ownAddress(v.home); }},
    {u"ADR;POSTAL:;;", [](const CardValues& v) { return ownAddress(v.postal); }, Of::Contact},
    {u"BDAY:", [](const CardValues& v) { return jet::formatDate(v.birthday, u"yyyymmdd"); }},
    {u"EMAIL;PREF;INTERNET:", [](const CardValues& v) { return v.email; }},
    // Kept: in the card of a contact of the book this line stands empty.
    {u"EMAIL;INTERNET:", nothing, Of::Contact},
    {u"EMAIL;INTERNET:", [](const CardValues& v) { return v.secondEmail; }, Of::Entered},
    {u"EMAIL;INTERNET:", [](const CardValues& v) { return v.workEmail; }, Of::Contact},
    {u"URL:http://", [](const CardValues& v) { return v.web; }},
    {u"End:VCARD", nothing},
};

QStringList linesOf(Of of, const CardValues& values)
{
    QStringList lines;
    for (const LineRow& row : kLines) {
        if (row.of != Of::Both && row.of != of)
            continue;
        lines << row.start.toString() + onOneLine(row.value(values));
    }
    return lines;
}

} // namespace

CardFields readCard(QStringView text)
{
    CardFields fields;
    eachCardLine(text, [&fields](QStringView line) {
        for (const Tag& tag : kTags) {
            if (!line.startsWith(tag.start))
                continue;
            const QString value = shownAs(tag.as, line.mid(tag.start.size()));
            if (tag.text == &CardFields::homeAddress)
                fields.home = addressParts(line.mid(tag.start.size()));
            if (tag.text)
                fields.*tag.text = value;
            else if (!value.isEmpty())
                fields.*tag.list << value;
            break;
        }
        return true;
    });
    return fields;
}

QString cardLabel(QStringView text, const std::function<bool(const QString&)>& namesNobody)
{
    QString label;
    eachCardLine(text, [&](QStringView line) {
        for (const QStringView start : {u"N:", u"FN:", u"NICKNAME:"}) {
            if (!line.startsWith(start))
                continue;
            const QStringView value = line.mid(start.size());
            if (!namesNobody || !namesNobody(shownText(value.left(value.indexOf(u';')))))
                label = filledParts(value).join(u' ');
        }
        return label.isEmpty();
    });
    return label;
}

QStringList contactCardLines(const CardValues& values)
{
    return linesOf(Of::Contact, values);
}

QStringList enteredCardLines(const CardValues& values)
{
    return linesOf(Of::Entered, values);
}

QStringList senderCardLines(const QString& name, const QString& email)
{
    return {u"BEGIN:VCARD"_s, u"VERSION:2.1"_s, u"N:"_s + onOneLine(name), u"FN:"_s + onOneLine(name),
        u"EMAIL;PREF;INTERNET:"_s + onOneLine(email), u"End:VCARD"_s};
}

} // namespace formats
