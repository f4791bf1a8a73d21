// The import of vCards beside plain SQLite inserts of the same rows, in the same run: what does it cost that
// a file is read, shown and stored as one step that can be taken back? Plain means a prepared statement in
// one transaction, with the same indexes in SQLite's own order, write-ahead log and full sync, texts as
// QString.

#include "core/contact_names.h"
#include "core/store/book_files.h"
#include "core/store/book_schema.h"
#include "platform/folder_drive.h"
#include "transfer/cards/likely_duplicates.h"
#include "transfer/cards/store_cards.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <sqlite3.h>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void stop(const QString& what)
{
    std::fprintf(stderr, "card_bench: %s\n", what.toUtf8().constData());
    std::exit(1);
}

/// Of this program, since others may be at work on the computer.
double processorTime()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds
        = [](const timeval& time) { return double(time.tv_sec) * 1e3 + double(time.tv_usec) / 1e3; };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

/// About as much as a telephone knows of a person.
QByteArray cardOf(int number)
{
    const QByteArray n = QByteArray::number(number);
    return "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Lastname" + n + ";First" + QByteArray::number(number % 977)
        + ";;Dr.;\r\nFN:First" + QByteArray::number(number % 977) + " Lastname" + n + "\r\nORG:Company "
        + QByteArray::number(number % 313) + ";Sales\r\nTITLE:Manager\r\nTEL;TYPE=CELL:+91 98200 " + n
        + "\r\nTEL;TYPE=HOME:022 555" + n + "\r\nTEL;TYPE=WORK:022 666" + n + "\r\nEMAIL;TYPE=HOME:p" + n
        + "@example.org\r\nEMAIL;TYPE=WORK:w" + n + "@example.com\r\nADR;TYPE=HOME:;;" + n
        + " Park Road;Pune;Maharashtra;411001;India\r\nADR;TYPE=WORK:;;" + n
        + " Hill Street;Mumbai;Maharashtra;400001;India\r\nBDAY:19" + QByteArray::number(50 + number % 49)
        + "0305\r\nCATEGORIES:Friends\r\nNOTE:Met at the fair\\, likes tea\r\nX-SKYPE:skype" + n
        + "\r\nEND:VCARD\r\n";
}

/// All columns and cells of the book but the key.
struct Rows {
    QStringList columns;
    QList<QStringList> cells;
};

Rows rowsOf(jet::Database& book)
{
    Rows rows;
    jet::Recordset all = book.openRecordset(u"select * from cnt_main order by id"_s);
    const QStringList columns = all.columns();
    QList<int> used;
    for (int column = 1; column < columns.size(); ++column) {
        if (!all.textAt(0, column).isEmpty()) {
            used << column;
            rows.columns << columns[column];
        }
    }
    for (; all.hasRow(); all.moveNext()) {
        QStringList cells;
        for (const int column : used)
            cells << all.textAt(column);
        rows.cells << cells;
    }
    return rows;
}

