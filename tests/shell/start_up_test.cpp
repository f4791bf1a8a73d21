#include <QtTest>
#include <QtWidgets>

#include "core/handover/file_target.h"
#include "core/save_failure.h"
#include "core/shell/MDIForm1.h"
#include "core/shell/register_shell.h"
#include "core/shell/start_up.h"
#include "core/shell/storage_notice.h"
#include "core/store/backups.h"
#include "platform/desktop_boxes.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using platform::Answer;

namespace {

/// The program from its first window on, on folders of its own. The services are those of a screen fixture.
class Program : public support::ScreenFixture {
public:
    enum class Boxes { Scripted, OfTheDesktop };
    explicit Program(Boxes which = Boxes::Scripted)
        : files(root.filePath(u"program"_s), backupFolder())
        , all{data, info, schema, shared, registry, window,
              {drive, which == Boxes::Scripted ? static_cast<platform::MessageBoxes&>(boxes) : real, shell,
                  sounds, folders, favourites, help, mailContacts, clock, printer, mail, mailAccounts, modem,
                  modem, wordProcessor, scanner, speller}}
    {
        QDir().mkpath(root.filePath(u"program"_s));
        registry.setContext(all);
        shell::registerShell(registry);
    }
    ~Program() { registry.unloadAll(); }
    QString backupFolder() const { return root.filePath(u"OVUserFiles/Others/Backup"_s); }
    void begin(bool hasLock = true)
    {
        startUp = std::make_unique<shell::StartUp>(all, window, files, backupFolder());
        startUp->begin(true, hasLock);
    }
    /// In the book as the program left it.
    void change(const QString& sql) const
    {
        jet::Database closed;
        closed.open(files.dataFile());
        QVERIFY(closed.execute(sql));
    }
    static QWidget* shown(const QString& name)
    {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == name && widget->isVisible())
                return widget;
        }
        return nullptr;
    }
    /// A good book and perhaps a backup of it, as the program leaves them.
    void makeBook(bool withBackup)
    {
        QVERIFY(files.makeMissing(true));
        jet::Database made;
        QCOMPARE(made.open(files.dataFile()), jet::Database::OpenResult::Opened);
        QVERIFY(made.execute(u"insert into cnt_main (name,first) values ('Asha','Asha')"));
        if (withBackup)
            QCOMPARE(core::backUpIfChanged(made, backupFolder(), QDateTime(QDate(2024, 3, 1), QTime(9, 0))),
                core::BackupResult::Made);
    }
    QByteArray bytes() const
    {
        return QFileInfo(files.dataFile()).isFile() ? support::bytesOf(files.dataFile()) : QByteArray();
    }

    jet::Database data;
    jet::Database info;
    platform::DesktopBoxes real;
    core::BookFiles files;
    core::Screens registry;
    shell::MDIForm1 window;
    core::Context all;
    std::unique_ptr<shell::StartUp> startUp;
};

/// Stands for the screen that takes files in.
class FileScreen final : public core::Screen, public core::FileTarget {
public:
    using Screen::Screen;
    void load() override { }
    void openFiles(const QStringList& files) override { opened << files.join(u','); }
    QStringList opened;
};

} // namespace

