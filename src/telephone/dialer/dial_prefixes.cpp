#include "telephone/dialer/dial_prefixes.h"

#include "telephone/number_slots.h"

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr int kNumbersOfAKind = 3;
constexpr int kFirstMobile = 9;
constexpr int kMobiles = 2;

struct KindRow {
    NumberKind kind;
    QChar letter; ///< of its tags
    QStringView code;
};
constexpr KindRow kKinds[] = {
    {NumberKind::Home, u'H', u"h_std"},
    {NumberKind::W, u'W', u"W_std"},
    {NumberKind::B, u'B', u"B_std"},
};
constexpr QStringView kSettings[] = {u"Prefix1", u"Prefix2", u"Prefix3", u"PBX"};

void offer(QStringList& list, const QString& text)
{
    if (!text.isEmpty() && !list.contains(text))
        list << text;
}

} // namespace

QStringList offeredPrefixes(NumberKind kind, const ColumnText& contact, const ColumnText& settings)
{
    QStringList prefixes;
    for (const KindRow& row : kKinds) {
        if (row.kind != kind)
            continue;
        const QString code = contact(row.code);
        offer(prefixes, code);
        const QStringList parts = code.split(u'-');
        if (parts.size() <= 2)
            offer(prefixes, parts[0]);
        if (parts.size() >= 2)
            offer(prefixes, parts[1]);
    }
    // Kept: a prefix of the settings stands there also when it is a code of the person.
    for (const QStringView column : kSettings) {
        const QString prefix = settings(column);
        if (!prefix.isEmpty())
            prefixes << prefix;
    }
    return prefixes;
}

QStringList offeredNumbers(NumberKind kind, const ColumnText& contact)
{
    QStringList numbers;
    const auto all = numberSlots();
    if (kind != NumberKind::None) {
        const int first = (static_cast<int>(kind) - 1) * kNumbersOfAKind;
        for (const NumberSlot& slot : all.subspan(first, kNumbersOfAKind))
            offer(numbers, contact(slot.column));
    }
    for (const NumberSlot& slot : all.subspan(kFirstMobile, kMobiles))
        offer(numbers, contact(slot.column));
    return numbers;
}

QString pickedNumber(const QString& prefix, const QString& number)
{
    return prefix + u' ' + number;
}

SlotTag slotTag(const QString& caption)
{
    QString text = caption;
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    const QString tag = text.right(2);
    if (tag == u"ob")
        return {};
    for (const KindRow& row : kKinds) {
        if (tag.size() == 2 && tag[0] == row.letter && tag[1] >= u'1' && tag[1] <= u'3')
            return {row.kind, row.code};
    }
    return {NumberKind::None, kKinds[0].code};
}

QString memoryNumber(const QString& code, const QString& number)
{
    const QString written = code.trimmed();
    return written.isEmpty() ? number : written + u'-' + number;
}

// Kept: the numbers of each work address go with the code of the other one, unlike in the memory.
QStringView clickedCode(int place)
{
    constexpr QStringView codes[] = {u"h_std", u"B_std", u"W_std"};
    return place < kFirstMobile ? codes[place / kNumbersOfAKind] : QStringView();
}

QString clickedNumber(int place, const ColumnText& contact)
{
    const QString number = contact(numberSlots()[place].column);
    return place < kFirstMobile ? contact(clickedCode(place)) + number : u'0' + number;
}

NumberKind firstKind(const ColumnText& contact)
{
    const auto all = numberSlots();
    for (const KindRow& row : kKinds) {
        const int first = (static_cast<int>(row.kind) - 1) * kNumbersOfAKind;
        for (const NumberSlot& slot : all.subspan(first, kNumbersOfAKind)) {
            if (!contact(slot.column).isEmpty())
                return row.kind;
        }
    }
    return NumberKind::None;
}

QString telephoneAddress(const QString& number)
{
    QString digits;
    for (const QChar c : number) {
        if ((c >= u'0' && c <= u'9') || (c == u'+' && digits.isEmpty()))
            digits += c;
    }
    return digits == u"+" ? QString() : digits;
}

} // namespace telephone
