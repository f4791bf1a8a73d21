#include "support/columns.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/suggestion_list.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

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

/// Keys that go to whatever has the focus, as those of a keyboard do.
void typeInto(QWindow* window, const QString& text)
{
    for (const QChar letter : text)
        QTest::keyClick(window, letter.toLatin1());
}

} // namespace

class FilledComboTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsOnceAndOnlyWhenNeeded()
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

    void readsForTheFirstKey()
    {
        Source source;
        FilledCombo combo;
        combo.setSource(source.reader());
        combo.show();
        QTest::keyClicks(combo.lineEdit(), u"hy"_s);
        QCOMPARE(source.reads, 1);
        QCOMPARE(combo.currentText(), u"hy"_s);
        QCOMPARE(combo.suggestions(), QStringList{u"Hyderabad"_s});
    }

    void refillKeepsWhatIsTyped()
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

    void typedSpellingStays()
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

    void listOnlyFindsTheTextItIsGiven()
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

    void wheelNeedsFocus()
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

    void tenThousandValues()
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
        QCOMPARE(combo.suggestions().size(), 100);
        combo.showPopup();
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
        QVERIFY(combo.view()->height() < 20 * combo.fontMetrics().height() + 100);
    }

    void listLetsGo_data()
    {
        // to: the label of what comes next; last: what the texts are then
        support::columns<QString, bool, QString, QString, int>("to", "byKey", "typed", "last", "saves");
        QTest::newRow("click into a field") << u"Company"_s << false << u"Acme"_s << u"Acme"_s << 0;
        QTest::newRow("mnemonic of a field") << u"Company"_s << true << u"98765"_s << u"98765"_s << 0;
        QTest::newRow("click on Save") << u"Save"_s << false << QString() << QString() << 1;
        QTest::newRow("mnemonic of Save") << u"Save"_s << true << QString() << QString() << 1;
    }

    void listLetsGo()
    {
        QFETCH(QString, to);
        QFETCH(bool, byKey);
        QWidget form;
        FormKit kit(&form);
        kit.group()
            .combo(u"First"_s, u"&First"_s)
            .line(u"Company"_s, u"&Company"_s)
            .button(u"Save"_s, u"&Save"_s);
        auto* first = child<FilledCombo>(&form, u"First"_s);
        first->setValues({u"Asha"_s, u"Ashley"_s});
        int saved = 0;
        QString savedName;
        connect(child<QPushButton>(&form, u"Save"_s), &QPushButton::clicked, this, [&] {
            ++saved;
            savedName = first->currentText();
        });
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        first->setFocus();
        typeInto(form.windowHandle(), u"As"_s);
        QCOMPARE(first->suggestions().size(), 2);
        auto* list = first->findChild<SuggestionList*>();
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(form.windowHandle(), Qt::Key_Down);
        QCOMPARE(first->currentText(), u"Asha"_s);

        auto* next = child<QWidget>(&form, to);
        if (byKey)
            QTest::keyClick(form.windowHandle(), Qt::Key(to[0].unicode()), Qt::AltModifier);
        else
            QTest::mouseClick(
                form.windowHandle(), Qt::LeftButton, {}, next->mapTo(&form, next->rect().center()));
        QVERIFY(!list->isVisible());
        QFETCH(QString, typed);
        typeInto(form.windowHandle(), typed);
        QCOMPARE(first->currentText(), u"Asha"_s);
        QTEST(child<QLineEdit>(&form, u"Company"_s)->text(), "last");
        QFETCH(int, saves);
        QTRY_COMPARE(saved, saves); // a button that is pressed by a key comes up again first
        QCOMPARE(savedName, saves ? u"Asha"_s : QString());
    }

    void keysOfTheList()
    {
        QDialog form;
        auto* combo = new FilledCombo(&form);
        combo->setValues({u"Asha"_s, u"Ashley"_s, u"Meera"_s});
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        combo->setFocus();
        QWindow* window = form.windowHandle();
        QSignalSpy picked(combo, &QComboBox::activated);
        auto* list = combo->findChild<SuggestionList*>();

        typeInto(window, u"as"_s);
        QTest::keyClick(window, Qt::Key_Up); // the last one
        QCOMPARE(combo->currentText(), u"Ashley"_s);
        QTest::keyClick(window, Qt::Key_Escape); // the list, not the dialog, and the text is the typed one
        QVERIFY(!list->isVisible());
        QVERIFY(form.isVisible());
        QCOMPARE(combo->currentText(), u"as"_s);

        typeInto(window, u"h"_s);
        QTest::mouseClick(
            list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(1, 0)).center());
        QCOMPARE(combo->currentText(), u"Ashley"_s);
        QCOMPARE(picked.size(), 1);
        QVERIFY(!list->isVisible());
        QVERIFY(combo->hasFocus());
    }
};

QTEST_MAIN(FilledComboTest)
#include "filled_combo_test.moc"
