#include "widgets/grid_contents.h"

#include "widgets/rows_model.h"

#include <algorithm>

namespace widgets {

GridContents::GridContents(HeadingGrid* grid)
    : m_grid(grid)
{
    constexpr int kDone = 100;
    RowsModel* model = grid->m_model;
    while (model->isOutlining() && model->outlineStep() < kDone) { }
    m_outline = model->outline();
    m_outline.foldAll(false);
    for (int column = 0; column < columns(); ++column) {
        if (isShown(column))
            m_shown << column;
        const auto isOfColumn = [&](const QString& name) { return model->columnOf(name) == column; };
        if (std::any_of(grid->m_merged.cbegin(), grid->m_merged.cend(), isOfColumn))
            m_merging << column;
    }
}

int GridContents::columns() const
{
    return m_grid ? static_cast<int>(m_grid->m_model->headings().size()) : 0;
}

QString GridContents::heading(int column) const
{
    return m_grid ? m_grid->m_model->headings().value(column).text : QString();
}

bool GridContents::isShown(int column) const
{
    if (!m_grid || m_grid->isColumnHidden(column))
        return false;
    return !heading(column).isEmpty() || !m_grid->m_model->showsNothing(column);
}

jet::ColumnType GridContents::type(int column) const
{
    return m_grid ? m_grid->m_model->typeOf(column) : jet::ColumnType::Unknown;
}

int GridContents::groupColumn() const
{
    return m_grid ? m_grid->m_model->groupColumn() : -1;
}

int GridContents::lines() const
{
    if (!m_grid)
        return 0;
    return m_outline.isActive() ? m_outline.lines() : m_grid->recordCount();
}

int GridContents::rowOf(int line) const
{
    const int place = m_outline.isActive() ? m_outline.at(line).row.value_or(-1) : line;
    return m_grid ? m_grid->m_model->shownRow(place) : place;
}

bool GridContents::isHeading(int line) const
{
    return rowOf(line) < 0;
}

bool GridContents::isFolded(int line) const
{
    return m_grid && m_outline.isActive() && !isHeading(line)
        && m_grid->m_model->isFolded(m_outline.at(line).group);
}

QString GridContents::text(int line, int column) const
{
    if (!m_grid)
        return {};
    if (!isHeading(line))
        return m_grid->m_model->recordText(rowOf(line), column);
    return column == groupColumn() ? m_grid->m_model->groupText(m_outline.at(line).group) : QString();
}

QVariant GridContents::value(int line, int column) const
{
    return m_grid && !isHeading(line) ? m_grid->m_model->recordValue(rowOf(line), column) : QVariant();
}

bool GridContents::merges(int column) const
{
    return m_merging.contains(column);
}

// As on the screen: a text that follows from another one is the same only below the same other one.
bool GridContents::isMergedAbove(int line, int column) const
{
    if (!merges(column) || line <= 0 || isHeading(line) || isHeading(line - 1))
        return false;
    return std::all_of(m_shown.begin(), m_shown.end(), [&](int shown) {
        return shown > column || text(line, shown).compare(text(line - 1, shown), Qt::CaseInsensitive) == 0;
    });
}

} // namespace widgets
