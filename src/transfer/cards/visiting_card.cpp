#include "transfer/cards/visiting_card.h"

#include <iterator>
#include <span>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

constexpr int kLabelWidth = 40;

/// A line of a card. Positions count from 1, as in the lines that this program writes.
struct Tag {
    QStringView start;
    int shownFrom;
    QStringView label;
    int storedFrom = 0; ///< 0 for a value that is only shown
    std::span<const QStringView> columns = {}; ///< of the first line of that kind, the second, ...
};

constexpr QStringView kName[] = {u"Name"};
constexpr QStringView kNick[] = {u"nick"};
constexpr QStringView kTitle[] = {u"Job_Title"};
constexpr QStringView kWork[] = {u"w_Ph1", u"w_Ph2"};
constexpr QStringView kHome[] = {u"H_Ph1", u"h_ph2"};
constexpr QStringView kMobile[] = {u"Mobile"};

// Kept: a telephone is shown from one character and stored from another, and neither is where it begins.
// Cards and books of many years have passed through here, and who checks them relies on what comes out.
constexpr Tag kTags[] = {
    {u"N:", 3, u"Name View As: "},
    {u"FN:", 4, u"Full Name ", 4, kName},
    {u"NICKNAME:", 10, u"NICKNAME: ", 10, kNick},
    {u"EMAIL;PREF;INTERNET:", 21, u"Email: "},
    {u"EMAIL;INTERNET:", 16, u"Email: "},
    {u"SPOUSE:", 8, u"SPOUSE:"},
    {u"TITLE:", 7, u"TITLE :", 7, kTitle},
    {u"TEL;WORK;VOICE:", 17, u"PHONE(W):", 28, kWork},
    {u"TEL;WORK;FAX:", 28, u"FAX(W):"},
    {u"TEL;HOME;VOICE:", 17, u"PHONE(H):", 28, kHome},
    {u"TEL;HOME;FAX:", 28, u"FAX(H):"},
    {u"TEL;CELL;VOICE:", 18, u"MOBILE:", 18, kMobile},
};

/// The five parts of an address, from the same character on whatever its line begins with.
struct AddressTag {
    QStringView start;
    QStringView needed; ///< at character 11, if at all
    QChar letter;
    QStringView columns[5];
};
constexpr int kAddressFrom = 18;
constexpr QStringView kAddressLabels[] = {u"Add", u"City", u"State", u"Zip", u"Country"};
// Kept: the fixed character fits the work line. Of the others the beginning of the street is cut.
constexpr AddressTag kAddresses[] = {
    {u"ADR;WORK:", u"office", u'W', {u"w_add1", u"w_city", u"w_State", u"w_pin", u"w_country"}},
    {u"ADR;HOME:", {}, u'H', {u"h_add1", u"h_city", u"h_state", u"h_pin", u"h_country"}},
    {u"ADR;POSTAL:", {}, u'O', {u"b_add1", u"b_city", u"b_state", u"b_pin", u"b_country"}},
};

constexpr QStringView kStored[] = {u"Name", u"nick", u"Company", u"Job_Title", u"w_Ph1", u"w_Ph2", u"H_Ph1",
    u"h_ph2", u"Mobile", u"w_add1", u"w_city", u"w_State", u"w_pin", u"w_country", u"h_add1", u"h_city",
    u"h_state", u"h_pin", u"h_country", u"b_add1", u"b_city", u"b_state", u"b_pin", u"b_country"};

QStringView from(QStringView line, int character)
{
    return line.mid(std::min<qsizetype>(character - 1, line.size()));
}

class Reader {
public:
    explicit Reader(VisitingCard& card)
        : m_card(card)
    {
    }

    /// False when the reading ends with this line.
    bool take(QStringView line)
    {
        for (const Tag& tag : kTags) {
            if (line.startsWith(tag.start))
                return takeTag(line, tag);
        }
        if (line.startsWith(u"ORG:"))
            return takeOrganisation(line);
        for (const AddressTag& tag : kAddresses) {
            if (line.startsWith(tag.start) && (tag.needed.isEmpty() || from(line, 11).startsWith(tag.needed)))
                return takeAddress(line, tag);
        }
        return true;
    }

private:
    void show(QStringView label, QStringView value)
    {
        m_card.preview << label.toString().leftJustified(kLabelWidth) + value.toString();
    }

    bool takeTag(QStringView line, const Tag& tag)
    {
        show(tag.label, from(line, tag.shownFrom));
        const int number = m_met[&tag - kTags]++;
        if (number < int(tag.columns.size()))
            m_card.values.append({tag.columns[size_t(number)], from(line, tag.storedFrom).toString()});
        return true;
    }

    // The lines that this program writes have no department.
    bool takeOrganisation(QStringView line)
    {
        const QList<QStringView> parts = from(line, 5).split(u';');
        show(u"ORGANISATION: ", parts.constFirst());
        m_card.values.append({u"Company", parts.constFirst().toString()});
        if (parts.size() > 1)
            show(u"DEPARTMENT :", parts[1]);
        return true;
    }

    bool takeAddress(QStringView line, const AddressTag& tag)
    {
        const QList<QStringView> parts = from(line, kAddressFrom).split(u';');
        for (std::size_t part = 0; part < std::size(kAddressLabels); ++part) {
            if (qsizetype(part) >= parts.size()) {
                m_card.stoppedAt = line.toString();
                return false;
            }
            show(kAddressLabels[part].toString() + u'(' + tag.letter + u')', parts[qsizetype(part)]);
            m_card.values.append({tag.columns[part], parts[qsizetype(part)].toString()});
        }
        return true;
    }

    VisitingCard& m_card;
    int m_met[std::size(kTags)] = {};
};

} // namespace

VisitingCard readVisitingCard(QStringView text)
{
    VisitingCard card;
    const bool isOld = text.contains(u"VERSION:2.1") && !text.contains(u"QUOTED-PRINTABLE");
    card.isOfOthers = !isOld || text.count(u"BEGIN:VCARD", Qt::CaseInsensitive) > 1;
    Reader reader(card);
    for (QStringView line : text.tokenize(u'\n')) {
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (!reader.take(line))
            break;
    }
    return card;
}

bool addVisitingCard(jet::Database& book, const VisitingCard& card)
{
    jet::Recordset rows = book.openRecordset(u"select * from cnt_main where 1>2"_s);
    rows.addNew();
    for (const QStringView column : kStored) {
        QString value;
        for (const auto& [name, text] : card.values) {
            if (name == column)
                value = text;
        }
        rows.set(column, value);
    }
    return rows.update();
}

} // namespace transfer
