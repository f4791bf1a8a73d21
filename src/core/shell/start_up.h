#pragma once

#include "core/context.h"
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

    void begin(bool inHomeCountry);
    void bringToFront();

private:
    void buildFrame();
    void showMainShell();
    void showEmailShell();
    void unloadWaitNotice();
    void unloadSplash();
    void bookFailed();
    bool restoreBackup(const core::BookReport& report);
    void chooseAndRestore();
    void backUpLater();

    core::Context& m_context;
    MDIForm1& m_frame;
    core::BookFiles& m_files;
    QString m_backupFolder;
    core::BookReport m_report;
    QPointer<frmSplash> m_splash;
    QPointer<Form3> m_wait;
    std::unique_ptr<FrmEmailSuite> m_emailSuite;
    std::unique_ptr<QThread> m_backup;
    bool m_frameBuilt = false;
};

} // namespace shell
