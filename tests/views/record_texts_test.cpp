#include "support/columns.h"
#include "support/contact_fields.h"
#include "support/test_book.h"
#include "views/contact_pages/record_texts.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

namespace {

constexpr QStringView kPerson
    = u"insert into cnt_main (Name, First, Mid, Last, Maiden, Spouse, category1, category2, h_add1, h_add2, "
      u"h_city, h_pin, "
      "h_state, h_country, h_std, H_Ph1, h_ph3, Mobile, W_std, w_Ph1, w_Ph2, SP_Mobile, B_std, B_ph3, fax, "
      "H_email1, "
      "h_email2, b_email2, M_BD, Sp_BD, Kid1_BD, W_AddType, B_Add_Type, W_web, B_Web, memo1, [Memo], Asso1) "
      "values "
      "('Shown & Stored', 'Ada', 'M', 'Long', 'Short', 'Bo', 'Friends', 'Chess', '1 Way', 'Hill', 'Pune', "
      "'411', 'MH', "
      "'India', '020', '11', '13', '98', '022', '21', '22', '99', '080', '33', '44', 'a@x', 'b@x', 'd@y', "
      "#05-Mar-1980#, "
      "#29-Feb-1984#, #31-Dec-2024#, 'Office', 'Shop', 'w.org', 'b.org', 'added', 'edited', 'Cy Go')";

QString textFor(const QList<ShownText>& texts, const QString& control)
{
    for (const ShownText& shown : texts) {
        if (shown.control == control)
            return shown.text;
    }
    return u"(no such control)"_s;
}

QList<ShownText> textsOf(bool detail, const jet::Recordset& row, bool national)
{
    return detail ? detailViewTexts(row, national, QDate(2024, 1, 1)) : fullViewTexts(row, national);
}

} // namespace

