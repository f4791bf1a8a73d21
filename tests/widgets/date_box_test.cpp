#include "support/columns.h"
#include "support/person.h"
#include "widgets/date_box.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace widgets;

class DateBoxTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formats_data()
    {
        support::columns<QString, QString>("pattern", "text");
        QTest::newRow("day first") << u"dd MMM-yyyy"_s << u"05 Mar-1990"_s;
        QTest::newRow("month first") << u"MMM dd-yyyy"_s << u"Mar 05-1990"_s;
        QTest::newRow("for statements") << u"dd-MMM-yyyy"_s << u"05-Mar-1990"_s;
        QTest::newRow("for rows") << u"dd/MMM/yyyy"_s << u"05/Mar/1990"_s;
        QTest::newRow("short") << u"dd-MMM-yy"_s << u"05-Mar-90"_s;
        QTest::newRow("short, month first") << u"MMM-dd-yy"_s << u"Mar-05-90"_s;
        QTest::newRow("small letters are months too") << u"dd mmm"_s << u"05 Mar"_s;
    }

    void formats()
    {
        QFETCH(QString, pattern);
        QLocale::setDefault(QLocale(QLocale::German)); // March is not März in a stored date
        DateBox box;
        box.setFormat(pattern);
        box.setDate(QDate(1990, 3, 5));
        QTEST(box.text(), "text");
        box.setDate({});
        QCOMPARE(box.text(), QString());
        QLocale::setDefault(QLocale::c());
    }

    void reads_data()
    {
        // dayFirst: invalid: no date
        support::columns<QString, QDate, QDate>("text", "dayFirst", "monthFirst");
        const QDate none;
        const QDate february(1990, 2, 1);
        const auto both = [](const char* name, const QString& text, QDate date) {
            QTest::newRow(name) << text << date << date;
        };
        both("own format", u"01 Feb-1990"_s, february);
        both("own format, month first", u"Feb 01-1990"_s, february);
        both("long month, any case", u"1 FEBRUARY 1990"_s, february);
        both("comma", u"feb 1, 1990"_s, february);
        both("no blanks", u"1Feb1990"_s, february);
        both("year first", u"1990-02-01"_s, february);
        both("year first, month word", u"1990 Feb 1"_s, february);
        both("blanks around", u"  1.feb.90 "_s, february);
        both("September in four letters", u"3 sept 2001"_s, QDate(2001, 9, 3));
        QTest::newRow("three numbers") << u"1/2/1990"_s << february << QDate(1990, 1, 2);
        both("first number too large for a month", u"31/1/1990"_s, QDate(1990, 1, 31));
        both("second number too large for a month", u"1/31/1990"_s, QDate(1990, 1, 31));
        QTest::newRow("two-digit year of this century")
            << u"1.2.29"_s << QDate(2029, 2, 1) << QDate(2029, 1, 2);
        QTest::newRow("two-digit year of the last") << u"1.2.30"_s << QDate(1930, 2, 1) << QDate(1930, 1, 2);
        both("leap day", u"29 Feb 2000"_s, QDate(2000, 2, 29));
        both("no leap year", u"29 Feb 1900"_s, none);
        both("30th of February", u"30 Feb 1990"_s, none);
        both("both over 12", u"13/13/1990"_s, none);
        both("foreign month", u"1 Mai 1990"_s, none);
        both("month too short to tell", u"1 Ju 1990"_s, none);
        both("month and year only", u"Feb 1990"_s, none);
        both("three-digit year", u"1/2/199"_s, none);
        both("long number", u"1/2/99999999999999"_s, none);
        both("a word more", u"about 1 Feb 1990"_s, none);
        both("year below 100", u"1/1/0099"_s, none);
        both("year 100", u"1/1/0100"_s, QDate(100, 1, 1));
        both("sign", u"1#2#1990"_s, none);
        both("two months", u"Feb Mar 1990"_s, none);
        both("empty", {}, none);
    }

    void reads()
    {
        QFETCH(QString, text);
        DateBox box;
        box.setText(text);
        QTEST(box.date().value_or(QDate()), "dayFirst");
        box.setFormat(u"MMM dd-yyyy"_s);
        box.setText(text);
        QTEST(box.date().value_or(QDate()), "monthFirst");
    }

    void wrongTextStays()
    {
        DateBox box;
        box.setToolTip(u"Day of birth"_s);
        const QColor right = box.palette().color(QPalette::Text);
        QTest::keyClicks(&box, u"30 Feb 1990"_s);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.text(), u"30 Feb 1990"_s);
        QVERIFY(!box.date());
        QVERIFY(box.holdsBadText());
        QVERIFY(box.palette().color(QPalette::Text) != right);
        QVERIFY(box.toolTip().contains(u"01 Feb-1990"_s));

        box.clear();
        QVERIFY(!box.holdsBadText());
        QCOMPARE(box.palette().color(QPalette::Text), right);
        QCOMPARE(box.toolTip(), u"Day of birth"_s);
    }

    void tidiedWhenLeft()
    {
        DateBox box;
        box.setFormat(u"MMM dd-yyyy"_s);
        QTest::keyClicks(&box, u"2/1/1990"_s);
        QCOMPARE(box.text(), u"2/1/1990"_s);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.text(), u"Feb 01-1990"_s);
        box.setFormat(u"dd MMM-yyyy"_s);
        QCOMPARE(box.text(), u"01 Feb-1990"_s);
    }

    void twoDigitYearKeepsCentury()
    {
        DateBox box;
        box.setFormat(u"dd-MMM-yy"_s);
        box.setDate(QDate(1925, 2, 1));
        QCOMPARE(box.text(), u"01-Feb-25"_s);
        QCOMPARE(box.date(), QDate(1925, 2, 1));
        box.clear();
        QTest::keyClicks(&box, u"1/2/1912"_s);
        QTest::keyClick(&box, Qt::Key_Return);
        QCOMPARE(box.date(), QDate(1912, 2, 1));
    }

    void tellsOfChangesOnce()
    {
        DateBox box;
        QSignalSpy changes(&box, &DateBox::dateChanged);
        box.setDate(QDate(1990, 2, 1));
        QCOMPARE(changes.size(), 1);
        box.setText(u"1 Feb 1990"_s); // the same day in other words
        QCOMPARE(changes.size(), 1);
        box.setText(u"1 Feb 199"_s);
        QCOMPARE(changes.size(), 2);
    }

    void twoDigitsHaveBeen_data()
    {
        // date: on 10 May 2024
        support::columns<QString, QDate>("typed", "date");
        QTest::newRow("today") << u"10/5/24"_s << QDate(2024, 5, 10);
        QTest::newRow("tomorrow") << u"11/5/24"_s << QDate(1924, 5, 11);
        QTest::newRow("some years ahead") << u"14/2/29"_s << QDate(1929, 2, 14);
        QTest::newRow("four digits are meant") << u"14/2/2029"_s << QDate(2029, 2, 14);
        QTest::newRow("leap day that has not been") << u"29/2/28"_s << QDate(1928, 2, 29);
    }

    void twoDigitsHaveBeen()
    {
        DateBox::setToday([] { return QDate(2024, 5, 10); });
        DateBox box;
        QFETCH(QString, typed);
        QTest::keyClicks(&box, typed + u'\r');
        QTEST(box.date().value_or(QDate()), "date");
        DateBox::setToday([] { return QDate(); });
    }

    void leavingABadOneSaysSo()
    {
        QTabWidget form;
        auto* page = new QWidget;
        auto* box = new DateBox(page);
        form.addTab(page, u"One"_s);
        form.addTab(new QLineEdit, u"Two"_s);
        form.show();
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        box->setDate(QDate(1990, 2, 1));
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, u"5 Jun"_s);
        const auto told = [&form] { return form.findChild<QLabel*>(u"CToolTip"_s) != nullptr; };
        QVERIFY(!told()); // not finished yet
        QTest::keyClick(box, Qt::Key_Tab);
        QVERIFY(told());
        QCOMPARE(box->text(), u"5 Jun"_s);
        QCOMPARE(DateBox::firstBad(&form), box);

        form.setCurrentIndex(1);
        box->askToMend();
        QCOMPARE(form.currentIndex(), 0);
        QVERIFY(box->hasFocus());
        QTest::keyClicks(box, u"-2001"_s);
        QVERIFY(!told());
        QVERIFY(!DateBox::firstBad(&form));
    }

    void calendarFillsTheField()
    {
        DateBox box;
        box.setDate(QDate(1990, 2, 1));
        box.show();
        QTest::keyClick(&box, Qt::Key_F4);
        auto* calendar = box.findChild<QCalendarWidget*>();
        QVERIFY(calendar);
        QCOMPARE(calendar->selectedDate(), QDate(1990, 2, 1));
        support::clickDay(calendar, 14);
        QCOMPARE(box.text(), u"14 Feb-1990"_s);
        QVERIFY(!QApplication::activePopupWidget());
    }
};

QTEST_MAIN(DateBoxTest)
#include "date_box_test.moc"
