#pragma once

#include <optional>

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QStringList>

namespace platform {

/// A folder of messages, a file each, in the layout that mail programs share: what is being written lies in
/// `tmp`, what is whole in `new` or `cur`. A message has one name for as long as it lives, also in another
/// folder; what such programs note behind it is no part of the name. Links are not followed.
class Maildir {
public:
    explicit Maildir(QString folder);

    const QString& folder() const { return m_folder; }
    static bool isOne(const QString& folder);
    bool make() const;

    /// Stores a message. When it answers with the name, the message survives the end of the program and of
    /// the power; before, there is none of it.
    std::optional<QString> deliver(const QByteArray& message, const QDateTime& now) const;
    /// One step, after which the message lies in the other folder only. False when it is not here any more,
    /// or could not be moved.
    bool moveTo(const QString& name, const Maildir& other) const;
    bool remove(const QString& name) const;

    /// The oldest first. Costs one look at the folder.
    QStringList names() const;
    bool contains(const QString& name) const;
    /// Nothing for a message that is gone or larger, unless its beginning is enough.
    std::optional<QByteArray> read(const QString& name, qint64 most) const;
    std::optional<QByteArray> beginning(const QString& name, qint64 bytes) const;
    QDateTime timeOf(const QString& name) const; ///< when it was put here, or delivered

private:
    QString fileOf(const QString& name) const;
    void look() const;

    QString m_folder;
    mutable QHash<QString, QString> m_files; ///< by name, as they were seen last
};

} // namespace platform