/// What the controls of the two reading screens show for one row.
class RecordTextsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void composed_data()
    {
        support::columns<bool, bool, QString, QString>("detail", "national", "control", "text");
        const auto full
            = [](const char* name, const QString& control, const QString& text, bool national = true) {
                  QTest::newRow(name) << false << national << control << text;
              };
        const auto detail
            = [](const char* name, const QString& control, const QString& text, bool national = true) {
                  QTest::newRow(name) << true << national << control << text;
              };
        full("number", u"lblid"_s, u"1"_s);
        full("stored name as caption", u"SSCommand8"_s, u"Shown & Stored"_s);
        full("three names", u"txtfirst"_s, u"Ada M Long"_s);
        full("category", u"txtCat"_s, u"Friends - Chess"_s);
        full("address lines", u"txthadd"_s, u"1 Way\r\nHill"_s);
        full("city and pin", u"txthcity"_s, u"Pune  -  411"_s);
        full("state and country", u"txthstate"_s, u"MH  -  India"_s);
        full("work 1 has its type in W", u"txtwtype"_s, u"Office"_s);
        full("work 2 has its type in B", u"txtbtype"_s, u"Shop"_s);
        full("home numbers, a missing one is a blank line", u"txthph1"_s, u"020\r\n11\r\n\r\n13\r\n98"_s);
        full("Kept: spouse's mobile under work 1", u"txtwph1"_s, u"022\r\n21\r\n22\r\n\r\n99"_s);
        full("Kept: fax under work 2", u"txtbph1"_s, u"080\r\n\r\n\r\n33\r\n44"_s);
        full("home mail", u"txthemail1"_s, u"a@x\r\nb@x"_s);
        full("work mail of the B set", u"txtwemail1"_s, u"\r\nd@y"_s);
        full("work web of the B set", u"txtWweb"_s, u"b.org"_s);
        full("maiden name in brackets", u"TxtSpouse"_s, u"Bo(Short)"_s);
        full("birthday at home", u"dtpBirtday"_s, u"05-Mar-80"_s);
        full("birthday abroad", u"dtpBirtday"_s, u"Mar-05-80"_s, false);
        full("leap day", u"dtpSpouse"_s, u"29-Feb-84"_s);
        full("no date", u"dtpAnniv"_s, {});
        detail("birthday at home, detailed", u"DateBday"_s, u"05 Mar-1980"_s);
        detail("birthday abroad, detailed", u"DateBday"_s, u"Mar 05-1980"_s, false);
        detail("age reached this year, before the day", u"lblage"_s, u"( 44 )"_s);
        detail("born this year", u"lblk1age"_s, u"( 0 )"_s);
        detail("no age without a date", u"lblk2age"_s, {});
        detail("Kept: the note of the add path", u"txtMemo"_s, u"added"_s);
        detail("associate", u"cmdass1"_s, u" - Cy Go Go  >> "_s);
    }

    void composed()
    {
        QFETCH(bool, detail);
        QFETCH(bool, national);
        QFETCH(QString, control);
        support::TestBook book;
        QVERIFY(book.data().execute(kPerson).ok);
        const jet::Recordset row = book.data().openRecordset(u"select * from cnt_main");
        QTEST(textFor(textsOf(detail, row, national), control), "text");
        QCOMPARE(book.unexpected(), QString());
    }

    void emptyRow()
    {
        support::TestBook book;
        QVERIFY(book.data().execute(u"insert into cnt_main (Name) values (null)").ok);
        const auto texts = fullViewTexts(book.data().openRecordset(u"select * from cnt_main"), true);
        QStringList shown;
        for (const auto& control :
            {u"txtfirst"_s, u"txtCat"_s, u"txthcity"_s, u"txtwph1"_s, u"TxtSpouse"_s, u"dtpKid3"_s})
            shown << textFor(texts, control);
        QCOMPARE(shown, (QStringList{u"  "_s, u" - "_s, u"  -  "_s, u"\r\n\r\n\r\n\r\n"_s, u"()"_s, u""_s}));
    }

    // Each column of a contact that is filled in all over stands in its control, whatever else stands there.
    void everyColumnHasItsControl()
    {
        support::TestBook book;
        jet::Recordset row = book.data().openRecordset(u"select * from cnt_main");
        row.addNew();
        const QStringList columns = row.columns();
        for (int i = 0; i < columns.size(); ++i) {
            if (row.columnType(i) == jet::ColumnType::Date)
                row.set(columns[i], QDate(1980, 1, 1).addDays(i));
            else if (row.columnType(i) == jet::ColumnType::Text || row.columnType(i) == jet::ColumnType::Memo)
                row.set(columns[i], u'<' + columns[i].toLower() + u'>');
        }
        QVERIFY(row.update());
        const jet::Recordset filled = book.data().openRecordset(u"select * from cnt_main");
        for (const bool detail : {false, true}) {
            const auto texts = textsOf(detail, filled, true);
            QSet<QString> known{u"lblid"_s};
            for (const auto& field : support::contactFields(detail ? u"frmDetailView"_s : u"FullView"_s)) {
                known << field.control;
                const QString value = field.isDate ? QLocale::c().toString(filled.date(field.column),
                                          detail ? u"dd MMM-yyyy"_s : u"dd-MMM-yy"_s)
                                                   : u'<' + field.column + u'>';
                const QString shown = textFor(texts, field.control);
                QVERIFY2(shown.count(value) == 1, qPrintable(field.control + u": "_s + shown));
            }
            for (const ShownText& text : texts)
                QVERIFY2(
                    known.contains(text.control) || text.control.endsWith(u"age"), qPrintable(text.control));
        }
    }

    void associationNameComesBack_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : {u"Ada Long"_s, u" - "_s, u"Go  >> "_s, u"X Go  >> Y"_s, u""_s})
            QTest::newRow(qPrintable(u'"' + name + u'"')) << name;
    }

    void associationNameComesBack()
    {
        QFETCH(QString, name);
        QCOMPARE(nameInAssociation(associationCaption(name)), name);
    }
};

QTEST_GUILESS_MAIN(RecordTextsTest)
#include "record_texts_test.moc"
