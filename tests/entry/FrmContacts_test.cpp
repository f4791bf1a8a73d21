#include "entry/simple/FrmContacts.h"
#include "support/disk.h"
#include "support/screen_fixture.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/record_list.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using platform::Answer;
using widgets::child;

/// The simple add: what is stored, what is refused, and that nothing typed is lost without a question.
class FrmContactsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }
    void newContactIsStored();
    void mergedCategoryIsCut();
    void categoryFollowsTheSwitch();
    void changeWritesTheFormOnly();
    void refuses_data();
    void refuses();
    void nothingTypedIsLostSilently();
    void mailClientAndSchedulerFollow();
    void deleteShowsTheNext();
    void contactThatHasGoneIsSaidSo();
    void quickFillAsksBeforeItReplaces();

private:
    entry::FrmContacts* open();
    void type(const QString& control, const QString& text);
    QString text(const QString& control) const { return widgets::textOf(child<QWidget>(m_form, control)); }
    void click(const QString& button) { child<QPushButton>(m_form, button)->click(); }
    QStringList rows(const QString& sql) { return m_fixture->book.rows(sql); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    entry::FrmContacts* m_form = nullptr;
};

void FrmContactsTest::init()
{
    m_fixture = std::make_unique<support::ScreenFixture>(support::TestBook::Rows::Sample);
    m_fixture->execute(u"delete * from cntb_setup"_s);
}

entry::FrmContacts* FrmContactsTest::open()
{
    m_form = m_fixture->open<entry::FrmContacts>(u"FrmContacts"_s);
    return m_form;
}

void FrmContactsTest::type(const QString& control, const QString& text)
{
    auto* widget = child<QWidget>(m_form, control);
    if (auto* line = qobject_cast<QLineEdit*>(widget); line && !qobject_cast<widgets::DateBox*>(widget)) {
        line->clear();
        QTest::keyClicks(line, text);
    } else {
        widgets::setTextOf(widget, text);
    }
}

void FrmContactsTest::newContactIsStored()
{
    open();
    type(u"dtcmbfname"_s, u" Ann "_s);
    type(u"dtcmblname"_s, u"Lee"_s);
    type(u"txtMobile"_s, u"98"_s);
    type(u"DateBday"_s, u"Feb 29-1988"_s);
    type(u"txtMemo"_s, u" kept  as typed "_s);
    click(u"Command1"_s);
    QCOMPARE(
        rows(u"select Name,Title,First,Last,Nview,category1,category2,Priority,Product,Status,region,Mobile,"
             u"gen_id,h_city from cnt_main where id=13"_s),
        QStringList{
            u"Ann Lee|Mr.|Ann|Lee|First,Last|Undefined|Undefined|2|Undefined|Undefined|Undefined|98|0|"_s});
    QCOMPARE(rows(u"select M_BD,dateEnter,DateModi,memo1,Memo from cnt_main where id=13"_s),
        QStringList{u"1988-02-29|2024-03-15|2024-03-15| kept  as typed |null"_s});
    QCOMPARE(child<widgets::RecordList>(m_form, u"DBList1"_s)->currentKey(), 13);
    QCOMPARE(m_fixture->sounds.played, QStringList{u"\\UserFiles\\Misc\\sound\\save.wav"_s});
    QVERIFY(m_form->mayClose());
    type(u"dtcmblname"_s, u"Low"_s); // what is on the form now is a change
    click(u"Command1"_s);
    QCOMPARE(rows(u"select Name from cnt_main where id>=13"_s), QStringList{u"Ann Low"_s});
}

void FrmContactsTest::mergedCategoryIsCut()
{
    m_fixture->shared.ContMerge = true;
    m_fixture->execute(
        u"insert into cntb_setup (categ1,categ2,Priority) values ('Business','Clients','4')"_s);
    open();
    QCOMPARE(text(u"DtcmbCate"_s), u"Business-Clients"_s);
    QVERIFY(!child<QWidget>(m_form, u"DtcmbSubCate"_s)->isVisible());
    type(u"txtcmpny"_s, u"Acme"_s);
    type(u"cmbnview"_s, u"Company"_s);
    type(u"DtcmbCate"_s, u"Friends- Club "_s);
    click(u"Command1"_s);
    QCOMPARE(rows(u"select Name,category1,category2,Priority from cnt_main where id=13"_s),
        QStringList{u"Acme|Friends|Club|4"_s});
}

