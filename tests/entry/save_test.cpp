#include "entry_form.h"
#include "stored_rows.h"
#include "support/columns.h"
#include "support/contact_fields.h"

using namespace Qt::StringLiterals;
using platform::Answer;

namespace {

const QList<support::ContactField> kFields = support::contactFields(u"FormMain"_s);

/// A text and a date for each field, and for a changed contact others.
QString valueFor(qsizetype field, QChar ending)
{
    if (!kFields[field].isDate)
        return QString::number(field) + ending;
    return QDate(ending == u'a' ? 1990 : 1991, 1 + int(field) % 12, 1 + int(field) % 28)
        .toString(Qt::ISODate);
}

} // namespace

/// Saving a contact from the detailed form: what is written, column by column, what is refused, and what goes
/// with it.
class SaveTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<EntryForm>(); }

    void cleanup()
    {
        QCOMPARE(m_fixture->verify(), QString());
        m_fixture.reset();
    }

    // Kept: a new contact has no Work 2 state. A change does not write the fax, and its note goes to another
    // column than that of a new contact, which the form reads.
    void addAndEditWriteTheWholeRow()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        fillAll(u'a');
        m_fixture->click(u"Command1"_s);
        const auto before = row(u"1"_s);
        auto expected = written(u'a');
        expected[u"w_state"_s] = u"null"_s;
        QCOMPARE(before, expected);
        QCOMPARE(m_fixture->shared.TableName, u"Contact-AddData"_s);
        QCOMPARE(m_fixture->form()->position(), u"1 of 1"_s);

        m_fixture->clock.set(QDateTime(QDate(2025, 1, 2), QTime(9, 0)));
        QVERIFY(m_fixture->form()->showContact(1));
        fillAll(u'b');
        m_fixture->click(u"Command1"_s);
        expected = written(u'b');
        expected[u"fax"_s] = before[u"fax"_s];
        expected[u"memo"_s] = expected[u"memo1"_s];
        expected[u"memo1"_s] = before[u"memo1"_s];
        expected[u"datemodi"_s] = u"2025-01-02"_s;
        QCOMPARE(row(u"1"_s), expected);
        QCOMPARE(m_fixture->contacts(), 1);
        QVERIFY(m_fixture->form()->showContact(1));
        QCOMPARE(m_fixture->text(u"txtMemo"_s), before[u"memo1"_s]);
    }

    void blanksOfANewContact()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->set(u"cmbpriority"_s, u"  "_s);
        m_fixture->set(u"txtadd1"_s, u"  12 High St "_s);
        m_fixture->set(u"txtweb"_s, u" a.example "_s);
        fillName(u" Asha "_s, {}, {}, u"First,Last"_s);
        m_fixture->click(u"Command1"_s);
        QCOMPARE(m_fixture->book.rows(
                     u"select name,first,title,category1,category2,priority,product,status,region,h_email1,"
                     "h_add1,h_web,m_bd,anniv from cnt_main"_s),
            QStringList{
                u"Asha |Asha|Mr.|Undefined|Undefined|2|Undefined|Undefined|Undefined|@|12 High St| a.example |null|null"_s});
    }

    void mergedCategory()
    {
        m_fixture->shared.ContMerge = true;
        m_fixture->start();
        QVERIFY(!m_fixture->shows(u"DtcmbSubCate"_s));
        m_fixture->click(u"SSCommand3"_s);
        fillName(u"Asha"_s, {}, {}, u"First,Last"_s);
        m_fixture->set(u"DtcmbCate"_s, u"A - B"_s);
        m_fixture->click(u"Command1"_s);
        QVERIFY(m_fixture->form()->showContact(1));
        QCOMPARE(m_fixture->text(u"DtcmbCate"_s), u"A-B"_s);
        m_fixture->set(u"DtcmbCate"_s, u"C"_s);
        m_fixture->click(u"Command1"_s);
        QCOMPARE(m_fixture->book.rows(u"select category1,category2 from cnt_main"_s),
            QStringList{u"C|Undefined"_s});
        // The switch is turned in the set-up while a contact is being entered.
        m_fixture->click(u"SSCommand3"_s);
        fillName(u"Bela"_s, {}, {}, u"First,Last"_s);
        m_fixture->set(u"DtcmbCate"_s, u"D-E"_s);
        m_fixture->shared.ContMerge = false;
        m_fixture->form()->vocabulariesChanged();
        QVERIFY(m_fixture->shows(u"DtcmbSubCate"_s));
        m_fixture->click(u"Command1"_s);
        QCOMPARE(m_fixture->book.rows(u"select category1,category2 from cnt_main where id=2"_s),
            QStringList{u"D|E"_s});
    }

    void refusals_data()
    {
        support::columns<QString, QString, QString, QString>("first", "company", "view", "box");
        const QString blank
            = u"information: First, Last and Company are blank. At least one of these should not be blank."_s;
        const QString view = u"warning: Not a Valid Name View"_s;
        QTest::newRow("all blank, before the view is looked at") << u""_s << u""_s << u"nonsense"_s << blank;
        QTest::newRow("the view, before trimmed blanks") << u" "_s << u""_s << u"nonsense"_s << view;
        QTest::newRow("no view") << u"Asha"_s << u""_s << u""_s << view;
        QTest::newRow("a view typed in another case") << u"Asha"_s << u""_s << u"first,last"_s << view;
        QTest::newRow("only blanks") << u" "_s << u" "_s << u"Company"_s
                                     << u"warning: Either Name or Company should be entered"_s;
    }

    void refusals()
    {
        QFETCH(QString, first);
        QFETCH(QString, company);
        QFETCH(QString, view);
        QFETCH(QString, box);
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->set(u"txtadd1"_s, u"kept"_s);
        fillName(first, {}, company, view);
        m_fixture->boxes.expect(box.section(u": "_s, 1));
        m_fixture->click(u"Command1"_s);
        QCOMPARE(m_fixture->boxes.shown, QStringList{box});
        QCOMPARE(m_fixture->boxes.titles, QStringList{u"Orvane Contacts"_s});
        QCOMPARE(m_fixture->contacts(), 0);
        QCOMPARE(m_fixture->text(u"txtadd1"_s), u"kept"_s);
        QVERIFY(m_fixture->shows(u"Command1"_s));
    }

    void editTakesTwoViewsOnly_data()
    {
        QTest::addColumn<bool>("taken");
        QTest::newRow("First,Last") << true;
        QTest::newRow("Last,First") << true;
        QTest::newRow("Company") << false;
        QTest::newRow("First,Last (Company)") << false;
        QTest::newRow("Last,First (Company)") << false;
        QTest::newRow("Company (Last,First)") << false;
    }

    void editTakesTwoViewsOnly()
    {
        QFETCH(bool, taken);
        m_fixture->addContact(
            u"name,first,company,nview"_s, u"'Tea Asha','Asha','Tea','Company (Last,First)'"_s);
        m_fixture->start();
        QVERIFY(m_fixture->form()->showContact(1));
        m_fixture->set(u"dtcmbfname"_s, u"Bina"_s);
        m_fixture->set(u"cmbnview"_s, QString::fromLatin1(QTest::currentDataTag()));
        if (!taken)
            m_fixture->boxes.expect(u"Not a Valid Name View"_s);
        m_fixture->click(u"Command1"_s);
        QCOMPARE(m_fixture->book.firstText(u"select first from cnt_main"_s), taken ? u"Bina"_s : u"Asha"_s);
    }

    void nameCanEndBlank()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        fillName(u"Asha"_s, {}, {}, u"Company"_s);
        m_fixture->click(u"Command1"_s);
        QCOMPARE(m_fixture->book.rows(u"select name,first from cnt_main"_s), QStringList{u"|Asha"_s});
        m_fixture->form()->load();
        QCOMPARE(m_fixture->contacts(), 1);
        // A last name alone is a name too, for an add and for a change.
        m_fixture->click(u"SSCommand3"_s);
        fillName({}, u"Rao"_s, {}, u"First,Last"_s);
        m_fixture->click(u"Command1"_s);
        QVERIFY(m_fixture->form()->showContact(2));
        m_fixture->set(u"dtcmblname"_s, u"Sen"_s);
        m_fixture->click(u"Command1"_s);
        QCOMPARE(
            m_fixture->book.rows(u"select name,first from cnt_main where id=2"_s), QStringList{u" Sen|"_s});
    }

    void sideEffects_data()
    {
        support::columns<bool, bool, bool, QStringList, int, QStringList>(
            "mail", "favourites", "editing", "calls", "scheduled", "shortcuts");
        QTest::newRow("neither") << false << false << false << QStringList{} << 0 << QStringList{};
        QTest::newRow("mail on add makes the scheduler rows too")
            << true << false << false << QStringList{u"add 8OV"_s} << 18 << QStringList{};
        QTest::newRow("favourites on add") << false << true << false << QStringList{} << 0
                                           << QStringList{u"Asha Rao  H"_s, u"Asha Rao  W"_s};
        QTest::newRow("mail on edit makes no scheduler rows")
            << true << false << true << QStringList{u"update 7OV"_s} << 0 << QStringList{};
        QTest::newRow("favourites on edit") << false << true << true << QStringList{} << 0
                                            << QStringList{u"Asha Rao   H"_s, u"Asha Rao   W"_s};
    }

    void sideEffects()
    {
        QFETCH(bool, mail);
        QFETCH(bool, favourites);
        QFETCH(bool, editing);
        EntryForm& f = *m_fixture;
        const auto word = [](bool yes) { return yes ? u"true"_s : u"false"_s; };
        f.execute(u"insert into cntb_setup (UpdOutllook,AddFav) values (%1,%2)"_s.arg(
            word(mail), word(favourites)));
        f.addContact(u"id,name,first"_s, u"7,'Old','Old'"_s);
        f.mailContacts.contacts.resize(1);
        f.mailContacts.contacts[0].key = u"7OV"_s;
        f.mailContacts.contacts[0].categories = u"Tennis"_s;
        f.mailContacts.contacts[0].kids = u"Nia,Om"_s;
        f.mailContacts.contacts[0].user4 = u"ours alone"_s;
        f.start();
        if (editing)
            QVERIFY(f.form()->showContact(7));
        else
            f.click(u"SSCommand3"_s);
        fillName(u"Asha"_s, u"Rao"_s, u"Tea"_s, u"First,Last"_s);
        f.set(u"txtweb"_s, u"home.example"_s);
        f.set(u"txtbweb"_s, u"work.example"_s);
        f.set(u"txtemail1"_s, u"asha"_s);
        f.set(u"cboemail1"_s, u"mail.example"_s);
        for (const auto& name : {u"dtcspouse"_s, u"dtckid1"_s, u"dtckid2"_s, u"dtckid3"_s})
            f.set(name, name);
        int day = 0;
        for (const auto& date :
            {u"DateBday"_s, u"DateSpouse"_s, u"Datekid1"_s, u"datekid2"_s, u"datekid3"_s, u"DateAnn"_s}) {
            ++day;
            f.set(date, QDate(1990, 1 + day, day).toString(Qt::ISODate));
        }
        f.click(u"Command1"_s);

        QTEST(f.mailContacts.calls, "calls");
        if (mail) {
            const platform::MailContact& item = f.mailContacts.contacts.back();
            QCOMPARE(item.fullName, u"Asha Rao"_s);
            QCOMPARE(item.email1, u"asha@mail.example"_s);
            QCOMPARE(item.birthday, QDate(1990, 2, 1));
            // What the form has no field for stays.
            if (editing)
                QCOMPARE(item.categories + item.kids + item.user4, u"TennisNia,Omours alone"_s);
        }
        const QStringList dates
            = f.book.rows(u"select [Date] from ovs_schedular where [Date] like '*-2024'"_s);
        QTEST(int(f.book.rows(u"select * from ovs_schedular"_s).size()), "scheduled");
        if (!dates.isEmpty()) // of the person, the spouse and three kids; the anniversary has the day of the
                              // last one
            QCOMPARE(dates.join(u' '),
                u"01-Feb-2024 02-Mar-2024 03-Apr-2024 04-May-2024 05-Jun-2024 05-Jun-2024"_s);
        QStringList names;
        for (const auto& [name, address] : f.favourites.added)
            names << name;
        QTEST(names, "shortcuts");
        if (favourites)
            QCOMPARE(f.favourites.added[1].second, u"work.example"_s);
    }

    void buttonsOfEachMode()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first"_s, u"'Asha','Asha'"_s);
        f.start();
        const auto shown = [&f] {
            QStringList names;
            for (const auto& name : {u"Command1"_s, u"CmdCancel"_s, u"CmdSave"_s, u"SSCommand3"_s,
                     u"SSCommand10"_s, u"grdEditList"_s}) {
                if (f.shows(name))
                    names << name;
            }
            return names.join(u' ');
        };
        QCOMPARE(shown(), u"SSCommand3 SSCommand10"_s);
        QCOMPARE(f.text(u"Label10"_s), QString());
        QCOMPARE(f.form()->frameTitle(), u"Contacts Detailed Add/Edit"_s);
        f.click(u"SSCommand3"_s);
        QCOMPARE(shown(), u"Command1 CmdCancel CmdSave"_s);
        QCOMPARE(f.text(u"Label10"_s), u"Add Mode"_s);
        f.click(u"CmdCancel"_s);
        QCOMPARE(shown(), u"SSCommand3 SSCommand10"_s);
        f.click(u"SSCommand10"_s);
        QCOMPARE(shown(), u"Command1 CmdCancel CmdSave grdEditList"_s);
        QCOMPARE(f.text(u"Label10"_s), u"Edit Mode"_s);
        QVERIFY(!f.child<QWidget>(u"Command1"_s)->isEnabled());
        QVERIFY(f.form()->showContact(1));
        f.set(u"cmbnview"_s, u"First,Last"_s);
        f.click(u"Command1"_s);
        QCOMPARE(shown(), u"SSCommand3 SSCommand10"_s);
        const QString folder = u"\\UserFiles\\Misc\\sound\\"_s;
        QCOMPARE(f.sounds.played,
            (QStringList{folder + u"Add.wav"_s, folder + u"Cancel.wav"_s, folder + u"Del.wav"_s,
                folder + u"save.wav"_s}));
    }

    void clearedFormHasTheDefaults()
    {
        EntryForm& f = *m_fixture;
        f.execute(u"insert into cntb_setup (categ1,categ2,Priority,cmpnysuffix,lbluse1,lbluse2) "
                  "values ('Friends','School','3','Ltd','Blood & group','')"_s);
        f.start();
        f.click(u"SSCommand3"_s);
        const auto defaults = [&f] {
            QStringList texts;
            for (const auto& name :
                {u"Cmbtitle"_s, u"DtcmbCate"_s, u"DtcmbSubCate"_s, u"cmbpriority"_s, u"txtcmpnySuffix"_s,
                    u"txtcmpny"_s, u"cmbnview"_s, u"dtcmbfname"_s, u"txtMemo"_s, u"DateBday"_s, u"lblid"_s})
                texts << f.text(name);
            return texts.join(u'|');
        };
        const QString expected = u"Mr.|Friends|School|3|Ltd||||||"_s;
        QCOMPARE(defaults(), expected);
        QCOMPARE(f.text(u"lbluser1"_s), u"Blood & group"_s);
        QCOMPARE(f.text(u"lbluser2"_s), u"User 2"_s);
        fillAll(u'a');
        f.click(u"CmdCancel"_s);
        QCOMPARE(defaults(), expected);
        f.shared.ContMerge = true;
        f.click(u"SSCommand3"_s);
        QCOMPARE(f.text(u"DtcmbCate"_s), u"Friends-School"_s);
    }

    void cancelForgets()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.click(u"ssassist"_s);
        QCOMPARE(f.text(u"ssassist"_s), u"Assist Off"_s);
        QVERIFY(f.shows(u"assistPanel"_s));
        f.set(u"dtcmbfname"_s, u"Asha"_s);
        f.boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::No);
        QVERIFY(!f.form()->mayClose());
        f.shared.EditRequested = true;
        f.click(u"CmdCancel"_s);
        QVERIFY(!f.shared.EditRequested);
        QCOMPARE(f.text(u"ssassist"_s), u"Assist"_s);
        QVERIFY(!f.shows(u"assistPanel"_s));
        QVERIFY(f.form()->mayClose());
        QCOMPARE(f.contacts(), 0);
    }

    void editListLoadsAContact()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first,h_email1,m_bd,photloc,category1,category2,w_state,dateenter"_s,
            u"'Zoe','Zoe','zoe@x@y',#01-Feb-1890#,'C:\\gone.png','A','B','Goa',#01-Jan-2020#"_s);
        f.addContact(u"name,first"_s, u"'Asha','Asha'"_s);
        f.start();
        f.click(u"SSCommand10"_s);
        auto* list = f.child<QTableView>(u"grdEditList"_s);
        QCOMPARE(list->model()->rowCount(), 2);
        list->setCurrentIndex(list->model()->index(1, 1));
        QTest::keyClick(list, Qt::Key_Return);
        QStringList texts;
        for (const auto& name : {u"lblid"_s, u"dtcmbfname"_s, u"txtemail1"_s, u"cboemail1"_s, u"DateBday"_s,
                 u"lblPhoto"_s, u"DtcmbCate"_s, u"DtcmbSubCate"_s, u"dtcmbwstate"_s})
            texts << f.text(name);
        QCOMPARE(texts.join(u'|'), u"1|Zoe|zoe|x@y|Feb 01-1890|C:\\gone.png|A|B|Goa"_s);
        f.set(u"cmbnview"_s, u"First,Last"_s);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select h_email1,m_bd,photloc,dateenter from cnt_main where id=1"_s),
            QStringList{u"zoe@x@y|1890-02-01|C:\\gone.png|2020-01-01"_s});
        QCOMPARE(f.text(u"lblid"_s), QString());
    }

    void editRequestedByAnotherScreen()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first,nview"_s, u"'Asha','Asha','First,Last'"_s);
        f.start();
        QVERIFY(!f.form()->showContact(99));
        f.shared.EditRequested = true;
        QVERIFY(f.form()->showContact(1));
        QCOMPARE(f.text(u"Label10"_s), u"Edit Mode"_s);
        QVERIFY(!f.shows(u"grdEditList"_s));
        QCOMPARE(f.form()->position(), u"1 of 1"_s);
        f.set(u"dtcmbfname"_s, u"Bina"_s);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select name from cnt_main"_s), QStringList{u"Bina "_s});
        QVERIFY(!f.shared.EditRequested);
        // A contact that came in since the form was opened is found as well.
        f.addContact(u"id,name,first"_s, u"40,'Late','Late'"_s);
        QVERIFY(f.form()->showContact(40));
    }

    void refusedDiscardKeepsTheNewContact()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first"_s, u"'Asha','Asha'"_s);
        f.start();
        f.click(u"SSCommand3"_s);
        fillName(u"Bina"_s, {}, {}, u"First,Last"_s);
        f.shared.EditRequested = true;
        f.boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::No);
        f.form()->showContact(1);
        f.click(u"Command1"_s);
        QCOMPARE(
            f.book.rows(u"select name from cnt_main order by id"_s), (QStringList{u"Asha"_s, u"Bina "_s}));
    }

    void blankRowsGoAtLoad()
    {
        m_fixture->addContact(u"name,first,last,company,h_city"_s, u"' ','','  ','','Pune'"_s);
        m_fixture->addContact(u"name,first,last,company"_s, u"'','','','Tea'"_s);
        m_fixture->addContact(u"first,last"_s, u"'',''"_s); // null is not a blank text here
        m_fixture->start();
        QCOMPARE(m_fixture->book.rows(u"select id,company from cnt_main order by id"_s),
            (QStringList{u"2|Tea"_s, u"3|null"_s}));
    }

    void hostileTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("apostrophe") << u"D'Souza"_s;
        QTest::newRow("emoji") << u"Zo\U0001F600e"_s;
        QTest::newRow("quotes and marks") << u"a\"b;--#|%*[x]"_s;
        QTest::newRow("right to left") << u"\u0639\u0644\u064A"_s;
        QTest::newRow("10,000 characters") << QString(10000, u'x');
    }

    void hostileTexts()
    {
        QFETCH(QString, text);
        EntryForm& f = *m_fixture;
        f.execute(u"insert into cntb_setup (UpdOutllook,AddFav) values (true,true)"_s);
        f.start();
        f.click(u"SSCommand3"_s);
        fillName(u"Asha"_s, text, {}, u"First,Last"_s);
        f.set(u"txtMemo"_s, text);
        f.set(u"DtcmbCate"_s, text);
        f.set(u"dtcmbcountry"_s, text);
        f.click(u"Command1"_s);
        QCOMPARE(f.contacts(), 1);
        QCOMPARE(f.book.firstText(u"select memo1 from cnt_main"_s), text);
        const QString last = f.book.firstText(u"select last from cnt_main"_s);
        QVERIFY(!last.isEmpty() && text.startsWith(last) && (text.size() > 255 || last == text));
        QVERIFY(f.form()->showContact(1));
        f.set(u"dtcmbmaiden"_s, text.left(40));
        f.click(u"Command1"_s);
        QCOMPARE(f.book.firstText(u"select maiden from cnt_main"_s), text.left(40));
    }

    // A text from an import may be longer than what the field lets a person type; a change of another field
    // keeps it.
    void longStoredTextIsNotCut()
    {
        EntryForm& f = *m_fixture;
        const QString city = u"Llanfairpwllgwyngyllgogerychwyrndrobwll"_s;
        f.addContact(u"Name,First,Last,Nview,h_city,h_add1"_s,
            u"'A B','A','B','First,Last','"_s + city + u"','"_s + QString(300, u'x') + u'\'');
        f.start();
        QVERIFY(f.form()->showContact(1));
        f.set(u"dtcmbmaiden"_s, u"C"_s);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.firstText(u"select maiden from cnt_main"_s), u"C"_s);
        QCOMPARE(f.book.firstText(u"select h_city from cnt_main"_s), city);
        QCOMPARE(f.book.firstText(u"select h_add1 from cnt_main"_s), QString(300, u'x'));
    }

    void wrongDateStaysInTheBox()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.type(u"DateBday"_s, u"31 Feb 1990"_s);
        f.type(u"DateAnn"_s, u"2/1/1990"_s);
        QCOMPARE(f.text(u"DateBday"_s), u"31 Feb 1990"_s);
        QCOMPARE(f.text(u"DateAnn"_s), u"Feb 01-1990"_s);
        fillName(u"Asha"_s, {}, {}, u"First,Last"_s);
        f.click(u"Command1"_s);
        QCOMPARE(f.contacts(), 0);
        QVERIFY(f.child<QWidget>(u"DateBday"_s)->hasFocus());
        f.type(u"DateBday"_s, u"28 Feb 1990"_s);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select m_bd,anniv from cnt_main"_s), QStringList{u"1990-02-28|1990-02-01"_s});
    }

    void failingSaveKeepsTheForm()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first,nview"_s, u"'Asha','Asha','First,Last'"_s);
        f.start();
        f.click(u"SSCommand3"_s);
        fillName(u"Bina"_s, {}, {}, u"First,Last"_s);
        f.set(u"txtMemo"_s, QString(200000, u'n'));
        {
            const support::FullDisk full;
            f.book.expectFailure(u"commit"_s);
            f.boxes.expect(
                u"This was not stored: the disk is full.\n\nMake room on the disk and save again. What was "
                "stored before is not lost."_s);
            f.click(u"Command1"_s);
        }
        QCOMPARE(f.book.unexpected(), QString());
        QCOMPARE(f.text(u"dtcmbfname"_s), u"Bina"_s);
        QVERIFY(f.shows(u"Command1"_s));
        QVERIFY(!f.shows(u"ProgressBar1"_s));
        QCOMPARE(f.sounds.played.size(), 1);
        QCOMPARE(f.book.rows(u"select name from cnt_main"_s), QStringList{u"Asha"_s});
        f.click(u"Command1"_s);
        QCOMPARE(
            f.book.rows(u"select name from cnt_main order by id"_s), (QStringList{u"Asha"_s, u"Bina "_s}));
    }

    // What another screen stored meanwhile stays where the person changed nothing; where both changed it, the
    // person is asked.
    void changeMeetsAnotherChange()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first,last,nview,h_ph1,mobile,category1,datemodi"_s,
            u"'Asha Rao','Asha','Rao','First,Last','111','222','Old',#01-Jan-2020#"_s);
        f.start();
        QVERIFY(f.form()->showContact(1));
        f.book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        f.execute(u"update cnt_main set h_ph1='333',mobile='444',category1='New' where id=1"_s);
        f.type(u"txtMobile"_s, u"555"_s);
        f.type(u"dtcmbnick"_s, u"Ash"_s);
        const QString question
            = u"This contact was changed elsewhere while you were changing it:\n\nMobile: you entered "
              "\"555\", stored is \"444\"\n\nDo you want to replace what is stored by what you "
              "entered? With No nothing is stored yet, and the form stays as it is."_s;
        f.boxes.expect(question, Answer::No);
        f.click(u"Command1"_s);
        const QString stored = u"select name,h_ph1,mobile,category1,nick,datemodi from cnt_main"_s;
        QCOMPARE(f.book.rows(stored), QStringList{u"Asha Rao|333|444|New|null|2020-01-01"_s});
        QCOMPARE(f.text(u"txtMobile"_s), u"555"_s);
        f.boxes.expect(question, Answer::Yes);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(stored), QStringList{u"Asha Rao|333|555|New|Ash|2024-03-15"_s});
        QCOMPARE(f.frame.notices.constLast(), u"Saved Asha Rao [Undo]"_s);
        f.frame.noticeAction();
        QCOMPARE(f.book.rows(stored), QStringList{u"Asha Rao|333|444|New|null|2020-01-01"_s});
    }

    void nothingToChangeIsSaid()
    {
        EntryForm& f = *m_fixture;
        f.addContact(u"name,first,nview"_s, u"'Asha','Asha','First,Last'"_s);
        f.start();
        f.click(u"SSCommand10"_s);
        f.boxes.expect(u"Record not selected"_s);
        QVERIFY(!f.form()->mayBeSaved());
        QVERIFY(f.form()->showContact(1));
        f.execute(u"delete * from cnt_main"_s);
        f.set(u"dtcmbnick"_s, u"Ash"_s);
        const QString question
            = u"This contact was deleted while you were changing it. Do you want to store what stands "
              "in the form as a new contact?"_s;
        f.boxes.expect(question, Answer::No);
        f.click(u"Command1"_s);
        QCOMPARE(f.text(u"dtcmbnick"_s), u"Ash"_s);
        f.boxes.expect(question, Answer::Yes);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select name,nick from cnt_main"_s), QStringList{u"Asha |Ash"_s});
    }

    // A request to edit counts for the form that it was made for.
    void editRequestOfAnotherForm()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.shared.EditRequested = true;
        f.click(u"SSCommand3"_s);
        f.type(u"dtcmbfname"_s, u"Bina"_s); // the view of a first contact comes by itself
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select name,nview from cnt_main"_s), QStringList{u"Bina |First,Last"_s});
    }

    void suffixOfALoadedCompany()
    {
        EntryForm& f = *m_fixture;
        f.execute(u"insert into cntb_setup (cmpnysuffix) values ('Ltd.')"_s);
        f.addContact(u"name,first,nview,company"_s, u"'Asha','Asha','First,Last','Firm Cyd'"_s);
        f.start();
        QVERIFY(f.form()->showContact(1));
        QCOMPARE(f.text(u"txtcmpnySuffix"_s), QString());
        f.type(u"txtcmpnySuffix"_s, u"GmbH"_s);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select company from cnt_main"_s), QStringList{u"Firm Cyd GmbH"_s});
    }

