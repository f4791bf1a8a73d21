#include "support/columns.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

namespace {

FormKit addressForm(QWidget* page, QWidget* later)
{
    FormKit form(page, [](QStringView column) { return column == u"h_std" ? 6 : 40; });
    form.group(u"Home"_s)
        .line(u"txtadd1"_s, u"&Address"_s, u"h_add1"_s)
        .line(u"txtadd2"_s, {}, u"h_add2"_s)
        .line(u"txtstd"_s, u"Area c&ode"_s, u"h_std"_s, KeyFilter::NoLetters)
        .beside()
        .line(u"txtph1"_s, u"Home && &away"_s, u"H_Ph1"_s)
        .combo(u"dtcmbcity"_s, u"&City"_s, u"h_city"_s)
        .nextColumn()
        .group(u"Personal"_s)
        .date(u"DateBday"_s, u"&Birthday"_s, u"M_BD"_s)
        .memo(u"txtMemo"_s, u"N&otes"_s, u"memo1"_s)
        .widget(u"later"_s, u"&Later"_s, later)
        .check(u"chkType"_s, u"&Main cities"_s)
        .buttonRow()
        .button(u"CmdHelp"_s, {}, {}, u"Help"_s)
        .stretch()
        .button(u"Command1"_s, u"&Save"_s);
    return form;
}

} // namespace

class FormKitTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tabWalksInTheOrderOfTheCalls()
    {
        QWidget page;
        auto* later = new QLineEdit(&page); // made before all others
        const FormKit form = addressForm(&page, later);
        QStringList expected;
        for (const Control& control : form.controls())
            expected += control.name;
        QCOMPARE(expected.size(), 11);

        page.show();
        page.activateWindow();
        form.controls().constFirst().widget->setFocus();
        QStringList walked;
        for (int i = 0; i < expected.size(); ++i) {
            walked += page.focusWidget()->objectName();
            QTest::keyClick(page.focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(walked, expected);
    }

    void everyInputIsLabelled()
    {
        QWidget page;
        const FormKit form = addressForm(&page, new QLineEdit(&page));
        QHash<QWidget*, QString> labels;
        for (const auto* label : page.findChildren<QLabel*>()) {
            if (label->buddy())
                labels.insert(label->buddy(), label->text());
        }
        QCOMPARE(labels.value(child<QWidget>(&page, u"txtadd1"_s)), u"&Address"_s);
        QCOMPARE(labels.value(child<DateBox>(&page, u"DateBday"_s)), u"&Birthday"_s);
        QCOMPARE(labels.value(child<FilledCombo>(&page, u"dtcmbcity"_s)), u"&City"_s);
        for (const Control& control : form.controls())
            QVERIFY2(!control.widget->accessibleName().isEmpty(), qPrintable(control.name));
        QCOMPARE(child<QWidget>(&page, u"txtadd2"_s)->accessibleName(), u"Address"_s);
        QCOMPARE(child<QWidget>(&page, u"txtph1"_s)->accessibleName(), u"Home & away"_s);
        QCOMPARE(child<QWidget>(&page, u"CmdHelp"_s)->accessibleName(), u"Help"_s);
    }

    void lengthsComeFromTheColumns()
    {
        QWidget page;
        addressForm(&page, new QLineEdit(&page));
        auto* code = child<QLineEdit>(&page, u"txtstd"_s);
        QTest::keyClicks(code, u"a0123456789"_s);
        QCOMPARE(code->text(), u"012345"_s);
        auto* city = child<QComboBox>(&page, u"dtcmbcity"_s);
        QTest::keyClicks(city, QString(50, u'x'));
        QCOMPARE(city->currentText().size(), 40);
    }

    void severalLinesIntoOne_data()
    {
        // second: what the second line of the address holds before; texts: of the field and of the second
        // line
        support::columns<QString, QString, QStringList>("field", "second", "texts");
        const QString all = u"12 Hill Road Bandra Mumbai"_s;
        QTest::newRow("address") << u"txtadd1"_s << QString()
                                 << QStringList{u"12 Hill Road"_s, u"Bandra Mumbai"_s};
        QTest::newRow("nothing is written over")
            << u"txtadd1"_s << u"Flat 3"_s << QStringList{all, u"Flat 3"_s};
        QTest::newRow("last line of it") << u"txtadd2"_s << QString() << QStringList{all, all};
        QTest::newRow("combo") << u"dtcmbcity"_s << QString() << QStringList{all, QString()};
    }

    void severalLinesIntoOne()
    {
        QFETCH(QString, field);
        QFETCH(QString, second);
        QWidget page;
        addressForm(&page, new QLineEdit(&page));
        setTextOf(child<QWidget>(&page, u"txtadd2"_s), second);
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        child<QWidget>(&page, field)->setFocus();
        QApplication::clipboard()->setText(u"12 Hill Road\r\n  Bandra\n\nMumbai\n"_s);
        QTest::keySequence(page.windowHandle(), QKeySequence::Paste);
        const QStringList texts{
            textOf(child<QWidget>(&page, field)), textOf(child<QWidget>(&page, u"txtadd2"_s))};
        QTEST(texts, "texts");

        auto* line = page.focusWidget()->findChild<QLineEdit*>();
        line = line ? line : qobject_cast<QLineEdit*>(page.focusWidget());
        line->clear();
        QContextMenuEvent ask(QContextMenuEvent::Mouse, {5, 5}, line->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(line, &ask);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        for (QAction* action : menu->actions()) {
            if (action->text().startsWith(u"&Paste"_s))
                QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
        }
        QVERIFY2(
            !line->text().contains(u'\n') && line->text().startsWith(u"12 Hill"), qPrintable(line->text()));
    }

    void surplusIsRefusedAloud()
    {
        QWidget page;
        addressForm(&page, new QLineEdit(&page));
        page.show();
        auto* code = child<QLineEdit>(&page, u"txtstd"_s);
        QTest::keyClicks(code, u"012345"_s);
        QVERIFY(!page.findChild<QLabel*>(u"CToolTip"_s));
        QTest::keyClicks(code, u"6"_s);
        const auto* told = page.findChild<QLabel*>(u"CToolTip"_s);
        QVERIFY(told && told->text().contains(u"6 characters"_s));
    }

    void longTextsShowTheirBeginning()
    {
        QWidget page;
        FormKit form(&page);
        form.group()
            .readOnly(u"box"_s, u"Note"_s, 4)
            .readOnly(u"line"_s, u"Name"_s)
            .caption(u"value"_s)
            .button(u"link"_s, {});
        page.show();
        const int width = page.width();
        const QString text(200'000, u'x');
        for (const QString& name : {u"box"_s, u"line"_s, u"value"_s, u"link"_s}) {
            setTextOf(child<QWidget>(&page, name), text);
            QCOMPARE(textOf(child<QWidget>(&page, name)), text);
        }
        auto* box = child<QPlainTextEdit>(&page, u"box"_s);
        QCOMPARE(box->toPlainText().count(u'x'), 64 * 1024);
        page.layout()->activate();
        QVERIFY2(page.minimumSizeHint().width() < width + 400, qPrintable(QString::number(page.width())));
        auto* more = child<QToolButton>(&page, u"cmdMore"_s);
        for (int part = 0; part < 3; ++part) {
            QVERIFY(more->isVisible());
            QTest::mouseClick(more, Qt::LeftButton);
        }
        QCOMPARE(box->toPlainText().remove(u'\n'), text);
        QCOMPARE(textOf(box), text);
        QVERIFY(!more->isVisible());

        for (const QString& name : {u"box"_s, u"line"_s, u"value"_s, u"link"_s}) {
            setTextOf(child<QWidget>(&page, name), u"short"_s);
            QCOMPARE(textOf(child<QWidget>(&page, name)), u"short"_s);
        }
    }

    void textsTooLongToEditAreKept()
    {
        QWidget page;
        addressForm(&page, new QLineEdit(&page));
        page.show();
        const QString text = u"some words "_s.repeated(90'000);
        for (const QString& name : {u"txtadd1"_s, u"dtcmbcity"_s, u"txtMemo"_s}) {
            auto* field = child<QWidget>(&page, name);
            setTextOf(field, text);
            QTest::keyClicks(field, u"x"_s);
            QCOMPARE(textOf(field), text);
            setTextOf(field, {});
            QTest::keyClicks(field, u"y"_s);
            QCOMPARE(textOf(field), u"y"_s);
        }
    }

    void radiosOfTwoRunsAreTwoChoices()
    {
        QWidget page;
        FormKit form(&page);
        form.group()
            .radio(u"Option1"_s, u"&All"_s)
            .radio(u"Option2"_s, u"&USA"_s)
            .line(u"txt"_s, u"&Text"_s)
            .radio(u"Option3"_s, u"&List"_s)
            .radio(u"Option4"_s, u"&Tree"_s);
        for (const QString& name : {u"Option1"_s, u"Option3"_s, u"Option4"_s})
            child<QRadioButton>(&page, name)->click();
        QVERIFY(child<QRadioButton>(&page, u"Option1"_s)->isChecked());
        QVERIFY(!child<QRadioButton>(&page, u"Option3"_s)->isChecked());
        QVERIFY(child<QRadioButton>(&page, u"Option4"_s)->isChecked());
    }

    void gridTakesTheRoomThatIsLeft()
    {
        QWidget page;
        FormKit form(&page);
        auto* grid = new QTableView;
        form.group(u"Search"_s).line(u"txt"_s, u"&Text"_s).group(u"Found"_s).wide(u"FG"_s, u"Found"_s, grid);
        page.resize(500, 900);
        page.show();
        QVERIFY2(grid->height() > 650, qPrintable(QString::number(grid->height())));
        QVERIFY(child<QLineEdit>(&page, u"txt"_s)->height() < 40);
    }

    void textsSurviveTheFields_data()
    {
        support::columns<QString, QString>("name", "text");
        QTest::newRow("lines end as in the data") << u"txtMemo"_s << u"one\r\ntwo\r\n"_s;
        QTest::newRow("a button's & is no mnemonic") << u"Command1"_s << u"Ram & Sons"_s;
        QTest::newRow("a text that is not in the list") << u"dtcmbcity"_s << u"Nowhere"_s;
        QTest::newRow("letters in an area code") << u"txtstd"_s << u"0a"_s;
        QTest::newRow("no date") << u"DateBday"_s << u"some day"_s;
    }

    void textsSurviveTheFields()
    {
        QFETCH(QString, name);
        QFETCH(QString, text);
        QWidget page;
        addressForm(&page, new QLineEdit(&page));
        auto* control = child<QWidget>(&page, name);
        setTextOf(control, text);
        QCOMPARE(textOf(control), text);
    }
};

QTEST_MAIN(FormKitTest)
#include "form_kit_test.moc"
