#include "platform/contact_card.h"

#include <algorithm>
#include <array>

#include "formats/vcard_lines.h"
#include "jet/date_text.h"
#include "platform/cp1252.h"

using namespace Qt::StringLiterals;
using formats::VCardLine;

namespace platform {

namespace {

constexpr auto keyName = "X-ORVANE-KEY"_L1;
constexpr QStringView slotParameter = u"X-ORVANE-SLOT";

/// One line of a card that this program knows. Lines of one name and kind are told apart by the slot number,
/// written as a parameter from the second on, so that a blank first number doesn't make the second one the
/// first.
struct Slot {
    const char16_t* name;
    const char16_t* types; ///< of a new line
    bool (*fits)(const QStringList& types);
    int number;
    /// The value for the contact; parts of the old value that this program doesn't know are kept in it.
    QString (*compose)(const MailContact& contact, const QString& old);
    void (*take)(MailContact& contact, const QString& value);
};

enum class Phone { Home, Work, Mobile, Fax, Unknown };

Phone phoneKind(const QStringList& types)
{
    for (const auto& foreign :
        {"PAGER"_L1, "CAR"_L1, "VIDEO"_L1, "BBS"_L1, "MODEM"_L1, "ISDN"_L1, "PCS"_L1}) {
        if (types.contains(foreign))
            return Phone::Unknown;
    }
    if (types.contains("FAX"_L1))
        return types.contains("HOME"_L1) ? Phone::Unknown : Phone::Fax;
    if (types.contains("CELL"_L1))
        return Phone::Mobile;
    return types.contains("WORK"_L1) ? Phone::Work : Phone::Home;
}

bool anyType(const QStringList&)
{
    return true;
}

bool isHome(const QStringList& types)
{
    return types.contains("HOME"_L1);
}

bool isWork(const QStringList& types)
{
    return !isHome(types) && types.contains("WORK"_L1);
}

bool isNeither(const QStringList& types)
{
    return !isHome(types) && !isWork(types);
}

bool isNotWork(const QStringList& types)
{
    return !isWork(types);
}

template <Phone kind> bool isPhone(const QStringList& types)
{
    return phoneKind(types) == kind;
}

/// The parts of a structured value, filled up to that many.
QStringList partsOf(const QString& value, int count)
{
    QStringList parts = formats::splitVCardValue(value, u';');
    while (parts.size() < count)
        parts << QString();
    return parts;
}

template <QString MailContact::*field>
constexpr Slot text(const char16_t* name, const char16_t* types = u"",
    bool (*fits)(const QStringList&) = anyType, int number = 1)
{
    return {name, types, fits, number,
        [](const MailContact& contact, const QString&) { return formats::escapeVCardText(contact.*field); },
        [](MailContact& contact, const QString& value) {
            contact.*field = formats::unescapeVCardText(value);
        }};
}

template <QString MailContact::*field, Phone kind> constexpr Slot phone(const char16_t* types, int number = 1)
{
    return {u"TEL", types, isPhone<kind>, number,
        [](const MailContact& contact, const QString&) { return formats::escapeVCardText(contact.*field); },
        [](MailContact& contact, const QString& value) {
            contact.*field = formats::unescapeVCardText(value.startsWith("tel:"_L1) ? value.mid(4) : value);
        }};
}

template <QDate MailContact::*field> constexpr Slot date(const char16_t* name)
{
    return {name, u"", anyType, 1,
        [](const MailContact& contact, const QString&) {
            return jet::formatDate(contact.*field, u"yyyy-mm-dd");
        },
        [](MailContact& contact, const QString& value) { contact.*field = jet::dayOfIso(value); }};
}

template <MailAddress MailContact::*field>
constexpr Slot address(const char16_t* types, bool (*fits)(const QStringList&))
{
    return {u"ADR", types, fits, 1,
        [](const MailContact& contact, const QString& old) {
            const MailAddress& from = contact.*field;
            const QString street
                = from.street2.isEmpty() ? from.street1 : from.street1 + u'\n' + from.street2;
            QStringList parts = partsOf(old, 7);
            int part = 2;
            for (const QString& value : {street, from.city, from.state, from.pin, from.country})
                parts[part++] = formats::escapeVCardText(value);
            const bool blank
                = std::all_of(parts.begin(), parts.end(), [](const QString& p) { return p.isEmpty(); });
            return blank ? QString() : parts.join(u';');
        },
        [](MailContact& contact, const QString& value) {
            const QStringList parts = partsOf(value, 7);
            const QString street = formats::unescapeVCardText(parts[2]);
            contact.*field = {street.section(u'\n', 0, 0), street.section(u'\n', 1).replace(u'\n', u' '),
                formats::unescapeVCardText(parts[3]), formats::unescapeVCardText(parts[4]),
                formats::unescapeVCardText(parts[5]), formats::unescapeVCardText(parts[6])};
        }};
}

constexpr Slot personName{u"N", u"", anyType, 1,
    [](const MailContact& contact, const QString& old) {
        QStringList parts = partsOf(old, 5);
        int part = 0;
        for (const QString& value : {contact.last, contact.first, contact.middle, contact.title})
            parts[part++] = formats::escapeVCardText(value);
        return parts.join(u';');
    },
    [](MailContact& contact, const QString& value) {
        const QStringList parts = partsOf(value, 5);
        contact.last = formats::unescapeVCardText(parts[0]);
        contact.first = formats::unescapeVCardText(parts[1]);
        contact.middle = formats::unescapeVCardText(parts[2]);
        contact.title = formats::unescapeVCardText(parts[3]);
    }};

// A card must have this line, so what stands for a missing name is the next best that the contact has.
constexpr Slot shownName{u"FN", u"", anyType, 1,
    [](const MailContact& contact, const QString&) {
        const QString person = QString(contact.first + u' ' + contact.last).trimmed();
        for (const QString& name :
            {contact.fullName, contact.fileAs, person, contact.company, contact.email1}) {
            if (!name.isEmpty())
                return formats::escapeVCardText(name);
        }
        return u"?"_s;
    },
    [](MailContact& contact, const QString& value) { contact.fullName = formats::unescapeVCardText(value); }};

constexpr Slot organisation{u"ORG", u"", anyType, 1,
    [](const MailContact& contact, const QString& old) {
        QStringList parts = partsOf(old, 1);
        parts[0] = formats::escapeVCardText(contact.company);
        return parts.join(u';');
    },
    [](MailContact& contact, const QString& value) {
        contact.company = formats::unescapeVCardText(partsOf(value, 1).first());
    }};

constexpr Slot categories{u"CATEGORIES", u"", anyType, 1,
    [](const MailContact& contact, const QString&) {
        QStringList words = contact.categories.split(u',');
        for (QString& word : words)
            word = formats::escapeVCardText(word);
        return words.join(u',');
    },
    [](MailContact& contact, const QString& value) {
        QStringList words = formats::splitVCardValue(value, u',');
        for (QString& word : words)
            word = formats::unescapeVCardText(word);
        contact.categories = words.join(u',');
    }};

using C = MailContact;

// The file-as, spouse and anniversary lines have the names that the address books of this desktop gave them.
constexpr std::array slots{
    personName,
    shownName,
    text<&C::fileAs>(u"X-EVOLUTION-FILE-AS"),
    text<&C::nick>(u"NICKNAME"),
    organisation,
    text<&C::jobTitle>(u"TITLE"),
    categories,
    address<&C::home>(u"HOME", isHome),
    address<&C::work>(u"WORK", isWork),
    address<&C::other>(u"POSTAL", isNeither),
    phone<&C::homePhone1, Phone::Home>(u"HOME,VOICE"),
    phone<&C::homePhone2, Phone::Home>(u"HOME,VOICE", 2),
    phone<&C::homePhone3, Phone::Home>(u"HOME,VOICE", 3),
    phone<&C::workPhone1, Phone::Work>(u"WORK,VOICE"),
    phone<&C::workPhone2, Phone::Work>(u"WORK,VOICE", 2),
    phone<&C::workPhone3, Phone::Work>(u"WORK,VOICE", 3),
    phone<&C::mobile, Phone::Mobile>(u"CELL"),
    phone<&C::fax, Phone::Fax>(u"WORK,FAX"),
    text<&C::email1>(u"EMAIL", u"INTERNET"),
    text<&C::email2>(u"EMAIL", u"INTERNET", anyType, 2),
    text<&C::email3>(u"EMAIL", u"INTERNET", anyType, 3),
    text<&C::homeWeb>(u"URL", u"HOME", isNotWork),
    text<&C::workWeb>(u"URL", u"WORK", isWork),
    date<&C::birthday>(u"BDAY"),
    date<&C::anniversary>(u"X-EVOLUTION-ANNIVERSARY"),
    text<&C::spouse>(u"X-EVOLUTION-SPOUSE"),
    text<&C::note>(u"NOTE"),
    text<&C::alternateTitle>(u"X-ORVANE-ALTERNATE-TITLE"),
    text<&C::kids>(u"X-ORVANE-KIDS"),
    text<&C::hobby>(u"X-ORVANE-HOBBY"),
    text<&C::user1>(u"X-ORVANE-USER1"),
    text<&C::user2>(u"X-ORVANE-USER2"),
    text<&C::user3>(u"X-ORVANE-USER3"),
    text<&C::user4>(u"X-ORVANE-USER4"),
};

/// A known line of a card, parsed, with its slot.
struct KnownLine {
    qsizetype line;
    const Slot* slot;
    VCardLine parsed;
};

std::vector<KnownLine> knownLines(const QStringList& lines)
{
    std::vector<KnownLine> candidates;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        std::optional<VCardLine> parsed = formats::parseVCardLine(lines[i]);
        // An encoded value isn't ours to read, so it stays as a line that we don't know.
        if (parsed && parsed->parameter(u"ENCODING").isEmpty())
            candidates.push_back({i, nullptr, std::move(*parsed)});
    }
    std::array<bool, slots.size()> taken{};
    const auto fill = [&candidates, &taken](bool numbered) {
        for (KnownLine& candidate : candidates) {
            const int number = candidate.parsed.parameter(slotParameter).toInt();
            if (candidate.slot != nullptr || (numbered && number == 0))
                continue;
            for (std::size_t s = 0; s < slots.size() && candidate.slot == nullptr; ++s) {
                if (!taken[s] && candidate.parsed.name == QStringView(slots[s].name)
                    && (!numbered || slots[s].number == number) && slots[s].fits(candidate.parsed.types())) {
                    candidate.slot = &slots[s];
                    taken[s] = true;
                }
            }
        }
    };
    fill(true);
    fill(false);
    std::erase_if(candidates, [](const KnownLine& line) { return line.slot == nullptr; });
    return candidates;
}

QString newLine(const Slot& slot, const QString& value)
{
    VCardLine line{{}, QString::fromUtf16(slot.name), {}, value};
    const QString types = QString::fromUtf16(slot.types);
    if (!types.isEmpty())
        line.parameters.push_back({u"TYPE"_s, types.split(u',')});
    if (slot.number > 1)
        line.parameters.push_back({slotParameter.toString(), {QString::number(slot.number)}});
    return formats::writeVCardLine(line);
}

bool isLine(const QString& line, QLatin1StringView text)
{
    return line.trimmed().compare(text, Qt::CaseInsensitive) == 0;
}

} // namespace