/// The way from the first window to a shell, and what is done about a book that can not be read.
class StartUpTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Those of the start wait for the shell, those of a second start come at once.
    void filesAreOpenedInTheShell()
    {
        Program p;
        p.registry.add<FileScreen>(u"FormCardImport"_s);
        p.makeBook(false);
        p.startUp = std::make_unique<shell::StartUp>(p.all, p.window, p.files, p.backupFolder());
        p.startUp->openFiles({u"/a.vcf"_s, u"/b.vcf"_s});
        p.startUp->begin(true);
        QVERIFY(!p.registry.find(u"FormCardImport"));
        const auto opened = [&p] {
            auto* screen = dynamic_cast<FileScreen*>(p.registry.find(u"FormCardImport"));
            return screen ? screen->opened.join(u'|') : QString();
        };
        QTRY_COMPARE(opened(), u"/a.vcf,/b.vcf"_s);
        p.startUp->openFiles({u"/c.vcf"_s});
        QCOMPARE(opened(), u"/a.vcf,/b.vcf|/c.vcf"_s);
    }

    void firstStartAndSecond()
    {
        Program p;
        p.begin();
        QVERIFY(Program::shown(u"frmSplash"_s));
        QVERIFY(!p.window.isVisible());
        QTRY_VERIFY(p.window.isVisible());
        QTRY_VERIFY(!Program::shown(u"frmSplash"_s) && !Program::shown(u"Form3"_s));
        QVERIFY(p.shared.NationalMode);
        QVERIFY(QFile::exists(p.files.dataFile()) && QFile::exists(p.files.infoFile()));
        QVERIFY(p.drive.exists(u"C:\\OVUserFiles\\Exported Files\\Emails"));
        QVERIFY(p.data.openRecordset(u"select * from CNTB_CATEGORIES").count() > 0);
        QVERIFY(
            p.info.openRecordset(u"select * from WIA_GLOBALMAS where country in ('India','United States')")
                .count()
            == 2);
        QVERIFY(p.data.execute(u"insert into cnt_main (name) values ('Asha')"));
        p.startUp.reset();
        p.data.close();
        p.info.close();
        p.begin();
        QCOMPARE(p.data.openRecordset(u"select name from cnt_main").textAt(0), u"Asha"_s);
        QTest::qWait(150);
        QCOMPARE(p.verify(), QString());
    }

    void emailShell()
    {
        Program p;
        p.makeBook(false);
        p.change(u"update ov_setup set Email=true"_s);
        p.begin();
        QTRY_VERIFY(Program::shown(u"FrmEmailSuite"_s));
        QTRY_VERIFY(!Program::shown(u"frmSplash"_s));
        QVERIFY(!p.window.isVisible());
        QVERIFY(Program::shown(u"FrmEmailSuite"_s)->findChild<QListWidget*>(u"lBarContacts"_s)->count() > 3);
        Program::shown(u"FrmEmailSuite"_s)->close();
        QCOMPARE(p.shell.ends, 1);
        QCOMPARE(p.verify(), QString());
    }

    void escapeWithEmailShell()
    {
        Program p;
        p.makeBook(false);
        p.change(u"update ov_setup set Email=true"_s);
        p.begin();
        QTest::keyClick(Program::shown(u"frmSplash"_s), Qt::Key_Escape);
        QVERIFY(p.window.isVisible());
        QVERIFY(!Program::shown(u"FrmEmailSuite"_s));
        QTRY_VERIFY_WITH_TIMEOUT(Program::shown(u"FrmEmailSuite"_s), 1000);
        QVERIFY(p.window.isVisible());
        QTRY_VERIFY(!Program::shown(u"frmSplash"_s));
        QCOMPARE(p.verify(), QString());
    }

    // The question about due mails stands above the splash, whose timer goes on all the while.
    void escapeWithDueMails()
    {
        Program p(Program::Boxes::OfTheDesktop);
        p.makeBook(false);
        p.change(u"insert into time_email ([date],confirm) values (#01-mar-2024#,true)"_s);
        p.begin();
        QWidget* splash = Program::shown(u"frmSplash"_s);
        bool answered = false;
        QTimer::singleShot(400, &p.window, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box && !p.window.isVisible());
            answered = true;
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        });
        QTest::keyClick(splash, Qt::Key_Escape);
        QVERIFY(answered);
        QTRY_VERIFY(p.window.isVisible() && !Program::shown(u"frmSplash"_s));
        QCOMPARE(p.verify(), QString());
    }

    void damagedBook_data()
    {
        support::columns<bool, QString, bool, QString>("backup", "fault", "yes", "outcome");
        QTest::newRow("no backup") << false << u"damaged"_s << false << u"told, ended, untouched"_s;
        QTest::newRow("backup refused") << true << u"damaged"_s << false << u"asked, ended, untouched"_s;
        QTest::newRow("backup taken") << true << u"damaged"_s << true << u"asked, running, restored"_s;
        QTest::newRow("a newer book is left alone")
            << true << u"newer"_s << false << u"told, ended, untouched"_s;
        QTest::newRow("a pipe") << false << u"pipe"_s << false << u"told, ended, untouched"_s;
        QTest::newRow("gone, no backup") << false << u"gone"_s << false << u"asked, ended, untouched"_s;
        QTest::newRow("gone, no backup, a new one")
            << false << u"gone"_s << true << u"asked, running, changed"_s;
        QTest::newRow("no folder for it") << false << u"no folder"_s << false << u"told, ended, untouched"_s;
        QTest::newRow("a book that is gone") << true << u"gone"_s << true << u"asked, running, restored"_s;
    }

    void damagedBook()
    {
        QFETCH(bool, backup);
        QFETCH(QString, fault);
        QFETCH(bool, yes);
        Program p;
        p.makeBook(backup);
        if (fault == u"damaged")
            support::put(
                p.files.dataFile(), "this is no database at all, but it is long enough to look like a file");
        if (fault == u"gone" || fault == u"pipe")
            QVERIFY(QFile::remove(p.files.dataFile()));
        if (fault == u"pipe")
            QCOMPARE(::mkfifo(QFile::encodeName(p.files.dataFile()).constData(), 0600), 0);
        if (fault == u"no folder") {
            QVERIFY(QDir(p.root.filePath(u"program"_s)).removeRecursively());
            support::put(p.root.filePath(u"program"_s));
        }
        if (fault == u"newer") {
            jet::Database book;
            book.open(p.files.dataFile());
            QVERIFY(book.setVersion(99999));
        }
        const QByteArray before = p.bytes();
        p.boxes.answerAll(yes ? Answer::Yes : Answer::No);
        p.begin();
        QCOMPARE(p.boxes.shown, QStringList());
        QTRY_VERIFY(p.window.isVisible() || p.shell.ends > 0);
        QTest::qWait(250); // the ticks do not tell it again
        QCOMPARE(p.boxes.shown.size(), 1);
        QVERIFY(p.boxes.shown[0].contains(fault == u"no folder" ? u"program\": "_s : u"Orvanedata.dll"_s));
        const bool running = p.window.isVisible();
        const bool restored
            = running && p.data.openRecordset(u"select name from cnt_main").textAt(0) == u"Asha";
        QTEST(QStringList({p.boxes.shown[0].startsWith(u"ask: ") ? u"asked"_s : u"told"_s,
                              running ? u"running"_s : u"ended"_s,
                              restored                  ? u"restored"_s
                                  : p.bytes() == before ? u"untouched"_s
                                                        : u"changed"_s})
                  .join(u", "),
            "outcome");
        QCOMPARE(p.shell.ends, running ? 0 : 1);
        // What was replaced is kept.
        if (restored && !before.isEmpty())
            QCOMPARE(
                QDir(p.root.filePath(u"program"_s)).entryList({u"*-replaced-*"_s}, QDir::Files).size(), 1);
        QCOMPARE(p.verify(), QString());
    }

    // Pages that are overwritten in the middle open without a word; the check behind the start finds them.
    void damageInTheMiddle()
    {
        Program p;
        p.makeBook(true);
        for (const QString& path : {p.files.dataFile(), p.files.infoFile()}) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 4096 / 2 * 4096));
            file.write(QByteArray(4 * 4096, 'Z'));
        }
        p.boxes.answerAll(Answer::Yes);
        p.begin();
        QTRY_COMPARE_WITH_TIMEOUT(p.boxes.shown.size(), 3, 15000);
        const QStringList pieces{u"Orvanedata.dll\" is damaged"_s, u"Orvaneinfo.dll\" was damaged"_s,
            u"The address book was restored"_s};
        for (const QString& piece : pieces)
            QCOMPARE(p.boxes.shown.filter(piece).size(), 1);
        QVERIFY(p.boxes.shown.filter(u"Orvanedata-damaged-"_s).first().contains(u"1 contact,"));
        QCOMPARE(p.data.openRecordset(u"select name from cnt_main").textAt(0), u"Asha"_s);
        QVERIFY(p.data.checkSoundness().isEmpty() && p.info.checkSoundness().isEmpty());
        QVERIFY(p.info.openRecordset(u"select * from wia_cntnames").count() > 100);
        QCOMPARE(p.verify(), QString());
    }

    // Where the folder should be there is a file.
    void failedBackup()
    {
        Program p;
        p.makeBook(false);
        QVERIFY(QDir().mkpath(QFileInfo(p.backupFolder()).path()));
        QVERIFY(QFile(p.backupFolder()).open(QIODevice::WriteOnly));
        p.begin();
        const auto said = [&] {
            const auto* strip = p.window.findChild<QWidget*>(u"NoticeStrip"_s);
            return strip && strip->isVisible() ? strip->accessibleName().section(u" The folder"_s, 0, 0)
                                               : QString();
        };
        QTRY_COMPARE_WITH_TIMEOUT(
            said(), u"No backup of the address book was made: the folder could not be made."_s, 8000);
        QVERIFY(QFile::remove(p.backupFolder()));
        QTest::mouseClick(p.window.findChild<QToolButton*>(u"cmdNotice"_s), Qt::LeftButton);
        QTRY_COMPARE_WITH_TIMEOUT(core::listBackups(p.backupFolder()).size(), 1, 8000);
        QCOMPARE(p.verify(), QString());
    }

    // A box of the desktop itself, at a start that has something to say: the splash goes below it, not with
    // it.
    void noticeAtTheStart()
    {
        Program p(Program::Boxes::OfTheDesktop);
        p.makeBook(false);
        p.begin(false);
        QMessageBox* box = nullptr;
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box && !Program::shown(u"frmSplash"_s))
                box->accept();
        });
        look.start(200);
        QTRY_VERIFY_WITH_TIMEOUT(box, 5000);
        QVERIFY(p.window.isVisible());
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(p.verify(), QString());
    }

    void restoreFromTheFrame()
    {
        Program p;
        p.makeBook(true);
        p.begin();
        QTRY_VERIFY(p.window.isVisible());
        QVERIFY(p.data.execute(u"update cnt_main set name='Changed'"));
        p.registry.add<support::TargetScreen>(u"FullView"_s);
        QVERIFY(p.window.perform(core::OpenScreen{u"FullView"}));
        QTimer::singleShot(50, &p.window, [] {
            auto* dialog = QApplication::activeModalWidget();
            QVERIFY(dialog);
            QTest::mouseClick(widgets::child<QPushButton>(dialog, u"cmdRestore"_s), Qt::LeftButton);
        });
        p.window.perform(core::Restore{});
        QCOMPARE(p.data.openRecordset(u"select name from cnt_main").textAt(0), u"Asha"_s);
        QVERIFY(!p.registry.find(u"FullView"));
        QCOMPARE(p.boxes.shown.size(), 1);
        QVERIFY(p.boxes.shown[0].startsWith(u"information: The address book was restored."));
        p.boxes.verify();
    }

    void fullDiskIsToldAtEachSave()
    {
        support::ScreenFixture f;
        const shell::StorageNotice notice(f.context);
        f.context.data.openRecordset(u"select nonsense from nowhere");
        QTest::qWait(10);
        QCOMPARE(f.boxes.shown, QStringList()); // a broken statement is nobody's business
        auto full = std::make_unique<support::FullDisk>();
        const QString sql = u"insert into cnt_main (memo1) values ('"_s + QString(200000, u'n') + u"')"_s;
        for (int i = 1; i <= 2; ++i) {
            QVERIFY(!f.context.data.execute(sql));
            core::tellFailedSave(f.context);
            QTest::qWait(10);
            QCOMPARE(f.boxes.shown.size(), i);
            QVERIFY(f.boxes.shown.last().startsWith(u"warning: This was not stored: the disk is full."));
        }
        for (int i = 0; i < 2; ++i)
            QVERIFY(!f.context.data.execute(sql));
        QCOMPARE(f.boxes.shown.size(), 2); // not in the middle of a save
        QTest::qWait(10);
        QVERIFY(!f.context.data.execute(sql));
        QTest::qWait(10);
        full.reset();
        QCOMPARE(f.boxes.shown.size(), 3);
        QVERIFY(f.boxes.shown[2].contains(u"written to the address book: the disk is full."));
        f.boxes.verify();
        QVERIFY(f.context.data.execute(u"insert into cnt_main (memo1) values ('short')"));
    }
};

QTEST_MAIN(StartUpTest)
#include "start_up_test.moc"
