#include "jet/recordset.h"

#include "jet/recordset_data.h"

#include <QDateTime>

namespace jet {

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<RecordsetData> data)
    : m_data(std::move(data))
{
}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

bool Recordset::isValid() const
{
    return m_data != nullptr;
}
int Recordset::count() const
{
    return m_data ? m_data->count() : 0;
}

QStringList Recordset::columns() const
{
    QStringList names;
    if (m_data) {
        for (const ResultColumn& column : m_data->columns())
            names << column.name;
    }
    return names;
}

int Recordset::columnIndex(QStringView name) const
{
    return m_data ? m_data->columnIndex(name) : -1;
}

ColumnType Recordset::columnType(int column) const
{
    return m_data && column >= 0 && size_t(column) < m_data->columns().size()
        ? m_data->columns()[size_t(column)].type
        : ColumnType::Unknown;
}

int Recordset::position() const
{
    return m_data ? m_data->position : 0;
}

bool Recordset::moveTo(int position)
{
    if (position < 0 || position >= count())
        return false;
    step(position);
    return true;
}

void Recordset::moveFirst()
{
    step(0);
}
void Recordset::moveLast()
{
    step(qMax(0, count() - 1));
}
void Recordset::moveNext()
{
    step(qMin(position() + 1, count()));
}
void Recordset::movePrevious()
{
    step(qMax(position() - 1, -1));
}

// What was assigned and not updated belongs to the row that is left, and must not reach the next one.
void Recordset::step(int position)
{
    if (!m_data)
        return;
    m_data->cancel();
    m_data->position = position;
}

bool Recordset::findFirst(QStringView criterion)
{
    const int found = m_data ? m_data->find(criterion, 0) : -1;
    return found >= 0 && moveTo(found);
}

bool Recordset::findNext(QStringView criterion)
{
    const int found = m_data ? m_data->find(criterion, position() + 1) : -1;
    return found >= 0 && moveTo(found);
}

QVariant Recordset::valueAt(int row, int column) const
{
    if (row < 0 || row >= count() || column < 0 || size_t(column) >= m_data->columns().size())
        return {};
    return m_data->value(row, column);
}

QString Recordset::textAt(int row, int column) const
{
    if (row < 0 || row >= count() || column < 0 || size_t(column) >= m_data->columns().size())
        return {};
    return m_data->text(row, column);
}

qint64 Recordset::keyAt(int row) const
{
    return row < 0 || row >= count() ? 0 : m_data->key(row);
}

int Recordset::leadingColumn() const
{
    return m_data ? m_data->leadingColumn() : -1;
}

std::vector<Recordset::Run> Recordset::leadingRuns() const
{
    return m_data ? m_data->leadingRuns() : std::vector<Run>();
}

int Recordset::rowOf(int column, qint64 wanted) const
{
    const bool isThere = m_data && column >= 0 && size_t(column) < m_data->columns().size();
    return isThere ? m_data->rowOf(column, wanted) : -1;
}

bool Recordset::holdsRows() const
{
    return !m_data || m_data->holdsRows();
}

int Recordset::endOfRun(int row, int column, int limit) const
{
    int end = row + 1;
    limit = qMin(limit, count());
    if (row >= 0 && column >= 0 && size_t(column) < m_data->columns().size()) {
        while (end < limit && m_data->isSameText(row, end, column))
            ++end;
    }
    return end;
}

QVariant Recordset::value(int column) const
{
    return valueAt(position(), column);
}
QVariant Recordset::value(QStringView column) const
{
    return valueAt(position(), columnIndex(column));
}
QString Recordset::textAt(int column) const
{
    return textAt(position(), column);
}

std::optional<QString> Recordset::text(QStringView column) const
{
    const int index = columnIndex(column);
    if (!hasRow() || index < 0)
        return {};
    return textAt(position(), index);
}

qint64 Recordset::number(QStringView column) const
{
    const int index = columnIndex(column);
    return hasRow() && index >= 0 ? m_data->number(position(), index) : 0;
}

bool Recordset::flag(QStringView column) const
{
    return number(column) != 0;
}

QDate Recordset::date(QStringView column) const
{
    return value(column).toDate();
}

bool Recordset::isEditable() const
{
    return m_data && m_data->isEditable();
}
void Recordset::addNew()
{
    if (m_data)
        m_data->begin(true);
}
void Recordset::edit()
{
    if (m_data)
        m_data->begin(false);
}
bool Recordset::set(QStringView column, const QVariant& value)
{
    return m_data && m_data->set(column, value);
}
bool Recordset::update()
{
    return m_data && m_data->update();
}
void Recordset::cancelUpdate()
{
    if (m_data)
        m_data->cancel();
}
bool Recordset::removeCurrent()
{
    return m_data && m_data->removeCurrent();
}
qint64 Recordset::lastAddedKey() const
{
    return m_data ? m_data->lastAddedKey : 0;
}

} // namespace jet
