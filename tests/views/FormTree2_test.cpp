#include "support/person.h"
#include "support/screen_fixture.h"
#include "views/search/FormTree2.h"
#include "views/search/place_tree.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"
#include "widgets/picture_box.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;
using widgets::child;

static QString pageOf(TreeKind kind)
{
    return kind == TreeKind::Location ? u"Location"_s : u"Category"_s;
}

/// The tree search as a screen of its own.
class FormTree2Test : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        add(u"'Ann Lee','Ann','Lee','Friends','Chess','West','India','Goa','Panaji','India','Goa','Panaji'"_s);
        add(u"'Bob Ray','Bob','Ray','A-B','Chess','West','India','Goa','Margao','Peru','Cusco','Pisac'"_s);
        add(u"'Cy Young','Cy','Young','Friends','','East',null,null,null,null,null,null"_s);
    }

    void cleanup()
    {
        m_fixture->screens.unloadAll();
        QCOMPARE(m_fixture->verify(), QString());
    }

    void kindCanBeChosenWhileItIsOpen()
    {
        open(TreeKind::Location);
        QCOMPARE(branch({})->text(0), u"Orvane Contacts-Location Wise"_s);
        QCOMPARE(m_form->windowTitle(), u"Location Tree Search"_s);
        QCOMPARE(texts({}), (QStringList{u"East"_s, u"West"_s}));
        m_form->openPage(u"Category"_s); // while it is open
        QCOMPARE(branch({})->text(0), u"Orvane Contacts-Category Wise"_s);
        QCOMPARE(texts({}), (QStringList{u"A-B"_s, u"Friends"_s}));
        QCOMPARE(widgets::textOf(control<QLabel>(u"lblcount"_s)), u"3"_s);
        QSignalSpy closing(m_form, &core::Screen::closeRequested);
        control<QAction>(u"close"_s)->trigger();
        QCOMPARE(closing.count(), 1);
    }

    void emptyBook()
    {
        m_fixture->execute(u"delete * from cnt_main"_s);
        open(TreeKind::Location);
        QCOMPARE(texts({}), QStringList());
        click({});
        QCOMPARE(listed(), QString());
        QCOMPARE(m_form->currentId(), 0);
    }

    void treeClassifiesWhatIsEmpty()
    {
        open(TreeKind::Category);
        QCOMPARE(texts({u"Friends"_s}), (QStringList{u"Chess"_s, u"Undefined"_s}));
        QCOMPARE(m_fixture->book.rows(u"select category2,h_city,b_country from cnt_main where id=3"_s),
            QStringList{u"Undefined|Undefined|Undefined"_s});
        m_fixture->execute(u"update cnt_main set category2='' where id=1"_s);
        m_form->openPage(u"Location"_s);
        QTRY_COMPARE(
            m_fixture->book.firstText(u"select category2 from cnt_main where id=1"_s), u"Undefined"_s);
    }

    void branchIsReadWhenItIsOpened()
    {
        open(TreeKind::Location);
        add(u"'Dot Fay','Dot','Fay','Work','Sales','East','Chad','Kanem','Mao','','',''"_s);
        QCOMPARE(texts({u"East"_s}), (QStringList{u"Chad"_s, u"Undefined"_s}));
        QCOMPARE(texts({u"West"_s, u"India"_s, u"Goa"_s}), (QStringList{u"Margao"_s, u"Panaji"_s}));
        QCOMPARE(branch({u"West"_s, u"India"_s, u"Goa"_s, u"Margao"_s})->childIndicatorPolicy(),
            QTreeWidgetItem::DontShowIndicatorWhenChildless);
    }

    void nodesListTheirContacts()
    {
        open(TreeKind::Location);
        click({u"West"_s, u"India"_s, u"Goa"_s, u"Panaji"_s});
        QCOMPARE(listed(), u"1"_s); // home and work are one row
        click({u"West"_s});
        QCOMPARE(listed().count(u'2'), 3); // one for each address
        m_form->openPage(u"Category"_s);
        click({u"A-B"_s, u"Chess"_s});
        QCOMPARE(listed(), u"2"_s);
        QTest::keyClick(control<QTreeWidget>(u"SSTree1"_s), Qt::Key_Up); // the category
        QTest::keyClick(control<QTreeWidget>(u"SSTree1"_s), Qt::Key_Up); // the root
        QTest::keyClick(control<QTreeWidget>(u"SSTree1"_s), Qt::Key_Return);
        QCOMPARE(listed(), u"2,1,3"_s);
    }

    void rowShowsTheContact()
    {
        m_fixture->execute(
            u"update cnt_main set h_add1='1 Hill', h_pin='403', Spouse='Di', w_ph2='77', PhotLoc='C:\\no.jpg' where id=1"_s);
        open(TreeKind::Category);
        QCOMPARE(m_fixture->shared.selectedContactId, 0);
        auto* grid = control<widgets::HeadingGrid>(u"FG1"_s);
        grid->selectKey(1);
        const auto shown = [this](const QString& name) { return widgets::textOf(control<QLabel>(name)); };
        QCOMPARE(shown(u"lblname"_s), u"Ann Lee"_s);
        QCOMPARE(shown(u"lbladd1"_s), u"1 Hill\r\n\r\nPanaji\r\nGoa\r\n403\r\nIndia"_s);
        QCOMPARE(shown(u"lblbadd1"_s), u"\r\n\r\nPanaji\r\nGoa\r\n\r\nIndia"_s);
        QCOMPARE(shown(u"lblaspouse"_s), u"Di"_s);
        QCOMPARE(shown(u"lblwph2"_s), u"77"_s);
        QVERIFY(control<widgets::PictureBox>(u"Picture1"_s)->path().endsWith(u"no.jpg"_s));
        QCOMPARE(m_fixture->shared.selectedContactId, 1);
        m_fixture->shared.selectedContactId = 9; // by another list
        const QModelIndex cell = grid->model()->index(grid->currentRow(), 1);
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->visualRect(cell).center());
        QCOMPARE(m_fixture->shared.selectedContactId, 1);
        QCOMPARE(m_fixture->shared.selectedContactName, u"Ann Lee"_s);
        click({u"A-B"_s}); // without that row
        QCOMPARE(shown(u"lblname"_s), QString());
        QCOMPARE(m_form->currentContact().name, QString());
    }

    void otherViewRunsTheSameAgain()
    {
        const auto heading = [this] {
            const auto* model = control<widgets::HeadingGrid>(u"FG1"_s)->model();
            return model->headerData(1, Qt::Horizontal).toString();
        };
        open(TreeKind::Category);
        click({u"Friends"_s, u"Chess"_s});
        QCOMPARE(heading(), u"Category"_s);
        control<QAction>(u"Name"_s)->trigger();
        QVERIFY(control<QRadioButton>(u"Option2"_s)->isChecked());
        QCOMPARE(heading(), u"First"_s);
        QCOMPARE(listed(), u"1,2"_s); // Kept: by name the category does not count
        support::click(m_form, u"Option1"_s);
        QVERIFY(control<QAction>(u"Category"_s)->isChecked());
        QCOMPARE(listed(), u"1"_s);
        m_form->showFound(u" where last like 'Ray'"_s);
        QCOMPARE(heading(), u"First"_s); // Kept: the other way round for what was searched
        QCOMPARE(listed(), u"2"_s);
    }

    void apostropheLeavesTheGridAsItWas()
    {
        jet::Recordset cy = m_fixture->context.data.openRecordset(u"select * from cnt_main where id=3");
        cy.edit();
        cy.set(u"category1", u"Friends's"_s);
        QVERIFY(cy.update());
        open(TreeKind::Category);
        click({u"A-B"_s});
        m_fixture->book.expectFailure(u"Friends's"_s);
        m_fixture->book.expectFailure(u"Friends's"_s);
        click({u"Friends's"_s});
        QCOMPARE(listed(), u"2"_s);
        control<QAction>(u"Name"_s)->trigger(); // runs what worked last
        QCOMPARE(listed(), u"2"_s);
        QCOMPARE(texts({u"Friends's"_s}), QStringList());
    }

    void seesWhatAnotherScreenSaved()
    {
        open(TreeKind::Category);
        click({u"Friends"_s, u"Chess"_s});
        m_form->hide();
        add(u"'Dot Fay','Dot','Fay','Friends','Chess','','','','','','',''"_s);
        add(u"'Eve Fay','Eve','Fay','Zoo','Apes','','','','','','',''"_s);
        m_form->show();
        QCOMPARE(listed(), u"1,4"_s);
        QVERIFY(texts({}).contains(u"Zoo"_s));
        QVERIFY(branch({u"Friends"_s})->isExpanded());
        QCOMPARE(control<PlaceTree>(u"SSTree1"_s)->currentPath(), (QStringList{u"Friends"_s, u"Chess"_s}));
    }

    void manyCategories()
    {
        {
            jet::Batch together(m_fixture->context.data);
            for (int i = 0; i < 10000; ++i)
                m_fixture->execute(u"insert into cnt_main (category1) values ('c%1')"_s.arg(i));
        }
        open(TreeKind::Category);
        QCOMPARE(texts({}).size(), 10002);
        click({u"c9999"_s});
        QCOMPARE(listed(), u"10003"_s);
    }