// The switch is turned in the set-up while something is being typed.
void FrmContactsTest::categoryFollowsTheSwitch()
{
    open();
    type(u"txtcmpny"_s, u"Acme"_s);
    type(u"DtcmbCate"_s, u"Friends"_s);
    type(u"DtcmbSubCate"_s, u"Club"_s);
    m_fixture->shared.ContMerge = true;
    m_form->vocabulariesChanged();
    QCOMPARE(text(u"DtcmbCate"_s), u"Friends-Club"_s);
    QVERIFY(!child<QWidget>(m_form, u"DtcmbSubCate"_s)->isVisible());
    m_fixture->shared.ContMerge = false;
    m_form->vocabulariesChanged();
    QCOMPARE(text(u"DtcmbCate"_s) + u'|' + text(u"DtcmbSubCate"_s), u"Friends|Club"_s);
    QVERIFY(child<QWidget>(m_form, u"DtcmbSubCate"_s)->isVisible());
    type(u"cmbnview"_s, u"Company"_s);
    click(u"Command1"_s);
    QCOMPARE(rows(u"select Name,category1,category2 from cnt_main where id=13"_s),
        QStringList{u"Acme|Friends|Club"_s});
    // A form that nobody has touched is not touched by the switch.
    m_fixture->shared.ContMerge = true;
    m_form->vocabulariesChanged();
    QVERIFY(m_form->mayClose());
}

void FrmContactsTest::changeWritesTheFormOnly()
{
    const QString others
        = u"select h_ph2,Spouse,kid1,Priority,Status,region,Product,dateEnter,h_email2,b_city from cnt_main where id=1"_s;
    const QStringList before = rows(others);
    open()->showContact(1);
    QCOMPARE(text(u"txtph1"_s), u"22110045"_s);
    type(u"dtcmbcity"_s, u"Pune"_s);
    type(u"DateBday"_s, {});
    click(u"Command1"_s);
    QCOMPARE(rows(u"select Name,h_city,M_BD,DateModi from cnt_main where id=1"_s),
        QStringList{u"Rahul Sharma|Pune|null|2024-03-15"_s});
    QCOMPARE(rows(others), before);
}

void FrmContactsTest::refuses_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("box");
    QTest::newRow("blank")
        << u"dtcmbfname"_s << u"  "_s
        << u"First, Last and Company are blank. At least one of these should not be blank."_s;
    QTest::newRow("no view") << u"cmbnview"_s << u"nonsense"_s << u"Not a Valid Name View"_s;
    QTest::newRow("no name") << u"cmbnview"_s << u"Company"_s
                             << u"Either Name or Company should be entered"_s;
    QTest::newRow("no date") << u"DateBday"_s << u"someday"_s << QString();
}

void FrmContactsTest::refuses()
{
    QFETCH(QString, control);
    QFETCH(QString, text);
    QFETCH(QString, box);
    open();
    type(u"dtcmbfname"_s, u"Ann"_s);
    if (control == u"DateBday")
        QTest::keyClicks(child<QWidget>(m_form, control), text);
    else
        type(control, text);
    if (!box.isEmpty())
        m_fixture->boxes.expect(box);
    click(u"Command1"_s);
    // A date that is none has no box: the focus goes to it.
    QCOMPARE(m_form->focusWidget() == child<QWidget>(m_form, u"DateBday"_s), box.isEmpty());
    QCOMPARE(rows(u"select id from cnt_main"_s).size(), 12);
}

void FrmContactsTest::nothingTypedIsLostSilently()
{
    const QString question = u"What you entered was not saved. Do you want to discard it?"_s;
    open()->showContact(1);
    auto* list = child<widgets::RecordList>(m_form, u"DBList1"_s);
    type(u"txtMobile"_s, u"55"_s);
    m_fixture->boxes.expect(question, Answer::No);
    list->selectKey(3);
    QTRY_COMPARE(list->currentKey(), 1);
    QCOMPARE(text(u"txtMobile"_s), u"55"_s);
    m_fixture->boxes.expect(question, Answer::No);
    click(u"SSCommand3"_s);
    QCOMPARE(text(u"dtcmbfname"_s), u"Rahul"_s);
    m_fixture->boxes.expect(question, Answer::No);
    QVERIFY(!m_form->mayClose());
    m_fixture->boxes.expect(question, Answer::No);
    QVERIFY(m_form->showContact(3)); // another screen asks for it
    QCOMPARE(text(u"dtcmbfname"_s), u"Rahul"_s);
    m_fixture->boxes.expect(question, Answer::Yes);
    list->selectKey(3);
    QCOMPARE(text(u"dtcmbfname"_s), u"Priya"_s);
    type(u"txtMobile"_s, u"66"_s);
    QTest::keyClick(m_form, Qt::Key_Escape);
    QCOMPARE(text(u"txtMobile"_s), u"9890011111"_s);
    QVERIFY(m_form->mayClose());
}

