#include <QtTest>

#include "formats/rtf_reader.h"
#include "formats/rtf_writer.h"
#include "support/columns.h"
#include "support/disk.h"

using namespace Qt::StringLiterals;
using namespace formats;
using Align = TextParagraph::Align;
using List = TextParagraph::List;

namespace {

/// A text in one line: paragraphs by "/", with their form in front and the looks of each run behind it.
QString spelled(const RichText& text)
{
    QStringList paragraphs;
    for (const TextParagraph& paragraph : text.paragraphs) {
        QString line = QStringList{{}, u"c:"_s, u"r:"_s, u"j:"_s}[int(paragraph.align)]
            + QStringList{{}, u"*"_s, u"#"_s}[int(paragraph.list)] + QString(paragraph.indent, u'>');
        for (const TextRun& run : paragraph.runs) {
            const CharStyle& style = run.style;
            QString looks = (style.isBold ? u"b"_s : QString()) + (style.isItalic ? u"i"_s : QString())
                + (style.isUnderlined ? u"u"_s : QString()) + (style.isStruckOut ? u"s"_s : QString())
                + style.family + (style.points > 0 ? QString::number(style.points) : QString());
            if (style.color != 0)
                looks += u'#' + QString::number(style.color, 16);
            line += run.text + (looks.isEmpty() ? QString() : u'[' + looks + u']');
        }
        paragraphs << line;
    }
    return paragraphs.join(u'/');
}

QString read(const QByteArray& rtf)
{
    const auto text = readRtf(rtf);
    return text ? spelled(*text) : u"none"_s;
}

RichText allLooks()
{
    const CharStyle all{true, true, true, true, u"Liberation Sans; \\{x}"_s, 13.5, 0xff102030};
    return {{{{{u"Zoë {x}\\ \t\U0001F600"_s}, {u"all"_s, all}, {u"of it\nnew line"_s, {.isBold = true}}}},
        {{{u"middle"_s, {.color = 0xff000000}}}, Align::Center}, {},
        {{{u"a"_s}}, Align::Right, List::Bullets, 2}, {{{u"1."_s}}, Align::Left, List::Numbers},
        {{{u"in"_s}}, Align::Justified, List::None, 3}, {}}};
}

} // namespace

