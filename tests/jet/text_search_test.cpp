#include "support/test_book.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;

/// Whether a search that is helped by the texts in memory gives what looking at every row gives, in the same
/// order, whatever was written in between.
class TextSearchTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void sameRows_data();
    void sameRows();
    void sameRowsForAnyWord();
    void changedRowsAreSeen();
    void whatIsWrittenWhileItReads();
    void whatWasGivenUpNeverWas();
    void changesOfAnotherProgramAreSeen();
    void brokenPatternFailsAsEver();
    void fewRowsNeedNoMemory();

private:
    /// The same before the texts are in memory and with them, or the test fails.
    QList<qint64> found(const QString& where, jet::Way way = jet::Way::Dao);
    void waitForTexts();
    /// A condition in this form is put to every row.
    QList<qint64> foundByLooking(const QString& where, jet::Way way = jet::Way::Dao);
    static QList<qint64> ids(const jet::Recordset& rows);

    static constexpr int kPeople = 6000;

    QTemporaryDir m_folder;
    QString m_original;
    std::unique_ptr<QTemporaryDir> m_copyFolder;
    jet::Database m_book;
    int m_failures = 0;
};

void TextSearchTest::initTestCase()
{
    m_original = m_folder.filePath(u"original.db"_s);
    QVERIFY(jet::Database::create(m_original));
    jet::Database book;
    QCOMPARE(book.open(m_original), jet::Database::OpenResult::Opened);
    jet::Schema schema = jet::Schema::fromCsv("database,table,column,type,size\n"
                                              "data,cnt_main,id,autonumber,\n"
                                              "data,cnt_main,Name,text,60\n"
                                              "data,cnt_main,city,text,60\n"
                                              "data,cnt_main,note,memo,\n"
                                              "data,cnt_main,born,date,\n"
                                              "data,cnt_main,category1,text,\n"
                                              "data,cnt_main,category2,text,\n"
                                              "data,cnt_main,First,text,\n"
                                              "data,cnt_main,Last,text,\n"
                                              "data,cnt_main,Company,text,\n"
                                              "data,few,id,autonumber,\n"
                                              "data,few,Name,text,60\n");
    schema.indexes = support::TestBook::indexesFor(schema);
    QVERIFY(book.applySchema(schema, u"data"_s));
    const QStringList firsts{
        u"Asha"_s, u"ÉMILE"_s, u"émile"_s, u"Жанна"_s, u"Bo*b"_s, u"Ann[e]"_s, u"Çelik"_s};
    const QStringList cities{u"Pune"_s, u"PUNE"_s, u"Agra"_s, {}, u"São Paulo"_s, u"New  Delhi"_s};
    QList<QStringList> people;
    for (int i = 0; i < kPeople; ++i)
        people += QStringList{u"%1 %2"_s.arg(firsts[i % firsts.size()]).arg(i * 7919 % kPeople),
            cities[i % cities.size()],
            i % 3 == 0 ? u"likes tea and chess no %1\r\nsecond line"_s.arg(i) : QString(),
            u"19%1-02-0%2"_s.arg(50 + i % 50).arg(1 + i % 9), i % 5 == 0 ? u"Friends"_s : u"Business"_s,
            u"Sub %1"_s.arg(i * 31 % 11)};
    // The file has the indexes of the product.
    QVERIFY(book.appendRows(
        u"cnt_main"_s, {u"Name"_s, u"city"_s, u"note"_s, u"born"_s, u"category1"_s, u"category2"_s}, people));
    QVERIFY(book.appendRows(u"few"_s, {u"Name"_s}, people.first(100)));
}

void TextSearchTest::init()
{
    m_book.close();
    m_copyFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(QFile::copy(m_original, m_copyFolder->filePath(u"book.db"_s)));
    QCOMPARE(m_book.open(m_copyFolder->filePath(u"book.db"_s)), jet::Database::OpenResult::Opened);
    m_failures = 0;
    m_book.setFailureHandler([this](const jet::Failure&) { ++m_failures; });
}

QList<qint64> TextSearchTest::ids(const jet::Recordset& rows)
{
    QList<qint64> keys;
    for (int row = 0; row < rows.count(); ++row)
        keys << rows.keyAt(row);
    return keys;
}

QList<qint64> TextSearchTest::found(const QString& where, jet::Way way)
{
    const QString sql = u"select id,Name from cnt_main where "_s + where;
    const QList<qint64> before = ids(m_book.openRecordset(sql, way));
    waitForTexts();
    const QList<qint64> after = ids(m_book.openRecordset(sql, way));
    return before == after ? after : QList<qint64>{-1};
}

// Some searches have no use for them.
void TextSearchTest::waitForTexts()
{
    QElapsedTimer waited;
    waited.start();
    while (m_book.searchMemory() == 0 && waited.elapsed() < 400)
        QThread::msleep(1);
}

