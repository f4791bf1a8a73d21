#include "core/contact_lookups.h"

using namespace Qt::StringLiterals;

namespace core {

QString contactListSql(const QString& whereClause)
{
    if (whereClause.isEmpty())
        return u"SELECT id,name FROM cnt_main ORDER BY Name "_s;
    return u"SELECT id,name FROM cnt_main "_s + whereClause + u" ORDER BY Name "_s;
}

QString contactByIdSql(qint64 id)
{
    return u"SELECT * FROM [cnt_main] WHERE id="_s + QString::number(id);
}

QString contactNameSql(qint64 id)
{
    return u"select id,name from cnt_main where id="_s + QString::number(id);
}

QString contactByNameSql(const QString& name)
{
    return u"Select * from cnt_main where name='"_s + name + u'\'';
}

QString contactCountSql()
{
    return u"select count(*) from cnt_main"_s;
}

} // namespace core
