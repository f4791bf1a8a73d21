#include "jet/same_name.h"
#include "jet/selection_emitter.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

constexpr size_t kMostArms = 31; ///< as bits of a number

/// Whether an expression asks nothing but the row that it stands beside.
bool asksItsRowOnly(const Expression& e)
{
    switch (e.kind) {
    case Expression::Kind::InSelect:
    case Expression::Kind::Subselect:
    case Expression::Kind::Exists: return false;
    default: break;
    }
    return std::all_of(
        e.parts.begin(), e.parts.end(), [](const auto& part) { return !part || asksItsRowOnly(*part); });
}

/// Of a condition such as "phone like '*98*' and phone <> null and len(phone) <> 0" all but the pattern goes
/// without saying.
bool isSaidBy(const TextFilter& pattern, const Expression& e)
{
    if (e.kind != Expression::Kind::Compare || e.op != u"<>")
        return false;
    const Expression& left = *e.parts[0];
    const Expression& right = *e.parts[1];
    if (right.kind == Expression::Kind::Null)
        return left.kind == Expression::Kind::Column && sameName(left.name, pattern.column);
    return left.kind == Expression::Kind::Call && sameName(left.name, u"len") && left.parts.size() == 1
        && left.parts[0]->kind == Expression::Kind::Column && sameName(left.parts[0]->name, pattern.column)
        && right.kind == Expression::Kind::Number && right.name == u"0";
}

} // namespace

std::optional<UnionParts> SelectionEmitter::unionParts(
    const Select& s, const std::vector<ResultColumn>& columns)
{
    if (!isOfOneTable(s))
        return {};
    openScope(s.arms.front());
    std::optional<UnionParts> result;
    UnionParts parts;
    parts.arms = int(s.arms.size());
    parts.table = table(s.arms.front().tables.front().name)->name;
    if (findLeads(s, columns, &parts)) {
        std::vector<int> varying;
        if (parts.byKey && parts.leads == 0)
            varying = varyingPositions(s);
        parts.varying = int(varying.size());
        keysOf(s, varying, &parts, false);
        parts.keys = takePiece();
        keysOf(s, varying, &parts, true);
        parts.keysOfRows = takePiece();
        rowsOf(s, columns);
        parts.rows = takePiece();
        findFilters(s, varying, &parts);
        result = std::move(parts);
    }
    m_scopes.pop_back();
    return result;
}

bool SelectionEmitter::isOfOneTable(const Select& s) const
{
    if (s.arms.size() < 2 || s.arms.size() > kMostArms)
        return false;
    const SelectArm& first = s.arms.front();
    return std::all_of(s.arms.begin(), s.arms.end(), [&](const SelectArm& arm) {
        return !arm.distinct && !arm.keepsDoubles && arm.tables.size() == 1
            && sameName(arm.tables.front().name, first.tables.front().name)
            && arm.tables.front().alias.isEmpty() && arm.groupBy.empty() && !arm.having
            && (!arm.where || asksItsRowOnly(*arm.where))
            && std::all_of(arm.items.begin(), arm.items.end(), [](const SelectItem& item) {
                   return !item.star && asksItsRowOnly(*item.expression) && !hasAggregate(*item.expression);
               });
    });
}

bool SelectionEmitter::isKey(const Expression& e) const
{
    const CatalogColumn* found = e.kind == Expression::Kind::Column ? resolve(e) : nullptr;
    return found && found->type == ColumnType::AutoNumber;
}

bool SelectionEmitter::isWhole(const Expression& e) const
{
    if (e.kind == Expression::Kind::Number)
        return std::all_of(e.name.begin(), e.name.end(), [](QChar c) { return c.isDigit(); });
    if (e.kind == Expression::Kind::Call)
        return sameName(e.name, u"month") || sameName(e.name, u"day") || sameName(e.name, u"year")
            || sameName(e.name, u"val");
    return e.kind == Expression::Kind::Arithmetic && e.op == u"-" && isWhole(*e.parts[0])
        && isWhole(*e.parts[1]);
}

