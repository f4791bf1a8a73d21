#include "jet/date_text.h"
#include "jet/letter_case.h"
#include "jet/like_pattern.h"

#include <QDate>
#include <QDateTime>

#include <cstdlib>
#include <string_view>

/// Dates, patterns and the order of texts: what is accepted must be in its stored form, and the order must be
/// one.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string_view all(reinterpret_cast<const char*>(data), size);
    const std::string_view first = all.substr(0, size / 3);
    const std::string_view second = all.substr(size / 3, size / 3);
    const std::string_view third = all.substr(size / 3 * 2);

    const QString text = QString::fromUtf8(all.data(), qsizetype(all.size()));
    if (const auto iso = jet::parseDateText(text)) {
        if (!jet::dateFromIso(*iso).isValid() || jet::parseDateText(*iso) != iso)
            std::abort();
    }
    jet::formatDate(QDate(2026, 6, 15), text);
    jet::readDate(text, jet::DateOrder::DayFirst, QDate(2026, 6, 15));
    jet::dateFromIso(text);

    for (const jet::Way way : {jet::Way::Dao, jet::Way::Ado}) {
        if (const auto pattern = jet::LikePattern::compile(first, way))
            pattern->matches(all.substr(first.size()));
    }

    const auto sign = [](int number) { return (number > 0) - (number < 0); };
    const int ab = sign(jet::compareJet(first, second));
    const int bc = sign(jet::compareJet(second, third));
    const int ac = sign(jet::compareJet(first, third));
    if (jet::compareJet(first, first) != 0 || ab != -sign(jet::compareJet(second, first)))
        std::abort();
    if (ab == bc && ac != ab)
        std::abort();
    if (ab == 0 && ac != bc)
        std::abort();
    return 0;
}