double plainInserts(const QString& path, const Rows& rows)
{
    sqlite3* connection = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &connection) != SQLITE_OK)
        stop(path);
    const auto run = [&](const QString& sql) {
        if (sqlite3_exec(connection, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            stop(sql + QString::fromUtf8(sqlite3_errmsg(connection)));
    };
    const jet::Schema schema = core::bookSchema();
    QStringList definitions;
    for (const jet::SchemaColumn& column : schema.table(u"cnt_main")->columns)
        definitions << u'[' + column.name + u']'
                + (column.type == jet::ColumnType::AutoNumber   ? u" INTEGER PRIMARY KEY AUTOINCREMENT"_s
                        : column.type == jet::ColumnType::YesNo ? u" INTEGER NOT NULL DEFAULT 0"_s
                                                                : u" TEXT COLLATE NOCASE"_s);
    run(u"PRAGMA journal_mode = WAL"_s);
    run(u"PRAGMA synchronous = FULL"_s);
    run(u"PRAGMA cache_size = -4096"_s);
    run(u"CREATE TABLE cnt_main ("_s + definitions.join(u',') + u')');
    for (const jet::SchemaIndex& index : schema.indexes) {
        if (index.table == u"cnt_main")
            run(u"CREATE INDEX %1 ON cnt_main (%2)"_s.arg(index.name, index.columns.join(u','))
                + (index.condition.isEmpty() ? QString() : u" WHERE "_s + index.condition));
    }
    const double start = processorTime();
    run(u"BEGIN"_s);
    sqlite3_stmt* insert = nullptr;
    const QString sql = u"INSERT INTO cnt_main (["_s + rows.columns.join(u"],["_s) + u"]) VALUES ("_s
        + QStringList(rows.columns.size(), u"?"_s).join(u',') + u')';
    if (sqlite3_prepare_v2(connection, sql.toUtf8().constData(), -1, &insert, nullptr) != SQLITE_OK)
        stop(sql);
    for (const QStringList& cells : rows.cells) {
        for (int cell = 0; cell < cells.size(); ++cell) {
            const QByteArray utf8 = cells[cell].toUtf8();
            sqlite3_bind_text(insert, cell + 1, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
        }
        if (sqlite3_step(insert) != SQLITE_DONE)
            stop(u"insert"_s);
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    run(u"COMMIT"_s);
    const double taken = processorTime() - start;
    sqlite3_close(connection);
    return taken;
}

void measure(const QString& folder, int count)
{
    const QString file = folder + u"/cards.vcf"_s;
    {
        QFile cards(file);
        if (!cards.open(QIODevice::WriteOnly))
            stop(file);
        for (int i = 0; i < count; ++i)
            cards.write(cardOf(i));
    }
    core::BookFiles files(folder, folder + u"/backup"_s);
    jet::Database book;
    if (!files.makeMissing(false) || !files.openData(book))
        stop(u"no book"_s);
    const platform::FolderDrive drive(folder, folder);
    const formats::CardColumns columns(*core::bookSchema().table(u"cnt_main"), core::nameViews());
    const auto photos = std::make_shared<QTemporaryDir>();
    double start = processorTime();
    const auto lap = [&start] { return processorTime() - start; };
    transfer::IncomingCards cards = transfer::readCardFiles({file}, columns, {photos->path(), {}, {}});
    const double read = lap();
    transfer::markLikelyDuplicates(book, cards);
    const double marked = lap();
    const transfer::StoredCards stored
        = transfer::storeCards(book, drive, columns, cards, {QDate(2026, 6, 15), {}, false, photos, {}});
    const double all = lap();
    if (stored.added != count)
        stop(u"%1 stored"_s.arg(stored.added));
    const double plain = plainInserts(folder + u"/plain.db"_s, rowsOf(book));
    start = processorTime();
    if (book.undoLastChange() != jet::TakenBack::Done)
        stop(u"undo"_s);
    const double undone = lap();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%7d cards, processor time: read %.0f ms, duplicates %.0f ms, stored %.0f ms; plain inserts "
                "%.0f ms; stored / "
                "plain %.2f; all / plain %.2f; taken back %.0f ms; peak memory %ld MB\n",
        count, read, marked - read, all - marked, plain, (all - marked) / plain, all / plain, undone,
        usage.ru_maxrss / 1024);
    std::fflush(stdout);
}

/// For files that want too much: what is read of one, in which time and memory.
void readOnly(const QString& file)
{
    const QTemporaryDir photos;
    const formats::CardColumns columns(*core::bookSchema().table(u"cnt_main"), core::nameViews());
    const double start = processorTime();
    const transfer::IncomingCards cards = transfer::readCardFiles({file}, columns, {photos.path(), {}, {}});
    const double taken = processorTime() - start;
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    std::printf("%zu cards, %d pieces left out, processor time %.0f ms, peak memory %ld MB\n",
        cards.cards.size(), cards.leftCount, taken, usage.ru_maxrss / 1024);
    for (const transfer::LeftCard& left : cards.left.mid(0, 5))
        std::printf("    %s: %s\n", qUtf8Printable(left.source), qUtf8Printable(left.why));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const qsizetype fileAt = QCoreApplication::arguments().indexOf(u"--file"_s);
    if (fileAt > 0) {
        readOnly(QCoreApplication::arguments().value(fileAt + 1));
        return 0;
    }
    for (const int count : {1000, 100'000}) {
        // Beside the program, since a folder of temporary files may lie in memory.
        const QTemporaryDir folder(QCoreApplication::applicationDirPath() + u"/cards-XXXXXX"_s);
        measure(folder.path(), count);
        if (QCoreApplication::arguments().contains(u"--quick"))
            break;
    }
    return 0;
}