private:
    void open(TreeKind kind)
    {
        m_fixture->screens.add<FormTree2>(u"FormTree2"_s);
        m_form = static_cast<FormTree2*>(m_fixture->screens.load(u"FormTree2"));
        m_form->openPage(pageOf(kind));
        m_fixture->screens.show(u"FormTree2");
        QTRY_COMPARE(m_fixture->book.rows(unclassifiedSql()), QStringList()); // once it has been seen
    }

    void add(const QString& values)
    {
        m_fixture->execute(
            u"insert into cnt_main (Name,First,Last,category1,category2,region,h_country,h_state,h_city,w_country,w_state,w_city) values ("_s
            + values + u')');
    }

    QTreeWidgetItem* branch(const QStringList& path) const
    {
        return support::branchOf(control<QTreeWidget>(u"SSTree1"_s), path);
    }

    QStringList texts(const QStringList& path) const { return support::textsBelow(branch(path)); }

    void click(const QStringList& path)
    {
        QTreeWidgetItem* item = branch(path);
        auto* tree = control<QTreeWidget>(u"SSTree1"_s);
        tree->scrollToItem(item);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(item).center());
    }

    QString listed() const { return support::keysOf(control<widgets::HeadingGrid>(u"FG1"_s)); }
    template <class T> T* control(const QString& name) const { return child<T>(m_form, name); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    FormTree2* m_form = nullptr;
};

QTEST_MAIN(FormTree2Test)
#include "FormTree2_test.moc"
