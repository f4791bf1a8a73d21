#include "widgets/rows_model.h"

#include <algorithm>

namespace widgets {

using namespace Qt::StringLiterals;

QList<Heading> parseHeadings(QStringView headings)
{
    QList<Heading> parsed;
    for (const QStringView part : headings.split(u'|'))
        parsed += Heading{part.trimmed().toString(), static_cast<int>(part.size())};
    return parsed;
}

void RowsModel::setHeadings(QList<Heading> headings, const QStringList& columns)
{
    beginResetModel();
    m_headings = std::move(headings);
    m_columns = columns;
    pairOff();
    endResetModel();
}

void RowsModel::fill(jet::Recordset rows)
{
    beginResetModel();
    m_recordset = std::move(rows);
    m_fromList = false;
    m_rows.clear();
    pairOff();
    endResetModel();
}

void RowsModel::setRows(const QList<QStringList>& rows, const QStringList& names)
{
    beginResetModel();
    m_recordset = {};
    m_fromList = true;
    m_rows = rows;
    m_names = names;
    pairOff();
    endResetModel();
}

void RowsModel::setKeyColumn(const QString& name)
{
    m_keyColumn = name;
    pairOff();
}

void RowsModel::showAs(const QString& name, Wording wording)
{
    beginResetModel();
    m_wordings.insert(name.toLower(), std::move(wording));
    pairOff();
    endResetModel();
}

void RowsModel::pairOff()
{
    m_keySource = sourceOf(m_keyColumn.isEmpty() ? u"id"_s : m_keyColumn);
    m_wordingsBySource.clear();
    for (auto wording = m_wordings.cbegin(); wording != m_wordings.cend(); ++wording)
        m_wordingsBySource.insert(sourceOf(wording.key()), wording.value());

    m_sources.clear();
    if (!m_columns.isEmpty()) {
        for (int i = 0; i < m_headings.size(); ++i)
            m_sources += sourceOf(m_columns.value(i));
        return;
    }
    // Blank headings in front are a margin: as many as there are headings too many, and one over the key.
    int next = 0;
    auto tooMany = m_headings.size() - sourceCount();
    bool margin = true;
    for (const Heading& heading : m_headings) {
        margin = margin && heading.text.isEmpty();
        if (margin && tooMany > 0) {
            --tooMany;
            m_sources += -1;
            continue;
        }
        m_sources += (margin && next == m_keySource) || next >= sourceCount() ? -1 : next;
        ++next;
    }
}

int RowsModel::sourceCount() const
{
    if (!m_fromList)
        return static_cast<int>(m_recordset.columns().size());
    if (!m_names.isEmpty())
        return static_cast<int>(m_names.size());
    return m_rows.isEmpty() ? static_cast<int>(m_headings.size())
                            : static_cast<int>(m_rows.constFirst().size());
}

int RowsModel::sourceOf(const QString& name) const
{
    if (name.isEmpty())
        return -1;
    if (!m_fromList)
        return m_recordset.columnIndex(name);
    const auto isNamed = [&name](const QString& one) { return one.compare(name, Qt::CaseInsensitive) == 0; };
    const auto found = std::find_if(m_names.begin(), m_names.end(), isNamed);
    return found == m_names.end() ? -1 : static_cast<int>(found - m_names.begin());
}

QString RowsModel::sourceText(int row, int source) const
{
    if (source < 0 || row < 0 || row >= rowCount())
        return {};
    return m_fromList ? m_rows[row].value(source) : m_recordset.textAt(row, source);
}

qint64 RowsModel::sourceNumber(int row, int source) const
{
    return sourceText(row, source).toLongLong();
}

int RowsModel::columnOf(const QString& name) const
{
    const int source = sourceOf(name);
    return source < 0 ? -1 : static_cast<int>(m_sources.indexOf(source));
}

QString RowsModel::text(int row, const QString& name) const
{
    return sourceText(row, sourceOf(name));
}

qint64 RowsModel::keyAt(int row) const
{
    if (row < 0 || row >= rowCount())
        return 0;
    if (m_keyColumn.isEmpty() && !m_fromList) {
        if (const qint64 key = m_recordset.keyAt(row))
            return key;
    }
    return sourceNumber(row, m_keySource);
}

int RowsModel::rowOf(qint64 key) const
{
    for (int row = 0; row < rowCount(); ++row) {
        if (keyAt(row) == key)
            return row;
    }
    return -1;
}

int RowsModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_fromList ? static_cast<int>(m_rows.size()) : m_recordset.count();
}

int RowsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headings.size());
}

QVariant RowsModel::data(const QModelIndex& index, int role) const
{
    const int source = m_sources.value(index.column(), -1);
    if (source < 0 || !index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole) {
        const bool number = !m_fromList && m_recordset.columnType(source) == jet::ColumnType::Number;
        return QVariant::fromValue(Qt::AlignVCenter | (number ? Qt::AlignRight : Qt::AlignLeft));
    }
    if (role != Qt::DisplayRole)
        return {};
    if (const auto wording = m_wordingsBySource.constFind(source); wording != m_wordingsBySource.cend())
        return (*wording)(m_fromList ? QVariant(sourceText(index.row(), source))
                                     : m_recordset.valueAt(index.row(), source));
    // A line break would show as a box, or make the row look empty.
    return sourceText(index.row(), source).replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ');
}

QVariant RowsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section >= m_headings.size())
        return {};
    if (role == Qt::DisplayRole)
        return m_headings[section].text;
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | Qt::AlignLeft);
    return {};
}

} // namespace widgets
