#pragma once

#include <QStringView>

namespace jet {

/// Whether two names or words of a statement are the same, without regard to case. Nearly all are plain
/// ASCII, for which a loop is several times faster than the general comparison; translating is little else
/// than this.
inline bool sameName(QStringView a, QStringView b)
{
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        const char16_t left = a[i].unicode();
        const char16_t right = b[i].unicode();
        if (left == right)
            continue;
        if ((left | right) >= 0x80)
            return a.compare(b, Qt::CaseInsensitive) == 0;
        if ((left ^ right) != 0x20 || (left | 0x20) < u'a' || (left | 0x20) > u'z')
            return false;
    }
    return true;
}

} // namespace jet
