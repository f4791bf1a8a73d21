#include <QtTest>

#include "platform/file_filter.h"
#include "platform/folder_drive.h"
#include "platform/player_sounds.h"
#include "platform/shell_rules.h"
#include "platform/shortcut_favourites.h"
#include "platform/storage.h"
#include "platform/user_folders.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/recording_services.h"
#include "support/scripted_boxes.h"

using namespace Qt::StringLiterals;
using namespace platform;

class DesktopServicesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(u"root"_s));
        QVERIFY(QDir(m_folder->path()).mkpath(u"program/UserFiles/Misc/Sound"_s));
        m_drive
            = std::make_unique<FolderDrive>(m_folder->filePath(u"root"_s), m_folder->filePath(u"program"_s));
    }

    void address_data()
    {
        // url: empty: refused
        support::columns<QString, QString>("text", "url");
        QTest::newRow("web") << u" https://x.org/a?b "_s << u"https://x.org/a?b"_s;
        QTest::newRow("without a scheme") << u"www.x.org/a"_s << u"http://www.x.org/a"_s;
        QTest::newRow("host with a port") << u"www.x.org:8080/a"_s << u"http://www.x.org:8080/a"_s;
        QTest::newRow("mail") << u"mailto:a@x.org?subject=hi"_s << u"mailto:a@x.org?subject=hi"_s;
        QTest::newRow("telephone") << u"tel:+911"_s << u"tel:+911"_s;
        QTest::newRow("internet telephone") << u"sip:a@x.org"_s << u"sip:a@x.org"_s;
        QTest::newRow("empty") << u"  "_s << u""_s;
        QTest::newRow("web without a host") << u"http://"_s << u""_s;
        QTest::newRow("mail that takes a file") << u"mailto:a@x.org?Attach=/etc/passwd"_s << u""_s;
        QTest::newRow("script") << u"javascript:alert(1)"_s << u""_s;
        QTest::newRow("data") << u"data:text/html,x"_s << u""_s;
        QTest::newRow("other program") << u"vnc://x"_s << u""_s;
        QTest::newRow("path") << uR"(C:\x.exe)"_s << u""_s;
        QTest::newRow("option") << u"--help"_s << u""_s;
        QTest::newRow("share") << u"file://server/x"_s << u""_s;
        QTest::newRow("line end") << u"http://x.org/\nb"_s << u""_s;
    }

    void address()
    {
        QFETCH(QString, text);
        QFETCH(QString, url);
        const auto openable = openableAddress(text);
        QCOMPARE(openable ? openable->toString() : QString(), url);
    }

    void openableFile()
    {
        const QStringList folders{m_folder->filePath(u"root"_s)};
        QVERIFY(isOpenableFile(put(u"root/a.txt"_s), folders));
        QVERIFY(isOpenableFile(put(u"root/a.htm"_s, "<html></html>"), folders));
        QVERIFY(!isOpenableFile(m_folder->filePath(u"root/missing.txt"_s), folders));
        QVERIFY(!isOpenableFile(folders.first(), folders));
        QVERIFY(!isOpenableFile(put(u"root2.txt"_s), folders));
        QVERIFY(!isOpenableFile(m_folder->filePath(u"root/../root2.txt"_s), folders));
        QVERIFY(QFile::link(m_folder->filePath(u"root2.txt"_s), m_folder->filePath(u"root/link.txt"_s)));
        QVERIFY(!isOpenableFile(m_folder->filePath(u"root/link.txt"_s), folders));

        QVERIFY(!isOpenableFile(put(u"root/a.EXE"_s), folders));
        QVERIFY(!isOpenableFile(put(u"root/a.desktop"_s, "[Desktop Entry]\nExec=true\n"), folders));
        QVERIFY(!isOpenableFile(put(u"root/script"_s, "#!/bin/sh\ntrue\n"), folders));
        QVERIFY(!isOpenableFile(put(u"root/program"_s,
                                    QByteArray("\x7F"
                                               "ELF\x02\x01\x01",
                                        7)
                                        + QByteArray(60, '\0')),
            folders));
        const QString run = put(u"root/run.txt"_s);
        QVERIFY(QFile::setPermissions(run, QFile::ReadOwner | QFile::ExeOwner));
        QVERIFY(!isOpenableFile(run, folders));
    }

    void sibling_data()
    {
        // file: below the folder, made executable
        support::columns<QString, QString, bool>("file", "name", "found");
        QTest::newRow("with its extension")
            << u"program/Orvane Scheduler.exe"_s << u"\\orvane scheduler.EXE"_s << true;
        QTest::newRow("without") << u"program/Orvane Scheduler"_s << u"\\Orvane Scheduler.exe"_s << true;
        QTest::newRow("no backslash") << u"program/Orvane Utility"_s << u"Orvane Utility.exe"_s << true;
        QTest::newRow("not there") << u"program/Orvane Utility"_s << u"\\Orvane Scheduler.exe"_s << false;
        QTest::newRow("in another folder") << u"program/UserFiles/a"_s << u"\\UserFiles\\a"_s << false;
        QTest::newRow("on the drive") << u"root/a"_s << u"C:\\a"_s << false;
        QTest::newRow("above") << u"a"_s << u"\\..\\a"_s << false;
        QTest::newRow("no name") << u"program/a"_s << u"\\"_s << false;
    }

    void sibling()
    {
        QFETCH(QString, file);
        QFETCH(QString, name);
        QFETCH(bool, found);
        const QString program = put(file);
        QVERIFY(siblingProgram(*m_drive, name).isEmpty()); // not executable: no program
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
        QCOMPARE(siblingProgram(*m_drive, name), found ? program : QString());
    }

    void favourite()
    {
        support::FixedFolders folders;
        ShortcutFavourites favourites(*m_drive, folders);
        QVERIFY(!favourites.AddFavourite(u"  ", u"Asha", u"  H"));
        QVERIFY(!QFileInfo::exists(m_folder->filePath(u"root/Favorites"_s)));

        QVERIFY(favourites.AddFavourite(u"www.x.org\r\nIconFile=evil", u"Rao/Asha", u"  H"));
        QCOMPARE(bytes(u"root/Favorites/Rao_Asha  H.url"_s),
            QByteArray("[InternetShortcut]\r\nURL=www.x.org IconFile=evil\r\n"));
        QVERIFY(favourites.AddFavourite(u"http://y.org", u"Rao/Asha", u"  H"));
        QCOMPARE(bytes(u"root/Favorites/Rao_Asha  H.url"_s),
            QByteArray("[InternetShortcut]\r\nURL=http://y.org\r\n"));
        QVERIFY(favourites.AddFavourite(u"http://y.org", u"..\\..\\x", u"   W"));
        QCOMPARE(QDir(m_folder->filePath(u"root/Favorites"_s)).entryList(QDir::Files).size(), 2);

        folders.folders[6] = u"C:\\..\\up"_s;
        QVERIFY(!favourites.AddFavourite(u"http://y.org", u"Asha", u""));
    }

    void folderOutsideTheDrive()
    {
        // The home folder of the tests doesn't lie on their root drive.
        const UserFolders folders(*m_drive);
        QCOMPARE(folders.SpecialFolderPath(5), u"C:\\Documents"_s);
        QCOMPARE(folders.SpecialFolderPath(6), u"C:\\Favorites"_s);
        QCOMPARE(folders.SpecialFolderPath(0x28), u"C:"_s);
        QCOMPARE(folders.SpecialFolderPath(999), QString());
        const FolderDrive home(QDir::homePath(), m_folder->filePath(u"program"_s));
        QCOMPARE(home.local(UserFolders(home).SpecialFolderPath(6)), QDir::homePath() + u"/Favorites"_s);
    }

    void sounds()
    {
        // The player writes down what it was given.
        const QString heard = m_folder->filePath(u"heard"_s);
        const QString player = put(u"player"_s, "#!/bin/sh\necho \"$@\" >>'" + heard.toUtf8() + "'\n");
        QVERIFY(QFile::setPermissions(player, QFile::ReadOwner | QFile::ExeOwner));
        const QString file = put(u"program/UserFiles/Misc/Sound/Save.wav"_s);

        PlayerSounds silent(*m_drive, m_folder->filePath(u"cache"_s), QString());
        silent.play(uR"(\UserFiles\Misc\sound\save.wav)");
        PlayerSounds sounds(*m_drive, m_folder->filePath(u"cache"_s), player);
        sounds.play(uR"(\UserFiles\Misc\sound\none.wav)");
        sounds.play(uR"(\UserFiles\..\save.wav)");
        sounds.play(uR"(\UserFiles\Misc\sound\save.wav)");
        sounds.play(uR"(\UserFiles\Misc\sound\save.wav)"); // too soon after the other
        QTRY_COMPARE(bytes(u"heard"_s), file.toUtf8() + '\n');
        QTest::qWait(150);
        sounds.play(uR"(\UserFiles\Misc\sound\SAVE.wav)");
        QTRY_COMPARE(bytes(u"heard"_s), (file.toUtf8() + '\n').repeated(2));
    }

    void filter_data()
    {
        support::columns<QString, QString, QString>("barred", "dialog", "suffix");
        QTest::newRow("one") << u"VCF (*.vcf)|*.vcf"_s << u"VCF (*.vcf)"_s << u"vcf"_s;
        QTest::newRow("label without a pattern") << u"Text|*.txt"_s << u"Text (*.txt)"_s << u"txt"_s;
        QTest::newRow("two patterns") << u"Pictures|*.bmp;*.jpg"_s << u"Pictures (*.bmp *.jpg)"_s << u"bmp"_s;
        QTest::newRow("two labels") << u"A|*.a|All|*.*"_s << u"A (*.a);;All (*)"_s << u"a"_s;
        QTest::newRow("all files") << u"All|*.*"_s << u"All (*)"_s << u""_s;
        QTest::newRow("odd end") << u"A|*.a|B"_s << u"A (*.a)"_s << u"a"_s;
        QTest::newRow("pattern alone") << u"*.mdb"_s << u"(*.mdb)"_s << u"mdb"_s;
        QTest::newRow("nothing") << u""_s << u""_s << u""_s;
    }

    void filter()
    {
        QFETCH(QString, barred);
        QFETCH(QString, dialog);
        QFETCH(QString, suffix);
        QCOMPARE(dialogFilter(barred), dialog);
        QCOMPARE(defaultSuffix(barred), suffix);
    }

    void storage()
    {
        QVERIFY(freeBytes(m_folder->path()) > 0);
        QCOMPARE(freeBytes(m_folder->filePath(u"missing"_s)), -1);
        QVERIFY(isWritable(m_folder->filePath(u"root"_s)));
        QVERIFY(QDir(m_folder->filePath(u"root"_s))
                    .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
        QVERIFY(!isWritable(u"/proc"_s)); // not even for root
        QVERIFY(!isWritable(m_folder->filePath(u"missing"_s)));
    }

    void scriptedBoxes()
    {
        support::ScriptedBoxes boxes; // what goes wrong in them fails a test
        boxes.expect(u"Sure?"_s, Answer::Yes);
        QCOMPARE(boxes.ask(u"Really?"_s, {}, Icon::Question), Answer::No);
        QVERIFY(boxes.verify().contains(u"Really?"_s));
        boxes.expect(u"Sure?"_s, Answer::Yes);
        boxes.information(u"Sure?"_s, {});
        QVERIFY(!boxes.verify().isEmpty());
        boxes.information(u"Out of the blue"_s, {});
        QVERIFY(!boxes.verify().isEmpty());
        boxes.expect(u"Never shown"_s);
        QVERIFY(!boxes.verify().isEmpty());
    }

private:
    QString put(const QString& name, const QByteArray& bytes = "x") const
    {
        return support::put(m_folder->filePath(name), bytes);
    }

    QByteArray bytes(const QString& name) const { return support::bytesOf(m_folder->filePath(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<FolderDrive> m_drive;
};

QTEST_GUILESS_MAIN(DesktopServicesTest)
#include "desktop_services_test.moc"
