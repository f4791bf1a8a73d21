#include "support/recording_services.h"

#include <QFile>
#include <QImage>
#include <QPainter>

#include <algorithm>

#include <QRegularExpression>

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
    return opens;
}

bool RecordingShell::openAddress(QStringView address)
{
    openedAddresses << address.toString();
    return opens;
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

platform::MailAnswer<platform::MailItem> RecordingMail::CreateItem()
{
    return {{}, refusal};
}

platform::MailResult RecordingMail::ResolveAll(const platform::MailItem& item)
{
    static const QRegularExpression between(u"[;,]"_s);
    const QStringList all
        = QStringList{item.To, item.CC, item.BCC}.join(u';').split(between, Qt::SkipEmptyParts);
    const auto wrong = std::find_if(
        all.begin(), all.end(), [](const QString& address) { return !address.contains(u'@'); });
    if (!refusal.isEmpty() || all.isEmpty())
        return {refusal.isEmpty() ? u"nobody to send to"_s : refusal};
    return {wrong == all.end() ? QString() : *wrong};
}

platform::MailResult RecordingMail::Send(const platform::MailItem& item)
{
    const platform::MailResult resolved = ResolveAll(item);
    if (resolved)
        sent.push_back(item);
    return resolved;
}

platform::MailResult RecordingMail::Display(const platform::MailItem& item)
{
    if (refusal.isEmpty())
        displayed.push_back(item);
    return {refusal};
}

platform::MailAnswer<std::vector<platform::MailFolder>> RecordingMail::Folders(const QString& folder)
{
    std::vector<platform::MailFolder> found;
    for (const platform::MailFolder& each : folders) {
        if (each.EntryID.section(u'/', 0, -2) == folder)
            found.push_back(each);
    }
    return {found, refusal};
}

platform::MailAnswer<QStringList> RecordingMail::Items(const QString& folder)
{
    QStringList found;
    for (const Stored& each : stored) {
        if (each.folder == folder)
            found << each.head.EntryID;
    }
    return {found, refusal};
}

platform::MailAnswer<platform::MailHead> RecordingMail::Item(const QString& EntryID)
{
    const Stored* found = find(EntryID);
    return {found ? found->head : platform::MailHead(), found ? refusal : u"gone"_s};
}

platform::MailAnswer<platform::MailText> RecordingMail::Text(const QString& EntryID)
{
    const Stored* found = find(EntryID);
    return {found ? found->text : platform::MailText(), found ? refusal : u"gone"_s};
}

const RecordingMail::Stored* RecordingMail::find(const QString& EntryID) const
{
    const auto found = std::find_if(
        stored.begin(), stored.end(), [&](const Stored& each) { return each.head.EntryID == EntryID; });
    return found == stored.end() ? nullptr : &*found;
}

platform::MailResult RecordingMailAccounts::store(const std::optional<platform::MailAccount>& account)
{
    if (refusal.isEmpty())
        kept = account;
    return {refusal};
}

void RecordingMailAccounts::findPassword(Placed then)
{
    then(password.isEmpty() ? platform::PasswordPlace::Nowhere : place);
}

void RecordingMailAccounts::keepPassword(const QString& secret, Placed then)
{
    password = secret;
    findPassword(std::move(then));
}

void RecordingMailAccounts::sendTest(
    const platform::MailAccount& account, const std::optional<QString>& secret, Tested then)
{
    tests.emplace_back(account, secret);
    pendingTest = std::move(then);
}

bool ScriptedModem::PortOpen(bool open)
{
    isOpen = open && refusal.isEmpty();
    return isOpen == open;
}

bool ScriptedModem::Output(const QByteArray& bytes)
{
    written << bytes;
    return isOpen;
}

QByteArray ScriptedModem::Input()
{
    return std::exchange(waiting, {});
}

bool ScriptedModem::setDevice(int number, const QString& path)
{
    devices[number] = path;
    return true;
}

void ScriptedModem::tell() const
{
    if (const auto told = listener)
        told();
}

void ScriptedModem::say(const QByteArray& bytes)
{
    waiting += bytes;
    tell();
}

void ScriptedModem::vanish()
{
    isOpen = false;
    tell();
}

bool RecordingWordProcessor::create()
{
    typed.clear();
    data.clear();
    return isThere;
}

QString RecordingWordProcessor::setData(
    QStringView file, const QString& header, const QList<QStringList>& rows)
{
    data = {file.toString(), header};
    for (const QStringList& row : rows)
        data << row.join(u'|');
    return {};
}

platform::MergeResult RecordingWordProcessor::run(const QString& folder, const QString& stem)
{
    merged << folder + u'\\' + stem;
    return {.files = {merged.constLast()}};
}

bool RecordingWordProcessor::show()
{
    ++shows;
    return true;
}

void ScriptedScanner::scan(const platform::ScanOrder& order, std::function<void(const QString& cause)> done)
{
    orders << order;
    QFile file(order.file);
    const bool isWritten = !picture.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(picture) > 0;
    file.close();
    done(isWritten ? QString() : u"Out of paper"_s);
}

bool FixedSpeller::setDictionary(const QString& name)
{
    if (languages.contains(name))
        language = name;
    return language == name;
}

bool FixedSpeller::isKnown(const QString& word)
{
    ++checked;
    return dictionary().isEmpty() || own.contains(word) || !faults.contains(word);
}

bool FixedSpeller::addWord(const QString& word)
{
    if (stores)
        own << word;
    return stores;
}

} // namespace support
