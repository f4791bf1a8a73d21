#include "entry/duplicator/duplicate_columns.h"
#include "entry/duplicator/FrmDuplicator.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"
#include "widgets/record_list.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// Whether somebody named in a contact becomes one, with just the data that was asked for.
class FrmDuplicatorTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        // Every text column of the source holds its own name.
        QStringList columns;
        QStringList values;
        for (const jet::SchemaColumn& column : m_fixture->schema.table(u"cnt_main")->columns) {
            if (column.type == jet::ColumnType::Text || column.type == jet::ColumnType::Memo) {
                columns << u'[' + column.name + u']';
                values << u"'"_s + column.name + u'\'';
            }
        }
        m_fixture->execute(
            u"insert into cnt_main ("_s + columns.join(u',') + u") values ("_s + values.join(u',') + u')');
        m_fixture->execute(u"update cnt_main set Name='Ann Rao', Last='Rao', kid1='Kim', Priority='4'"_s);
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void copiesWhatIsTicked_data()
    {
        support::columns<QString, QString>("check", "columns");
        QTest::newRow("name only") << QString() << QString();
        QTest::newRow("home") << u"Check1"_s
                              << u"h_add1 h_add2 h_state h_country h_pin h_std H_Ph1 h_ph2 h_ph3 fax"_s;
        QTest::newRow("work, without the state of the second address")
            << u"Check2"_s
            << u"Product b_add1 b_add2 b_city b_state b_country b_pin B_std B_Ph1 B_Ph2 B_ph3 w_add1 w_add2 "
               u"w_city "
               "w_country w_pin w_Ph1 w_Ph2 w_ph3"_s;
        QTest::newRow("mail") << u"Check4"_s << u"h_web H_email1 h_email2 b_email1 b_email2 B_Web"_s;
        QTest::newRow("classes") << u"Check3"_s << u"Status Religion region"_s;
    }

    void copiesWhatIsTicked()
    {
        QFETCH(QString, check);
        QFETCH(QString, columns);
        open();
        choose(u"Ann Rao"_s);
        click(u"OptKid1"_s);
        for (const QString& box : {u"Check1"_s, u"Check2"_s, u"Check3"_s, u"Check4"_s})
            child<QCheckBox>(box)->setChecked(box == check);
        QCOMPARE(child<QLabel>(u"lblComing"_s)->text(), u"The new contact will be called \"Kim Rao\"."_s);
        m_fixture->boxes.expect(
            u"This operation will make the record of Kim (Kid1 of Ann Rao) in your contact list"_s,
            platform::Answer::Yes);
        click(u"CmdDuplicate"_s);
        QStringList expected{u"name=Kim Rao"_s, u"first=Kim"_s, u"last=Rao"_s, u"category1=category1"_s,
            u"category2=category2"_s, u"priority=4"_s, u"h_city=h_city"_s, u"asso1=Ann Rao"_s};
        for (const QString& column : columns.split(u' ', Qt::SkipEmptyParts))
            expected << column.toLower() + u'='
                    + m_fixture->book.firstText(u"select [%1] from cnt_main where id=1"_s.arg(column));
        expected.sort();
        QCOMPARE(newest(), expected);
        QCOMPARE(m_fixture->book.firstText(u"select DateModi from cnt_main order by id desc"_s),
            m_fixture->clock.today().toString(Qt::ISODate));
    }

    void ownClassesAndPriority()
    {
        open();
        choose(u"Ann Rao"_s);
        widgets::setTextOf(child<QWidget>(u"DBCategory"_s), u"  Friends "_s);
        widgets::setTextOf(child<QWidget>(u"DBCSub"_s), {}); // then the source's
        widgets::setTextOf(child<QWidget>(u"CmbPrio"_s), u"1"_s);
        for (int run = 0; run < 2; ++run) {
            m_fixture->boxes.expect(
                u"This operation will make the record of Spouse (Spouse of Ann Rao) in your contact list"_s,
                platform::Answer::Yes);
            click(u"CmdDuplicate"_s);
        }
        QCOMPARE(m_fixture->book.rows(u"select name,category1,category2,priority from cnt_main where id>1"_s),
            (QStringList{u"Spouse Rao|Friends|category2|1"_s, u"Spouse Rao|Friends|category2|1"_s}));
    }

    void nobodyAndNoLastName()
    {
        m_fixture->execute(u"insert into cnt_main (Name, Company) values ('Solo', 'Solo & Sons')"_s);
        open();
        choose(u"Solo"_s);
        m_fixture->boxes.expect(
            u"This operation will make the record of  (Spouse of Solo) in your contact list"_s,
            platform::Answer::Yes);
        click(u"CmdDuplicate"_s);
        click(u"OptCompanyName"_s);
        m_fixture->boxes.expect(
            u"This operation will make the record of Solo & Sons (Company of Solo) in your contact list"_s,
            platform::Answer::Yes);
        click(u"CmdDuplicate"_s);
        QCOMPARE(m_fixture->book.rows(u"select first,last,name from cnt_main where id>2"_s),
            (QStringList{u"|null| "_s, u"Solo & Sons|null|Solo & Sons "_s}));
    }

    void noIsNo()
    {
        open();
        QVERIFY(!child<QPushButton>(u"CmdDuplicate"_s)->isEnabled()); // nobody is chosen
        QVERIFY(m_form->showContact(1));
        m_fixture->boxes.expect(
            u"This operation will make the record of Spouse (Spouse of Ann Rao) in your contact list"_s,
            platform::Answer::No);
        click(u"CmdDuplicate"_s);
        QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).size(), 1);
    }

    void listIsNarrowed()
    {
        m_fixture->addTarget(u"frmFilter"_s);
        m_fixture->execute(u"insert into cnt_main (Name, category1) values ('Bob', 'Friends')"_s);
        m_fixture->execute(u"insert into CNTB_CATEGORIES (category1, category2) values ('Friends', 'Old')"_s);
        open();
        auto* list = child<widgets::RecordList>(u"DBCombo1"_s);
        QCOMPARE(list->rowCount(), 2);
        widgets::setTextOf(child<QWidget>(u"cboCateg"_s), u"Friends"_s);
        QCOMPARE(list->rowCount(), 1);
        QCOMPARE(list->textAt(0, u"name"_s), u"Bob"_s);
        click(u"CmdFilter"_s);
        QCOMPARE(m_fixture->shared.CallerForm, u"FrmDuplicator"_s);
        m_form->applyFilter(u" Where name like 'Ann*'"_s);
        QCOMPARE(list->rowCount(), 1);
        QCOMPARE(list->textAt(0, u"name"_s), u"Ann Rao"_s);
    }

    void businessHasNoFamily()
    {
        m_fixture->execute(u"insert into ov_setup (Business) values (true)"_s);
        open();
        for (const entry::DuplicateChoice& choice : entry::duplicateChoices())
            QCOMPARE(child<QWidget>(choice.option.toString())->isVisibleTo(m_form), !choice.isPersonal);
        QVERIFY(child<QRadioButton>(u"OptAltPer"_s)->isChecked());
    }

    void nameWithAnApostropheFindsNobody()
    {
        m_fixture->book.data().execute(u"update cnt_main set name='Ann O''Rao'");
        m_fixture->book.expectFailure(u"O'Rao"_s);
        open();
        choose(u"Ann O'Rao"_s);
        QVERIFY(!child<QPushButton>(u"CmdDuplicate"_s)->isEnabled());
    }

