#include "entry_form.h"

#include "core/handover/word_picker.h"
#include "entry/assists/assist_panel.h"
#include "support/columns.h"
#include "support/disk.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;

namespace {

/// Stands for the screen with the streets of a city.
class Streets final : public core::Screen, public core::WordPicker {
public:
    using Screen::Screen;
    void load() override { }
    bool hasWords(const QString&, const QString& word) override { return word.startsWith(u"ga"); }
    std::optional<QString> pickWord(const QString& city, const QString& word) override
    {
        asked << city + u'/' + word;
        return u"Gardens"_s;
    }
    QStringList asked;
};

} // namespace

/// What the detailed form fills in while a person types and picks.
class AssistsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<EntryForm>();
        for (const QString& row :
            {u"WIA_GLOBALMAS (id,country,type) values (1,'India','M')"_s,
                u"WIA_GLOBALMAS (id,country,type) values (2,'United States','M')"_s,
                u"WIA_GLOBALMAS (id,country,type) values (3,'Fiji','')"_s,
                u"WIA_CITY (city,state,State_full,region,cityisd,[country id],zip) values "
                "('Boston','MA','Massachusetts','East','617',2,'02108')"_s,
                u"WIA_INDIA (city,state,std,[Pin Prefix],region) values ('Pune','Maharashtra','020','411','West')"_s,
                u"wia_cntnames (first,last,gender,national) values ('Asha','Rao','Female','C')"_s,
                u"wia_cntnames (first,last,gender,national) values ('Ben','Reed','Male','C')"_s,
                u"wia_company (name,national) values ('Tea Board','C')"_s,
                u"OV_CmmWrds (word) values ('gardener')"_s, u"OV_CmmWrds (word) values ('office')"_s,
                u"CNTB_CATEGORIES (CATEGORY1,CATEGORY2) values ('Friends','School')"_s,
                u"CNTB_OTHER (USER1) values ('red')"_s, u"cntb_setup (categ1) values ('')"_s})
            m_fixture->execute(u"insert into "_s + row);
    }

    void cleanup()
    {
        QCOMPARE(m_fixture->verify(), QString());
        m_fixture.reset();
    }

    void nothingIsReadBeforeItIsSeen()
    {
        m_fixture->start();
        QCOMPARE(m_fixture->child<QComboBox>(u"dtcmbfname"_s)->count(), 0);
        QCOMPARE(assistRows(), QStringList());
        QStringList first = values(u"dtcmbfname"_s);
        first.sort();
        QCOMPARE(first, (QStringList{u"Asha"_s, u"Ben"_s}));
        QCOMPARE(values(u"cmbnview"_s).size(), 6);
        QCOMPARE(values(u"Cmbtitle"_s).join(u' '), u"Dr. Miss. Mr. Mrs. Ms. Prof."_s);
        QCOMPARE(values(u"CmbSex"_s).join(u' '), u"Male Female Lesbians Gays"_s);
        QCOMPARE(values(u"cmbpriority"_s).join(u' '), u"1 2 3 4 5"_s);
        QCOMPARE(values(u"dtcmbcity"_s), QStringList());
        // Some lists follow another field.
        QCOMPARE(values(u"DtcmbSubCate"_s), QStringList());
        m_fixture->set(u"DtcmbCate"_s, u"Friends"_s);
        QCOMPARE(values(u"DtcmbSubCate"_s), QStringList{u"School"_s});
        for (const auto& [sex, spouse] :
            {std::pair{u"Male"_s, u"Asha"_s}, std::pair{u"Female"_s, u"Ben"_s}}) {
            m_fixture->set(u"CmbSex"_s, sex);
            QCOMPARE(values(u"dtcspouse"_s), QStringList{spouse});
        }
    }

    void sexByFirstName_data()
    {
        support::columns<QString, QString>("first", "sex");
        QTest::newRow("known") << u"asha"_s << u"Female"_s;
        QTest::newRow("not known keeps what was there") << u"Zoe"_s << u"Gays"_s;
        QTest::newRow("an apostrophe fails quietly") << u"D'Arcy"_s << u"Gays"_s;
    }

    void sexByFirstName()
    {
        QFETCH(QString, first);
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->set(u"CmbSex"_s, u"Gays"_s);
        if (first.contains(u'\''))
            m_fixture->book.expectFailure(u"first='D'Arcy'"_s);
        m_fixture->type(u"dtcmbfname"_s, first);
        QTEST(m_fixture->text(u"CmbSex"_s), "sex");
        QCOMPARE(m_fixture->text(u"dtcmbfname"_s), first);
    }

    void companyFromItsParts()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->set(u"txtcmpnyPrefix"_s, u"Tea"_s);
        m_fixture->set(u"txtcmpnySuffix"_s, u"Ltd"_s);
        QCOMPARE(m_fixture->text(u"txtcmpny"_s), u"Tea Ltd"_s);
        QCOMPARE(m_fixture->text(u"cmbnview"_s), u"Company"_s);
        m_fixture->set(u"dtcmbfname"_s, u"Asha"_s);
        m_fixture->set(u"cmbnview"_s, u"First,Last"_s);
        m_fixture->type(u"txtcmpny"_s, u"Steel"_s);
        QCOMPARE(m_fixture->text(u"cmbnview"_s), u"First,Last"_s);
    }

    void nameLabel()
    {
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->set(u"dtcmbfname"_s, u"Asha"_s);
        m_fixture->set(u"dtcmblname"_s, u"<b>Rao"_s);
        QCOMPARE(m_fixture->text(u"lblname"_s), QString());
        m_fixture->set(u"cmbnview"_s, u"Last,First"_s);
        QCOMPARE(m_fixture->text(u"lblname"_s), u"Mr. <b>Rao , Asha"_s);
        QCOMPARE(m_fixture->child<QLabel>(u"lblname"_s)->textFormat(), Qt::PlainText);
    }

    void cityLeft_data()
    {
        support::columns<QString, QString, QString, QString, QString, QString>(
            "control", "set", "city", "country", "after", "otherCountry");
        const QString home = u"Maharashtra|411|020|India"_s;
        QTest::newRow("home country, in all sets")
            << u"dtcmbcity"_s << u""_s << u"Pune"_s << u"India"_s << home << u"India"_s;
        QTest::newRow("work 1") << u"dtcmbbcity"_s << u"b"_s << u"Pune"_s << u"india"_s << home << u"India"_s;
        QTest::newRow("work 2 abroad") << u"dtcmbwcity"_s << u"w"_s << u"boston"_s << u""_s
                                       << u"MA|02108|617|United States"_s << u"old"_s;
        QTest::newRow("the other page's home city") << u"dtcmbcity1"_s << u""_s << u"Boston"_s << u""_s
                                                    << u"MA|02108|617|United States"_s << u"old"_s;
        QTest::newRow("not known clears, the city stays")
            << u"dtcmbcity"_s << u""_s << u"Atlantis"_s << u"old"_s << u"|||old"_s << u"old"_s;
        QTest::newRow("a wildcard") << u"dtcmbcity"_s << u""_s << u"*"_s << u""_s << u"|||"_s << u"old"_s;
    }

    void cityLeft()
    {
        QFETCH(QString, control);
        QFETCH(QString, set);
        QFETCH(QString, city);
        QFETCH(QString, country);
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        for (const QString& each : {u""_s, u"b"_s, u"w"_s}) {
            for (const QString& name :
                {u"dtcmb%1state"_s, u"dtcmb%1pin"_s, u"txt%1std"_s, u"dtcmb%1country"_s})
                m_fixture->set(name.arg(each), u"old"_s);
        }
        m_fixture->set(u"dtcmb%1country"_s.arg(set), country);
        m_fixture->type(control, city);
        QTEST(address(set), "after");
        QTEST(m_fixture->text(set == u"b" ? u"dtcmbwcountry"_s : u"dtcmbbcountry"_s), "otherCountry");
        QCOMPARE(m_fixture->text(control), city);
        if (set.isEmpty())
            QCOMPARE(m_fixture->text(u"dtcmbcity"_s), m_fixture->text(u"dtcmbcity1"_s));
    }

    void typedCodesStay()
    {
        m_fixture->addContact(u"name,first,h_city,h_std"_s, u"'Asha','Asha','Pune','999'"_s);
        m_fixture->start();
        QVERIFY(m_fixture->form()->showContact(1));
        QCOMPARE(m_fixture->text(u"txtstd"_s), u"999"_s);
        m_fixture->child<QWidget>(u"dtcmbcity"_s)->setFocus();
        QTest::keyClick(m_fixture->child<QWidget>(u"dtcmbcity"_s), Qt::Key_Tab);
        QCOMPARE(m_fixture->text(u"txtstd"_s), u"999"_s);
    }

    void scopeButtons()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.click(u"ssassist"_s);
        QCOMPARE(f.child<QComboBox>(u"cboCountry"_s)->itemText(0), u"All"_s);
        QCOMPARE(f.child<QComboBox>(u"cboState"_s)->count(), 0);
        QCOMPARE(assistRows(), QStringList{u"Boston"_s});
        for (const auto& [button, country, states] :
            {std::tuple{u"Option2"_s, u"United States"_s, u"All,MA"_s},
                std::tuple{u"Option3"_s, u"India"_s, u"All,Maharashtra"_s}}) {
            for (const QString& set : {u""_s, u"b"_s, u"w"_s})
                f.set(u"dtcmb%1state"_s.arg(set), u"old"_s);
            f.click(button);
            for (const QString& set : {u""_s, u"b"_s, u"w"_s})
                QCOMPARE(address(set), QString(u"|||"_s + country));
            QStringList shown;
            auto* state = f.child<QComboBox>(u"cboState"_s);
            for (int i = 0; i < state->count(); ++i)
                shown << state->itemText(i);
            QCOMPARE(shown.join(u','), states);
        }
        f.click(u"Option1"_s);
        QCOMPARE(f.child<QComboBox>(u"cboState"_s)->count(), 0);
        QCOMPARE(f.child<QComboBox>(u"cboCountry"_s)->count(), 4);
        f.click(u"chkType"_s);
        QCOMPARE(f.child<QComboBox>(u"cboCountry"_s)->count(), 3); // without Fiji
        QCOMPARE(assistRows(), QStringList());
        // A state of the home country names a wrong column: the list is empty, and nobody is told.
        f.shared.NationalMode = true;
        f.click(u"chkType"_s);
        f.click(u"Option3"_s);
        QCOMPARE(assistRows(), QStringList{u"Pune"_s});
        f.book.expectFailure(u"cboState"_s);
        f.child<QComboBox>(u"cboState"_s)->setCurrentText(u"Maharashtra"_s);
        QCOMPARE(assistRows(), QStringList());
    }

    void picks()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.click(u"ssassist"_s);
        auto* tabs = f.child<QTabBar>(u"SSActiveTabs1"_s);
        tabs->setCurrentIndex(3);
        pick(u"Tea Board"_s);
        QCOMPARE(f.text(u"txtcmpny"_s), u"Tea Board"_s);
        QCOMPARE(f.text(u"txtcmpnyPrefix"_s), u"Tea Board"_s);
        QCOMPARE(f.text(u"cmbnview"_s), u"Company"_s);
        tabs->setCurrentIndex(2);
        pick(u"Rao"_s);
        QCOMPARE(f.text(u"dtcmblname"_s), u"Rao"_s);
        tabs->setCurrentIndex(1);
        pick(u"Asha"_s);
        QCOMPARE(f.text(u"dtcmbfname"_s), u"Asha"_s);
        QCOMPARE(f.text(u"CmbSex"_s), u"Female"_s);
        tabs->setCurrentIndex(0);
        f.click(u"Option2"_s);
        f.showPageOf(u"dtcmbwcity"_s);
        pick(u"Boston"_s);
        QCOMPARE(f.text(u"dtcmbwcity"_s), u"Boston"_s);
        QCOMPARE(address(u"w"_s), u"MA|02108|617|United States"_s);
        QCOMPARE(f.text(u"dtcmbregion"_s), u"East"_s);
        QCOMPARE(f.text(u"LblStateFull"_s), u"Massachusetts"_s);
        f.showPageOf(u"dtcmbcity1"_s);
        pick(u"Boston"_s);
        QCOMPARE(f.text(u"dtcmbcity1"_s), u"Boston"_s);
    }

    void keyPad()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.click(u"ssassist"_s);
        f.click(u"Command9_1"_s); // no phone field had the focus yet
        for (const auto& field : {u"txtph1"_s, u"txtwxtn"_s, u"txtspmobile"_s}) {
            f.showPageOf(field);
            f.child<QWidget>(field)->setFocus();
            QTest::keyClicks(f.child<QWidget>(field), u"5"_s);
            f.showPageOf(u"Cmbtitle"_s);
            f.child<QWidget>(u"Cmbtitle"_s)->setFocus();
            for (const auto& key : {u"Command9_7"_s, u"Command9_10"_s, u"Command9_11"_s})
                f.click(key);
            QCOMPARE(f.text(field), u"57*0"_s);
        }
    }

    void keyFilters()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.type(u"txtstd"_s, u"0a2-B'0"_s);
        QCOMPARE(f.text(u"txtstd"_s), u"02-'0"_s);
        f.type(u"cmbpriority"_s, u"x1.5.'"_s);
        QCOMPARE(f.text(u"cmbpriority"_s), u"1.5"_s);
        f.type(u"txtph1"_s, u"call home"_s); // telephones have no format
        QCOMPARE(f.text(u"txtph1"_s), u"call home"_s);
    }

    void autotextOfAnAddress()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.set(u"dtcmbcity1"_s, u"Pune"_s);
        auto* line = f.child<QLineEdit>(u"txtadd2"_s);
        line->setFocus();
        QTest::keyClicks(line, u"12 ga."_s); // nobody has words yet: the point is a point
        QCOMPARE(line->text(), u"12 ga."_s);
        f.screens.add<Streets>(u"FrmColony"_s);
        line->clear();
        QTest::keyClicks(line, u" M.G. "_s); // and where none begins so
        QCOMPARE(line->text(), u" M.G. "_s);
        line->clear();
        QTest::keyClicks(line, u"12 gard."_s);
        auto* streets = dynamic_cast<Streets*>(f.screens.find(u"FrmColony"));
        QVERIFY(streets);
        QCOMPARE(streets->asked.constLast(), u"Pune/gar"_s);
        QCOMPARE(line->text(), u"12 Gardens"_s);
    }

    void commonWordsOfANote()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.showPageOf(u"txtMemo"_s);
        auto* note = f.child<QPlainTextEdit>(u"txtMemo"_s);
        auto* words = f.child<widgets::HeadingGrid>(u"FG1"_s);
        note->setFocus();
        QTest::keyClicks(note, u"the GAR"_s);
        QCOMPARE(words->rowCount(), 1);
        support::doubleClickRow(words, 0);
        QCOMPARE(note->toPlainText(), u"the gardener"_s);
        QTest::keyClicks(note, u" "_s);
        QCOMPARE(words->rowCount(), 2);
        // A point and letters that were taken back again do not belong to the word, and a pick leaves what is
        // before it.
        QTest::keyClicks(note, u"off."_s);
        support::doubleClickRow(words, 0);
        QTest::keyClicks(note, u" gar"_s);
        QTest::keyClick(note, Qt::Key_Backspace);
        support::doubleClickRow(words, 0);
        QCOMPARE(note->toPlainText(), u"the gardener office gardener"_s);

        f.execute(u"insert into OV_CmmWrds (word) values ('O''Brien *')"_s);
        QTest::keyClicks(note, u" O'B"_s);
        QCOMPARE(words->rowCount(), 1);
        support::doubleClickRow(words, 0);
        QCOMPARE(note->toPlainText(), u"the gardener office gardener O'Brien *"_s);
        QTest::keyClicks(note, u" *"_s);
        QVERIFY(words->isHidden()); // no word begins with it
    }

    void userLabels()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        f.showPageOf(u"lbluser2"_s);
        for (const QString& typed : {u"Blood's group"_s, u"  "_s}) {
            f.click(u"lbluser2"_s);
            QVERIFY(f.shows(u"txtlbl"_s));
            auto* line = f.child<QLineEdit>(u"txtlbl"_s);
            QCOMPARE(line->text(), QString());
            line->setText(typed);
            QTest::keyClick(line, Qt::Key_Return);
            QVERIFY(!f.shows(u"txtlbl"_s));
            QCOMPARE(f.text(u"lbluser2"_s), u"Blood's group"_s);
        }
        QCOMPARE(f.book.rows(u"select lbluse1,lbluse2,lbluse3 from cntb_setup"_s),
            QStringList{u"null|Blood's group|null"_s});
    }

    void userValues()
    {
        EntryForm& f = *m_fixture;
        f.start();
        f.click(u"SSCommand3"_s);
        for (const QString& value : {u"blue"_s, u"RED"_s, u" "_s, u"blue"_s})
            f.type(u"cmbuser1"_s, value);
        f.type(u"cmbuser2"_s, u"blue"_s);
        QCOMPARE(f.book.rows(u"select user1,user2 from CNTB_OTHER"_s),
            (QStringList{u"red|null"_s, u"blue|null"_s, u"null|blue"_s}));
        QCOMPARE(f.child<widgets::FilledCombo>(u"cmbuser1"_s)->values().size(), 2);
        f.book.expectFailure(u"user1='o'clock'"_s);
        f.type(u"cmbuser1"_s, u"o'clock"_s);
    }

    void pictures_data()
    {
        support::columns<QByteArray, bool, QString>("content", "taken", "mode");
        QByteArray picture;
        QBuffer buffer(&picture);
        QImage(8, 8, QImage::Format_RGB32).save(&buffer, "PNG");
        QTest::newRow("a picture") << picture << true << u"Copy"_s;
        QTest::newRow("moved, but not before the save") << picture << true << u"Move"_s;
        QTest::newRow("no picture") << QByteArray("hello, I am a text") << false << u"Copy"_s;
        QTest::newRow("empty") << QByteArray() << false << u"Copy"_s;
        QTest::newRow("half a picture") << picture.left(40) << false << u"Copy"_s;
        QTest::newRow("101 MB") << picture + QByteArray(101 * 1024 * 1024, '\0') << false << u"Copy"_s;
    }

    void pictures()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, taken);
        EntryForm& f = *m_fixture;
        QFETCH(QString, mode);
        f.shared.PhotoStoreMode = mode;
        f.start();
        f.click(u"SSCommand3"_s);
        const QString path = support::put(f.root.filePath(u"me.png"_s), content);
        f.boxes.expectChoice(u"Select Picture"_s, path);
        if (!taken)
            f.boxes.expect(u"This file is no picture that can be shown."_s);
        f.click(u"CmdPhto"_s);
        f.boxes.expectChoice(u"Select Picture"_s, std::nullopt);
        f.click(u"SSCommand9"_s);
        f.set(u"dtcmbfname"_s, u"Asha"_s);
        f.set(u"cmbnview"_s, u"First,Last"_s);
        QVERIFY(QFile::exists(path));
        f.click(u"Command1"_s);
        QCOMPARE(f.book.firstText(u"select PhotLoc from cnt_main"_s),
            taken ? u"C:\\OVUserFiles\\Photos\\me.png"_s : u""_s);
        QCOMPARE(QFile::exists(path), mode == u"Copy");
    }

    void handOvers()
    {
        m_fixture->addTarget(u"FrmOthers"_s);
        m_fixture->addTarget(u"FrmAddSave"_s);
        m_fixture->start();
        m_fixture->click(u"SSCommand3"_s);
        m_fixture->click(u"SSCommand8"_s);
        m_fixture->click(u"CmdSave"_s);
        QCOMPARE(m_fixture->shared.CallerForm, u"FormMain"_s);
        QCOMPARE(m_fixture->frame.placed,
            (QStringList{u"FormMain"_s, u"FrmOthers modally"_s, u"FrmAddSave modally"_s}));
    }

