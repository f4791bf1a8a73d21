#pragma once

#include <QString>

/// Moving whole files so that neither a crash nor a power cut leaves half of one.
namespace platform {

/// Writes what the system still holds back for a file, and for the folder that names it, to the disk.
bool syncToDisk(const QString& path);
/// The same for the names in a folder. Some file systems have no such thing, and do it by themselves.
void syncFolder(const QString& folder);
/// Gives a finished, synced file its name on the same disk; what bore that name before is replaced as one
/// step.
bool putInPlace(const QString& finished, const QString& name);
/// Lets a second name stand for the same bytes, by a copy where the file system can not do better. Never
/// overwrites.
bool keepUnderSecondName(const QString& path, const QString& secondName);

} // namespace platform
