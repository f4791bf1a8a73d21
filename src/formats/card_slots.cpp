#include "formats/card_slots.h"

#include "formats/card_words.h"
#include "jet/date_text.h"

#include <algorithm>
#include <initializer_list>
#include <span>

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("formats", text);
}

constexpr QStringView kNote = u"memo1";
/// Where the value stands in the book that wrote the card.
constexpr QStringView kColumnParameter = u"X-ORVANE-COLUMN";

constexpr QStringView kHomePhones[] = {u"H_Ph1", u"h_ph2", u"h_ph3"};
constexpr QStringView kWorkPhones[] = {u"B_Ph1", u"B_Ph2", u"B_ph3", u"w_Ph1", u"w_Ph2", u"w_ph3"};
// In the cards of this program the office is the second work address, and so are its numbers.
constexpr QStringView kOwnWorkPhones[] = {u"w_Ph1", u"w_Ph2", u"w_ph3", u"B_Ph1", u"B_Ph2", u"B_ph3"};
constexpr QStringView kMobile[] = {u"Mobile"};
constexpr QStringView kFax[] = {u"fax"};
constexpr QStringView kHomeMail[] = {u"H_email1", u"h_email2"};
constexpr QStringView kWorkMail[] = {u"b_email1", u"b_email2", u"w_email1", u"W_Email2"};
constexpr QStringView kAnyMail[]
    = {u"H_email1", u"h_email2", u"b_email1", u"b_email2", u"w_email1", u"W_Email2"};
constexpr QStringView kHomeWeb[] = {u"h_web"};
constexpr QStringView kWorkWeb[] = {u"B_Web", u"W_web"};
constexpr QStringView kAnyWeb[] = {u"h_web", u"B_Web", u"W_web"};
constexpr QStringView kKids[] = {u"kid1", u"kid2", u"kid3"};

using Slots = std::span<const QStringView>;

/// Numbers that are for no conversation; they would be rung up in vain in a column of telephones.
constexpr QLatin1StringView kOtherNumbers[]
    = {"PAGER"_L1, "VIDEO"_L1, "BBS"_L1, "MODEM"_L1, "ISDN"_L1, "TEXTPHONE"_L1, "TLX"_L1, "X-TELEX"_L1};

/// The columns of the three addresses: two lines of the street, city, state, pin, country.
constexpr std::size_t kAddressParts = 6;
struct AddressSet {
    QLatin1StringView name;
    QStringView columns[kAddressParts];
};
constexpr AddressSet kHomeAddress{
    "h_"_L1, {u"h_add1", u"h_add2", u"h_city", u"h_state", u"h_pin", u"h_country"}};
constexpr AddressSet kWorkAddress{
    "b_"_L1, {u"b_add1", u"b_add2", u"b_city", u"b_state", u"b_pin", u"b_country"}};
constexpr AddressSet kSecondWorkAddress{
    "w_"_L1, {u"w_add1", u"w_add2", u"w_city", u"w_State", u"w_pin", u"w_country"}};
constexpr const AddressSet* kAddresses[] = {&kHomeAddress, &kWorkAddress, &kSecondWorkAddress};

template <class List> bool isIn(const List& list, const QString& text)
{
    return std::any_of(std::begin(list), std::end(list), [&](const auto& one) { return text == one; });
}

class Mapper {
public:
    Mapper(const ForeignCard& card, const CardColumns& columns)
        : m_card(card)
        , m_columns(columns)
    {
    }

    CardContact map()
    {
        findLabels();
        m_isOwnCard = isOwnCard();
        for (const ForeignProperty& property : m_card.properties)
            take(property);
        // What has no type takes the places that those with one have left.
        for (const auto& [property, places] : m_untyped)
            place(*property, m_card.text(*property), places);
        noteUnusedLabels();
        finishNote();
        return std::move(m_contact);
    }

private:
    using P = ForeignProperty;