bool SelectionEmitter::findLeads(
    const Select& s, const std::vector<ResultColumn>& columns, UnionParts* parts) const
{
    const auto inEveryArm = [&](int position, auto is) {
        return std::all_of(s.arms.begin(), s.arms.end(),
            [&](const SelectArm& arm) { return is(*arm.items[size_t(position)].expression); });
    };
    const auto key = [this](const Expression& e) { return isKey(e); };
    const auto whole = [this](const Expression& e) { return isWhole(e); };
    parts->keyPosition = -1;
    for (int i = 0; i < int(columns.size()) && parts->keyPosition < 0; ++i) {
        if (inEveryArm(i, key))
            parts->keyPosition = i;
    }
    if (parts->keyPosition < 0)
        return false;
    std::vector<int> order;
    if (const auto* terms = orderOfUnion(s, columns)) {
        for (const OrderTerm& term : *terms)
            order.push_back(term.descending ? -1 : positionOf(term, columns));
    } else {
        for (int i = 0; i < int(columns.size()); ++i)
            order.push_back(i);
    }
    for (const int position : order) {
        if (position < 0 || parts->byKey || parts->leads == UnionParts::kMostLeads)
            break;
        if (inEveryArm(position, key)) {
            parts->byKey = true;
        } else if (inEveryArm(position, whole)) {
            parts->leadPositions.push_back(position);
            parts->readings.push_back(readingOf(*s.arms.front().items[size_t(position)].expression));
            const auto alike = [&](const Expression& e) {
                const UnionParts::Reading reading = readingOf(e);
                return reading.part == parts->readings.back().part
                    && reading.minuend == parts->readings.back().minuend;
            };
            if (!inEveryArm(position, alike))
                parts->readings.back() = {};
            ++parts->leads;
        } else {
            break;
        }
    }
    return parts->byKey || parts->leads > 0;
}

/// The date column of which a lead is a part, as in month(m_bd) or 2026 - year(m_bd); null for another one.
const Expression* SelectionEmitter::datedColumn(const Expression& lead) const
{
    const Expression& call = lead.kind == Expression::Kind::Arithmetic ? *lead.parts[1] : lead;
    if (call.kind != Expression::Kind::Call || call.parts.size() != 1
        || call.parts[0]->kind != Expression::Kind::Column)
        return nullptr;
    const CatalogColumn* column = resolve(*call.parts[0]);
    return column && column->type == ColumnType::Date ? call.parts[0].get() : nullptr;
}

UnionParts::Reading SelectionEmitter::readingOf(const Expression& lead) const
{
    if (!datedColumn(lead))
        return {};
    const bool isDifference = lead.kind == Expression::Kind::Arithmetic;
    if (isDifference && lead.parts[0]->kind != Expression::Kind::Number)
        return {};
    const QStringView name = isDifference ? lead.parts[1]->name : lead.name;
    UnionParts::Reading reading;
    for (const auto& [word, part] : {std::pair(u"year", DatePart::Year), std::pair(u"month", DatePart::Month),
             std::pair(u"day", DatePart::Day)}) {
        if (sameName(name, word))
            reading.part = part;
    }
    if (isDifference)
        reading.minuend = lead.parts[0]->name.toInt();
    return reading;
}

std::vector<int> SelectionEmitter::varyingPositions(const Select& s)
{
    const auto written = [this](const Expression& e) {
        collated(e);
        Piece piece = takePiece();
        for (const Slot& slot : piece.values)
            piece.sql += u" %"_s + QString::number(slot.literal);
        return piece.sql;
    };
    std::vector<int> varying;
    for (size_t i = 0; i < s.arms.front().items.size(); ++i) {
        const QString first = written(*s.arms.front().items[i].expression);
        const bool differs = std::any_of(s.arms.begin(), s.arms.end(),
            [&](const SelectArm& arm) { return written(*arm.items[i].expression) != first; });
        if (differs)
            varying.push_back(int(i));
    }
    return varying;
}

