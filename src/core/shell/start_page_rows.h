#pragma once

#include <QDate>
#include <QString>

namespace shell {

/// The contacts whose name, company, mobile number or e-mail address holds what was typed.
QString startSearchSql(const QString& typed);
/// The contacts that were changed in the last weeks, the last first.
QString changedLatelySql(QDate today);
QString contactCountSql();

} // namespace shell
