#pragma once

#include <QString>

class QSaveFile;

namespace platform {

/// Puts a file in the place of the old one when every byte of it was written; else the old one stays. Commits
/// alone do not notice when the last bytes, which wait in memory, find no room.
bool commitWhole(QSaveFile& file);

/// Bytes that this user can still write in the folder; -1 when the folder isn't there.
qint64 freeBytes(const QString& folder);

/// Whether a file can be made in the folder. It is tried, since the rights alone do not tell it for every
/// user and file system.
bool isWritable(const QString& folder);

/// A piece of a sentence for a person: why no file can be made or changed in the folder.
QString whyNotWritable(const QString& folder);

/// The same for one file of that name, which may be there already.
QString whyNotReplaced(const QString& localPath);

} // namespace platform
