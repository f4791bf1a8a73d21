#include "output/labels/label_report.h"
#include "output/letters/letter_report.h"
#include "output/report/save_report.h"

#include <QPdfDocument>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace output;

namespace {

std::shared_ptr<ListSource> people(const QList<QStringList>& rows)
{
    return std::make_shared<ListSource>(
        QStringList{u"name"_s, u"h_add1"_s, u"h_add2"_s, u"h_city"_s, u"h_state"_s, u"h_pin"_s}, rows);
}

std::shared_ptr<ListSource> letters(const QString& body, int count)
{
    QList<QStringList> rows;
    for (int row = 1; row <= count; ++row)
        rows << QStringList{
            u"Person %1"_s.arg(row), u"1 Hill"_s, {}, u"Pune"_s, u"MH"_s, u"India"_s, u"411"_s, body};
    return std::make_shared<ListSource>(QStringList{u"person"_s, u"Add1"_s, u"Add2"_s, u"city"_s, u"State"_s,
                                            u"Country"_s, u"zip"_s, u"Body"_s},
        rows);
}

QString textOf(const Page& page)
{
    QString text;
    for (const PlacedBlock& placed : page.blocks) {
        for (const Line& line : placed.block.lines) {
            for (const Cell& cell : line.cells)
                text += cell.text() + u'\n';
        }
    }
    return text;
}

std::vector<Page> pagesOf(const Report& report)
{
    ReportPager pager(report);
    while (pager.step(10)) { }
    std::vector<Page> pages;
    for (int number = 1; number <= pager.pageCount(); ++number)
        pages.push_back(pager.page(number));
    return pages;
}

QByteArray written(ReportFormat format, const Report& report)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return writeReport(format, report, buffer, {}, {}) ? buffer.data() : QByteArray();
}

/// From the upper edge of the paper to the line that begins so.
double placeOf(const Page& page, const QString& text)
{
    for (const PlacedBlock& placed : page.blocks) {
        double y = placed.y;
        for (const Line& line : placed.block.lines) {
            if (!line.cells.empty() && line.cells.back().text().startsWith(text))
                return y;
            y += line.height;
        }
    }
    return -1;
}

} // namespace