ContactCard::ContactCard(const QString& uid)
    : m_lines({u"VERSION:3.0"_s, u"UID:"_s + formats::escapeVCardText(uid)})
{
}

std::optional<ContactCard> ContactCard::parse(const QByteArray& bytes)
{
    // Were it kept as damaged UTF-8, a rewrite would lose the characters of lines that aren't ours.
    QStringList lines = formats::unfoldVCard(fromUtf8OrCp1252(bytes));
    if (lines.size() < 3 || !isLine(lines.first(), "BEGIN:VCARD"_L1) || !isLine(lines.last(), "END:VCARD"_L1))
        return std::nullopt;
    lines.removeFirst();
    lines.removeLast();
    // With a second card in the file, whose lines would be mixed up with the first, it isn't one of ours.
    const auto isFrame = [](const QString& line) {
        return line.startsWith("BEGIN:"_L1, Qt::CaseInsensitive)
            || line.startsWith("END:"_L1, Qt::CaseInsensitive);
    };
    const auto isVersion = [](const QString& line) {
        return isLine(line, "VERSION:3.0"_L1) || isLine(line, "VERSION:4.0"_L1);
    };
    if (std::any_of(lines.begin(), lines.end(), isFrame)
        || std::none_of(lines.begin(), lines.end(), isVersion))
        return std::nullopt;
    ContactCard card;
    card.m_lines = std::move(lines);
    return card;
}

