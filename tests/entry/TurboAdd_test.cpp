#include <QtTest>
#include <QtWidgets>

#include "core/frame.h"
#include "entry/turbo/TurboAdd.h"
#include "stored_rows.h"
#include "support/columns.h"
#include "support/contact_fields.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"
#include "widgets/record_list.h"

using namespace Qt::StringLiterals;
using platform::Answer;

namespace {

const QList<support::ContactField> kFields = support::contactFields(u"TurboAdd"_s);

const QString kSaved = u"Record Saved.\r\nDo you want to add new record ?"_s;
const QString kDiskFull
    = u"This was not stored: the disk is full.\n\nMake room on the disk and save again. What was "
      "stored before is not lost."_s;
const QString kNameless
    = u"This contact has no first name, no last name and no company. Do you want to save it "
      "without a name?"_s;
const QString kSounds = u"\\UserFiles\\Misc\\sound\\"_s;

/// The turbo form on a book with a few names, cities and words.
class TurboForm : public support::ScreenFixture {
public:
    TurboForm()
    {
        for (const QString& row : {u"WIA_GLOBALMAS (id,country) values (1,'India')"_s,
                 u"WIA_GLOBALMAS (id,country) values (2,'United States')"_s,
                 u"WIA_CITY (city,state,region,cityisd,[country id]) values ('Boston','MA','East','617',2)"_s,
                 u"WIA_CITY (city,state,region,cityisd,[country id]) values ('Salem','OR','West','503',2)"_s,
                 u"WIA_INDIA (city,state,std,region) values ('Pune','Maharashtra','020','South')"_s,
                 u"WIA_INDIA (city,state,std,region) values ('Salem','Tamil Nadu','0427','Deccan')"_s,
                 u"wia_cntnames (first,last,national) values ('Asha','Rao','N')"_s,
                 u"wia_cntnames (first,last,national) values ('Ben','Smith','C')"_s,
                 u"wia_cntnames (first,last,national) values ('Bea','Stone','C')"_s,
                 u"CNTB_CATEGORIES (CATEGORY1,CATEGORY2) values ('Friends','School')"_s,
                 u"CNT_ADDRESS (address,area,city,national) values ('Main Road','Kothrud','Pune','N')"_s})
            execute(u"insert into "_s + row);
        shared.NationalMode = true;
    }

    void start()
    {
        m_form = open<entry::TurboAdd>(u"TurboAdd"_s);
        m_form->activateWindow();
        if (!QTest::qWaitForWindowActive(m_form))
            qFatal("the form does not become active");
        list1 = child<widgets::RecordList>(u"list1"_s);
        List2 = child<widgets::RecordList>(u"List2"_s);
    }

    entry::TurboAdd* form() const { return m_form; }
    template <class T> T* child(const QString& name) const { return widgets::child<T>(m_form, name); }
    QString text(const QString& name) const { return widgets::textOf(child<QWidget>(name)); }
    void set(const QString& name, const QString& text) { widgets::setTextOf(child<QWidget>(name), text); }
    void click(const QString& name) { support::click(m_form, name); }
    void enter(const QString& name) { support::click(m_form, name); }
    bool shows(const QString& name) const { return child<QWidget>(name)->isVisibleTo(m_form); }
    QString focused() const
    {
        return m_form->focusWidget() ? m_form->focusWidget()->objectName() : QString();
    }

    QString fieldName() const { return list1->currentText(u"Name"_s); }
    void goTo(const QString& field)
    {
        for (int row = 0; row < list1->rowCount(); ++row) {
            if (list1->textAt(row, u"Name"_s) == field)
                return support::clickRow(list1, row);
        }
        qFatal("no such field");
    }
    QStringList values() const
    {
        QStringList texts;
        for (int row = 0; row < List2->rowCount(); ++row)
            texts << List2->model()->index(row, 0).data().toString();
        return texts;
    }
    void clickValue(const QString& value) { support::clickRow(List2, int(values().indexOf(value))); }
    void key(Qt::Key pressed) { QTest::keyClick(m_form->focusWidget(), pressed); }
    QStringList texts(const QStringList& names) const
    {
        QStringList result;
        for (const QString& name : names)
            result << text(name);
        return result;
    }

