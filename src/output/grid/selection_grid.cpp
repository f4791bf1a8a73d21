#include "output/grid/selection_grid.h"

#include "jet/date_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kTwipsALetter = 105;
constexpr int kLetters = 18; // of a column

class RowsOfSelection final : public GridRows {
public:
    RowsOfSelection(jet::Recordset rows, QString datePattern)
        : m_rows(std::move(rows))
        , m_datePattern(std::move(datePattern))
    {
        for (int column = 0; column < m_rows.columns().size(); ++column)
            m_kinds << kindOfColumn(m_rows.columnType(column));
    }

    int count() const override { return m_rows.count(); }

    GridCell cell(int row, int column) const override
    {
        if (m_kinds[column] == CellKind::Text)
            return {m_rows.textAt(row, column)};
        const QVariant value = m_rows.valueAt(row, column);
        if (m_kinds[column] == CellKind::Date)
            return {jet::formatDate(value.toDate(), m_datePattern), value};
        if (m_kinds[column] == CellKind::CheckBox)
            return {value.toBool() ? u"Y"_s : QString(), int(value.toBool())};
        return {m_rows.textAt(row, column), value};
    }

    QString text(int row, int column, const GridColumn& about) const override
    {
        const bool isPlain = m_kinds[column] == CellKind::Text || m_kinds[column] == CellKind::Number;
        return isPlain ? m_rows.textAt(row, column) : textOf(about, cell(row, column));
    }

private:
    jet::Recordset m_rows;
    QString m_datePattern;
    QList<CellKind> m_kinds;
};

} // namespace

CellKind kindOfColumn(jet::ColumnType type)
{
    switch (type) {
    case jet::ColumnType::Number:
    case jet::ColumnType::AutoNumber: return CellKind::Number;
    case jet::ColumnType::Date: return CellKind::Date;
    case jet::ColumnType::YesNo: return CellKind::CheckBox;
    default: return CellKind::Text;
    }
}

GridTable selectionGrid(
    jet::Recordset rows, const QStringList& headings, const QString& title, const QString& datePattern)
{
    GridTable table{.title = title};
    for (int column = 0; column < headings.size(); ++column)
        table.columns << GridColumn{.heading = headings[column],
            .width = kTwipsALetter * std::max(kLetters, int(headings[column].size()) + 1),
            .kind = kindOfColumn(rows.columnType(column))};
    table.rows = std::make_shared<RowsOfSelection>(std::move(rows), datePattern);
    return table;
}

} // namespace output
