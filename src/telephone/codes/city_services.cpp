#include "telephone/codes/city_services.h"

#include "core/contact_category.h"
#include "core/sql_text.h"
#include "jet/date_text.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace telephone {

QString CityService::numberToDial() const
{
    const auto first = std::ranges::find_if(phones, [](const QString& phone) { return !phone.isEmpty(); });
    return first == phones.end() ? QString() : areaCode + *first;
}

QString servicesSql(const QString& city, const QString& category)
{
    if (city.isEmpty())
        return u"select * from WIA_CITYUTILITY order by CITY,STATE,CATEGORY"_s;
    const QString ofCity
        = u" select * from WIA_CITYUTILITY where [CITY] = '"_s + core::inQuotes(city) + u'\'';
    return category.isEmpty() ? ofCity : ofCity + u" and [CATEGORY] = '"_s + core::inQuotes(category) + u'\'';
}

QString serviceCitiesSql()
{
    return u"select distinct CITY from WIA_CITYUTILITY"_s;
}

QString serviceCategoriesSql(const QString& city)
{
    return u"select distinct CATEGORY from WIA_CITYUTILITY where [CITY]= '%1' order by CATEGORY"_s.arg(
        core::inQuotes(city));
}

QString contactCategoriesForServicesSql()
{
    return u"select distinct CATEGORY1 from CNTB_CATEGORIES where [DELETED] = false"_s;
}

QString savedServicesSql(SavedBy order)
{
    return u"select * from CNT_MAIN where code_1b <> null order by "_s
        + (order == SavedBy::City ? u"B_CITY"_s : u"CATEGORY2"_s);
}

CityService serviceOf(const jet::Recordset& rows, int row, jet::Database& info, bool nationalMode)
{
    const auto text = [&](QStringView column) { return rows.textAt(row, rows.columnIndex(column)); };
    CityService service{.id = text(u"id").toLongLong(),
        .city = text(u"CITY"),
        .state = text(u"STATE"),
        .subcategory = text(u"SubCategory"),
        .name = text(u"uname"),
        .address = text(u"Address"),
        .areaCode = {},
        .phones = {text(u"phone1"), text(u"phone2"), text(u"phone3")}};
    const QString city = core::inQuotes(service.city);
    for (const bool home : {nationalMode, !nationalMode}) {
        const auto codes
            = info.openRecordset(home ? u"Select std from wia_india where city='"_s + city + u'\''
                                      : u"Select cityisd from wia_city where city='"_s + city + u'\'');
        service.areaCode = codes.hasRow() ? codes.textAt(0) : QString();
        if (!service.areaCode.isEmpty())
            break;
    }
    return service;
}

ServiceCopied copyService(
    jet::Database& book, const CityService& service, const ServiceCopy& copy, int addressSize)
{
    const QString code = u"CU"_s + QString::number(service.id);
    if (!book.openRecordset(u"select * from cnt_main where code_1b= '"_s + code + u'\'').isEmpty())
        return ServiceCopied::AlreadyThere;
    const jet::Step step(
        book, QCoreApplication::translate("telephone", "adding %1").arg(service.name.simplified()));
    jet::Batch batch(book);
    jet::Recordset rows = book.openRecordset(u"Select * from cnt_main where 1>2"_s);
    rows.addNew();
    const struct {
        QStringView column;
        QString value;
    } values[] = {
        {u"Name", service.name},
        {u"Company", service.name},
        {u"Nview", u"Company"_s},
        {u"h_city", service.city},
        {u"b_city", service.city},
        {u"category1", copy.category},
        {u"category2", core::orUndefined(service.subcategory)},
        {u"b_add1", service.address.left(addressSize)},
        {u"b_state", service.state},
        {u"B_std", service.areaCode},
        {u"B_Ph1", service.phones.value(0)},
        {u"B_Ph2", service.phones.value(1)},
        {u"B_ph3", service.phones.value(2)},
        {u"code_1b", code},
        {u"Priority", copy.priority.isEmpty() ? u"2"_s : copy.priority},
        {u"Product", core::orUndefined({})},
        {u"Status", core::orUndefined({})},
        {u"region", core::orUndefined({})},
        {u"dateEnter", jet::isoDate(copy.today)},
        {u"DateModi", jet::isoDate(copy.today)},
    };
    for (const auto& [column, value] : values) {
        if (!value.isEmpty())
            rows.set(column, value);
    }
    return rows.update() && batch.commit() ? ServiceCopied::Copied : ServiceCopied::NotStored;
}

} // namespace telephone
