#include "jet/sql_functions.h"

#include "jet/date_text.h"
#include "jet/letter_case.h"
#include "jet/like_pattern.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>

using namespace Qt::StringLiterals;

namespace jet {

namespace {

std::string_view textOf(sqlite3_value* value)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, size_t(sqlite3_value_bytes(value))) : std::string_view();
}

QString stringOf(sqlite3_value* value)
{
    const auto text = textOf(value);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

bool isNull(sqlite3_value* value)
{
    return sqlite3_value_type(value) == SQLITE_NULL;
}
bool isNumber(sqlite3_value* value)
{
    const int type = sqlite3_value_type(value);
    return type == SQLITE_INTEGER || type == SQLITE_FLOAT;
}

void answer(sqlite3_context* context, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text(context, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
}

int compareTexts(void*, int sizeA, const void* a, int sizeB, const void* b)
{
    return compareJet(
        {static_cast<const char*>(a), size_t(sizeA)}, {static_cast<const char*>(b), size_t(sizeB)});
}

const LikePattern* patternOf(sqlite3_context* context, sqlite3_value* value, int argument, Way way)
{
    if (auto* kept = static_cast<LikePattern*>(sqlite3_get_auxdata(context, argument)))
        return kept;
    auto pattern = LikePattern::compile(textOf(value), way);
    if (!pattern) {
        sqlite3_result_error(context, "the pattern is broken", -1);
        return nullptr;
    }
    auto* kept = new LikePattern(std::move(*pattern));
    sqlite3_set_auxdata(context, argument, kept, [](void* p) { delete static_cast<LikePattern*>(p); });
    return static_cast<LikePattern*>(sqlite3_get_auxdata(context, argument));
}

/// like(value, pattern)
template <Way way> void like(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[0]) || isNull(arguments[1]))
        return;
    if (const LikePattern* pattern = patternOf(context, arguments[1], 1, way))
        sqlite3_result_int(context, pattern->matches(textOf(arguments[0])));
}

/// likeAny(pattern, value, value, ...): one call for a chain of or-terms with one pattern
template <Way way> void likeAny(sqlite3_context* context, int count, sqlite3_value** arguments)
{
    const LikePattern* pattern = patternOf(context, arguments[0], 0, way);
    if (!pattern)
        return;
    bool unknown = false;
    for (int i = 1; i < count; ++i) {
        if (isNull(arguments[i]))
            unknown = true;
        else if (pattern->matches(textOf(arguments[i])))
            return sqlite3_result_int(context, 1);
    }
    if (!unknown)
        sqlite3_result_int(context, 0);
}

void mid(sqlite3_context* context, int count, sqlite3_value** arguments)
{
    for (int i = 0; i < count; ++i) {
        if (isNull(arguments[i]))
            return;
    }
    const qint64 start = sqlite3_value_int64(arguments[1]);
    const qint64 length = count > 2 ? sqlite3_value_int64(arguments[2]) : INT_MAX;
    if (start < 1 || length < 0)
        return sqlite3_result_error(context, "mid counts from 1", -1);
    answer(context, stringOf(arguments[0]).mid(start - 1, qMin<qint64>(length, INT_MAX)));
}

/// The year, month or day of a stored date.
template <DatePart part> void datePart(sqlite3_context* context, int, sqlite3_value** arguments)
{
    std::optional<int> number = partOfIso(textOf(arguments[0]), part);
    if (!number && isNull(arguments[0]))
        return;
    if (!number) {
        // A text column that holds a date in words, such as the scheduler's.
        const auto parsed = parseDateText(stringOf(arguments[0]));
        number = partOfIso(parsed.value_or(QString()).toStdString(), part);
    }
    if (!number)
        return sqlite3_result_error(context, "not a date", -1);
    sqlite3_result_int(context, *number);
}

void format(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[0]))
        return;
    const QString value = stringOf(arguments[0]);
    QVariant date = dateFromIso(value);
    if (!date.isValid())
        date = dateFromIso(parseDateText(value).value_or(QString()));
    answer(context, date.isValid() ? formatDate(date.toDate(), stringOf(arguments[1])) : value);
}

