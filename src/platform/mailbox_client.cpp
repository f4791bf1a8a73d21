#include "platform/mailbox_client.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>

#include "formats/mail_message.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/mail_account_file.h"
#include "platform/shell.h"
#include "platform/storage.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int kMaxMailto = 2000;
constexpr int kMaxAddressLine = 100'000;
constexpr qsizetype kMaxBody = 4 * 1024 * 1024;
constexpr qint64 kMaxMessageBytes = 64 * 1024 * 1024;
constexpr int kMaxDepth = 8;
constexpr int kMaxFolders = 1000;
constexpr int kShownKept = 20;

QString tr(const char* text)
{
    return QCoreApplication::translate("platform", text);
}

QString cleanAddresses(const QString& line)
{
    QStringList addresses;
    for (const formats::Mailbox& mailbox : formats::readMailboxes(line).good)
        addresses << QString::fromLatin1(QUrl::toPercentEncoding(mailbox.address, "@"));
    return addresses.join(u',');
}

struct Line {
    QString MailItem::*of;
    std::vector<formats::Mailbox> formats::MailDraft::*to;
};
constexpr Line kLines[] = {{&MailItem::To, &formats::MailDraft::to}, {&MailItem::CC, &formats::MailDraft::cc},
    {&MailItem::BCC, &formats::MailDraft::bcc}};

/// Fills the recipients; what is wrong with them, or nothing.
QString resolve(const MailItem& item, formats::MailDraft& draft)
{
    size_t count = 0;
    for (const Line& line : kLines) {
        const QString& text = item.*line.of;
        if (text.size() > kMaxAddressLine)
            return tr("The message has too many recipients.");
        formats::Mailboxes read = formats::readMailboxes(text);
        if (!read.wrong.isEmpty())
            return tr("\"%1\" is no e-mail address.").arg(read.wrong.first().simplified().left(200));
        count += read.good.size();
        draft.*line.to = std::move(read.good);
    }
    if (count == 0)
        return tr("The message names nobody to send it to.");
    return count > size_t(MailboxClient::maxRecipients)
        ? tr("A message goes to at most %1 addresses.").arg(MailboxClient::maxRecipients)
        : QString();
}

/// Reads the files; what is wrong with them, or nothing.
QString attach(const QStringList& paths, formats::MailDraft& draft)
{
    qint64 left = MailboxClient::maxAttachmentBytes;
    for (const QString& path : paths) {
        const QFileInfo info(path);
        const QString name = info.fileName();
        if (!info.exists())
            return tr("The attachment \"%1\" is not there.").arg(path);
        QFile file(path);
        // Only a plain file: a pipe under that name would block.
        if (!info.isFile() || !file.open(QIODevice::ReadOnly))
            return tr("The attachment \"%1\" can not be read.").arg(name);
        const QByteArray bytes = file.read(left + 1);
        if (file.error() != QFileDevice::NoError)
            return tr("The attachment \"%1\" can not be read.").arg(name);
        left -= bytes.size();
        if (left < 0)
            return tr("The attachments have more than %1 MB together, which mail servers do not take.")
                .arg(MailboxClient::maxAttachmentBytes / (1024 * 1024));
        draft.attachments.push_back({name, QMimeDatabase().mimeTypeForFile(info).name().toLatin1(), bytes});
    }
    return {};
}

QString nameOfFolder(const QString& folder)
{
    static const std::pair<QLatin1StringView, const char*> known[]
        = {{"Outbox"_L1, QT_TRANSLATE_NOOP("platform", "Outbox")},
            {"Sent"_L1, QT_TRANSLATE_NOOP("platform", "Sent")},
            {"Drafts"_L1, QT_TRANSLATE_NOOP("platform", "Drafts")},
            {"Outbox/Sending"_L1, QT_TRANSLATE_NOOP("platform", "On the way")},
            {"Outbox/Failed"_L1, QT_TRANSLATE_NOOP("platform", "Failed")}};
    for (const auto& [id, name] : known) {
        if (id == folder)
            return tr(name);
    }
    return folder.section(u'/', -1);
}

QString goneCause()
{
    return tr("The message is not there any more.");
}

} // namespace

MailboxClient::MailboxClient(
    const QString& mailBox, MailAccountFile& accounts, MailPost& post, Shell& shell, const Clock& clock)
    : m_mailBox(mailBox)
    , m_accounts(accounts)
    , m_post(post)
    , m_shell(shell)
    , m_clock(clock)
    , m_outbox(mailBox)
    , m_drafts(mailBox + u"/Drafts"_s)
{
}