    widgets::RecordList* list1 = nullptr;
    widgets::RecordList* List2 = nullptr;

private:
    entry::TurboAdd* m_form = nullptr;
};

} // namespace

/// The turbo form: the ways through its fields by mouse and by keys, and what a save stores.
class TurboAddTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<TurboForm>(); }

    void cleanup()
    {
        QCOMPARE(m_fixture->verify(), QString());
        m_fixture.reset();
    }

    void opensOnTheFirstField()
    {
        TurboForm& f = *m_fixture;
        f.start();
        QCOMPARE(f.list1->rowCount(), 31);
        QCOMPARE(f.fieldName(), u"First"_s);
        QCOMPARE(f.text(u"LblListText"_s), u"First"_s);
        QCOMPARE(f.values(), (QStringList{u"Asha"_s, u"Bea"_s, u"Ben"_s}));
        QVERIFY(f.list1->hasFocus());
        QCOMPARE(f.form()->frameTitle(), u"Contacts Turbo Add"_s);
        QCOMPARE(f.form()->position(), u"Contacts Turbo Add"_s);
        QCOMPARE(f.sounds.played, QStringList{kSounds + u"Add.wav"_s});
        for (const auto& hidden : {u"Frame1"_s, u"Framekeypad"_s, u"abc"_s})
            QVERIFY2(!f.shows(hidden), qPrintable(hidden));
    }

    void fullEntryIsStoredWhole()
    {
        TurboForm& f = *m_fixture;
        f.start();
        auto expected = blankRow(f.schema);
        int number = 0;
        for (const support::ContactField& field : kFields) {
            ++number;
            const QDate date(1980, 1 + number % 12, 5 + number % 20);
            expected[field.column] = field.isDate ? date.toString(Qt::ISODate) : u"v%1"_s.arg(number);
            f.set(field.control, expected[field.column]);
        }
        for (const auto& [box, text] :
            std::initializer_list<std::pair<QString, QString>>{{u"txtcompany"_s, u"Tea"_s},
                {u"txtcompsuffix"_s, u"Ltd."_s}, {u"txtCat"_s, u" Friends - School"_s},
                {u"TxtPriority"_s, u" 4 "_s}, {u"txthemail1"_s, u"asha"_s},
                {u"txthemailSuffix"_s, u"mail.example"_s}, {u"txtwAddtype"_s, u"Plant"_s},
                {u"TxtHState"_s, u"Goa"_s}, {u"TxtWState"_s, u"MA"_s}, {u"txtwcountry"_s, u"Fiji"_s}})
            f.set(box, text);
        f.boxes.expect(kSaved, Answer::No);
        f.click(u"Command1"_s);
        expected[u"name"_s] = f.text(u"txtfirst"_s) + u' ' + f.text(u"txtlast"_s);
        // Company and suffix are joined without a blank; the states and the address type are not stored.
        expected[u"company"_s] = u"TeaLtd."_s;
        expected[u"category1"_s] = u"Friends"_s;
        expected[u"category2"_s] = u"School"_s;
        expected[u"priority"_s] = u"4"_s;
        expected[u"h_email1"_s] = u"asha@mail.example"_s;
        // The work address gets the home country.
        expected[u"w_country"_s] = expected[u"h_country"_s];
        expected[u"dateenter"_s] = expected[u"datemodi"_s] = u"2024-03-15"_s;
        QCOMPARE(storedRow(f.context.data, u"1"_s), expected);
    }

    void emptyEntryIsStored()
    {
        TurboForm& f = *m_fixture;
        f.start();
        f.boxes.expect(kNameless, Answer::No);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select id from cnt_main"_s), QStringList());
        f.boxes.expect(kNameless, Answer::Yes);
        f.boxes.expect(kSaved, Answer::No);
        f.click(u"Command1"_s);
        auto expected = blankRow(f.schema);
        for (const support::ContactField& field : kFields)
            expected[field.column] = field.isDate ? u"null"_s : QString();
        for (const auto& column : {u"category1"_s, u"category2"_s, u"status"_s, u"product"_s})
            expected[column] = u"Undefined"_s;
        expected[u"name"_s] = u" "_s;
        expected[u"company"_s] = QString();
        expected[u"priority"_s] = u"2"_s;
        expected[u"h_email1"_s] = u"@"_s;
        expected[u"w_country"_s] = QString();
        expected[u"dateenter"_s] = expected[u"datemodi"_s] = u"2024-03-15"_s;
        QCOMPARE(storedRow(f.context.data, u"1"_s), expected);
        f.set(u"txtCat"_s, u"Clients"_s);
        f.boxes.expect(kNameless, Answer::Yes);
        f.boxes.expect(kSaved, Answer::No);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select category1,category2 from cnt_main where id=2"_s),
            QStringList{u"Clients|Undefined"_s});
    }

    void mouseRoad()
    {
        TurboForm& f = *m_fixture;
        f.start();
        // A double click takes one value, not another one of the next field.
        support::doubleClickRow(f.List2, 1);
        QCOMPARE(f.texts({u"txtfirst"_s, u"txtlast"_s}), (QStringList{u"Bea"_s, QString()}));
        QCOMPARE(f.fieldName(), u"Last"_s);
        QCOMPARE(f.values(), (QStringList{u"Rao"_s, u"Smith"_s, u"Stone"_s}));
        f.clickValue(u"Stone"_s);
        f.clickValue(u"Friends-School"_s);
        QCOMPARE(f.values(), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
        f.clickValue(u"3"_s);
        QCOMPARE(f.fieldName(), u"Product"_s);
        // Streets and areas are added behind what stands there.
        f.set(u"txthadd1"_s, u"12"_s);
        f.set(u"txthcity"_s, u"Pune"_s);
        f.goTo(u"Add General"_s);
        f.clickValue(u"Main Road"_s);
        f.clickValue(u"Kothrud"_s);
        QCOMPARE(f.fieldName(), u"City"_s);
        f.goTo(u"URL"_s);
        QCOMPARE(f.values().size(), 9);
        f.clickValue(u"www.            .com"_s);
        QCOMPARE(f.texts({u"txtlast"_s, u"txtCat"_s, u"TxtPriority"_s, u"txthadd1"_s, u"txthadd2"_s,
                     u"txtHweb"_s}),
            (QStringList{u"Stone"_s, u"Friends-School"_s, u"3"_s, u"12 Main Road"_s, u"Kothrud"_s,
                u"www.            .com"_s}));
    }

    void keyboardRoad()
    {
        TurboForm& f = *m_fixture;
        f.start();
        f.key(Qt::Key_Right);
        QVERIFY(f.List2->hasFocus());
        QTest::keyClicks(f.List2, u"be"_s);
        QTest::keyClicks(f.List2, u"n"_s);
        f.key(Qt::Key_Return);
        QCOMPARE(f.text(u"txtfirst"_s), u"Ben"_s);
        // The next values have the focus, so that a person types on.
        QCOMPARE(f.text(u"LblListText"_s), u"Last"_s);
        QVERIFY(f.List2->hasFocus());
        f.key(Qt::Key_Down);
        f.key(Qt::Key_Return);
        QCOMPARE(f.text(u"txtlast"_s), u"Smith"_s);
        f.key(Qt::Key_Left);
        QVERIFY(f.list1->hasFocus());
        f.key(Qt::Key_Up);
        QCOMPARE(f.text(u"LblListText"_s), u"Last"_s);
        f.key(Qt::Key_Return);
        QVERIFY(f.List2->hasFocus());
        // The box of the field, for a value that is in no list; Enter there goes on.
        f.key(Qt::Key_Right);
        QCOMPARE(f.focused(), u"txtlast"_s);
        f.key(Qt::Key_Return);
        QCOMPARE(f.text(u"LblListText"_s), u"Category"_s);
        f.key(Qt::Key_F2);
        QCOMPARE(f.focused(), u"txtCat"_s);
        f.boxes.expect(kSaved, Answer::Yes);
        QTest::keyClick(f.form()->focusWidget(), Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(f.book.rows(u"select name from cnt_main"_s), QStringList{u"Ben Smith"_s});
        QVERIFY(f.list1->hasFocus());
    }

    void typedFields()
    {
        TurboForm& f = *m_fixture;
        f.start();
        f.goTo(u"Zip"_s);
        QCOMPARE(f.values(), QStringList());
        f.key(Qt::Key_Return);
        QCOMPARE(f.focused(), u"TxthZip"_s);
        QTest::keyClicks(f.form()->focusWidget(), u"411001"_s);
        f.key(Qt::Key_Return);
        QCOMPARE(f.fieldName(), u"Telcode"_s);
        QCOMPARE(f.focused(), u"txthph1"_s);
        QTest::keyClicks(f.form()->focusWidget(), u"5551234"_s);
        f.key(Qt::Key_Return);
        // No suffix is known yet, so its box waits to be typed into.
        QCOMPARE(f.fieldName(), u"Email Suffix"_s);
        QCOMPARE(f.focused(), u"txthemailSuffix"_s);
        QCOMPARE(f.texts({u"TxthZip"_s, u"txthph1"_s}), (QStringList{u"411001"_s, u"5551234"_s}));
        // Enter in a box of another field goes to the next box.
        f.enter(u"txtfirst"_s);
        f.key(Qt::Key_Return);
        QCOMPARE(f.focused(), u"txtlast"_s);
        QCOMPARE(f.fieldName(), u"Email Suffix"_s);
    }

    void digitPad()
    {
        TurboForm& f = *m_fixture;
        f.start();
        f.enter(u"txtcompany"_s);
        f.goTo(u"Telcode"_s);
        QVERIFY(f.shows(u"Framekeypad"_s) && !f.shows(u"List2"_s));
        const auto press = [&f](const QString& digits) {
            for (const QChar digit : digits)
                f.click(u"Command9_%1"_s.arg(digit));
        };
        press(u"12"_s);
        for (const auto& box : {u"txthstd"_s, u"txthph2"_s, u"txthph3"_s, u"txtwstd"_s, u"txtwph1"_s,
                 u"txtwph2"_s, u"txtwph3"_s, u"txtMobile"_s, u"txtfax"_s}) {
            f.enter(box);
            press(u"93"_s);
            f.click(u"Cmdback"_s);
            QCOMPARE(f.text(box), u"9"_s);
        }
        // A box without digits between does not change where they go.
        f.enter(u"txtcompany"_s);
        press(u"4"_s);
        QCOMPARE(f.texts({u"txthph1"_s, u"txtfax"_s, u"txtcompany"_s}),
            (QStringList{u"12"_s, u"94"_s, QString()}));
        f.click(u"SSCommand3"_s);
        f.goTo(u"Telcode"_s);
        f.click(u"Cmdback"_s);
        press(u"7"_s);
        QCOMPARE(f.texts({u"txthph1"_s, u"txtfax"_s}), (QStringList{u"7"_s, QString()}));
    }

    void calendar_data()
    {
        support::columns<bool, QString, QString, QString, QString>("national", "field", "box", "tag", "text");
        QTest::newRow("birthday at home")
            << true << u"Birthday"_s << u"dtpBirtday"_s << u"Bday"_s << u"02 Feb-1990"_s;
        QTest::newRow("anniversary abroad")
            << false << u"Anniversary"_s << u"SSDateAnn"_s << u"Ann"_s << u"Feb 02-1990"_s;
    }

    void calendar()
    {
        QFETCH(bool, national);
        QFETCH(QString, field);
        QFETCH(QString, box);
        TurboForm& f = *m_fixture;
        f.shared.NationalMode = national;
        f.start();
        f.set(box, u"1990-02-01"_s);
        f.goTo(field);
        QVERIFY(f.shows(u"abc"_s) && !f.shows(u"List2"_s));
        auto* month = f.child<QCalendarWidget>(u"abc"_s);
        QTEST(month->property("tag").toString(), "tag");
        QCOMPARE(month->selectedDate(), QDate(1990, 2, 1));
        f.key(Qt::Key_Return);
        QVERIFY(month->isAncestorOf(f.form()->focusWidget()));
        f.key(Qt::Key_Right);
        f.key(Qt::Key_Return);
        QTEST(f.text(box), "text");
        QCOMPARE(f.fieldName(), u"Anniversary"_s);
        f.goTo(field);
        support::clickDay(month, 2);
        QTEST(f.text(box), "text");
        QCOMPARE(f.fieldName(), field);
    }

    void cities_data()
    {
        // facts: country, region, code, state
        support::columns<QString, QString, QString, QStringList, QStringList>(
            "option", "country", "state", "listed", "facts");
        const QStringList india{u"India"_s, u"Deccan"_s, u"0427"_s, u"Tamil Nadu"_s};
        const QStringList usa{u"United States"_s, u"West"_s, u"503"_s, u"OR"_s};
        const QStringList american{u"Boston"_s, u"Salem"_s};
        const QStringList indian{u"Pune"_s, u"Salem"_s};
        QTest::newRow("everywhere") << u"Option1"_s << u"All"_s << QString() << american << usa;
        QTest::newRow("USA") << u"Option2"_s << u"United States"_s << u"All"_s << american << usa;
        QTest::newRow("a state") << u"Option2"_s << u"United States"_s << u"OR"_s << QStringList{u"Salem"_s}
                                 << usa;
        QTest::newRow("India") << u"Option3"_s << u"India"_s << u"All"_s << indian << india;
        QTest::newRow("India among all countries")
            << u"Option1"_s << u"India"_s << QString() << indian << india;
    }

    void cities()
    {
        QFETCH(QString, country);
        QFETCH(QString, state);
        QFETCH(QStringList, facts);
        TurboForm& f = *m_fixture;
        f.start();
        f.goTo(u"City"_s);
        QVERIFY(f.shows(u"Frame1"_s));
        QVERIFY(f.child<QRadioButton>(u"Option1"_s)->isChecked());
        QFETCH(QString, option);
        f.click(option);
        if (f.child<QComboBox>(u"cboCountry"_s)->count() > 1)
            support::choose(f.form(), u"cboCountry"_s, country);
        if (!state.isEmpty())
            support::choose(f.form(), u"cboState"_s, state);
        QCOMPARE(f.child<QComboBox>(u"cboState"_s)->currentText(), state);
        QTEST(f.values(), "listed");
        f.clickValue(u"Salem"_s);
        QCOMPARE(f.texts({u"txthcity"_s, u"txtwcity"_s}), (QStringList{u"Salem"_s, QString()}));
        for (const auto& boxes : {QStringList{u"txthcountry"_s, u"txtregion"_s, u"txthstd"_s, u"TxtHState"_s},
                 QStringList{u"txtwcountry"_s, u"txtregion"_s, u"txtwstd"_s, u"TxtWState"_s}})
            QCOMPARE(f.texts(boxes), facts);
        // Coming back, all cities are on offer again.
        f.goTo(u"City"_s);
        QCOMPARE(f.values(), (QStringList{u"Boston"_s, u"Salem"_s}));
    }

    void addressOfTheBoxLastEntered()
    {
        TurboForm& f = *m_fixture;
        f.start();
        f.enter(u"txtwadd1"_s);
        f.enter(u"txtfirst"_s); // belongs to neither address
        f.goTo(u"City"_s);
        f.clickValue(u"Boston"_s);
        // Going on to zip and telephone is no choice of the home address.
        QCOMPARE(f.focused(), u"TxtwZip"_s);
        f.key(Qt::Key_Return);
        QCOMPARE(f.focused(), u"txthph1"_s);
        f.goTo(u"URL"_s);
        f.clickValue(u"http://          .com"_s);
        QCOMPARE(f.texts({u"txthcity"_s, u"txtwcity"_s, u"txtHweb"_s, u"txtWweb"_s}),
            (QStringList{QString(), u"Boston"_s, QString(), u"http://          .com"_s}));
        f.enter(u"txthadd1"_s);
        f.goTo(u"City"_s);
        f.clickValue(u"Salem"_s);
        QCOMPARE(f.text(u"txthcity"_s), u"Salem"_s);
    }

    void sideEffects()
    {
        TurboForm& f = *m_fixture;
        f.execute(u"insert into cntb_setup (UpdOutllook,AddFav) values (true,true)"_s);
        f.start();
        for (const auto& [box, text] : std::initializer_list<std::pair<QString, QString>>{
                 {u"txtfirst"_s, u"Asha"_s}, {u"txtlast"_s, u"Rao"_s}, {u"TxtSpouse"_s, u"Ravi"_s},
                 {u"Txtkid1"_s, u"Dev"_s}, {u"TxtKid2"_s, u"Mia"_s}, {u"datekid2"_s, u"2012-04-05"_s},
                 {u"TxtKid3"_s, u"Om"_s}, {u"datekid3"_s, u"2015-06-07"_s},
                 {u"dtpBirtday"_s, u"1990-02-01"_s}, {u"SSDateAnn"_s, u"2010-11-12"_s},
                 {u"txtcompany"_s, u"Tea"_s}, {u"txtcompsuffix"_s, u"Ltd"_s}, {u"txthemail1"_s, u"asha"_s},
                 {u"txthemailSuffix"_s, u"mail.example"_s}, {u"txtWweb"_s, u"work.example"_s}})
            f.set(box, text);
        f.boxes.expect(kSaved, Answer::Yes);
        f.click(u"Command1"_s);
        // No row for the spouse, none for a kid without a date, kids by their names; and the anniversary has
        // the day of the third kid.
        QStringList expected;
        for (const int year : {2024, 2025, 2026})
            expected << u"Birthday|01-Feb-%1|Birthday of Asha Rao|Asha Rao|1Bd"_s.arg(year)
                     << u"Birthday|05-Apr-%1|Birthday of Kid Mia|Asha Rao|1Bd"_s.arg(year)
                     << u"Birthday|07-Jun-%1|Birthday of Kid Om|Asha Rao|1Bd"_s.arg(year)
                     << u"Anniversary|07-Jun-%1|Anniversary of Asha Rao|Asha Rao|1An"_s.arg(year);
        QCOMPARE(f.book.rows(u"select categ1,date,desc,person,b_a_id from ovs_schedular"_s), expected);
        QCOMPARE(f.mailContacts.calls, QStringList{u"add 1OV"_s});
        const platform::MailContact& item = f.mailContacts.contacts.back();
        QCOMPARE(item.fullName, u"Asha Rao"_s);
        QCOMPARE(item.company, u"TeaLtd"_s);
        QCOMPARE(item.email1, u"asha@mail.example"_s);
        QCOMPARE(item.workWeb, u"work.example"_s);
        // The empty home address makes no favourite.
        const std::vector<std::pair<QString, QString>> favourites{{u"Asha Rao  W"_s, u"work.example"_s}};
        QCOMPARE(f.favourites.added, favourites);
    }

    void answerAfterTheSave()
    {
        TurboForm& f = *m_fixture;
        f.execute(u"insert into cntb_setup (UpdOutllook,AddFav) values (false,false)"_s);
        f.start();
        f.set(u"txtfirst"_s, u"Asha"_s);
        f.set(u"txtHweb"_s, u"home.example"_s);
        f.goTo(u"Region"_s);
        f.boxes.expect(kSaved, Answer::No);
        f.click(u"Command1"_s);
        QCOMPARE(f.text(u"txtfirst"_s), u"Asha"_s);
        QCOMPARE(f.fieldName(), u"Region"_s);
        f.boxes.expect(kSaved, Answer::Yes);
        f.click(u"Command1"_s);
        QCOMPARE(f.text(u"txtfirst"_s), QString());
        QCOMPARE(f.fieldName(), u"First"_s);
        QCOMPARE(f.values().size(), 3);
        const QString add = kSounds + u"Add.wav"_s;
        const QString save = kSounds + u"save.wav"_s;
        QCOMPARE(f.sounds.played, (QStringList{add, save, add, save}));
        QCOMPARE(f.book.rows(u"select name from cnt_main"_s), (QStringList{u"Asha "_s, u"Asha "_s}));
        // Nothing that the set-up does not ask for.
        QCOMPARE(f.book.rows(u"select * from ovs_schedular"_s), QStringList());
        QCOMPARE(f.mailContacts.calls, QStringList());
        QVERIFY(f.favourites.added.empty());
    }

    void failingSaveKeepsTheEntry()
    {
        TurboForm& f = *m_fixture;
        f.execute(u"insert into cntb_setup (UpdOutllook,AddFav) values (true,true)"_s);
        f.start();
        f.set(u"txtfirst"_s, u"Asha"_s);
        f.set(u"TxtBusiness"_s, QString(200000, u'n'));
        {
            const support::FullDisk full;
            f.book.expectFailure(u"commit"_s);
            f.boxes.expect(kDiskFull);
            f.click(u"Command1"_s);
        }
        QCOMPARE(f.book.unexpected(), QString());
        QCOMPARE(f.text(u"txtfirst"_s), u"Asha"_s);
        QCOMPARE(f.sounds.played.size(), 1);
        QCOMPARE(f.mailContacts.calls, QStringList());
        f.set(u"TxtBusiness"_s, u"n"_s);
        f.boxes.expect(kSaved, Answer::No);
        f.click(u"Command1"_s);
        QCOMPARE(f.book.rows(u"select name from cnt_main"_s), QStringList{u"Asha "_s});
    }

    void leaving()
    {
        TurboForm& f = *m_fixture;
        f.start();
        f.set(u"txtfirst"_s, u"Asha"_s);
        f.goTo(u"Last"_s);
        f.click(u"cmdcancel"_s);
        QCOMPARE(f.text(u"txtfirst"_s), QString());
        QCOMPARE(f.fieldName(), u"First"_s);
        QCOMPARE(f.sounds.played.constLast(), kSounds + u"Cancel.wav"_s);
        f.set(u"txtfirst"_s, u"Bina"_s);
        f.enter(u"txtHweb"_s);
        f.set(u"txtHweb"_s, u"b.example"_s);
        QSignalSpy closing(f.form(), &core::Screen::closeRequested);
        f.key(Qt::Key_Escape); // blanks the box, and never closes the form
        QCOMPARE(f.text(u"txtHweb"_s), QString());
        f.key(Qt::Key_Escape);
        QCOMPARE(closing.size(), 0);
        f.click(u"CmdExit"_s);
        QCOMPARE(closing.size(), 1);
        // Closing asks nothing and loses nothing; the end of the program asks.
        QVERIFY(f.form()->mayClose());
        f.screens.unload(u"TurboAdd");
        f.boxes.expect(u"What you entered was not saved. Do you want to discard it?"_s, Answer::No);
        QVERIFY(!f.screens.mayCloseAll());
        auto* again = f.screens.find(u"TurboAdd");
        QCOMPARE(widgets::textOf(widgets::child<QWidget>(again, u"txtfirst"_s)), u"Bina"_s);
        QCOMPARE(f.book.rows(u"select id from cnt_main"_s), QStringList());
    }

private:
    std::unique_ptr<TurboForm> m_fixture;
};

QTEST_MAIN(TurboAddTest)
#include "TurboAdd_test.moc"
