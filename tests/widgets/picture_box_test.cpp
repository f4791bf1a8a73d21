#include "widgets/picture_box.h"

#include <QtTest>
#include <QtWidgets>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace widgets;

class PictureBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void refuses_data();
    void refuses();
    void fitsTheRoom_data();
    void fitsTheRoom();
    void brokenFileKeepsItsPath();
    void growsSharp();

private:
    QString write(const QString& name, const QByteArray& content);
    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

QString PictureBoxTest::write(const QString& name, const QByteArray& content)
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("no test file");
    return file.fileName();
}

void PictureBoxTest::initTestCase()
{
    QImage image(1200, 600, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QVERIFY(image.save(path(u"wide.png"_s)));
    QVERIFY(image.scaled(20, 10).save(path(u"small.png"_s)));

    QByteArray png;
    QBuffer buffer(&png);
    QVERIFY(buffer.open(QIODevice::WriteOnly) && image.save(&buffer, "PNG"));
    write(u"cut.png"_s, png.first(60));
    write(u"text.png"_s, "no picture at all");
    write(u"empty.png"_s, {});
    write(u"wrongname.txt"_s, png);

    // A bitmap header of 60,000 x 60,000 pixels with hardly anything behind it.
    QByteArray huge;
    QDataStream stream(&huge, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("BM", 2);
    stream << quint32(200) << quint32(0) << quint32(54) << quint32(40) << qint32(60'000) << qint32(60'000)
           << quint16(1) << quint16(24) << quint32(0) << quint32(0) << quint32(0) << quint32(0) << quint32(0)
           << quint32(0) << quint64(0);
    write(u"huge.bmp"_s, huge);

    QFile large(write(u"large.png"_s, png));
    QVERIFY(large.resize(101 * 1024 * 1024)); // a sparse file: takes no room
    QCOMPARE(mkfifo(qPrintable(path(u"pipe.png"_s)), 0600), 0);
}

void PictureBoxTest::refuses_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
        {"missing.png", "text.png", "empty.png", "huge.bmp", "large.png", "pipe.png", "."})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void PictureBoxTest::refuses()
{
    QFETCH(QString, name);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(readPicture(path(name), QSize(100, 100)).isNull());
    QVERIFY(timer.elapsed() < 1000);
}

void PictureBoxTest::fitsTheRoom_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("size");
    QTest::newRow("smaller, in proportion") << u"wide.png"_s << QSize(300, 150);
    QTest::newRow("never larger than it is") << u"small.png"_s << QSize(20, 10);
    QTest::newRow("told by its content") << u"wrongname.txt"_s << QSize(300, 150);
}

void PictureBoxTest::fitsTheRoom()
{
    QFETCH(QString, name);
    QTEST(readPicture(path(name), QSize(300, 300)).size(), "size");
}

void PictureBoxTest::brokenFileKeepsItsPath()
{
    PictureBox box;
    box.setPath(path(u"wide.png"_s));
    QVERIFY(box.hasPicture());
    box.setPath(path(u"text.png"_s));
    QVERIFY(!box.hasPicture());
    QCOMPARE(box.path(), path(u"text.png"_s)); // a save must not lose it
    box.grab();
}

void PictureBoxTest::growsSharp()
{
    PictureBox box;
    box.resize(100, 100);
    box.setPath(path(u"wide.png"_s));
    box.show();
    box.resize(800, 800);
    const QImage shown = box.grab().toImage();
    QCOMPARE(shown.pixelColor(5, 400), QColor(Qt::darkCyan)); // reaches from side to side
    QVERIFY(shown.pixelColor(400, 100) != QColor(Qt::darkCyan));
}

QTEST_MAIN(PictureBoxTest)
#include "picture_box_test.moc"
