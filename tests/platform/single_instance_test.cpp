#include <csignal>

#include <QProcess>
#include <QtTest>

#include "platform/single_instance.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using platform::SingleInstance;

/// The test program is its own second program: with "hold FOLDER" it says whether it is the first and stays.
class SingleInstanceTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstAndFree();
    void secondRaisesTheFirst();
    void secondHandsItsFilesOver();
    void afterACrash();
    void unreadableLock();
    void lockThatCanNotBeRenewed();
    void firstThatDoesNotAnswer();
    void oneForEachFolder();

private:
    /// What the other program says: "first" or "second".
    QByteArray start(QProcess& other) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void SingleInstanceTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QByteArray SingleInstanceTest::start(QProcess& other) const
{
    other.start(QCoreApplication::applicationFilePath(), {u"hold"_s, m_folder->path()});
    // The first must serve its events while the other asks.
    const bool spoke = QTest::qWaitFor([&other] { return other.bytesAvailable() > 0; }, 10'000);
    return spoke ? other.readLine().trimmed() : QByteArray();
}

void SingleInstanceTest::firstAndFree()
{
    {
        const SingleInstance first(m_folder->path());
        QVERIFY(first.isFirst());
    }
    const SingleInstance next(m_folder->path());
    QVERIFY(next.isFirst());
}

void SingleInstanceTest::secondRaisesTheFirst()
{
    SingleInstance first(m_folder->path());
    QSignalSpy raised(&first, &SingleInstance::raiseRequested);
    QProcess other;
    QCOMPARE(start(other), "second");
    QTRY_COMPARE(raised.count(), 1);
    QProcess third;
    QCOMPARE(start(third), "second");
    QTRY_COMPARE(raised.count(), 2);
    other.kill();
    third.kill();
    other.waitForFinished();
    third.waitForFinished();
}

void SingleInstanceTest::secondHandsItsFilesOver()
{
    const SingleInstance first(m_folder->path());
    QStringList opened;
    int raised = 0;
    connect(&first, &SingleInstance::openRequested, this, [&](const QStringList& files) { opened = files; });
    connect(&first, &SingleInstance::raiseRequested, this, [&] { ++raised; });
    QProcess other;
    const QStringList files{u"/tmp/a b\nc%20é.vcf"_s, u"/x"_s};
    other.start(QCoreApplication::applicationFilePath(), QStringList{u"hold"_s, m_folder->path()} + files);
    QTRY_COMPARE(opened, files);
    QCOMPARE(raised, 1);
    other.kill();
    other.waitForFinished();
}

void SingleInstanceTest::afterACrash()
{
    QProcess other;
    QCOMPARE(start(other), "first");
    QVERIFY(!SingleInstance(m_folder->path()).isFirst());
    other.kill();
    QVERIFY(other.waitForFinished());
    QVERIFY(QFileInfo::exists(m_folder->filePath(u".orvane.lock"_s)));

    SingleInstance first(m_folder->path());
    QVERIFY(first.isFirst());
    // And it is reached where the dead one had its socket.
    QSignalSpy raised(&first, &SingleInstance::raiseRequested);
    QProcess second;
    QCOMPARE(start(second), "second");
    QTRY_COMPARE(raised.count(), 1);
    second.kill();
    second.waitForFinished();
}

void SingleInstanceTest::unreadableLock()
{
    support::put(m_folder->filePath(u".orvane.lock"_s), {});
    const SingleInstance first(m_folder->path());
    QVERIFY(first.isFirst());
}

// What can not be renewed, as on a full disk or when something else bears the name, keeps nobody out.
void SingleInstanceTest::lockThatCanNotBeRenewed()
{
    const QString name = m_folder->filePath(u".orvane.lock"_s);
    QVERIFY(QDir().mkpath(name + u"/in the way"_s));
    QVERIFY(SingleInstance(m_folder->path()).isFirst());
    QVERIFY(QDir(name).removeRecursively());

    QProcess other;
    QCOMPARE(start(other), "first");
    other.kill();
    QVERIFY(other.waitForFinished());
    const support::FullDisk full(0);
    const SingleInstance first(m_folder->path());
    QVERIFY(first.isFirst());
    QVERIFY(!first.hasLock());
}

void SingleInstanceTest::firstThatDoesNotAnswer()
{
    QProcess other;
    QCOMPARE(start(other), "first");
    ::kill(pid_t(other.processId()), SIGSTOP);
    QElapsedTimer time;
    time.start();
    const bool first = SingleInstance(m_folder->path()).isFirst();
    const qint64 waited = time.elapsed();
    ::kill(pid_t(other.processId()), SIGCONT);
    other.kill();
    other.waitForFinished();
    QVERIFY(!first);
    QVERIFY2(waited < 3000, qPrintable(QString::number(waited)));
}

void SingleInstanceTest::oneForEachFolder()
{
    const QTemporaryDir another;
    const SingleInstance first(m_folder->path());
    const SingleInstance second(another.path());
    QVERIFY(first.isFirst());
    QVERIFY(second.isFirst());
}

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "hold"_L1) {
        const SingleInstance instance(arguments.value(2), arguments.mid(3));
        QTextStream(stdout) << (instance.isFirst() ? "first\n" : "second\n") << Qt::flush;
        QTimer::singleShot(30'000, &application, &QCoreApplication::quit);
        return QCoreApplication::exec();
    }
    SingleInstanceTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "single_instance_test.moc"
