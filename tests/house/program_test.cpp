#include <QtTest>

#include "jet/database.h"

using namespace Qt::StringLiterals;

/// The program itself, started as a person starts it, on folders of its own.
class ProgramTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startsAndKeepsItsData();

private:
    void start(QProcess& program, const QString& home) const;
};

void ProgramTest::start(QProcess& program, const QString& home) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"ORVANE_PROGRAM_FOLDER"_s, home + u"/program"_s);
    environment.insert(u"ORVANE_DRIVE_C"_s, home + u"/drive"_s);
    environment.insert(u"ORVANE_TIMING"_s, u"1"_s);
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(ORVANE_CONTACTS), QStringList());
    QVERIFY(program.waitForStarted());
}

void ProgramTest::startsAndKeepsItsData()
{
    const QTemporaryDir home;
    const QString book = home.filePath(u"program/Orvanedata.dll"_s);
    for (const bool first : {true, false}) {
        QProcess program;
        start(program, home.path());
        QByteArray heard;
        QTRY_VERIFY2_WITH_TIMEOUT(
            (heard += program.readAll()).contains("orvane-timing MDIForm1"), heard.constData(), 30000);
        QVERIFY(heard.indexOf("orvane-timing frmSplash") < heard.indexOf("orvane-timing MDIForm1"));
        QVERIFY(QFile::exists(home.filePath(u"program/Orvaneinfo.dll"_s)));
        QVERIFY(QFile::exists(home.filePath(u"drive/OVUserFiles/Exported Files/Emails"_s)));

        // A second one brings the first to the front and ends.
        QProcess second;
        start(second, home.path());
        QVERIFY(second.waitForFinished(20000));
        QCOMPARE(second.exitStatus(), QProcess::NormalExit);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(program.state(), QProcess::Running);

        jet::Database data;
        QCOMPARE(data.open(book), jet::Database::OpenResult::Opened);
        if (first)
            QVERIFY(data.execute(u"insert into cnt_main (name,first) values ('Asha Rao','Asha')"));
        else
            QCOMPARE(data.openRecordset(u"select name from cnt_main").textAt(0), u"Asha Rao"_s);
        data.close();
        // As when the power goes: what was stored is there at the next start.
        program.kill();
        QVERIFY(program.waitForFinished());
    }
}

QTEST_GUILESS_MAIN(ProgramTest)
#include "program_test.moc"
