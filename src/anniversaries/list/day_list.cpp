#include "anniversaries/list/day_list.h"

#include "jet/date_text.h"
#include "platform/clock.h"
#include "widgets/heading_grid.h"

#include <QGuiApplication>
#include <QLocale>

#include <utility>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

QString monthName(const QVariant& month)
{
    return QLocale(QLocale::English).monthName(month.toInt());
}

std::function<QString(const QVariant&)> dateWording(const QString& pattern)
{
    return [pattern](const QVariant& value) { return jet::formatDate(value.toDate(), pattern); };
}

} // namespace

DayList::DayList(core::Context& context, widgets::HeadingGrid* grid, QObject* parent)
    : QObject(parent)
    , m_context(context)
    , m_grid(grid)
{
    const bool dayFirst = context.shared.NationalMode;
    const QString day = dayFirst ? u"dd mmm"_s : u"mmm dd"_s;
    grid->showAs(dateColumn(Occasion::Birthday), dateWording(day));
    grid->showAs(dateColumn(Occasion::Anniversary), dateWording(day));
    grid->showAs(secondDateColumn(), dateWording(dayFirst ? u"dd-mmm-yyyy"_s : u"mmm-dd-yyyy"_s));
    grid->showAs(u"linkidid"_s, monthName);
    grid->setTickColumn(tickColumn());
    connect(grid, &widgets::HeadingGrid::currentRowChanged, this, [this] {
        if (!m_isQuiet)
            Q_EMIT currentChanged();
    });
    connect(grid, &widgets::HeadingGrid::tickChanged, this, &DayList::ticked);
}

void DayList::open(const ListView& view)
{
    m_view = view;
    fill();
}

void DayList::refresh()
{
    const std::optional<ListedDay> before = current();
    const bool quiet = std::exchange(m_isQuiet, true);
    fill();
    if (const std::optional<int> row = before ? rowLike(*before) : std::nullopt)
        m_grid->setCurrentSourceRow(*row);
    m_isQuiet = quiet;
    Q_EMIT currentChanged();
}

// The key does not tell the rows of one contact apart.
std::optional<int> DayList::rowLike(const ListedDay& day) const
{
    constexpr int kFewRows = 20'000;
    const jet::Recordset& list = m_grid->recordset();
    int from = 0;
    int to = list.holdsRows() || rows() <= kFewRows ? m_grid->recordCount() : 0;
    if (isInOrderOfDays() && day.date.isValid()) {
        from = placeOfDay(day.date.month(), day.date.day());
        to = placeOfDay(day.date.month(), day.date.day() + 1);
    }
    for (int place = from; place < to; ++place) {
        const int row = m_grid->shownSourceRow(place);
        if (list.valueAt(row, m_columns.id).toLongLong() == day.id && text(row, m_columns.name) == day.name)
            return row;
    }
    const int row = list.rowOf(m_columns.id, day.id);
    return row >= 0 && m_grid->placeOf(row) >= 0 ? std::optional(row) : std::nullopt;
}

void DayList::fill()
{
    const auto [occasion, isFull, regrouping] = m_view;
    const int thisYear = m_context.services.clock.today().year();
    jet::Recordset found = m_context.data.openRecordset(
        isFull ? fullListSql(occasion, regrouping, thisYear) : shortListSql(occasion));
    m_facts.clear();
    const auto place = [&found](QStringView name) { return found.columnIndex(name); };
    m_columns = {place(u"id"), place(occasion == Occasion::Birthday ? u"contact" : u"name"), place(u"name"),
        place(u"spouse"), place(dateColumn(occasion)), place(u"category1"), place(u"category2"),
        place(u"h_city"), place(u"gen_id"), place(u"priority"), place(tickColumn())};

    ListHead head = isFull ? fullListHead(occasion, regrouping) : shortListHead(occasion);
    // The boxes of the anniversaries are out of sight until something is copied.
    if (isFull && !head.columns.contains(tickColumn())) {
        head.headings += u"|Copy to Scheduler"_s;
        head.columns << tickColumn();
    }
    const QString merged = head.groupColumn.isEmpty() ? dateColumn(occasion) : head.groupColumn;
    m_grid->clearRows();
    m_grid->setOutline(head.groupColumn);
    m_grid->mergeEqual({merged});
    m_grid->fill(head.headings, std::move(found), head.columns);
    showTicks();
    applyFilter();
}

void DayList::setFilter(const ListFilter& filter)
{
    m_filter = filter;
    applyFilter();
    Q_EMIT currentChanged();
}

void DayList::applyFilter()
{
    m_grid->showOnly(std::nullopt);
    if (m_filter.hidesNothing())
        return;
    const QDate today = m_context.services.clock.today();
    ListFilter others = m_filter;
    others.next60 = false;
    if (others.hidesNothing() && isInOrderOfDays())
        return m_grid->showOnly(rowsNear(today));
    readFacts();
    std::vector<int> shown;
    for (int row = 0; row < rows(); ++row) {
        const Fact& fact = m_facts[size_t(row)];
        if (isShown({fact.date, m_priorities[fact.priority], m_categories[fact.category]}, m_filter, today))
            shown.push_back(row);
    }
    m_grid->showOnly(std::move(shown));
}

