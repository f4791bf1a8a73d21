#pragma once

#include <QHash>
#include <QStringList>

namespace platform {

class Drive;
class SpecialFolders;

/// A folder with one vCard file a person: an address book that other programs can read and write as well. A
/// list of its files costs one look at the folder; a file is opened when its text is asked for. Links are not
/// followed, and of a file above 1 MB there is no text.
class CardFolder {
public:
    /// As the program writes paths. A folder that no drive has is one without files.
    CardFolder(const Drive& drive, QStringView folder);

    /// The names of its cards, in order.
    QStringList files() const;
    /// The text of one of them, UTF-8 or the code page, with its line ends as they are.
    QString text(const QString& file) const;
    /// The first few thousand characters of it, which cost one read.
    QString beginning(const QString& file) const;

    enum class Written {
        Yes,
        BadName, ///< no file name, as one that would lie elsewhere
        Failed, ///< no room, no right to write, or something that is no file has the name
    };
    /// Writes lines to a card of that name, in place of one there is by the same letters in any case. Makes
    /// the folder.
    Written write(const QString& name, const QStringList& lines);

private:
    QByteArray bytes(const QString& file, qint64 most) const;
    bool makeReady();

    const Drive& m_drive;
    QString m_path;
    QString m_local; ///< on this computer; empty when there is no such folder
    bool m_ready = false;
    QHash<QString, QString> m_spellings; ///< of the files that are there, by lower-case name
};

/// The address book of the user's second mail client, below the desktop's folder of application data.
QString addressBookFolder(const SpecialFolders& folders);

} // namespace platform