MailAnswer<MailItem> MailboxClient::CreateItem()
{
    if (m_outbox.waiting.make() && isWritable(m_outbox.waiting.folder() + u"/tmp"_s))
        return {};
    return {{}, tr("A message could not be kept: %1.").arg(whyNotWritable(m_outbox.waiting.folder()))};
}

MailResult MailboxClient::ResolveAll(const MailItem& item)
{
    formats::MailDraft draft;
    return {resolve(item, draft)};
}

// One that is not whole is still being written: whom it goes to may be missing.
MailAnswer<formats::MailDraft> MailboxClient::draftOf(const MailItem& item, bool isWhole) const
{
    formats::MailDraft draft;
    QString cause = resolve(item, draft);
    const bool isEmpty = QString(item.To + item.CC + item.BCC).trimmed().isEmpty();
    if (!isWhole && isEmpty)
        cause.clear();
    if (cause.isEmpty() && std::max(item.Body.size(), item.HTMLBody.size()) > kMaxBody)
        cause = tr("The text of the message is too long.");
    if (cause.isEmpty())
        cause = attach(item.Attachments, draft);
    if (!cause.isEmpty())
        return {{}, cause};
    if (const std::optional<MailAccount> account = m_accounts.account())
        draft.from = formats::Mailbox{account->name, account->address};
    draft.subject = item.Subject;
    draft.body = item.Body;
    draft.htmlBody = item.HTMLBody;
    draft.date = m_clock.now();
    return {std::move(draft), {}};
}

MailResult MailboxClient::keep(const Maildir& folder, const formats::MailDraft& draft) const
{
    if (folder.deliver(formats::mailBytes(draft), m_clock.now()))
        return {};
    return {tr("The message could not be kept: %1.").arg(whyNotWritable(folder.folder()))};
}

MailResult MailboxClient::Send(const MailItem& item)
{
    const MailAnswer<formats::MailDraft> draft = draftOf(item, true);
    if (!draft)
        return {draft.cause};
    const MailResult kept = keep(m_outbox.waiting, draft.value);
    if (kept)
        m_post.lookAtOutbox();
    return kept;
}

MailResult MailboxClient::Display(const MailItem& item)
{
    MailAnswer<formats::MailDraft> draft = draftOf(item, false);
    if (!draft)
        return {draft.cause};
    draft.value.isUnsent = true;
    if (showInMailProgram(item, draft.value))
        return {};
    draft.value.isUnsent = false;
    return showPreview(item, draft.value);
}

bool MailboxClient::showInMailProgram(const MailItem& item, const formats::MailDraft& draft) const
{
    if (item.HTMLBody.isEmpty() && item.Attachments.isEmpty()) {
        const QString address = mailtoAddress(item);
        if (!address.isEmpty() && m_shell.openAddress(address))
            return true;
    }
    return showAsFile(draft);
}

bool MailboxClient::showAsFile(const formats::MailDraft& draft) const
{
    QDir folder(m_mailBox + u"/Shown"_s);
    if (!folder.mkpath(u"."_s))
        return false;
    // The mail program may read its file late, so the last ones stay.
    const QStringList old = folder.entryList({u"*.eml"_s}, QDir::Files, QDir::Time);
    for (qsizetype i = kShownKept; i < old.size(); ++i)
        folder.remove(old[i]);
    const QString wanted = Drive::safeFileName(draft.subject.isEmpty() ? tr("Message") : draft.subject);
    QString name = wanted;
    for (int number = 2; folder.exists(name + u".eml"_s); ++number)
        name = wanted + u'-' + QString::number(number);
    QFile file(folder.filePath(name + u".eml"_s));
    const QByteArray bytes = formats::mailBytes(draft);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::NewOnly)
        && file.write(bytes) == bytes.size() && file.flush();
    file.close();
    if (isWritten && m_shell.openFile(file.fileName()))
        return true;
    file.remove();
    return false;
}

MailResult MailboxClient::showPreview(const MailItem& item, const formats::MailDraft& draft)
{
    if (!m_preview)
        return {tr("No mail program could show the message.")};
    switch (m_preview(item)) {
    case PreviewChoice::Send: return Send(item);
    case PreviewChoice::KeepInOutbox: {
        const MailResult whole = ResolveAll(item);
        return whole ? keep(m_outbox.waiting, draft) : whole;
    }
    case PreviewChoice::KeepAsDraft: return keep(m_drafts, draft);
    }
    return {};
}

