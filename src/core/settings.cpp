#include "core/settings.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace core {

jet::Recordset readSettings(jet::Database& data)
{
    return data.openRecordset(u"select * from CNTB_SETUP"_s);
}

bool storeSetting(jet::Database& data, QStringView column, const QVariant& value)
{
    jet::Recordset settings = readSettings(data);
    if (settings.hasRow())
        settings.edit();
    else
        settings.addNew();
    settings.set(column, value);
    return settings.update();
}

QStringList userFieldLabels(const jet::Recordset& settings)
{
    QStringList labels;
    for (int number = 1; number <= 3; ++number) {
        const QString own = settings.textOrEmpty(u"lbluse%1"_s.arg(number)).trimmed();
        labels << (own.isEmpty() ? QCoreApplication::translate("core", "User %1").arg(number) : own);
    }
    return labels;
}

} // namespace core
