#include <QtTest>

#include "entry/assists/city_chain.h"
#include "entry/turbo/turbo_fields.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace entry;

/// The plain functions behind the turbo form: the lists of its fields and what a picked city tells.
class TurboRulesTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void fieldsInOrder();
    void lists_data();
    void lists();
    void takenTexts();
    void chains_data();
    void chains();

private:
    support::TestBook m_book{support::TestBook::Rows::Sample};
};

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

void TurboRulesTest::cleanup()
{
    QCOMPARE(m_book.unexpected(), QString());
}

void TurboRulesTest::fieldsInOrder()
{
    QStringList names;
    for (const TurboField& field : turboFields())
        names << QString::fromLatin1(field.name);
    QCOMPARE(names.join(u','),
        u"First,Last,Category,Priority,Product,Company,Company Suffix,Add Type,Add General,Add Specific,City,"
        "Zip,Telcode,Email Suffix,URL,Region,Status,Relation,Maiden,Nick,Job Title,Spouse,Hobbies,Kid1,Kid2,"
        "Kid3,User1,User2,User3,Birthday,Anniversary"_s);
}

void TurboRulesTest::lists_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<bool>("national");
    QTest::addColumn<QString>("sql");
    QTest::addColumn<QString>("values");
    const auto both = [](const char* field, const QString& sql, const QString& values) {
        const QString name = QString::fromLatin1(field);
        QTest::addRow("%s at home", field) << name << true << sql << values;
        QTest::addRow("%s abroad", field) << name << false << sql << values;
    };
    const auto one = [](const char* field, bool national, const QString& sql, const QString& values) {
        QTest::addRow("%s %s", field, national ? "at home" : "abroad")
            << QString::fromLatin1(field) << national << sql << values;
    };
    const QString firstHome
        = u" SELECT DISTINCT First FROM [wia_cntnames] WHERE  [FIRST] is not null and len(FIRST) > 0 "_s;
    const QString firstAbroad
        = u" SELECT DISTINCT First FROM [wia_cntnames] WHERE  [NATIONAL]='C' and  [FIRST] is not null and len(FIRST) > 0 "_s;
    for (const char* field : {"First", "Spouse", "Kid1", "Kid2", "Kid3"}) {
        one(field, true, firstHome, u"John,Mary,Priya,Rahul,Robin"_s);
        one(field, false, firstAbroad, u"John,Mary,Robin"_s);
    }
    for (const char* field : {"Last", "Maiden"}) {
        one(field, true,
            u"SELECT DISTINCT last FROM [wia_cntnames] WHERE last IS NOT NULL and last <>'' ORDER BY last"_s,
            u"Brown,Hood,Mehta,Scott,Sharma,Smith"_s);
        one(field, false,
            u"SELECT DISTINCT last FROM [wia_cntnames] WHERE last IS NOT NULL and last <>'' AND national = 'C' ORDER BY last"_s,
            u"Brown,Hood,Scott,Smith"_s);
    }
    one("Nick", true, u"SELECT DISTINCT nick FROM [wia_cntnames] WHERE  nick IS NOT NULL ORDER BY nick"_s,
        u"Jack,Nick,Pri,Raju,Rob"_s);
    one("Nick", false,
        u"SELECT DISTINCT nick FROM [wia_cntnames] WHERE  [national]='C' and  nick IS NOT NULL ORDER BY nick"_s,
        u"Jack,Rob"_s);
    both("Category",
        u"select distinct category1+'-'+category2 as category from CNTB_CATEGORIES where category1 is not null and category1 <>''"_s,
        u"Business-Clients,Business-Suppliers,Friends-School,Old-Retired,Personal-Family,null"_s);
    both("Product",
        u"select distinct product from CNTB_OTHER where product is not null and product <>'' order by product"_s,
        u"Steel,Tea"_s);
    one("Company", true, u"SELECT DISTINCT name FROM [wia_company] WHERE national='N'"_s,
        u"Infosys,Tata Steel"_s);
    one("Company", false, u"SELECT DISTINCT name FROM [wia_company] WHERE national='C'"_s,
        u"General Electric,IBM"_s);
    both("Company Suffix",
        u"select distinct CompSufix from CNTB_OTHER where CompSufix is not null and CompSufix <>'' order by CompSufix"_s,
        u"Ltd."_s);
    both("Add Type",
        u"select distinct [ADDTYPE] from CNTB_OTHER where [ADDTYPE] is not null and addtype <>''  order by [ADDTYPE]"_s,
        u"Office,Plant"_s);
    one("Add General", true, u"Select address from cnt_address where national= 'N'"_s,
        u"Marine Drive,null"_s);
    one("Add General", false,
        u"Select address from cnt_address where national= 'C' and address is not null and address <>'' order by address "_s,
        u"Main Street"_s);
    both("Add Specific",
        u"Select area from cnt_address where city= 'Mumbai' and area is not null and area <>'' order by area "_s,
        u"Churchgate"_s);
    both("Email Suffix",
        u"select distinct [Email Suffix] from CNTB_OTHER1 where [Email Suffix] is not null and [email suffix] <>''"_s,
        u"example.com"_s);
    one("Region", true, u"select distinct [REGION] from CNTB_OTHER1 where [REGION] is not null"_s,
        u"East,West"_s);
    one("Region", false,
        u"select distinct [REGION] from CNTB_OTHER1 where [REGION] is not null and [REGIONVERSION]='C'"_s,
        u"East"_s);
    both("Status", u"select distinct [STATUS] from CNTB_OTHER where [STATUS] is not null and status <>''"_s,
        u"Active"_s);
    one("Relation", true,
        u"select distinct [RELATION] from CNTB_OTHER1 where [RELATION] is not null and relation <>'' "_s,
        u"Friend,Mama"_s);
    one("Relation", false,
        u"select distinct [RELATION] from CNTB_OTHER1 where [RELATION] is not null and [RELATIONVERSION] ='C' and relation <>''"_s,
        u"Friend"_s);
    both("Job Title",
        u"select distinct [jobtitle] from CNTB_OTHER where [jobtitle] is not null and jobtitle <>'' order by [jobtitle]"_s,
        u"Engineer,Manager"_s);
    both("Hobbies", u"select distinct Hobbies from CNTB_OTHER1 where Hobbies is not null and Hobbies <>''"_s,
        u"Chess"_s);
    both("User1",
        u"select distinct user1 from CNTB_OTHER where user1 is not null and user1 <>'' order by user1"_s,
        u"Gold,Silver"_s);
    both("User2",
        u"select distinct user2 from CNTB_OTHER where user2 is not null and user2 <>'' order by user2"_s,
        u"North"_s);
    both("User3",
        u"select distinct user3 from CNTB_OTHER where user3 is not null and user3 <>'' order by user3"_s,
        u"x"_s);
}

