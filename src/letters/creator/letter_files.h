#pragma once

#include "letters/creator/letter_text.h"

#include <QByteArray>
#include <QSet>
#include <QStringList>

#include <functional>

namespace platform {
class Drive;
}

namespace letters {

/// A path of the book, or one of this computer that lies on no drive, as a path of this computer.
QString localPath(const platform::Drive& drive, const QString& path);

/// A folder into which letters are written, each under the name of its reader. Nothing that lies there is
/// ever replaced: of two readers with one name the second file gets a number.
class LetterFolder {
public:
    /// @param folder as the program writes paths, or a folder of this computer
    LetterFolder(const platform::Drive& drive, const QString& folder);

    /// @return the path of the file as the book keeps it; empty when it could not be written
    QString write(const QString& reader, const QByteArray& bytes);
    void settle(); ///< the names of the files reach the disk
    void removeWritten();
    /// A piece of a sentence: why the last file could not be written.
    QString whyNot() const { return m_whyNot; }

private:
    QString freeName(const QString& reader);

    const platform::Drive& m_drive;
    QString m_folder; ///< on this computer
    QSet<QString> m_taken;
    QStringList m_written;
    QString m_whyNot;
};

/// What became of letters that were to be written as files.
struct LettersWritten {
    QStringList readers; ///< whose letter was written
    QStringList missing; ///< whose was not
    QString whyNot; ///< a piece of a sentence, when writing failed
    bool stopped = false; ///< by the person
};

/// Called before each letter with its number and reader; false ends the work.
using BeforeLetter = std::function<bool(int done, const QString& reader)>;

/// Writes one file a reader, until one can not be written.
LettersWritten writeLetterFiles(LetterFolder& folder, const QList<Recipient>& recipients,
    const std::function<formats::RichText(const Recipient&)>& letterTo, const BeforeLetter& before);

} // namespace letters
