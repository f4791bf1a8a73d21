#pragma once

#include "jet/database.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace telephone {

/// A service of a city, such as its fire brigade.
struct CityService {
    qint64 id = 0;
    QString city;
    QString state;
    QString subcategory;
    QString name;
    QString address;
    QString areaCode; ///< of the city
    QStringList phones; ///< three, some of them blank

    /// With the area code ahead; blank for a service without a number.
    QString numberToDial() const;
};

/// All services by city, or those of a city, and of a category of it.
QString servicesSql(const QString& city, const QString& category);
QString serviceCitiesSql();
QString serviceCategoriesSql(const QString& city);
/// The categories that a copy can be put into.
QString contactCategoriesForServicesSql();

enum class SavedBy { City, Utility };
/// The services that were copied into the address book.
QString savedServicesSql(SavedBy order);

/// The service of the current row; its area code is looked up among the cities of the home country or of the
/// world, first where the person lives.
CityService serviceOf(const jet::Recordset& rows, int row, jet::Database& info, bool nationalMode);

enum class ServiceCopied { Copied, AlreadyThere, NotStored };
struct ServiceCopy {
    QString category;
    QString priority; ///< of new contacts
    QDate today;
};
/// Makes a contact of a service, as one step to take back.
/// @param addressSize how many characters the first line of an address takes
ServiceCopied copyService(
    jet::Database& book, const CityService& service, const ServiceCopy& copy, int addressSize);

} // namespace telephone