private:
    void fillAll(QChar ending)
    {
        for (qsizetype i = 0; i < kFields.size(); ++i)
            m_fixture->set(kFields[i].control, valueFor(i, ending));
        m_fixture->set(u"cmbnview"_s, u"Last,First"_s);
        m_fixture->set(u"cmbpriority"_s, ending == u'a' ? u"4"_s : u"5"_s);
        m_fixture->set(u"txtemail1"_s, QString(u"me"_s + ending));
        m_fixture->set(u"cboemail1"_s, u"x.example"_s);
    }

    QMap<QString, QString> row(const QString& id) { return storedRow(m_fixture->context.data, id); }

    /// All columns of a contact as the form writes them when all its fields are filled.
    QMap<QString, QString> written(QChar ending)
    {
        QMap<QString, QString> row = blankRow(m_fixture->schema);
        for (qsizetype i = 0; i < kFields.size(); ++i)
            row[kFields[i].column] = valueFor(i, ending);
        row[u"name"_s] = row[u"last"_s] + u' ' + row[u"first"_s];
        row[u"nview"_s] = u"Last,First"_s;
        row[u"priority"_s] = ending == u'a' ? u"4"_s : u"5"_s;
        row[u"h_email1"_s] = u"me"_s + ending + u"@x.example"_s;
        row[u"photloc"_s] = u""_s;
        row[u"dateenter"_s] = row[u"datemodi"_s] = u"2024-03-15"_s;
        return row;
    }

    void fillName(const QString& first, const QString& last, const QString& company, const QString& view)
    {
        m_fixture->set(u"dtcmbfname"_s, first);
        m_fixture->set(u"dtcmblname"_s, last);
        m_fixture->set(u"txtcmpny"_s, company);
        m_fixture->set(u"cmbnview"_s, view);
    }

    std::unique_ptr<EntryForm> m_fixture;
};

QTEST_MAIN(SaveTest)
#include "save_test.moc"
