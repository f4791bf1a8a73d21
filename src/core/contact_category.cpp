#include "core/contact_category.h"

#include "core/text_pieces.h"

using namespace Qt::StringLiterals;

namespace core {

QString orUndefined(const QString& entry)
{
    const QString trimmed = entry.trimmed();
    return trimmed.isEmpty() ? u"Undefined"_s : trimmed;
}

Category storedCategory(const QString& category, const QString& subcategory, bool merged)
{
    if (merged)
        return {orUndefined(PickByDash(category, 1)), orUndefined(PickByDash(category, 2))};
    return {orUndefined(category), orUndefined(subcategory)};
}

QString shownCategory(const Category& category, bool merged)
{
    return merged ? category.category + u'-' + category.subcategory : category.category;
}

} // namespace core