private:
    QStringList values(const QString& combo)
    {
        return m_fixture->child<widgets::FilledCombo>(combo)->values();
    }

    /// State, pin, code and country of one of the three address sets: "", "b" or "w".
    QString address(const QString& set)
    {
        QStringList texts;
        for (const QString& name : {u"dtcmb%1state"_s, u"dtcmb%1pin"_s, u"txt%1std"_s, u"dtcmb%1country"_s})
            texts << m_fixture->text(name.arg(set));
        return texts.join(u'|');
    }

    QStringList assistRows()
    {
        auto* list = m_fixture->child<widgets::HeadingGrid>(u"CboFilter"_s);
        QStringList rows;
        for (int row = 0; row < list->rowCount(); ++row)
            rows << list->textAt(row, u"Name"_s);
        rows.sort();
        return rows;
    }

    void pick(const QString& value)
    {
        auto* list = m_fixture->child<widgets::HeadingGrid>(u"CboFilter"_s);
        for (int row = 0; row < list->rowCount(); ++row) {
            if (list->textAt(row, u"Name"_s) == value)
                return support::doubleClickRow(list, row, list->model()->columnCount() - 1);
        }
        QFAIL(qPrintable(u"not in the list: "_s + value));
    }

    std::unique_ptr<EntryForm> m_fixture;
};

QTEST_MAIN(AssistsTest)
#include "assists_test.moc"
