#pragma once

#include <optional>

#include <QString>
#include <QUrl>

namespace platform {

class Drive;

/// The address behind a text of the data, if it is one that may be handed to the desktop: http, https,
/// mailto, tel, sip or a file of this computer.
std::optional<QUrl> openableAddress(QStringView text);

/// Whether the file is a document below one of the folders, links followed, and nothing that the desktop
/// would run.
bool isOpenableFile(const QString& localPath, const QStringList& folders);

/// The program file of a sibling of that name in the program's folder; empty when there is none. The
/// extension
/// ".exe" may be missing on disk.
QString siblingProgram(const Drive& drive, QStringView name);

} // namespace platform