    void findLabels();
    bool isOwnCard() const;
    void take(const P& property);
    bool takeOwn(const P& property);
    bool takeOwnAddress(const P& property, const AddressSet& address);
    bool putAddress(const AddressSet& address, std::span<const QString> texts);
    void takeKnown(const P& property, const QString& text);
    void takeName(const P& property);
    void takeNickNames(const P& property, const QString& text);
    void takeOrganisation(const P& property);
    void takePhone(const P& property, QString text);
    void takeMail(const P& property, const QString& text);
    void takeWeb(const P& property, QString text);
    void takeAddress(const P& property);
    void takeDate(const P& property, QStringView column, const QString& text);
    void takeGender(const P& property, const QString& text);
    void takeRelated(const P& property, const QString& text);
    void takeCategories(const P& property);
    void takeBinary(const P& property);
    void noteUnusedLabels();
    void finishNote();

    QString customLabel(const P& property) const;
    QString labelOf(const P& property) const;
    bool put(const P& property, QStringView column, const QString& text);
    void place(const P& property, const QString& text, Slots places);
    bool isFree(QStringView column) const { return m_contact.text(column).isEmpty(); }
    void note(const QString& label, const QString& text);
    void note(const P& property, const QString& text) { note(labelOf(property), text); }

    const ForeignCard& m_card;
    const CardColumns& m_columns;
    CardContact m_contact;
    QHash<QString, QString> m_labels; ///< by group
    QSet<QString> m_usedGroups;
    std::vector<std::pair<const P*, Slots>> m_untyped;
    QStringList m_notes; ///< whole texts
    QStringList m_lines; ///< "Label: value"
    bool m_isOwnCard = false;
    bool m_hasLabels = false;
};

void Mapper::findLabels()
{
    for (const P& property : m_card.properties) {
        if (property.name != "X-ABLABEL"_L1 || property.depth > 0)
            continue;
        m_hasLabels = true;
        if (!property.group.isEmpty())
            m_labels.insert(property.group, plainLabel(m_card.text(property)));
    }
}

// The cards that this program writes file by file have the view of the name where others have the name.
bool Mapper::isOwnCard() const
{
    return m_card.version == "2.1"_L1
        && std::any_of(m_card.properties.begin(), m_card.properties.end(), [this](const P& property) {
               return property.name == "N"_L1 && property.depth == 0
                   && m_columns.nameViews().contains(m_card.parts(property, u';').constFirst());
           });
}

void Mapper::take(const P& property)
{
    if (property.depth > 0) {
        if (property.isBinary)
            m_contact.left << translated("a picture of the card within the card");
        else
            note(u"Agent - "_s + labelOf(property), m_card.text(property));
        return;
    }
    if (property.isUnread)
        return note(u"Line that is no property"_s, property.value);
    if (property.isTooLong)
        m_contact.left << (property.isBinary
                ? translated("%1: too large").arg(labelOf(property))
                : translated("%1: the end of a text that is too long").arg(labelOf(property)));
    if (property.isBinary)
        return takeBinary(property);
    if (property.name == "X-ABLABEL"_L1)
        return;
    if (property.value.isEmpty() || takeOwn(property))
        return;
    const QString text = m_card.text(property).trimmed();
    if (!text.isEmpty())
        takeKnown(property, text);
    // Parts of an address that stand beside it.
    for (const QStringView extra : {u"LABEL", u"GEO", u"TZ"}) {
        const QString value = property.parameter(extra);
        if (!value.isEmpty() && property.name == "ADR"_L1)
            note(labelOf(property) + u", "_s + extra.toString().toLower(), unescapeVCardText(value));
    }
}

bool Mapper::takeOwnAddress(const P& property, const AddressSet& address)
{
    const QStringList parts = splitVCardValue(property.value, u';');
    const QStringList street = splitVCardValue(parts.value(2), u',');
    const QString values[kAddressParts]
        = {street.value(0), street.value(1), parts.value(3), parts.value(4), parts.value(5), parts.value(6)};
    for (std::size_t part = 0; part < kAddressParts; ++part)
        m_contact.set(address.columns[part], unescapeVCardText(values[part]));
    return true;
}

