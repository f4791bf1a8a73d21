#include "core/shell/start_up.h"

#include "core/screens.h"
#include "core/shell/Form3.h"
#include "core/shell/FrmEmailSuite.h"
#include "core/shell/frmSplash.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/restore_dialog.h"
#include "core/store/backups.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
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

void StartUp::begin(bool inHomeCountry)
{
    if (!QFileInfo::exists(m_files.dataFile()) || !QFileInfo::exists(m_files.infoFile())) {
        m_wait = new Form3;
        m_wait->show();
        QApplication::processEvents();
    }
    m_files.makeMissing(inHomeCountry);
    m_report = m_files.openData(m_context.data);
    m_files.openInfo(m_context.info);

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
    backUpLater();
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
    if (restoreBackup(m_report) && (m_report = m_files.openData(m_context.data))) {
        m_splash->load();
        return;
    }
    m_splash->close();
    m_context.services.shell.endProgram();
}

bool StartUp::restoreBackup(const core::BookReport& report)
{
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    const QString what = report.text.isEmpty()
        ? tr("The database \"%1\" can not be read.").arg(m_files.dataFile())
        : report.text;
    const auto backup = report.fault == core::BookReport::Fault::NewerVersion
        ? std::nullopt
        : core::lastGoodBackup(m_backupFolder);
    if (!backup) {
        boxes.warning(what, title);
        return false;
    }
    const QString day = QLocale().toString(backup->day, QLocale::LongFormat);
    const QString question = what + u"\n\n"_s
        + tr("Shall the backup of %1 be put in its place? The file itself is kept.").arg(day);
    if (boxes.ask(question, title, platform::Icon::Warning) == platform::Answer::No)
        return false;
    m_context.data.close();
    const auto restored = core::restore(backup->path, m_files.dataFile(), m_context.services.clock.now());
    if (!restored)
        boxes.warning(restored.reason, title);
    return bool(restored);
}

void StartUp::chooseAndRestore()
{
    platform::MessageBoxes& boxes = m_context.services.boxes;
    const QString& title = m_context.shared.AppTitle;
    const auto backups = core::listBackups(m_backupFolder);
    if (backups.isEmpty()) {
        boxes.information(
            tr("There is no backup yet. One is made each day that the program is started."), title);
        return;
    }
    const auto chosen = chooseBackup(&m_frame, backups);
    if (!chosen)
        return;
    if (m_backup)
        m_backup->wait();
    m_context.screens.unloadAll();
    m_context.data.close();
    const auto restored = core::restore(chosen->path, m_files.dataFile(), m_context.services.clock.now());
    m_report = m_files.openData(m_context.data);
    m_frame.reloadFrame();
    if (restored && m_report)
        boxes.information(
            tr("The address book was restored. The one before is kept as %1.").arg(restored.keptFile), title);
    else
        boxes.warning(restored ? m_report.text : restored.reason, title);
}

// A while after the frame came up, on a thread and a connection of its own: nobody should wait for it.
void StartUp::backUpLater()
{
    QTimer::singleShot(3000, this, [this] {
        if (m_backup || !m_context.data.isOpen())
            return;
        const QDate today = m_context.services.clock.today();
        m_backup.reset(QThread::create([file = m_files.dataFile(), folder = m_backupFolder, today] {
            jet::Database book;
            if (book.open(file) == jet::Database::OpenResult::Opened)
                core::backUpOnceADay(book, folder, today);
        }));
        m_backup->start(QThread::IdlePriority);
    });
}

} // namespace shell
