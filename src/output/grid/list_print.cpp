#include "output/grid/list_print.h"

#include "core/progress.h"
#include "core/screen.h"
#include "output/grid/grid_export.h"
#include "output/grid/grid_reader.h"
#include "output/preview/FrmReportViewer.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QApplication>
#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace output {

namespace {

using enum core::Tool::Place;

constexpr auto kSizeProperty = "orvaneListSize";
constexpr int kOrdinaryGridFont = 8;
// So many are read before a dialog could be.
constexpr int kRowsWithoutWaiting = 5000;

struct SizeRow {
    QStringView id;
    ListSize size;
    int points; ///< above the ordinary size
};
constexpr SizeRow kSizes[] = {
    {u"VerySmall", ListSize::VerySmall, -2},
    {u"Small", ListSize::Small, -1},
    {u"Medium", ListSize::Medium, 0},
    {u"Large", ListSize::Large, 3},
};

constexpr core::Tool kListTools[] = {
    {.id = u"ListPrint",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("output", "Print the list"),
        .places = IconOnly | Menu},
    {.id = u"Exports",
        .icon = u"export",
        .text = QT_TRANSLATE_NOOP("output", "Export the list"),
        .places = IconOnly | Menu},
    {.id = u"VerySmall",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("output", "Very small texts"),
        .places = Menu | GroupStart},
    {.id = u"Small", .icon = u"list", .text = QT_TRANSLATE_NOOP("output", "Small texts"), .places = Menu},
    {.id = u"Medium", .icon = u"list", .text = QT_TRANSLATE_NOOP("output", "Medium texts"), .places = Menu},
    {.id = u"Large", .icon = u"list", .text = QT_TRANSLATE_NOOP("output", "Large texts"), .places = Menu},
};

QString titleOf(const QWidget* screen)
{
    const auto* titled = qobject_cast<const core::Screen*>(screen);
    return titled ? titled->frameTitle() : screen->windowTitle();
}

} // namespace

ListSize listSizeOf(const widgets::HeadingGrid* grid)
{
    const QVariant size = grid->property(kSizeProperty);
    return size.isValid() ? static_cast<ListSize>(size.toInt()) : ListSize::Medium;
}

void setListSize(widgets::HeadingGrid* grid, ListSize size)
{
    grid->setProperty(kSizeProperty, int(size));
    for (const SizeRow& row : kSizes) {
        if (row.size == size)
            grid->setFontSize(QApplication::font(grid).pointSize() + widgets::gridFontSize()
                - kOrdinaryGridFont + row.points);
    }
}

void ListPrint(core::Context& context, widgets::HeadingGrid* grid, const QString& title)
{
    const GridTable table = gridTableOf(grid, title);
    const QString heading = datedTitle(context, title);
    bool wasStopped = false;
    const Report report = [&] {
        core::Progress progress(u"listProgress"_s, QCoreApplication::translate("output", "Print the list"),
            QCoreApplication::translate("output", "Reading %1 rows").arg(table.rowCount()), table.rowCount(),
            grid, kRowsWithoutWaiting);
        return listReport(table, heading, listSizeOf(grid), [&](int done) {
            wasStopped = !progress.advance(done);
            return !wasStopped;
        });
    }();
    if (!wasStopped)
        ShowReportViewer(context, report, QCoreApplication::translate("output", "Print %1").arg(title));
}

void exportList(core::Context& context, widgets::HeadingGrid* grid, const QString& title)
{
    GridXLS(context, gridTableOf(grid, title), grid);
}

core::ToolTable listTools()
{
    return {kListTools, "output"};
}

std::optional<ListSize> listSizeOfTool(QStringView id)
{
    for (const SizeRow& row : kSizes) {
        if (row.id == id)
            return row.size;
    }
    return std::nullopt;
}

ListTools::ListTools(
    core::Context& context, widgets::HeadingGrid* grid, QWidget* screen, const QString& title)
    : ToolSet(context.screens, listTools(), screen)
    , m_context(context)
    , m_grid(grid)
    , m_title(title)
{
    connect(this, &ToolSet::triggered, this, [this](const core::Tool& tool) { perform(tool.id); });
}

void ListTools::perform(QStringView id)
{
    if (!m_grid)
        return;
    const QString title = m_title.isEmpty() ? titleOf(static_cast<QWidget*>(parent())) : m_title;
    if (id == u"ListPrint")
        ListPrint(m_context, m_grid, title);
    else if (id == u"Exports")
        exportList(m_context, m_grid, title);
    else if (const auto size = listSizeOfTool(id))
        setListSize(m_grid, *size);
}

} // namespace output