/// What goes on paper of a given shape: sheets of labels, letters for envelopes with a window.
class PaperTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // However long an address is, it stays on its label, and its label on the paper.
    void labelsNeverSpill()
    {
        const QString endless = QString(u"Longstreet "_s).repeated(12) + QString(80, u'W');
        QStringList tenLines;
        for (int line = 1; line <= 10; ++line)
            tenLines << u"Line %1 of the address"_s.arg(line);
        const auto rows = people({{u"Asha"_s, u"1 Hill"_s, {}, u"Pune"_s, u"MH"_s, u"411"_s},
            {endless, endless, endless, endless, endless, u"1"_s},
            {u"Bob"_s, tenLines.join(u'\n'), {}, u"Oslo"_s, {}, {}}});
        for (LabelSheet sheet : builtinSheets()) {
            QCOMPARE(sheetComplaint(sheet), QString());
            sheet.layout.firstLabel = sheet.layout.labels() - 2;
            sheet.layout.copies = 2;
            const Report report = labelReport(rows, AddressSet::Home, sheet, {});
            const std::vector<Page> pages = pagesOf(report);
            QCOMPARE(pages.size(), 2U); // two labels of the first sheet were left
            int labels = 0;
            for (const Page& page : pages) {
                for (const PlacedBlock& placed : page.blocks) {
                    if (!placed.frame)
                        continue;
                    ++labels;
                    const QRectF text(placed.x, placed.y, placed.block.width * placed.scale,
                        placed.block.height * placed.scale);
                    QVERIFY2(placed.frame->contains(text), qPrintable(sheet.name));
                    QVERIFY(QRectF(0, 0, sheet.paper.width, sheet.paper.height).contains(*placed.frame));
                }
            }
            QCOMPARE(labels, 6);
            QVERIFY(textOf(pages[1]).contains(u"Line 10 of the address"_s));
        }
    }

    void sheetsThatCanNotBe()
    {
        const auto complains = [](auto change) {
            LabelSheet sheet = builtinSheets()[0];
            change(sheet);
            return !sheetComplaint(sheet).isEmpty();
        };
        QVERIFY(complains([](LabelSheet& sheet) { sheet.layout.columns = 4; }));
        QVERIFY(complains([](LabelSheet& sheet) { sheet.layout.columns = 0; }));
        QVERIFY(complains([](LabelSheet& sheet) { sheet.layout.rows = 2'000'000'000; }));
        QVERIFY(complains([](LabelSheet& sheet) { sheet.layout.pitchX = sheet.layout.width / 2; }));
        QVERIFY(complains([](LabelSheet& sheet) { sheet.layout.height = qQNaN(); }));
        QVERIFY(complains([](LabelSheet& sheet) { sheet.layout.left = -100; }));
    }

    void oneLabelAHousehold()
    {
        const auto rows
            = people({{u"Asha Rao"_s, u"1 Hill"_s, {}, u"Pune"_s, {}, {}}, {u"Carl"_s, {}, {}, {}, {}, {}},
                {u"Bob Rao"_s, u"1  hill"_s, {}, u"PUNE"_s, {}, {}}, {u"Dora"_s, {}, {}, u"Pune"_s, {}, {}},
                {u"Eva"_s, {}, {}, u"Pune"_s, {}, {}}, {u"Kim Rao"_s, u"1 Hill"_s, {}, u"Pune"_s, {}, {}}});
        const auto joined = householdsOf(*rows, AddressSet::Home);
        QCOMPARE(joined->count(), 4);
        QCOMPARE(joined->text(0, 0), u"Asha Rao, Bob Rao & Kim Rao"_s);
        QCOMPARE(joined->text(2, 0), u"Dora"_s);
    }

    void labelsInFiles()
    {
        const auto rows
            = people(QList<QStringList>(30, {u"O'Hara <Ann>"_s, u"1 {Hill}"_s, {}, u"Pune"_s, {}, {}}));
        const Report report = labelReport(rows, AddressSet::Home, builtinSheets()[0], {});
        QBuffer pdf;
        pdf.setData(written(ReportFormat::Pdf, report));
        pdf.open(QIODevice::ReadOnly);
        QPdfDocument document;
        document.load(&pdf);
        QCOMPARE(document.pageCount(), 2);
        QCOMPARE(document.pagePointSize(0).toSize(), QSize(595, 842));
        QCOMPARE(document.getAllText(0).text().count(u"O'Hara <Ann>"_s), 24);
        QVERIFY(document.getAllText(0).text().contains(u"Note -Cut & Paste on Envelopes"_s));
        const QByteArray html = written(ReportFormat::Html, report);
        QCOMPARE(html.count("O'Hara &lt;Ann&gt;"), 30);
        QCOMPARE(html.count("class=\"sheet\""), 2);
        const QByteArray rtf = written(ReportFormat::Rtf, report);
        QCOMPARE(rtf.count("1 \\{Hill\\}"), 30);
        QCOMPARE(rtf.count("\\row"), 16);
        QCOMPARE(rtf.count("\\clbrdrt"), 30);
        QVERIFY(rtf.contains("{\\headerf") && rtf.contains("Note -Cut & Paste on Envelopes"));
    }

    // One label beside nothing needs no distance to the next one.
    void oneLabelASheet()
    {
        LabelSheet sheet = builtinSheets()[2];
        sheet.layout.columns = sheet.layout.rows = 1;
        sheet.layout.pitchX = sheet.layout.pitchY = 0;
        sheet.layout.isFramed = false;
        const Report report = labelReport(
            people({{u"Ann"_s, u"1 Hill"_s, {}, {}, {}, {}}}), AddressSet::Home, sheet, u"Nov 22"_s);
        const QByteArray rtf = written(ReportFormat::Rtf, report);
        QVERIFY(rtf.contains("\\cellx5618") && !rtf.contains("\\trrh-0") && !rtf.contains("\\clbrdrt"));
        const QByteArray html = written(ReportFormat::Html, report);
        QVERIFY(!html.contains("label f b") && !html.contains("Nov 22"));
    }

    // The address is seen through the window, whatever stands above it.
    void addressInTheWindow()
    {
        constexpr double mm = kTwipsAMillimetre;
        for (const LetterStyle style : {LetterStyle::Letterhead, LetterStyle::Classic, LetterStyle::Modern}) {
            LetterLook look{.style = style, .senderName = u"Orvane"_s, .ending = u"Yours {person}"_s};
            look.senderAddress = QStringList{u"9 Long Road"_s, u"London"_s};
            look.date = u"Nov 22-26"_s;
            const Page a4 = pagesOf(letterReport(look, letters(u"Text"_s, 1))).front();
            QVERIFY(placeOf(a4, u"Person 1"_s) > 60 * mm && placeOf(a4, u"India"_s) < 88 * mm);
            QVERIFY(placeOf(a4, u"Nov 22"_s) > 92 * mm);
            QVERIFY(textOf(a4).contains(u"Yours {person}"_s)); // what is typed is no column
            look.isUSLetter = true;
            const Page letter = pagesOf(letterReport(look, letters(u"Text"_s, 1))).front();
            QVERIFY(placeOf(letter, u"Person 1"_s) > 2.05 * kTwipsAnInch
                && placeOf(letter, u"India"_s) < 3.1 * kTwipsAnInch);
        }
    }

    // A letter keeps its looks, goes on where a page ends, and the next one begins a page.
    void longLettersWithLooks()
    {
        LetterLook look{.style = LetterStyle::Classic};
        for (int line = 0; line < 120; ++line)
            look.body.paragraphs << formats::TextParagraph{{{u"Line %1 "_s.arg(line), {}},
                {u"bold"_s, {.isBold = true, .family = u"Serif"_s, .points = 14}}}};
        const auto rows = letters(look.body.plain(), 2);
        const Report report = letterReport(look, rows);
        const std::vector<Page> pages = pagesOf(report);
        QCOMPARE(pages.size() % 2, 0U);
        QVERIFY(pages.size() >= 6);
        QCOMPARE(pages[1].part, 2);
        QVERIFY(textOf(pages[pages.size() / 2]).startsWith(u"Person 2"_s)
            || textOf(pages[pages.size() / 2]).contains(u"Person 2"_s));
        QString all;
        for (const Page& page : pages)
            all += textOf(page);
        for (int line = 0; line < 120; ++line)
            QCOMPARE(all.count(u"Line %1 bold"_s.arg(line)), 2);
        QVERIFY(written(ReportFormat::Html, report).contains("font-weight:bold;font-family:'Serif'"));
        const QByteArray rtf = written(ReportFormat::Rtf, report);
        QVERIFY(rtf.contains("\\f1\\fnil Serif;") && rtf.contains("{\\b\\f1\\fs28 bold}"));
        QCOMPARE(rtf.count("\\page\n"), 1);
    }
};

QTEST_MAIN(PaperTest)
#include "paper_test.moc"
