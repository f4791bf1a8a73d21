#pragma once

#include <QList>
#include <QString>

/// The statements behind the list of contacts that can be written as cards.
namespace transfer {

/// A blank value, or "All", narrows nothing.
QString cardListSql(const QString& category, const QString& subcategory, const QString& priority);
QString cardListOfSql(const QList<qint64>& ids);
QString cardCategoriesSql();
QString cardSubcategoriesSql(const QString& category);

} // namespace transfer
