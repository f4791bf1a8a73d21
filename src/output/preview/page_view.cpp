#include "output/preview/page_view.h"

#include "widgets/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kGap = 14; ///< pixels round a page
constexpr int kCountFor = 12; ///< milliseconds of counting between two looks at what the person does
constexpr int kSearchFor = 12;
constexpr int kRenderedPages = 8;
constexpr double kLeastZoom = 0.2;
constexpr double kMostZoom = 4;

} // namespace

PageView::PageView(PictureOf pictures, QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_pictures(std::move(pictures))
    , m_rendered(kRenderedPages)
{
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Pages"));
    viewport()->setBackgroundRole(QPalette::Mid);
    viewport()->setAutoFillBackground(true);
}

PageView::~PageView() = default;

void PageView::show(const Report& report)
{
    clear();
    if (!report.isEmpty()) {
        m_pager = std::make_unique<ReportPager>(report);
        m_pager->step(0);
        m_current = 1;
        m_timer.start(0, this);
    }
    applyFit();
    layOut();
    verticalScrollBar()->setValue(0);
    Q_EMIT pagesChanged();
    Q_EMIT currentPageChanged(m_current);
}

void PageView::clear()
{
    m_timer.stop();
    m_searching.stop();
    m_sought.clear();
    m_rendered.clear();
    m_pager.reset();
    m_current = 0;
    layOut();
    Q_EMIT pagesChanged();
}

void PageView::stopCounting()
{
    m_timer.stop();
    Q_EMIT pagesChanged();
}

int PageView::pageCount() const
{
    return m_pager ? m_pager->pageCount() : 0;
}

const Report* PageView::report() const
{
    return m_pager ? &m_pager->report() : nullptr;
}

int PageView::currentPage() const
{
    return m_current;
}

double PageView::scale() const
{
    return m_zoom * logicalDpiX() / 1440.0;
}

QSizeF PageView::pageSize() const
{
    const Paper paper = m_pager ? m_pager->report().paper : Paper();
    return QSizeF(paper.width, paper.height) * scale();
}

double PageView::pageStep() const
{
    return pageSize().height() + kGap;
}

void PageView::layOut()
{
    const QSizeF page = pageSize();
    const QSize room = viewport()->size();
    const double height = kGap + pageCount() * pageStep();
    verticalScrollBar()->setRange(0, std::max(0, static_cast<int>(std::ceil(height)) - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(40);
    const int width = static_cast<int>(std::ceil(page.width())) + 2 * kGap;
    horizontalScrollBar()->setRange(0, std::max(0, width - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    viewport()->update();
}

void PageView::applyFit()
{
    if (m_fit == Fit::None)
        return;
    const Paper paper = m_pager ? m_pager->report().paper : Paper();
    const double pixels = logicalDpiX() / 1440.0;
    // Room for the scroll bar is kept also while it is not there, else the page would grow and shrink.
    const double width = viewport()->width() - 2 * kGap;
    double zoom = width / (paper.width * pixels);
    if (m_fit == Fit::Page)
        zoom = std::min(zoom, (viewport()->height() - 2 * kGap) / (paper.height * pixels));
    else
        zoom = std::min(zoom, 1.6);
    zoom = std::clamp(zoom, kLeastZoom, kMostZoom);
    if (std::abs(zoom - m_zoom) > 1e-3) {
        m_zoom = zoom;
        m_rendered.clear();
        Q_EMIT zoomChanged();
    }
}

void PageView::setZoom(double zoom)
{
    const int page = m_current;
    const double within = (verticalScrollBar()->value() - kGap - (page - 1) * pageStep()) / pageStep();
    m_fit = Fit::None;
    m_zoom = std::clamp(zoom, kLeastZoom, kMostZoom);
    m_rendered.clear();
    layOut();
    verticalScrollBar()->setValue(qRound(kGap + (page - 1 + within) * pageStep()));
    Q_EMIT zoomChanged();
}

void PageView::zoomBy(double factor)
{
    setZoom(m_zoom * factor);
}

void PageView::setFit(Fit fit)
{
    const int page = m_current;
    m_fit = fit;
    applyFit();
    layOut();
    goToPage(page);
}

void PageView::goToPage(int number)
{
    if (pageCount() == 0)
        return;
    const int page = std::clamp(number, 1, pageCount());
    verticalScrollBar()->setValue(qRound((page - 1) * pageStep()));
    if (m_current != page) {
        m_current = page;
        Q_EMIT currentPageChanged(page);
    }
}

Page PageView::pageOf(int number) const
{
    return m_pager ? m_pager->page(number) : Page();
}

QString PageView::pageText(int number) const
{
    QStringList lines;
    for (const PlacedBlock& placed : pageOf(number).blocks) {
        for (const Line& line : placed.block.lines) {
            QStringList cells;
            for (const Cell& cell : line.cells)
                cells << cell.text();
            lines << cells.join(u'\t');
        }
    }
    return lines.join(u'\n');
}

QImage PageView::thumbnail(int number, int width) const
{
    if (number < 1 || number > pageCount())
        return {};
    const Paper paper = m_pager->report().paper;
    const double ratio = devicePixelRatioF();
    const double twip = width * ratio / paper.width;
    QImage image(qRound(width * ratio), qRound(paper.height * twip), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(twip, twip);
    PagePainter(*m_pager, m_pictures).paint(painter, pageOf(number), {});
    painter.end();
    image.setDevicePixelRatio(ratio);
    return image;
}

QPixmap PageView::rendered(int number) const
{
    if (const QPixmap* kept = m_rendered.object(number))
        return *kept;
    const double ratio = devicePixelRatioF();
    QPixmap pixmap((pageSize() * ratio).toSize());
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(scale() * ratio, scale() * ratio);
    const PageMarks marks{.pages = isCounting() || !m_pager->isDone() ? 0 : pageCount(), .found = m_sought};
    PagePainter(*m_pager, m_pictures).paint(painter, pageOf(number), marks);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    m_rendered.insert(number, new QPixmap(pixmap));
    return pixmap;
}

void PageView::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    if (!m_pager)
        return;
    const QSizeF size = pageSize();
    const double step = pageStep();
    const int top = verticalScrollBar()->value();
    const double free = viewport()->width() - size.width();
    const double left = free > 2 * kGap ? free / 2 : kGap - horizontalScrollBar()->value();
    const int first = std::max(1, static_cast<int>((top + event->rect().top() - kGap) / step) + 1);
    for (int number = first; number <= pageCount(); ++number) {
        const double y = kGap + (number - 1) * step - top;
        if (y > event->rect().bottom())
            break;
        const QPointF at(std::round(left), std::round(y));
        painter.drawPixmap(at, rendered(number));
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawRect(QRectF(at, size).adjusted(-1, -1, 0, 0));
    }
}

void PageView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    const int page = m_current;
    applyFit();
    layOut();
    if (m_fit != Fit::None && page > 1)
        goToPage(page);
}

void PageView::scrollContentsBy(int dx, int dy)
{
    Q_UNUSED(dx)
    Q_UNUSED(dy)
    viewport()->update();
    if (pageCount() == 0)
        return;
    const double middle = verticalScrollBar()->value() + viewport()->height() / 3.0;
    const int page = std::clamp(static_cast<int>((middle - kGap) / pageStep()) + 1, 1, pageCount());
    if (page != m_current) {
        m_current = page;
        Q_EMIT currentPageChanged(page);
    }
}

void PageView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_timer.timerId())
        countOn();
    else if (event->timerId() == m_searching.timerId())
        searchOn();
    else
        QAbstractScrollArea::timerEvent(event);
}

void PageView::countOn()
{
    if (!m_pager->step(kCountFor)) {
        m_timer.stop();
        m_rendered.clear(); // each page now says of how many it is one
        viewport()->update();
    }
    layOut();
    Q_EMIT pagesChanged();
}

bool PageView::has(int number, const QString& text) const
{
    for (const PlacedBlock& placed : pageOf(number).blocks) {
        for (const Line& line : placed.block.lines) {
            for (const Cell& cell : line.cells) {
                for (const QString& part : cell.lines) {
                    if (part.contains(text, Qt::CaseInsensitive))
                        return true;
                }
            }
        }
    }
    return false;
}

void PageView::find(const QString& text)
{
    m_sought = text.trimmed();
    m_rendered.clear();
    viewport()->update();
    m_searching.stop();
    if (!m_sought.isEmpty() && hasPages())
        beginSearch(m_current);
}

void PageView::findNext()
{
    if (!m_sought.isEmpty() && hasPages())
        beginSearch(m_current + 1);
}

void PageView::beginSearch(int fromPage)
{
    m_searchFrom = m_searchPage = fromPage;
    m_hasWrapped = false;
    m_searching.start(0, this);
}

void PageView::searchOn()
{
    QElapsedTimer clock;
    clock.start();
    while (true) {
        if (m_searchPage > pageCount()) {
            if (isCounting())
                return;
            if (m_hasWrapped || m_searchFrom <= 1)
                break;
            m_hasWrapped = true;
            m_searchPage = 1;
        }
        if (m_hasWrapped && m_searchPage >= m_searchFrom)
            break;
        if (has(m_searchPage, m_sought)) {
            m_searching.stop();
            goToPage(m_searchPage);
            Q_EMIT searched(true);
            return;
        }
        ++m_searchPage;
        if (clock.elapsed() >= kSearchFor)
            return;
    }
    m_searching.stop();
    Q_EMIT searched(false);
}

void PageView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        QApplication::clipboard()->setText(pageText(m_current));
    else if (event->key() == Qt::Key_Home)
        goToPage(1);
    else if (event->key() == Qt::Key_End)
        goToPage(pageCount());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void PageView::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier) && event->angleDelta().y() != 0)
        zoomBy(event->angleDelta().y() > 0 ? 1.15 : 1 / 1.15);
    else
        QAbstractScrollArea::wheelEvent(event);
}

} // namespace output
