#include "support/person.h"
#include "support/test_book.h"
#include "views/full_view/category_tree.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;

/// The tree of categories reads a branch when it is opened.
class CategoryTreeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tree.reset();
        m_book = std::make_unique<support::TestBook>();
        jet::Recordset rows = m_book->data().openRecordset(u"select * from cnt_main");
        const QList<QStringList> people{{u"Ann"_s, u"Friends"_s, u"Chess"_s},
            {u"Bob"_s, u"Work"_s, u"Chess"_s}, {u"Cy"_s, u"Work"_s, u"Sales"_s},
            {u"Dot"_s, u""_s, u"Sales"_s}, {u"Eve"_s, u"It's"_s, u"Odd"_s}};
        for (const QStringList& person : people) {
            rows.addNew();
            rows.set(u"Name", person[0]);
            rows.set(u"category1", person[1]);
            rows.set(u"category2", person[2]);
            QVERIFY(rows.update());
        }
        m_tree = std::make_unique<CategoryTree>(m_book->data());
    }

    void branchIsReadWhenItIsOpened()
    {
        m_tree->show();
        QCOMPARE(m_tree->topLevelItem(0)->text(0), u"Orvane Contact Address Book"_s);
        QCOMPARE(texts(branch({})), (QStringList{u"Friends"_s, u"It's"_s, u"Work"_s}));
        QCOMPARE(texts(branch({u"Work"_s})), (QStringList{u"Chess"_s, u"Sales"_s}));
        const QTreeWidgetItem* chess = branch({u"Friends"_s})->child(0);
        QCOMPARE(chess->childCount(), 0);
        // A person who came meanwhile is there, so the branch was not read before.
        QVERIFY(m_book->data().execute(u"update cnt_main set category2='Chess' where Name='Cy'").ok);
        QCOMPARE(texts(branch({u"Friends"_s, u"Chess"_s})), (QStringList{u"Ann"_s, u"Bob"_s, u"Cy"_s}));
        // Once only, however often it is opened and walked.
        branch({u"Friends"_s})->setExpanded(false);
        m_tree->reveal(u"Friends"_s, u"Chess"_s, u"Cy"_s);
        QCOMPARE(texts(branch({u"Friends"_s})), QStringList{u"Chess"_s});
        QCOMPARE(m_tree->topLevelItem(0)->childCount(), 3);
    }

    // Kept: the leaves are not asked for their category.
    void peopleOfOneSubcategoryStandUnderBothCategories()
    {
        m_tree->show();
        QCOMPARE(texts(branch({u"Friends"_s, u"Chess"_s})), (QStringList{u"Ann"_s, u"Bob"_s}));
        QCOMPARE(texts(branch({u"Work"_s, u"Chess"_s})), (QStringList{u"Ann"_s, u"Bob"_s}));
        QCOMPARE(texts(branch({u"Work"_s, u"Sales"_s})), (QStringList{u"Cy"_s, u"Dot"_s}));
    }

    void walksToAPersonOnceItIsSeen()
    {
        m_tree->reveal(u"Work"_s, u"Chess"_s, u"Bob"_s);
        QCOMPARE(m_tree->topLevelItem(0)->childCount(), 0);
        m_tree->show();
        QVERIFY(m_tree->currentItem());
        QCOMPARE(m_tree->currentItem()->text(0), u"Bob"_s);
        QCOMPARE(m_tree->currentItem()->parent()->parent()->text(0), u"Work"_s);
        m_tree->reveal(u"Work"_s, u"Chess"_s, u"Nobody"_s);
        QVERIFY(!m_tree->currentItem());
    }

    void leafIsChosenByClickAndByKey()
    {
        m_tree->resize(300, 500);
        m_tree->show();
        QTreeWidgetItem* sales = branch({u"Work"_s, u"Sales"_s});
        QSignalSpy chosen(m_tree.get(), &CategoryTree::contactChosen);
        QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, m_tree->visualItemRect(sales).center());
        QCOMPARE(chosen.size(), 0);
        QTest::mouseClick(
            m_tree->viewport(), Qt::LeftButton, {}, m_tree->visualItemRect(sales->child(1)).center());
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.takeFirst().value(0).toLongLong(), 4);
        m_tree->setCurrentItem(sales->child(0));
        QTest::keyClick(m_tree.get(), Qt::Key_Return);
        QCOMPARE(chosen.size(), 1);
        QCOMPARE(chosen.takeFirst().value(0).toLongLong(), 3);
    }

    void apostropheLeavesABranchEmpty()
    {
        m_tree->show();
        m_book->expectFailure(u"It's"_s);
        QCOMPARE(branch({u"It's"_s})->childCount(), 0);
        QCOMPARE(m_book->unexpected(), QString());
    }

private:
    QTreeWidgetItem* branch(const QStringList& path) const { return support::branchOf(m_tree.get(), path); }
    static QStringList texts(const QTreeWidgetItem* branch) { return support::textsBelow(branch); }

    std::unique_ptr<support::TestBook> m_book;
    std::unique_ptr<CategoryTree> m_tree;
};

QTEST_MAIN(CategoryTreeTest)
#include "category_tree_test.moc"
