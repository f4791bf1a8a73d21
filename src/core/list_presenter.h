#pragma once

#include "jet/database.h"

#include <QObject>

#include <functional>

namespace widgets {
class FoundStrip;
class HeadingGrid;
} // namespace widgets

namespace core {

/// A list of rows of the book behind a statement: it is read by one, read again when the book has changed,
/// walked through, and says where one is. The current row stays current as long as the list has it.
class ListPresenter : public QObject {
    Q_OBJECT

public:
    /// Puts rows into the grid; by default as they are.
    using Fill = std::function<void(jet::Recordset rows)>;

    ListPresenter(jet::Database& data, widgets::HeadingGrid* grid, QObject* parent);

    /// Says above the list what it was narrowed down by, of all that `allSql` counts.
    void setStrip(widgets::FoundStrip* strip, const QString& allSql);

    /// A statement that breaks, as by an apostrophe, leaves the list as it was, and is false; or it empties
    /// the list.
    void showBrokenAsEmpty() { m_showsBroken = true; }
    /// @param foundBy what the list is narrowed down by, empty for all rows
    bool open(const QString& sql, const QString& foundBy = {}, const Fill& fill = {});
    bool refresh(); ///< the same rows anew
    const QString& sql() const { return m_sql; }
    const QString& foundBy() const { return m_foundBy; }

    /// Makes the row current without telling of it; with none of that key no row is current, and it is false.
    bool point(qint64 key);
    void moveBy(int step); ///< stays within the list
    /// The row below, or the one above the last: what is looked at when this one goes. 0 for none.
    qint64 neighbourOf(qint64 key) const;
    QString position() const; ///< "3 of 120", empty without a current row

Q_SIGNALS:
    /// The person went to another row, or moveBy() did.
    void currentChanged(int row);

private:
    jet::Database& m_data;
    widgets::HeadingGrid* m_grid;
    widgets::FoundStrip* m_strip = nullptr;
    QString m_allSql;
    QString m_sql;
    QString m_foundBy;
    Fill m_fill;
    bool m_showsBroken = false;
    bool m_quiet = false; ///< the list moves by itself
};

} // namespace core