/// Values that this program itself has put on the card go back where they were.
bool Mapper::takeOwn(const P& property)
{
    const QString named = property.parameter(kColumnParameter);
    if (property.name == "N"_L1 && named == "N"_L1) {
        const QStringList parts = m_card.parts(property, u';');
        int part = 0;
        for (const QStringView column : {u"Last", u"First", u"Mid", u"Title"})
            m_contact.set(column, parts.value(part++));
        return true;
    }
    for (const AddressSet* address : kAddresses) {
        if (property.name == "ADR"_L1 && named == address->name)
            return takeOwnAddress(property, *address);
    }
    const CardColumns::Column* column
        = named.isEmpty() ? m_columns.ofProperty(property.name) : m_columns.find(named);
    if (!column)
        return false;
    QString text = m_card.text(property);
    if (column->type == jet::ColumnType::Date) {
        const CardDate date = cardDate(text);
        if (date.day.isEmpty())
            return false;
        QTime time = QTime::fromString(date.time, u"HH:mm:ss"_s);
        if (!time.isValid())
            time = QTime::fromString(date.time, u"HHmmss"_s);
        text = jet::isoDate(jet::dayOfIso(date.day), time.isValid() ? time : QTime());
    } else if (column->type == jet::ColumnType::YesNo) {
        text = text == "true"_L1 ? text : QString();
    } else if (property.name == "GENDER"_L1) {
        text = text.mid(text.indexOf(u';') + 1);
    }
    if (column->name.compare(kNote, Qt::CaseInsensitive) == 0)
        m_notes << text;
    else if (!text.isEmpty() && !put(property, column->name, text))
        note(property, text);
    return true;
}

void Mapper::takeKnown(const P& property, const QString& text)
{
    using Handler = void (Mapper::*)(const P&);
    using TextHandler = void (Mapper::*)(const P&, const QString&);
    static constexpr std::pair<QLatin1StringView, Handler> handlers[] = {
        {"N"_L1, &Mapper::takeName},
        {"ORG"_L1, &Mapper::takeOrganisation},
        {"ADR"_L1, &Mapper::takeAddress},
        {"CATEGORIES"_L1, &Mapper::takeCategories},
    };
    static constexpr std::pair<QLatin1StringView, TextHandler> textHandlers[] = {
        {"NICKNAME"_L1, &Mapper::takeNickNames},
        {"EMAIL"_L1, &Mapper::takeMail},
        {"GENDER"_L1, &Mapper::takeGender},
        {"X-GENDER"_L1, &Mapper::takeGender},
        {"RELATED"_L1, &Mapper::takeRelated},
        {"X-ABRELATEDNAMES"_L1, &Mapper::takeRelated},
        {"X-CHILD"_L1, &Mapper::takeRelated},
    };
    for (const auto& [name, handler] : handlers) {
        if (property.name == name)
            return (this->*handler)(property);
    }
    for (const auto& [name, handler] : textHandlers) {
        if (property.name == name)
            return (this->*handler)(property, text);
    }
    if (property.name == "TEL"_L1)
        return takePhone(property, text);
    if (property.name == "URL"_L1)
        return takeWeb(property, text);
    if (property.name == "NOTE"_L1)
        return m_notes.append(text);
    if (property.name == "BDAY"_L1)
        return takeDate(property, u"M_BD", text);
    const bool isLabelledAnniversary = property.name == "X-ABDATE"_L1
        && m_labels.value(property.group).compare("Anniversary"_L1, Qt::CaseInsensitive) == 0;
    if (isLabelledAnniversary || isAnniversary(property.name))
        return takeDate(property, u"Anniv", text);
    const QStringView column = columnOfProperty(property.name);
    if (column.isEmpty() || !isFree(column) || !put(property, column, onOneLine(text)))
        note(property, text);
}

