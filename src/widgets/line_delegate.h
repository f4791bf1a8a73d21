#pragma once

#include "widgets/heading_grid.h"

#include <QStyledItemDelegate>

namespace widgets {

inline constexpr int CellPadding = 14;
inline constexpr int BranchMargin = 4;
inline constexpr int BranchWidth = 14; ///< of the mark that folds a group

/// Paints headings over the whole width, and leaves out what stands in the heading or the merged cell above.
class HeadingGrid::LineDelegate : public QStyledItemDelegate {
public:
    explicit LineDelegate(HeadingGrid* grid);

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// What is cut off can be read at the mouse.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    bool isPaintedAbove(const QModelIndex& index) const;
    bool isMerged(int column) const;
    void paintHeading(QPainter* painter, const QStyleOptionViewItem& option, int line) const;

    HeadingGrid* m_grid;
};

} // namespace widgets
