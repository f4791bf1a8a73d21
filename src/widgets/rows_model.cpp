#include "widgets/rows_model.h"

#include <algorithm>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr int RowsAStep = 20'000;
/// What a heading reads while its group is not known yet.
constexpr QStringView Placeholder = u"!!!!!";

/// A text as a pattern of `like` that begins with it; no letter of it is a wildcard or ends the text.
QString beginsPattern(const QString& text)
{
    QString pattern;
    for (const QChar letter : text) {
        if (QStringView(u"*?#[").contains(letter))
            pattern += u'[' + letter + u']';
        else
            pattern += letter == u'\'' ? u"''"_s : QString(letter);
    }
    return pattern + u'*';
}

} // namespace

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
    m_shown.reset();
    m_ticks.clear();
    m_tickRule = {};
    pairOff();
    beginOutline();
    endResetModel();
}

void RowsModel::setRows(const QList<QStringList>& rows, const QStringList& names)
{
    beginResetModel();
    m_recordset = {};
    m_fromList = true;
    m_rows = rows;
    m_names = names;
    m_shown.reset();
    m_ticks.clear();
    m_tickRule = {};
    pairOff();
    beginOutline();
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
    if (wording)
        m_wordings.insert(name.toLower(), std::move(wording));
    else
        m_wordings.remove(name.toLower());
    pairOff();
    endResetModel();
}

void RowsModel::showEmptyAs(const QString& name, const QString& other, Wording wording)
{
    beginResetModel();
    m_emptyName = name;
    m_otherName = other;
    m_emptyWording = std::move(wording);
    pairOff();
    endResetModel();
}

