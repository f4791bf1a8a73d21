#include "widgets/alphabet_tabs.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/key_pad.h"
#include "widgets/mnemonics.h"
#include "widgets/tool_tip_box.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

class SmallControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keyPadLeavesTheFocus()
    {
        QWidget page;
        auto* layout = new QVBoxLayout(&page);
        auto* number = new QLineEdit;
        auto* pad = new KeyPad(u"Command9"_s);
        layout->addWidget(number);
        layout->addWidget(pad);
        connect(
            pad, &KeyPad::keyPressed, number, [number](const QString& caption) { number->insert(caption); });
        page.show();
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        number->setFocus();
        for (const QString& name : {u"Command9_9"_s, u"Command9_11"_s, u"Command9_12"_s})
            QTest::mouseClick(page.findChild<QPushButton*>(name), Qt::LeftButton);
        QCOMPARE(number->text(), u"90#"_s);
        QVERIFY(number->hasFocus());
    }

    void tabIsChosenAgain()
    {
        AlphabetTabs tabs;
        tabs.show();
        QSignalSpy chosen(&tabs, &AlphabetTabs::labelChosen);
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(3).center());
        QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(3).center());
        QCOMPARE(chosen, (QList<QList<QVariant>>{{u"C"_s}, {u"C"_s}}));
        tabs.setCurrentLabel(u"all"_s);
        QCOMPARE(tabs.currentIndex(), 0);
        QCOMPARE(chosen.size(), 2);
    }

    void balloonStaysInTheWindow_data()
    {
        QTest::addColumn<QPoint>("place");
        QTest::newRow("top left") << QPoint(0, 0);
        QTest::newRow("right edge") << QPoint(360, 100);
        QTest::newRow("bottom right") << QPoint(360, 270);
    }

    void balloonStaysInTheWindow()
    {
        QFETCH(QPoint, place);
        QWidget window;
        window.resize(400, 300);
        QPushButton help(&window);
        help.setGeometry(QRect(place, QSize(40, 30)));
        window.show();
        showHelpBeside(&help, u"first"_s);
        showHelpBeside(&help, u"A help text of some length. "_s.repeated(8));
        const auto balloons = window.findChildren<QLabel*>(u"CToolTip"_s);
        QCOMPARE(balloons.size(), 1);
        QVERIFY(window.rect().contains(balloons.constFirst()->geometry()));
        QVERIFY(!balloons.constFirst()->geometry().intersects(help.geometry()));
        showHelpBeside(&help, u" "_s);
        QVERIFY(window.findChildren<QLabel*>(u"CToolTip"_s).isEmpty());
    }

    void escapeClosesTheBalloonOnly()
    {
        QDialog dialog;
        QPushButton help(&dialog);
        dialog.resize(400, 300);
        dialog.show();
        dialog.activateWindow();
        help.setFocus();
        showHelpBeside(&help, u"Help"_s);
        QTest::keyClick(&help, Qt::Key_Escape);
        QVERIFY(!dialog.findChild<QLabel*>(u"CToolTip"_s)
            || !dialog.findChild<QLabel*>(u"CToolTip"_s)->isVisible());
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&help, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void lettersAreSettled()
    {
        QWidget form;
        FormKit kit(&form);
        QTabWidget tabs;
        auto* first = new QWidget;
        auto* second = new QWidget;
        FormKit(first)
            .group()
            .line(u"city"_s, u"Cit&y"_s)
            .line(u"state"_s, u"Stat&e"_s)
            .check(u"same"_s, u"&Same"_s);
        FormKit(second)
            .group()
            .line(u"web"_s, u"&Web"_s)
            .line(u"year"_s, u"&Year"_s)
            .line(u"bye"_s, u"b&y"_s);
        tabs.addTab(first, u"&Home"_s);
        tabs.addTab(second, u"&Work"_s);
        kit.group()
            .line(u"name"_s, u"&Sort as"_s)
            .line(u"chat"_s, u"R&&D &chat"_s)
            .wide(u"tabs"_s, {}, &tabs)
            .buttonRow()
            .button(u"save"_s, u"&Save"_s);
        settleMnemonics(&form, u"ceh"_s);
        QStringList letters;
        for (const QString& name :
            {u"name"_s, u"chat"_s, u"city"_s, u"state"_s, u"web"_s, u"year"_s, u"bye"_s}) {
            for (const auto* label : form.findChildren<QLabel*>()) {
                if (label->buddy() && label->buddy()->objectName() == name)
                    letters += label->text();
            }
        }
        letters << tabs.tabText(0) << tabs.tabText(1) << child<QAbstractButton>(&form, u"same"_s)->text()
                << child<QAbstractButton>(&form, u"save"_s)->text();
        QCOMPARE(letters,
            (QStringList{u"Sort &as"_s, u"&R&&D chat"_s, u"Cit&y"_s, u"S&tate"_s, u"We&b"_s, u"&Year"_s,
                u"by"_s, u"H&ome"_s, u"&Work"_s, u"Sa&me"_s, u"&Save"_s}));
    }

    void keyBesideALetter()
    {
        QPushButton button(u"&Save"_s);
        setKey(&button, QKeySequence::Save);
        QSignalSpy clicks(&button, &QPushButton::clicked);
        button.show();
        button.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&button));
        for (int press = 0; press < 3; ++press)
            QTest::keyClick(button.windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(clicks.size(), 3);
        QTest::keyClick(button.windowHandle(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(clicks.size(), 4);
        button.setEnabled(false);
        QTest::keyClick(button.windowHandle(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(clicks.size(), 4);
    }
};

QTEST_MAIN(SmallControlsTest)
#include "small_controls_test.moc"