QList<qint64> TextSearchTest::foundByLooking(const QString& where, jet::Way way)
{
    const qsizetype order = where.indexOf(u" order by"_s);
    return ids(m_book.openRecordset(u"select id,Name from cnt_main where not (not ("_s
            + (order < 0 ? where : where.first(order)) + u"))"_s
            + (order < 0 ? u" order by id"_s : where.sliced(order) + u", id"_s),
        way));
}

void TextSearchTest::sameRows_data()
{
    QTest::addColumn<QString>("where");
    QTest::addColumn<bool>("isFound");
    const auto row = [](const QString& where, bool isFound = true) {
        QTest::newRow(qPrintable(where)) << where << isFound;
    };
    row(u"Name like '*asha 1*'"_s);
    row(u"Name like '*émile*' or city like '*PUN*' or note like '*émile*'"_s);
    row(u"Name like '*ЖАН*'"_s);
    row(u"Name like '*zzz*' or city like '*zzz*'"_s, false);
    row(u"Name like '*a'"_s, false);
    row(u"Name like '*1?5*' order by Name"_s);
    row(u"note like '*tea*2#*' order by city, Name"_s);
    row(u"note like '*tea*' order by category2, Name"_s);
    row(u"category1 like '*nes*' and category2 like '*ub 1*'"_s);
    row(u"city like '*pun*' and note like '*99*'"_s);
    row(u"city like '*pune*' and year(born) = 1950"_s);
    row(u"city like '*agr*' or id < 20"_s);
    row(u"city like 'Pune' or city like '*agr*'"_s);
    row(u"city like '*[gq]ra*' and Name like '*[*]*'"_s);
    row(u"not city like '*pune*'"_s);
    row(u"city not like '*pune*' or Name not like '*asha*'"_s);
    row(u"Name not like '*asha*' and city like '*pune*'"_s);
    row(u"city like '*w  d*'"_s);
    row(u"note like '*no 3*second*'"_s);
    row(u"born like '*1950*'"_s);
    for (const QString& begin :
        {u"asha 1*"_s, u"É*"_s, u"e*"_s, u"Ж*"_s, u"bo[*]b 5?"_s, u"ÇELIK*"_s, u"émile 2"_s})
        row(u"Name like '%1' order by Name, id"_s.arg(begin), begin != u"e*"_s && begin != u"émile 2"_s);
    row(u"Name like 'asha*' and (note like '*tea*' or city like 'p*') order by Name"_s);
    row(u"city like 'pune' order by city"_s);
    row(u"(Name like 'asha*' or Name like 'b*') order by Name"_s);
}

void TextSearchTest::sameRows()
{
    QFETCH(QString, where);
    const QList<qint64> looked = foundByLooking(where);
    QCOMPARE(found(where), looked);
    QCOMPARE(found(where), looked); // and when the texts are there already
    QTEST(!looked.isEmpty(), "isFound");
    QCOMPARE(m_failures, 0);
}

void TextSearchTest::sameRowsForAnyWord()
{
    QRandomGenerator random(4711);
    const QString letters = u"aeéжnst 12*?#[]%_"_s;
    for (int i = 0; i < 300; ++i) {
        QString word;
        for (int length = random.bounded(1, 6); length > 0; --length)
            word += letters[random.bounded(int(letters.size()))];
        const auto way = i % 4 == 0 ? jet::Way::Ado : jet::Way::Dao;
        const QString any = way == jet::Way::Ado ? u"%"_s : u"*"_s;
        const QString pattern = u" like '"_s + any + word + any + u'\'';
        static const QStringList columns{
            u"Name"_s, u"note"_s, u"city"_s, u"category1"_s, u"category2"_s, u"First"_s};
        static const QStringList beginnings{{}, {}, u"category1='Friends' and "_s, u"Name>'b' and "_s};
        static const QStringList orders{{}, u" order by Name"_s, u" order by category1"_s,
            u" order by category2, Name"_s, u" order by city, category1"_s};
        const auto anyOf = [&random](const QStringList& list) { return list[random.bounded(list.size())]; };
        const QString where = anyOf(beginnings) + u'(' + anyOf(columns) + pattern
            + (i % 2 ? u" or "_s : u" and "_s) + anyOf(columns) + pattern + u')' + anyOf(orders);
        QVERIFY2(found(where, way) == foundByLooking(where, way), qPrintable(where));
    }
}

