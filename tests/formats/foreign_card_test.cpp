#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QtTest>

#include "formats/card_slots.h"
#include "formats/card_writer.h"
#include "support/columns.h"

using namespace Qt::StringLiterals;
using namespace formats;

namespace {

const CardColumns& columns()
{
    static const CardColumns all = [] {
        QFile file(QStringLiteral(ORVANE_SOURCE_DIR "/data/schema.csv"));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no schema");
        return CardColumns(*jet::Schema::fromCsv(file.readAll()).table(u"cnt_main"), {u"First,Last"_s});
    }();
    return all;
}

std::vector<ForeignCard> cardsOf(QByteArray bytes, const CardLimits& limits = {})
{
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    ForeignCardReader reader(file, {}, limits);
    std::vector<ForeignCard> cards;
    while (auto card = reader.next())
        cards.push_back(std::move(*card));
    return cards;
}

/// "column=value" of each value, with " | " between, and what is left as "!why".
QString shown(const CardContact& contact)
{
    QStringList texts;
    for (const CardContact::Value& value : contact.values)
        texts << value.column + u'=' + value.text;
    for (const QString& left : contact.left)
        texts << u'!' + left;
    if (!contact.photo.isEmpty())
        texts << u"photo="_s + QString::number(contact.photo.size());
    return texts.join(u" | "_s);
}

QString shown(const QByteArray& body, const char* version)
{
    QByteArray bytes = "BEGIN:VCARD\nVERSION:" + QByteArray(version) + '\n' + body + "\nEND:VCARD\n";
    const auto cards = cardsOf(bytes.replace("\n", "\r\n"));
    return cards.size() == 1 ? shown(contactOf(cards[0], columns())) : QString::number(cards.size());
}

const QByteArray kPicture = "\xff\xd8\xff\xe0" + QByteArray(200, 'p');

} // namespace

/// Cards as other programs write them, each trap judged value by value, and whole contacts there and back.
class ForeignCardTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void values_data();
    void values();
    void encodings_data();
    void encodings();
    void everyColumnReturns_data();
    void everyColumnReturns();
    void manyCards();
    void whatIsTooLong();
    void longCardTakesItsTimeOnly();
};

