#pragma once

#include <QStringList>

#include <span>

namespace views {

/// The unnamed column of the list by last change, as statements name it.
inline constexpr QStringView kChangedColumn = u"Expr1001";

/// One way to sort the list of the record selector.
struct SelectorSort {
    QStringView word;
    QStringView select;
    QStringView letterColumn; ///< that the letter tabs test
    QStringView order;
    QStringView headings;
    const char* label; ///< for translation, "" for none
    const char* caption; ///< of the tab, for translation
    QStringView outline; ///< the column under whose texts the rows stand, empty for none
};

/// In the order of the tabs; the first is the one that a selector opens with.
std::span<const SelectorSort> selectorSorts();

/// The captions of the letter tabs, and the word that a tab stands for: "All", or its first letter.
QStringList selectorLetters();
QString letterWord(const QString& caption);

/// The list of a sort and a letter word, narrowed by a where clause without its leading word, or by an empty
/// one.
QString selectorSql(const SelectorSort& sort, const QString& letter, const QString& clause);

/// What stands in the quick combos.
struct QuickChoices {
    QString city;
    QString priority;
    QString category;
    QString subcategory;
};

/// The where clause of the quick combos, without its leading word.
QString quickClause(const QuickChoices& choices);

QString quickCitiesSql();
QString quickCategoriesSql();
QStringList quickPriorities();
/// The subcategories on offer when the selector opens, and those after a category was chosen.
QString quickSubcategoriesSql();
QString quickSubcategoriesSql(const QString& category);

/// A month as the list by last change has it, "Jun-2026", the way it is shown: "Jun 26".
QString shortMonth(const QString& month);

} // namespace views