void TextSearchTest::changedRowsAreSeen()
{
    const QString where = u"Name like '*quince*' or note like '*quince*'"_s;
    QCOMPARE(found(where), QList<qint64>());
    QVERIFY(m_book.execute(u"update cnt_main set Name='Quince One' where id=17"_s));
    QVERIFY(m_book.execute(u"insert into cnt_main (Name, note) values ('x', 'a QUINCE tree')"_s));
    QCOMPARE(found(where), (QList<qint64>{17, kPeople + 1}));
    QVERIFY(m_book.execute(u"update cnt_main set Name='Else' where id=17"_s));
    QVERIFY(m_book.execute(u"delete * from cnt_main where id=%1"_s.arg(kPeople + 1)));
    QCOMPARE(found(where), QList<qint64>());

    // A row that fitted before, among more rows than are read at once.
    const QString tea = u"note like '*tea*'"_s;
    QList<qint64> drinkers = found(tea);
    QVERIFY(drinkers.size() > 1000 && drinkers.contains(4));
    QVERIFY(m_book.execute(u"update cnt_main set note=null where id=4"_s));
    QVERIFY(m_book.execute(u"update cnt_main set note='Tea too' where id=5"_s));
    drinkers[drinkers.indexOf(4)] = 5;
    QCOMPARE(found(tea), drinkers);
}

void TextSearchTest::whatIsWrittenWhileItReads()
{
    const auto begin
        = [this] { m_book.openRecordset(u"select id from cnt_main where Name like '*quince*'"); };
    begin();
    QVERIFY(m_book.execute(u"update cnt_main set Name='Quince' where id=7"_s));
    QCOMPARE(found(u"Name like '*quince*'"_s), QList<qint64>{7});
    {
        // What is not committed can not be seen by another thread.
        jet::Batch batch(m_book);
        QVERIFY(m_book.execute(u"update cnt_main set city='Quince' where id=8"_s));
        QCOMPARE(found(u"city like '*quince*'"_s), QList<qint64>{8});
        batch.rollBack();
    }
    QCOMPARE(found(u"city like '*quince*'"_s), QList<qint64>());
    QVERIFY(found(u"city like '*pun*'"_s).contains(8));
    // Many rows are read anew.
    QVERIFY(m_book.execute(u"update cnt_main set city='Nagpur' where city='Pune'"_s));
    QCOMPARE(found(u"city like '*pune*'"_s), QList<qint64>());
    QCOMPARE(found(u"city like '*agp*'"_s).size(), kPeople / 3);
    QVERIFY(m_book.execute(u"update cnt_main set note='x'"_s));
    begin();
    m_book.close();
    init();
    begin();
    QVERIFY(m_book.execute(u"update cnt_main set Name='Quince'"_s));
    QCOMPARE(found(u"Name like '*quince*'"_s).size(), kPeople);
}

// Without a log the first search reads by itself, also what is not committed.
void TextSearchTest::whatWasGivenUpNeverWas()
{
    QCOMPARE(m_book.open(m_book.path(), jet::Database::Kind::Information), jet::Database::OpenResult::Opened);
    jet::Batch batch(m_book);
    QVERIFY(m_book.execute(u"update cnt_main set Name='Quince' where id=1"_s));
    QCOMPARE(found(u"Name like '*quince*'"_s), QList<qint64>{1});
    batch.rollBack();
    QVERIFY(found(u"Name like '*quince*'"_s).isEmpty() && found(u"Name like '*asha*'"_s).contains(1));
}

void TextSearchTest::changesOfAnotherProgramAreSeen()
{
    QCOMPARE(found(u"Name like '*quince*'"_s), QList<qint64>());
    jet::Database other;
    QCOMPARE(other.open(m_book.path()), jet::Database::OpenResult::Opened);
    QVERIFY(other.execute(u"update cnt_main set Name='Quince' where id=9"_s));
    QCOMPARE(found(u"Name like '*quince*'"_s), QList<qint64>{9});
}

void TextSearchTest::brokenPatternFailsAsEver()
{
    QVERIFY(!found(u"Name like '*asha*'"_s).isEmpty());
    QVERIFY(!m_book.openRecordset(u"select id from cnt_main where Name like '*mu[*'"_s).isValid());
    QVERIFY(!m_book.openRecordset(u"select id from cnt_main where city like '*pu*' and Name like '*mu[*'"_s)
                 .isValid());
    QVERIFY(
        !m_book.openRecordset(u"select id from cnt_main where Name like 'zzz[*' order by Name"_s).isValid());
    QCOMPARE(m_failures, 3);
}

void TextSearchTest::fewRowsNeedNoMemory()
{
    QVERIFY(!m_book.openRecordset(u"select id from few where Name like '*asha*'"_s).isEmpty());
    QCOMPARE(m_book.searchMemory(), size_t(0));
    QVERIFY(!found(u"Name like '*asha*'"_s).isEmpty());
    QVERIFY(m_book.searchMemory() > 0);
}

QTEST_GUILESS_MAIN(TextSearchTest)
#include "text_search_test.moc"
