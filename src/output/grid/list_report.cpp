#include "output/grid/list_report.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kRowsAStep = 50;
constexpr double kSmallestScale = 0.5;
constexpr double kRoomBetweenRows = 30;

double scaleOf(ListSize size)
{
    switch (size) {
    case ListSize::VerySmall: return 0.7;
    case ListSize::Small: return 0.85;
    case ListSize::Medium: return 1;
    case ListSize::Large: return 1.25;
    }
    return 1;
}

/// The rows of a list without the headings of groups, packed: the text of all cells in a row, and where each
/// ends.
class PackedRows final : public ReportSource {
public:
    /// False when it was stopped.
    bool read(const GridTable& grid, const QList<int>& columns, const GridProgress& progress)
    {
        m_columns = columns;
        for (int row = 0; row < grid.rowCount(); ++row) {
            if (grid.rows->row(row).outlineLevel < 0) {
                for (const int column : columns) {
                    m_texts += textOf(grid.columns[column], grid.rows->cell(row, column)).toUtf8();
                    m_ends.push_back(m_texts.size());
                }
                ++m_rows;
            }
            if (row % kRowsAStep == kRowsAStep - 1 && progress && !progress(row + 1))
                return false;
        }
        return true;
    }

    int count() const override { return m_rows; }
    int field(const QString& column) const override
    {
        return static_cast<int>(m_columns.indexOf(column.toInt()));
    }
    QString text(int row, int field) const override
    {
        const auto cell = size_t(row) * size_t(m_columns.size()) + size_t(field);
        if (field < 0 || cell >= m_ends.size())
            return {};
        const qsizetype begin = cell == 0 ? 0 : m_ends[cell - 1];
        return QString::fromUtf8(QByteArrayView(m_texts).sliced(begin, m_ends[cell] - begin));
    }

private:
    QList<int> m_columns;
    QByteArray m_texts;
    std::vector<qsizetype> m_ends; ///< in m_texts, cell by cell
    int m_rows = 0;
};

QString fieldOf(int column)
{
    return u'{' + QString::number(column) + u'}';
}

Align alignOf(const GridColumn& column)
{
    constexpr int kFirstCentred = 3;
    constexpr int kFirstRight = 6;
    if (column.alignment >= kGeneralAlignment || column.alignment < kFirstCentred)
        return Align::Left;
    return column.alignment < kFirstRight ? Align::Center : Align::Right;
}

/// Upright, across, or across and smaller.
void fitToPaper(Report& report, double width)
{
    const auto room = [&report] { return report.paper.width - 2 * report.paper.margin; };
    if (width * report.textScale > room())
        report.paper = report.paper.turned();
    if (width * report.textScale > room())
        report.textScale *= std::max(kSmallestScale, room() / (width * report.textScale));
}

} // namespace

Report listReport(const GridTable& grid, const QString& heading, ListSize size, const GridProgress& progress)
{
    Report report;
    report.title = heading;
    report.fileStem = heading;
    report.textScale = scaleOf(size);
    QList<int> columns = grid.shownColumns();
    auto rows = std::make_shared<PackedRows>();
    if (!rows->read(grid, columns, progress))
        return report;
    report.source = rows;
    fitToPaper(report, grid.shownWidth());
    if (columns.removeOne(grid.groupColumn)) {
        report.grouping = Grouping{.column = QString::number(grid.groupColumn), .without = u"(none)"_s};
        report.groupHeader.lines = {{.cells = {{.text = u"{#key}"_s, .role = TextRole::GroupTitle}}}};
    }
    LineRule line;
    for (const int column : std::as_const(columns)) {
        const GridColumn& about = grid.columns[column];
        const Align align = alignOf(about);
        // A brace in a heading would be a column of the source.
        const QString title = QString(about.heading).replace(u'{', u'(').replace(u'}', u')');
        report.columnHeads.cells.push_back(
            {.text = title, .share = double(about.width), .role = TextRole::Strong, .align = align});
        line.cells.push_back({.text = fieldOf(column), .share = double(about.width), .align = align});
    }
    report.columnHeads.isRuled = true;
    report.detail = {.lines = {line}, .spaceBelow = kRoomBetweenRows};
    return report;
}

} // namespace output
