#include <QtTest>

#include "formats/card_file.h"
#include "support/columns.h"

using namespace Qt::StringLiterals;
using namespace formats;

static CardValues fullValues()
{
    CardValues v;
    v.name = u"Asha Rao"_s;
    v.nameView = u"First,Last"_s;
    v.title = u"Dr."_s;
    v.first = u"Asha"_s;
    v.middle = u"K"_s;
    v.last = u"Rao"_s;
    v.nick = u"Ash"_s;
    v.company = u"Tea & Co"_s;
    v.spouse = u"Ravi"_s;
    v.workPhones = {u"w1"_s, u"w2"_s, u"w3"_s};
    v.homePhones = {u"h1"_s, u"h2"_s, u"h3"_s};
    v.mobile = u"m"_s;
    v.fax = u"f"_s;
    v.work = {u"wa1"_s, u"wa2"_s, u"wc"_s, u"ws"_s, u"wp"_s, u"wy"_s};
    v.home = {u"ha1"_s, u"ha2"_s, u"hc"_s, u"hs"_s, u"hp"_s, u"hy"_s};
    v.postal = {u"ba1"_s, u"ba2"_s, u"bc"_s, u"bs"_s, u"bp"_s, u"by"_s};
    v.birthday = QDate(1980, 3, 5);
    v.email = u"a@x"_s;
    v.secondEmail = u"b@x"_s;
    v.workEmail = u"w@x"_s;
    v.web = u"http://asha.in"_s;
    return v;
}