private:
    template <class T> T* child(const QString& name) { return widgets::child<T>(m_form, name); }
    void click(const QString& name) { support::click(m_form, name); }
    void choose(const QString& name)
    {
        auto* list = child<widgets::RecordList>(u"DBCombo1"_s);
        for (int row = 0; row < list->rowCount(); ++row) {
            if (list->textAt(row, u"name"_s) == name)
                return support::clickRow(list, row);
        }
        QFAIL(qPrintable(name));
    }

    void open() { m_form = m_fixture->open<entry::FrmDuplicator>(u"FrmDuplicator"_s); }

    /// Columns of the newest contact that hold something, as "column=text".
    QStringList newest()
    {
        const jet::Recordset row
            = m_fixture->book.data().openRecordset(u"select * from cnt_main order by id desc");
        QStringList cells;
        const QStringList columns = row.columns();
        for (int column = 0; column < columns.size(); ++column) {
            const QString text = row.textAt(0, column);
            const auto type = row.columnType(column);
            if (!text.isEmpty() && (type == jet::ColumnType::Text || type == jet::ColumnType::Memo)
                && columns[column].compare(u"gen_id"_s, Qt::CaseInsensitive) != 0)
                cells << columns[column].toLower() + u'=' + text;
        }
        cells.sort();
        return cells;
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    entry::FrmDuplicator* m_form = nullptr;
};

QTEST_MAIN(FrmDuplicatorTest)
#include "FrmDuplicator_test.moc"
