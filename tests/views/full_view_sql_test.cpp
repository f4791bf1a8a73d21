#include "support/test_book.h"
#include "views/full_view/full_view_sql.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// The statements behind list, search and tree.
class FullViewSqlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void keywordLooksIntoEachField_data();
    void keywordLooksIntoEachField();
    void apostropheBreaksTheLookUp();
};

void FullViewSqlTest::texts_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole list") << contactListSql() << u"SELECT id,name FROM cnt_main ORDER BY Name "_s;
    QTest::newRow("filtered list") << contactListSql(u" Where h_city='Pune'"_s)
                                   << u"SELECT id,name FROM cnt_main  Where h_city='Pune' ORDER BY Name "_s;
    QTest::newRow("categories")
        << treeCategoriesSql()
        << u"SELECT DISTINCT Category1 FROM [cnt_main] WHERE category1 IS NOT NULL AND category1 <>'' ORDER BY category1"_s;
    QTest::newRow("subcategories")
        << treeSubcategoriesSql(u"Friends"_s)
        << u"Select distinct category2 from cnt_main where category2 is not null and category2 <>'' and category1='Friends' order by category2"_s;
    QTest::newRow("Kept: people without the category")
        << treePeopleSql(u"Chess"_s)
        << u"Select id,name from cnt_main where category2='Chess' and name is not null  order by name"_s;
    QTest::newRow("keyword, each field in order")
        << keywordSql(u"k"_s)
        << u"select id,name from cnt_main  where  first like '*k*' or  last like '*k*' or  company like "
           u"'*k*' or  "
           "category1 like '*k*' or  category2 like '*k*' or  h_city like '*k*' or  w_addtype like '*k*' or  "
           "fam_note like '*k*' or  b_note like '*k*' or  education like '*k*' or  region like '*k*' or  "
           "hobbies like '*k*' or  altcontact like '*k*'"_s;
    QTest::newRow("associate") << associateSql(u"Bo"_s) << u"Select * from cnt_Main where name='Bo'"_s;
    QTest::newRow("by name") << contactByNameSql(u"Bo"_s) << u"Select * from cnt_main where name='Bo'"_s;
}

void FullViewSqlTest::texts()
{
    QFETCH(QString, sql);
    QTEST(sql, "expected");
    support::TestBook book;
    QVERIFY(book.data().openRecordset(sql).isValid());
    QCOMPARE(book.unexpected(), QString());
}

void FullViewSqlTest::keywordLooksIntoEachField_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<int>("found");
    for (const char* column : {"First", "Company", "h_city", "W_AddType", "fam_note", "altcontact"})
        QTest::newRow(column) << QString::fromLatin1(column) << 1;
    for (const char* column : {"Name", "memo1", "w_city", "nick"})
        QTest::newRow(column) << QString::fromLatin1(column) << 0;
}

void FullViewSqlTest::keywordLooksIntoEachField()
{
    QFETCH(QString, column);
    support::TestBook book;
    QVERIFY(book.data().execute(u"insert into cnt_main (["_s + column + u"]) values ('a NEEDLE b')"_s).ok);
    QVERIFY(book.data().execute(u"insert into cnt_main (["_s + column + u"]) values ('hay')"_s).ok);
    QTEST(book.data().openRecordset(keywordSql(u"needle"_s)).count(), "found");
}

void FullViewSqlTest::apostropheBreaksTheLookUp()
{
    support::TestBook book;
    jet::Recordset row = book.data().openRecordset(u"select * from cnt_main");
    row.addNew();
    row.set(u"Name", u"Miles O'Brien"_s);
    QVERIFY(row.update());
    book.expectFailure(u"O'Brien"_s);
    QVERIFY(!book.data().openRecordset(contactByNameSql(u"Miles O'Brien"_s)).hasRow());
    QCOMPARE(book.unexpected(), QString());
}

QTEST_GUILESS_MAIN(FullViewSqlTest)
#include "full_view_sql_test.moc"