/// The cards of this program, as they are written line by line and as they are read from anywhere.
class CardFileTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nothingButAName()
    {
        CardValues v;
        v.name = u"Asha"_s;
        const QStringList lines = contactCardLines(v);
        QCOMPARE(lines.size(), 24);
        QCOMPARE(lines.count(u"TEL;WORK;VOICE:"_s), 3);
        QCOMPARE(lines[15], u"ADR;WORK:;office; ;;;;"_s);
        QCOMPARE(lines[18], u"BDAY:"_s);
        v.nick = u"a\r\nTEL;CELL;VOICE:666\nb"_s;
        QCOMPARE(contactCardLines(v)[4], u"NICKNAME:a TEL;CELL;VOICE:666 b"_s);
        // A company has no part of a name.
        QCOMPARE(enteredCardLines(v)[2], u"N:Asha;"_s);
    }

    void label_data()
    {
        support::columns<QString, QString>("text", "label");
        QTest::newRow("name") << u"BEGIN:VCARD\r\nN:Rao;Asha;;Dr.;\r\nFN:Dr. Asha Rao\r\n"_s
                              << u"Rao Asha Dr."_s;
        QTest::newRow("full name first") << u"BEGIN:VCARD\nFN:Asha\nN:Rao\n"_s << u"Asha"_s;
        QTest::newRow("nick name alone") << u"BEGIN:VCARD\nNOTE:x\nNICKNAME:Ash\n"_s << u"Ash"_s;
        QTest::newRow("before the card") << u"N:Wrong\n\nBEGIN:VCARD\nFN:Right"_s << u"Right"_s;
        QTest::newRow("of the second card")
            << u"BEGIN:VCARD\nTEL:1\nEND:VCARD\nBEGIN:VCARD\nFN:No\n"_s << QString();
        QTest::newRow("without an end") << u"BEGIN:VCARD\nTEL:1\nBEGIN:VCARD\nFN:No\n"_s << QString();
        QTest::newRow("no card") << u"FN:Asha"_s << QString();
        QTest::newRow("line too long")
            << u"BEGIN:VCARD\nFN:"_s + u"x"_s.repeated(maxCardLine) + u"\nNICKNAME:Ash"_s << u"Ash"_s;
        QTest::newRow("too many lines")
            << u"BEGIN:VCARD\n"_s + u"A:1\n"_s.repeated(maxCardLines) + u"FN:x"_s << QString();
    }

    void label()
    {
        QFETCH(QString, text);
        QTEST(cardLabel(text), "label");
    }

    void ownCardIsNotLabelledByItsNameView()
    {
        const auto isView = [](const QString& text) { return text == u"First,Last"; };
        QCOMPARE(cardLabel(contactCardLines(fullValues()).join(u'\n'), isView), u"Asha Rao"_s);
        QCOMPARE(cardLabel(u"BEGIN:VCARD\nN:Last, First;x", isView), u"Last, First x"_s);
    }

    void fields_data()
    {
        // shown: field=value
        support::columns<QString, QString>("line", "shown");
        QTest::newRow("organisation") << u"ORG:Tea & Co;Sales"_s << u"company=Tea & Co"_s;
        QTest::newRow("job title") << u"TITLE: Chef "_s << u"jobTitle=Chef"_s;
        QTest::newRow("control characters") << u"TITLE:a\rb\tc\x01"_s << u"jobTitle=a b c"_s;
        QTest::newRow("birthday") << u"BDAY:19800305"_s << u"birthday=05/Mar/1980"_s;
        QTest::newRow("birthday with dashes") << u"BDAY:1980-03-05T00:00:00"_s << u"birthday=05/Mar/1980"_s;
        QTest::newRow("birthday that is none") << u"BDAY:in March"_s << u"birthday=in March"_s;
        QTest::newRow("work web") << u"URL;WORK:http://a:8/"_s << u"workWeb=http://a:8/"_s;
        // Kept: the line that this program writes itself is not read.
        QTest::newRow("own web") << u"URL:http://a"_s << QString();
        QTest::newRow("cell without voice") << u"TEL;CELL:5"_s << QString();
        QTest::newRow("work address") << u"ADR;WORK:;office;1 Park Road;Pune;MH;411001;India"_s
                                      << u"workAddress=1 Park Road - Pune (MH) India"_s;
        QTest::newRow("home address") << u"ADR;HOME:Box 5;Flat 2;Lane;Pune;;;India"_s
                                      << u"homeAddress=Box 5 Flat 2 Lane - Pune India"_s;
        QTest::newRow("too few parts") << u"ADR;POSTAL:;;Lane;Pune"_s << u"postalAddress=Lane - Pune"_s;
        QTest::newRow("too many parts") << u"ADR;HOME:;;a;b;c;d;e;f;g"_s << u"homeAddress=a - b (c) e"_s;
    }

    void fields()
    {
        QFETCH(QString, line);
        const CardFields f = readCard(u"BEGIN:VCARD\n"_s + line + u"\nEND:VCARD\nTITLE:after"_s);
        QStringList shown;
        const std::pair<QString, QString> fields[] = {{u"company"_s, f.company}, {u"jobTitle"_s, f.jobTitle},
            {u"birthday"_s, f.birthday}, {u"workWeb"_s, f.workWeb}, {u"mobile"_s, f.mobile},
            {u"faxes"_s, f.faxes.join(u'/')}, {u"workAddress"_s, f.workAddress},
            {u"homeAddress"_s, f.homeAddress}, {u"postalAddress"_s, f.postalAddress}};
        for (const auto& [name, value] : fields) {
            if (!value.isEmpty())
                shown << name + u'=' + value;
        }
        QTEST(shown.join(u'\n'), "shown");
    }

    void ownCardReturns()
    {
        const CardFields f = readCard(contactCardLines(fullValues()).join(u"\r\n"_s));
        QCOMPARE(f.fullName, u"Asha Rao"_s);
        QCOMPARE(f.nick, u"Ash"_s);
        QCOMPARE(f.spouse, u"Ravi"_s);
        QCOMPARE(f.workPhones, (QStringList{u"w1"_s, u"w2"_s, u"w3"_s}));
        QCOMPARE(f.homePhones, (QStringList{u"h1"_s, u"h2"_s, u"h3"_s}));
        QCOMPARE(f.mobile, u"m"_s);
        QCOMPARE(f.faxes, QStringList{u"f"_s});
        QCOMPARE(f.preferredEmails, QStringList{u"a@x"_s});
        QCOMPARE(f.emails, QStringList{u"w@x"_s});
        QCOMPARE(f.postalAddress, u"ba1 ba2 - bc (bs) by"_s);
    }
};

QTEST_GUILESS_MAIN(CardFileTest)
#include "card_file_test.moc"
