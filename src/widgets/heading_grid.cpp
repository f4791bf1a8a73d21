#include "widgets/heading_grid.h"

#include "widgets/rows_model.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

namespace widgets {

namespace {

constexpr int CellPadding = 14;
constexpr int RowPadding = 8;
constexpr int WidestMargin = 4; ///< characters of a column that shows nothing

} // namespace

HeadingGrid::HeadingGrid(QWidget* parent)
    : QTableView(parent)
    , m_model(new RowsModel(this))
    , m_emptyText(tr("Nothing to show"))
{
    setModel(m_model);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setMinimumSectionSize(8);

    connect(this, &QAbstractItemView::doubleClicked, this,
        [this](const QModelIndex& index) { Q_EMIT chosen(index.row()); });
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        [this](const QModelIndex& current) { Q_EMIT currentRowChanged(current.row()); });
    applyWidths();
}

void HeadingGrid::setHeadings(QStringView headings, const QStringList& columns)
{
    m_model->setHeadings(parseHeadings(headings), columns);
    applyWidths();
    applyHiddenColumns();
}

void HeadingGrid::fill(jet::Recordset rows)
{
    m_typed.clear();
    m_model->fill(std::move(rows));
    applyHiddenColumns();
}

void HeadingGrid::fill(QStringView headings, jet::Recordset rows, const QStringList& columns)
{
    m_model->setRows({}, {});
    setHeadings(headings, columns);
    fill(std::move(rows));
    applyWidths();
}

void HeadingGrid::setRows(const QList<QStringList>& rows, const QStringList& names)
{
    m_typed.clear();
    m_model->setRows(rows, names);
    applyHiddenColumns();
}

void HeadingGrid::clearRows()
{
    setRows({});
}

void HeadingGrid::hideColumn(const QString& name)
{
    m_hidden += name;
    applyHiddenColumns();
}

void HeadingGrid::setKeyColumn(const QString& name)
{
    m_model->setKeyColumn(name);
}

void HeadingGrid::showAs(const QString& name, std::function<QString(const QVariant&)> wording)
{
    m_model->showAs(name, std::move(wording));
}

void HeadingGrid::setFontSize(int points)
{
    QFont sized = font();
    sized.setPointSize(points);
    setFont(sized);
    horizontalHeader()->setFont(sized);
}

void HeadingGrid::setEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
}

int HeadingGrid::rowCount() const
{
    return m_model->rowCount();
}

int HeadingGrid::currentRow() const
{
    return currentIndex().row();
}

void HeadingGrid::setCurrentRow(int row)
{
    if (row < 0 || row >= rowCount()) {
        clearSelection();
        setCurrentIndex({});
        return;
    }
    const QModelIndex index = m_model->index(row, std::max(0, searchColumn()));
    setCurrentIndex(index);
    scrollTo(index);
}

qint64 HeadingGrid::currentKey() const
{
    return keyAt(currentRow());
}

qint64 HeadingGrid::keyAt(int row) const
{
    return m_model->keyAt(row);
}

int HeadingGrid::rowOf(qint64 key) const
{
    return m_model->rowOf(key);
}

bool HeadingGrid::selectKey(qint64 key)
{
    const int row = rowOf(key);
    if (row >= 0)
        setCurrentRow(row);
    return row >= 0;
}

QList<qint64> HeadingGrid::selectedKeys() const
{
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows += index.row();
    std::sort(rows.begin(), rows.end());
    QList<qint64> keys;
    for (const int row : std::as_const(rows))
        keys += keyAt(row);
    return keys;
}

QString HeadingGrid::textAt(int row, const QString& column) const
{
    return m_model->text(row, column);
}

QString HeadingGrid::currentText(const QString& column) const
{
    return textAt(currentRow(), column);
}

void HeadingGrid::keyboardSearch(const QString& typed)
{
    const int column = searchColumn();
    if (column < 0 || rowCount() == 0 || typed.isEmpty())
        return;
    if (m_sinceTyped.isValid() && m_sinceTyped.elapsed() > QApplication::keyboardInputInterval())
        m_typed.clear();
    m_sinceTyped.start();

    // The same letter again walks through the rows that begin with it; a longer text may stay where it is.
    const bool again = m_typed.compare(typed, Qt::CaseInsensitive) == 0;
    if (!again)
        m_typed += typed;
    const bool next = again || m_typed.size() == typed.size();
    const int from = currentRow() < 0 ? 0 : currentRow() + (next ? 1 : 0);
    for (int i = 0; i < rowCount(); ++i) {
        const int row = (from + i) % rowCount();
        const QString text = m_model->index(row, column).data().toString();
        if (text.startsWith(m_typed, Qt::CaseInsensitive)) {
            setCurrentRow(row);
            return;
        }
    }
}

void HeadingGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentRow() >= 0)
            Q_EMIT chosen(currentRow());
        return;
    }
    QTableView::keyPressEvent(event);
}

void HeadingGrid::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (rowCount() > 0 || m_emptyText.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(quietTextColor());
    painter.drawText(
        viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, m_emptyText);
}

void HeadingGrid::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        applyWidths();
}

void HeadingGrid::applyWidths()
{
    const QFontMetrics metrics(font());
    verticalHeader()->setDefaultSectionSize(metrics.height() + RowPadding);
    const QList<Heading>& headings = m_model->headings();
    for (int column = 0; column < headings.size(); ++column) {
        const Heading& heading = headings[column];
        const bool margin = heading.text.isEmpty() && m_model->showsNothing(column);
        const int characters = margin ? std::min(heading.width, WidestMargin) : heading.width;
        const int written = metrics.horizontalAdvance(heading.text) + CellPadding;
        setColumnWidth(column,
            heading.text.isEmpty()
                ? std::max(CellPadding, characters * metrics.averageCharWidth())
                : std::max(written, characters * metrics.averageCharWidth() + CellPadding));
    }
}

void HeadingGrid::applyHiddenColumns()
{
    for (const QString& name : std::as_const(m_hidden)) {
        if (const int column = m_model->columnOf(name); column >= 0)
            setColumnHidden(column, true);
    }
}

int HeadingGrid::searchColumn() const
{
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (!isColumnHidden(column) && !m_model->showsNothing(column))
            return column;
    }
    return -1;
}

} // namespace widgets
