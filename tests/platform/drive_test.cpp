#include <QtTest>

#include "platform/folder_drive.h"
#include "support/columns.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using platform::Drive;
using platform::FolderDrive;

class DriveTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void found_data();
    void found();
    void refused_data();
    void refused();
    void wayBack();
    void folders();
    void safeName_data();
    void safeName();
    void safeNamesAreLegal();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<FolderDrive> m_drive;
};

void DriveTest::initTestCase()
{
    QDir base(m_folder.path());
    QVERIFY(base.mkpath(u"program/userfiles/MISC"_s));
    support::put(base.filePath(u"root/OVUserFiles/Letters/Ébène.TXT"_s));
    m_drive = std::make_unique<FolderDrive>(base.filePath(u"root"_s), base.filePath(u"program/"_s));
}

void DriveTest::found_data()
{
    support::columns<QString, QString>("path", "local");
    QTest::newRow("as spelled") << uR"(C:\OVUserFiles\Letters)"_s << u"root/OVUserFiles/Letters"_s;
    QTest::newRow("other case") << uR"(c:\OVUSERFILES\letters\éBÈNE.txt)"_s
                                << u"root/OVUserFiles/Letters/Ébène.TXT"_s;
    QTest::newRow("end not there") << uR"(C:\ovuserfiles\New\Sub.txt)"_s << u"root/OVUserFiles/New/Sub.txt"_s;
    QTest::newRow("backslash at the end") << uR"(C:\OVUserFiles\)"_s << u"root/OVUserFiles"_s;
    QTest::newRow("doubled backslash") << uR"(C:\OVUserFiles\\Letters)"_s << u"root/OVUserFiles/Letters"_s;
    QTest::newRow("the drive") << u"C:"_s << u"root"_s;
    QTest::newRow("rooted: program's folder")
        << uR"(\UserFiles\Misc\sound)"_s << u"program/userfiles/MISC/sound"_s;
    QTest::newRow("dots within") << uR"(C:\a..b\.c)"_s << u"root/a..b/.c"_s;
}

void DriveTest::found()
{
    QFETCH(QString, path);
    QFETCH(QString, local);
    QCOMPARE(m_drive->local(path), m_folder.filePath(local));
}

void DriveTest::refused_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty") << u""_s;
    QTest::newRow("up") << uR"(C:\OVUserFiles\..\x)"_s;
    QTest::newRow("up from the program") << uR"(\..\root)"_s;
    QTest::newRow("up, with a blank") << uR"(C:\.. \x)"_s;
    QTest::newRow("here") << uR"(C:\.\x)"_s;
    QTest::newRow("three dots") << uR"(C:\...\x)"_s;
    QTest::newRow("dot at the end") << uR"(C:\x.)"_s;
    QTest::newRow("blank at the end") << uR"(C:\x )"_s;
    QTest::newRow("slash") << uR"(C:\a/../../x)"_s;
    for (const char16_t wrong : {u':', u'*', u'?', u'"', u'<', u'>', u'|', u'\n', u'\0', char16_t(0xD800)})
        QTest::addRow("character %d", int(wrong)) << QString(u"C:\\a"_s + QChar(wrong) + u'b');
    QTest::newRow("other drive") << uR"(D:\x)"_s;
    QTest::newRow("relative to the drive") << u"C:x"_s;
    QTest::newRow("relative") << uR"(OVUserFiles\x)"_s;
    QTest::newRow("share") << uR"(\\server\x)"_s;
    QTest::newRow("path of this computer") << u"/etc/passwd"_s;
}

void DriveTest::refused()
{
    QFETCH(QString, path);
    QCOMPARE(m_drive->local(path), QString());
    QVERIFY(!m_drive->ensureFolder(path));
    QVERIFY(!m_drive->exists(path));
}