/// The number at the beginning of a text, 0 when there is none.
void val(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNumber(arguments[0]))
        return sqlite3_result_value(context, arguments[0]);
    // Most are a digit or two; this runs over every row of a list.
    constexpr size_t kShort = 9;
    const std::string_view digits = textOf(arguments[0]);
    if (digits.size() <= kShort
        && std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        int whole = 0;
        for (const char digit : digits)
            whole = whole * 10 + (digit - '0');
        return sqlite3_result_int(context, whole);
    }
    const QString text = stringOf(arguments[0]).remove(u' ');
    qsizetype end = 0;
    while (end < text.size() && (text[end].isDigit() || text[end] == u'.' || (end == 0 && text[end] == u'-')))
        ++end;
    const double number = QStringView(text).left(end).toDouble();
    if (number == std::floor(number) && std::fabs(number) < 1e15)
        sqlite3_result_int64(context, qint64(number));
    else
        sqlite3_result_double(context, number);
}

void cstr(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[0]))
        return sqlite3_result_error(context, "a null is no text", -1);
    answer(context, stringOf(arguments[0]));
}

/// A text on its way into a date column.
void date(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[0]))
        return;
    const auto iso = parseDateText(stringOf(arguments[0]));
    if (!iso)
        return sqlite3_result_error(context, "not a date", -1);
    answer(context, *iso);
}

/// A text on its way into a number column.
void number(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (sqlite3_value_numeric_type(arguments[0]) == SQLITE_TEXT)
        return sqlite3_result_error(context, "a text is no number", -1);
    sqlite3_result_value(context, arguments[0]);
}

/// `+`: two texts are joined, a number on one side adds, null with anything is null.
void add(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (isNull(arguments[0]) || isNull(arguments[1]))
        return;
    if (!isNumber(arguments[0]) && !isNumber(arguments[1]))
        return answer(context, stringOf(arguments[0]) + stringOf(arguments[1]));
    double sum = 0;
    for (int i = 0; i < 2; ++i) {
        if (sqlite3_value_numeric_type(arguments[i]) == SQLITE_TEXT)
            return sqlite3_result_error(context, "a text is no number", -1);
        sum += sqlite3_value_double(arguments[i]);
    }
    if (sum == std::floor(sum) && std::fabs(sum) < 1e15)
        sqlite3_result_int64(context, qint64(sum));
    else
        sqlite3_result_double(context, sum);
}

/// `&`: joins, null counts as empty, numbers become texts.
void join(sqlite3_context* context, int, sqlite3_value** arguments)
{
    answer(context, stringOf(arguments[0]) + stringOf(arguments[1]));
}

void power(sqlite3_context* context, int, sqlite3_value** arguments)
{
    if (!isNull(arguments[0]) && !isNull(arguments[1]))
        sqlite3_result_double(
            context, std::pow(sqlite3_value_double(arguments[0]), sqlite3_value_double(arguments[1])));
}

struct Function {
    const char* name;
    int arguments;
    void (*run)(sqlite3_context*, int, sqlite3_value**);
};

constexpr Function kFunctions[] = {
    {"jet_like_dao", 2, like<Way::Dao>},
    {"jet_like_ado", 2, like<Way::Ado>},
    {"jet_like_any_dao", -1, likeAny<Way::Dao>},
    {"jet_like_any_ado", -1, likeAny<Way::Ado>},
    {"jet_mid", 2, mid},
    {"jet_mid", 3, mid},
    {"jet_year", 1, datePart<DatePart::Year>},
    {"jet_month", 1, datePart<DatePart::Month>},
    {"jet_day", 1, datePart<DatePart::Day>},
    {"jet_format", 2, format},
    {"jet_val", 1, val},
    {"jet_cstr", 1, cstr},
    {"jet_date", 1, date},
    {"jet_number", 1, number},
    {"jet_add", 2, add},
    {"jet_join", 2, join},
    {"jet_power", 2, power},
};

} // namespace

void registerDialect(sqlite3* connection)
{
    sqlite3_create_collation_v2(connection, "JET", SQLITE_UTF8, nullptr, compareTexts, nullptr);
    for (const Function& function : kFunctions) {
        sqlite3_create_function_v2(connection, function.name, function.arguments,
            SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, nullptr, function.run, nullptr, nullptr,
            nullptr);
    }
}

} // namespace jet
