#include "widgets/picture_box.h"

#include "widgets/theme.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QMutex>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFocusRect>
#include <QThreadPool>

#include <algorithm>
#include <memory>

namespace widgets {

namespace {

constexpr qint64 LargestFile = 100 * 1024 * 1024;
constexpr qint64 LargestDrawing = 256 * 1024;
constexpr qint64 MostPixels = 50'000'000;
constexpr qint64 ManyPixels = 12'000'000; ///< of a picture that is read alone
constexpr int LongestSide = 30'000;
constexpr int SmallestReading = 240; ///< so that a box that grows a little need not read again

/// Whether a drawing is as plain as it has to be to be drawn.
bool isHarmless(const QString& path)
{
    QFile file(path);
    if (file.size() > LargestDrawing || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray drawing = file.read(LargestDrawing);
    const bool isCompressed = drawing.startsWith("\x1f\x8b");
    return !isCompressed && !drawing.contains("<image") && !drawing.contains("<use")
        && !drawing.contains("<!ENTITY");
}

} // namespace

QImage readPicture(const QString& path, QSize within)
{
    // isFile() is false for pipes and devices, which might never end.
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile() || file.size() == 0 || file.size() > LargestFile)
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (reader.format().startsWith("svg") && !isHarmless(path))
        return {};
    const QSize claimed = reader.size();
    if (claimed.isEmpty() || std::max(claimed.width(), claimed.height()) > LongestSide
        || qint64(claimed.width()) * claimed.height() > MostPixels) {
        return {};
    }
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize room = turned ? within.transposed() : within;
    const QSize fitting = claimed.scaled(room, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    if (fitting.width() < claimed.width())
        reader.setScaledSize(fitting);
    static QMutex alone;
    QMutexLocker lock(&alone);
    if (qint64(claimed.width()) * claimed.height() < ManyPixels)
        lock.unlock();
    QImage image;
    if (!reader.read(&image))
        return {};
    return image;
}

// Should the program end meanwhile, nobody waits any more and what was read goes nowhere.
QImage readPictureAside(const QString& path, QSize within)
{
    const auto picture = std::make_shared<QImage>();
    QEventLoop waiting;
    QThreadPool::globalInstance()->start([path, within, picture, waiter = QPointer(&waiting)] {
        const QImage image = readPicture(path, within);
        QMetaObject::invokeMethod(
            qApp,
            [picture, waiter, image] {
                *picture = image;
                if (waiter)
                    waiter->quit();
            },
            Qt::QueuedConnection);
    });
    waiting.exec(QEventLoop::ExcludeUserInputEvents);
    return *picture;
}

PictureBox::PictureBox(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setMinimumSize(48, 48);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void PictureBox::setPath(const QString& path)
{
    m_path = path;
    m_image = {};
    m_scaled = {};
    read(wantedSize());
    update();
}

void PictureBox::read(QSize within)
{
    m_readFor = within;
    const int reading = ++m_reading;
    m_isReading = !m_path.isEmpty();
    if (!m_isReading)
        return arrived(reading, {});
    QThreadPool::globalInstance()->start([box = QPointer(this), reading, path = m_path, within] {
        const QImage image = readPicture(path, within);
        QMetaObject::invokeMethod(
            qApp,
            [box, reading, image] {
                if (box)
                    box->arrived(reading, image);
            },
            Qt::QueuedConnection);
    });
}

void PictureBox::arrived(int reading, const QImage& image)
{
    if (reading != m_reading)
        return;
    m_isReading = false;
    m_image = image;
    m_scaled = {};
    update();
    Q_EMIT pictureRead();
}

QSize PictureBox::sizeHint() const
{
    return {160, 180};
}

QSize PictureBox::wantedSize() const
{
    return (size() * devicePixelRatioF()).expandedTo(QSize(SmallestReading, SmallestReading));
}

void PictureBox::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_scaled = {};
    const QSize wanted = wantedSize();
    const bool outgrown = wanted.width() > m_readFor.width() || wanted.height() > m_readFor.height();
    if (outgrown && (hasPicture() || m_isReading))
        read(wanted * 3 / 2);
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRect frame = rect().adjusted(0, 0, -1, -1);
    if (m_image.isNull()) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(palette().color(QPalette::Base));
        painter.drawRoundedRect(QRectF(frame).translated(0.5, 0.5), 4, 4);
        const int side = m_isReading ? 0 : std::min({64, width() / 2, height() / 2});
        painter.setOpacity(0.45);
        QRect middle(0, 0, side, side);
        middle.moveCenter(rect().center());
        if (side > 0)
            icon(u"picture").paint(&painter, middle);
        painter.setOpacity(1);
    } else {
        const qreal ratio = devicePixelRatioF();
        const QSize room = size() * ratio;
        if (m_scaled.isNull()) {
            const bool fits = m_image.width() <= room.width() && m_image.height() <= room.height();
            m_scaled = QPixmap::fromImage(
                fits ? m_image : m_image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            m_scaled.setDevicePixelRatio(ratio);
        }
        QRect place(QPoint(0, 0), (QSizeF(m_scaled.size()) / ratio).toSize());
        place.moveCenter(rect().center());
        painter.drawPixmap(place.topLeft(), m_scaled);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRoundedRect(QRectF(frame).translated(0.5, 0.5), 4, 4);
    }
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void PictureBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Q_EMIT clicked();
    else
        QWidget::keyPressEvent(event);
}

} // namespace widgets
