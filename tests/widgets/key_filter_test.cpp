#include "support/columns.h"
#include "widgets/key_filter.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

Q_DECLARE_METATYPE(widgets::KeyFilter)

class KeyFilterTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void piece_data()
    {
        support::columns<KeyFilter, QString, QString, QString, QString>(
            "filter", "before", "piece", "after", "kept");
        const auto row = [](const char* name, KeyFilter filter, const QString& before, const QString& piece,
                             const QString& after, const QString& kept) {
            QTest::newRow(name) << filter << before << piece << after << kept;
        };
        row("letters at both ends of the alphabet", KeyFilter::NoLetters, {}, u"aAzZ@[`{"_s, {}, u"@[`{"_s);
        row("signs, digits and foreign letters pass", KeyFilter::NoLetters, {}, u"+91 (0)40-é"_s, {},
            u"+91 (0)40-é"_s);
        row("one point", KeyFilter::Digits, {}, u"1.2.3"_s, {}, u"1.23"_s);
        row("a point before", KeyFilter::Digits, u"0."_s, u"."_s, {}, {});
        row("a point behind", KeyFilter::Digits, {}, u"1.5"_s, u".2"_s, u"15"_s);
        row("no sign, no foreign digit", KeyFilter::Digits, {}, u"-٣\b4"_s, {}, u"4"_s);
        row("apostrophe", KeyFilter::NoApostrophe, {}, u"O'Neil’s"_s, {}, u"ONeil’s"_s);
        row("none", KeyFilter::None, {}, u"a'1"_s, {}, u"a'1"_s);
    }

    void piece()
    {
        QFETCH(KeyFilter, filter);
        QFETCH(QString, before);
        QFETCH(QString, piece);
        QFETCH(QString, after);
        QTEST(filtered(filter, piece, before, after), "kept");
        QVERIFY(DigitsOnly(QChar(8), u"1.")); // backspace is a key that number fields take
    }

    void typedAndPasted_data()
    {
        support::columns<QString, int, QString, QString>("shown", "cursor", "pasted", "then");
        QTest::newRow("in the middle") << u"1234"_s << 2 << u"a9b"_s << u"12934"_s;
        QTest::newRow("nothing is left") << u"1234"_s << 2 << u"abc"_s << u"1234"_s;
        QTest::newRow("same signs around") << u"1111"_s << 2 << u"1a1"_s << u"111111"_s;
    }

    void typedAndPasted()
    {
        QFETCH(QString, shown);
        QFETCH(int, cursor);
        QFETCH(QString, pasted);
        QFETCH(QString, then);
        QLineEdit typing;
        QLineEdit pasting;
        for (QLineEdit* edit : {&typing, &pasting}) {
            setKeyFilter(edit, KeyFilter::NoLetters);
            edit->setText(shown);
            edit->setCursorPosition(cursor);
        }
        QTest::keyClicks(&typing, pasted);
        QGuiApplication::clipboard()->setText(pasted);
        pasting.paste();
        QCOMPARE(typing.text(), then);
        QCOMPARE(pasting.text(), then);
        QTest::keyClick(&pasting, Qt::Key_0); // the cursor stands behind what was pasted
        QCOMPARE(pasting.text(), QString(then).insert(cursor + then.size() - shown.size(), u'0'));
    }

    void refusedKeyKeepsSelection()
    {
        QLineEdit edit;
        setKeyFilter(&edit, KeyFilter::Digits);
        edit.setText(u"12"_s);
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_X);
        QCOMPARE(edit.text(), u"12"_s);
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_7);
        QCOMPARE(edit.text(), u"7"_s);
        QComboBox combo;
        combo.setEditable(true);
        setKeyFilter(&combo, KeyFilter::NoApostrophe);
        QTest::keyClicks(&combo, u"D'Sa"_s);
        QCOMPARE(combo.currentText(), u"DSa"_s);
    }

    void loadedTextIsLeftAlone()
    {
        QLineEdit edit;
        setKeyFilter(&edit, KeyFilter::NoLetters);
        edit.setText(u"040 ext"_s);
        QCOMPARE(edit.text(), u"040 ext"_s);
        QTest::keyClick(&edit, Qt::Key_5);
        QTest::keyClick(&edit, Qt::Key_Q);
        QCOMPARE(edit.text(), u"040 ext5"_s);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QCOMPARE(edit.text(), u"040 ex"_s);
    }
};

QTEST_MAIN(KeyFilterTest)
#include "key_filter_test.moc"