void ForeignCardTest::values_data()
{
    support::columns<QByteArray, QByteArray, QString>("version", "body", "shown");
    const auto row = [](const char* name, const char* version, const QByteArray& body, const QString& text) {
        QTest::newRow(name) << QByteArray(version) << body << text;
    };
    row("parts of the name", "3.0", "N:Rao;Asha;Kumari;Dr.;MSc\nFN:Dr. Asha Rao",
        u"Last=Rao | First=Asha | Mid=Kumari | Title=Dr. | Name=Dr. Asha Rao | memo1=Name suffix: MSc"_s);
    row("telephones fill their places in order", "3.0",
        "TEL;TYPE=WORK:1\nTEL:2\nTEL;TYPE=HOME,PREF:3\nTEL;TYPE=cell:4\nTEL;TYPE=CELL:5\nTEL;TYPE=HOME,FAX:6",
        u"B_Ph1=1 | H_Ph1=3 | Mobile=4 | fax=6 | h_ph2=2 | memo1=Telephone (cell): 5"_s);
    row("the fourth at home and a pager", "2.1",
        "TEL;HOME:1\nTEL;HOME:2\nTEL;HOME:3\nTEL;HOME;VOICE:4\nTEL;PAGER:5",
        u"H_Ph1=1 | h_ph2=2 | h_ph3=3 | memo1=Telephone (home): 4\nTelephone (pager): 5"_s);
    row("telephone as an address", "4.0", "TEL;VALUE=uri;TYPE=\"voice,home\":tel:+91-22-1",
        u"H_Ph1=+91-22-1"_s);
    row("mail", "3.0",
        "EMAIL:a@x\nEMAIL;TYPE=WORK:b@x\nEMAIL;TYPE=HOME:c@x\nitem1.EMAIL:d@x\nitem1.X-ABLabel:Club",
        u"b_email1=b@x | H_email1=c@x | h_email2=a@x | b_email2=d@x | memo1=E-mail (Club): d@x"_s);
    row("groups with labels", "3.0",
        "item1.URL:http://a\nitem1.X-ABLabel:_$!<HomePage>!$_\nitem2.X-ABDATE:2001-02-03\n"
        "item2.X-ABLabel:_$!<Anniversary>!$_\nitem3.X-ABRELATEDNAMES:Ravi\nitem3.X-ABLabel:_$!<Spouse>!$_\n"
        "item4.X-ABLabel:Alone",
        u"h_web=http://a | Anniv=2001-02-03 | Spouse=Ravi | memo1=Label: Alone"_s);
    row("address with box and floor", "3.0",
        "ADR;TYPE=HOME:Box 5;Flat 2;1 Lane\\, East\\nUpper;Pune;MH;411;India",
        u"h_add1=1 Lane, East | h_add2=Upper, Flat 2, Box 5 | h_city=Pune | h_state=MH | h_pin=411 | "
        "h_country=India"_s);
    row("third work address", "4.0",
        "ADR;TYPE=work:;;a;;;;\nADR;TYPE=work;LABEL=\"x^ny\":;;b;;;;\nADR;TYPE=work:;;c;d;;;",
        u"b_add1=a | w_add1=b | memo1=Address (work), label: x\ny\nAddress (work): c, d"_s);
    row("two in one house", "3.0", "ORG:Tea & Co;Sales;North\nTITLE:Chef\nTITLE:Cook\nROLE:Boss",
        u"Company=Tea & Co | Job_Title=Chef | memo1=Department: Sales\nDepartment: North\nJob title: Cook\n"
        "Role: Boss"_s);
    row("mark of byte order", "3.0", "NOTE:a\xEF\xBB\xBF", u"memo1=a"_s);
    row("birthday of no year", "3.0", "BDAY:1/xx0305T:q", u"memo1=Birthday: 1/xx0305T:q"_s);
    row("birthday without a year", "3.0", "BDAY:--0421", u"memo1=Birthday: --0421"_s);
    row("year that is left out", "3.0", "BDAY;X-APPLE-OMIT-YEAR=1604:1604-04-21",
        u"memo1=Birthday: --04-21"_s);
    row("birthday at midnight", "2.1", "BDAY:1980-03-05T00:00:00Z", u"M_BD=1980-03-05"_s);
    row("birthday with an hour", "4.0", "BDAY:19800305T101500Z",
        u"M_BD=1980-03-05 | memo1=Birthday: 19800305T101500Z"_s);
    row("birthday in words, and of no calendar", "4.0", "BDAY;VALUE=text:circa 1800\nANNIVERSARY:20010230",
        u"memo1=Birthday: circa 1800\nAnniversary: 20010230"_s);
    row("categories and nick names", "3.0", "CATEGORIES:Friends,Old\\, dear\nNICKNAME:Ash,Ashu",
        u"category1=Friends | nick=Ash, Ashu | memo1=Categories: Friends, Old, dear"_s);
    row("family", "4.0",
        "RELATED;TYPE=spouse;VALUE=text:Ravi\nRELATED;TYPE=child;VALUE=text:Kim\nRELATED;TYPE=friend:urn:"
        "uuid:1\n"
        "GENDER:F",
        u"Spouse=Ravi | kid1=Kim | sex=Female | memo1=Related (friend): urn:uuid:1"_s);
    row("what nobody knows", "3.0", "X-SKYPE:ann\nIMPP;TYPE=home:xmpp:a@b\nUID:7\nREV:2020\nno property here",
        u"memo1=X-SKYPE: ann\nMessenger (home): xmpp:a@b\nUID: 7\nREV: 2020\nLine that is no property: no "
        "property here"_s);
    row("notes and their lines", "3.0", "NOTE:one\\ntwo\nNOTE:three\\; four\nX-A:b",
        u"memo1=one\ntwo\nthree; four\n\nX-A: b"_s);
    row("escapes of the old version", "2.1", "NOTE:a\\;b C:\\new \\\\server x\\nz",
        u"memo1=a;b C:\\new \\\\server x\nz"_s);
    row("number too long for its place", "3.0", "TEL;TYPE=CELL:" + QByteArray(60, '1'),
        u"memo1=Telephone (cell): "_s + QString(60, u'1'));
    row("photo of an address is not fetched", "4.0", "PHOTO:https://a/b.jpg",
        u"memo1=Photo: https://a/b.jpg"_s);
    row("photo that is none", "3.0", "FN:a\nPHOTO;ENCODING=b;TYPE=JPEG:" + QByteArray("<svg/>").toBase64(),
        u"Name=a | !Photo: it is no picture that can be shown"_s);
    row("photo in the line", "4.0", "PHOTO:data:image/jpeg;base64," + kPicture.toBase64(), u"photo=204"_s);
    row("card in the card", "2.1",
        "FN:a\nAGENT:\nBEGIN:VCARD\nVERSION:2.1\nFN:b\nTEL;WORK:5\nEND:VCARD\nTITLE:c",
        u"Name=a | Job_Title=c | memo1=Agent - Name: b\nAgent - Telephone (work): 5"_s);
    row("own card", "2.1",
        "N:First,Last;Mr.;\nFN:Ann Lee\nTEL;WORK;VOICE:1\nADR;WORK:;office;a b;c;d;e;f\n"
        "ADR;POSTAL:;;p "
        "q;;;;\nEMAIL;PREF;INTERNET:h@x\nEMAIL;INTERNET:\nEMAIL;INTERNET:w@x\nURL:http://www.a",
        u"Nview=First,Last | Title=Mr. | Name=Ann Lee | w_Ph1=1 | w_add1=a b | w_city=c | w_State=d | "
        u"w_pin=e | "
        "w_country=f | b_add1=p q | H_email1=h@x | b_email1=w@x | h_web=www.a"_s);
    row("place in one book", "3.0", "X-ORVANE-ID:7\nX-ORVANE-PHOTLOC:/etc/passwd\nTEL;X-ORVANE-COLUMN=id:5",
        u"H_Ph1=5 | memo1=X-ORVANE-ID: 7\nX-ORVANE-PHOTLOC: /etc/passwd"_s);
}

