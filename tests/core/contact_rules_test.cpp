#include <QtTest>

#include "core/contact_category.h"
#include "core/contact_names.h"
#include "core/text_pieces.h"
#include "support/columns.h"

using namespace Qt::StringLiterals;
using namespace core;

/// How a contact's name and category are put together and taken apart.
class ContactRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void names_data()
    {
        support::columns<QString, QString>("stored", "label");
        QTest::newRow("First,Last") << u"Asha Rao"_s << u"Dr. Asha Rao"_s;
        QTest::newRow("Last,First") << u"Rao Asha"_s << u"Dr. Rao , Asha"_s;
        QTest::newRow("Company") << u"Tea & Co"_s << u"Tea & Co"_s;
        QTest::newRow("First,Last (Company)") << u"Asha Rao Tea & Co"_s << u"Asha Rao Tea & Co"_s;
        QTest::newRow("Last,First (Company)") << u"Rao Asha Tea & Co"_s << u"Rao , Asha Tea & Co"_s;
        QTest::newRow("Company (Last,First)") << u"Tea & Co Rao Asha"_s << u"Tea & Co Rao , Asha"_s;
    }

    void names()
    {
        const QString words = QString::fromLatin1(QTest::currentDataTag());
        QVERIFY(nameViews().contains(words));
        const auto view = nameViewOf(words);
        QVERIFY(view);
        QTEST(composeName(*view, {u"Dr."_s, u" Asha  "_s, u"Rao "_s, u" Tea & Co"_s}), "stored");
        QTEST(nameForLabel(*view, {u"Dr."_s, u"Asha"_s, u"Rao"_s, u"Tea & Co"_s}), "label");
    }

    void blankPartsLeaveTheirBlank()
    {
        QCOMPARE(composeName(NameView::FirstLast, {{}, u"Asha"_s, {}, {}}), u"Asha "_s);
        QCOMPARE(composeName(NameView::CompanyLastFirst, {{}, {}, u"Rao"_s, {}}), u" Rao "_s);
        QCOMPARE(composeName(NameView::Company, {{}, u"Asha"_s, u"Rao"_s, u"  "_s}), u""_s);
        // A view is taken as it is written, but for blanks around it.
        QVERIFY(nameViewOf(u"  Last,First "_s));
        for (const QString& other : {u"last,first"_s, u"Last, First"_s, u"Company(Last,First)"_s, QString()})
            QVERIFY(!nameViewOf(other));
    }

    void categories_data()
    {
        support::columns<QString, QString, bool, QString>("category", "subcategory", "merged", "stored");
        QTest::newRow("two lists") << u" Friends"_s << u"School "_s << false << u"Friends|School"_s;
        QTest::newRow("blanks") << u"  "_s << u""_s << false << u"Undefined|Undefined"_s;
        QTest::newRow("a dash is part of the text") << u"A-B"_s << u"C"_s << false << u"A-B|C"_s;
        QTest::newRow("merged") << u"Friends - School"_s << u"ignored"_s << true << u"Friends|School"_s;
        QTest::newRow("merged, no dash") << u"Friends"_s << u"ignored"_s << true << u"Friends|Undefined"_s;
        QTest::newRow("merged, only the dash") << u"-"_s << u""_s << true << u"Undefined|Undefined"_s;
        QTest::newRow("merged, a third piece is lost") << u"A-B-C"_s << u""_s << true << u"A|B"_s;
        QTest::newRow("merged, blank category") << u"-School"_s << u""_s << true << u"Undefined|School"_s;
    }

    void categories()
    {
        QFETCH(QString, category);
        QFETCH(QString, subcategory);
        QFETCH(bool, merged);
        const Category stored = storedCategory(category, subcategory, merged);
        QTEST(QString(stored.category + u'|' + stored.subcategory), "stored");
    }

    void shownCategories()
    {
        QCOMPARE(shownCategory({u"Friends"_s, u"School"_s}, false), u"Friends"_s);
        QCOMPARE(shownCategory({u"Friends"_s, u"School"_s}, true), u"Friends-School"_s);
    }

    void pieces_data()
    {
        support::columns<QString, int, QString>("text", "n", "piece");
        QTest::newRow("first") << u"a,b,c"_s << 1 << u"a"_s;
        QTest::newRow("last") << u"a,b,c"_s << 3 << u"c"_s;
        QTest::newRow("blanks stay") << u"a, b"_s << 2 << u" b"_s;
        QTest::newRow("an empty one counts") << u"a,,c"_s << 3 << u"c"_s;
        QTest::newRow("too few") << u"a,b"_s << 3 << u""_s;
        QTest::newRow("none") << u""_s << 1 << u""_s;
        QTest::newRow("zero") << u"a,b"_s << 0 << u""_s;
        QTest::newRow("below zero") << u"a,b"_s << -1 << u""_s;
        QTest::newRow("the other mark") << u"a-b"_s << 2 << u""_s;
    }

    void pieces()
    {
        QFETCH(QString, text);
        QFETCH(int, n);
        QFETCH(QString, piece);
        QCOMPARE(PickByComma(text, n), piece);
        const QString dashed = QString(text).replace(u'-', u'#').replace(u',', u'-');
        QCOMPARE(PickByDash(dashed, n), piece);
    }

    void operators_data()
    {
        QTest::addColumn<QString>("sign");
        QTest::newRow(" before ") << u"<"_s;
        QTest::newRow("AFTER") << u">"_s;
        QTest::newRow("On") << u"="_s;
        QTest::newRow("") << u"="_s;
        QTest::newRow("beforehand") << u"="_s;
    }

    void operators() { QTEST(FormatOperator(QString::fromLatin1(QTest::currentDataTag())), "sign"); }

    void paths_data()
    {
        support::columns<QString, QString>("folder", "file");
        QTest::newRow("C:\\OVUserFiles\\a.rtf") << u"C:\\OVUserFiles"_s << u"a.rtf"_s;
        QTest::newRow("C:\\OVUserFiles\\") << u"C:\\OVUserFiles"_s << u""_s;
        QTest::newRow("a.rtf") << u""_s << u"a.rtf"_s;
        QTest::newRow("\\a.rtf") << u""_s << u"a.rtf"_s;
        QTest::newRow("") << u""_s << u""_s;
    }

    void paths()
    {
        const QString path = QString::fromLatin1(QTest::currentDataTag());
        QTEST(LeftOfLastBackslash(path), "folder");
        QTEST(AfterLastBackslash(path), "file");
    }
};

QTEST_GUILESS_MAIN(ContactRulesTest)
#include "contact_rules_test.moc"
