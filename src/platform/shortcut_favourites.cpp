#include "platform/shortcut_favourites.h"

#include "platform/drive.h"
#include "platform/special_folders.h"
#include "platform/text_file.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int csidlFavourites = 6;

} // namespace

ShortcutFavourites::ShortcutFavourites(const Drive& drive, const SpecialFolders& folders)
    : m_drive(drive)
    , m_folders(folders)
{
}

bool ShortcutFavourites::AddFavourite(QStringView url, QStringView name, QStringView suffix)
{
    // simplified(): a line end in the address would start a second setting of the shortcut.
    const QString address = url.toString().simplified();
    const QString folder = m_folders.SpecialFolderPath(csidlFavourites);
    if (address.isEmpty() || !m_drive.ensureFolder(folder))
        return false;
    const QString file
        = folder + u'\\' + Drive::safeFileName(name.toString() + suffix.toString()) + u".url"_s;
    return writeText(m_drive, file, u"[InternetShortcut]\nURL="_s + address + u'\n');
}

} // namespace platform
