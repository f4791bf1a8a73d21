#pragma once

#include <utility>
#include <vector>

#include <QHash>
#include <QStringList>

#include "platform/clock.h"
#include "platform/contact_sync.h"
#include "platform/favourites.h"
#include "platform/help_viewer.h"
#include "platform/mail_account.h"
#include "platform/mail_client.h"
#include "platform/printer.h"
#include "platform/scanner.h"
#include "platform/serial_port.h"
#include "platform/shell.h"
#include "platform/sounds.h"
#include "platform/special_folders.h"
#include "platform/speller.h"
#include "platform/word_processor.h"

/// Services of the platform that only write down what was asked of them.
namespace support {

class FixedClock final : public platform::Clock {
public:
    explicit FixedClock(const QDateTime& time);
    explicit FixedClock(const QDate& day); ///< at noon

    void set(const QDateTime& time);
    QDateTime now() const override;

private:
    QDateTime m_time;
};

class RecordingSounds final : public platform::Sounds {
public:
    void play(QStringView path) override;

    QStringList played;
};

/// Opens all that it is asked to, or nothing, and knows the siblings that the test names.
class RecordingShell final : public platform::Shell {
public:
    bool openFile(QStringView path) override;
    bool openAddress(QStringView address) override;
    bool siblingExists(QStringView name) const override;
    bool startSibling(QStringView name, const QString& document = {}) override;
    void endProgram() override;

    QStringList siblings; ///< file names without the leading backslash
    bool opens = true; ///< whether there is a program for files and addresses
    QStringList openedFiles;
    QStringList openedAddresses;
    QStringList startedSiblings; ///< with the document behind one that was to open it
    int ends = 0;
};

/// Folders on the root drive, or what the test sets for a number.
class FixedFolders final : public platform::SpecialFolders {
public:
    QString SpecialFolderPath(int csidl) const override;

    QHash<int, QString> folders{{0x05, QStringLiteral("C:\\Documents")},
        {0x06, QStringLiteral("C:\\Favorites")}, {0x10, QStringLiteral("C:\\Desktop")},
        {0x1a, QStringLiteral("C:\\Application Data")}};
};

class RecordingFavourites final : public platform::Favourites {
public:
    bool AddFavourite(QStringView url, QStringView name, QStringView suffix) override;

    std::vector<std::pair<QString, QString>> added; ///< name with suffix, address
};

class RecordingHelpViewer final : public platform::HelpViewer {
public:
    void openHelp(QStringView path) override;

    QStringList opened;
};

/// Draws every page to nowhere, as a printer does, and keeps what was printed.
class RecordingPrinter final : public platform::Printer {
public:
    platform::Printed print(const platform::PrintJob& job, QWidget* over) override;

    QStringList printed; ///< "title: pages"
    platform::Printed answer = platform::Printed::Yes;
};

/// A mail client whose contacts lie in memory.
class RecordingMailContacts final : public platform::MailContacts {
public:
    bool add(const platform::MailContact& contact) override;
    bool update(const QString& key, const platform::MailChange& change) override;
    bool assignKey(const QString& item, const QString& key) override;
    bool remove(const QString& key) override;
    bool contains(const QString& key) override;
    std::vector<platform::MailContact> list() override;
    QStringList items() override;
    std::optional<platform::MailContact> item(const QString& item) override;

    std::vector<platform::MailContact> contacts;
    QStringList calls; ///< "add 17OV", "update 17OV", "remove 17OV", also those that failed

private:
    std::vector<platform::MailContact>::iterator find(const QString& key);

    int m_lastItem = 0;
};

/// A mail client that keeps what it was given. It splits addresses and takes those that hold an "@".
class RecordingMail final : public platform::MailClient {
public:
    platform::MailAnswer<platform::MailItem> CreateItem() override;
    platform::MailResult ResolveAll(const platform::MailItem& item) override;
    platform::MailResult Send(const platform::MailItem& item) override;
    platform::MailResult Display(const platform::MailItem& item) override;
    platform::MailAnswer<std::vector<platform::MailFolder>> Folders(const QString& folder = {}) override;
    platform::MailAnswer<QStringList> Items(const QString& folder) override;
    platform::MailAnswer<platform::MailHead> Item(const QString& EntryID) override;
    platform::MailAnswer<platform::MailText> Text(const QString& EntryID) override;

    std::vector<platform::MailItem> sent;
    std::vector<platform::MailItem> displayed;
    QString refusal; ///< the cause with which every call fails, when it is not empty

