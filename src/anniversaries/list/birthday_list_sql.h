#pragma once

#include "anniversaries/occasion.h"

#include <QDate>
#include <QStringList>

namespace anniversaries {

/// How the full list is put together anew: by the day, or in groups of what stands in the first column.
enum class Regrouping { Refresh, Categ, Priority, Month, Age, City };

/// Every birthday or anniversary of the book, with what the full view shows.
/// @param thisYear of which the age is told
QString fullListSql(Occasion occasion, Regrouping regrouping, int thisYear);
/// The same in calendar order, with what the short view shows.
QString shortListSql(Occasion occasion);

/// The heading string of a list and the columns under it.
struct ListHead {
    QString headings;
    QStringList columns;
    QString groupColumn; ///< the texts that stand over their rows; empty in the order of days
};
ListHead fullListHead(Occasion occasion, Regrouping regrouping);
ListHead shortListHead(Occasion occasion);

QString categoriesSql();
QString prioritiesSql();

/// The column with the day that is celebrated, "m_bd" for all birthdays.
QString dateColumn(Occasion occasion);
/// The same day once more, with its year.
QString secondDateColumn();
/// The ticks; not there in the short lists.
QString tickColumn();

/// The contact behind a row of the full list; the first of those with this name and category.
QString contactOfRowSql(const QString& contact, const QString& category);
/// The contact of that name, for the short list.
QString contactNamedSql(const QString& name);

/// A text within apostrophes, however many it holds.
QString quoted(const QString& text);

} // namespace anniversaries
