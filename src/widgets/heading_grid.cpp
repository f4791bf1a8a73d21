#include "widgets/heading_grid.h"

#include "widgets/column_widths.h"
#include "widgets/line_delegate.h"
#include "widgets/rows_model.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace widgets {

namespace {

constexpr int RowPadding = 8;
constexpr int WidestMargin = 2; ///< characters of a column that shows nothing

} // namespace

HeadingGrid::HeadingGrid(QWidget* parent)
    : QTableView(parent)
    , m_model(new RowsModel(this))
    , m_emptyText(tr("Nothing to show"))
{
    setModel(m_model);
    setItemDelegate(new LineDelegate(this));
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

    connect(this, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!isHeading(index.row()))
            Q_EMIT chosen(index.row());
    });
    connect(
        selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const QModelIndex& current) {
            if (!m_isRestoring)
                Q_EMIT currentRowChanged(current.row());
        });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (!m_isFitting && QApplication::mouseButtons().testFlag(Qt::LeftButton))
            m_mayFit = false;
    });
    followFontSize();
    applyWidths();
}

void HeadingGrid::followFontSize()
{
    const QFont ordinary = QApplication::font(this);
    if (gridFontSize() != OrdinaryGridFont || font().pointSize() != ordinary.pointSize())
        setFontSize(ordinary.pointSize() + gridFontSize() - OrdinaryGridFont);
}

void HeadingGrid::setHeadings(QStringView headings, const QStringList& columns)
{
    const QList<Heading> before = m_model->headings();
    m_model->setHeadings(parseHeadings(headings), columns);
    if (m_model->headings() != before) {
        m_mayFit = true;
        applyWidths();
    }
    applyHiddenColumns();
}

void HeadingGrid::fill(jet::Recordset rows)
{
    m_typed.clear();
    m_model->fill(std::move(rows));
    applyHiddenColumns();
    startOutline();
}

void HeadingGrid::fill(QStringView headings, jet::Recordset rows, const QStringList& columns)
{
    m_model->setRows({}, {});
    const QList<Heading> before = m_model->headings();
    setHeadings(headings, columns);
    fill(std::move(rows));
    if (m_model->headings() != before)
        applyWidths(); // which columns show nothing is known now
}

void HeadingGrid::setRows(const QList<QStringList>& rows, const QStringList& names)
{
    m_typed.clear();
    m_model->setRows(rows, names);
    applyHiddenColumns();
    startOutline();
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

void HeadingGrid::showEmptyAs(
    const QString& name, const QString& other, std::function<QString(const QVariant&)> wording)
{
    m_model->showEmptyAs(name, other, std::move(wording));
}

void HeadingGrid::setOutline(const QString& name)
{
    m_model->setOutline(name);
    startOutline();
}

bool HeadingGrid::isHeading(int row) const
{
    return m_model->isHeading(row);
}

int HeadingGrid::recordCount() const
{
    return m_model->recordCount();
}

void HeadingGrid::foldAll(bool folded)
{
    const int group = m_model->groupOf(currentRow());
    m_model->foldAll(folded);
    if (group >= 0)
        setCurrentRow(m_model->headingOf(group));
}

void HeadingGrid::showOnly(std::optional<std::vector<int>> rows)
{
    const int row = m_model->sourceRow(currentRow());
    const int top = m_model->sourceRow(rowAt(0));
    m_typed.clear();
    m_model->showOnly(std::move(rows));
    restoreLines(row, top);
    startOutline();
}

const jet::Recordset& HeadingGrid::recordset() const
{
    return m_model->recordset();
}

int HeadingGrid::sourceRow(int row) const
{
    return m_model->sourceRow(row);
}

int HeadingGrid::rowOfSource(int sourceRow) const
{
    return m_model->lineOfSource(sourceRow);
}

int HeadingGrid::placeOf(int sourceRow) const
{
    return m_model->placeOf(sourceRow);
}

int HeadingGrid::shownSourceRow(int place) const
{
    return m_model->shownRow(place);
}

void HeadingGrid::setTickColumn(const QString& name)
{
    m_model->setTickColumn(name);
}

bool HeadingGrid::isTicked(int sourceRow) const
{
    return m_model->isTicked(sourceRow);
}

void HeadingGrid::tickRows(std::function<bool(int sourceRow)> ticked)
{
    m_model->tickRows(std::move(ticked));
}

void HeadingGrid::toggleTick(int row)
{
    const int source = m_model->sourceRow(row);
    if (source < 0)
        return;
    m_model->setTicked(source, !m_model->isTicked(source));
    Q_EMIT tickChanged(row);
}

void HeadingGrid::mergeEqual(const QStringList& names)
{
    m_merged = names;
    viewport()->update();
}

void HeadingGrid::startOutline()
{
    m_isFitDue = true;
    if (m_model->isOutlining())
        m_outlineTimer.start(0, this);
    else
        m_outlineTimer.stop();
}

void HeadingGrid::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_outlineTimer.timerId())
        return QTableView::timerEvent(event);
    const int row = m_model->sourceRow(currentRow());
    const int top = m_model->sourceRow(rowAt(0));
    const int percent = m_model->outlineStep();
    if (percent == 100) {
        m_outlineTimer.stop();
        restoreLines(row, top);
    }
    Q_EMIT outlineProgress(percent);
}

