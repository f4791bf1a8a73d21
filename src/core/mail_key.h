#pragma once

#include <QString>

namespace core {

/// The key of a contact's item in the mail client, such as "17OV".
inline QString mailKeyOf(qint64 id)
{
    return QString::number(id) + QStringLiteral("OV");
}

} // namespace core