/// Those of the next days, in a list that is sorted by the day.
std::vector<int> DayList::rowsNear(QDate today) const
{
    std::vector<int> shown;
    for (int row = placeOfDay(today.month(), today.day()); row < rows(); ++row) {
        const QDate date = dateAt(row);
        const bool isLeapDay = date.month() == 2 && date.day() == 29;
        if (isWithinNext60(date, today))
            shown.push_back(row);
        else if (!isLeapDay)
            break;
    }
    return shown;
}

void DayList::readFacts()
{
    if (!m_facts.empty())
        return;
    const auto placeIn = [](QStringList& texts, const QString& text) {
        const auto found = texts.indexOf(text);
        if (found >= 0)
            return int(found);
        texts << text;
        return int(texts.size()) - 1;
    };
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_facts.reserve(size_t(rows()));
    for (int row = 0; row < rows(); ++row)
        m_facts.push_back({dateAt(row), placeIn(m_priorities, text(row, m_columns.priority)),
            placeIn(m_categories, text(row, m_columns.category1))});
    QGuiApplication::restoreOverrideCursor();
}

bool DayList::isInOrderOfDays() const
{
    return !m_view.isFull || m_view.regrouping == Regrouping::Refresh;
}

/// The first of the rows shown that is not before that day, in a list that is sorted by the day.
int DayList::placeOfDay(int month, int day) const
{
    const auto isBefore = [&](int place) {
        const QDate date = dateAt(m_grid->shownSourceRow(place));
        return std::pair(date.month(), date.day()) < std::pair(month, day);
    };
    int from = 0;
    int to = m_grid->recordCount();
    while (from < to) {
        const int middle = from + (to - from) / 2;
        if (isBefore(middle))
            from = middle + 1;
        else
            to = middle;
    }
    return from;
}

std::optional<ListedDay> DayList::current() const
{
    const int row = m_grid->sourceRow(m_grid->currentRow());
    return row < 0 ? std::nullopt : std::optional(rowAt(row));
}

ListedDay DayList::rowAt(int row) const
{
    return {.id = m_grid->recordset().valueAt(row, m_columns.id).toLongLong(),
        .contact = text(row, m_columns.contact),
        .name = text(row, m_columns.name),
        .spouse = text(row, m_columns.spouse),
        .date = dateAt(row),
        .category1 = text(row, m_columns.category1),
        .category2 = text(row, m_columns.category2),
        .city = text(row, m_columns.city),
        .age = text(row, m_columns.age),
        .priority = text(row, m_columns.priority)};
}

bool DayList::goTo(QDate day)
{
    const int begin = isInOrderOfDays() ? placeOfDay(day.month(), day.day()) : 0;
    const int end = isInOrderOfDays() ? std::min(begin + 1, m_grid->recordCount()) : m_grid->recordCount();
    for (int place = begin; place < end; ++place) {
        const int row = m_grid->shownSourceRow(place);
        const QDate date = dateAt(row);
        if (date.isValid() && date.month() == day.month() && date.day() == day.day()) {
            m_grid->setCurrentSourceRow(row);
            return true;
        }
    }
    m_grid->setCurrentRow(-1);
    return false;
}

QString DayList::position() const
{
    const int place = m_grid->placeOf(m_grid->sourceRow(m_grid->currentRow()));
    return place < 0 ? QString()
                     : u"%1 Of %2"_s.arg(QString::number(place + 1), QString::number(m_grid->recordCount()));
}

void DayList::setTicking(bool on)
{
    m_isTicking = on;
    m_grid->setMayTick(on);
    showTicks();
}

void DayList::showTicks()
{
    for (int column = 0; column < m_grid->model()->columnCount(); ++column)
        m_grid->setColumnHidden(column, false);
    const bool hides = m_view.isFull && m_view.occasion == Occasion::Anniversary && !m_isTicking;
    if (hides)
        m_grid->setColumnHidden(m_grid->model()->columnCount() - 1, true);
}

void DayList::tickAll()
{
    m_grid->tickRows([](int) { return true; });
}

void DayList::tickImportant()
{
    m_grid->tickRows([this](int row) {
        const QString priority = text(row, m_columns.priority).trimmed();
        return priority == u"1" || priority == u"2";
    });
}

int DayList::rows() const
{
    return m_grid->recordset().count();
}

CopiedRow DayList::copiedRow(int row) const
{
    const ListedDay day = rowAt(row);
    const bool isBirthday = m_view.occasion == Occasion::Birthday;
    const QString born
        = jet::formatDate(day.date, m_context.shared.NationalMode ? u"dd-mmm-yyyy" : u"mmm-dd-yyyy");
    return {.id = day.id,
        .name = day.name,
        .person = isBirthday ? day.contact : day.name,
        .beside = isBirthday ? born : day.spouse,
        .date = day.date,
        .priority = day.priority,
        .isTicked = m_grid->isTicked(row),
        .wasTicked = m_grid->recordset().valueAt(row, m_columns.tick).toBool()};
}

QDate DayList::dateAt(int row) const
{
    return m_grid->recordset().valueAt(row, m_columns.date).toDate();
}

QString DayList::text(int row, int column) const
{
    return column < 0 ? QString() : m_grid->recordset().textAt(row, column);
}

} // namespace anniversaries
