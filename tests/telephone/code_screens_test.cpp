#include <QtTest>
#include <QtWidgets>

#include "core/handover/number_dialer.h"
#include "core/handover/word_picker.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "telephone/register_telephone.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using support::click;
using widgets::child;

namespace {

/// Stands for the screen that dials.
class Dialer final : public core::Screen, public core::NumberDialer {
public:
    using Screen::Screen;
    void load() override { }
    void offerNumber(const QString& number, const QString& who) override { offered << who + u' ' + number; }
    QStringList offered;
};

} // namespace

/// The look-ups of telephone codes, pin codes, services and streets.
class CodeScreensTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_f = std::make_unique<support::ScreenFixture>();
        m_f->book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        for (const QString& row :
            {u"WIA_GLOBALMAS (id,country,isd,zip) values (1,'India','91','NNNNNN')"_s,
                u"WIA_GLOBALMAS (id,country,isd,zip) values (2,'United States','1','NNNNN')"_s,
                u"WIA_GLOBALMAS (id,country,isd,zip) values (3,'Fiji','679','')"_s,
                u"WIA_CITY (city,state,cityisd,[country id]) values ('Boston','MA','617',2)"_s,
                u"WIA_CITY (city,state,cityisd,[country id]) values ('Salem','MA','978',2)"_s,
                u"WIA_CITY (city,state,cityisd,[country id]) values ('Salem','OR','503',2)"_s,
                u"WIA_CITY (city,state,cityisd,[country id]) values ('Suva','Central','',3)"_s,
                u"WIA_CITY (city,state,cityisd,[country id]) values ('Delhi','Delhi','11',1)"_s,
                u"WIA_INDIA (city,state,std,[Pin Prefix],chtype) values ('Pune','Maharashtra','020','411','M')"_s,
                u"WIA_INDIA (city,state,std,[Pin Prefix]) values ('Aurangabad','Bihar','06186','824')"_s,
                u"WIA_INDIA (city,state,std,[Pin Prefix]) values ('Aurangabad','Maharashtra','0240','431')"_s,
                u"WIA_CITYUTILITY (id,CITY,STATE,CATEGORY,SubCategory,uname,Address,phone1,phone2) values "
                "(7,'Pune','Maharashtra','Emergency','Police','Pune''s police','1 Hill','','112')"_s,
                u"WIA_CITYUTILITY (id,CITY,CATEGORY,uname) values (8,'Pune','Other','Museum')"_s,
                u"CNTB_CATEGORIES (CATEGORY1,[DELETED]) values ('Shops',false)"_s,
                u"cnt_address (address,area,city,national) values ('Gardens','Deccan','Pune','C')"_s,
                u"cnt_address (address,national) values ('Gate Road','C')"_s})
            m_f->execute(u"insert into "_s + row);
        m_f->shared.NationalMode = true;
        telephone::registerTelephone(m_f->screens);
        m_f->screens.add<Dialer>(u"FrmDialer"_s);
    }
    void cleanup() { QCOMPARE(m_f->verify(), QString()); }

    void codesByTab_data()
    {
        support::columns<bool, int, QString>("national", "tab", "rows");
        QTest::newRow("home") << true << 0 << u"Aurangabad 06186,Aurangabad 0240,Pune 020"_s;
        QTest::newRow("world") << false << 0 << u"Boston 617,Salem 978,Salem 503"_s;
        // A country is named anew for each of its cities, a state once.
        QTest::newRow("countries")
            << true << 1 << u"Fiji Suva,United States Boston 617,United States Salem 503,Salem 978"_s;
        QTest::newRow("India") << true << 2
                               << u"Bihar Aurangabad 06186,Maharashtra Aurangabad 0240,Pune 020"_s;
        QTest::newRow("US") << true << 3 << u"MA Boston 617,Salem 978,OR Salem 503"_s;
        QTest::newRow("US cities") << true << 4 << u"Boston 617,Salem 503,Salem 978"_s;
    }
    void codesByTab()
    {
        QFETCH(bool, national);
        QFETCH(int, tab);
        QFETCH(QString, rows);
        m_f->shared.NationalMode = national;
        open(u"FrmStdcode"_s);
        child<QTabBar>(m_form, u"SSActiveTabs1"_s)->setCurrentIndex(tab);
        QStringList wanted = rows.split(u',');
        QStringList shown = rowsOf(u"FGCity"_s);
        wanted.sort();
        shown.sort();
        QCOMPARE(shown, wanted);
    }

    void searchWhileTyping()
    {
        open(u"FrmStdcode"_s);
        click(m_form, u"chkMain"_s);
        QCOMPARE(rowsOf(u"FGCity"_s), QStringList{u"Pune 020"_s});
        QVERIFY(!child<QWidget>(m_form, u"SSCommand1"_s)->isEnabled());
        support::type(m_form, u"Text1"_s, u"au"_s);
        QTRY_COMPARE(rowsOf(u"FGCity"_s).size(), 2);
        support::type(m_form, u"Text2"_s, u"02"_s);
        QCOMPARE(child<QLineEdit>(m_form, u"Text1"_s)->text(), QString());
        const QStringList found{u"Aurangabad 0240"_s, u"Pune 020"_s};
        QTRY_COMPARE(rowsOf(u"FGCity"_s), found);
        // What breaks the statement leaves the list as it was.
        for (const auto& [typed, piece] : {std::pair{u"o'"_s, u"o'"_s}, {u"Mu["_s, u"Mu["_s}}) {
            m_f->book.expectFailure(piece);
            support::type(m_form, u"Text1"_s, typed);
            QTest::keyClick(child<QLineEdit>(m_form, u"Text1"_s), Qt::Key_Return);
            QCOMPARE(rowsOf(u"FGCity"_s), found);
            QTest::qWait(200);
            m_f->book.unexpected();
        }
        support::doubleClickRow(grid(u"FGCity"_s), 1, 1);
        QCOMPARE(child<QLineEdit>(m_form, u"Text2"_s)->text(), u"020"_s);
        click(m_form, u"SSCommand1"_s);
        QCOMPARE(dialer()->offered, QStringList{u"Pune 020"_s});
        support::type(m_form, u"Text1"_s, u""_s); // a blank text finds all
        QTRY_COMPARE(rowsOf(u"FGCity"_s).size(), 3);
    }

    void codesOfIndia()
    {
        open(u"frmstd"_s);
        support::type(m_form, u"DBCombo2"_s, u"Aurangabad"_s);
        QCOMPARE(text(u"txtstd"_s) + u' ' + text(u"txtPin"_s), u"06186 824"_s);
        support::choose(m_form, u"dcmbstate"_s, u"Maharashtra"_s);
        QCOMPARE(text(u"txtstd"_s) + u' ' + text(u"txtPin"_s), u"0240 431"_s);
        support::type(m_form, u"DBCombo2"_s, u"Nowhere's"_s);
        QCOMPARE(text(u"txtstd"_s) + text(u"txtPin"_s), QString());
        support::type(m_form, u"DBCombo1"_s, u"020"_s);
        QCOMPARE(rowsOf(u"FGPlaces"_s), QStringList{u"Pune Maharashtra 411 020"_s});
        click(m_form, u"Option1"_s);
        support::type(m_form, u"DBCombo3"_s, u"824"_s);
        support::doubleClickRow(grid(u"FGPlaces"_s), 0, 1);
        QCOMPARE(text(u"txtstd"_s), u"06186"_s);
    }

    void codesOfTheWorld()
    {
        open(u"Frmintstd"_s);
        support::clickRow(grid(u"list1"_s), 2);
        QCOMPARE(text(u"txtisd"_s) + u' ' + text(u"txtPin"_s), u"1 NNNNN"_s);
        support::choose(m_form, u"dcmbstate"_s, u"OR"_s);
        support::choose(m_form, u"dcmbcountry"_s, u"All"_s);
        support::type(m_form, u"dcmbstate"_s, u"Central"_s); // leads to its country
        QCOMPARE(child<QComboBox>(m_form, u"dcmbcountry"_s)->currentText(), u"Fiji"_s);
        support::choose(m_form, u"dcmbcountry"_s, u"United States"_s);
        support::choose(m_form, u"DBCombo2"_s, u"Boston"_s);
        QCOMPARE(text(u"txtstd"_s), u"617"_s);
        support::type(m_form, u"DBCombo1"_s, u"11"_s);
        QCOMPARE(rowsOf(u"FGPlaces"_s), QStringList{u"Delhi Delhi India"_s});
        support::type(m_form, u"DBCombo1"_s, u"503"_s); // of the other city of that name
        support::doubleClickRow(grid(u"FGPlaces"_s), 0, 1);
        QCOMPARE(text(u"txtstd"_s), u"503"_s);
        click(m_form, u"Option1"_s);
        support::type(m_form, u"DBCombo3"_s, u"NNNNN"_s);
        QCOMPARE(rowsOf(u"FGPlaces"_s), QStringList{u"United States"_s});
    }

    void aServiceIsCopiedOnce()
    {
        open(u"FrmCityUtil"_s);
        m_f->boxes.expect(u"Select a city "_s);
        support::clickRow(grid(u"FG1"_s), 0, 1);
        support::type(m_form, u"DBCity"_s, u"Nowhere"_s);
        QTest::keyClick(child<QComboBox>(m_form, u"DBCity"_s)->lineEdit(), Qt::Key_Return);
        QCOMPARE(grid(u"FG1"_s)->rowCount(), 0);
        support::choose(m_form, u"DBCity"_s, u"Pune"_s);
        m_f->boxes.expect(u"Record not selected"_s);
        click(m_form, u"Label2"_s);
        support::choose(m_form, u"DBCategory"_s, u"Emergency"_s);
        support::clickRow(grid(u"FG1"_s), 0, 1);
        click(m_form, u"CmdCall"_s);
        QCOMPARE(dialer()->offered, QStringList{u"Pune's police 020112"_s});
        for (const QString& category : {u""_s, u"Utilities"_s, u"Shops"_s}) {
            support::type(m_form, u"DBCombo1"_s, category);
            if (category != u"Utilities")
                m_f->boxes.expect(category.isEmpty() ? u"Please select category"_s
                                                     : u"This utility already existng in Orvane Contacts"_s);
            click(m_form, u"Label2"_s);
        }
        const QString sql
            = u"select Name,h_city,b_city,category1,category2,b_add1,b_state,B_std,B_Ph1,B_Ph2,code_1b "
              "from cnt_main"_s;
        QCOMPARE(m_f->book.rows(sql),
            QStringList{u"Pune's police|Pune|Pune|Utilities|Police|1 Hill|Maharashtra|020|null|112|CU7"_s});
        QCOMPARE(rowsOf(u"FG2"_s), QStringList{u"Pune Police Pune's police"_s});
        click(m_form, u"SSCommand4"_s);
        QCOMPARE(child<QPushButton>(m_form, u"SSCommand4"_s)->text(), u"View City Wise"_s);
        const auto undo = m_f->frame.noticeAction;
        undo();
        QCOMPARE(m_f->book.rows(sql), QStringList());
        support::choose(m_form, u"DBCategory"_s, u"Other"_s);
        support::clickRow(grid(u"FG1"_s), 0, 1);
        m_f->boxes.expect(u"No phone numbers to dial"_s);
        click(m_form, u"CmdCall"_s);
    }

    // A form waits for the word; the keys are those of the list, while the line keeps the focus.
    void aStreetIsPicked()
    {
        auto* picker = m_f->screens.load<core::WordPicker>(u"FrmColony");
        QVERIFY(picker->hasWords(u"Agra"_s, u"ga"_s));
        QVERIFY(!picker->hasWords(u"Agra"_s, u"hill's"_s));
        QVERIFY(picker->hasWords(u"Pune"_s, u"hill"_s));
        const auto pickBy = [&](const QString& city, const QList<Qt::Key>& keys) {
            QTimer::singleShot(50, this, [keys] {
                QWidget* dialog = QApplication::activeModalWidget();
                for (const Qt::Key key : keys)
                    QTest::keyClick(child<QLineEdit>(dialog, u"Text1"_s), key);
            });
            return picker->pickWord(city, city == u"Pune" ? u"hill"_s : u"ga"_s);
        };
        QCOMPARE(pickBy(u"Agra"_s, {Qt::Key_Down, Qt::Key_Return}), std::optional(u"Gate Road"_s));
        QCOMPARE(pickBy(u"Pune"_s, {Qt::Key_Return}), std::optional(u"Deccan"_s));
        QCOMPARE(pickBy(u"Agra"_s, {Qt::Key_Escape}), std::optional<QString>());
        m_f->screens.show(u"FrmColony");
        support::clickRow(child<widgets::HeadingGrid>(m_f->screens.find(u"FrmColony"), u"Grid1"_s), 0);
        QCOMPARE(QApplication::clipboard()->text(), u"Gardens"_s);
    }

    void nothingBreaksWithoutReferenceRows()
    {
        for (const QString& table : {u"WIA_GLOBALMAS"_s, u"WIA_CITY"_s, u"WIA_INDIA"_s, u"WIA_CITYUTILITY"_s})
            m_f->execute(u"drop table "_s + table);
        m_f->boxes.answerAll(platform::Answer::No);
        for (const QString& form : {u"FrmStdcode"_s, u"frmstd"_s, u"Frmintstd"_s, u"FrmCityUtil"_s})
            open(form);
        m_f->book.unexpected();
    }

private:
    void open(const QString& form)
    {
        m_f->screens.show(form);
        m_form = m_f->screens.find(form);
    }
    widgets::HeadingGrid* grid(const QString& name) const
    {
        return child<widgets::HeadingGrid>(m_form, name);
    }
    Dialer* dialer() const { return dynamic_cast<Dialer*>(m_f->screens.find(u"FrmDialer")); }
    QString text(const QString& name) const { return child<QLineEdit>(m_form, name)->text(); }
    /// What is seen of each row.
    QStringList rowsOf(const QString& name) const
    {
        QStringList rows;
        const QAbstractItemModel* model = grid(name)->model();
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column)
                cells << model->index(row, column).data().toString();
            rows << cells.join(u' ').simplified();
        }
        return rows;
    }

    std::unique_ptr<support::ScreenFixture> m_f;
    core::Screen* m_form = nullptr;
};

QTEST_MAIN(CodeScreensTest)
#include "code_screens_test.moc"
