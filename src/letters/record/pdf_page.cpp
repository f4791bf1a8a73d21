#include "letters/record/pdf_page.h"

#include "widgets/theme.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPdfDocument>
#include <QPointer>
#include <QThreadPool>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr qint64 kMostBytes = 100'000'000;
constexpr int kMostPixels = 2400; ///< of a side, whatever a file says of its page

struct ReadPage {
    QImage image;
    int pages = 0;
};

ReadPage readPage(const QString& path, int page, QSize within)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() > kMostBytes)
        return {};
    QPdfDocument document;
    if (document.load(path) != QPdfDocument::Error::None || page >= document.pageCount())
        return {};
    const QSizeF points = document.pagePointSize(page);
    if (points.isEmpty())
        return {{}, document.pageCount()};
    const QSize size
        = points.scaled(within, Qt::KeepAspectRatio).toSize().boundedTo({kMostPixels, kMostPixels});
    QImage paper(size, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, document.render(page, size));
    return {paper, document.pageCount()};
}

} // namespace

PdfPage::PdfPage(QWidget* parent)
    : QWidget(parent)
    , m_back(new QToolButton)
    , m_next(new QToolButton)
    , m_place(new QLabel)
{
    m_back->setObjectName(u"PdfBack"_s);
    m_next->setObjectName(u"PdfNext"_s);
    m_back->setToolTip(tr("Page before"));
    m_next->setToolTip(tr("Next page"));
    widgets::setIcon(m_back, u"previous");
    widgets::setIcon(m_next, u"next");
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(m_back);
    row->addWidget(m_place);
    row->addWidget(m_next);
    row->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addStretch();
    layout->addLayout(row);
    setMinimumSize(160, 200);
    connect(m_back, &QToolButton::clicked, this, [this] { turn(-1); });
    connect(m_next, &QToolButton::clicked, this, [this] { turn(1); });
}

void PdfPage::setPath(const QString& path)
{
    m_path = path;
    m_page = 0;
    m_pages = 0;
    m_image = {};
    ++m_reading; // what is under way is of another file
    m_isReading = false;
    update();
    if (!path.isEmpty())
        read();
}

// One at a time: the window may be resized faster than pages are read.
void PdfPage::read()
{
    if (m_isReading || m_path.isEmpty())
        return;
    m_isReading = true;
    const QSize within = QSize(width(), height() - m_back->sizeHint().height()) * devicePixelRatioF();
    QPointer<PdfPage> page(this);
    QThreadPool::globalInstance()->start(
        [page, reading = m_reading, path = m_path, number = m_page, within = within.expandedTo({100, 100})] {
            const ReadPage read = readPage(path, number, within);
            QMetaObject::invokeMethod(
                qApp,
                [page, reading, read] {
                    if (page)
                        page->arrived(reading, read.image, read.pages);
                },
                Qt::QueuedConnection);
        });
}

void PdfPage::arrived(int reading, const QImage& image, int pages)
{
    if (reading != m_reading)
        return;
    m_isReading = false;
    m_image = image;
    m_pages = pages;
    m_place->setText(pages > 0 ? tr("Page %1 of %2").arg(m_page + 1).arg(pages) : QString());
    for (QToolButton* button : {m_back, m_next})
        button->setVisible(pages > 1);
    m_back->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < pages);
    update();
    Q_EMIT pageRead();
}

void PdfPage::turn(int step)
{
    const int page = m_page + step;
    if (page < 0 || page >= m_pages)
        return;
    m_page = page;
    ++m_reading;
    m_isReading = false;
    read();
}

void PdfPage::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRect room = rect().adjusted(0, 0, 0, -m_back->sizeHint().height() - 4);
    if (m_image.isNull()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap,
            m_isReading ? QString() : tr("The file can not be shown here"));
        return;
    }
    const QSize size = m_image.size().scaled(room.size(), Qt::KeepAspectRatio);
    const QRect place(room.center() - QPoint(size.width() / 2, size.height() / 2), size);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_image);
}

void PdfPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    read();
}

} // namespace letters
