#pragma once

#include <QString>

namespace telephone {

/// The four kinds of telephone lists, in the order of their tabs.
enum class ListKind { User, Dialer, Contacts, Associations };

/// The names of the lists of a kind; empty for the contacts, which are one list.
QString listNamesSql(ListKind kind);
/// The numbers of a list: the person's id as `idd`, name and phone. For the contacts see contactPhonesSql().
QString listNumbersSql(ListKind kind, const QString& list);
/// A list right after it was made, with its bare row.
QString newListSql(const QString& list);

/// What the list of contacts is narrowed down by.
struct ContactTicks {
    bool priority1 = false;
    bool priority2 = false;
    bool homeCityOnly = false;
};
QString defaultCitySql();
/// @param hasDefaultCity whether defaultCitySql() has a row
QString contactPhonesSql(const ContactTicks& ticks, bool hasDefaultCity, const QString& homeCity);

/// What a printed list is made of.
QString printedNumbersSql(ListKind kind, const QString& list);

/// The choices above the contacts; "All" or blank for no condition.
struct ContactFilter {
    QString category;
    QString subcategory;
    QString city;
};
QString filteredContactsSql(const ContactFilter& filter);
QString allContactsSql();
QString contactCategoriesSql();
QString contactSubcategoriesSql(const QString& category);
QString contactCitiesSql();

/// The choices above the numbers that go to a text file.
struct NumberFilter {
    QString category;
    QString priority; ///< "1" to "4", "<=2", "<=3"
    QString city;
};
QString filteredNumbersSql(const NumberFilter& filter);

} // namespace telephone
