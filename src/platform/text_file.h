#pragma once

#include <optional>

#include <QSaveFile>
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

/// A text file that is written line by line, as long as it may become. It takes the place of the file of that
/// name when it is whole; what is not committed leaves nothing behind.
class TextFileWriter {
public:
    explicit TextFileWriter(const QString& localPath);

    bool isOpen() const { return m_file.isOpen(); }
    /// Writes the text and ends its line. The text itself has CR LF where it has several lines.
    bool writeLine(QStringView text);
    bool commit();
    /// A piece of a sentence: why the last of these failed.
    QString whyNot() const;

private:
    QSaveFile m_file;
};

} // namespace platform
