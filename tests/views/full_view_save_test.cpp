#include "core/contact_lookups.h"
#include "support/test_book.h"
#include "views/full_view/full_view_save.h"
#include "views/full_view/full_view_sql.h"

#include <QtTest>

using namespace Qt::StringLiterals;
using namespace views;

/// The edit page fills its fields from a row and writes them back.
class FullViewSaveTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void savedUnchangedLosesTheHomeWebOnly();
    void loadedTexts_data();
    void loadedTexts();
    void stored_data();
    void stored();

private:
    QHash<QString, QString> loadedPage();
    QStringList save();
    QStringList row();

    std::unique_ptr<support::TestBook> m_book;
    QHash<QString, QString> m_texts;
    QHash<QString, std::optional<QDate>> m_dates;
};

// Every text column holds its own name, every date its own day, so that a mix-up shows.
void FullViewSaveTest::init()
{
    m_book = std::make_unique<support::TestBook>();
    jet::Recordset rows = m_book->data().openRecordset(u"select * from cnt_main");
    rows.addNew();
    const QStringList columns = rows.columns();
    for (int i = 0; i < columns.size(); ++i) {
        if (rows.columnType(i) == jet::ColumnType::Date)
            rows.set(columns[i], QDate(1950, 1, 1).addDays(i));
        else if (rows.columnType(i) == jet::ColumnType::Text || rows.columnType(i) == jet::ColumnType::Memo)
            rows.set(columns[i], columns[i]);
    }
    rows.set(u"Name", u"First Last"_s);
    QVERIFY(rows.update());
    m_texts = loadedPage();
}

QHash<QString, QString> FullViewSaveTest::loadedPage()
{
    QHash<QString, QString> texts;
    const jet::Recordset contact = m_book->data().openRecordset(core::contactByIdSql(1));
    for (const EditSource& source : editTexts())
        texts.insert(source.control.toString(), contact.textOrEmpty(source.column));
    m_dates.clear();
    for (const EditSource& source : editDates()) {
        const QDate date = contact.date(source.column);
        m_dates.insert(
            source.control.toString(), date.isValid() ? std::optional(date) : std::optional<QDate>());
    }
    return texts;
}

QStringList FullViewSaveTest::row()
{
    return m_book->rows(u"select * from cnt_main where id=1"_s).value(0).split(u'|');
}

/// What is different after a save, as "column: value".
QStringList FullViewSaveTest::save()
{
    const QStringList before = row();
    jet::Recordset contact = m_book->data().openRecordset(core::contactByIdSql(1));
    const QStringList columns = contact.columns();
    const core::LoadedRow loaded(contact);
    contact.edit();
    loaded.assign(contact,
        editPageColumns({m_texts, m_dates},
            {[](const QString&) { return true; }, [](const QString& control) { return control; }}));
    if (!contact.update())
        return {u"not stored"_s};
    const QStringList after = row();
    QStringList changes;
    for (int i = 0; i < columns.size(); ++i) {
        if (before[i] != after[i])
            changes << columns[i] + u": "_s + after[i];
    }
    return changes;
}

// Birthdays, anniversary and all columns that the page has not stay as they were.
void FullViewSaveTest::savedUnchangedLosesTheHomeWebOnly()
{
    QCOMPARE(save(), QStringList{u"h_web: "_s});
    QCOMPARE(m_book->unexpected(), QString());
}

void FullViewSaveTest::loadedTexts_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("text");
    QTest::newRow("Kept: the work web wins over the home web") << u"TxtEWWeb"_s << u"B_Web"_s;
    QTest::newRow("Kept: the home web box has no source") << u"TxtEHWeb"_s << QString();
    QTest::newRow("spouse's mobile") << u"TxtESpMobile"_s << u"SP_Mobile"_s;
}

void FullViewSaveTest::loadedTexts()
{
    QFETCH(QString, control);
    QTEST(m_texts.value(control), "text");
    // Kept: the columns of these two dates do not exist.
    QVERIFY(!m_dates.value(u"DtpEBirthday"_s));
    QVERIFY(!m_dates.value(u"DtpEAnniversary"_s));
    QVERIFY(m_dates.value(u"DtpEKid2"_s));
}

void FullViewSaveTest::stored_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("changes");
    const QString homeWebGone = u"h_web: "_s;
    QTest::newRow("category trimmed")
        << u"CmbECategory"_s << u"  Club "_s << QStringList{homeWebGone, u"category1: Club"_s};
    QTest::newRow("blank subcategory")
        << u"CmbESubCategory"_s << u"  "_s << QStringList{homeWebGone, u"category2: Undefined"_s};
    QTest::newRow("name follows the first name, untrimmed")
        << u"CmbEFirst"_s << u" Ada"_s << QStringList{u"Name:  Ada Last"_s, u"First:  Ada"_s, homeWebGone};
    QTest::newRow("kid trimmed") << u"TxtEKid2"_s << u" Tim "_s << QStringList{u"kid2: Tim"_s, homeWebGone};
    QTest::newRow("other texts as typed")
        << u"TxtECompany"_s << u" O'Neill & Co "_s << QStringList{u"Company:  O'Neill & Co "_s, homeWebGone};
    QTest::newRow("blank status stays blank")
        << u"CmbEStatus"_s << QString() << QStringList{homeWebGone, u"Status: "_s};
    QTest::newRow("a home web that was typed")
        << u"TxtEHWeb"_s << u"new.org"_s << QStringList{u"h_web: new.org"_s};
}

void FullViewSaveTest::stored()
{
    QFETCH(QString, control);
    QFETCH(QString, typed);
    m_texts.insert(control, typed);
    QTEST(save(), "changes");
    m_dates.insert(u"DtpEKid1"_s, std::nullopt);
    QVERIFY(save().contains(u"Kid1_BD: null"_s));
}

QTEST_GUILESS_MAIN(FullViewSaveTest)
#include "full_view_save_test.moc"