void FrmContactsTest::mailClientAndSchedulerFollow()
{
    m_fixture->execute(u"delete * from ovs_schedular"_s);
    m_fixture->execute(u"insert into cntb_setup (UpdOutllook) values (true)"_s);
    platform::MailContact known;
    known.key = u"1OV"_s;
    known.spouse = u"Priya"_s;
    m_fixture->mailContacts.add(known);
    open()->showContact(1);
    type(u"dtcmbcity"_s, u"Pune"_s);
    click(u"Command1"_s);
    click(u"SSCommand3"_s);
    type(u"dtcmbfname"_s, u"Ann"_s);
    type(u"DateBday"_s, u"Feb 01-1988"_s);
    click(u"Command1"_s);
    QCOMPARE(m_fixture->mailContacts.calls, (QStringList{u"add 1OV"_s, u"update 1OV"_s, u"add 13OV"_s}));
    QCOMPARE(m_fixture->mailContacts.contacts[0].spouse, u"Priya"_s); // not on the form
    QCOMPARE(m_fixture->mailContacts.contacts[0].home.city, u"Pune"_s);
    QCOMPARE(rows(u"select Date from ovs_schedular where b_a_id='13Bd' order by Date"_s).size(), 3);
}

void FrmContactsTest::deleteShowsTheNext()
{
    open()->showContact(10);
    m_fixture->boxes.expect(u"Are you sure you want to delete this record?"_s, Answer::Yes);
    click(u"CmdDelete"_s);
    QCOMPARE(text(u"dtcmbfname"_s), u"Priya"_s);
    QCOMPARE(m_fixture->shared.selectedContactId, 3);
}

void FrmContactsTest::contactThatHasGoneIsSaidSo()
{
    open()->showContact(1);
    m_fixture->execute(u"delete * from cnt_main where id= 1"_s);
    type(u"txtMobile"_s, u"55"_s);
    m_fixture->boxes.expect(
        u"This contact was deleted while you were changing it. What you entered is still here."_s);
    click(u"Command1"_s);
    QCOMPARE(text(u"txtMobile"_s), u"55"_s);
}

// Kept: the preferred address is the one at work, the other that at home.
void FrmContactsTest::quickFillAsksBeforeItReplaces()
{
    open();
    const QString file = support::put(m_fixture->root.filePath(u"a.vcf"_s),
        "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Zo\xe9 Mary "
        "Lee\r\nORG:Tea;x\r\nTEL;WORK;VOICE:5\r\nBDAY:19800305\r\n"
        "EMAIL;PREF;INTERNET:w@x\r\nEMAIL;INTERNET:\r\nEMAIL;INTERNET:h@x\r\n"
        "ADR;HOME:;;1 Lane;Pune;MH;411;India\r\nEND:VCARD\r\n");
    type(u"txtcmpny"_s, u"Coffee"_s);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        m_fixture->boxes.expectChoice(u"Quick fill"_s, file);
        m_fixture->boxes.expect(
            u"Replace what stands in these fields by what the card has?\n\nCompany"_s, answer);
        click(u"CmdVCF"_s);
        QCOMPARE(text(u"txtcmpny"_s), answer == Answer::No ? u"Coffee"_s : u"Tea"_s);
        QCOMPARE(text(u"dtcmblname"_s), answer == Answer::No ? QString() : u"Lee"_s);
    }
    click(u"Command1"_s);
    QCOMPARE(rows(u"select First, Last, B_Ph1, b_email1, H_email1, h_add1, h_city, h_pin, M_BD from cnt_main "
                  u"order by id desc"_s)
                 .constFirst(),
        u"Zoé Mary|Lee|5|w@x|h@x|1 Lane|Pune|411|1980-03-05"_s);
}

QTEST_MAIN(FrmContactsTest)
#include "FrmContacts_test.moc"
