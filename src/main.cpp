#include "anniversaries/register_anniversaries.h"
#include "core/context.h"
#include "core/screens.h"
#include "core/setup/register_setup.h"
#include "core/shell/mail_notice.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/register_shell.h"
#include "core/shell/start_up.h"
#include "core/shell/storage_notice.h"
#include "core/store/book_files.h"
#include "core/store/book_schema.h"
#include "editor/letter_merger.h"
#include "entry/register_entry.h"
#include "letters/register_letters.h"
#include "output/register_output.h"
#include "platform/clock.h"
#include "platform/desktop_boxes.h"
#include "platform/desktop_printer.h"
#include "platform/desktop_shell.h"
#include "platform/device_port.h"
#include "platform/folder_drive.h"
#include "platform/help_window.h"
#include "platform/hunspell_speller.h"
#include "platform/keychain_secrets.h"
#include "platform/mail_account_file.h"
#include "platform/mail_post.h"
#include "platform/mail_preview.h"
#include "platform/mailbox_client.h"
#include "platform/player_sounds.h"
#include "platform/sane_scanner.h"
#include "platform/shortcut_favourites.h"
#include "platform/single_instance.h"
#include "platform/user_folders.h"
#include "platform/vdir_contacts.h"
#include "reports/register_reports.h"
#include "telephone/register_telephone.h"
#include "transfer/register_transfer.h"
#include "views/register_views.h"
#include "widgets/date_box.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFirstLookAtOutboxMs = 3000;

/// The program's own folder for this user; the variable is for tests and repairs.
QString programFolder()
{
    const QString set = qEnvironmentVariable("ORVANE_PROGRAM_FOLDER");
    const QString folder = set.isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/orvane-contacts"_s
        : set;
    QDir().mkpath(folder);
    return QDir(folder).absolutePath();
}

QString rootDriveFolder()
{
    const QString set = qEnvironmentVariable("ORVANE_DRIVE_C");
    return set.isEmpty() ? QDir::homePath() : set;
}

/// Files that the desktop opens with this program, as paths or as addresses.
QStringList filesToOpen(const QStringList& arguments)
{
    QStringList files;
    for (const QString& argument : arguments) {
        const QUrl url(argument);
        if (url.isLocalFile())
            files << url.toLocalFile();
        else if (!argument.startsWith(u'-'))
            files << QFileInfo(argument).absoluteFilePath();
    }
    return files;
}

widgets::Look lookOf(const QString& folder)
{
    const QString kept
        = QSettings(folder + u"/window.ini"_s, QSettings::IniFormat).value(u"look"_s).toString();
    if (kept.isEmpty())
        return widgets::preferred();
    return kept == u"dark" ? widgets::Look::Dark : widgets::Look::Light;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"orvane-contacts"_s);
    QApplication::setApplicationDisplayName(u"Orvane Contacts"_s);
    QApplication::setApplicationVersion(QStringLiteral(ORVANE_VERSION));
    QApplication::setDesktopFileName(u"org.orvane.Contacts"_s);
    QApplication::setQuitOnLastWindowClosed(false);

    const QString folder = programFolder();
    const QStringList toOpen = filesToOpen(QApplication::arguments().mid(1));
    const platform::SingleInstance instance(folder, toOpen);
    if (!instance.isFirst())
        return 0;
    widgets::apply(app, lookOf(folder));
    QApplication::setWindowIcon(QIcon(u":/icons/app.svg"_s));

    platform::FolderDrive drive(rootDriveFolder(), folder);
    platform::DesktopBoxes boxes;
    platform::DesktopShell desktop(drive);
    platform::PlayerSounds sounds(drive, QStandardPaths::writableLocation(QStandardPaths::CacheLocation));
    platform::UserFolders folders(drive);
    platform::ShortcutFavourites favourites(drive, folders);
    platform::WindowHelpViewer help(drive, desktop);
    platform::VdirContacts mailContacts(QDir(folder).filePath(u"MailContacts"_s));
    platform::SystemClock clock;
    platform::DesktopPrinter printer;
    platform::KeychainSecrets secrets;
    platform::MailAccountFile mailAccounts(QDir(folder).filePath(u"mail.ini"_s), secrets, clock);
    const QString mailBox = QDir(folder).filePath(u"MailBox"_s);
    platform::MailPost post(mailBox, mailAccounts);
    platform::MailboxClient mail(mailBox, mailAccounts, post, desktop, clock);
    mail.setPreview([](const platform::MailItem& item) { return platform::showMailPreview(item); });
    platform::SerialDeviceFile modemPorts(QDir(folder).filePath(u"modem.ini"_s));
    platform::DevicePort modem(modemPorts);
    editor::LetterMerger wordProcessor(drive, desktop);
    platform::SaneScanner scanner;
    platform::HunspellSpeller speller(folder, platform::dictionaryFolders(), QLocale::system().name());
    widgets::DateBox::setToday([&clock] { return clock.today(); });

    jet::Database data;
    jet::Database info;
    const jet::Schema schema = core::bookSchema();
    core::SharedState shared;
    core::Screens screens;
    shell::MDIForm1 frame;
    core::Context context{data, info, schema, shared, screens, frame,
        {drive, boxes, desktop, sounds, folders, favourites, help, mailContacts, clock, printer, mail,
            mailAccounts, modem, modemPorts, wordProcessor, scanner, speller}};
    screens.setContext(context);
    shell::registerShell(screens);
    setup::registerSetup(screens);
    entry::registerEntry(screens);
    output::registerOutput(screens);
    transfer::registerTransfer(screens);
    views::registerViews(screens);
    reports::registerReports(screens);
    anniversaries::registerAnniversaries(screens);
    telephone::registerTelephone(screens);
    letters::registerLetters(screens);

    const shell::StorageNotice storageNotice(context);
    const shell::MailNotice mailNotice(context, post);
    const QString backupFolder = drive.local(u"C:\\OVUserFiles\\Others\\Backup");
    core::BookFiles files(folder, backupFolder);
    shell::StartUp startUp(context, frame, files, backupFolder);
    QObject::connect(
        &instance, &platform::SingleInstance::raiseRequested, &startUp, &shell::StartUp::bringToFront);
    QObject::connect(
        &instance, &platform::SingleInstance::openRequested, &startUp, &shell::StartUp::openFiles);
    QObject::connect(
        &storageNotice, &shell::StorageNotice::damageFound, &startUp, &shell::StartUp::bookIsDamaged);
    startUp.openFiles(toOpen);
    startUp.begin(QLocale::system().territory() == QLocale::India, instance.hasLock());
    // The frame is there first; what was on its way when the program ended last is asked about.
    QTimer::singleShot(kFirstLookAtOutboxMs, &post, &platform::MailPost::begin);
    const int result = QApplication::exec();
    // Screens read the books, so they go first.
    screens.unloadAll();
    return result;
}
