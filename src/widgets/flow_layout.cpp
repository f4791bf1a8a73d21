#include "widgets/flow_layout.h"

#include <algorithm>

namespace widgets {

namespace {

constexpr int kBetween = 2;

} // namespace

FlowLayout::FlowLayout(QWidget* parent)
    : QLayout(parent)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(kBetween);
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

QLayoutItem* FlowLayout::takeAt(int index)
{
    return index >= 0 && index < m_items.size() ? m_items.takeAt(index) : nullptr;
}

QSize FlowLayout::sizeHint() const
{
    int width = 0;
    int height = 0;
    for (const QLayoutItem* item : m_items) {
        width += item->sizeHint().width() + spacing();
        height = std::max(height, item->sizeHint().height());
    }
    return {width, height};
}

QSize FlowLayout::minimumSize() const
{
    QSize size;
    for (const QLayoutItem* item : m_items)
        size = size.expandedTo(item->minimumSize());
    return size;
}

int FlowLayout::heightForWidth(int width) const
{
    return flow({0, 0, width, 0}, false);
}

void FlowLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    flow(rect, true);
}

int FlowLayout::flow(const QRect& rect, bool place) const
{
    int x = rect.x();
    int y = rect.y();
    int rowHeight = 0;
    for (QLayoutItem* item : m_items) {
        if (item->widget() && item->isEmpty()) // out of sight; a gap is empty too
            continue;
        const QSize size = item->sizeHint().expandedTo(item->minimumSize());
        if (x > rect.x() && x + size.width() > rect.right() + 1) {
            x = rect.x();
            y += rowHeight + spacing();
            rowHeight = 0;
        }
        if (place)
            item->setGeometry({{x, y}, size});
        x += size.width() + spacing();
        rowHeight = std::max(rowHeight, size.height());
    }
    return y + rowHeight - rect.y();
}

} // namespace widgets
