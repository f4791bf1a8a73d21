#include "widgets/line_delegate.h"

#include "widgets/long_text.h"
#include "widgets/rows_model.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace widgets {

HeadingGrid::LineDelegate::LineDelegate(HeadingGrid* grid)
    : QStyledItemDelegate(grid)
    , m_grid(grid)
{
}

void HeadingGrid::LineDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (m_grid->m_model->isHeading(index.row()))
        paintHeading(painter, option, index.row());
    else
        QStyledItemDelegate::paint(painter, option, index);
}

bool HeadingGrid::LineDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const QString text = index.data().toString();
    const bool isCut = option.fontMetrics.horizontalAdvance(text) + CellPadding > option.rect.width();
    if (event->type() != QEvent::ToolTip || !isCut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), tipOf(text), view);
    return true;
}

void HeadingGrid::LineDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (isPaintedAbove(index))
        option->text.clear();
}

bool HeadingGrid::LineDelegate::isPaintedAbove(const QModelIndex& index) const
{
    const RowsModel* model = m_grid->m_model;
    if (index.column() == model->groupColumn())
        return true;
    if (index.row() == m_grid->rowAt(0) || !isMerged(index.column()))
        return false;
    // As in a tree, a text that follows from another one is the same only below the same other one.
    for (int column = 0; column <= index.column(); ++column) {
        const bool counts = !m_grid->isColumnHidden(column) && !model->showsNothing(column);
        if (counts && !model->repeatsAbove(index.siblingAtColumn(column)))
            return false;
    }
    return true;
}

bool HeadingGrid::LineDelegate::isMerged(int column) const
{
    return std::any_of(m_grid->m_merged.cbegin(), m_grid->m_merged.cend(),
        [&](const QString& name) { return m_grid->m_model->columnOf(name) == column; });
}

void HeadingGrid::LineDelegate::paintHeading(
    QPainter* painter, const QStyleOptionViewItem& option, int line) const
{
    const RowsModel* model = m_grid->m_model;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setClipRect(option.rect);
    painter->fillRect(option.rect, option.palette.brush(selected ? QPalette::Highlight : QPalette::Button));

    const int group = model->groupOf(line);
    const QRect row(-m_grid->horizontalScrollBar()->value(), option.rect.top(),
        m_grid->viewport()->width() + m_grid->horizontalScrollBar()->value(), option.rect.height());
    QStyleOptionViewItem branch = option;
    branch.rect = QRect(row.left() + BranchMargin, row.top(), BranchWidth, row.height());
    branch.state = QStyle::State_Enabled | QStyle::State_Children;
    branch.state.setFlag(QStyle::State_Open, !model->isFolded(group));
    if (selected) {
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            branch.palette.setColor(role, option.palette.color(QPalette::HighlightedText));
    }
    m_grid->style()->drawPrimitive(QStyle::PE_IndicatorBranch, &branch, painter, m_grid);

    QFont bold = option.font;
    bold.setBold(true);
    painter->setFont(bold);
    painter->setPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::ButtonText));
    QString text = model->index(line, model->groupColumn()).data().toString();
    if (!model->isOutlining())
        text += u"   (%1)"_s.arg(model->rowsIn(group));
    painter->drawText(row.adjusted(2 * BranchMargin + BranchWidth, 0, 0, 0),
        Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
    painter->restore();
}

} // namespace widgets