void ForeignCardTest::values()
{
    QFETCH(QByteArray, version);
    QFETCH(QByteArray, body);
    QTEST(::shown(body, version.constData()), "shown");
}

void ForeignCardTest::encodings_data()
{
    support::columns<QByteArray, QString>("bytes", "shown");
    const auto card = [](const QByteArray& body) {
        return "BEGIN:VCARD\r\nVERSION:2.1\r\n" + body + "\r\nEND:VCARD\r\n";
    };
    const QString utf16 = QString::fromLatin1(card("FN:Zo\xe9"));
    QTest::newRow("bare type and charset together")
        << card("ADR;HOME;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:;;Gr=C3=BCn=\r\n weg;=4B=3B=\r\nx;;;")
        << u"h_add1=Grün weg | h_city=K;x"_s;
    QTest::newRow("encoding as a bare word")
        << card("NOTE;QUOTED-PRINTABLE:a=0D=0Ab=\r\n\r\nTEL;CELL:1") << u"Mobile=1 | memo1=a\nb"_s;
    QTest::newRow("all encoded") << card("N;ENCODING=QUOTED-PRINTABLE:=52=61=6F=3B=41")
                                 << u"Last=Rao | First=A"_s;
    QTest::newRow("end behind a soft line end") << card("NOTE;ENCODING=QUOTED-PRINTABLE:a=") << u"memo1=a"_s;
    QTest::newRow("code page") << card("FN:Zo\xe9 \x80") << u"Name=Zoé €"_s;
    QTest::newRow("utf-8 untold") << card("FN:Zo\xc3\xa9") << u"Name=Zoé"_s;
    QTest::newRow("latin 2") << card("FN;CHARSET=ISO-8859-2:\xa3\xf3\x64\xbc") << u"Name=Łódź"_s;
    QTest::newRow("charset that is none") << card("FN;CHARSET=../x:Zo\xe9") << u"Name=Zoé"_s;
    QTest::newRow("utf-16") << QByteArray("\xff\xfe")
            + QByteArray(reinterpret_cast<const char*>(utf16.utf16()), utf16.size() * 2)
                            << u"Name=Zoé"_s;
    QTest::newRow("utf-8 mark, line feeds only")
        << "\xef\xbb\xbf" + card("FN:a").replace("\r\n", "\n") << u"Name=a"_s;
    QTest::newRow("carriage returns only") << card("FN:a").replace("\r\n", "\r") << u"Name=a"_s;
    QTest::newRow("folded, the blank is the text's") << card("FN:Asha\r\n Rao") << u"Name=Asha Rao"_s;
    QTest::newRow("picture with bare lines") << card("PHOTO;JPEG;BASE64:"
        + kPicture.toBase64().insert(80, "\r\n").insert(160, "\r\n  ") + "\r\n\r\nTEL;CELL:1")
                                             << u"Mobile=1 | photo=204"_s;
    QTest::newRow("blanks in the names") << card("TEL; CELL ; VOICE:1") << u"Mobile=1"_s;
    QTest::newRow("no end") << QByteArray("BEGIN:VCARD\nFN:a\nTEL;CELL:1") << u"Name=a | Mobile=1"_s;
}

