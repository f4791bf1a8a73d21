#include <QtTest>

#include "formats/card_file.h"
#include "support/columns.h"
#include "support/test_book.h"
#include "transfer/cards/visiting_card.h"

using namespace Qt::StringLiterals;
using transfer::readVisitingCard;

/// The screen's own reader of cards: exact beginnings, exact characters.
class VisitingCardTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lines_data()
    {
        // shown: the preview with its padding as it is; stored: column=value
        support::columns<QString, QString, QString>("line", "shown", "stored");
        const auto row = [](const char* name, const QString& line, const QString& shown,
                             const QString& stored) { QTest::newRow(name) << line << shown << stored; };
        const QString pad(40, u' ');
        const auto label = [&pad](const QString& text) { return (text + pad).left(40); };
        row("name view", u"N:First,Last;Mr.;"_s, label(u"Name View As: "_s) + u"First,Last;Mr.;"_s, {});
        row("full name", u"FN:Asha Rao"_s, label(u"Full Name "_s) + u"Asha Rao"_s, u"Name=Asha Rao"_s);
        row("upper case only", u"fn:Asha"_s, {}, {});
        row("nick", u"NICKNAME:Ash"_s, label(u"NICKNAME: "_s) + u"Ash"_s, u"nick=Ash"_s);
        row("firm", u"ORG:Tea & Co;Sales"_s,
            label(u"ORGANISATION: "_s) + u"Tea & Co|"_s + label(u"DEPARTMENT :"_s) + u"Sales"_s,
            u"Company=Tea & Co"_s);
        row("firm as this program writes it", u"ORG:Tea"_s, label(u"ORGANISATION: "_s) + u"Tea"_s,
            u"Company=Tea"_s);
        row("preferred mail", u"EMAIL;PREF;INTERNET:a@x"_s, label(u"Email: "_s) + u"a@x"_s, {});
        row("mail", u"EMAIL;INTERNET:b@x"_s, label(u"Email: "_s) + u"b@x"_s, {});
        row("spouse", u"SPOUSE:Ravi"_s, label(u"SPOUSE:"_s) + u"Ravi"_s, {});
        row("job", u"TITLE:Chef"_s, label(u"TITLE :"_s) + u"Chef"_s, u"Job_Title=Chef"_s);
        // Kept: shown from character 17, stored from 28, while the number begins at 16.
        row("work telephone", u"TEL;WORK;VOICE:0123456789ABCDEF"_s,
            label(u"PHONE(W):"_s) + u"123456789ABCDEF"_s, u"w_Ph1=CDEF"_s);
        row("home telephone, short", u"TEL;HOME;VOICE:0123"_s, label(u"PHONE(H):"_s) + u"123"_s, u"H_Ph1="_s);
        row("fax", u"TEL;WORK;FAX:0123456789ABCDEF"_s, label(u"FAX(W):"_s) + u"EF"_s, {});
        row("home fax", u"TEL;HOME;FAX:0123456789ABCDEF"_s, label(u"FAX(H):"_s) + u"EF"_s, {});
        row("mobile", u"TEL;CELL;VOICE:0123456"_s, label(u"MOBILE:"_s) + u"23456"_s, u"Mobile=23456"_s);
        row("office", u"ADR;WORK:;office;1 Lane ;Pune;MH;411;India"_s,
            label(u"Add(W)"_s) + u"1 Lane |"_s + label(u"City(W)"_s) + u"Pune|"_s + label(u"State(W)"_s)
                + u"MH|"_s + label(u"Zip(W)"_s) + u"411|"_s + label(u"Country(W)"_s) + u"India"_s,
            u"w_add1=1 Lane |w_city=Pune|w_State=MH|w_pin=411|w_country=India"_s);
        row("work without the office", u"ADR;WORK:;;1 Lane;Pune;MH;411;India"_s, {}, {});
        // Kept: the same character for all, so that six of the street are cut here and four below.
        row("home address", u"ADR;HOME:;;123456789;Pune;MH;411;India"_s,
            label(u"Add(H)"_s) + u"789|"_s + label(u"City(H)"_s) + u"Pune|"_s + label(u"State(H)"_s)
                + u"MH|"_s + label(u"Zip(H)"_s) + u"411|"_s + label(u"Country(H)"_s) + u"India"_s,
            u"h_add1=789|h_city=Pune|h_state=MH|h_pin=411|h_country=India"_s);
        row("street that is too short", u"ADR;POSTAL:;;ab;Pune;MH;411;India;x"_s,
            label(u"Add(O)"_s) + u"une|"_s + label(u"City(O)"_s) + u"MH|"_s + label(u"State(O)"_s) + u"411|"_s
                + label(u"Zip(O)"_s) + u"India|"_s + label(u"Country(O)"_s) + u"x"_s,
            u"b_add1=une|b_city=MH|b_state=411|b_pin=India|b_country=x"_s);
    }

    void lines()
    {
        QFETCH(QString, line);
        const transfer::VisitingCard card = readVisitingCard(u"BEGIN:VCARD\nVERSION:2.1\n"_s + line);
        QTEST(card.preview.join(u'|'), "shown");
        QStringList stored;
        for (const auto& [column, text] : card.values)
            stored << column.toString() + u'=' + text;
        QTEST(stored.join(u'|'), "stored");
    }

    void tooFewPartsEndTheReading()
    {
        const QString line = u"ADR;WORK:;office;1 Lane;Pune;MH"_s;
        const auto card = readVisitingCard(u"FN:a\r\n"_s + line + u"\r\nTITLE:Chef"_s);
        QCOMPARE(card.stoppedAt, line);
        QCOMPARE(card.preview.size(), 4);
        // So does the blank home address of a card of this program.
        const QString own = formats::contactCardLines({}).join(u"\r\n"_s);
        QVERIFY(readVisitingCard(own).stoppedAt.startsWith(u"ADR;HOME:"));
    }

    void ownCardComesBack()
    {
        support::TestBook book;
        formats::CardValues values;
        values.name = u"Asha O'Rao"_s;
        values.work = {u"wa1"_s, u"wa2"_s, u"wc"_s, u"ws"_s, u"wp"_s, u"wy"_s};
        values.home = {u"home street"_s, {}, u"hc"_s, {}, {}, u"hy"_s};
        values.postal = values.home;
        values.workPhones = {u"(022)-12345678901"_s, u"(022)-12345678902"_s, u"(022)-12345678903"_s};
        const auto card = readVisitingCard(formats::contactCardLines(values).join(u"\r\n"_s));
        QVERIFY(card.stoppedAt.isEmpty() && !card.isOfOthers);
        QVERIFY(transfer::addVisitingCard(book.data(), card));
        QCOMPARE(book.rows(u"select Name, w_add1, w_city, w_State, w_pin, w_country, w_Ph1, w_Ph2, w_ph3, "
                           u"h_country, First from cnt_main"_s),
            QStringList{u"Asha O'Rao|wa1 wa2|wc|ws|wp|wy|78901|78902|null|hy|null"_s});
        QCOMPARE(book.unexpected(), QString());
    }

    void othersAreTold()
    {
        QVERIFY(readVisitingCard(u"BEGIN:VCARD\nVERSION:3.0\nFN:a").isOfOthers);
        QVERIFY(readVisitingCard(u"BEGIN:VCARD\nVERSION:2.1\nBEGIN:VCARD").isOfOthers);
    }
};

QTEST_GUILESS_MAIN(VisitingCardTest)
#include "visiting_card_test.moc"
