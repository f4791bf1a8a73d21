#include <QtTest>

#include "letters/creator/letter_text.h"
#include "support/columns.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using formats::RichText;
using letters::LetterParts;
using letters::Recipient;

/// What a letter says, word by word.
class LetterTextTest final : public QObject {
    Q_OBJECT

private:
    const Recipient asha{1, u"Asha Oberoi"_s, u"Asha"_s,
        {u"12 Hill Road"_s, {}, u"Mumbai"_s, u"MH"_s, u"India"_s, u"400050"_s}, {}};
    const LetterParts letter{{u"Thank you."_s, {}, {}, u"All is well."_s, {}, {}},
        RichText::fromPlain(u"One.\n<<   City>>"_s), {u"Regards to all."_s, {}}, u"Yours Faithfully"_s,
        u"John"_s};
    const QString below = u"\t\tThank you.\n\t\tAll is well.\nOne.\n<<   City>>\n\n\t\tRegards to all.\n"
                          u"\t\tYours Faithfully\n\t\tJohn"_s;
    const QString ashasHead = u"Asha Oberoi\n12 Hill Road\nMumbai\nMH\nIndia\n400050\nDear   \tAsha\n"_s;

private Q_SLOTS:
    void composed()
    {
        QCOMPARE(letters::composedLetter(asha, letter).plain(), ashasHead + below);
        QCOMPARE(letters::composedLetter(letters::groupHead(), letter).plain(),
            u"<<Person Name>>\n<<\nAddress1>>\n<<    Address2>>\n<<   City>>\n<<   State>>\n<<Country>>\n"
            u"<<Pin>>\nDear \t\n"_s
                + below);
        QCOMPARE(letters::previewBody(letter), u"Thank you.\n\n\nAll is well.\n\n\nOne.\n<<   City>>\n"_s);
    }

    // A letter to several that was changed by hand: its head is filled, its text is left alone, and a name
    // that looks like a marker is a name.
    void merged()
    {
        RichText whole = letters::composedLetter(letters::groupHead(), letter);
        whole.paragraphs[0].runs[0].style.isBold = true;
        whole.paragraphs.prepend(RichText::fromPlain(u"1 May"_s).paragraphs[0]);
        const RichText ashas = letters::mergedLetter(whole, asha);
        QCOMPARE(ashas.plain(), u"1 May\n"_s + ashasHead + below);
        QVERIFY(ashas.paragraphs[1].runs[0].style.isBold);
        Recipient trap = asha;
        trap.name = u"<<   City>>"_s;
        QCOMPARE(letters::mergedLetter(whole, trap).paragraphs[1].plain(), trap.name);
        trap.address.line1 = u"1\n2\n3"_s;
        QCOMPARE(letters::mergedLetter(whole, trap).paragraphs.mid(2, 3),
            RichText::fromPlain(u"1\n2\n3"_s).paragraphs);
        const RichText added = RichText::fromPlain(u"<<Person Name>>,\nDear <<Person Name>>!\n<<Pin>>"_s);
        QCOMPARE(letters::mergedLetter(added, asha).plain(), u"Asha Oberoi,\nDear Asha Oberoi!\n<<Pin>>"_s);
    }

    // Whatever a person makes of the head, the address is printed once and the greeting as it was written.
    void handmadeGreeting()
    {
        Recipient trust{3, u"Dear Friends Trust"_s, u"all"_s, {}, {}};
        const RichText head = letters::letterHead(trust);
        RichText whole = letters::composedLetter(trust, letter);
        QCOMPARE(letters::belowHead(whole, head).plain(), below);
        QCOMPARE(letters::spokenTo(whole, head), u"all"_s);
        whole.paragraphs[1] = RichText::fromPlain(u"My friends"_s).paragraphs[0];
        QCOMPARE(letters::belowHead(whole, head).plain(), u"My friends\n"_s + below);
        QVERIFY(!letters::spokenTo(whole, head));
    }

    void otherHead()
    {
        RichText changed = letters::composedLetter(asha, letter);
        changed.append(RichText::fromPlain(u"PS: by hand"_s));
        Recipient ravi{2, u"Ravi"_s, u"Ravi"_s, {}, {}};
        const auto swapped
            = letters::withOtherHead(changed, letters::letterHead(asha), letters::letterHead(ravi));
        QCOMPARE(
            swapped.value_or(RichText()).plain(), u"Ravi\nDear   \tRavi\n"_s + below + u"\nPS: by hand"_s);
        changed.paragraphs.removeFirst();
        QVERIFY(!letters::withOtherHead(changed, letters::letterHead(asha), letters::letterHead(ravi)));
    }

    void familyGreeting_data()
    {
        support::columns<QString, QString>("values", "greeting");
        QTest::newRow("nobody") << u"null,'','  ',null"_s << u"  Say my Hello to all"_s;
        QTest::newRow("one") << u"null,'Tara',null,null"_s << u"  Say my Hello to Tara."_s;
        QTest::newRow("three") << u"'Ravi','Tara',null,'Om'"_s << u"  Say my Hello to Ravi, Tara & Om."_s;
    }
    void familyGreeting()
    {
        QFETCH(QString, values);
        support::TestBook book;
        book.data().execute(
            u"insert into cnt_main (name,Spouse,Kid1,Kid2,Kid3) values ('Asha',%1)"_s.arg(values));
        const jet::Recordset row = book.data().openRecordset(u"select * from cnt_main");
        QTEST(letters::familyGreeting(letters::familyNames(row)), "greeting");
    }
};

QTEST_GUILESS_MAIN(LetterTextTest)
#include "letter_text_test.moc"