// Nobody has chosen another row, so nobody hears of one.
void HeadingGrid::restoreLines(int row, int top)
{
    m_isRestoring = true;
    applyHiddenColumns();
    m_isFitDue = true;
    if (row >= 0)
        setCurrentRow(m_model->lineOfSource(row));
    if (top > 0)
        scrollTo(m_model->index(m_model->lineOfSource(top), std::max(0, searchColumn())), PositionAtTop);
    m_isRestoring = false;
}

void HeadingGrid::setFolded(int row, bool folded)
{
    const int group = m_model->groupOf(row);
    if (group < 0)
        return;
    if (folded)
        setCurrentRow(m_model->headingOf(group));
    m_model->fold(group, folded);
    viewport()->update();
}

// As in a tree: left folds or goes up to the heading, right unfolds, Enter does either.
bool HeadingGrid::foldKey(int key)
{
    const int row = currentRow();
    const int group = m_model->groupOf(row);
    if (group < 0)
        return false;
    const bool folded = m_model->isFolded(group);
    if (key == Qt::Key_Left && !isHeading(row))
        setCurrentRow(m_model->headingOf(group));
    else if (!isHeading(row))
        return false;
    else if (key == Qt::Key_Left || key == Qt::Key_Minus)
        setFolded(row, true);
    else if (key == Qt::Key_Right || key == Qt::Key_Plus)
        setFolded(row, false);
    else if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        setFolded(row, !folded);
    else
        return false;
    return true;
}

void HeadingGrid::mousePressEvent(QMouseEvent* event)
{
    QTableView::mousePressEvent(event);
    const int row = rowAt(event->position().toPoint().y());
    const int markEnd = 2 * BranchMargin + BranchWidth - horizontalScrollBar()->value();
    if (event->button() == Qt::LeftButton && isHeading(row) && event->position().x() < markEnd)
        setFolded(row, !m_model->isFolded(m_model->groupOf(row)));
    const int column = columnAt(event->position().toPoint().x());
    if (event->button() == Qt::LeftButton && m_mayTick && column >= 0 && column == m_model->tickColumn())
        toggleTick(row);
}

void HeadingGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    const int row = rowAt(event->position().toPoint().y());
    if (event->button() == Qt::LeftButton && isHeading(row))
        return setFolded(row, !m_model->isFolded(m_model->groupOf(row)));
    QTableView::mouseDoubleClickEvent(event);
}

// A merged cell shows its text on the first row in sight, so what was painted there can not just be moved.
void HeadingGrid::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    if (!m_merged.isEmpty() || m_model->groupColumn() >= 0)
        viewport()->update();
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
    return m_model->lineOf(key);
}

bool HeadingGrid::selectKey(qint64 key)
{
    int row = rowOf(key);
    if (isHeading(row)) {
        setFolded(row, false);
        row = rowOf(key);
    }
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
    if (column < 0 || recordCount() == 0 || typed.isEmpty())
        return;
    if (m_sinceTyped.isValid() && m_sinceTyped.elapsed() > QApplication::keyboardInputInterval())
        m_typed.clear();
    m_sinceTyped.start();

    const int here = m_model->rowAtOrBelow(currentRow());
    const auto find
        = [&](const QString& begin, int row) { return m_model->findRow(column, begin, std::max(0, row)); };
    m_typed += typed;
    // A first letter goes on from the row, a longer text may stay at it. The same letter again walks through
    // the rows that begin with it, where no text begins with it twice.
    const bool isFirst = m_typed.size() == typed.size();
    int found = find(m_typed, isFirst && !isHeading(currentRow()) ? here + 1 : here);
    if (found < 0 && m_typed.count(m_typed.front(), Qt::CaseInsensitive) == m_typed.size())
        found = find(m_typed.first(1), here + 1);
    if (found >= 0)
        setCurrentSourceRow(found);
}

