#include "transfer/cards/card_list_sql.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

constexpr QStringView kSelect
    = u"Select id,category1,category2,name,first,last,company,priority,h_web,b_web from Cnt_Main";

bool isChosen(const QString& value)
{
    return !value.trimmed().isEmpty() && value != u"All";
}

} // namespace

QString cardListSql(const QString& category, const QString& subcategory, const QString& priority)
{
    QString sql = kSelect.toString();
    QString word = u" where "_s;
    const auto narrow = [&](const QString& column, const QString& value) {
        if (!isChosen(value))
            return;
        sql += word + column + value + u'\'';
        word = u" and "_s;
    };
    narrow(u"category1='"_s, category);
    narrow(u"category2 ='"_s, subcategory);
    narrow(u"priority= '"_s, priority);
    return sql;
}

QString cardListOfSql(const QList<qint64>& ids)
{
    QStringList numbers;
    for (const qint64 id : ids)
        numbers << QString::number(id);
    return kSelect.toString() + u" where id in ( "_s + numbers.join(u',') + u')';
}

QString cardCategoriesSql()
{
    return u"Select Distinct category1 from cnt_main where category1 is not null and category1 <>''"_s;
}

QString cardSubcategoriesSql(const QString& category)
{
    return u"Select distinct category2 from cnt_main where category1='"_s + category + u'\'';
}

} // namespace transfer