QString ContactCard::key() const
{
    QString uid;
    for (const QString& line : m_lines) {
        const bool mayBe
            = line.startsWith(keyName, Qt::CaseInsensitive) || line.startsWith("UID"_L1, Qt::CaseInsensitive);
        const std::optional<VCardLine> parsed = mayBe ? formats::parseVCardLine(line) : std::nullopt;
        if (parsed && parsed->name == keyName)
            return formats::unescapeVCardText(parsed->value);
        if (parsed && parsed->name == "UID"_L1)
            uid = formats::unescapeVCardText(parsed->value);
    }
    // Another program may have dropped the line that it doesn't know, but not the identity.
    const QStringView number = QStringView(uid).chopped(uid.endsWith("OV"_L1) ? 2 : uid.size());
    const bool isOurs
        = !number.isEmpty() && std::all_of(number.begin(), number.end(), [](QChar c) { return c.isDigit(); });
    return isOurs ? uid : QString();
}

void ContactCard::setKey(const QString& key)
{
    m_lines.removeIf([](const QString& line) {
        const std::optional<VCardLine> parsed
            = line.startsWith(keyName, Qt::CaseInsensitive) ? formats::parseVCardLine(line) : std::nullopt;
        return parsed && parsed->name == keyName;
    });
    if (!key.isEmpty())
        m_lines << keyName + u':' + formats::escapeVCardText(key);
}

