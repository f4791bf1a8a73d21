#include "widgets/wrapping_row.h"

#include <QWidget>

#include <algorithm>

namespace widgets {

WrappingRow::WrappingRow(QWidget* parent)
    : QLayout(parent)
{
}

WrappingRow::~WrappingRow()
{
    for (const Part& part : std::as_const(m_parts))
        delete part.item;
}

void WrappingRow::add(QWidget* part, int stretch)
{
    addWidget(part);
    m_parts.last().stretch = stretch;
}

void WrappingRow::add(QLayout* part, int stretch)
{
    addChildLayout(part);
    addItem(part);
    m_parts.last().stretch = stretch;
}

void WrappingRow::addItem(QLayoutItem* item)
{
    m_parts << Part{item, 1};
    invalidate();
}

QLayoutItem* WrappingRow::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_parts[index].item : nullptr;
}

QLayoutItem* WrappingRow::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    invalidate();
    return m_parts.takeAt(index).item;
}

QSize WrappingRow::sizeHint() const
{
    QSize size(std::max(0, count() - 1) * between(), 0);
    for (const Part& part : m_parts) {
        const QSize hint = part.item->sizeHint();
        size = QSize(size.width() + hint.width(), std::max(size.height(), hint.height()));
    }
    return size.grownBy(contentsMargins());
}

QSize WrappingRow::minimumSize() const
{
    QSize size(0, 0);
    for (const Part& part : m_parts)
        size = size.expandedTo(part.item->minimumSize());
    return size.grownBy(contentsMargins());
}

int WrappingRow::heightForWidth(int width) const
{
    const QMargins margins = contentsMargins();
    const int room = width - margins.left() - margins.right();
    const int step = inARow(room);
    int height = margins.top() + margins.bottom();
    for (int first = 0; first < count(); first += step)
        height += heightOf(first, widthsOf(first, std::min(first + step, count()), room))
            + (first > 0 ? between() : 0);
    return height;
}

void WrappingRow::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    const QRect room = rect.marginsRemoved(contentsMargins());
    const int step = inARow(room.width());
    const int rows = (count() + step - 1) / step;
    const int left = std::max(0, rect.height() - heightForWidth(rect.width()));
    int top = room.top();
    for (int first = 0; first < count(); first += step) {
        const QList<int> widths = widthsOf(first, std::min(first + step, count()), room.width());
        const int height = heightOf(first, widths) + left / rows;
        int x = room.left();
        for (int i = 0; i < widths.size(); ++i) {
            m_parts[first + i].item->setGeometry(QRect(x, top, widths[i], height));
            x += widths[i] + between();
        }
        top += height + between();
    }
}

// Three parts and one alone below them look like a mistake, so the rows share them evenly.
int WrappingRow::inARow(int width) const
{
    int most = std::max(1, count());
    while (most > 1 && !fits(most, width))
        --most;
    const int rows = (std::max(1, count()) + most - 1) / most;
    const int even = (std::max(1, count()) + rows - 1) / rows;
    return fits(even, width) ? even : most;
}

bool WrappingRow::fits(int parts, int width) const
{
    for (int first = 0; first < count(); first += parts) {
        int needed = -between();
        for (int i = first; i < std::min(first + parts, count()); ++i)
            needed += m_parts[i].item->minimumSize().width() + between();
        if (needed > width)
            return false;
    }
    return true;
}

// By the stretches; who would get less than it needs, or more than it may have, has that first.
QList<int> WrappingRow::widthsOf(int first, int last, int width) const
{
    QList<int> widths(last - first, -1);
    int room = width - (last - first - 1) * between();
    for (;;) {
        int stretches = 0;
        for (int i = 0; i < widths.size(); ++i)
            stretches += widths[i] < 0 ? m_parts[first + i].stretch : 0;
        const auto share = [&](int i) { return room * m_parts[first + i].stretch / std::max(1, stretches); };
        int unlike = -1;
        for (int i = 0; i < widths.size() && unlike < 0; ++i) {
            if (widths[i] >= 0)
                continue;
            const int least = m_parts[first + i].item->minimumSize().width();
            const int most = std::max(least, m_parts[first + i].item->maximumSize().width());
            if (share(i) < least || share(i) > most)
                unlike = i;
        }
        if (unlike < 0) {
            for (int i = 0; i < widths.size(); ++i)
                widths[i] = widths[i] < 0 ? share(i) : widths[i];
            return widths;
        }
        const int least = m_parts[first + unlike].item->minimumSize().width();
        widths[unlike] = share(unlike) < least ? least : m_parts[first + unlike].item->maximumSize().width();
        room -= widths[unlike];
    }
}

int WrappingRow::heightOf(int first, const QList<int>& widths) const
{
    int height = 0;
    for (int i = 0; i < widths.size(); ++i) {
        QLayoutItem* item = m_parts[first + i].item;
        height = std::max(height,
            item->hasHeightForWidth() ? item->minimumHeightForWidth(widths[i])
                                      : item->minimumSize().height());
    }
    return height;
}

int WrappingRow::between() const
{
    return std::max(0, spacing());
}

} // namespace widgets
