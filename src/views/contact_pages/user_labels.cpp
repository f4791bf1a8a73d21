#include "views/contact_pages/user_labels.h"

#include "jet/database.h"
#include "jet/recordset.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace views {

QStringList userLabels(jet::Database& data)
{
    const jet::Recordset setup = data.openRecordset(u"select * from CNTB_SETUP"_s);
    QStringList labels;
    for (int number = 1; number <= 3; ++number) {
        const QString own = setup.textOrEmpty(u"lbluse%1"_s.arg(number)).trimmed();
        labels << (own.isEmpty() ? QCoreApplication::translate("views", "User %1").arg(number) : own);
    }
    return labels;
}

} // namespace views
