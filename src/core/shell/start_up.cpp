#include "core/shell/start_up.h"

#include "core/handover/file_target.h"
#include "core/screens.h"
#include "core/shell/Form3.h"
#include "core/shell/FrmEmailSuite.h"
#include "core/shell/frmSplash.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/restore_dialog.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/storage.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QThread>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace shell {

StartUp::StartUp(
    core::Context& context, MDIForm1& frame, core::BookFiles& files, QString backupFolder, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_frame(frame)
    , m_files(files)
    , m_backupFolder(std::move(backupFolder))
{
    connect(&frame, &MDIForm1::firstActivated, this, &StartUp::unloadSplash);
    connect(&frame, &MDIForm1::restoreWanted, this, &StartUp::chooseAndRestore);
}

StartUp::~StartUp()
{
    if (m_backup)
        m_backup->wait();
    delete m_splash;
    delete m_wait;
}

void StartUp::begin(bool inHomeCountry, bool hasLock)
{
    m_inHomeCountry = inHomeCountry;
    if (!QFileInfo::exists(m_files.dataFile()) || !QFileInfo::exists(m_files.infoFile())) {
        m_wait = new Form3;
        m_wait->show();
        QApplication::processEvents();
    }
    m_report = m_files.makeMissing(inHomeCountry);
    if (const core::BookReport opened = m_files.openData(m_context.data);
        m_report.fault != core::BookReport::Fault::NotMade || opened)
        m_report = opened;
    openInformation();
    noteWhatIsWrong(hasLock);

    m_splash = new frmSplash(m_context);
    connect(m_splash, &frmSplash::activated, this, &StartUp::unloadWaitNotice);
    connect(m_splash, &frmSplash::mainShellWanted, this, &StartUp::showMainShell);
    connect(m_splash, &frmSplash::emailShellWanted, this, &StartUp::showEmailShell);
    connect(m_splash, &frmSplash::bookUnreadable, this, &StartUp::bookFailed);
    connect(m_splash, &frmSplash::previousCallsWanted, this, [this] { m_context.screens.show(u"Form1"); });
    m_splash->load();
    m_splash->show();
    m_splash->activateWindow();
    // The tenth of a second that the splash stands is used to build the frame.
    QTimer::singleShot(15, this, &StartUp::buildFrame);
}

void StartUp::bringToFront()
{
    QWidget* window = m_emailSuite ? static_cast<QWidget*>(m_emailSuite.get()) : &m_frame;
    if (window->isMinimized())
        window->showNormal();
    window->raise();
    window->activateWindow();
}

void StartUp::openFiles(const QStringList& files)
{
    m_waitingFiles += files;
    if (m_frame.isVisible())
        openWaitingFiles();
}

void StartUp::openWaitingFiles()
{
    constexpr QStringView kImport = u"FormCardImport";
    if (m_waitingFiles.isEmpty())
        return;
    const QStringList files = std::exchange(m_waitingFiles, {});
    auto* target = m_context.screens.load<core::FileTarget>(kImport);
    if (!target)
        return;
    m_context.screens.show(kImport);
    target->openFiles(files);
}

void StartUp::buildFrame()
{
    if (!std::exchange(m_frameBuilt, true))
        m_frame.build(m_context);
}

void StartUp::showMainShell()
{
    if (m_frame.isVisible()) {
        unloadSplash();
        return;
    }
    buildFrame();
    m_frame.loadFrame();
    m_frame.show();
    m_frame.raise();
    m_frame.activateWindow();
    tellNotices();
    backUpLater();
    // Behind the windows' own news of who is active.
    QTimer::singleShot(0, this, &StartUp::openWaitingFiles);
}

void StartUp::showEmailShell()
{
    if (m_emailSuite)
        return;
    m_emailSuite = std::make_unique<FrmEmailSuite>(m_context);
    connect(m_emailSuite.get(), &FrmEmailSuite::firstActivated, this, &StartUp::unloadSplash);
    m_emailSuite->show();
    m_emailSuite->raise();
    m_emailSuite->activateWindow();
    tellNotices();
    backUpLater();
}

// Not at once, since the window system is still telling the windows who is active; and by a timer, since
// before the event loop runs deleteLater() would wait for a loop that never comes.
void StartUp::unloadWaitNotice()
{
    QTimer::singleShot(0, this, [this] { delete m_wait; });
}

void StartUp::unloadSplash()
{
    unloadWaitNotice();
    if (!m_splash)
        return;
    // Esc can bring the main shell before the tick, which may still want the other shell; it waits for it
    // unseen.
    if (m_splash->hasTicked())
        m_splash->deleteLater();
    else
        m_splash->hide();
}

// Load said nothing; here, at the first look at the settings, is where a missing or damaged book shows.
void StartUp::bookFailed()
{
    if (mend(m_report) && (m_report = m_files.openData(m_context.data))) {
        m_splash->load();
        return;
    }
    m_splash->close();
    m_context.services.shell.endProgram();
}

bool StartUp::mend(const core::BookReport& report)
{
    using Fault = core::BookReport::Fault;
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    const QString what = report.text.isEmpty()
        ? tr("The database \"%1\" can not be read.").arg(m_files.dataFile())
        : report.text;
    const auto backup = report.fault == Fault::NewerVersion || report.fault == Fault::NotMade
        ? std::nullopt
        : core::lastGoodBackup(m_backupFolder);
    if (!backup && report.fault == Fault::Missing)
        return makeNewBook(what);
    if (!backup) {
        boxes.warning(what, title);
        return false;
    }
    const QString question = what + u"\n\n"_s
        + tr("Shall the backup of %1 be put in its place? The file itself is kept.")
              .arg(core::describedBackup(*backup));
    return boxes.ask(question, title, platform::Icon::Warning) == platform::Answer::Yes && putBack(*backup);
}

bool StartUp::makeNewBook(const QString& what)
{
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    const QString question = what + u"\n\n"_s
        + tr("There is no backup of it in \"%1\". Shall a new, empty address book be made?")
              .arg(QDir::toNativeSeparators(m_backupFolder));
    if (boxes.ask(question, title, platform::Icon::Warning) != platform::Answer::Yes)
        return false;
    const bool made = m_files.makeNewBook(m_inHomeCountry);
    if (!made) {
        const QString folder = QFileInfo(m_files.dataFile()).absolutePath();
        boxes.warning(tr("No address book could be made in the folder \"%1\": %2.")
                          .arg(QDir::toNativeSeparators(folder), platform::whyNotWritable(folder)),
            title);
    }
    return made;
}

bool StartUp::putBack(const core::Backup& backup)
{
    m_context.data.close();
    const auto restored = core::restore(backup.path, m_files.dataFile(), m_context.services.clock.now());
    if (!restored)
        m_context.services.boxes.warning(restored.reason, m_context.shared.AppTitle);
    return bool(restored);
}

void StartUp::openInformation()
{
    if (m_report.fault != core::BookReport::Fault::NotMade && !m_files.openInfo(m_context.info))
        remakeInformation();
}

void StartUp::remakeInformation()
{
    m_context.info.close();
    const bool done = m_files.remakeInfo(m_inHomeCountry) && m_files.openInfo(m_context.info);
    const QString file = QDir::toNativeSeparators(m_files.infoFile());
    m_notices << (done
            ? tr(
                "The file of names and places \"%1\" was damaged. It was made anew. Your address book is not "
                "touched by this.")
                  .arg(file)
            : tr("The file of names and places \"%1\" is damaged and could not be made anew. Its lists stay "
                 "empty. Your address book is not touched by this.")
                  .arg(file));
}

void StartUp::noteWhatIsWrong(bool hasLock)
{
    if (!m_report)
        return;
    const QString folder = QFileInfo(m_files.dataFile()).absolutePath();
    if (m_context.data.isReadOnly())
        m_notices << tr("The address book can only be looked at: %1. What you change can not be stored until "
                        "that is mended.\n\n%2")
                         .arg(platform::whyNotWritable(folder), QDir::toNativeSeparators(folder));
    else if (!hasLock)
        m_notices << tr(
            "The folder \"%1\" could not be marked as in use. Do not start Orvane Contacts a second "
            "time on this address book.")
                         .arg(QDir::toNativeSeparators(folder));
}

// When the splash has gone: it would take a box above it away.
void StartUp::tellNotices()
{
    constexpr int kLookAgainMs = 30;
    QTimer::singleShot(m_splash ? kLookAgainMs : 0, this, [this] {
        if (m_splash) {
            tellNotices();
            return;
        }
        for (const QString& notice : std::exchange(m_notices, {}))
            m_context.services.boxes.warning(notice, m_context.shared.AppTitle);
    });
}

void StartUp::bookIsDamaged()
{
    if (std::exchange(m_toldOfDamage, true))
        return;
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    QString what = tr("The address book \"%1\" is damaged: a part of it can not be read.")
                       .arg(QDir::toNativeSeparators(m_files.dataFile()));
    if (const QString copy = core::damagedCopy(m_backupFolder); !copy.isEmpty())
        what += u' ' + tr("What can be read is kept as \"%1\".").arg(QDir::toNativeSeparators(copy));
    const auto backup = core::lastGoodBackup(m_backupFolder);
    if (!backup) {
        boxes.warning(what + u"\n\n"_s
                + tr("There is no sound backup of it in \"%1\".")
                      .arg(QDir::toNativeSeparators(m_backupFolder)),
            title);
        return;
    }
    const QString question = what + u"\n\n"_s
        + tr("Shall the backup of %1 be put in its place? The file itself is kept.")
              .arg(core::describedBackup(*backup));
    if (boxes.ask(question, title, platform::Icon::Warning) == platform::Answer::Yes)
        restoreNow(*backup);
}

void StartUp::chooseAndRestore()
{
    const auto backups = core::listBackups(m_backupFolder);
    if (backups.isEmpty()) {
        m_context.services.boxes.information(
            tr("There is no backup yet. One is made at the start, when something was changed since the last "
               "one."),
            m_context.shared.AppTitle);
        return;
    }
    if (const auto chosen = chooseBackup(&m_frame, backups))
        restoreNow(*chosen);
}

void StartUp::restoreNow(const core::Backup& backup)
{
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    if (!m_context.screens.mayCloseAll())
        return;
    if (m_backup)
        m_backup->wait();
    m_context.screens.unloadAll();
    m_context.data.close();
    const auto restored = core::restore(backup.path, m_files.dataFile(), m_context.services.clock.now());
    m_report = m_files.openData(m_context.data);
    m_frame.reloadFrame();
    if (restored && m_report)
        boxes.information(
            tr("The address book was restored. The one before is kept as %1.").arg(restored.keptFile), title);
    else
        boxes.warning(restored ? m_report.text : restored.reason, title);
}

// A while after the frame came up.
void StartUp::backUpLater()
{
    QTimer::singleShot(3000, this, &StartUp::backUp);
}

// On a thread and a connection of its own: nobody should wait for it.
void StartUp::backUp()
{
    if (m_backup || !m_context.data.isOpen())
        return;
    m_backup.reset(QThread::create([this, file = m_files.dataFile(), names = m_files.infoFile(),
                                       folder = m_backupFolder, now = m_context.services.clock.now()] {
        using Opened = jet::Database::OpenResult;
        jet::Database book;
        auto result = core::BackupResult::Failed;
        if (book.open(file) == Opened::Opened)
            result = core::backUpIfChanged(book, folder, now);
        if (result == core::BackupResult::Failed && book.isOpen() && !book.checkSoundness().isEmpty())
            result = core::BackupResult::BookUnsound;
        jet::Database info;
        const bool infoIsSound = info.open(names, jet::Database::Kind::Information) != Opened::Opened
            || info.checkSoundness().isEmpty();
        QMetaObject::invokeMethod(
            this, [this, result, infoIsSound] { backedUp(result, infoIsSound); }, Qt::QueuedConnection);
    }));
    m_backup->start(QThread::IdlePriority);
}

// Who works on without a backup should know it, and why, while it can still be mended.
void StartUp::tellFailedBackup()
{
    const bool hasRoom = platform::isWritable(m_backupFolder)
        && platform::freeBytes(m_backupFolder) > 2 * QFileInfo(m_files.dataFile()).size();
    const QString why
        = hasRoom ? tr("the address book could not be read") : platform::whyNotWritable(m_backupFolder);
    m_frame.showNotice(tr("No backup of the address book was made: %1. The folder is \"%2\".")
                           .arg(why, QDir::toNativeSeparators(m_backupFolder)),
        tr("Try again"), [this] {
            m_backup->wait();
            m_backup.reset();
            backUp();
        });
}

void StartUp::backedUp(core::BackupResult result, bool infoIsSound)
{
    if (result == core::BackupResult::Failed)
        tellFailedBackup();
    if (!infoIsSound && m_context.info.isOpen()) {
        remakeInformation();
        tellNotices();
    }
    if (result == core::BackupResult::BookUnsound)
        bookIsDamaged();
}

} // namespace shell