void ForeignCardTest::encodings()
{
    QFETCH(QByteArray, bytes);
    const auto cards = cardsOf(bytes);
    QCOMPARE(cards.size(), size_t(1));
    QTEST(::shown(contactOf(cards[0], columns())), "shown");
}

void ForeignCardTest::everyColumnReturns_data()
{
    support::columns<CardVersion>("version");
    QTest::newRow("3.0") << CardVersion::Three;
    QTest::newRow("4.0") << CardVersion::Four;
}

void ForeignCardTest::everyColumnReturns()
{
    QFETCH(CardVersion, version);
    CardContact contact;
    for (const CardColumns::Column& column : columns().all()) {
        const bool isDate = column.type == jet::ColumnType::Date;
        const bool isSwitch = column.type == jet::ColumnType::YesNo;
        contact.set(column.name,
            isDate         ? u"1980-03-05"_s
                : isSwitch ? u"true"_s
                           : column.name + u" é; \"a\", b\\n: c\\"_s.left(column.size - column.name.size()));
    }
    contact.set(u"Sp_BD", u"1981-12-31 10:30:05"_s);
    contact.set(u"memo1", u"one\n two ; \\n"_s + QString(300, u'\u4e2d'));
    contact.photo = kPicture;
    QVERIFY(contact.values.size() > 110);
    const QByteArray bytes = cardOf(contact, version);
    for (const QByteArray& line : bytes.split('\n'))
        QVERIFY(line.size() <= 76);
    const auto cards = cardsOf(bytes);
    QCOMPARE(cards.size(), size_t(1));
    CardContact back = contactOf(cards[0], columns());
    QCOMPARE(back.values.size(), contact.values.size());
    for (const CardContact::Value& value : contact.values)
        QCOMPARE(value.column + u'=' + back.text(value.column), value.column + u'=' + value.text);
    QCOMPARE(back.photo, kPicture);
    QCOMPARE(back.left, QStringList());
}

void ForeignCardTest::manyCards()
{
    const auto cards = cardsOf(
        "junk\nBEGIN:VCARD\nFN:a\nBEGIN:VCARD\nFN:b\nend:vcard\n\nBEGIN: VCARD\nFN:c\nEND:VCARD\nFN:d");
    QCOMPARE(cards.size(), size_t(3));
    QVERIFY(!cards[0].hasEnd && cards[1].hasEnd && cards[2].hasEnd);
    QCOMPARE(::shown(contactOf(cards[2], columns())), u"Name=c"_s);
}

// What is above the limits is told, and all else of the card comes in.
void ForeignCardTest::whatIsTooLong()
{
    const CardLimits limits{.textLine = 100, .binaryLine = 400, .card = 2000, .properties = 10};
    const QByteArray big = QByteArray(1000, 'A');
    auto cards = cardsOf("BEGIN:VCARD\nPHOTO;ENCODING=b:" + big + "\n " + big
            + "\nNOTE:" + QByteArray(150, 'x') + "\nFN:a\nEND:VCARD",
        limits);
    QCOMPARE(::shown(contactOf(cards.at(0), columns())),
        u"Name=a | memo1="_s + QString(95, u'x')
            + u" | !Photo: too large | !NOTE: the end of a text that is too long"_s);
    cards = cardsOf("BEGIN:VCARD\n" + QByteArray("X:y\n").repeated(11) + "END:VCARD", limits);
    QVERIFY(cards.at(0).isCut && cards.at(0).hasEnd && cards.at(0).properties.size() == 10);
    cards = cardsOf(
        "BEGIN:VCARD\n" + ("PHOTO;ENCODING=b:" + QByteArray(380, 'A') + '\n').repeated(7) + "END:VCARD",
        limits);
    QVERIFY(cards.at(0).isCut && cards.at(0).properties.size() == 5);
}

void ForeignCardTest::longCardTakesItsTimeOnly()
{
    QElapsedTimer clock;
    clock.start();
    for (const QByteArray& piece : {QByteArray("\n "), QByteArray("\n x"), QByteArray("=\n"),
             QByteArray(" \t"), QByteArray(";\""), QByteArray("\nAGENT:\nBEGIN:VCARD")}) {
        for (const char* start : {"A;ENCODING=QUOTED-PRINTABLE:", "A;\"", "PHOTO;BASE64:"})
            cardsOf(QByteArray("BEGIN:VCARD\n") + start + piece.repeated(100'000));
    }
    QVERIFY2(clock.elapsed() < 30'000, qPrintable(QString::number(clock.elapsed())));
}

QTEST_GUILESS_MAIN(ForeignCardTest)
#include "foreign_card_test.moc"