void Mapper::takeName(const P& property)
{
    const QStringList parts = m_card.parts(property, u';');
    if (m_isOwnCard) {
        put(property, u"Nview", parts.value(0));
        put(property, u"Title", parts.value(1).trimmed());
        return;
    }
    int part = 0;
    for (const QStringView column : {u"Last", u"First", u"Mid", u"Title"}) {
        const QString text = onOneLine(parts.value(part++));
        if (text.isEmpty())
            continue;
        if (!isFree(column) || !put(property, column, text))
            note(property, text);
    }
    for (const QString& more : parts.mid(4)) {
        if (!more.trimmed().isEmpty())
            note(u"Name suffix"_s, onOneLine(more));
    }
}

void Mapper::takeNickNames(const P& property, const QString& text)
{
    QString names = text;
    if (m_card.version != "2.1"_L1) {
        QStringList parts;
        for (const QString& part : m_card.parts(property, u','))
            parts << part.trimmed();
        names = parts.join(u", "_s);
    }
    if (!isFree(u"nick") || !put(property, u"nick", onOneLine(names)))
        note(property, names);
}

void Mapper::takeOrganisation(const P& property)
{
    const QStringList parts = m_card.parts(property, u';');
    const QString company = onOneLine(parts.value(0));
    if (!company.isEmpty() && (!isFree(u"Company") || !put(property, u"Company", company)))
        note(property, company);
    for (const QString& unit : parts.mid(1)) {
        if (!unit.trimmed().isEmpty())
            note(u"Department"_s, onOneLine(unit));
    }
}

void Mapper::takePhone(const P& property, QString text)
{
    if (text.startsWith("tel:"_L1, Qt::CaseInsensitive))
        text = text.mid(4);
    text = onOneLine(text);
    const auto is = [&](QStringView type) { return property.is(type); };
    const auto isOther = [&] {
        return std::any_of(std::begin(kOtherNumbers), std::end(kOtherNumbers),
            [&](auto type) { return property.types.contains(type); });
    };
    if (isOther())
        note(property, text);
    else if (is(u"FAX"))
        place(property, text, kFax);
    else if (is(u"CELL") || is(u"MOBILE") || is(u"IPHONE") || is(u"CAR"))
        place(property, text, kMobile);
    else if (is(u"WORK"))
        place(property, text, m_isOwnCard ? Slots(kOwnWorkPhones) : Slots(kWorkPhones));
    else if (is(u"HOME"))
        place(property, text, kHomePhones);
    else
        m_untyped.emplace_back(&property, kHomePhones);
}

void Mapper::takeMail(const P& property, const QString& text)
{
    if (m_isOwnCard)
        return place(property, text, property.is(u"PREF") ? Slots(kHomeMail) : Slots(kWorkMail));
    if (property.is(u"WORK"))
        place(property, text, kWorkMail);
    else if (property.is(u"HOME"))
        place(property, text, kHomeMail);
    else
        m_untyped.emplace_back(&property, kAnyMail);
}

void Mapper::takeWeb(const P& property, QString text)
{
    if (m_isOwnCard) {
        // The scheme is not a part of what the book holds.
        if (text.startsWith("http://"_L1))
            text = text.mid(7);
        if (!text.isEmpty())
            place(property, text, kHomeWeb);
        return;
    }
    const QString label = m_labels.value(property.group);
    if (property.is(u"WORK"))
        place(property, text, kWorkWeb);
    else if (property.is(u"HOME") || label.compare("HomePage"_L1, Qt::CaseInsensitive) == 0)
        place(property, text, kHomeWeb);
    else
        m_untyped.emplace_back(&property, kAnyWeb);
}

