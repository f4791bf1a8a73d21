#pragma once

#include "core/context.h"
#include "core/store/backups.h"
#include "core/store/book_files.h"

#include <QObject>
#include <QPointer>

#include <memory>

class QThread;

namespace shell {

class Form3;
class FrmEmailSuite;
class frmSplash;
class MDIForm1;

/// The way from the first window to the shell that is wanted, and what goes with the files on the way: making
/// them at the first start, saying what is wrong with a damaged one, the daily backup, restoring one.
class StartUp : public QObject {
    Q_OBJECT

public:
    StartUp(core::Context& context, MDIForm1& frame, core::BookFiles& files, QString backupFolder,
        QObject* parent = nullptr);
    ~StartUp() override;

    /// hasLock: whether it is sure that no other program works in this folder.
    void begin(bool inHomeCountry, bool hasLock = true);
    void bringToFront();
    /// vCards of this computer that somebody opens with the program: shown for import as soon as there is a
    /// shell.
    void openFiles(const QStringList& files);
    /// Somebody met a damaged piece of the book: the person is told, once, and offered the last backup.
    void bookIsDamaged();

private:
    void buildFrame();
    void showMainShell();
    void showEmailShell();
    void unloadWaitNotice();
    void unloadSplash();
    void bookFailed();
    bool mend(const core::BookReport& report);
    bool makeNewBook(const QString& what);
    bool putBack(const core::Backup& backup);
    void chooseAndRestore();
    void restoreNow(const core::Backup& backup);
    void openInformation();
    void remakeInformation();
    void noteWhatIsWrong(bool hasLock);
    void tellNotices();
    void openWaitingFiles();
    void backUpLater();
    void backUp();
    void tellFailedBackup();
    void backedUp(core::BackupResult result, bool infoIsSound);

    core::Context& m_context;
    MDIForm1& m_frame;
    core::BookFiles& m_files;
    QString m_backupFolder;
    core::BookReport m_report;
    QPointer<frmSplash> m_splash;
    QPointer<Form3> m_wait;
    std::unique_ptr<FrmEmailSuite> m_emailSuite;
    std::unique_ptr<QThread> m_backup;
    QStringList m_notices; ///< to be told when a shell has come up
    QStringList m_waitingFiles; ///< the same
    bool m_inHomeCountry = false;
    bool m_frameBuilt = false;
    bool m_toldOfDamage = false;
};

} // namespace shell