MailContact ContactCard::contact() const
{
    MailContact contact;
    contact.key = key();
    for (const KnownLine& known : knownLines(m_lines))
        known.slot->take(contact, known.parsed.value);
    return contact;
}

void ContactCard::setContact(const MailContact& contact)
{
    QStringList lines = m_lines;
    std::vector<const Slot*> present;
    for (KnownLine& known : knownLines(m_lines)) {
        const Slot& slot = *known.slot;
        present.push_back(known.slot);
        const QString old = known.parsed.value;
        MailContact before;
        slot.take(before, old);
        known.parsed.value = slot.compose(contact, old);
        if (known.parsed.value == slot.compose(before, old))
            continue;
        // The value is plain text now, whatever it was.
        std::erase_if(
            known.parsed.parameters, [](const formats::VCardParameter& p) { return p.name == "VALUE"_L1; });
        lines[known.line] = known.parsed.value.isEmpty() ? QString() : formats::writeVCardLine(known.parsed);
    }
    lines.removeAll(QString());
    for (const Slot& slot : slots) {
        if (std::find(present.begin(), present.end(), &slot) != present.end())
            continue;
        const QString value = slot.compose(contact, {});
        if (!value.isEmpty())
            lines << newLine(slot, value);
    }
    m_lines = lines;
}

QByteArray ContactCard::bytes() const
{
    QByteArray bytes = "BEGIN:VCARD\r\n";
    for (const QString& line : m_lines)
        bytes += formats::foldVCardLine(line);
    return bytes + "END:VCARD\r\n";
}

} // namespace platform
