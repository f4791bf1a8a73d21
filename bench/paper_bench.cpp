// Addresses on paper: 1,000 of a book of 100,000 contacts to a PDF of labels, in a process of its own so that
// its memory can be told, beside the rows read by themselves and the labels painted by Qt alone. Then a
// letter to 200 of them, merged and kept in the record, with looks and without, beside 200 rows stored one
// batch alone.
//   paper_bench [CONTACTS [LABELS]]

#include "jet/database.h"
#include "letters/creator/letter_record.h"
#include "output/labels/label_report.h"
#include "output/report/save_report.h"
#include "platform/folder_drive.h"
#include "tools/book_generator.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRounds = 5;
// What another program took for as many labels on the machine where the goal was set.
constexpr double kOtherMilliseconds = 2200;
constexpr double kGoal = 0.05;
constexpr double kMegabytesAllowed = 60;
constexpr int kReaders = 200;
constexpr int kKeptGoal = 2000;

QString addresses(int labels)
{
    return u"SELECT name,h_add1,h_add2,h_city,h_state,h_pin FROM [cnt_main] WHERE id<=%1 ORDER BY name"_s.arg(
        labels);
}

double timed(const std::function<void()>& work)
{
    double best = 1e9;
    for (int round = 0; round < kRounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        work();
        best = std::min(best, static_cast<double>(clock.nsecsElapsed()) / 1e6);
    }
    return best;
}

double peakMegabytes()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toDouble() / 1024;
    }
    return 0;
}

/// The texts drawn where they belong, without rows, templates and fitting.
void paintPlain(const output::ReportSource& rows, const output::LabelSheet& sheet)
{
    QTemporaryFile file;
    file.open();
    QPdfWriter writer(&file);
    writer.setResolution(1440);
    writer.setPageMargins({});
    QPainter painter(&writer);
    const output::SheetLayout& layout = sheet.layout;
    for (int row = 0; row < rows.count(); ++row) {
        const int at = row % layout.labels();
        if (row > 0 && at == 0)
            writer.newPage();
        const double x = layout.left + layout.pitchX * (at % layout.columns);
        const int line = at / layout.columns;
        for (int field = 0; field < 6; ++field)
            painter.drawText(
                QPointF(x, layout.top + layout.pitchY * line + 200 * (field + 1)), rows.text(row, field));
    }
}

/// A letter of a page, half of it bold.
letters::LetterToKeep letterOf(bool hasLooks, const QString& folder)
{
    letters::LetterToKeep letter{.category = u"Bench"_s, .folder = folder};
    letter.date = letter.today = QDate(2026, 1, 1);
    for (int line = 0; line < 30; ++line)
        letter.parts.body.paragraphs << formats::TextParagraph{
            {{u"What there is to say in a line of this letter. "_s}, {u"And more."_s, {.isBold = hasLooks}}}};
    letter.parts.ending = u"Yours Faithfully"_s;
    return letter;
}

void keepLetters(jet::Database& book, const QTemporaryDir& folder)
{
    const platform::FolderDrive drive(folder.path(), folder.path());
    QList<letters::Recipient> readers;
    jet::Recordset people
        = book.openRecordset(u"select * from cnt_main where id<=%1 order by id"_s.arg(kReaders));
    for (; people.hasRow(); people.moveNext())
        readers << letters::recipientOf(people, letters::AddressType::Home);
    for (const bool hasLooks : {false, true}) {
        const letters::LetterToKeep letter = letterOf(hasLooks, u"C:\\OVUserfiles\\Letters"_s);
        const double kept = timed([&] {
            const auto whyNot = letters::keepLetters(book, drive, letter, readers,
                [&letter](const letters::Recipient& to) { return composedLetter(to, letter.parts); });
            if (whyNot)
                std::exit(1);
        });
        std::printf("%d letters merged and kept, %s%*s %9.1f ms   goal %d\n", int(readers.size()),
            hasLooks ? "with looks" : "plain     ", 8, "", kept, kKeptGoal);
    }
    const double rows = timed([&] {
        jet::Batch batch(book);
        jet::Recordset table = book.openRecordset(u"select * from cnt_letters"_s);
        for (int row = 0; row < kReaders; ++row) {
            table.addNew();
            table.set(u"person", u"Somebody"_s);
            table.set(u"MERGED", QString(1500, u'x'));
            table.update();
        }
        batch.commit();
    });
    std::printf("%-46s %9.1f ms\n", "200 rows of that size in one batch alone", rows);
}

int measure(const QString& path, int labels)
{
    jet::Database book;
    if (book.open(path) != jet::Database::OpenResult::Opened)
        return 1;
    const output::LabelSheet& sheet = output::builtinSheets().front();
    const auto rowsOf = [&] {
        return std::make_shared<output::RecordsetSource>(
            book.openRecordset(addresses(labels)), output::reportDates(true));
    };
    const double ours = timed([&] {
        QTemporaryFile file;
        if (!file.open()
            || !output::writeReport(output::ReportFormat::Pdf,
                output::labelReport(rowsOf(), output::AddressSet::Home, sheet, {}), file, {}, {}))
            std::exit(1);
    });
    const double peak = peakMegabytes();
    const double plain = timed([&] { paintPlain(*rowsOf(), sheet); });
    std::printf("%d labels to PDF%*s %9.1f ms   plain %9.1f   ratio %.2f\n", labels, 26, "", ours, plain,
        ours / plain);
    std::printf("%-46s %9.3f of another program's time (goal %.2f)\n", "", ours / kOtherMilliseconds, kGoal);
    std::printf("%-46s %9.1f MiB at most (goal %.0f)\n", "", peak, kMegabytesAllowed);
    keepLetters(book, QTemporaryDir());
    return labels == 1000 && peak > kMegabytesAllowed ? 1 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    if (argc == 4 && qstrcmp(argv[1], "--measure") == 0)
        return measure(QString::fromLocal8Bit(argv[2]), std::atoi(argv[3]));
    const int contacts = argc > 1 ? std::atoi(argv[1]) : 100'000;
    const int labels = argc > 2 ? std::atoi(argv[2]) : 1000;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Orvanedata.dll"_s);
    if (!tools::makeBook(path, contacts)) {
        std::fputs("paper_bench: no book\n", stderr);
        return 1;
    }
    // What making the book took is not counted.
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    child.start(QCoreApplication::applicationFilePath(), {u"--measure"_s, path, QString::number(labels)});
    child.waitForFinished(-1);
    return child.exitCode();
}
