#include "letters/labels/sheet_picture.h"

#include "widgets/theme.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace letters {

namespace {

constexpr double kEdge = 4;

} // namespace

SheetPicture::SheetPicture(QWidget* parent)
    : QWidget(parent)
{
    setMayChoose(true);
}

void SheetPicture::setMayChoose(bool may)
{
    m_mayChoose = may;
    setFocusPolicy(may ? Qt::StrongFocus : Qt::NoFocus);
    setCursor(may ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void SheetPicture::setSheet(const output::LabelSheet& sheet)
{
    m_sheet = sheet;
    setFirstLabel(m_first);
    update();
}

void SheetPicture::setFirstLabel(int label)
{
    m_first = std::clamp(label, 0, std::max(0, m_sheet.layout.labels() - 1));
    update();
}

QRectF SheetPicture::paperPlace() const
{
    const double room = std::min((width() - 2 * kEdge) / std::max(1.0, m_sheet.paper.width),
        (height() - 2 * kEdge) / std::max(1.0, m_sheet.paper.height));
    const QSizeF size(m_sheet.paper.width * room, m_sheet.paper.height * room);
    return {{(width() - size.width()) / 2, (height() - size.height()) / 2}, size};
}

QRectF SheetPicture::labelPlace(int label) const
{
    const output::SheetLayout& layout = m_sheet.layout;
    const QRectF paper = paperPlace();
    const double scale = paper.width() / std::max(1.0, m_sheet.paper.width);
    const int column = label % std::max(1, layout.columns);
    const int row = label / std::max(1, layout.columns);
    return {paper.left() + (layout.left + column * layout.pitchX) * scale,
        paper.top() + (layout.top + row * layout.pitchY) * scale, layout.width * scale,
        layout.height * scale};
}

int SheetPicture::labelAt(QPointF place) const
{
    for (int label = 0; label < m_sheet.layout.labels(); ++label) {
        if (labelPlace(label).contains(place))
            return label;
    }
    return -1;
}

void SheetPicture::choose(int label)
{
    if (!m_mayChoose || label < 0 || label >= m_sheet.layout.labels())
        return;
    setFirstLabel(label);
    Q_EMIT firstLabelChosen(m_first);
}

void SheetPicture::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette& colors = palette();
    painter.setPen(
        hasFocus() ? QPen(colors.color(QPalette::Highlight), 2) : QPen(widgets::quietTextColor(), 1));
    painter.setBrush(colors.color(QPalette::Base));
    painter.drawRect(paperPlace());
    painter.setPen(QPen(widgets::quietTextColor(), 0.7));
    QColor free = colors.color(QPalette::Highlight);
    free.setAlphaF(0.35F);
    for (int label = 0; label < m_sheet.layout.labels(); ++label) {
        const bool isUsed = label < m_first;
        painter.setBrush(isUsed                   ? QBrush(widgets::quietTextColor(), Qt::BDiagPattern)
                : label == m_first && m_mayChoose ? QBrush(colors.color(QPalette::Highlight))
                                                  : QBrush(free));
        painter.drawRoundedRect(labelPlace(label).adjusted(0.5, 0.5, -0.5, -0.5), 1.5, 1.5);
    }
}

void SheetPicture::mousePressEvent(QMouseEvent* event)
{
    choose(labelAt(event->position()));
}

void SheetPicture::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left: return choose(m_first - 1);
    case Qt::Key_Right: return choose(m_first + 1);
    case Qt::Key_Up: return choose(m_first - m_sheet.layout.columns);
    case Qt::Key_Down: return choose(m_first + m_sheet.layout.columns);
    case Qt::Key_Home: return choose(0);
    default: QWidget::keyPressEvent(event);
    }
}

bool SheetPicture::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && m_mayChoose) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int label = labelAt(help->pos());
        QToolTip::showText(
            help->globalPos(), label < 0 ? QString() : tr("Begin with label %1").arg(label + 1), this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace letters
