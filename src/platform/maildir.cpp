#include "platform/maildir.h"

#include <algorithm>
#include <atomic>
#include <cstdio>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSysInfo>
#include <QUuid>

#include "platform/durable_files.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int kMaxMessages = 100'000;

/// Sorts by time, and no other program on this or another computer makes the same one.
QString uniqueName(const QDateTime& now)
{
    static std::atomic<int> count = 0;
    QString host = QSysInfo::machineHostName().left(40);
    std::replace_if(
        host.begin(), host.end(), [](QChar c) { return !c.isLetterOrNumber() && c != u'-'; }, u'_');
    const qint64 ms = std::max<qint64>(0, now.toMSecsSinceEpoch());
    return u"%1.M%2Q%3P%4R%5.%6"_s.arg(ms / 1000, 10, 10, QChar(u'0'))
        .arg(ms % 1000 * 1000, 6, 10, QChar(u'0'))
        .arg(++count, 6, 10, QChar(u'0'))
        .arg(QCoreApplication::applicationPid())
        .arg(QUuid::createUuid().toString(QUuid::Id128).left(12), host);
}

bool isName(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && !name.contains(u'/') && !name.contains(u':')
        && !name.contains(QChar(0));
}

} // namespace

Maildir::Maildir(QString folder)
    : m_folder(std::move(folder))
{
}

bool Maildir::isOne(const QString& folder)
{
    const auto has = [&folder](const QString& name) {
        const QFileInfo info(folder + u'/' + name);
        return info.isDir() && !info.isSymLink();
    };
    return has(u"new"_s) && has(u"cur"_s);
}

bool Maildir::make() const
{
    const QStringList parts{u"/tmp"_s, u"/new"_s, u"/cur"_s};
    return std::all_of(
        parts.begin(), parts.end(), [this](const QString& part) { return QDir().mkpath(m_folder + part); });
}

std::optional<QString> Maildir::deliver(const QByteArray& message, const QDateTime& now) const
{
    if (!make())
        return std::nullopt;
    const QString name = uniqueName(now);
    const QString draft = m_folder + u"/tmp/"_s + name;
    QFile file(draft);
    bool done = file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.write(message) == message.size()
        && file.flush();
    file.close();
    done = done && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)
        && putInPlace(draft, m_folder + u"/new/"_s + name);
    if (done)
        return name;
    QFile::remove(draft);
    return std::nullopt;
}

bool Maildir::moveTo(const QString& name, const Maildir& other) const
{
    const QString file = fileOf(name);
    const QString target = other.m_folder + u"/cur/"_s + name;
    if (file.isEmpty() || !other.make()
        || std::rename(QFile::encodeName(file).constData(), QFile::encodeName(target).constData()) != 0)
        return false;
    // The new name first: after a power cut the message may be in both folders, but never in none.
    syncFolder(other.m_folder + u"/cur"_s);
    syncFolder(QFileInfo(file).absolutePath());
    return true;
}

bool Maildir::remove(const QString& name) const
{
    const QString file = fileOf(name);
    return !file.isEmpty() && QFile::remove(file);
}

void Maildir::look() const
{
    m_files.clear();
    for (const QString& part : {u"/new"_s, u"/cur"_s}) {
        QDirIterator entries(m_folder + part, QDir::Files | QDir::NoSymLinks);
        while (entries.hasNext() && m_files.size() < kMaxMessages) {
            const QString path = entries.next();
            const QString name = entries.fileName().section(u':', 0, 0);
            if (isName(name))
                m_files.insert(name, path);
        }
    }
}

QStringList Maildir::names() const
{
    look();
    QStringList names = m_files.keys();
    std::sort(names.begin(), names.end());
    return names;
}

QString Maildir::fileOf(const QString& name) const
{
    if (!isName(name))
        return {};
    const auto known = [this, &name] {
        const QString path = m_files.value(name);
        const QFileInfo info(path);
        return !path.isEmpty() && info.isFile() && !info.isSymLink() ? path : QString();
    };
    const QString path = known();
    if (!path.isEmpty())
        return path;
    // Delivered, moved or marked since.
    look();
    return known();
}

bool Maildir::contains(const QString& name) const
{
    return !fileOf(name).isEmpty();
}

std::optional<QByteArray> Maildir::read(const QString& name, qint64 most) const
{
    const std::optional<QByteArray> bytes = beginning(name, most + 1);
    return bytes && bytes->size() <= most ? bytes : std::nullopt;
}

std::optional<QByteArray> Maildir::beginning(const QString& name, qint64 bytes) const
{
    QFile file(fileOf(name));
    if (file.fileName().isEmpty() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.read(bytes);
}

QDateTime Maildir::timeOf(const QString& name) const
{
    const QString path = fileOf(name);
    return path.isEmpty() ? QDateTime() : QFileInfo(path).lastModified();
}

} // namespace platform
