#include "support/recording_services.h"

#include <QImage>
#include <QPainter>

#include <algorithm>

using namespace Qt::StringLiterals;
using platform::MailContact;

namespace support {

FixedClock::FixedClock(const QDateTime& time)
    : m_time(time)
{
}

FixedClock::FixedClock(const QDate& day)
    : m_time(day, QTime(12, 0))
{
}

void FixedClock::set(const QDateTime& time)
{
    m_time = time;
}

QDateTime FixedClock::now() const
{
    return m_time;
}

void RecordingSounds::play(QStringView path)
{
    played << path.toString();
}

bool RecordingShell::openFile(QStringView path)
{
    openedFiles << path.toString();
    return true;
}

bool RecordingShell::openAddress(QStringView address)
{
    openedAddresses << address.toString();
    return true;
}

bool RecordingShell::siblingExists(QStringView name) const
{
    return siblings.contains(name.startsWith(u'\\') ? name.mid(1) : name, Qt::CaseInsensitive);
}

bool RecordingShell::startSibling(QStringView name, const QString& document)
{
    if (!siblingExists(name))
        return false;
    startedSiblings
        << QString((name.startsWith(u'\\') ? name.mid(1) : name).toString() + u' ' + document).trimmed();
    return true;
}

void RecordingShell::endProgram()
{
    ++ends;
}

QString FixedFolders::SpecialFolderPath(int csidl) const
{
    return folders.value(csidl);
}

bool RecordingFavourites::AddFavourite(QStringView url, QStringView name, QStringView suffix)
{
    if (url.trimmed().isEmpty())
        return false;
    added.emplace_back(name.toString() + suffix.toString(), url.toString());
    return true;
}

void RecordingHelpViewer::openHelp(QStringView path)
{
    opened << path.toString();
}

platform::Printed RecordingPrinter::print(const platform::PrintJob& job, QWidget*)
{
    QImage paper(60, 80, QImage::Format_RGB32);
    for (int page = 1; page <= job.pages; ++page) {
        QPainter painter(&paper);
        job.paint(painter, page);
    }
    printed << job.title + u": "_s + QString::number(job.pages);
    return answer;
}

bool RecordingMailContacts::add(const MailContact& contact)
{
    calls << u"add "_s + contact.key;
    contacts.push_back(contact);
    contacts.back().item = u"item"_s + QString::number(++m_lastItem);
    return true;
}

bool RecordingMailContacts::update(const QString& key, const platform::MailChange& change)
{
    calls << u"update "_s + key;
    const auto found = find(key);
    if (found == contacts.end())
        return false;
    change(*found);
    return true;
}

bool RecordingMailContacts::assignKey(const QString& item, const QString& key)
{
    calls << u"assignKey "_s + item + u' ' + key;
    const auto found = std::find_if(
        contacts.begin(), contacts.end(), [&item](const MailContact& c) { return c.item == item; });
    if (found == contacts.end())
        return false;
    found->key = key;
    return true;
}

bool RecordingMailContacts::remove(const QString& key)
{
    calls << u"remove "_s + key;
    const auto found = find(key);
    if (found == contacts.end())
        return false;
    contacts.erase(found);
    return true;
}

bool RecordingMailContacts::contains(const QString& key)
{
    return find(key) != contacts.end();
}

std::vector<MailContact> RecordingMailContacts::list()
{
    return contacts;
}

QStringList RecordingMailContacts::items()
{
    QStringList items;
    for (const MailContact& contact : contacts)
        items << contact.item;
    return items;
}

std::optional<MailContact> RecordingMailContacts::item(const QString& item)
{
    const auto found = std::find_if(
        contacts.begin(), contacts.end(), [&item](const MailContact& c) { return c.item == item; });
    return found == contacts.end() ? std::nullopt : std::optional(*found);
}

std::vector<MailContact>::iterator RecordingMailContacts::find(const QString& key)
{
    return std::find_if(contacts.begin(), contacts.end(),
        [&key](const MailContact& c) { return !key.isEmpty() && c.key == key; });
}

} // namespace support
