// The address book on pages beside the same work of Qt alone: all rows read, and a text document of the same
// texts printed to PDF.
//   report_bench [CONTACTS [PDF_CONTACTS]]

#include "jet/database.h"
#include "output/report/save_report.h"
#include "reports/address_layouts.h"
#include "tools/book_generator.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTextDocument>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void tell(const char* what, double milliseconds, double plain = 0)
{
    if (plain > 0)
        std::printf(
            "%-46s %9.1f ms   plain %9.1f   ratio %.2f\n", what, milliseconds, plain, milliseconds / plain);
    else
        std::printf("%-46s %9.1f ms\n", what, milliseconds);
}

long residentKilobytes()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.simplified().split(' ').value(1).toLong();
    }
    return 0;
}

output::Report reportOf(jet::Database& book, const QString& filter)
{
    using namespace reports;
    return addressReport(Layout::FullByFirst,
        std::make_shared<output::RecordsetSource>(
            book.openRecordset(layoutSql(Layout::FullByFirst, filter)), output::reportDates(true)),
        {u"Address Book"_s, u"22 Nov-2026"_s, {}});
}

template <class Work> double timed(const Work& work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

/// All columns of all rows, in the order of the report.
double reading(jet::Database& book, const QString& filter)
{
    return timed([&] {
        const jet::Recordset rows
            = book.openRecordset(reports::layoutSql(reports::Layout::FullByFirst, filter));
        const auto columns = rows.columns().size();
        qsizetype letters = 0;
        for (int row = 0; row < rows.count(); ++row) {
            for (int column = 0; column < columns; ++column)
                letters += rows.textAt(row, column).size();
        }
        if (letters == 0)
            std::exit(1);
    });
}

void pages(jet::Database& book)
{
    const double plain = reading(book, {});
    QElapsedTimer clock;
    clock.start();
    output::ReportPager pager(reportOf(book, {}));
    pager.step(0);
    const output::Page first = pager.page(1);
    QImage paper(794, 1123, QImage::Format_RGB32);
    QPainter painter(&paper);
    painter.scale(96 / 1440.0, 96 / 1440.0);
    output::PagePainter(pager, {}).paint(painter, first, {});
    painter.end();
    tell("first page, on paper", static_cast<double>(clock.nsecsElapsed()) / 1e6);
    const long before = residentKilobytes();
    const double all = timed([&] {
        while (pager.step(50)) { }
    });
    tell("all pages known (plain: all rows read)", all, plain);
    std::printf("%-46s %9d pages, %ld kB more\n", "", pager.pageCount(), residentKilobytes() - before);
    tell("the last page", timed([&] { pager.page(pager.pageCount()); }));
}

void files(jet::Database& book, const QString& filter)
{
    const output::Report report = reportOf(book, filter);
    std::printf("%d contacts\n", report.source->count());
    const auto write = [&](output::ReportFormat format) {
        QTemporaryFile file;
        if (!file.open() || !output::writeReport(format, report, file, {}, {}))
            std::exit(1);
    };
    const double html = timed([&] { write(output::ReportFormat::Html); });
    const double rtf = timed([&] { write(output::ReportFormat::Rtf); });
    const double pdf = timed([&] { write(output::ReportFormat::Pdf); });
    QString text;
    output::ReportSetter setter(report);
    for (output::Place place = setter.first(); !place.atEnd; place = setter.after(place)) {
        for (const output::Line& line : setter.block(place).lines) {
            for (const output::Cell& cell : line.cells)
                text += cell.text() + u'\n';
        }
    }
    const double plain = timed([&] {
        QTextDocument document;
        document.setPlainText(text);
        QTemporaryFile file;
        file.open();
        QPdfWriter writer(&file);
        document.print(&writer);
    });
    const double rows = reading(book, filter);
    tell("to PDF (plain: a text document to PDF)", pdf, plain);
    tell("to HTML (plain: all rows read)", html, rows);
    tell("to RTF (plain: all rows read)", rtf, rows);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const int contacts = argc > 1 ? std::atoi(argv[1]) : 100'000;
    const int pdfContacts = argc > 2 ? std::atoi(argv[2]) : 10'000;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Orvanedata.dll"_s);
    jet::Database book;
    if (!tools::makeBook(path, contacts) || book.open(path) != jet::Database::OpenResult::Opened) {
        std::fputs("report_bench: no book\n", stderr);
        return 1;
    }
    std::printf("%d contacts\n", contacts);
    pages(book);
    files(book, u" where id <= %1"_s.arg(pdfContacts));
    return 0;
}