void DriveTest::wayBack()
{
    QCOMPARE(m_drive->named(m_folder.filePath(u"root/a/b.txt"_s)), uR"(C:\a\b.txt)"_s);
    QCOMPARE(m_drive->named(m_folder.filePath(u"program/x"_s)), uR"(\x)"_s);
    QCOMPARE(m_drive->named(m_folder.filePath(u"root2/a"_s)), QString());
    QCOMPARE(m_drive->named(m_folder.filePath(u"root/../x"_s)), QString());
    QCOMPARE(m_drive->named(m_folder.filePath(u"root/a:b"_s)), QString());
    QCOMPARE(m_drive->local(QString(m_drive->programFolder() + uR"(\UserFiles)"_s)),
        m_folder.filePath(u"program/userfiles"_s));
    QCOMPARE(m_drive->local(QString(m_drive->programFolder() + uR"(2\x)"_s)), QString());
    QCOMPARE(m_drive->local(QString(m_drive->programFolder() + uR"(\..\x)"_s)), QString());
}

void DriveTest::folders()
{
    QVERIFY(m_drive->ensureFolder(uR"(C:\OVUSERFILES\Exported Files\Html\)"));
    QVERIFY(QFileInfo(m_folder.filePath(u"root/OVUserFiles/Exported Files/Html"_s)).isDir());
    QVERIFY(m_drive->exists(uR"(c:\ovuserfiles\exported files\HTML)"));
    // A file stands in the way.
    QVERIFY(!m_drive->ensureFolder(uR"(C:\OVUserFiles\Letters\ébène.txt)"));
}

void DriveTest::safeName_data()
{
    support::columns<QString, QString>("name", "safe");
    QTest::newRow("plain") << u"Asha Rao"_s << u"Asha Rao"_s;
    QTest::newRow("two blanks within") << u"Asha Rao  H"_s << u"Asha Rao  H"_s;
    QTest::newRow("wrong characters") << uR"(a\b/c:d*e?f"g<h>i|j)"_s << u"a_b_c_d_e_f_g_h_i_j"_s;
    QTest::newRow("control characters") << u"a\nb\tc"_s << u"a_b_c"_s;
    QTest::newRow("up") << u"..\\..\\x"_s << u"_._.._x"_s;
    QTest::newRow("only dots") << u"..."_s << u"_"_s;
    QTest::newRow("empty") << u"  "_s << u"_"_s;
    QTest::newRow("end") << u" Dr. "_s << u"Dr"_s;
    QTest::newRow("hidden") << u".net"_s << u"_net"_s;
    QTest::newRow("device") << u"con"_s << u"_con"_s;
    QTest::newRow("device with an extension") << u"Lpt1.a.b"_s << u"_Lpt1.a.b"_s;
    QTest::newRow("no device") << u"Connie"_s << u"Connie"_s;
    QTest::newRow("long") << QString(5000, u'a') << QString(120, u'a');
    QTest::newRow("blank at the bound") << QString(119, u'a') + u" bcd"_s << QString(119, u'a');
    QTest::newRow("half a character") << QString(QChar(0xDC00)) + u'a' << u"_a"_s;
}

void DriveTest::safeName()
{
    QFETCH(QString, name);
    QFETCH(QString, safe);
    QCOMPARE(Drive::safeFileName(name), safe);
}

void DriveTest::safeNamesAreLegal()
{
    // What comes out is taken by the drive and by the disk, whatever went in.
    QRandomGenerator random(1);
    for (int round = 0; round < 300; ++round) {
        QString name;
        const int length = random.bounded(1, 200);
        for (int i = 0; i < length; ++i)
            name += QChar(char16_t(round % 2 == 0 ? random.bounded(0x20, 0x80) : random.bounded(0, 0x10000)));
        const QString safe = Drive::safeFileName(name);
        QVERIFY(safe.size() <= 120);
        const QString local = m_drive->local(QString(uR"(C:\)"_s + safe + u".vcf"_s));
        QCOMPARE(QFileInfo(local).path(), m_folder.filePath(u"root"_s));
        QFile file(local);
        QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(safe));
    }
}

QTEST_GUILESS_MAIN(DriveTest)
#include "drive_test.moc"
