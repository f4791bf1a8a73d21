#include "support/columns.h"
#include "support/screen_fixture.h"
#include "views/contact_pages/frmCntViewer.h"
#include "views/contact_pages/linked_records.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using widgets::child;

/// The viewer of linked records: each list finds what belongs to the contact, and nothing else.
class FrmCntViewerTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        for (const QString& sql :
            {
                u"insert into cnt_main (Name, First, Last, Asso1, Spouse) values ('Ann Lee','Ann','Lee','Bob','Max')"_s,
                u"insert into cnt_main (Name, asso2) values ('Bob','Ann Lee')"_s,
                u"insert into cnt_main (Name, gen_id, fmtree, Asso1) values ('Sean O''Brien','1',true,'Bob')"_s,
                u"insert into cnt_letters (PerId, person, type1, MERGED) values (1,'Ann Lee','Sent','Dear Ann')"_s,
                u"insert into cnt_letters (PerId, person) values (2,'Ann Lee')"_s,
                u"insert into cnt_emails (PerId, Subject, desc) values (1,'Hello','Body')"_s,
                u"insert into time_email (PerId, Subject) values (1,'Later')"_s,
                u"insert into cnt_phcall (PerId, Numb) values (1,'123')"_s,
                u"insert into cnt_phcall (PerId, Numb) values (1,'124')"_s,
                u"insert into cnt_phlist (PerId, listname) values (1,'L')"_s,
                u"insert into cnt_phonenum (PerId, List) values (1,'M')"_s,
                u"insert into cnt_maillist (perid, listname) values (1,'Xmas')"_s,
                u"insert into cnt_assogrp ([Group]) values ('Chess')"_s,
                u"insert into cnt_assomember (GroupID, cntid, Name, designation) values (1,1,'Ann Lee','Chair')"_s,
                u"insert into cnt_association (GroupID, groupnam, Place) values (1,'Chess','Hall')"_s,
                u"insert into ovs_schedular (person, b_a_id) values ('Ann Lee','x')"_s,
                u"insert into ovs_schedular (person, b_a_id) values ('else','1An')"_s,
                u"insert into ovs_schedular (person, b_a_id) values ('else','11An')"_s,
                u"insert into OV_JOURNAL (person1, categ1) values ('ann lee','C')"_s,
            })
            m_fixture->execute(sql);
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void listsFindTheirRows_data()
    {
        support::columns<int, int>("ann", "bob");
        const std::tuple<const char*, int, int> rows[] = {{"Letters", 1, 1}, {"Emails", 1, 0},
            {"TimedEmails", 1, 0}, {"Calls", 2, 0}, {"PhoneLists", 1, 0}, {"QuickDial", 1, 0},
            {"MailLists", 1, 0}, {"Groups", 1, 0}, {"Meetings", 1, 0}, {"Associates", 1, 1},
            {"NamedBy", 1, 2}, {"Scheduler", 2, 0}, {"Journal", 1, 0}, {"FamilyTree", 1, 0}};
        for (const auto& [key, ann, bob] : rows)
            QTest::newRow(key) << ann << bob;
    }

    void listsFindTheirRows()
    {
        const views::LinkedList& linked = list(QString::fromLatin1(QTest::currentDataTag()));
        for (const auto& [id, column] : {std::pair{1, "ann"}, std::pair{2, "bob"}}) {
            const jet::Recordset rows = m_fixture->context.data.openRecordset(views::linkedSql(linked, id));
            QTEST(rows.count(), column);
            QTEST(m_fixture->book.firstText(views::linkedCountSql(linked, id)).toInt(), column);
            if (linked.scanned.isEmpty())
                continue;
            int found = 0; // in steps of one contact
            for (int from = 1; from <= 3; ++from)
                found += m_fixture->book.firstText(views::linkedCountSql(linked, id, from, from)).toInt();
            QTEST(found, column);
        }
    }

    void everyHeadingHasItsColumn()
    {
        for (const views::LinkedList& each : views::linkedLists()) {
            const jet::Recordset rows = m_fixture->context.data.openRecordset(views::linkedSql(each, 1));
            const QStringList columns = each.headingColumns.toString().split(u',');
            QCOMPARE(columns.size(), each.headings.count(u'|') + 1);
            for (const QString& column : columns)
                QVERIFY2(rows.columnIndex(column) >= 0, qPrintable(each.key.toString() + u' ' + column));
            QVERIFY(each.text.isEmpty() || rows.columnIndex(each.text) >= 0);
            QVERIFY(!each.contacts || rows.columnIndex(u"id") >= 0);
        }
    }

    void showsCountsAndRows()
    {
        auto* form = m_fixture->open<views::frmCntViewer>(u"frmCntViewer"_s);
        QCOMPARE(form->windowTitle(), u"Contacts Link Viewer"_s);
        QVERIFY(!child<QWidget>(form, u"LinkedRows"_s)->isVisible()); // no contact was chosen
        QVERIFY(form->showContact(1));
        QTRY_COMPARE(item(u"Calls"_s)->text(1), u"2"_s);
        QTRY_COMPARE(item(u"Below in the family tree"_s)->text(1), u"1"_s); // the last
        for (const QString& caption : {u"Family"_s, u"Letters"_s, u"Associates"_s, u"Associate of"_s})
            QCOMPARE(item(caption)->text(1), u"1"_s);
        auto* rows = child<widgets::HeadingGrid>(form, u"LinkedRows"_s);
        QCOMPARE(rows->model()->index(0, 1).data().toString(), u"Max"_s);
        child<QTreeWidget>(form, u"LinkedLists"_s)->setCurrentItem(item(u"Letters"_s));
        QCOMPARE(rows->rowCount(), 1);
        QCOMPARE(widgets::textOf(child<QWidget>(form, u"LinkedText"_s)), u"Dear Ann"_s);
        QVERIFY(form->showContact(2)); // the list that is looked at follows
        QCOMPARE(widgets::textOf(child<QWidget>(form, u"LinkedText"_s)), QString());
        QVERIFY(!form->showContact(9));
        QCOMPARE(widgets::textOf(child<QWidget>(form, u"lblname"_s)), u"Bob"_s);
    }

    void apostropheInANameBreaksNothing()
    {
        auto* form = m_fixture->open<views::frmCntViewer>(u"frmCntViewer"_s);
        form->showContact(3);
        QTRY_COMPARE(item(u"Associates"_s)->text(1), u"1"_s);
        for (int index = 0; index < int(views::linkedLists().size()) + 1; ++index) {
            auto* lists = child<QTreeWidget>(form, u"LinkedLists"_s);
            lists->setCurrentItem(lists->topLevelItem(index));
        }
    }

    void followsTheContactChosenElsewhere()
    {
        m_fixture->shared.selectedContactId = 2;
        auto* form = m_fixture->open<views::frmCntViewer>(u"frmCntViewer"_s);
        const auto name = [form] { return widgets::textOf(child<QWidget>(form, u"lblname"_s)); };
        QCOMPARE(name(), u"Bob"_s);
        form->showContact(3); // handed over, without being chosen
        form->hide();
        form->show();
        QCOMPARE(name(), u"Sean O'Brien"_s);
        form->hide();
        m_fixture->shared.selectedContactId = 1;
        form->show();
        QCOMPARE(name(), u"Ann Lee"_s);
    }

    void aRowThatIsAContactLeadsToIt()
    {
        auto* form = m_fixture->open<views::frmCntViewer>(u"frmCntViewer"_s);
        form->showContact(1);
        child<QTreeWidget>(form, u"LinkedLists"_s)->setCurrentItem(item(u"Associates"_s));
        auto* rows = child<widgets::HeadingGrid>(form, u"LinkedRows"_s);
        QTest::keyClick(rows, Qt::Key_Return);
        QCOMPARE(widgets::textOf(child<QWidget>(form, u"lblname"_s)), u"Bob"_s);
        QCOMPARE(m_fixture->shared.selectedContactId, 2);
    }

private:
    QTreeWidgetItem* item(const QString& caption) const
    {
        auto* lists = child<QTreeWidget>(m_fixture->screens.find(u"frmCntViewer"), u"LinkedLists"_s);
        return lists->findItems(caption, Qt::MatchExactly).value(0);
    }

    static const views::LinkedList& list(const QString& key)
    {
        for (const views::LinkedList& each : views::linkedLists()) {
            if (each.key == key)
                return each;
        }
        qFatal("no such list");
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
};

QTEST_MAIN(FrmCntViewerTest)
#include "frmCntViewer_test.moc"
