#include "jet/bound_values.h"

#include "jet/letter_case.h"
#include "jet/like_pattern.h"
#include "jet/stored_value.h"

using namespace Qt::StringLiterals;

namespace jet {

namespace {

/// The literals of all patterns.
std::vector<int> patternsOf(const TextFilter& filter)
{
    std::vector<int> literals;
    if (filter.kind == TextFilter::Kind::Pattern)
        literals.push_back(filter.literal);
    for (const TextFilter& part : filter.parts) {
        const std::vector<int> within = patternsOf(part);
        literals.insert(literals.end(), within.begin(), within.end());
    }
    return literals;
}

const QByteArray* textFor(const Slot& slot, const BoundTexts& texts)
{
    switch (slot.reading) {
    case Slot::Reading::RowList: return &texts.rowLists[size_t(-1 - slot.literal)];
    case Slot::Reading::Least: return &texts.least;
    case Slot::Reading::Beyond: return &texts.beyond;
    default: return nullptr;
    }
}

ColumnType typeFor(Slot::Reading reading, Literal::Kind kind)
{
    switch (reading) {
    case Slot::Reading::Date: return ColumnType::Date;
    case Slot::Reading::Number: return ColumnType::Number;
    case Slot::Reading::YesNo: return ColumnType::YesNo;
    default: return kind == Literal::Kind::Number ? ColumnType::Number : ColumnType::Text;
    }
}

} // namespace

bool bindValues(sqlite3_stmt* statement, const std::vector<Slot>& slots, const std::vector<Literal>& literals,
    const BoundTexts& texts, QString* refusal)
{
    int place = 0;
    for (const Slot& slot : slots) {
        if (const QByteArray* text = textFor(slot, texts)) {
            sqlite3_bind_text(statement, ++place, text->constData(), int(text->size()), SQLITE_TRANSIENT);
            continue;
        }
        const Literal& literal = literals[size_t(slot.literal)];
        QVariant stored;
        if (!toStored(literal.text, typeFor(slot.reading, literal.kind), &stored) || !stored.isValid()) {
            *refusal = u"the value does not fit its column: "_s + literal.text.left(40);
            return false;
        }
        bindStored(statement, ++place, stored);
    }
    return true;
}

// Texts are sorted by base letters first, so what begins with "É" stands among what begins with "E".
std::optional<BoundTexts> stretchOf(
    const Translation& translation, const std::vector<Literal>& literals, Way way)
{
    if (translation.orderedLiteral < 0)
        return {};
    std::u32string beginning;
    for (const int literal : patternsOf(*translation.filter)) {
        const auto pattern = LikePattern::compile(literals[size_t(literal)].text.toUtf8().toStdString(), way);
        // A broken pattern has to fail, also when there is no row to which it would be put.
        if (!pattern)
            return {};
        if (literal == translation.orderedLiteral)
            beginning = pattern->beginning();
    }
    if (beginning.empty())
        return {};
    std::string least;
    for (const char32_t letter : beginning)
        appendLetter(least, baseLetter(letter));
    BoundTexts texts;
    texts.least = QByteArray::fromStdString(least);
    // No letter is sorted behind bytes that are no letter.
    texts.beyond = texts.least + QByteArray(8, char(0xFF));
    return texts;
}

QByteArray jsonList(const std::vector<sqlite3_int64>& numbers)
{
    QByteArray list = "[";
    for (const sqlite3_int64 number : numbers) {
        if (list.size() > 1)
            list += ',';
        list += QByteArray::number(qlonglong(number));
    }
    return list + ']';
}

} // namespace jet