void Mapper::takeAddress(const P& property)
{
    const QStringList parts = m_card.parts(property, u';');
    const auto part = [&parts](int number) { return parts.value(number).trimmed(); };
    QStringList lines = part(2).split(u'\n', Qt::SkipEmptyParts);
    const bool isOffice = m_isOwnCard && part(1) == "office"_L1;
    for (const QString& more : {isOffice ? QString() : part(1), part(0)}) {
        if (!more.isEmpty())
            lines << onOneLine(more);
    }
    const QString texts[] = {lines.value(0).trimmed(), onOneLine(lines.mid(1).join(u'\n')),
        onOneLine(part(3)), onOneLine(part(4)), onOneLine(part(5)), onOneLine(part(6))};
    QStringList shown;
    for (const QString& text : texts) {
        if (!text.isEmpty())
            shown << text;
    }
    for (const QString& more : parts.mid(7)) {
        if (!more.trimmed().isEmpty())
            shown << onOneLine(more);
    }
    if (shown.isEmpty())
        return;
    const bool isWork = property.is(u"WORK");
    const bool isHome = property.is(u"HOME");
    std::vector<const AddressSet*> places;
    if (m_isOwnCard)
        places = {isWork ? &kSecondWorkAddress : isHome ? &kHomeAddress : &kWorkAddress};
    else if (isWork)
        places = {&kWorkAddress, &kSecondWorkAddress};
    else if (isHome)
        places = {&kHomeAddress};
    else
        places = {&kHomeAddress, &kSecondWorkAddress};
    const bool isPut = std::any_of(
        places.begin(), places.end(), [&](const AddressSet* address) { return putAddress(*address, texts); });
    if (!isPut || parts.size() > 7 || !customLabel(property).isEmpty())
        note(property, shown.join(u", "_s));
}

/// False where another address stands already, or a part is too long.
bool Mapper::putAddress(const AddressSet& address, std::span<const QString> texts)
{
    for (std::size_t part = 0; part < kAddressParts; ++part) {
        const CardColumns::Column* column = m_columns.find(address.columns[part]);
        if (!column || texts[part].size() > column->size || !isFree(address.columns[part]))
            return false;
    }
    for (std::size_t part = 0; part < kAddressParts; ++part)
        m_contact.set(address.columns[part], texts[part]);
    return true;
}

void Mapper::takeDate(const P& property, QStringView column, const QString& text)
{
    const CardDate date = cardDate(text);
    const QString omitted = property.parameter(u"X-APPLE-OMIT-YEAR");
    if (!omitted.isEmpty() && date.day.startsWith(omitted.toInt() > 0 ? omitted + u'-' : omitted))
        return note(property, u"--"_s + date.day.mid(5));
    if (date.day.isEmpty() || !isFree(column))
        return note(property, text);
    m_contact.set(column, date.day);
    if (!isMidnight(date.time))
        note(property, text);
}

void Mapper::takeGender(const P& property, const QString& text)
{
    const QString word = text.trimmed().toUpper();
    const bool isMale = word == "M"_L1 || word == "MALE"_L1;
    const bool isFemale = word == "F"_L1 || word == "FEMALE"_L1;
    if ((isMale || isFemale) && isFree(u"sex"))
        m_contact.set(u"sex", isMale ? u"Male"_s : u"Female"_s);
    else
        note(property, text);
}

void Mapper::takeRelated(const P& property, const QString& text)
{
    const QString label = m_labels.value(property.group).toUpper();
    const bool isName = !text.startsWith("urn:"_L1) && !text.contains("://"_L1);
    const auto is = [&](QLatin1StringView word) { return label == word || property.types.contains(word); };
    if (isName && (is("SPOUSE"_L1) || is("HUSBAND"_L1) || is("WIFE"_L1)) && isFree(u"Spouse")
        && put(property, u"Spouse", onOneLine(text)))
        return;
    if (isName && (property.name == "X-CHILD"_L1 || is("CHILD"_L1) || is("SON"_L1) || is("DAUGHTER"_L1))) {
        for (const QStringView kid : kKids) {
            if (isFree(kid) && put(property, kid, onOneLine(text)))
                return;
        }
    }
    note(property, text);
}

