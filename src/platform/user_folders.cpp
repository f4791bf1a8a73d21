#include "platform/user_folders.h"

#include <algorithm>
#include <array>

#include <QStandardPaths>

#include "platform/drive.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

struct Folder {
    int csidl;
    QStandardPaths::StandardLocation location;
    const char16_t* below; ///< for what the desktop has no folder of its own
    const char16_t* usual;
};

constexpr std::array folders{
    Folder{0x00, QStandardPaths::DesktopLocation, u"", u"Desktop"},
    Folder{0x05, QStandardPaths::DocumentsLocation, u"", u"Documents"},
    Folder{0x06, QStandardPaths::HomeLocation, u"/Favorites", u"Favorites"},
    Folder{0x0d, QStandardPaths::MusicLocation, u"", u"Music"},
    Folder{0x0e, QStandardPaths::MoviesLocation, u"", u"Videos"},
    Folder{0x10, QStandardPaths::DesktopLocation, u"", u"Desktop"},
    Folder{0x1a, QStandardPaths::GenericDataLocation, u"", u"Application Data"},
    Folder{0x27, QStandardPaths::PicturesLocation, u"", u"Pictures"},
    Folder{0x28, QStandardPaths::HomeLocation, u"", u""},
};

} // namespace

UserFolders::UserFolders(const Drive& drive)
    : m_drive(drive)
{
}

QString UserFolders::SpecialFolderPath(int csidl) const
{
    const auto* folder
        = std::find_if(folders.begin(), folders.end(), [csidl](const Folder& f) { return f.csidl == csidl; });
    if (folder == folders.end())
        return {};
    const QString set = QStandardPaths::writableLocation(folder->location);
    QString path = set.isEmpty() ? QString() : m_drive.named(set + QString::fromUtf16(folder->below));
    if (path.isEmpty())
        path = u"C:\\"_s + QString::fromUtf16(folder->usual);
    if (path.endsWith(u'\\'))
        path.chop(1);
    return path;
}

} // namespace platform