    struct Stored {
        QString folder; ///< EntryID
        platform::MailHead head;
        platform::MailText text;
    };
    /// What lies in its folders. Those below another one have a "/" in their EntryID.
    std::vector<platform::MailFolder> folders;
    std::vector<Stored> stored;

private:
    const Stored* find(const QString& EntryID) const;
};

/// An account whose password lies where the test says. Answers come at once.
class RecordingMailAccounts final : public platform::MailAccounts {
public:
    std::optional<platform::MailAccount> account() const override { return kept; }
    platform::MailResult store(const std::optional<platform::MailAccount>& account) override;
    void findPassword(Placed then) override;
    void keepPassword(const QString& password, Placed then) override;
    void sendTest(
        const platform::MailAccount& account, const std::optional<QString>& password, Tested then) override;

    std::optional<platform::MailAccount> kept;
    QString password;
    platform::PasswordPlace place = platform::PasswordPlace::SecretStore; ///< of one that is there
    QString refusal; ///< the cause with which store() fails, when it is not empty
    std::vector<std::pair<platform::MailAccount, std::optional<QString>>> tests;
    Tested pendingTest; ///< for the test to call when the server has answered
};

/// A modem that says what the test makes it say, on ports without devices until the test gives them one.
class ScriptedModem final : public platform::SerialPort, public platform::SerialDevices {
public:
    void CommPort(int number) override { port = number; }
    void Settings(const QString& set) override { settings = set; }
    bool PortOpen(bool open) override;
    bool PortOpen() const override { return isOpen; }
    int InBufferCount() const override { return int(waiting.size()); }
    void InBufferCount(int count) override { waiting.truncate(count); }
    bool Output(const QByteArray& bytes) override;
    QByteArray Input() override;
    QString fault() const override { return refusal; }
    void setListener(std::function<void()> to) override { listener = std::move(to); }

    QList<platform::SerialDevice> found() const override { return here; }
    QString device(int number) const override { return devices.value(number); }
    bool setDevice(int number, const QString& path) override;
    QString complaint(const QString& path) const override { return complaints.value(path); }

    void say(const QByteArray& bytes); ///< to the program
    void vanish();

    QByteArrayList written; ///< what the program sent
    QString refusal; ///< why the port can not be opened, when it is not empty
    QList<platform::SerialDevice> here;
    QHash<int, QString> devices;
    QHash<QString, QString> complaints;
    QString settings;
    int port = 0;
    bool isOpen = false;

private:
    void tell() const;

    QByteArray waiting;
    std::function<void()> listener;
};

/// A word processor that keeps what was typed, fields between double angles.
class RecordingWordProcessor final : public platform::WordProcessor {
public:
    bool create() override;
    QString setData(QStringView file, const QString& header, const QList<QStringList>& rows) override;
    void typeText(const QString& text) override { typed += text; }
    void typeField(const QString& column) override { typed += u'«' + column + u'»'; }
    void typeParagraphs(const formats::RichText& text) override { typed += text.plain() + u'\n'; }
    platform::MergeResult run(const QString& folder, const QString& stem) override;
    bool show() override;

    bool isThere = true;
    QString typed;
    QStringList data; ///< path, header and rows of the data file, the values with bars between
    QStringList merged; ///< "folder\\stem" of each document
    int shows = 0;
};

/// A scanner that answers at once: each page is the picture that the test gave it.
class ScriptedScanner final : public platform::Scanner {
public:
    bool isAvailable() const override { return true; }
    void findDevices(std::function<void(const QList<platform::ScannerDevice>&)> found) override
    {
        found(devices);
    }
    void scan(const platform::ScanOrder& order, std::function<void(const QString& cause)> done) override;
    void cancel() override { }

    QList<platform::ScannerDevice> devices;
    QByteArray picture;
    QList<platform::ScanOrder> orders;
};

/// A speller that knows all words but those that the test names.
class FixedSpeller final : public platform::Speller {
public:
    QStringList dictionaries() const override { return languages; }
    QString dictionary() const override { return languages.isEmpty() ? QString() : language; }
    bool setDictionary(const QString& name) override;
    bool isKnown(const QString& word) override;
    QStringList suggestions(const QString& word) override { return faults.value(word); }
    QStringList ownWords() const override { return own; }
    bool addWord(const QString& word) override;
    bool removeWord(const QString& word) override { return own.removeOne(word); }

    QHash<QString, QStringList> faults; ///< words that are wrong, with what may have been meant
    QStringList own;
    QStringList languages{QStringLiteral("en_US")};
    QString language = QStringLiteral("en_US");
    bool stores = true; ///< whether words can be added
    int checked = 0; ///< words that were looked up
};

} // namespace support