void Mapper::takeCategories(const P& property)
{
    QStringList words;
    for (const QString& word : m_card.parts(property, u',')) {
        if (!word.trimmed().isEmpty())
            words << onOneLine(word);
    }
    if (words.isEmpty())
        return;
    const bool isPut = isFree(u"category1") && put(property, u"category1", words.constFirst());
    if (!isPut || words.size() > 1)
        note(property, words.join(u", "_s));
}

void Mapper::takeBinary(const P& property)
{
    if (property.isTooLong)
        return;
    const bool isPicture = !pictureEnding(property.bytes).isEmpty();
    if (property.name == "PHOTO"_L1 && isPicture && m_contact.photo.isEmpty())
        m_contact.photo = property.bytes;
    else if (property.name == "PHOTO"_L1 && !isPicture)
        m_contact.left << translated("Photo: it is no picture that can be shown");
    else
        m_contact.left << translated("%1: the book has no place for it").arg(labelOf(property));
}

// A label whose value nobody has is a value of its own.
void Mapper::noteUnusedLabels()
{
    if (!m_hasLabels)
        return;
    QSet<QString> groups;
    for (const P& property : m_card.properties) {
        if (property.name != "X-ABLABEL"_L1)
            groups.insert(property.group);
    }
    for (const P& property : m_card.properties) {
        if (property.name == "X-ABLABEL"_L1 && property.depth == 0
            && (property.group.isEmpty() || !groups.contains(property.group)))
            note(u"Label"_s, m_card.text(property));
    }
}

void Mapper::finishNote()
{
    QString text = m_notes.join(u'\n');
    if (!text.isEmpty() && !m_lines.isEmpty())
        text += u"\n\n"_s;
    m_contact.set(kNote, text + m_lines.join(u'\n'));
}

/// The words that a person has written to a value; none for those that a type would say as well.
QString Mapper::customLabel(const P& property) const
{
    const QString label = m_labels.value(property.group);
    constexpr QLatin1StringView plain[] = {"HOME"_L1, "WORK"_L1, "OTHER"_L1, "MOBILE"_L1, "HOMEPAGE"_L1,
        "ANNIVERSARY"_L1, "SPOUSE"_L1, "CHILD"_L1, "MAIN"_L1, "IPHONE"_L1};
    return isIn(plain, label.toUpper()) ? QString() : label;
}

QString Mapper::labelOf(const P& property) const
{
    const QString label = labelOfProperty(property.name);
    QStringList words = wordsOfTypes(property.types);
    if (const QString own = m_labels.value(property.group); !own.isEmpty())
        words << own;
    return words.isEmpty() ? label : label + u" ("_s + words.join(u", "_s) + u')';
}

/// False when the text is too long for its column.
bool Mapper::put(const P& property, QStringView column, const QString& text)
{
    const CardColumns::Column* known = m_columns.find(column);
    if (!known)
        return false;
    if (known->type == jet::ColumnType::Text && text.size() > known->size) {
        constexpr QStringView names[] = {u"Name", u"First", u"Last", u"Company"};
        if (std::find(std::begin(names), std::end(names), column) == std::end(names))
            return false;
        m_contact.set(known->name, text.left(known->size));
        note(property, text);
        return true;
    }
    m_contact.set(known->name, text);
    return true;
}

/// In the first of the places that is free, or else the note. Words of the person's own stand there too.
void Mapper::place(const P& property, const QString& text, Slots places)
{
    const QString value = onOneLine(text);
    const auto free
        = std::find_if(places.begin(), places.end(), [this](QStringView column) { return isFree(column); });
    const bool isPut = free != places.end() && put(property, *free, value);
    if (!isPut || !customLabel(property).isEmpty())
        note(property, value);
}

void Mapper::note(const QString& label, const QString& text)
{
    if (!text.trimmed().isEmpty())
        m_lines << label + u": "_s + text;
}

} // namespace

CardContact contactOf(const ForeignCard& card, const CardColumns& columns)
{
    return Mapper(card, columns).map();
}

} // namespace formats
