#include "widgets/thumbnail_view.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using widgets::Thumbnail;
using widgets::ThumbnailView;

/// The grid of pictures reads what is in sight.
class ThumbnailViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_view = std::make_unique<ThumbnailView>();
        m_view->resize(450, 330);
    }

    void readsWhatIsInSightOnly()
    {
        fill(200);
        QTest::qWait(50);
        QCOMPARE(m_view->readings(), 0); // nobody sees it yet
        m_view->show();
        QTRY_VERIFY(!m_view->pictureOf(0).isNull());
        QVERIFY(rests());
        QVERIFY2(m_view->readings() < 20, qPrintable(QString::number(m_view->readings())));
        QVERIFY(m_view->pictureOf(199).isNull());
        m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
        QTRY_VERIFY(!m_view->pictureOf(199).isNull());
        QVERIFY(rests());
        QVERIFY(m_view->pictureOf(100).isNull()); // passed by
    }

    void brokenPicturesAreReadOnce()
    {
        QFile empty(m_folder->filePath(u"empty.jpg"_s));
        QVERIFY(empty.open(QIODevice::WriteOnly));
        empty.close();
        m_view->append({{1, u"Empty"_s, empty.fileName()}, {2, u"Missing"_s, m_folder->filePath(u"no.jpg"_s)},
            {3, u"Good"_s, picture(u"good.jpg"_s)}});
        m_view->show();
        QTRY_VERIFY(!m_view->pictureOf(2).isNull());
        QVERIFY(rests());
        m_view->viewport()->repaint();
        QVERIFY(rests());
        QCOMPARE(m_view->readings(), 3);
        QVERIFY(m_view->pictureOf(0).isNull());
    }

    void sizeReadsAnew()
    {
        m_view->append({{1, u"One"_s, picture(u"one.jpg"_s, {800, 400})}});
        m_view->show();
        QTRY_VERIFY(!m_view->pictureOf(0).isNull());
        const QSize medium = m_view->pictureOf(0).size();
        QCOMPARE(medium.width(), 2 * medium.height());
        m_view->setSize(ThumbnailView::Size::Large);
        QTRY_VERIFY(m_view->pictureOf(0).width() > medium.width());
    }

    void largePictureIsBounded()
    {
        m_view->append({{1, u"Wide"_s, picture(u"wide.jpg"_s, {6000, 3000})}});
        m_view->show();
        QTRY_VERIFY_WITH_TIMEOUT(!m_view->pictureOf(0).isNull(), 20000);
        QVERIFY(m_view->pictureOf(0).width() < 200);
    }

    void choosesByClickAndKeys()
    {
        fill(9);
        m_view->show();
        QSignalSpy chosen(m_view.get(), &ThumbnailView::chosen);
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
            m_view->visualRect(m_view->model()->index(1, 0)).center());
        QCOMPARE(chosen.last().at(0).toLongLong(), 2);
        QTest::keyClick(m_view.get(), Qt::Key_Down); // to the row below
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QCOMPARE(chosen.last().at(0).toLongLong(), 5);
    }

    void goesWhileItReads()
    {
        // Large enough that the reader still has it in hand; it comes back to a view that must be there.
        m_view->append({{1, u"Wide"_s, picture(u"wide.jpg"_s, {6000, 3000})}});
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
        m_view->grab();
        QCOMPARE(m_view->readings(), 0);
        m_view.reset();
        QTest::qWait(1000);
    }

private:
    QString picture(const QString& name, QSize size = QSize(80, 60))
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString path = m_folder->filePath(name);
        if (!image.save(path, "JPG"))
            qFatal("no picture could be written");
        return path;
    }

    void fill(int count)
    {
        QList<Thumbnail> all;
        for (int i = 0; i < count; ++i)
            all << Thumbnail{i + 1, u"Person %1"_s.arg(i, 3, 10, QChar(u'0')), picture(u"p%1.jpg"_s.arg(i))};
        m_view->append(all);
    }

    /// Whether nothing is read any more.
    bool rests()
    {
        int before = -1;
        while (before != m_view->readings()) {
            before = m_view->readings();
            QTest::qWait(60);
        }
        return before > 0;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ThumbnailView> m_view;
};

QTEST_MAIN(ThumbnailViewTest)
#include "thumbnail_view_test.moc"
