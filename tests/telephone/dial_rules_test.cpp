#include <QtTest>

#include "support/columns.h"
#include "telephone/dialer/city_time.h"
#include "telephone/dialer/dial_prefixes.h"

using namespace Qt::StringLiterals;
using namespace telephone;

/// What is dialled before and for a number, and what time it is at the far end.
class DialRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void farEnd_data()
    {
        support::columns<QString, QString, QString, QString>("gmt", "difference", "now", "there");
        const auto row = [](const char* gmt, const char* difference, const char* now, const char* there) {
            QTest::addRow("%s at %s", gmt, now) << QString::fromLatin1(gmt) << QString::fromLatin1(difference)
                                                << QString::fromLatin1(now) << QString::fromLatin1(there);
        };
        row("+8:00", "+2:30", "09:20", "11:50 AM");
        row("+8:00", "+2:30", "10:29", "12:59 PM");
        row("+8:00", "+2:30", "09:30", "12:0 AM"); // the clock rolls over, the half of the day does not
        row("+8:00", "+2:30", "09:31", "12:1 PM");
        row("+8:00", "+2:30", "10:45", "1:15 PM");
        row("+8:00", "+2:30", "22:45", "1:15 AM");
        row("+9:00", "+3:30", "12:45", "4:15 AM"); // noon is 12 of the clock face
        row("+5:30", "+0:0", "15:05", "3:5 PM");
        row("+5:00", "-0:30", "15:45", "3:15 PM");
        row("+0:00", "-5:30", "20:45", "3:15 PM");
        row("+0:00", "-5:30", "20:10", "2:40 PM");
        row("+0:00", "-5:30", "15:45", "10:15 AM");
        row("+0:00", "-5:30", "15:10", "9:40 AM");
        row("+0:00", "-5:30", "17:10", "0:0 PM"); // an equal hour
        row("+0:00", "-5:30", "20:30", "0:0 PM"); // an equal minute
        row("-3:30", "-9:0", "22:15", "1:15 PM");
        row("-5:00", "-10:30", "11:45", "1:15 AM");
        for (const char* nothing : {"", "abc", "+5", "-13:00", "+15:00", "+5:xx", "5:30", ":", "+:", "+1:75"})
            row(nothing, "", "09:00", "");
    }
    void farEnd()
    {
        QFETCH(QString, gmt);
        QFETCH(QString, difference);
        QFETCH(QString, now);
        QFETCH(QString, there);
        QCOMPARE(differenceFromIndia(gmt), difference);
        const std::optional<TimeDifference> read = readDifference(difference);
        QCOMPARE(read.has_value(), !there.isEmpty());
        if (read)
            QCOMPARE(farEndTime(*read, QTime::fromString(now, u"HH:mm"_s)), there);
    }

    void night()
    {
        const std::pair<const char16_t*, bool> times[] = {{u"9:59 PM", false}, {u"10:0 PM", true},
            {u"12:30 PM", true}, {u"12:30 AM", false}, {u"1:0 AM", true}, {u"06:59 AM", true},
            {u"7:0 AM", false}, {u"0:0 PM", false}, {u"0:5 AM", false}, {u"", false}};
        for (const auto& [time, isAsleep] : times)
            QCOMPARE(isNight(QStringView(time)), isAsleep);
        QCOMPARE(timeHere(QTime(0, 5)), u"12:05 AM"_s);
        QCOMPARE(nightQuestion(u"1:0 AM", u" - Oslo"_s, u"Asha %2"_s),
            u"It is night time in ' - Oslo'. 'Asha %2' might be asleep. Are you sure, you want to call"_s);
        QVERIFY(nightQuestion(u"11:0 PM", u" - Oslo"_s, u"Asha"_s).contains(u"' - Oslo'.'Asha' might"_s));
    }

    void prefixes_data()
    {
        support::columns<QString, QString>("code", "offered");
        QTest::newRow("none") << u""_s << u"0,9,9"_s;
        QTest::newRow("one part, once") << u"022"_s << u"022,0,9,9"_s;
        QTest::newRow("two parts") << u"91-22"_s << u"91-22,91,22,0,9,9"_s;
        QTest::newRow("three parts, not the first") << u"00-91-22"_s << u"00-91-22,91,0,9,9"_s;
        QTest::newRow("one of the settings again") << u"9"_s << u"9,0,9,9"_s;
    }
    void prefixes()
    {
        QFETCH(QString, code);
        const QHash<QString, QString> settings{
            {u"Prefix1"_s, u"0"_s}, {u"Prefix3"_s, u"9"_s}, {u"PBX"_s, u"9"_s}};
        const auto contact = [&code](QStringView column) { return column == u"W_std" ? code : QString(); };
        QTEST(offeredPrefixes(NumberKind::W, contact,
                  [&](QStringView column) { return settings.value(column.toString()); })
                  .join(u','),
            "offered");
    }

    // Each column says its own name, so that it can be seen which ones were paired.
    void codesOfNumbers()
    {
        const auto contact = [](QStringView column) { return u'<' + column.toString() + u'>'; };
        QStringList clicked;
        for (int place = 0; place < 11; ++place)
            clicked << clickedNumber(place, contact);
        QCOMPARE(clicked.mid(2, 2).join(u' '), u"<h_std><h_ph3> <B_std><w_Ph1>"_s);
        QCOMPARE(clicked.mid(5, 2).join(u' '), u"<B_std><w_ph3> <W_std><B_Ph1>"_s);
        QCOMPARE(clicked.mid(9).join(u' '), u"0<Mobile> 0<SP_Mobile>"_s);
        QCOMPARE(offeredNumbers(NumberKind::B, contact).join(u' '),
            u"<B_Ph1> <B_Ph2> <B_ph3> <Mobile> <SP_Mobile>"_s);

        const std::tuple<const char16_t*, const char16_t*, NumberKind> tags[]
            = {{u"Asha-H2  ", u"h_std", NumberKind::Home}, {u"Asha-W1", u"W_std", NumberKind::W},
                {u"Asha-B3", u"B_std", NumberKind::B}, {u"Asha-Mob", u"", NumberKind::None},
                {u"Asha-H4", u"h_std", NumberKind::None}, {u"1", u"h_std", NumberKind::None}};
        for (const auto& [caption, code, kind] : tags) {
            QCOMPARE(slotTag(QString::fromUtf16(caption)).code, QStringView(code));
            QCOMPARE(slotTag(QString::fromUtf16(caption)).kind, kind);
        }
        QCOMPARE(memoryNumber(u" "_s, u"55"_s), u"55"_s);
        QCOMPARE(memoryNumber(u" 22 "_s, u"55"_s), u"22-55"_s);
        QCOMPARE(telephoneAddress(u" (+91) 22-5+5 x;ext=1"_s), u"+9122551"_s);
    }
};

QTEST_GUILESS_MAIN(DialRulesTest)
#include "dial_rules_test.moc"