void RowsModel::pairOff()
{
    m_emptySource = sourceOf(m_emptyName);
    m_otherSource = sourceOf(m_otherName);
    m_keySource = sourceOf(m_keyColumn.isEmpty() ? u"id"_s : m_keyColumn);
    m_outlineSource = sourceOf(m_outlineColumn);
    m_tickSource = sourceOf(m_tickColumnName);
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

// Of two columns with one name the second is "name:2".
int RowsModel::sourceOf(const QString& name) const
{
    if (name.isEmpty())
        return -1;
    if (name.endsWith(u":2"_s)) {
        const QStringList names = m_fromList ? m_names : m_recordset.columns();
        const int first = sourceOf(name.chopped(2));
        for (int source = first + 1; first >= 0 && source < names.size(); ++source) {
            if (names[source].compare(names[first], Qt::CaseInsensitive) == 0)
                return source;
        }
        return -1;
    }
    if (!m_fromList)
        return m_recordset.columnIndex(name);
    const auto isNamed = [&name](const QString& one) { return one.compare(name, Qt::CaseInsensitive) == 0; };
    const auto found = std::find_if(m_names.begin(), m_names.end(), isNamed);
    return found == m_names.end() ? -1 : static_cast<int>(found - m_names.begin());
}

QString RowsModel::sourceText(int row, int source) const
{
    if (source < 0 || row < 0 || row >= rowsInAll())
        return {};
    const QString text = m_fromList ? m_rows[row].value(source) : m_recordset.textAt(row, source);
    if (source != m_emptySource || m_otherSource < 0 || !text.isEmpty())
        return text;
    return wordedText(row, m_otherSource, m_emptyWording);
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

QString RowsModel::text(int line, const QString& name) const
{
    return sourceText(sourceRow(line), sourceOf(name));
}

qint64 RowsModel::keyAt(int line) const
{
    return sourceKey(sourceRow(line));
}

qint64 RowsModel::sourceKey(int row) const
{
    if (row < 0 || row >= rowsInAll())
        return 0;
    if (m_keyColumn.isEmpty() && !m_fromList) {
        if (const qint64 key = m_recordset.keyAt(row))
            return key;
    }
    return sourceNumber(row, m_keySource);
}

int RowsModel::lineOf(qint64 key) const
{
    const bool isOwnKey = !m_fromList && m_keyColumn.isEmpty() && m_recordset.keyAt(0) != 0;
    if (!m_fromList && !m_shown && !isOwnKey && m_keySource >= 0) {
        const int row = m_recordset.rowOf(m_keySource, key);
        return row < 0 ? -1 : lineOfSource(row);
    }
    for (int place = 0; place < recordCount(); ++place) {
        if (sourceKey(shownRow(place)) == key)
            return lineOfSource(shownRow(place));
    }
    return -1;
}

int RowsModel::rowsInAll() const
{
    return m_fromList ? static_cast<int>(m_rows.size()) : m_recordset.count();
}

int RowsModel::recordCount() const
{
    return m_shown ? static_cast<int>(m_shown->size()) : rowsInAll();
}

void RowsModel::showOnly(std::optional<std::vector<int>> rows)
{
    beginResetModel();
    m_shown = std::move(rows);
    beginOutline();
    endResetModel();
}

int RowsModel::shownRow(int place) const
{
    return m_shown && place >= 0 ? (*m_shown)[size_t(place)] : place;
}

int RowsModel::placeOf(int row) const
{
    if (!m_shown || row < 0)
        return row;
    const auto found = std::lower_bound(m_shown->begin(), m_shown->end(), row);
    return found == m_shown->end() || *found != row ? -1 : static_cast<int>(found - m_shown->begin());
}

void RowsModel::setTickColumn(const QString& name)
{
    m_tickColumnName = name;
    pairOff();
}

int RowsModel::tickColumn() const
{
    return m_tickSource < 0 ? -1 : static_cast<int>(m_sources.indexOf(m_tickSource));
}

bool RowsModel::isTicked(int row) const
{
    if (m_tickSource < 0 || row < 0 || row >= rowsInAll())
        return false;
    if (const auto changed = m_ticks.constFind(row); changed != m_ticks.cend())
        return *changed;
    if (m_tickRule)
        return m_tickRule(row);
    return m_fromList ? m_rows[row].value(m_tickSource) == u"True"_s
                      : m_recordset.valueAt(row, m_tickSource).toBool();
}

void RowsModel::setTicked(int row, bool ticked)
{
    m_ticks.insert(row, ticked);
    const QModelIndex cell = index(lineOfSource(row), tickColumn());
    Q_EMIT dataChanged(cell, cell, {Qt::CheckStateRole});
}

void RowsModel::tickRows(std::function<bool(int row)> ticked)
{
    m_tickRule = std::move(ticked);
    m_ticks.clear();
    if (rowCount() > 0 && tickColumn() >= 0)
        Q_EMIT dataChanged(index(0, tickColumn()), index(rowCount() - 1, tickColumn()), {Qt::CheckStateRole});
}

bool RowsModel::repeatsAbove(const QModelIndex& index) const
{
    const int row = sourceRow(index.row());
    const int above = sourceRow(index.row() - 1);
    return row >= 0 && above >= 0
        && index.data().toString().compare(
               this->index(index.row() - 1, index.column()).data().toString(), Qt::CaseInsensitive)
        == 0;
}

// The engine looks through the texts of a recordset without fetching its rows one by one. What a wording
// shows in another way is compared as it is shown.
int RowsModel::findRow(int column, const QString& begin, int fromRow)
{
    const int source = m_sources.value(column, -1);
    const bool isFetchedText
        = !m_fromList && !m_recordset.holdsRows() && m_recordset.columnType(source) == jet::ColumnType::Text;
    if (isFetchedText && !m_shown && !m_wordingsBySource.contains(source)) {
        const QString criterion
            = u'[' + m_recordset.columns().value(source) + u"] like '"_s + beginsPattern(begin) + u'\'';
        const bool behind = fromRow > 0 && m_recordset.moveTo(fromRow - 1) && m_recordset.findNext(criterion);
        return behind || m_recordset.findFirst(criterion) ? m_recordset.position() : -1;
    }
    const int rows = rowsInAll();
    for (int i = 0; i < rows; ++i) {
        const int row = (fromRow + i) % rows;
        if (placeOf(row) >= 0 && shownText(row, source).startsWith(begin, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

int RowsModel::rowAtOrBelow(int line) const
{
    return isHeading(line) ? shownRow(m_outline.firstRow(groupOf(line))) : sourceRow(line);
}

void RowsModel::setOutline(const QString& name)
{
    beginResetModel();
    m_outlineColumn = name;
    pairOff();
    beginOutline();
    endResetModel();
}

void RowsModel::beginOutline()
{
    m_isOutlining = m_outlineSource >= 0 && recordCount() > 0;
    m_groupStarts.clear();
    m_scanned = 0;
    if (m_isOutlining)
        m_outline.begin(recordCount());
    else
        m_outline.clear();
}

// A list that is sorted by the number that stands in the headings knows where each begins. Which column it is
// sorted by is seen in the rows.
std::vector<int> RowsModel::startsOfRuns() const
{
    std::vector<int> starts;
    std::optional<int> before;
    int row = 0;
    for (const jet::Recordset::Run& run : m_recordset.leadingRuns()) {
        if (before != run.numbers[0]) {
            if (sourceNumber(row, m_outlineSource) != run.numbers[0])
                return {};
            starts.push_back(row);
        }
        before = run.numbers[0];
        row += run.rows;
    }
    return starts;
}

int RowsModel::outlineStep()
{
    if (m_scanned == 0 && !m_fromList && !m_shown) {
        m_groupStarts = startsOfRuns();
        m_scanned = m_groupStarts.empty() ? 0 : recordCount();
    }
    const int limit = std::min(m_scanned + RowsAStep, recordCount());
    const auto sameAsGroup = [this](int place) {
        const int row = shownRow(place);
        const int above = shownRow(place - 1);
        return m_fromList ? m_rows[row]
                                .value(m_outlineSource)
                                .compare(m_rows[above].value(m_outlineSource), Qt::CaseInsensitive)
                == 0
                          : m_recordset.endOfRun(above, m_outlineSource, row + 1) > row;
    };
    for (; m_scanned < limit; ++m_scanned) {
        if (m_scanned == 0 || !sameAsGroup(m_scanned))
            m_groupStarts.push_back(m_scanned);
    }
    if (m_scanned < recordCount())
        return int(qint64(m_scanned) * 100 / recordCount());
    beginResetModel();
    m_isOutlining = false;
    m_outline.setGroups(std::exchange(m_groupStarts, {}));
    endResetModel();
    return 100;
}

int RowsModel::groupColumn() const
{
    return m_outline.isActive() ? static_cast<int>(m_sources.indexOf(m_outlineSource)) : -1;
}

int RowsModel::groupOf(int line) const
{
    return m_outline.isActive() && line >= 0 && line < rowCount() ? m_outline.at(line).group : -1;
}

bool RowsModel::isHeading(int line) const
{
    return groupOf(line) >= 0 && !m_outline.at(line).row;
}

void RowsModel::fold(int group, bool folded)
{
    if (m_isOutlining || m_outline.isFolded(group) == folded)
        return;
    const int first = m_outline.headingOf(group) + 1;
    const int last = first + m_outline.rowsIn(group) - 1;
    if (folded)
        beginRemoveRows({}, first, last);
    else
        beginInsertRows({}, first, last);
    m_outline.fold(group, folded);
    if (folded)
        endRemoveRows();
    else
        endInsertRows();
}

void RowsModel::foldAll(bool folded)
{
    if (m_isOutlining || !m_outline.isActive())
        return;
    beginResetModel();
    m_outline.foldAll(folded);
    endResetModel();
}

int RowsModel::sourceRow(int line) const
{
    if (line < 0 || line >= rowCount())
        return -1;
    return shownRow(m_outline.isActive() ? m_outline.at(line).row.value_or(-1) : line);
}

int RowsModel::lineOfSource(int row) const
{
    const int place = placeOf(row);
    return m_outline.isActive() && place >= 0 ? m_outline.lineOf(place) : place;
}

QString RowsModel::headingText(int line) const
{
    if (m_isOutlining)
        return Placeholder.toString();
    return groupText(m_outline.at(line).group);
}

QString RowsModel::groupText(int group) const
{
    const QString text = shownText(shownRow(m_outline.firstRow(group)), m_outlineSource);
    return text.isEmpty() ? tr("(none)") : text;
}

int RowsModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_outline.isActive() ? m_outline.lines() : recordCount();
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
    const int row = sourceRow(index.row());
    if (role == Qt::CheckStateRole && source == m_tickSource && row >= 0)
        return isTicked(row) ? Qt::Checked : Qt::Unchecked;
    if (role != Qt::DisplayRole)
        return {};
    if (source == m_tickSource && row >= 0)
        return {};
    if (row < 0)
        return source == m_outlineSource ? headingText(index.row()) : QVariant();
    return shownText(row, source);
}

QString RowsModel::shownText(int row, int source) const
{
    if (const auto wording = m_wordingsBySource.constFind(source); wording != m_wordingsBySource.cend())
        return wordedText(row, source, *wording);
    // A line break would show as a box, or make the row look empty; no cell is as wide as a long text.
    constexpr qsizetype MostLetters = 500;
    return sourceText(row, source).left(MostLetters).replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ');
}

QString RowsModel::wordedText(int row, int source, const Wording& wording) const
{
    return wording(m_fromList ? QVariant(sourceText(row, source)) : m_recordset.valueAt(row, source));
}

QString RowsModel::recordText(int row, int column) const
{
    const int source = m_sources.value(column, -1);
    if (source < 0 || row < 0 || row >= rowsInAll())
        return {};
    if (source == m_tickSource)
        return isTicked(row) ? u"True"_s : u"False"_s;
    const auto wording = m_wordingsBySource.constFind(source);
    return wording == m_wordingsBySource.cend() ? sourceText(row, source) : wordedText(row, source, *wording);
}

QVariant RowsModel::recordValue(int row, int column) const
{
    const int source = m_sources.value(column, -1);
    if (source < 0 || row < 0 || row >= rowsInAll())
        return {};
    if (source == m_tickSource)
        return isTicked(row);
    return m_fromList ? QVariant(m_rows[row].value(source)) : m_recordset.valueAt(row, source);
}

jet::ColumnType RowsModel::typeOf(int column) const
{
    const int source = m_sources.value(column, -1);
    const auto type = m_fromList || source < 0 ? jet::ColumnType::Text : m_recordset.columnType(source);
    return m_wordingsBySource.contains(source) && type != jet::ColumnType::Date ? jet::ColumnType::Text
                                                                                : type;
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
