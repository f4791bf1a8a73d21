#include "output/labels/address_report.h"
#include "support/test_book.h"

#include <QtTest>

using namespace Qt::StringLiterals;

/// Names and addresses for envelopes, by way of the work table.
class AddressReportTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_book = std::make_unique<support::TestBook>();
        for (const char* values : {"'Asha','Acme','1 Hill',null,'Pune','MH','411'",
                 "'Dr. Bob',null,'2 Dale','Top','Oslo',null,null",
                 "'Asha','Other','3 Sea',null,'Goa',null,null"})
            QVERIFY(m_book->data().execute(
                u"insert into cnt_main (name,company,h_add1,h_add2,h_city,h_state,h_pin) values (%1)"_s.arg(
                    QString::fromLatin1(values))));
        QVERIFY(m_book->data().execute(u"insert into OV_temp (name) values ('left over')"));
    }

    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    void allOfOneName()
    {
        QCOMPARE(m_book->rowsOf(output::addressRows(m_book->data(), u"Asha"_s)),
            (QStringList{u"Asha|Acme|1 Hill||Pune|MH|411"_s, u"Asha|Other|3 Sea||Goa||"_s}));
        // Kept: a name is cut at its first "." in the work table, and then not found by the whole name.
        QVERIFY(output::addressRows(m_book->data(), u"Dr. Bob"_s).isEmpty());
        QCOMPARE(m_book->rows(u"select name,h_add1 from OV_temp"_s), QStringList{u"Dr|2 Dale"_s});
    }

    void aListOfIdsByName()
    {
        const jet::Recordset rows = output::addressRowsOf(m_book->data(), u"2,1"_s);
        QCOMPARE(m_book->rowsOf(rows),
            (QStringList{u"Asha|Acme|1 Hill||Pune|MH|411"_s, u"Dr||2 Dale|Top|Oslo||"_s}));
    }

private:
    std::unique_ptr<support::TestBook> m_book;
};

QTEST_GUILESS_MAIN(AddressReportTest)
#include "address_report_test.moc"