void TurboRulesTest::lists()
{
    QFETCH(QString, field);
    QFETCH(bool, national);
    m_book.data().execute(u"delete * from cnt_address where address is null"_s);
    m_book.data().execute(u"insert into cnt_address (area,national) values ('','N')"_s);
    const TurboSource source = turboSource(fieldOf(field), national, u"Mumbai"_s);
    QTEST(source.sql, "sql");
    QStringList values = m_book.rows(source.sql);
    if (!source.sql.contains(u"order by"_s, Qt::CaseInsensitive))
        std::ranges::sort(values);
    QTEST(values.join(u','), "values");
    // The shipped lists lie in a database of their own.
    QCOMPARE(source.inInformation, source.sql.contains(u"wia_"_s));
}

void TurboRulesTest::takenTexts()
{
    const TurboField& street = fieldOf(u"Add General"_s);
    QCOMPARE(takenText(street, {}, u"Main Street"_s), u"Main Street"_s);
    QCOMPARE(takenText(street, u"12"_s, u"Main Street"_s), u"12 Main Street"_s);
    QCOMPARE(takenText(street, u"12"_s, {}), u"12"_s);
    QCOMPARE(takenText(fieldOf(u"First"_s), u"Asha"_s, u"Bina"_s), u"Bina"_s);
}

void TurboRulesTest::chains_data()
{
    QTest::addColumn<QString>("city");
    QTest::addColumn<QString>("country");
    QTest::addColumn<QString>("chain"); // "-" for what stays as it was
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

void TurboRulesTest::chains()
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

QTEST_GUILESS_MAIN(TurboRulesTest)
#include "turbo_rules_test.moc"
