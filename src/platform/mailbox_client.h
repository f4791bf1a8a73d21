#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "platform/mail_client.h"
#include "platform/mail_post.h"

namespace formats {
struct MailDraft;
}

namespace platform {

class Clock;
class Shell;

/// What a person does with a message that no mail program could show.
enum class PreviewChoice {
    Send,
    KeepInOutbox, ///< leaves with the next one that is sent
    KeepAsDraft,
};

/// The mail client of this program: folders of messages of its own, a way out through the person's account,
/// and the person's mail program for what they want to see first. Other programs may put further folders of
/// messages beside its own; they are read.
class MailboxClient final : public MailClient {
public:
    MailboxClient(
        const QString& mailBox, MailAccountFile& accounts, MailPost& post, Shell& shell, const Clock& clock);

    /// Shows a message when no mail program can.
    using Preview = std::function<PreviewChoice(const MailItem& item)>;
    void setPreview(Preview preview) { m_preview = std::move(preview); }

    MailAnswer<MailItem> CreateItem() override;
    MailResult ResolveAll(const MailItem& item) override;
    MailResult Send(const MailItem& item) override;
    MailResult Display(const MailItem& item) override;
    MailAnswer<std::vector<MailFolder>> Folders(const QString& folder = {}) override;
    MailAnswer<QStringList> Items(const QString& folder) override;
    MailAnswer<MailHead> Item(const QString& EntryID) override;
    MailAnswer<MailText> Text(const QString& EntryID) override;

    static constexpr qint64 maxAttachmentBytes = 25 * 1024 * 1024; ///< all of a message together
    static constexpr int maxRecipients = 500;

private:
    MailAnswer<formats::MailDraft> draftOf(const MailItem& item, bool isWhole) const;
    MailResult keep(const Maildir& folder, const formats::MailDraft& draft) const;
    bool showInMailProgram(const MailItem& item, const formats::MailDraft& draft) const;
    bool showAsFile(const formats::MailDraft& draft) const;
    MailResult showPreview(const MailItem& item, const formats::MailDraft& draft);
    QString pathOf(const QString& folder) const;
    const Maildir* folderOf(const QString& folder);

    QString m_mailBox;
    MailAccountFile& m_accounts;
    MailPost& m_post;
    Shell& m_shell;
    const Clock& m_clock;
    Preview m_preview;
    OutboxFolders m_outbox;
    Maildir m_drafts;
    std::unordered_map<QString, Maildir> m_read; ///< folders that were looked at, by EntryID
};

/// The address that hands a message without formats and attachments to a mail program; empty when it would be
/// longer than such programs take.
QString mailtoAddress(const MailItem& item);

} // namespace platform
