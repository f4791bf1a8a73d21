#include "platform/vdir_contacts.h"

#include <algorithm>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QUuid>

#include "platform/contact_card.h"
#include "platform/drive.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qint64 maxCardSize = 1024 * 1024;
constexpr int maxFiles = 100'000;
// How many items of one key are told apart by a number before a random name is taken.
constexpr int maxNumberedNames = 100;

bool isTaken(const QString& path)
{
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

} // namespace

VdirContacts::VdirContacts(const QString& folder)
    : m_folder(QDir::cleanPath(QDir(folder).absolutePath()))
{
}

bool VdirContacts::add(const MailContact& contact)
{
    if (!QDir().mkpath(m_folder))
        return false;
    const QString random = QUuid::createUuid().toString(QUuid::WithoutBraces);
    const QString wanted = contact.key.isEmpty() ? random : Drive::safeFileName(contact.key);
    QString name = wanted;
    for (int number = 2; isTaken(m_folder + u'/' + name + u".vcf"_s) && number <= maxNumberedNames; ++number)
        name = number == maxNumberedNames ? random : wanted + u'-' + QString::number(number);

    ContactCard card(name);
    card.setContact(contact);
    card.setKey(contact.key);
    return write(name + u".vcf"_s, card);
}

bool VdirContacts::update(const QString& key, const MailChange& change)
{
    const QString file = fileOf(key);
    std::optional<ContactCard> card = file.isEmpty() ? std::nullopt : read(file);
    if (!card)
        return false;
    MailContact contact = card->contact();
    change(contact);
    card->setContact(contact);
    return write(file, *card);
}

bool VdirContacts::assignKey(const QString& item, const QString& key)
{
    const QStringList files = cardFiles();
    std::optional<ContactCard> card = files.contains(item) ? read(item) : std::nullopt;
    if (!card)
        return false;
    card->setKey(key);
    m_files.clear();
    m_filesTime = {};
    return write(item, *card);
}

bool VdirContacts::remove(const QString& key)
{
    const QString file = fileOf(key);
    if (file.isEmpty() || !QFile::remove(m_folder + u'/' + file))
        return false;
    // Another item may bear the same key, so the next search looks again.
    m_filesTime = {};
    return true;
}

bool VdirContacts::contains(const QString& key)
{
    return !fileOf(key).isEmpty();
}

std::vector<MailContact> VdirContacts::list()
{
    std::vector<MailContact> contacts;
    for (const QString& file : cardFiles()) {
        if (std::optional<MailContact> contact = item(file))
            contacts.push_back(std::move(*contact));
    }
    return contacts;
}

QStringList VdirContacts::items()
{
    return cardFiles();
}

std::optional<MailContact> VdirContacts::item(const QString& item)
{
    const std::optional<ContactCard> card = item.contains(u'/') ? std::nullopt : read(item);
    if (!card)
        return std::nullopt;
    MailContact contact = card->contact();
    contact.item = item;
    return contact;
}

QStringList VdirContacts::cardFiles() const
{
    QStringList files;
    QDirIterator entries(m_folder, {u"*.vcf"_s}, QDir::Files | QDir::NoSymLinks);
    while (entries.hasNext() && files.size() < maxFiles) {
        entries.next();
        files << entries.fileName();
    }
    // By the name without its extension: "17OV" before "17OV-2".
    std::sort(files.begin(), files.end(), [](const QString& a, const QString& b) {
        return QStringView(a).chopped(4) < QStringView(b).chopped(4);
    });
    return files;
}

std::optional<ContactCard> VdirContacts::read(const QString& file) const
{
    const QString path = m_folder + u'/' + file;
    QFile card(path);
    if (QFileInfo(path).isSymLink() || !QFileInfo(path).isFile() || !card.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = card.read(maxCardSize + 1);
    return bytes.size() > maxCardSize ? std::nullopt : ContactCard::parse(bytes);
}

bool VdirContacts::write(const QString& file, const ContactCard& card)
{
    const QByteArray bytes = card.bytes();
    if (bytes.size() > maxCardSize)
        return false;
    const bool known = m_filesTime.isValid() && m_filesTime == folderTime();
    QSaveFile target(m_folder + u'/' + file);
    if (!target.open(QIODevice::WriteOnly))
        return false;
    target.write(bytes);
    // What is still in memory at the commit could fail unnoticed, and leave an empty file.
    if (!target.flush() || !target.commit())
        return false;
    // Our own write changed the folder's time; a bulk transfer must not read the whole folder again for each
    // card.
    if (known) {
        if (!card.key().isEmpty() && !m_files.contains(card.key()))
            m_files.insert(card.key(), file);
        m_filesTime = folderTime();
    }
    return true;
}

QString VdirContacts::fileOf(const QString& key)
{
    if (key.isEmpty())
        return {};
    if (!m_filesTime.isValid() || m_filesTime != folderTime())
        readKeys();
    const auto holds = [this, &key](const QString& file) {
        const std::optional<ContactCard> card = file.isEmpty() ? std::nullopt : read(file);
        return card && card->key() == key;
    };
    const QString file = m_files.value(key);
    if (file.isEmpty() || holds(file))
        return file;
    // Rewritten in place by another program, which the folder's time doesn't show.
    readKeys();
    return m_files.value(key);
}

void VdirContacts::readKeys()
{
    m_files.clear();
    m_filesTime = folderTime();
    for (const QString& file : cardFiles()) {
        const std::optional<ContactCard> card = read(file);
        if (card && !card->key().isEmpty() && !m_files.contains(card->key()))
            m_files.insert(card->key(), file);
    }
}

QDateTime VdirContacts::folderTime() const
{
    return QFileInfo(m_folder).lastModified();
}

} // namespace platform
