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
    void init();
    void readsWhatIsInSightOnly();
    void brokenPicturesAreReadOnce();
    void sizeReadsAnew();
    void largePictureIsBounded();
    void choosesByClickAndKeys();
    void goesWhileItReads();

private:
    QString picture(const QString& name, QSize size = {80, 60});
    void fill(int count);
    /// Whether nothing is read any more.
    bool rests();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ThumbnailView> m_view;
};

void ThumbnailViewTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_view = std::make_unique<ThumbnailView>();
    m_view->resize(450, 330);
}

QString ThumbnailViewTest::picture(const QString& name, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = m_folder->filePath(name);
    if (!image.save(path, "JPG"))
        qFatal("no picture could be written");
    return path;
}

void ThumbnailViewTest::fill(int count)
{
    QList<Thumbnail> all;
    for (int i = 0; i < count; ++i)
        all << Thumbnail{i + 1, u"Person %1"_s.arg(i, 3, 10, QChar(u'0')), picture(u"p%1.jpg"_s.arg(i))};
    m_view->append(all);
}

bool ThumbnailViewTest::rests()
{
    int before = -1;
    while (before != m_view->readings()) {
        before = m_view->readings();
        QTest::qWait(60);
    }
    return before > 0;
}

void ThumbnailViewTest::readsWhatIsInSightOnly()
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

void ThumbnailViewTest::brokenPicturesAreReadOnce()
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

void ThumbnailViewTest::sizeReadsAnew()
{
    m_view->append({{1, u"One"_s, picture(u"one.jpg"_s, {800, 400})}});
    m_view->show();
    QTRY_VERIFY(!m_view->pictureOf(0).isNull());
    const QSize medium = m_view->pictureOf(0).size();
    QCOMPARE(medium.width(), 2 * medium.height());
    m_view->setSize(ThumbnailView::Size::Large);
    QTRY_VERIFY(m_view->pictureOf(0).width() > medium.width());
}

void ThumbnailViewTest::largePictureIsBounded()
{
    m_view->append({{1, u"Wide"_s, picture(u"wide.jpg"_s, {6000, 3000})}});
    m_view->show();
    QTRY_VERIFY_WITH_TIMEOUT(!m_view->pictureOf(0).isNull(), 20000);
    QVERIFY(m_view->pictureOf(0).width() < 200);
}

void ThumbnailViewTest::choosesByClickAndKeys()
{
    fill(9);
    m_view->show();
    QSignalSpy chosen(m_view.get(), &ThumbnailView::chosen);
    QTest::mouseClick(
        m_view->viewport(), Qt::LeftButton, {}, m_view->visualRect(m_view->model()->index(1, 0)).center());
    QCOMPARE(chosen.last().at(0).toLongLong(), 2);
    QTest::keyClick(m_view.get(), Qt::Key_Down); // to the row below
    QTest::keyClick(m_view.get(), Qt::Key_Return);
    QCOMPARE(chosen.last().at(0).toLongLong(), 5);
}

void ThumbnailViewTest::goesWhileItReads()
{
    fill(30);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_view.reset();
    QTest::qWait(50);
}

QTEST_MAIN(ThumbnailViewTest)
#include "thumbnail_view_test.moc"
