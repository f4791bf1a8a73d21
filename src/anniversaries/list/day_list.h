#pragma once

#include "anniversaries/list/birthday_list_sql.h"
#include "anniversaries/list/list_filter.h"
#include "anniversaries/list/scheduler_copy.h"
#include "core/context.h"

#include <QObject>

#include <optional>
#include <vector>

namespace widgets {
class HeadingGrid;
}

namespace anniversaries {

/// A row of the list as a person sees it.
struct ListedDay {
    qint64 id = 0;
    QString contact; ///< whose contact it is
    QString name; ///< who celebrates
    QString spouse; ///< of an anniversary
    QDate date;
    QString category1;
    QString category2;
    QString city;
    QString age;
    QString priority;
};

/// What the list is to show.
struct ListView {
    Occasion occasion = Occasion::Birthday;
    bool isFull = true;
    Regrouping regrouping = Regrouping::Refresh;

    bool operator==(const ListView&) const = default;
};

/// The birthdays or anniversaries in a grid: they are read once for a view, and what is hidden of them
/// changes without reading.
class DayList : public QObject {
    Q_OBJECT

public:
    DayList(core::Context& context, widgets::HeadingGrid* grid, QObject* parent);

    void open(const ListView& view);
    /// The same rows anew; the current one stays when it is still there.
    void refresh();
    const ListView& view() const { return m_view; }
    void setFilter(const ListFilter& filter);

    std::optional<ListedDay> current() const;
    /// Makes the first row of that day and month current; false when none is shown.
    bool goTo(QDate day);
    QString position() const; ///< "3 Of 120", empty without a current row

    // Ticks, for the copy to the scheduler.
    void setTicking(bool on);
    void tickAll();
    void tickImportant(); ///< priority 1 and 2, no others
    int rows() const; ///< also those out of sight
    CopiedRow copiedRow(int row) const;

Q_SIGNALS:
    void currentChanged();
    void ticked(); ///< by the person

private:
    void fill();
    void applyFilter();
    std::vector<int> rowsNear(QDate today) const;
    void readFacts();
    bool isInOrderOfDays() const;
    int placeOfDay(int month, int day) const;
    std::optional<int> rowLike(const ListedDay& day) const;
    void showTicks();
    ListedDay rowAt(int row) const;
    QDate dateAt(int row) const;
    QString text(int row, int column) const;

    /// Places of the columns in the statement, -1 for those that it has not.
    struct Columns {
        int id, contact, name, spouse, date, category1, category2, city, age, priority, tick;
    };

    /// What the filter asks of a row. Rows are costly to read, and these are read once.
    struct Fact {
        QDate date;
        int priority, category; ///< places in the lists of texts
    };

    core::Context& m_context;
    widgets::HeadingGrid* m_grid;
    ListView m_view;
    ListFilter m_filter;
    Columns m_columns{};
    std::vector<Fact> m_facts; ///< by row, none until they are needed
    QStringList m_priorities;
    QStringList m_categories;
    bool m_isTicking = false;
    bool m_isQuiet = false; ///< rows become current by the list itself
};

} // namespace anniversaries
