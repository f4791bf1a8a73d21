#include "widgets/filled_combo.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

class FilledComboTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsOnceAndOnlyWhenNeeded();
    void readsForTheFirstKey();
    void refillKeepsWhatIsTyped();
    void typedSpellingStays();
    void listOnlyFindsTheTextItIsGiven();
    void wheelNeedsFocus();
    void tenThousandValues();
};

namespace {

/// A source that counts how often it is read.
struct Source {
    int reads = 0;
    QStringList values{u"Delhi"_s, u"Hyderabad"_s, u"Mumbai"_s};

    std::function<QStringList()> reader()
    {
        return [this] {
            ++reads;
            return values;
        };
    }
};

} // namespace

void FilledComboTest::readsOnceAndOnlyWhenNeeded()
{
    Source source;
    FilledCombo combo;
    combo.setSource(source.reader());
    combo.setText(u"Pune"_s);
    combo.show();
    QCoreApplication::processEvents();
    QCOMPARE(source.reads, 0);

    combo.showPopup();
    QCOMPARE(combo.count(), 3);
    QCOMPARE(combo.currentText(), u"Pune"_s);
    combo.hidePopup();
    combo.showPopup();
    combo.hidePopup();
    QCOMPARE(source.reads, 1);

    combo.refill();
    QCOMPARE(source.reads, 1);
    combo.showPopup();
    combo.hidePopup();
    QCOMPARE(source.reads, 2);
}

void FilledComboTest::readsForTheFirstKey()
{
    Source source;
    FilledCombo combo;
    combo.setSource(source.reader());
    combo.show();
    QTest::keyClicks(combo.lineEdit(), u"hy"_s);
    QCOMPARE(source.reads, 1);
    QCOMPARE(combo.currentText(), u"hy"_s);
    QCOMPARE(combo.completer()->completionCount(), 1);
    QCOMPARE(combo.completer()->currentCompletion(), u"Hyderabad"_s);
}

void FilledComboTest::refillKeepsWhatIsTyped()
{
    Source source;
    FilledCombo combo;
    combo.setSource(source.reader());
    combo.setText(u"Hyderabad"_s);
    combo.lineEdit()->setSelection(2, 3);
    QSignalSpy edits(&combo, &QComboBox::editTextChanged);
    QCOMPARE(combo.values(), source.values);
    QCOMPARE(combo.currentIndex(), 1);

    source.values = QStringList{u"Agra"_s};
    combo.refill();
    combo.values();
    QCOMPARE(combo.currentText(), u"Hyderabad"_s);
    QCOMPARE(combo.lineEdit()->selectedText(), u"der"_s);
    QCOMPARE(edits.size(), 0);
}

void FilledComboTest::typedSpellingStays()
{
    FilledCombo combo;
    combo.setValues({u"Van Gogh"_s});
    QSignalSpy picked(&combo, &QComboBox::activated);
    QTest::keyClicks(&combo, u"van gogh"_s);
    QTest::keyClick(&combo, Qt::Key_Return);
    QCOMPARE(combo.currentText(), u"van gogh"_s);
    QCOMPARE(combo.count(), 1);
    QCOMPARE(picked.size(), 0);

    combo.clearEditText();
    QTest::keyClicks(&combo, u"Van Gogh"_s);
    QTest::keyClick(&combo, Qt::Key_Return);
    QCOMPARE(combo.currentIndex(), 0);
    QCOMPARE(picked.size(), 1);
}

void FilledComboTest::listOnlyFindsTheTextItIsGiven()
{
    Source source;
    FilledCombo combo(nullptr, FilledCombo::Typing::ListOnly);
    combo.setSource(source.reader());
    combo.setText(u"Mumbai"_s);
    QCOMPARE(combo.currentIndex(), 2);
    combo.setText(u"Pune"_s);
    QCOMPARE(combo.currentIndex(), -1);
    QCOMPARE(source.reads, 1);

    combo.setText(u"Delhi"_s);
    source.values = QStringList{u"Agra"_s, u"Delhi"_s};
    combo.refill();
    combo.values();
    QCOMPARE(combo.currentText(), u"Delhi"_s);
}

void FilledComboTest::wheelNeedsFocus()
{
    FilledCombo combo;
    combo.setValues({u"1"_s, u"2"_s, u"3"_s});
    combo.setText(u"2"_s);
    combo.show();
    combo.clearFocus();
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&combo, &wheel);
    QCOMPARE(combo.currentText(), u"2"_s);
    QVERIFY(!wheel.isAccepted()); // so the page scrolls
}

void FilledComboTest::tenThousandValues()
{
    QStringList values;
    for (int i = 0; i < 10'000; ++i)
        values += u"City %1"_s.arg(i, 5, 10, QChar(u'0'));
    FilledCombo combo;
    combo.setSource([values] { return values; });
    combo.show();
    QElapsedTimer timer;
    timer.start();
    QTest::keyClicks(&combo, u"city 099"_s);
    QCOMPARE(combo.completer()->completionCount(), 100);
    combo.showPopup();
    QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(combo.view()->height() < 20 * combo.fontMetrics().height() + 100);
}

QTEST_MAIN(FilledComboTest)
#include "filled_combo_test.moc"
