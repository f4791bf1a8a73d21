#include <QtTest>
#include <QtWidgets>

#include "formats/rtf_reader.h"
#include "letters/creator/FrmEmailInsert.h"
#include "letters/creator/FrmGrpLetter.h"
#include "letters/creator/FrmLetter.h"
#include "output/preview/FrmReportViewer.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using platform::Answer;
using support::click;
using support::type;

namespace {

const QString kReplace
    = u"Do you want to replace the text that you have written by the stored text \"Thanks\"?"_s;
const QString kAnew
    = u"Do you want to compose the letter anew? What you have changed in it by hand is lost."_s;
const QString kSave = u"You did not  save the changes, Wish to save? "_s;
const QString kLetters = u"select person,city,open1,[desc],Closing,Mailtype,type1,type2,[Year],category1 "
                         "from cnt_letters order by id"_s;

} // namespace

/// Letters as a person writes them.
class LetterCreatorTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        f = std::make_unique<support::ScreenFixture>(support::TestBook::Rows::Sample);
        f->execute(u"update cntb_setup set ltrtojrnl=1"_s);
        f->execute(u"delete * from cnt_letters"_s);
        s = f->open<letters::FrmLetter>(u"FrmLetter"_s);
    }
    void cleanup() { QCOMPARE(f->verify(), QString()); }

    // From the name to the kept letter, and back again.
    void toOnePerson()
    {
        type(s, u"DBCperson"_s, u"Rahul Sharma"_s);
        QTest::keyClick(s->findChild<QComboBox*>(u"DBCperson"_s), Qt::Key_Return);
        support::choose(s, u"Combo1"_s, u"Home"_s);
        type(s, u"txtfirst"_s, u"Rahul"_s);
        type(s, u"DBCop1"_s, u"Don't worry."_s);
        support::choose(s, u"cmbcaption"_s, u"Thanks"_s);
        QTRY_VERIFY(whole().contains(u"Maharashtra\nIndia\n400001\nDear   \tRahul\n\t\tDon't worry.\n"
                                     "Thank you very much.\n\n\t\tYours Faithfully"));
        support::choose(s, u"DBCgrp"_s, u"Formal"_s);
        s->findChild<QTextEdit*>(u"txtdetails"_s)->selectAll();
        QTest::keyClicks(s->findChild<QTextEdit*>(u"txtdetails"_s), u"All my own."_s);
        f->boxes.expect(kReplace, Answer::No);
        support::choose(s, u"cmbcaption"_s, u"Thanks"_s);
        QVERIFY(s->isTouched());
        act(u"Save"_s);
        QCOMPARE(f->book.rows(kLetters),
            QStringList{u"Rahul Sharma|Mumbai|Don't worry.|All my own.|Yours Faithfully|Formal|Sent|Personal|"
                        "2024|Business"_s});
        QCOMPARE(f->book.rows(u"select JDate,Priority,categ1,categ2,[desc],person1 from OV_JOURNAL where "
                              "Priority='3' and person1='Rahul'"_s),
            QStringList{u"2024-03-15|3|Letters|Sent|Sent Thanks Letter to Rahul|Rahul"_s});
        QVERIFY(!s->isTouched());
        const QString kept = whole();
        act(u"NewLetter"_s);
        QVERIFY(!whole().contains(u"Rahul"));
        f->execute(u"update cntb_setup set ltrtojrnl=0"_s);
        QVERIFY(s->showLetter(newest()));
        QCOMPARE(whole(), kept);
        QVERIFY(!s->findChild<QWidget*>(u"HandmadeStrip"_s)->isVisible());
        act(u"Save"_s);
        QCOMPARE(f->book.rows(u"select count(*) from OV_JOURNAL where Priority='3' and person1='Rahul'"_s),
            QStringList{u"1"_s});
    }

    void toSeveral()
    {
        act(u"Select Recipients"_s);
        support::choose(s, u"CmbPeopleOf"_s, u"Mailing list"_s);
        support::choose(s, u"CmbPeopleGroup"_s, u"Diwali"_s);
        click(s, u"CmdPickAll"_s);
        click(s, u"CmdPicked"_s);
        QTRY_VERIFY(whole().startsWith(u"<<Person Name>>\n<<\nAddress1>>\n"));
        s->findChild<QTabWidget*>(u"LetterPages"_s)->setCurrentIndex(1);
        auto* text = s->findChild<QTextEdit*>(u"RText"_s);
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, u" PS"_s);
        type(s, u"DBCop1"_s, u"Hello."_s); // no longer goes into it
        act(u"Save"_s);
        QCOMPARE(f->book.rows(u"select PerId,city,Merged like '*Dear*"_s + u"\t"_s
                     + u"Priya Mehta*PS' from cnt_letters order by id"_s),
            (QStringList{u"3|Pune|true"_s, u"1|Mumbai|false"_s}));
        QVERIFY(!whole().contains(u"Hello."));
        f->boxes.expect(kAnew, Answer::No);
        click(s, u"CmdCompose"_s);
        QVERIFY(whole().endsWith(u" PS"));
        f->boxes.expect(kAnew, Answer::Yes);
        click(s, u"CmdCompose"_s);
        QVERIFY(!whole().endsWith(u" PS") && whole().contains(u"Hello."));
        f->screens.add<output::FrmReportViewer>(u"FrmReportViewer"_s);
        act(u"Style2"_s);
        QCOMPARE(f->book.rows(u"select person,city,zip,Body from rptletter order by person"_s),
            (QStringList{u"Priya Mehta|Pune|411004|Hello.\n\n\n\n\n\n\n"_s,
                u"Rahul Sharma|Mumbai|400001|Hello.\n\n\n\n\n\n\n"_s}));
        QVERIFY(f->frame.placed.contains(u"FrmReportViewer"_s));
    }

    // What was changed by hand keeps its place below another address.
    void anotherReaderOfAHandmadeLetter()
    {
        s->showContact(1);
        s->findChild<QTabWidget*>(u"LetterPages"_s)->setCurrentIndex(1);
        auto* text = s->findChild<QTextEdit*>(u"RText"_s);
        text->moveCursor(QTextCursor::End);
        QTest::keyClicks(text, u" PS"_s);
        QVERIFY(s->showContact(4)); // an apostrophe in the name
        QVERIFY(whole().startsWith(u"Sean O'Brien\nLondon\n") && whole().endsWith(u" PS"));
        f->execute(u"update cnt_main set h_city='Cork' where id=4"_s);
        f->screens.tellBookChanged();
        QVERIFY(whole().startsWith(u"Sean O'Brien\nCork\n") && whole().endsWith(u" PS"));
        text->moveCursor(QTextCursor::Start);
        QTest::keyClicks(text, u"To "_s);
        f->boxes.expect(kAnew, Answer::No);
        s->showContact(1);
        QVERIFY(whole().startsWith(u"To Sean O'Brien"));
        QVERIFY(s->isTouched());
    }

    void closedWithoutBeingSaved()
    {
        s->showContact(4);
        QVERIFY(s->mayClose());
        QTest::keyClicks(s->findChild<QTextEdit*>(u"txtdetails"_s), u"Nearly lost"_s);
        type(s, u"txtadd1"_s, u"2 Own Street"_s);
        type(s, u"note"_s, u"Send it soon"_s);
        f->boxes.expect(kSave, Answer::No);
        QVERIFY(s->mayClose());
        f->screens.unload(u"FrmLetter"_s);
        s = static_cast<letters::FrmLetter*>(f->screens.load(u"FrmLetter"_s));
        f->screens.show(u"FrmLetter"_s);
        QVERIFY(whole().startsWith(u"Sean O'Brien\n2 Own Street\n") && whole().contains(u"Nearly lost"));
        f->boxes.expect(kSave, Answer::Yes);
        QVERIFY(s->mayClose());
        QCOMPARE(f->book.rows(u"select [desc],note,PerId from cnt_letters"_s),
            QStringList{u"Nearly lost|Send it soon|4"_s});
    }

    // A name that was only typed may be that of several.
    void namesakes()
    {
        f->execute(u"insert into cnt_main (name,h_city) values ('Rahul Sharma','Pune')"_s);
        type(s, u"DBCperson"_s, u"Rahul Sharma"_s);
        f->boxes.expect(u"Several people have this name, and all of them are in the list now. Take those off "
                        "it whom you do not mean, and try again."_s);
        act(u"Save"_s);
        QCOMPARE(f->book.firstText(u"select count(*) from cnt_letters"_s), u"0"_s);
    }

    void looksAreKeptInAFile()
    {
        s->showContact(1);
        auto* text = s->findChild<QTextEdit*>(u"txtdetails"_s);
        text->setFontWeight(QFont::Bold);
        QTest::keyClicks(text, u"Loud"_s);
        act(u"Save"_s);
        const QString path = f->book.firstText(u"select path from cnt_letters"_s);
        QCOMPARE(path, u"C:\\OVUserfiles\\Letters\\Rahul Sharma.rtf"_s);
        act(u"NewLetter"_s);
        QVERIFY(s->showLetter(newest()));
        text->moveCursor(QTextCursor::End);
        QCOMPARE(text->fontWeight(), int(QFont::Bold));
        QFile::remove(f->drive.local(path));
        QVERIFY(s->showLetter(newest()));
        QVERIFY(whole().contains(u"\nLoud\n"));
    }

    void files()
    {
        f->execute(u"insert into cnt_main (name) values ('Rahul Sharma')"_s);
        type(s, u"DBCperson"_s, u"Rahul Sharma"_s); // both of them
        QTest::keyClick(s->findChild<QComboBox*>(u"DBCperson"_s), Qt::Key_Return);
        click(s, u"CmdFiles"_s);
        const QDir folder(f->drive.local(u"C:\\OVUserfiles\\Letters"));
        const QStringList both{u"Rahul Sharma (2).rtf"_s, u"Rahul Sharma.rtf"_s};
        QCOMPARE(folder.entryList(QDir::Files), both);
        const auto text = formats::readRtf(support::bytesOf(folder.filePath(both[1])));
        QVERIFY(text && text->plain().startsWith(u"Mar-15-2024\nRahul Sharma\n12 Marine Drive\n"));
        type(s, u"DBCperson"_s, u"A / B"_s); // not in the book
        click(s, u"CmdAddPerson"_s);
        f->boxes.answerAll(Answer::No);
        const support::FullDisk full(100);
        click(s, u"CmdFiles"_s);
        QVERIFY2(f->boxes.shown.last().contains(
                     u"\nWritten: none.\nNot written: Rahul Sharma, Rahul Sharma, A / B."),
            qPrintable(f->boxes.shown.last()));
        QCOMPARE(folder.entryList(QDir::Files), both);
    }

    void throughTheWordProcessor()
    {
        s->takeContacts({1, 4}, {});
        type(s, u"DBCop1"_s, u"Hello."_s);
        act(u"SaveasWord"_s);
        QCOMPARE(f->wordProcessor.data,
            (QStringList{u"C:\\DataDoc.doc"_s, u"Name, Address1, Address2,City,State,Zip,Country"_s,
                u"Rahul Sharma|12 Marine Drive|Churchgate|Mumbai|Maharashtra|400001|India"_s,
                u"Sean O'Brien|||London|||United Kingdom"_s}));
        QCOMPARE(f->wordProcessor.typed,
            u"Dear «Name»     \n«Address1»\n«Address2»\n«City»,\n«State»-\n«Zip»\n\t\tHello.\n\n\n"
            "\t\tYours Faithfully\n\t\tAsha Rao\n"_s);
        QCOMPARE(f->wordProcessor.merged, QStringList{u"C:\\ovuserfilkes\\Letters 15-Mar-2024"_s});
        const auto letter = formats::readRtf(support::bytesOf(f->drive.local(u"C:\\Letter.rtf")));
        QVERIFY(letter && letter->plain().startsWith(u"Letter Creator - 15-Mar-2024\nRahul Sharma\n"));
        QVERIFY(f->drive.exists(u"C:\\Journal.rtf"));
        f->wordProcessor.isThere = false; // nothing is said
        act(u"Mailmerge"_s);
        QCOMPARE(f->wordProcessor.shows, 1);
    }

    void asADatabase()
    {
        s->takeContacts({1, 4}, {});
        const QString file = f->root.filePath(u"My.mdb"_s);
        f->execute(u"update cnt_main set h_add1='1, \"Rose\"' where id=4"_s);
        s->takeContacts({4}, {});
        for (int time = 0; time < 2; ++time) {
            f->boxes.expectChoice(u"Save the letters as a database of this program"_s, file);
            act(u"SaveasAccess"_s);
        }
        jet::Database made;
        QCOMPARE(made.open(file), jet::Database::OpenResult::Opened);
        QCOMPARE(support::TestBook::rowsOf(made.openRecordset(u"select Address,User1 from List")),
            QStringList{u"Sean O'Brien\n1, \"Rose\"\nLondon\nUnited Kingdom|Sean O'Brien"_s});
        QVERIFY(
            support::bytesOf(f->root.filePath(u"My.csv"_s)).contains("\"Sean O'Brien\n1, \"\"Rose\"\"\n"));
        QVERIFY(f->drive.exists(u"C:\\OVUserFiles\\Letter.mdb"));
    }

    void phrases()
    {
        f->execute(u"insert into Cnt_Emailinsert (head,Description) values ('Thanks','Much obliged.')"_s);
        auto* phrases = f->open<letters::FrmEmailInsert>(u"FrmEmailInsert"_s);
        f->shared.CallerForm = u"Letter"_s;
        support::type(phrases, u"txtFind"_s, u"obliged"_s);
        support::doubleClickRow(phrases->findChild<widgets::HeadingGrid*>(u"Grid1"_s), 0, 1);
        QCOMPARE(s->findChild<QTextEdit*>(u"txtdetails"_s)->toPlainText(), u"Much obliged."_s);
        QCOMPARE(f->shared.CallerForm, QString());
    }

    void onAnOccasion()
    {
        f->execute(
            u"insert into CNT_LETTERCONTENT (ltCaption,ltcontent,emil_ltr) values ('Birthday','Hurrah!','Both')"_s);
        s->showContact(1);
        s->openPage(u"Birthday2"_s);
        click(s, u"CmdGreeting"_s);
        QTRY_VERIFY(whole().contains(u"\nHurrah!\n  Say my Hello to "));
    }

    // Only those with a tick get the letter to the members of a list.
    void toMembersOfAList()
    {
        auto* group = f->open<letters::FrmGrpLetter>(u"FrmGrpLetter"_s);
        QVERIFY(group->takeContacts({1, 2, 3}, u"Diwali"_s));
        QTRY_VERIFY(group->findChild<QTextEdit*>(u"RText"_s)->toPlainText().startsWith(u"<<Person Name>>"));
        support::clickRow(group->findChild<widgets::HeadingGrid*>(u"list1"_s), 1, 0);
        group->findChild<QAction*>(u"Save"_s)->trigger();
        QCOMPARE(f->book.rows(u"select person,type2 from cnt_letters order by id"_s),
            (QStringList{u"Rahul Sharma|Group"_s, u"Priya Mehta|Group"_s}));
    }

    // A newcomer writes to somebody who is not in the book.
    void toAStranger()
    {
        type(s, u"DBCperson"_s, u"D'Arcy"_s);
        type(s, u"txtadd1"_s, u"1 Mill Lane"_s);
        QVERIFY(s->isTouched());
        f->boxes.expect(
            u"You have typed an address by hand. Do you want to write to somebody else instead?"_s,
            Answer::No);
        QVERIFY(!s->showContact(1));
        act(u"Save"_s);
        QCOMPARE(f->book.rows(u"select PerId,person,Add1,Merged like 'D''Arcy*' from cnt_letters"_s),
            QStringList{u"0|D'Arcy|1 Mill Lane|true"_s});
    }

private:
    QString whole() const { return s->findChild<QTextEdit*>(u"RText"_s)->toPlainText(); }
    qint64 newest() { return f->book.firstText(u"select max(id) from cnt_letters"_s).toLongLong(); }
    void act(const QString& tool) { s->findChild<QAction*>(tool)->trigger(); }

    std::unique_ptr<support::ScreenFixture> f;
    letters::FrmLetter* s = nullptr;
};

QTEST_MAIN(LetterCreatorTest)
#include "letter_creator_test.moc"
