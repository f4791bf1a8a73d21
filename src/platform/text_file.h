#pragma once

#include <optional>

#include <QString>

namespace platform {

class Drive;

/// Text files as the program keeps them: code page 1252, lines ended by CR LF. Paths are those of this
/// computer; the overloads with a drive take the program's spelling. Files above 64 MB are not read.

/// The text with its lines ended by '\n'; nothing when the file can't be read.
std::optional<QString> readText(const QString& localPath);
std::optional<QString> readText(const Drive& drive, QStringView path);

/// The text of a file of another program, UTF-8 or the code page, with its line ends as they are.
std::optional<QString> readForeignText(const QString& localPath);

/// Replaces the file as a whole or leaves the old one as it was. Any kind of line end is written as CR LF.
bool writeText(const QString& localPath, QStringView text);
bool writeText(const Drive& drive, QStringView path, QStringView text);

} // namespace platform