void HeadingGrid::setCurrentSourceRow(int row)
{
    const int line = m_model->lineOfSource(row);
    if (isHeading(line))
        setFolded(line, false);
    setCurrentRow(m_model->lineOfSource(row));
}

void HeadingGrid::keyPressEvent(QKeyEvent* event)
{
    if (foldKey(event->key()))
        return;
    if (event->key() == Qt::Key_Space && m_mayTick)
        return toggleTick(currentRow());
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentRow() >= 0)
            Q_EMIT chosen(currentRow());
        return;
    }
    QTableView::keyPressEvent(event);
}

void HeadingGrid::paintEvent(QPaintEvent* event)
{
    if (std::exchange(m_isFitDue, false))
        fitToContent();
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
    m_hasFitted = false;
    m_wantedWidths.clear();
    m_isFitDue = true;
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

/// The rows in sight tell how wide the texts are; others would have to be read for that.
void HeadingGrid::fitToContent()
{
    constexpr int MostLetters = 80;
    constexpr int WidestColumn = 36; // characters
    if (!m_mayFit || recordCount() == 0 || m_model->isOutlining())
        return;
    const int first = std::max(0, rowAt(0));
    const int inSight = viewport()->height() / std::max(1, verticalHeader()->defaultSectionSize()) + 1;
    const int last = std::min(rowCount(), first + inSight);
    const QFontMetrics metrics(font());
    const int widest = WidestColumn * metrics.averageCharWidth();
    const QList<Heading>& headings = m_model->headings();
    const auto isFitted = [&](int column) {
        return !headings[column].text.isEmpty() && !m_model->showsNothing(column) && !isColumnHidden(column);
    };
    int fitted = 0;
    for (int column = 0; column < headings.size(); ++column)
        fitted += isFitted(column) ? 1 : 0;
    const bool isAlone = fitted == 1;
    for (int column = 0; column < headings.size(); ++column) {
        if (!isFitted(column))
            continue;
        int content = 0;
        const bool paintsTexts = column != m_model->groupColumn();
        for (int line = first; paintsTexts && line < last; ++line) {
            if (!isHeading(line)) {
                const QString text = m_model->index(line, column).data().toString().left(MostLetters);
                content = std::max(content, metrics.horizontalAdvance(text));
            }
        }
        const int written = horizontalHeader()->sectionSizeHint(column);
        // A column that stands alone ends where the grid does, rather than that the grid scrolls sideways.
        const int most = isAlone ? std::min(widest, viewport()->width() - CellPadding) : widest;
        const int wanted = std::max(written, std::min(content, most) + CellPadding);
        const int before = m_columnsGiveWay ? m_wantedWidths.value(column) : columnWidth(column);
        setColumnWidth(column, m_hasFitted ? std::max(wanted, before) : wanted);
    }
    m_hasFitted = true;
    m_wantedWidths.clear();
    for (int column = 0; column < headings.size(); ++column)
        m_wantedWidths << columnWidth(column);
    fitToPlace();
}

void HeadingGrid::fitToPlace()
{
    if (!m_columnsGiveWay || !m_mayFit || m_wantedWidths.size() != m_model->columnCount())
        return;
    QList<ColumnWish> wishes;
    for (int column = 0; column < m_wantedWidths.size(); ++column) {
        const int wanted = isColumnHidden(column) ? 0 : m_wantedWidths[column];
        wishes << ColumnWish{wanted, std::min(wanted, horizontalHeader()->sectionSizeHint(column))};
    }
    m_isFitting = true;
    const QList<int> widths = widthsWithin(viewport()->width(), wishes);
    for (int column = 0; column < widths.size(); ++column) {
        if (!isColumnHidden(column))
            setColumnWidth(column, widths[column]);
    }
    m_isFitting = false;
}

void HeadingGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fitToPlace();
}

void HeadingGrid::applyHiddenColumns()
{
    for (const QString& name : std::as_const(m_hidden)) {
        if (const int column = m_model->columnOf(name); column >= 0)
            setColumnHidden(column, true);
    }
}

// The texts of the groups stand in the headings, so rows are told apart by the next column, if there is one.
int HeadingGrid::searchColumn() const
{
    int found = -1;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (isColumnHidden(column) || m_model->showsNothing(column))
            continue;
        if (column != m_model->groupColumn())
            return column;
        found = column;
    }
    return found;
}

} // namespace widgets
