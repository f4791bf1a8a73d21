#include "widgets/alphabet_tabs.h"
#include "widgets/key_pad.h"
#include "widgets/tool_tip_box.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

class SmallControlsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keyPadLeavesTheFocus();
    void tabIsChosenAgain();
    void balloonStaysInTheWindow_data();
    void balloonStaysInTheWindow();
    void escapeClosesTheBalloonOnly();
};

void SmallControlsTest::keyPadLeavesTheFocus()
{
    QWidget page;
    auto* layout = new QVBoxLayout(&page);
    auto* number = new QLineEdit;
    auto* pad = new KeyPad(u"Command9"_s);
    layout->addWidget(number);
    layout->addWidget(pad);
    connect(pad, &KeyPad::keyPressed, number, [number](const QString& caption) { number->insert(caption); });
    page.show();
    page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&page));
    number->setFocus();
    for (const QString& name : {u"Command9_9"_s, u"Command9_11"_s, u"Command9_12"_s})
        QTest::mouseClick(page.findChild<QPushButton*>(name), Qt::LeftButton);
    QCOMPARE(number->text(), u"90#"_s);
    QVERIFY(number->hasFocus());
}

void SmallControlsTest::tabIsChosenAgain()
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

void SmallControlsTest::balloonStaysInTheWindow_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::newRow("top left") << QPoint(0, 0);
    QTest::newRow("right edge") << QPoint(360, 100);
    QTest::newRow("bottom right") << QPoint(360, 270);
}

void SmallControlsTest::balloonStaysInTheWindow()
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

void SmallControlsTest::escapeClosesTheBalloonOnly()
{
    QDialog dialog;
    QPushButton help(&dialog);
    dialog.resize(400, 300);
    dialog.show();
    dialog.activateWindow();
    help.setFocus();
    showHelpBeside(&help, u"Help"_s);
    QTest::keyClick(&help, Qt::Key_Escape);
    QVERIFY(
        !dialog.findChild<QLabel*>(u"CToolTip"_s) || !dialog.findChild<QLabel*>(u"CToolTip"_s)->isVisible());
    QVERIFY(dialog.isVisible());
    QTest::keyClick(&help, Qt::Key_Escape);
    QVERIFY(!dialog.isVisible());
}

QTEST_MAIN(SmallControlsTest)
#include "small_controls_test.moc"
