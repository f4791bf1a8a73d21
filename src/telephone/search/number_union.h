#pragma once

#include <QString>
#include <QStringView>

#include <span>

namespace telephone {

/// A number that searches look at and a change of numbers changes: all slots but the fax.
struct SearchedSlot {
    QStringView column;
    QStringView city; ///< the column of the city that the number is taken to be in
};
/// In the order in which statements have them.
std::span<const SearchedSlot> searchedSlots();

/// All numbers of a city, of the whole book where the city is blank, or those anywhere with such a piece.
/// The columns are `id`, `name`, `category1` and `phone`.
QString numbersSql(const QString& city, const QString& piece);
/// The numbers that begin so, of a city or of the whole book.
QString numbersBeginningSql(const QString& begin, const QString& city);

/// The cities in which contacts live.
QString homeCitiesSql();

} // namespace telephone