/// Files of word processors on their way in and out.
class RtfTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesBackAsItWas()
    {
        RichText text = allLooks();
        const QString family = u"Liberation Sans \\{x}"_s; // A semicolon ends the name of a font.
        text.paragraphs[0].runs[1].style.family = family;
        const auto back = readRtf(writeRtf(allLooks()));
        QCOMPARE(spelled(*back), spelled(text));
        QVERIFY(*back == text);
    }

    void foreignFiles_data()
    {
        support::columns<QByteArray, QString>("rtf", "text");
        QTest::newRow("code page of the file") << R"({\rtf1\ansi\ansicpg1251 \'cc\'ee})"_ba << u"Мо"_s;
        QTest::newRow("code page of the font, two bytes a letter")
            << R"({\rtf1{\fonttbl{\f0\fcharset128 A;}}\f0 x\'82\'a0})"_ba << u"xあ[A]"_s;
        QTest::newRow("letters by number, with what stands for them")
            << R"({\rtf1\uc2\u8364 EU{\uc0\u-10179\u-8704}\u233\'65\'65!})"_ba << u"€\U0001F600é!"_s;
        QTest::newRow("signs that have a name")
            << R"({\rtf1\ldblquote a\rdblquote\emdash b\~c\_d\-e\bullet})"_ba << u"“a”—b\u00a0c\u2011de•"_s;
        QTest::newRow("looks end with their group, or by 0 and plain")
            << R"({\rtf1 a{\b b{\i c}}\ul d\ul0 e\fs25\strike f\plain g})"_ba
            << u"ab[b]c[bi]d[u]ef[s12.5]g"_s;
        QTest::newRow("fonts and colours of the tables")
            << R"({\rtf1{\fonttbl\f0 One;{\f7\fnil{\*\falt No}Two Three;}}{\colortbl;\red255;}\f7\cf1 a\cf0 b\cf9 c})"_ba
            << u"a[Two Three#ffff0000]bc[Two Three]"_s;
        QTest::newRow("lists by the tables")
            << R"({\rtf1{\*\listtable{\list{\listlevel\levelnfc23}{\listlevel\levelnfc0}\listid5}{\list{\listlevel\levelnfc0}\listid6}}{\*\listoverridetable{\listoverride\listid5\ls1}{\listoverride\listid6\ls2}}\pard{\listtext\'b7\tab}\ls1\fi-360\li720 a\par\ilvl1\li1440 b\par\pard\ls2 c\par\pard d\par})"_ba
            << u"*a/*>b/#c/d"_s;
        QTest::newRow("lists of the old way")
            << R"({\rtf1{\pntext 3.\tab}a\par\pard{\*\pn\pnlvlblt{\pntxtb x}}b\par c\par\pard d})"_ba
            << u"#a/*b/*c/d"_s;
        QTest::newRow("fields show their result; pictures, objects, notes, styles go")
            << R"({\rtf1{\stylesheet{\s1 no;}}{\*\generator no}{\field{\*\fldinst HYPERLINK "http://no/"}{\fldrslt link}} {\pict 0a\bin5 }}}}}b}{\object{\result no}}{\footnote no}{\v no}{\*\unknown no}x})"_ba
            << u"link x"_s;
        QTest::newRow("tables, pages and lines") << R"({\rtf1 a\cell b\cell\row\page c\line d\
e\par
f})"_ba << u"a\tb\t/c\nd/e/f"_s;
        QTest::newRow("cut in a word") << R"({\rtf1 a\par\b bc\pa)"_ba << u"a/bc[b]"_s;
        QTest::newRow("cut in a letter") << R"({\rtf1 ab\'e)"_ba << u"ab"_s;
        QTest::newRow("more ends than beginnings") << "{\\rtf1 a}}}}b"_ba << u"a"_s;
        QTest::newRow("numbers without measure")
            << R"({\rtf1\fs99999999999\li-99999999999\cf-5\f99999999999\ls-1\uc-9 a\u99999999999 ?b})"_ba
            << u"a?b[1000]"_s;
        QTest::newRow("none") << "<b>{\\rtf1 a}"_ba << u"none"_s;
    }

    void foreignFiles()
    {
        QFETCH(QByteArray, rtf);
        QTEST(read(rtf), "text");
    }

    // Neither the stack nor the time of a person runs out.
    void hostileFilesEnd()
    {
        const QByteArray deep
            = "{\\rtf1 " + QByteArray(3'000'000, '{') + "a" + QByteArray(3'000'000, '}') + "b}";
        QCOMPARE(read(deep), u"ab"_s);
        QByteArray many = "{\\rtf1{\\fonttbl";
        for (int i = 0; i < 200'000; ++i)
            many += "{\\f" + QByteArray::number(i) + " N;}";
        many += '}';
        for (int i = 0; i < 200'000; ++i)
            many += "\\b x\\b0\\'e4\\par";
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(readRtf(many)->paragraphs.size(), 200'000);
        QVERIFY2(clock.elapsed() < 10'000, "not in linear time");
        QCOMPARE(readRtf("{\\rtf1 abcdef}", {.bytes = 10})->plain(), u"abc"_s);
    }

    void isReadByAnother()
    {
        const QTemporaryDir folder;
        QProcess reader;
        reader.start(
            u"unrtf"_s, {u"--html"_s, support::put(folder.filePath(u"letter"_s), writeRtf(allLooks()))});
        QVERIFY(reader.waitForFinished());
        const QString html = QString::fromUtf8(reader.readAllStandardOutput());
        for (const QString& wanted : {u"Zo&euml; {x}\\ "_s, u"&bull;"_s, u"<b>"_s, u"<i>"_s, u"#102030"_s,
                 u"<center>"_s, u"1."_s, u"font-size:13"_s})
            QVERIFY2(html.contains(wanted), qUtf8Printable(wanted + u" in "_s + html));
    }
};

QTEST_APPLESS_MAIN(RtfTest)
#include "rtf_test.moc"
