#include "platform/drive.h"

#include <algorithm>

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int maxNameLength = 120;
// What common file systems allow for one name, less the room that an extension needs.
constexpr int maxNameBytes = 230;

bool isDeviceName(QStringView name)
{
    const QString stem
        = name.left(name.indexOf(u'.') < 0 ? name.size() : name.indexOf(u'.')).trimmed().toString().toUpper();
    if (stem == "CON"_L1 || stem == "PRN"_L1 || stem == "AUX"_L1 || stem == "NUL"_L1)
        return true;
    return stem.size() == 4 && (stem.startsWith("COM"_L1) || stem.startsWith("LPT"_L1))
        && QStringView(u"0123456789¹²³").contains(stem.back());
}

bool isTrimmedFromEnd(QChar c)
{
    return c == u'.' || c.isSpace();
}

} // namespace

bool Drive::exists(QStringView path) const
{
    const QString found = local(path);
    return !found.isEmpty() && QFileInfo::exists(found);
}

bool Drive::ensureFolder(QStringView path) const
{
    const QString folder = local(path);
    return !folder.isEmpty() && QDir().mkpath(folder);
}

bool Drive::isLegalName(QStringView name)
{
    // Dots and blanks at the end are dropped by such a drive, so "..." and ".. " would be other spellings of
    // "..".
    if (name.isEmpty() || name.endsWith(u'.') || name.endsWith(u' ') || !name.isValidUtf16())
        return false;
    return std::none_of(name.begin(), name.end(), [](QChar c) {
        return c.category() == QChar::Other_Control || QStringView(u"\\/:*?\"<>|").contains(c);
    });
}

QString Drive::safeFileName(QStringView name)
{
    QString safe;
    // Work is bounded by the bound on the result, however long the text is.
    const QStringView start = name.left(4 * maxNameLength).trimmed();
    for (qsizetype i = 0; i < start.size() && safe.size() < maxNameLength; ++i) {
        const QChar c = start[i];
        if (c.isHighSurrogate() && i + 1 < start.size() && start[i + 1].isLowSurrogate()) {
            if (safe.size() + 2 > maxNameLength)
                break;
            safe += c;
            safe += start[++i];
        } else if (c.isSurrogate() || c.category() == QChar::Other_Control
            || c.category() == QChar::Other_Format || QStringView(u"\\/:*?\"<>|").contains(c)) {
            safe += u'_';
        } else {
            safe += c;
        }
    }
    while (safe.toUtf8().size() > maxNameBytes)
        safe.chop(safe.back().isLowSurrogate() ? 2 : 1);
    while (!safe.isEmpty() && isTrimmedFromEnd(safe.back()))
        safe.chop(1);
    // A leading dot would hide the file.
    if (safe.startsWith(u'.'))
        safe[0] = u'_';
    if (safe.isEmpty())
        return u"_"_s;
    if (isDeviceName(safe))
        safe = (u'_' + safe).left(maxNameLength);
    return safe;
}

} // namespace platform
