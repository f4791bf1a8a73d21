#include "core/list_presenter.h"

#include "widgets/found_strip.h"
#include "widgets/heading_grid.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace core {

ListPresenter::ListPresenter(jet::Database& data, widgets::HeadingGrid* grid, QObject* parent)
    : QObject(parent)
    , m_data(data)
    , m_grid(grid)
{
    connect(grid, &widgets::HeadingGrid::currentRowChanged, this, [this](int row) {
        if (!m_quiet)
            Q_EMIT currentChanged(row);
    });
}

void ListPresenter::setStrip(widgets::FoundStrip* strip, const QString& allSql)
{
    m_strip = strip;
    m_allSql = allSql;
}

bool ListPresenter::open(const QString& sql, const QString& foundBy, const Fill& fill)
{
    jet::Recordset rows = m_data.openRecordset(sql);
    if (!rows.isValid() && !m_showsBroken)
        return false;
    m_sql = sql;
    m_foundBy = foundBy;
    m_fill = fill;
    const qint64 current = m_grid->currentKey();
    const bool quiet = std::exchange(m_quiet, true);
    if (m_fill)
        m_fill(std::move(rows));
    else
        m_grid->fill(std::move(rows));
    m_quiet = quiet;
    point(current);
    if (m_strip && m_foundBy.isEmpty())
        m_strip->hide();
    else if (m_strip)
        m_strip->tell(m_foundBy, m_grid->rowCount(), m_data.openRecordset(m_allSql).textAt(0).toInt());
    return true;
}

bool ListPresenter::refresh()
{
    return open(m_sql, m_foundBy, m_fill);
}

// Said outright that no row is current, else the list takes its first row when it gets the focus.
bool ListPresenter::point(qint64 key)
{
    const bool quiet = std::exchange(m_quiet, true);
    const bool isListed = key != 0 && m_grid->selectKey(key);
    if (!isListed)
        m_grid->setCurrentRow(-1);
    m_quiet = quiet;
    return isListed;
}

void ListPresenter::moveBy(int step)
{
    const int row = m_grid->currentRow() + step;
    if (row >= 0 && row < m_grid->rowCount())
        m_grid->setCurrentRow(row);
}

qint64 ListPresenter::neighbourOf(qint64 key) const
{
    const int row = m_grid->rowOf(key);
    for (int below = row + 1; row >= 0 && below < m_grid->rowCount(); ++below) {
        if (const qint64 next = m_grid->keyAt(below))
            return next;
    }
    for (int above = row - 1; above >= 0; --above) {
        if (const qint64 next = m_grid->keyAt(above))
            return next;
    }
    return 0;
}

QString ListPresenter::position() const
{
    const int row = m_grid->currentRow();
    return row < 0 ? QString()
                   : u"%1 of %2"_s.arg(QString::number(row + 1), QString::number(m_grid->rowCount()));
}

} // namespace core
