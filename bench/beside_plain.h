#pragma once

// What the benchmarks share that put the engine beside plain SQLite: the same contacts in a file that knows
// nothing of the dialect, both asked in turns in one run.

#include "core/store/book_schema.h"
#include "jet/database.h"

#include <QElapsedTimer>
#include <QStringList>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <sqlite3.h>
#include <string>
#include <vector>

namespace bench {

using namespace Qt::StringLiterals;

inline constexpr int kGoalsHoldAt = 100000;

[[noreturn]] inline void stop(const QString& what)
{
    std::fprintf(stderr, "bench: %s\n", what.toUtf8().constData());
    std::exit(1);
}

inline QString columnText(sqlite3_stmt* statement, int column)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
        sqlite3_column_bytes(statement, column));
}

/// The same contacts in a file that knows nothing of the dialect.
class Plain {
public:
    Plain(const QString& path, const QString& book)
    {
        if (sqlite3_open(path.toUtf8().constData(), &m_connection) != SQLITE_OK)
            stop(path);
        QStringList definitions;
        const jet::Schema schema = core::bookSchema();
        for (const jet::SchemaColumn& column : schema.table(u"cnt_main")->columns) {
            definitions << u'[' + column.name + u']'
                    + (column.type == jet::ColumnType::AutoNumber   ? u" INTEGER PRIMARY KEY AUTOINCREMENT"_s
                            : column.type == jet::ColumnType::YesNo ? u" INTEGER NOT NULL DEFAULT 0"_s
                                                                    : u" TEXT COLLATE NOCASE"_s);
            m_columns << column.name;
        }
        run(u"PRAGMA journal_mode = WAL"_s);
        run(u"PRAGMA synchronous = FULL"_s);
        run(u"PRAGMA cache_size = -4096"_s);
        run(u"CREATE TABLE cnt_main ("_s + definitions.join(u',') + u')');
        run(u"ATTACH '%1' AS book"_s.arg(book));
        const QString list = u'[' + m_columns.join(u"],["_s) + u']';
        run(u"INSERT INTO cnt_main (%1) SELECT %1 FROM book.cnt_main"_s.arg(list));
        run(u"DETACH book"_s);
        for (const jet::SchemaIndex& index : schema.indexes) {
            if (index.table == u"cnt_main")
                run(u"CREATE INDEX %1 ON cnt_main (%2)"_s.arg(index.name, index.columns.join(u','))
                    + (index.condition.isEmpty() ? QString() : u" WHERE "_s + index.condition));
        }
        run(u"PRAGMA wal_checkpoint(TRUNCATE)"_s);
    }
    /// Other tables with the columns given.
    Plain(const QString& path, const QString& book, const QList<std::pair<QString, QStringList>>& tables)
    {
        if (sqlite3_open(path.toUtf8().constData(), &m_connection) != SQLITE_OK)
            stop(path);
        run(u"ATTACH '%1' AS book"_s.arg(book));
        for (const auto& [table, columns] : tables) {
            run(u"CREATE TABLE %1 ([%2] TEXT COLLATE NOCASE)"_s.arg(
                table, columns.join(u"] TEXT COLLATE NOCASE,["_s)));
            run(u"INSERT INTO %1 SELECT [%2] FROM book.%1"_s.arg(table, columns.join(u"],["_s)));
        }
        run(u"DETACH book"_s);
    }
    ~Plain()
    {
        while (sqlite3_stmt* left = sqlite3_next_stmt(m_connection, nullptr))
            sqlite3_finalize(left);
        sqlite3_close(m_connection);
    }
    Q_DISABLE_COPY_MOVE(Plain)

    void run(const QString& sql)
    {
        if (sqlite3_exec(m_connection, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            stop(sql + u": "_s + QString::fromUtf8(sqlite3_errmsg(m_connection)));
    }
    sqlite3_stmt* prepare(const QString& sql)
    {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(m_connection, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
            stop(sql + u": "_s + QString::fromUtf8(sqlite3_errmsg(m_connection)));
        return statement;
    }
    /// Runs a selection and turns every cell into a text; the number of rows.
    int walk(const QString& sql)
    {
        sqlite3_stmt* statement = prepare(sql);
        const int width = sqlite3_column_count(statement);
        int rows = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < width; ++column)
                m_last = columnText(statement, column);
            ++rows;
        }
        sqlite3_finalize(statement);
        return rows;
    }
    /// Runs a selection as a list does that holds its rows: ids and texts as they are.
    int open(const QString& sql)
    {
        sqlite3_stmt* statement = prepare(sql);
        const int width = sqlite3_column_count(statement);
        std::vector<std::string> cells;
        int rows = 0;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < width; ++column) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
                cells.emplace_back(text ? text : "", size_t(sqlite3_column_bytes(statement, column)));
            }
            ++rows;
        }
        sqlite3_finalize(statement);
        return rows;
    }
    const QStringList& columns() const { return m_columns; }

private:
    sqlite3* m_connection = nullptr;
    QStringList m_columns;
    QString m_last;
};

struct Line {
    QString name;
    int n;
    double ours;
    double plain;
    double goal; ///< of the ratio, at the largest book; 0 when there is none
};

inline double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/// Microseconds of one call of each, taken in turns so that both meet the same machine.
inline std::pair<double, double> inTurns(
    int times, const std::function<void()>& ours, const std::function<void()>& plain)
{
    std::vector<double> a;
    std::vector<double> b;
    const auto measure = [](const std::function<void()>& work) {
        QElapsedTimer timer;
        timer.start();
        work();
        return double(timer.nsecsElapsed()) / 1000;
    };
    ours();
    plain();
    for (int i = 0; i < times; ++i) {
        a.push_back(measure(ours));
        b.push_back(measure(plain));
    }
    return {median(a), median(b)};
}

inline void same(const QString& what, int ours, int plain)
{
    if (ours != plain)
        stop(u"%1: %2 rows here, %3 there"_s.arg(what).arg(ours).arg(plain));
}

inline int walkOurs(jet::Database& book, const QString& sql)
{
    const jet::Recordset rows = book.openRecordset(sql);
    if (!rows.isValid())
        stop(sql);
    const int width = int(rows.columns().size());
    QString last;
    for (int row = 0; row < rows.count(); ++row) {
        for (int column = 0; column < width; ++column)
            last = rows.textAt(row, column);
    }
    return rows.count();
}

/// What a list does with its rows: counts them, and shows those in sight.
inline int openList(jet::Database& book, const QString& sql)
{
    constexpr int kInSight = 40;
    const jet::Recordset rows = book.openRecordset(sql);
    if (!rows.isValid())
        stop(sql);
    QString last;
    for (int row = 0; row < std::min(kInSight, rows.count()); ++row) {
        for (int column = 0; column < int(rows.columns().size()); ++column)
            last = rows.textAt(row, column);
    }
    return rows.count();
}

inline void print(const Line& line)
{
    const double ratio = line.ours / line.plain;
    const bool isGoal = line.goal > 0 && (line.n == 0 || line.n == kGoalsHoldAt);
    const QString verdict = !isGoal
        ? QString()
        : u"%1 (goal %2)"_s.arg(ratio <= line.goal ? u"OK"_s : u"MISSED"_s).arg(line.goal);
    std::printf("%-70s %7d %12.1f %12.1f %7.2f  %s\n", line.name.toUtf8().constData(), line.n, line.ours,
        line.plain, ratio, verdict.toUtf8().constData());
    std::fflush(stdout);
}

} // namespace bench
