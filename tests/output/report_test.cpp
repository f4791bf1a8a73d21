#include "output/report/save_report.h"
#include "output/report/text_template.h"
#include "support/columns.h"
#include "support/disk.h"

#include <QPdfDocument>
#include <QTextDocumentFragment>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace output;

namespace {

std::shared_ptr<ListSource> rowsOf(const QList<QStringList>& rows)
{
    return std::make_shared<ListSource>(QStringList{u"name"_s, u"city"_s, u"note"_s}, rows);
}

/// People in the order of their names, in groups by the first letter, with a title and a count.
Report reportOf(const QList<QStringList>& rows)
{
    Report report;
    report.title = u"People & <places>"_s;
    report.printDate = u"01 Mar-2026"_s;
    report.source = rowsOf(rows);
    report.header.lines = {{{{u"{#title}"_s, 1, TextRole::Title}}, false}};
    report.grouping = Grouping{u"name"_s, true, u"None"_s};
    report.groupHeader.lines = {{{{u"Letter {#key}"_s, 1, TextRole::GroupTitle}}, true}};
    report.detail.lines
        = {{{{u"{name}"_s, 1, TextRole::Strong}, {u"{city}"_s}}, false}, {{{u"{note}"_s}}, false}};
    report.groupFooter.lines = {{{{u"{#count} here"_s, 1, TextRole::Quiet}}, false}};
    report.footer.lines = {{{{u"All: {#count}"_s}}, false}};
    return report;
}

QList<QStringList> many(int count)
{
    QList<QStringList> rows;
    for (int row = 0; row < count; ++row)
        rows << QStringList{
            u"%1%2"_s.arg(QChar(u'A' + row * 26 / count)).arg(row, 5, 10, QChar(u'0')), u"Pune"_s, {}};
    return rows;
}

QStringList textsOf(const Page& page)
{
    QStringList texts;
    for (const PlacedBlock& placed : page.blocks) {
        for (const Line& line : placed.block.lines) {
            for (const Cell& cell : line.cells)
                texts << cell.lines;
        }
    }
    return texts;
}

QByteArray written(ReportFormat format, const Report& report)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return writeReport(format, report, buffer, {}, {}) ? buffer.data() : QByteArray("failed");
}

/// What a program of others makes of a file.
QString readBy(const QString& program, const QStringList& arguments, const QByteArray& bytes)
{
    const QTemporaryDir folder;
    const QString file = support::put(folder.filePath(u"report"_s), bytes);
    QProcess reader;
    reader.start(program, arguments + QStringList{file});
    return reader.waitForFinished() && reader.exitCode() == 0
        ? QString::fromUtf8(reader.readAllStandardOutput())
        : reader.errorString();
}

} // namespace

