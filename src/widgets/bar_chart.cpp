#include "widgets/bar_chart.h"

#include "widgets/theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace widgets {

namespace {

constexpr int Gap = 8; ///< between label, bar and number

} // namespace

BarChart::BarChart(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void BarChart::setBars(const QList<Bar>& bars)
{
    m_bars = bars;
    m_current = -1;
    QStringList said;
    for (const Bar& bar : bars)
        said << u"%1: %2"_s.arg(bar.label, QString::number(bar.count));
    setAccessibleDescription(said.join(u", "_s));
    updateGeometry();
    update();
}

void BarChart::setCurrent(int bar)
{
    m_current = bar;
    update();
}

void BarChart::print(QPainter& painter, const QRectF& where) const
{
    QPalette onPaper = palette();
    onPaper.setColor(QPalette::Text, Qt::black);
    onPaper.setColor(QPalette::Highlight, QColor(0x25, 0x63, 0xeb));
    onPaper.setColor(QPalette::Base, Qt::white);
    paintBars(painter, where, onPaper);
}

QSize BarChart::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 36, int(m_bars.size()) * (fontMetrics().height() + 2)};
}

QSize BarChart::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 60, int(m_bars.size()) * fontMetrics().height() * 2};
}

void BarChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!m_bars.isEmpty())
        return paintBars(painter, rect(), palette());
    painter.setPen(quietTextColor());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, tr("Nothing to show"));
}

void BarChart::mousePressEvent(QMouseEvent* event)
{
    if (m_bars.isEmpty() || event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    const int bar = int(event->position().y() / lineHeight(QFontMetricsF(font()), height()));
    if (bar < m_bars.size())
        Q_EMIT chosen(bar);
}

/// Few bars do not spread over all of a high place.
double BarChart::lineHeight(const QFontMetricsF& metrics, double room) const
{
    constexpr double kHighest = 2.4; // texts
    return std::min(room / double(m_bars.size()), metrics.height() * kHighest);
}

void BarChart::paintBars(QPainter& painter, const QRectF& where, const QPalette& colors) const
{
    const QFontMetricsF metrics(painter.font(), painter.device());
    double labels = 0;
    int most = 1;
    for (const Bar& bar : m_bars) {
        labels = std::max(labels, metrics.horizontalAdvance(bar.label));
        most = std::max(most, bar.count);
    }
    labels = std::min(labels, where.width() / 3);
    const double numbers = metrics.horizontalAdvance(QString::number(most));
    const double room = std::max(1.0, where.width() - labels - numbers - 2 * Gap);
    const double high = lineHeight(metrics, where.height());
    const double thick = std::min(high * 0.66, metrics.height() * 1.4);
    double top = where.top();
    for (int i = 0; i < m_bars.size(); ++i, top += high) {
        const Bar& bar = m_bars[i];
        const QRectF line(where.left(), top, where.width(), high);
        painter.setPen(colors.color(QPalette::Text));
        painter.drawText(QRectF(line.left(), top, labels, high), Qt::AlignVCenter | Qt::AlignRight,
            metrics.elidedText(bar.label, Qt::ElideRight, labels));
        const double length = bar.count > 0 ? std::max(2.0, room * bar.count / most) : 0;
        const QRectF box(line.left() + labels + Gap, line.center().y() - thick / 2, length, thick);
        QColor fill = colors.color(QPalette::Highlight);
        if (m_current >= 0 && i != m_current)
            fill.setAlphaF(0.45F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(fill);
        painter.drawRoundedRect(box, 2, 2);
        painter.setPen(colors.color(QPalette::Text));
        painter.drawText(QRectF(box.right() + Gap / 2.0, top, numbers + Gap, high),
            Qt::AlignVCenter | Qt::AlignLeft, QString::number(bar.count));
    }
}

} // namespace widgets