void SelectionEmitter::listedRows(const TableName& from, int list)
{
    m_out += u"(SELECT value AS [*row] FROM json_each(?)) CROSS JOIN "_s;
    m_slots.push_back({-1 - list, Slot::Reading::RowList});
    tableAs(from);
    m_out += u" WHERE "_s;
    rowKey(from);
    m_out += u" = [*row]"_s;
}

void SelectionEmitter::keysOf(
    const Select& s, const std::vector<int>& varying, UnionParts* parts, bool ofRows)
{
    const TableName& from = s.arms.front().tables.front();
    std::vector<Piece> asked;
    parts->places.clear();
    // What several arms ask for is looked up once.
    const auto place = [&] {
        Piece piece = takePiece();
        const auto same = std::find_if(asked.begin(), asked.end(),
            [&](const Piece& other) { return other.sql == piece.sql && piece.values.empty(); });
        parts->places.push_back(1 + int(same - asked.begin()));
        if (same == asked.end())
            asked.push_back(std::move(piece));
    };
    for (const SelectArm& arm : s.arms) {
        // In a case the file engine leaves a condition at its first part that does not hold.
        m_out += arm.where ? u"CASE WHEN "_s : u"1"_s;
        if (arm.where) {
            truth(*arm.where);
            m_out += u" THEN 1 END"_s;
        }
        place();
        for (size_t i = 0; i < parts->leadPositions.size(); ++i) {
            const Expression& lead = *arm.items[size_t(parts->leadPositions[i])].expression;
            expression(parts->readings[i].part ? *datedColumn(lead) : lead);
            place();
        }
        for (const int position : varying) {
            expression(*arm.items[size_t(position)].expression);
            place();
        }
    }
    m_out += u"SELECT "_s;
    rowKey(from);
    for (const Piece& piece : asked) {
        m_out += u", "_s;
        m_out += piece.sql;
        m_slots.insert(m_slots.end(), piece.values.begin(), piece.values.end());
    }
    m_out += u" FROM "_s;
    if (ofRows)
        listedRows(from, 0);
    else
        tableAs(from);
}

void SelectionEmitter::rowsOf(const Select& s, const std::vector<ResultColumn>& columns)
{
    std::vector<ResultColumn> again;
    for (size_t i = 0; i < s.arms.size(); ++i) {
        const SelectArm& arm = s.arms[i];
        m_out += i == 0 ? u"SELECT "_s : u" UNION SELECT "_s;
        again.clear();
        const bool wasNamed = std::exchange(m_isNamed, i == 0);
        itemList(arm, &again);
        m_isNamed = wasNamed;
        m_out += u" FROM "_s;
        listedRows(arm.tables.front(), int(i));
        if (arm.where) {
            m_out += u" AND "_s;
            truth(*arm.where);
        }
    }
    orderWhole(s, columns);
}

void SelectionEmitter::findFilters(const Select& s, const std::vector<int>& varying, UnionParts* parts) const
{
    bool textsTell = parts->byKey && parts->leads == 0 && varying.size() == 1;
    for (const SelectArm& arm : s.arms) {
        auto filter = arm.where ? textFilter(*arm.where) : std::nullopt;
        if (!filter) {
            parts->filters.clear();
            return;
        }
        const TextFilter pattern = filter->parts.size() == 1 ? filter->parts.front() : *filter;
        if (arm.where->kind == Expression::Kind::And && pattern.kind == TextFilter::Kind::Pattern)
            filter->isWhole = std::all_of(
                arm.where->parts.begin(), arm.where->parts.end(), [&](const ExpressionPtr& part) {
                    return part->kind == Expression::Kind::Like || isSaidBy(pattern, *part);
                });
        const Expression* shown = textsTell ? arm.items[size_t(varying.front())].expression.get() : nullptr;
        textsTell = textsTell && filter->isWhole && pattern.kind == TextFilter::Kind::Pattern
            && shown->kind == Expression::Kind::Column && sameName(shown->name, pattern.column);
        parts->varyingColumns.push_back(pattern.column);
        parts->filters.push_back(std::move(*filter));
    }
    if (!textsTell)
        parts->varyingColumns.clear();
}

} // namespace jet
