#include "support/columns.h"
#include "support/test_book.h"
#include "views/full_view/full_view_sql.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// The statements behind list, search and tree.
class FullViewSqlTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keywordLooksIntoEachField_data();
    void keywordLooksIntoEachField();
};

void FullViewSqlTest::keywordLooksIntoEachField_data()
{
    support::columns<QString, int>("column", "found");
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

QTEST_GUILESS_MAIN(FullViewSqlTest)
#include "full_view_sql_test.moc"