/// How a report is set, broken into pages, and written to files that other programs read.
class ReportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void templatesLeaveOutWhatIsNotThere_data()
    {
        support::columns<QString, QString>("text", "filled");
        const auto row = [](const char* tag, const QString& text, const QString& filled) {
            QTest::newRow(tag) << text << filled;
        };
        row("both", u"{name} - {city}"_s, u"Asha - Pune"_s);
        row("no second", u"{name} - {note}"_s, u"Asha"_s);
        row("no first", u"Tel. {note}, {city}"_s, u"Tel. Pune"_s);
        row("none", u"Tel. {note}"_s, u""_s);
        row("a line without", u"{name}\n{note}\n{city}"_s, u"Asha\nPune"_s);
        row("only words", u"Total"_s, u"Total"_s);
        row("a name that is none", u"{what}{city}"_s, u"Pune"_s);
        row("an open brace", u"{name} {"_s, u"Asha {"_s);
        row("of the report", u"{#key}: {name}"_s, u"A: Asha"_s);
    }

    void templatesLeaveOutWhatIsNotThere()
    {
        QFETCH(QString, text);
        const auto source = rowsOf({{u"Asha"_s, u"Pune"_s, u" "_s}});
        QTEST(TextTemplate(text, *source).fill(*source, 0, {{u"#key"_s, u"A"_s}}), "filled");
    }

    void eachRowStandsOnceAndHeadingsStandAboveARow()
    {
        const QList<QStringList> rows = many(1000);
        ReportPager pager(reportOf(rows));
        while (pager.step(0)) { }
        QVERIFY(pager.pageCount() > 15);
        QStringList names;
        for (int number = 1; number <= pager.pageCount(); ++number) {
            const Page page = pager.page(number);
            QVERIFY(page.blocks.back().block.kind != BlockKind::GroupHeader);
            QVERIFY(page.blocks.back().y + page.blocks.back().height <= pager.bottom() + 1);
            for (const PlacedBlock& placed : page.blocks) {
                if (placed.block.kind == BlockKind::Detail)
                    names << placed.block.lines.front().cells.front().text();
            }
        }
        QStringList wanted;
        for (const QStringList& row : rows)
            wanted << row.front();
        QCOMPARE(names, wanted);
        const QStringList last = textsOf(pager.page(pager.pageCount()));
        QVERIFY(last.contains(u"38 here"_s));
        QCOMPARE(last.constLast(), u"All: 1000"_s);
    }

    // Letters with and without accents, in any case, are one group.
    void groupsByLetter()
    {
        ReportPager pager(
            reportOf({{u"asha"_s}, {u"Ämil"_s}, {u"Bob"_s}, {u"\"Zoë\""_s}, {u""_s, u"Oslo"_s}}));
        while (pager.step(0)) { }
        QCOMPARE(textsOf(pager.page(1)).filter(u"Letter"_s),
            (QStringList{u"Letter A"_s, u"Letter B"_s, u"Letter Z"_s, u"Letter None"_s}));
    }

    void aNoteLongerThanAPageGoesOn()
    {
        QString note;
        for (int line = 0; line < 400; ++line)
            note += u"line %1\n"_s.arg(line);
        ReportPager pager(reportOf({{u"A"_s, {}, note}, {u"B"_s, {}, QString(10'000, u'x')}}));
        while (pager.step(0)) { }
        QStringList texts;
        for (int number = 1; number <= pager.pageCount(); ++number)
            texts << textsOf(pager.page(number));
        QCOMPARE(texts.filter(u"line "_s).size(), 400);
        QCOMPARE(texts.filter(u"xxx"_s).join(QString()).size(), 10'000);
    }

    void pdfIsFoundByPage()
    {
        QList<QStringList> rows = many(200);
        rows.append({u"Ωμέγα <b>&"_s, u"Москва"_s, u"(\\"_s});
        const Report report = reportOf(rows);
        const QTemporaryDir folder;
        const QString file = support::put(folder.filePath(u"r.pdf"_s), written(ReportFormat::Pdf, report));
        QPdfDocument pdf;
        QCOMPARE(pdf.load(file), QPdfDocument::Error::None);
        ReportPager pager(report);
        while (pager.step(0)) { }
        QCOMPARE(pdf.pageCount(), pager.pageCount());
        for (int page = 1; page <= pdf.pageCount(); ++page) {
            const QString text = pdf.getAllText(page - 1).text();
            for (const QString& wanted : textsOf(pager.page(page)))
                QVERIFY2(text.contains(wanted), qUtf8Printable(wanted + u" not in\n"_s + text));
            QVERIFY(text.contains(u"Page %1 of %2"_s.arg(page).arg(pdf.pageCount())));
        }
        QCOMPARE(pdf.pagePointSize(0).toSize(), QSize(595, 842));
    }

    void rtfIsReadByAnother()
    {
        const QString html = readBy(u"unrtf"_s, {u"--html"_s},
            written(ReportFormat::Rtf, reportOf({{u"Zoë {x}\\ Ω"_s, u"Москва"_s, u"a\nb"_s}})));
        const QString text = QTextDocumentFragment::fromHtml(html).toPlainText();
        for (const QString& wanted : {u"People & <places>"_s, u"Zoë {x}\\ Ω"_s, u"Москва"_s, u"All: 1"_s})
            QVERIFY2(text.contains(wanted), qUtf8Printable(text));
    }

    void htmlIsWellFormedAndHasNoMarkupOfOthers()
    {
        Report report = reportOf({{u"<b>&\"x"_s, u"Ω"_s, u"a\nb"_s}});
        report.colors = colorsOf(0x800000);
        const QByteArray html = written(ReportFormat::Html, report);
        QVERIFY(html.contains("&lt;b&gt;&amp;&quot;x"));
        QVERIFY(html.contains("a<br>b"));
        QVERIFY(html.contains("background:#000080;color:#ffffff"));
        QByteArray xml = html;
        for (const char* open : {"<!DOCTYPE html>", "<meta charset=\"utf-8\">"})
            xml.replace(open, "");
        xml.replace("<br>", "<br/>");
        QXmlStreamReader reader(xml);
        while (!reader.atEnd())
            reader.readNext();
        QCOMPARE(reader.errorString(), QString());
    }

    void stopsAndSaysSo_data()
    {
        support::columns<ReportFormat>("format");
        QTest::newRow("html") << ReportFormat::Html;
        QTest::newRow("rtf") << ReportFormat::Rtf;
        QTest::newRow("pdf") << ReportFormat::Pdf;
    }

    void stopsAndSaysSo()
    {
        QFETCH(ReportFormat, format);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        int asked = 0;
        QVERIFY(
            !writeReport(format, reportOf(many(1000)), buffer, {}, [&asked](int) { return ++asked < 3; }));
        QCOMPARE(asked, 3);
    }
};

QTEST_MAIN(ReportTest)
#include "report_test.moc"
