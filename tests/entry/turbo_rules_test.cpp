#include <QtTest>

#include "entry/assists/city_chain.h"
#include "entry/turbo/turbo_fields.h"
#include "support/columns.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace entry;

namespace {

const TurboField& fieldOf(const QString& name)
{
    const auto fields = turboFields();
    const auto found = std::ranges::find_if(
        fields, [&name](const TurboField& field) { return name == QLatin1StringView(field.name); });
    Q_ASSERT(found != fields.end());
    return *found;
}

} // namespace

/// The plain functions behind the turbo form: the lists of its fields and what a picked city tells.
class TurboRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_book.unexpected(), QString()); }

    void lists_data()
    {
        support::columns<QString, QString>("home", "abroad");
        const auto row = [](const char* field, const QString& home, const QString& abroad = {}) {
            QTest::newRow(field) << home << (abroad.isNull() ? home : abroad);
        };
        for (const char* field : {"First", "Spouse", "Kid1", "Kid2", "Kid3"})
            row(field, u"John,Mary,Priya,Rahul,Robin"_s, u"John,Mary,Robin"_s);
        for (const char* field : {"Last", "Maiden"})
            row(field, u"Brown,Hood,Mehta,Scott,Sharma,Smith"_s, u"Brown,Hood,Scott,Smith"_s);
        row("Nick", u"Jack,Nick,Pri,Raju,Rob"_s, u"Jack,Rob"_s);
        row("Category",
            u"Business-Clients,Business-Suppliers,Friends-School,Old-Retired,Personal-Family,null"_s);
        row("Product", u"Steel,Tea"_s);
        row("Company", u"Infosys,Tata Steel"_s, u"General Electric,IBM"_s);
        row("Company Suffix", u"Ltd."_s);
        row("Add Type", u"Office,Plant"_s);
        row("Add General", u"Marine Drive,null"_s, u"Main Street"_s);
        row("Add Specific", u"Churchgate"_s);
        row("Email Suffix", u"example.com"_s);
        row("Region", u"East,West"_s, u"East"_s);
        row("Status", u"Active"_s);
        row("Relation", u"Friend,Mama"_s, u"Friend"_s);
        row("Job Title", u"Engineer,Manager"_s);
        row("Hobbies", u"Chess"_s);
        row("User1", u"Gold,Silver"_s);
        row("User2", u"North"_s);
        row("User3", u"x"_s);
    }

    void lists()
    {
        m_book.data().execute(u"delete * from cnt_address where address is null"_s);
        m_book.data().execute(u"insert into cnt_address (area,national) values ('','N')"_s);
        for (const bool national : {true, false}) {
            const QString name = QString::fromLatin1(QTest::currentDataTag());
            const TurboSource source = turboSource(fieldOf(name), national, u"Mumbai"_s);
            QStringList values = m_book.rows(source.sql);
            std::ranges::sort(values);
            QTEST(values.join(u','), national ? "home" : "abroad");
            // The shipped lists lie in a database of their own.
            QCOMPARE(source.inInformation, source.sql.contains(u"wia_"_s));
        }
    }

    void takenTexts()
    {
        const TurboField& street = fieldOf(u"Add General"_s);
        QCOMPARE(takenText(street, {}, u"Main Street"_s), u"Main Street"_s);
        QCOMPARE(takenText(street, u"12"_s, u"Main Street"_s), u"12 Main Street"_s);
        QCOMPARE(takenText(street, u"12"_s, {}), u"12"_s);
        QCOMPARE(takenText(fieldOf(u"First"_s), u"Asha"_s, u"Bina"_s), u"Bina"_s);
    }

    void chains_data()
    {
        // chain: "-" for what stays as it was
        support::columns<QString, QString, QString>("city", "country", "chain");
        QTest::newRow("everywhere") << u"Mumbai"_s << u"All"_s << u"India|West|22|MH"_s;
        QTest::newRow("home country") << u"Mumbai"_s << u"India"_s << u"India|West|022|Maharashtra"_s;
        QTest::newRow("country from the choice")
            << u"Chicago"_s << u"United Kingdom"_s << u"United Kingdom|Midwest|312|IL"_s;
        QTest::newRow("no choice") << u"London"_s << u""_s << u"United Kingdom|South|20|"_s;
        QTest::newRow("the first of two cities")
            << u"Springfield"_s << u"All"_s << u"United States|Midwest|217|IL"_s;
        QTest::newRow("nulls blank, but no country stays") << u"Nowhere"_s << u"All"_s << u"-|||"_s;
        QTest::newRow("not known") << u"Atlantis"_s << u"All"_s << u"-|-|-|-"_s;
        QTest::newRow("an apostrophe breaks every statement") << u"L'Aquila"_s << u"All"_s << u"-|-|-|-"_s;
    }

    void chains()
    {
        QFETCH(QString, city);
        QFETCH(QString, country);
        for (int statement = 0; statement < 4 && city.contains(u'\''); ++statement)
            m_book.expectFailure(city);
        const CityChain chain = cityChain(m_book.data(), city, country);
        QStringList texts;
        for (const auto& text : {chain.country, chain.region, chain.std, chain.state})
            texts << text.value_or(u"-"_s);
        QTEST(texts.join(u'|'), "chain");
    }

private:
    support::TestBook m_book{support::TestBook::Rows::Sample};
};

QTEST_GUILESS_MAIN(TurboRulesTest)
#include "turbo_rules_test.moc"
