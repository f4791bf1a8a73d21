#include <QtTest>

#include "formats/vcard_lines.h"
#include "support/columns.h"

using namespace Qt::StringLiterals;
using namespace formats;

/// A parsed line in one text: group|name|parameters|value.
static QString spelled(const VCardLine& line)
{
    QStringList parameters;
    for (const VCardParameter& parameter : line.parameters)
        parameters << parameter.name + u'=' + parameter.values.join(u'/');
    return QStringList{line.group, line.name, parameters.join(u'&'), line.value}.join(u'|');
}

class VCardLinesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void parse_data()
    {
        support::columns<QString, QString>("line", "expected");
        QTest::newRow("plain") << u"FN:Asha Rao"_s << u"|FN||Asha Rao"_s;
        QTest::newRow("name in lower case") << u"fn:Asha"_s << u"|FN||Asha"_s;
        QTest::newRow("empty value") << u"NOTE:"_s << u"|NOTE||"_s;
        QTest::newRow("colons in the value") << u"URL:http://a:1/"_s << u"|URL||http://a:1/"_s;
        QTest::newRow("group") << u"item1.TEL:5"_s << u"item1|TEL||5"_s;
        QTest::newRow("list of types") << u"TEL;TYPE=home,voice:5"_s << u"|TEL|TYPE=home/voice|5"_s;
        QTest::newRow("repeated type") << u"TEL;TYPE=home;TYPE=fax:5"_s << u"|TEL|TYPE=home&TYPE=fax|5"_s;
        QTest::newRow("bare type") << u"TEL;WORK;FAX:5"_s << u"|TEL|TYPE=WORK&TYPE=FAX|5"_s;
        QTest::newRow("quoted separators") << u"ADR;LABEL=\"a;b:c,d\":x"_s << u"|ADR|LABEL=a;b:c,d|x"_s;
        QTest::newRow("quoted, then plain") << u"A;B=\"1,2\",3;C=4:x"_s << u"|A|B=1,2/3&C=4|x"_s;
        QTest::newRow("caret escapes") << u"A;B=x^'y^nz^^^q:v"_s << u"|A|B=x\"y\nz^^q|v"_s;
        QTest::newRow("empty parameter value") << u"A;B=:v"_s << u"|A|B=|v"_s;
    }

    void parse()
    {
        QFETCH(QString, line);
        QFETCH(QString, expected);
        const auto parsed = parseVCardLine(line);
        QVERIFY(parsed);
        QCOMPARE(spelled(*parsed), expected);
    }

    void damaged_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("nothing") << u""_s;
        QTest::newRow("no colon") << u"FN"_s;
        QTest::newRow("no name") << u":x"_s;
        QTest::newRow("only a group") << u"item1.:x"_s;
        QTest::newRow("two groups") << u"a.b.TEL:x"_s;
        QTest::newRow("blank in the name") << u"F N:x"_s;
        QTest::newRow("cut in the parameters") << u"TEL;TYPE=ho"_s;
        QTest::newRow("cut after the semicolon") << u"TEL;"_s;
        QTest::newRow("open quote") << u"TEL;TYPE=\"home:5"_s;
        QTest::newRow("text behind the quote") << u"TEL;TYPE=\"a\"b:5"_s;
        QTest::newRow("parameter without a name") << u"TEL;=home:5"_s;
        QTest::newRow("thousands of parameters") << u"TEL"_s + u";X=1"_s.repeated(5000) + u":5"_s;
        QTest::newRow("endless name") << QString(1000, u'A') + u":5"_s;
    }

    void damaged()
    {
        QFETCH(QString, line);
        QVERIFY(!parseVCardLine(line));
    }

    void unfold_data()
    {
        support::columns<QString, QStringList>("text", "lines");
        QTest::newRow("crlf") << u"A:1\r\nB:2\r\n"_s << QStringList{u"A:1"_s, u"B:2"_s};
        QTest::newRow("lf, no end") << u"A:1\nB:2"_s << QStringList{u"A:1"_s, u"B:2"_s};
        QTest::newRow("blank and tab") << u"A:1\r\n 2\r\n\t3\r\n"_s << QStringList{u"A:123"_s};
        QTest::newRow("only one blank goes") << u"A:1\r\n  2"_s << QStringList{u"A:1 2"_s};
        QTest::newRow("empty lines") << u"\r\nA:1\r\n\r\nB:2\r\n"_s << QStringList{u"A:1"_s, u"B:2"_s};
        QTest::newRow("starts folded") << u" A:1\nB:2"_s << QStringList{u"A:1"_s, u"B:2"_s};
    }

    void unfold()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, lines);
        QCOMPARE(unfoldVCard(text), lines);
    }

    void fold_data()
    {
        QTest::addColumn<QString>("line");
        QTest::newRow("short") << u"FN:A"_s;
        QTest::newRow("75 bytes") << u"N:"_s + QString(73, u'x');
        QTest::newRow("76 bytes") << u"N:"_s + QString(74, u'x');
        QTest::newRow("long") << u"N:"_s + QString(1000, u'x');
        QTest::newRow("two bytes a character") << u"N:"_s + QString(300, u'é');
        QTest::newRow("three bytes a character") << u"N:"_s + QString(300, u'अ');
        QTest::newRow("four bytes a character") << u"N:x"_s + u"😀"_s.repeated(100);
        QTest::newRow("blanks at the fold") << u"N:"_s + QString(200, u' ') + u'x';
    }

    void fold()
    {
        QFETCH(QString, line);
        const QByteArray folded = foldVCardLine(line);
        QVERIFY(folded.endsWith("\r\n"));
        const QList<QByteArray> physical = folded.chopped(2).split('\n');
        QCOMPARE(physical.size() > 1, line.toUtf8().size() > 75);
        for (const QByteArray& one : physical) {
            QVERIFY(one.chopped(one.endsWith('\r') ? 1 : 0).size() <= 75);
            QVERIFY(one.isValidUtf8());
        }
        QCOMPARE(unfoldVCard(QString::fromUtf8(folded)), QStringList{line});
    }

    void escape_data()
    {
        support::columns<QString, QString>("text", "escaped");
        QTest::newRow("separators") << u"a,b;c:d"_s << u"a\\,b\\;c:d"_s;
        QTest::newRow("backslash") << u"C:\\new"_s << u"C:\\\\new"_s;
        QTest::newRow("line end") << u"a\nb"_s << u"a\\nb"_s;
    }

    void escape()
    {
        QFETCH(QString, text);
        QFETCH(QString, escaped);
        QCOMPARE(escapeVCardText(text), escaped);
        QCOMPARE(unescapeVCardText(escaped), text);
    }

    void split()
    {
        QCOMPARE(splitVCardValue(u"a;b\\;c;;d\\\\;e\\", u';'),
            (QStringList{u"a"_s, u"b\\;c"_s, u""_s, u"d\\\\"_s, u"e\\"_s}));
        // Every kind of line end becomes one, and a value can't start a line of its own.
        QCOMPARE(escapeVCardText(u"a\r\nEND:VCARD\rb\x01"), u"a\\nEND:VCARD\\nb"_s);
        QCOMPARE(unescapeVCardText(u"a\\Nb\\"), u"a\nb\\"_s);
    }

    void parameterRoundTrip()
    {
        const VCardLine line{
            u"g"_s, u"ADR"_s, {{u"LABEL"_s, {u"12 \"Park\"; x:y^n\nz"_s, u"b"_s}}}, u"v:1"_s};
        const auto parsed = parseVCardLine(writeVCardLine(line));
        QVERIFY(parsed);
        QCOMPARE(spelled(*parsed), spelled(line));
    }

    void longLines()
    {
        // Ten megabytes in one line, whole, folded to bits, or all quotes: refused or read, and at once.
        const QString big(10 * 1024 * 1024, u'x');
        QElapsedTimer time;
        time.start();
        QVERIFY(!parseVCardLine(u"PHOTO:"_s + big));
        QVERIFY(parseVCardLine(u"PHOTO:"_s + big.left(maxVCardLine - 6)));
        QVERIFY(!parseVCardLine(u"A;B=\""_s + big.left(maxVCardLine - 10)));
        QCOMPARE(unfoldVCard(u"A:"_s + u"\n x"_s.repeated(1'000'000)).value(0).size(), 1'000'002);
        QCOMPARE(unfoldVCard(QString::fromUtf8(foldVCardLine(big))).value(0).size(), big.size());
        QVERIFY2(time.elapsed() < 20'000, "reading takes more than time in proportion to the length");
    }
};

QTEST_GUILESS_MAIN(VCardLinesTest)
#include "vcard_lines_test.moc"
