#include "support/columns.h"
#include "support/disk.h"
#include "widgets/picture_box.h"

#include <QtTest>
#include <QtWidgets>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace widgets;

class PictureBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
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
        const QByteArray drawing
            = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='20'><rect width='40' height='20'/>";
        write(u"plain.svg"_s, drawing + "</svg>");
        write(u"nested.svg"_s, drawing + "<image href='file:///dev/zero' width='9' height='9'/></svg>");
        write(u"long.svg"_s, drawing + QByteArray(300'000, ' ') + "</svg>");
        write(u"packed.svg"_s,
            QByteArray::fromBase64(
                "H4sIAAAAAAACA7MpLktXqMjNySu2Vc8oKSmw0tcvLy/"
                "XKzfWyy9K1zcyMDDQB6pQVyjPTCnJsFU3MVBXyEjNTM8osVU3MlC3sylKTS7BIalvZwPSawcA0SnibmMAAAA="));

        // A bitmap header of 60,000 x 60,000 pixels with hardly anything behind it.
        QByteArray huge;
        QDataStream stream(&huge, QIODevice::WriteOnly);
        stream.setByteOrder(QDataStream::LittleEndian);
        stream.writeRawData("BM", 2);
        stream << quint32(200) << quint32(0) << quint32(54) << quint32(40) << qint32(60'000) << qint32(60'000)
               << quint16(1) << quint16(24) << quint32(0) << quint32(0) << quint32(0) << quint32(0)
               << quint32(0) << quint32(0) << quint64(0);
        write(u"huge.bmp"_s, huge);

        QFile large(write(u"large.png"_s, png));
        QVERIFY(large.resize(101 * 1024 * 1024)); // a sparse file: takes no room
        QCOMPARE(mkfifo(qPrintable(path(u"pipe.png"_s)), 0600), 0);
    }

    void refuses_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"packed.svg", "nested.svg", "long.svg", "missing.png", "text.png",
                 "empty.png", "huge.bmp", "large.png", "pipe.png", "."})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void refuses()
    {
        QFETCH(QString, name);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(readPicture(path(name), QSize(100, 100)).isNull());
        QVERIFY(timer.elapsed() < 1000);
    }

    void fitsTheRoom_data()
    {
        support::columns<QString, QSize>("name", "size");
        QTest::newRow("smaller, in proportion") << u"wide.png"_s << QSize(300, 150);
        QTest::newRow("never larger than it is") << u"small.png"_s << QSize(20, 10);
        QTest::newRow("plain drawing") << u"plain.svg"_s << QSize(40, 20);
        QTest::newRow("told by its content") << u"wrongname.txt"_s << QSize(300, 150);
    }

    void fitsTheRoom()
    {
        QFETCH(QString, name);
        QTEST(readPicture(path(name), QSize(300, 300)).size(), "size");
    }

    void brokenFileKeepsItsPath()
    {
        PictureBox box;
        box.setPath(path(u"wide.png"_s));
        QTRY_VERIFY(box.hasPicture());
        box.setPath(path(u"small.png"_s));
        QSignalSpy read(&box, &PictureBox::pictureRead);
        box.setPath(path(u"text.png"_s)); // before the other one is there
        QTRY_COMPARE(read.size(), 1);
        QCoreApplication::processEvents();
        QVERIFY(!box.hasPicture());
        QCOMPARE(box.path(), path(u"text.png"_s)); // a save must not lose it
        box.grab();
    }

    void growsSharp()
    {
        PictureBox box;
        box.resize(100, 100);
        box.setPath(path(u"wide.png"_s));
        box.show();
        box.resize(800, 800);
        QImage shown;
        const auto reaches = [&] {
            shown = box.grab().toImage();
            return shown.pixelColor(5, 400) == QColor(Qt::darkCyan);
        };
        QTRY_VERIFY(reaches());
        QCOMPARE(shown.pixelColor(5, 400), QColor(Qt::darkCyan)); // reaches from side to side
        QVERIFY(shown.pixelColor(400, 100) != QColor(Qt::darkCyan));
    }

private:
    QString write(const QString& name, const QByteArray& content)
    {
        return support::put(path(name), content);
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
};

QTEST_MAIN(PictureBoxTest)
#include "picture_box_test.moc"
