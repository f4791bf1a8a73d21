#pragma once

#include <QString>

namespace core {

struct Category {
    QString category;
    QString subcategory;
};

/// "Undefined" for a blank entry, the trimmed text otherwise: what lists of classes hold instead of nothing.
QString orUndefined(const QString& entry);

/// What is stored for the entries of the two lists, each trimmed, blanks as "Undefined". When category and
/// subcategory are kept as one entry, the first list holds both, joined by "-".
Category storedCategory(const QString& category, const QString& subcategory, bool merged);

/// The text of the category list: with "-" and the subcategory when they are kept as one entry.
QString shownCategory(const Category& category, bool merged);

} // namespace core
