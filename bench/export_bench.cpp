// The exports beside the least that the same work takes, in one run on one book: comma-separated values
// beside SQLite stepping through the same columns, workbook and text files beside the comma-separated one.

#include "core/text_export.h"
#include "jet/database.h"
#include "output/grid/grid_files.h"
#include "output/grid/selection_grid.h"
#include "platform/folder_drive.h"
#include "reports/export_columns.h"
#include "tools/book_generator.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <sqlite3.h>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRounds = 3;
constexpr int kContacts = 100'000;
constexpr int kContactsOfAWorkbook = 65'000;

[[noreturn]] void stop(const QString& what)
{
    std::fprintf(stderr, "export_bench: %s\n", qUtf8Printable(what));
    std::exit(1);
}

/// The best of some rounds, in milliseconds.
qint64 best(const std::function<bool()>& work)
{
    qint64 least = -1;
    for (int round = 0; round < kRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        if (!work())
            stop(u"an export failed"_s);
        const qint64 took = timer.elapsed();
        least = least < 0 ? took : std::min(least, took);
    }
    return least;
}

/// What a careful user of SQLite would write: one statement, quotes where they are needed, one buffered file.
bool plainCsv(const QString& book, const QString& sql, const QString& path)
{
    sqlite3* connection = nullptr;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_open(book.toUtf8().constData(), &connection) != SQLITE_OK
        || sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &statement, nullptr) != SQLITE_OK)
        stop(QString::fromUtf8(sqlite3_errmsg(connection)));
    std::FILE* file = std::fopen(path.toUtf8().constData(), "w");
    std::string line;
    while (sqlite3_step(statement) == SQLITE_ROW) {
        line.clear();
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            std::string value = text ? text : "";
            if (value.find_first_of(",\"\r\n") != std::string::npos) {
                for (size_t at = 0; (at = value.find('"', at)) != std::string::npos; at += 2)
                    value.insert(at, 1, '"');
                value = '"' + value + '"';
            }
            line += (column == 0 ? "" : ",") + value;
        }
        line += "\r\n";
        std::fwrite(line.data(), 1, line.size(), file);
    }
    sqlite3_finalize(statement);
    sqlite3_close(connection);
    return std::fclose(file) == 0;
}

/// The same by the program that everybody has.
bool commandLineCsv(const QString& book, const QString& sql, const QString& path)
{
    QProcess program;
    program.setStandardOutputFile(path);
    program.start(u"sqlite3"_s, {u"-csv"_s, book, sql});
    constexpr int kMostSeconds = 100;
    return program.waitForFinished(kMostSeconds * 1000) && program.exitCode() == 0;
}

long peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').first().toLong() / 1024;
    }
    return 0;
}

void report(const char* what, qint64 took, qint64 beside, const QString& path = {})
{
    std::printf("%-44s %6lld ms   %5.2f   %7.1f MB   peak %ld MB\n", what, static_cast<long long>(took),
        beside > 0 ? double(took) / double(beside) : 1.0, double(QFileInfo(path).size()) / 1e6, peakMemory());
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QTemporaryDir folder;
    const int contacts = argc > 1 ? std::max(1, atoi(argv[1])) : kContacts;
    const QString bookFile = folder.filePath(u"book.db"_s);
    jet::Database book;
    if (!tools::makeBook(bookFile, contacts) || book.open(bookFile) != jet::Database::OpenResult::Opened)
        stop(u"no book"_s);

    const QStringList columns{u"Name"_s, u"Company"_s, u"h_add1"_s, u"h_add2"_s, u"h_city"_s, u"h_state"_s,
        u"h_pin"_s, u"h_country"_s, u"H_Ph1"_s, u"Mobile"_s, u"H_email1"_s, u"category1"_s, u"M_BD"_s};
    const auto table = [&](int most) {
        QString sql = reports::exportSql(columns, {});
        if (most < contacts)
            sql.replace(u" order by"_s, u" where id<=%1 order by"_s.arg(most));
        return output::selectionGrid(book.openRecordset(sql), columns, u"Book"_s, u"dd MMM-yyyy"_s);
    };
    const auto write = [&](const QString& path, int most) {
        return output::writeGrid(table(most), path, u"dd MMM-yyyy"_s).outcome
            == output::GridWritten::Outcome::Written;
    };
    const auto path = [&](const QString& file) { return folder.filePath(file); };
    const QString plainSql
        = u"select ["_s + columns.join(u"],["_s) + u"] from cnt_main order by Name collate nocase"_s;

    std::printf("%d contacts, %d columns; the best of %d\n", contacts, int(columns.size()), kRounds);
    const qint64 plain = best([&] { return plainCsv(bookFile, plainSql, path(u"plain.csv"_s)); });
    report("CSV by SQLite alone", plain, 0, path(u"plain.csv"_s));
    const qint64 program = best([&] { return commandLineCsv(bookFile, plainSql, path(u"program.csv"_s)); });
    report("CSV by sqlite3 -csv (beside that)", program, plain, path(u"program.csv"_s));
    const qint64 csv = best([&] { return write(path(u"a.csv"_s), contacts); });
    report("CSV (beside sqlite3 -csv)", csv, program, path(u"a.csv"_s));
    if (argc > 2)
        return 0;
    const qint64 txt = best([&] { return write(path(u"a.txt"_s), contacts); });
    report("tab-separated (beside our CSV)", txt, csv, path(u"a.txt"_s));
    const qint64 html = best([&] { return write(path(u"a.html"_s), contacts); });
    report("web page (beside our CSV)", html, csv, path(u"a.html"_s));
    const int fitting = std::min(contacts, kContactsOfAWorkbook);
    const qint64 few = best([&] { return write(path(u"b.csv"_s), fitting); });
    report("CSV of 65,000", few, 0, path(u"b.csv"_s));
    const qint64 xls = best([&] { return write(path(u"a.xls"_s), fitting); });
    report("workbook of 65,000 (beside that)", xls, few, path(u"a.xls"_s));

    const platform::FolderDrive drive(folder.path(), folder.path());
    const core::TextExport to{book, drive, u"C:\\Desktop"_s, u"dd MMM-yyyy"_s};
    const qint64 text = best([&] { return core::SaveAllText(to).contacts == contacts; });
    report("text file of all (beside our CSV)", text, csv, path(u"Desktop/All Contact Address.txt"_s));
    return 0;
}