/// The folder on this computer; empty for a text that names none.
QString MailboxClient::pathOf(const QString& folder) const
{
    const QStringList parts = folder.split(u'/');
    QString path = m_mailBox;
    for (const QString& part : parts) {
        path += u'/' + part;
        if (!Drive::isLegalName(part) || QFileInfo(path).isSymLink())
            return {};
    }
    return parts.size() <= kMaxDepth ? path : QString();
}

const Maildir* MailboxClient::folderOf(const QString& folder)
{
    const QString path = pathOf(folder);
    if (path.isEmpty() || !Maildir::isOne(path))
        return nullptr;
    return &m_read.try_emplace(folder, path).first->second;
}

MailAnswer<std::vector<MailFolder>> MailboxClient::Folders(const QString& folder)
{
    if (folder.isEmpty()) {
        for (const Maildir* own :
            {&m_outbox.waiting, &m_outbox.sending, &m_outbox.failed, &m_outbox.sent, &m_drafts}) {
            if (!own->make())
                return {{}, tr("The mail folders can not be read: %1.").arg(whyNotWritable(m_mailBox))};
        }
    }
    const QString path = folder.isEmpty() ? m_mailBox : pathOf(folder);
    if (path.isEmpty() || !QFileInfo(path).isDir())
        return {{}, tr("The folder is not there any more.")};
    const auto below = [](const QString& parent) {
        QStringList names;
        for (const QString& name :
            QDir(parent).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Name)) {
            if (names.size() < kMaxFolders && Drive::isLegalName(name)
                && Maildir::isOne(parent + u'/' + name))
                names << name;
        }
        return names;
    };
    std::vector<MailFolder> folders;
    for (const QString& name : below(path)) {
        const QString id = folder.isEmpty() ? name : folder + u'/' + name;
        folders.push_back({id, nameOfFolder(id), !below(path + u'/' + name).isEmpty()});
    }
    return {std::move(folders), {}};
}

MailAnswer<QStringList> MailboxClient::Items(const QString& folder)
{
    const Maildir* messages = folderOf(folder);
    if (!messages)
        return {{}, tr("The folder is not there any more.")};
    QStringList names = messages->names();
    std::reverse(names.begin(), names.end());
    for (QString& name : names)
        name = folder + u'/' + name;
    return {std::move(names), {}};
}

MailAnswer<MailHead> MailboxClient::Item(const QString& EntryID)
{
    const QString name = EntryID.section(u'/', -1);
    const QString folder = EntryID.section(u'/', 0, -2);
    const Maildir* messages = folderOf(folder);
    const auto bytes = messages ? messages->beginning(name, formats::kMaxTopBytes) : std::nullopt;
    if (!bytes)
        return {{}, goneCause()};
    const formats::MailTop top = formats::readMailTop(*bytes);
    const QString senderName = top.from.name.isEmpty() ? top.from.address : top.from.name;
    const QDateTime time = top.date.isValid() ? top.date.toLocalTime() : messages->timeOf(name);
    const QString note = folder == u"Outbox/Failed" ? m_outbox.reasonOf(name) : QString();
    return {{EntryID, senderName, top.from.address, top.to, top.subject, time, note}, {}};
}

MailAnswer<MailText> MailboxClient::Text(const QString& EntryID)
{
    const Maildir* messages = folderOf(EntryID.section(u'/', 0, -2));
    const auto bytes = messages ? messages->read(EntryID.section(u'/', -1), kMaxMessageBytes) : std::nullopt;
    if (!bytes)
        return {{}, goneCause()};
    const formats::MailTexts texts = formats::readMailTexts(*bytes);
    return {{texts.body, texts.htmlBody, texts.attachments}, {}};
}

QString mailtoAddress(const MailItem& item)
{
    const auto encoded = [](QString text) {
        text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', u"\r\n"_s);
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    QStringList query;
    const auto add = [&query](const QString& name, const QString& value) {
        if (!value.isEmpty())
            query << name + u'=' + value;
    };
    add(u"cc"_s, cleanAddresses(item.CC));
    add(u"bcc"_s, cleanAddresses(item.BCC));
    add(u"subject"_s, encoded(QString(item.Subject).replace(u'\r', u' ').replace(u'\n', u' ')));
    add(u"body"_s, encoded(item.Body));
    const QString address
        = u"mailto:"_s + cleanAddresses(item.To) + (query.isEmpty() ? QString() : u'?' + query.join(u'&'));
    return address.size() <= kMaxMailto ? address : QString();
}

} // namespace platform
