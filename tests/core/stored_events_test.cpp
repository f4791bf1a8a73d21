#include <QtTest>

#include "core/journal.h"
#include "core/record_steps.h"
#include "core/scheduler_rows.h"
#include "support/columns.h"
#include "support/scripted_boxes.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace core;
using platform::Answer;

/// The shared routines that write rows for other screens, and those that walk through a list.
class StoredEventsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<support::TestBook>(); }

    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    void journalIsWrittenOnceAnOrigin()
    {
        JournalEntry entry{u"Letters"_s, u"Sent"_s, u"It's a letter"_s, QDate(2024, 2, 29), u"L-7"_s,
            u"Letter"_s, u"Word"_s};
        SaveJournal(m_book->data(), entry);
        entry.fromId = u"L-8"_s;
        SaveJournal(m_book->data(), entry);
        entry.fromId = u"l-7"_s; // keys know no case
        entry.description = u"again"_s;
        entry.date = QDate(2024, 3, 1);
        SaveJournal(m_book->data(), entry);
        QCOMPARE(
            m_book->rows(
                u"select fromId,JDate,Priority,categ1,categ2,[desc],Source,Subsource,person1 from OV_JOURNAL order by fromId"_s),
            (QStringList{u"L-7|2024-03-01|4|Letters|Sent|again|Letter|Word|null"_s,
                u"L-8|2024-02-29|4|Letters|Sent|It's a letter|Letter|Word|null"_s}));
    }

    void journalOfABrokenOrigin()
    {
        m_book->expectFailure(u"O'Neil"_s);
        SaveJournal(m_book->data(), {{}, {}, u"lost"_s, QDate(2024, 1, 1), u"O'Neil"_s, {}, {}});
        QCOMPARE(m_book->rows(u"select * from OV_JOURNAL"_s), QStringList());
    }

    void schedulerRows_data()
    {
        support::columns<ScheduledDates, int, QStringList>("dates", "year", "rows");
        ScheduledDates plain;
        plain.id = 17;
        plain.first = u"Asha"_s;
        plain.last = u"Rao"_s;
        plain.birthday = QDate(1980, 5, 1);
        ScheduledDates unborn = plain;
        unborn.birthday = {};
        QTest::newRow("a birthday row also without a birthday")
            << unborn << 2024 << QStringList(3, u"Birthday  17Bd Birthday of Asha Rao"_s);

        ScheduledDates leap = plain;
        leap.birthday = QDate(2000, 2, 29);
        QTest::newRow("29 February is kept on the 28th in other years")
            << leap << 2023
            << QStringList{u"Birthday 28-Feb-2023 17Bd Birthday of Asha Rao"_s,
                   u"Birthday 29-Feb-2024 17Bd Birthday of Asha Rao"_s,
                   u"Birthday 28-Feb-2025 17Bd Birthday of Asha Rao"_s};

        const auto inEachYear = [](const QStringList& rows) {
            QStringList all;
            for (const QString& year : {u"2024"_s, u"2025"_s, u"2026"_s}) {
                for (const QString& row : rows)
                    all << QString(row).replace(u"YEAR"_s, year);
            }
            return all;
        };
        ScheduledDates dated = plain;
        dated.spouseBirthday = QDate(1981, 6, 2);
        for (int kid = 0; kid < 3; ++kid)
            dated.kidBirthdays[kid] = QDate(2010 + kid, 7 + kid, 3);
        QTest::newRow("spouse and kids only when named")
            << dated << 2024 << inEachYear({u"Birthday 01-May-YEAR 17Bd Birthday of Asha Rao"_s});

        ScheduledDates family = dated;
        family.spouse = u"Ravi"_s;
        family.kids[0] = u"Ann"_s;
        family.kids[1] = u"Bo"_s;
        family.kids[2] = u"Cy"_s;
        QTest::newRow("five birthdays, each with its own date")
            << family << 2024
            << inEachYear({u"Birthday 01-May-YEAR 17Bd Birthday of Asha Rao"_s,
                   u"Birthday 02-Jun-YEAR  Birthday of Spouse Asha Rao"_s,
                   u"Birthday 03-Jul-YEAR  Birthday of Kid Asha Rao"_s,
                   u"Birthday 03-Aug-YEAR  Birthday of Kid Asha Rao"_s,
                   u"Birthday 03-Sep-YEAR  Birthday of Kid Asha Rao"_s});

        ScheduledDates married = dated;
        married.anniversary = QDate(2005, 12, 24);
        QTest::newRow("the anniversary's day comes from the third kid")
            << married << 2024
            << inEachYear({u"Birthday 01-May-YEAR 17Bd Birthday of Asha Rao"_s,
                   u"Anniversary 03-Sep-YEAR 17An Anniversary of Asha Rao"_s});

        married.kidBirthdays[2] = {};
        QTest::newRow("an anniversary without a third kid has no day")
            << married << 2024
            << inEachYear({u"Birthday 01-May-YEAR 17Bd Birthday of Asha Rao"_s,
                   u"Anniversary  17An Anniversary of Asha Rao"_s});
    }

    void schedulerRows()
    {
        QFETCH(ScheduledDates, dates);
        QFETCH(int, year);
        QStringList rows;
        for (const SchedulerRow& row : core::schedulerRows(dates, year)) {
            rows << QStringList{row.kind, row.date, row.origin, row.description}.join(u' ');
            QCOMPARE(row.person, u"Asha Rao"_s);
        }
        QTEST(rows, "rows");
    }

    void schedulerRowsAreStored()
    {
        addSchedulerRows(m_book->data(),
            {{u"Anniversary"_s, {}, u"Anniversary of D'Arcy"_s, u"D'Arcy"_s, u"3An"_s},
                {u"Birthday"_s, u"02-Jun-2024"_s, u"Birthday of Spouse A B"_s, u"A B"_s, {}}});
        QCOMPARE(
            m_book->rows(
                u"select Done,categ1,[Date],Priority,Type,person,[desc],Frm,b_a_id from ovs_schedular order by categ1"_s),
            (QStringList{u"false|Anniversary|null|2|Anniversary|D'Arcy|Anniversary of D'Arcy|Contact|3An"_s,
                u"false|Birthday|02-Jun-2024|2|Birthday|A B|Birthday of Spouse A B|Contact|null"_s}));
    }

    void steps()
    {
        support::ScriptedBoxes boxes;
        jet::Recordset rows = m_book->data().openRecordset(u"select * from cnt_main"_s);
        QCOMPARE(positionText(rows), QString());
        DeleteCurrent(rows, boxes, {}); // asks nothing where there is nothing
        for (const QString& name : {u"A"_s, u"B"_s})
            QVERIFY(m_book->data().execute(u"insert into cnt_main (name) values ('"_s + name + u"')"_s));
        rows = m_book->data().openRecordset(u"select * from cnt_main order by name"_s);
        QCOMPARE(positionText(rows), u"1 of 2"_s);
        boxes.expect(u"You are on the first record"_s);
        PrevRecord(rows, boxes, u"Orvane Contacts"_s);
        QCOMPARE(rows.textOrEmpty(u"name"), u"A"_s);
        NextRecord(rows, boxes, u"Orvane Contacts"_s);
        QCOMPARE(positionText(rows), u"2 of 2"_s);
        boxes.expect(u"You are on the last record"_s);
        NextRecord(rows, boxes, u"Orvane Contacts"_s);
        QCOMPARE(rows.textOrEmpty(u"name"), u"B"_s);
        PrevRecord(rows, boxes, u"Orvane Contacts"_s);
        QCOMPARE(positionText(rows), u"1 of 2"_s);
        QCOMPARE(boxes.shown,
            (QStringList{
                u"warning: You are on the first record"_s, u"warning: You are on the last record"_s}));
        NextRecord(rows, boxes, u"Orvane Contacts"_s);
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            QCOMPARE(m_book->rows(u"select name from cnt_main"_s).size(), 2);
            boxes.expect(u"Are you sure you want to delete the record ? "_s, answer);
            DeleteCurrent(rows, boxes, u"Orvane Contacts"_s);
        }
        QCOMPARE(m_book->rows(u"select name from cnt_main"_s), QStringList{u"A"_s});
        QCOMPARE(boxes.titles, QStringList(4, u"Orvane Contacts"_s));
        QCOMPARE(boxes.verify(), QString());
    }

private:
    std::unique_ptr<support::TestBook> m_book;
};

Q_DECLARE_METATYPE(core::ScheduledDates)
QTEST_GUILESS_MAIN(StoredEventsTest)
#include "stored_events_test.moc"
