#pragma once

#include <QDate>
#include <QString>

namespace anniversaries {

/// The sign that the year views tell of a day. Their limits are not those of the birthday list, and two of
/// the names are written in a way of their own. Empty for 29 February, which lies in no sign.
QString yearSign(QDate day);

} // namespace anniversaries
