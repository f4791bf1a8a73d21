#include "core/vocabularies.h"

#include <iterator>

using namespace Qt::StringLiterals;

namespace core {

namespace {

struct VocabularyRow {
    Vocabulary list;
    bool inInformation;
    QStringView home; ///< in the home country
    QStringView abroad; ///< elsewhere; empty when it is the same
};

constexpr VocabularyRow kRows[] = {
    {Vocabulary::FirstNames, true,
        u" SELECT DISTINCT First FROM [wia_cntnames] WHERE  [FIRST] is not null and len(FIRST) > 0 ",
        u" SELECT DISTINCT First FROM [wia_cntnames] WHERE  [NATIONAL]='C' and  [FIRST] is not null and "
        u"len(FIRST) > 0 "},
    {Vocabulary::LastNames, true,
        u"SELECT DISTINCT last FROM [wia_cntnames] WHERE last IS NOT NULL and last <>'' ORDER BY last",
        u"SELECT DISTINCT last FROM [wia_cntnames] WHERE last IS NOT NULL and last <>'' AND national = 'C' "
        u"ORDER BY last"},
    {Vocabulary::MiddleNames, true,
        u"SELECT DISTINCT middle FROM [wia_cntnames] WHERE middle IS NOT NULL and middle <>'' ORDER BY "
        u"middle",
        u""},
    {Vocabulary::NickNames, true,
        u"SELECT DISTINCT nick FROM [wia_cntnames] WHERE  nick IS NOT NULL ORDER BY nick",
        u"SELECT DISTINCT nick FROM [wia_cntnames] WHERE  [NATIONAL]='C' and  nick IS NOT NULL ORDER BY "
        u"nick"},
    {Vocabulary::Companies, true, u"SELECT DISTINCT name FROM [wia_company] WHERE national='N'",
        u"SELECT DISTINCT name FROM [wia_company] WHERE national='C'"},
    {Vocabulary::Countries, true, u"select distinct [country] from WIA_GLOBALMAS order by country", u""},
    // Kept: the test against null in this form is never true, so the short list of cities is empty.
    {Vocabulary::TopCities, false,
        u"select distinct [city] from CNT_TOPCITIES where [city]<>null order by [city]", u""},
    {Vocabulary::Relations, false,
        u"select distinct [RELATION] from CNTB_OTHER1 where [RELATION] is not null and relation <>'' ",
        u"select distinct [RELATION] from CNTB_OTHER1 where [RELATION] is not null and [RELATIONVERSION] "
        u"='C' and relation <>''"},
    {Vocabulary::Religions, false,
        u"select distinct [RELIGION] from CNTB_OTHER1 where [RELIGION] is not null",
        u"select distinct [RELIGION] from CNTB_OTHER1 where [RELIGION] is not null and "
        u"[RELIGIONVERSION]='C'"},
    {Vocabulary::Regions, false, u"select distinct [REGION] from CNTB_OTHER1 where [REGION] is not null",
        u"select distinct [REGION] from CNTB_OTHER1 where [REGION] is not null and [REGIONVERSION]='C'"},
    {Vocabulary::Educations, false,
        u"select distinct [Education] from CNTB_OTHER1 where [Education] is not null",
        u"select distinct [Education] from CNTB_OTHER1 where [Education] is not null and "
        u"[EducationVersion]='C'"},
    {Vocabulary::Hobbies, false, u"select distinct [Hobbies] from CNTB_OTHER1 where [Hobbies] is not null",
        u""},
    {Vocabulary::EmailSuffixes, false,
        u"select distinct [Email Suffix] from CNTB_OTHER1 where [Email Suffix] is not null", u""},
    {Vocabulary::JobTitles, false, u"select distinct JOBTITLE from CNTB_OTHER where JOBTITLE is not null",
        u""},
    {Vocabulary::AddressTypes, false, u"select distinct ADDTYPE from CNTB_OTHER where ADDTYPE is not null",
        u""},
    {Vocabulary::Statuses, false, u"select distinct STATUS from CNTB_OTHER where STATUS is not null", u""},
    {Vocabulary::Products, false,
        u"select distinct product from CNTB_OTHER where product is not null and product <>'' order by "
        u"product",
        u""},
    {Vocabulary::CompanySuffixes, false,
        u"select distinct CompSufix from CNTB_OTHER where CompSufix is not null", u""},
    // Kept: the test against null is never true here either; the length alone selects.
    {Vocabulary::User1, false,
        u"select distinct [user1] from CNTB_OTHER where [user1] <> null or len(user1) <> 0", u""},
    {Vocabulary::User2, false, u"select distinct [user2] from CNTB_OTHER where [user2] is not null", u""},
    {Vocabulary::User3, false, u"select distinct [user3] from CNTB_OTHER where [user3] is not null", u""},
    // Retired categories stay on offer: neither list asks whether a category is deleted.
    {Vocabulary::Categories, false,
        u"select distinct category1 as category from CNTB_CATEGORIES where category1 is not null and "
        u"category1 <>''",
        u""},
    {Vocabulary::MergedCategories, false,
        u"select distinct category1+'-'+category2 as category from CNTB_CATEGORIES where category1 is not "
        u"null and category1 <>''",
        u""},
};

const VocabularyRow& rowOf(Vocabulary list)
{
    const auto* row
        = std::find_if(std::begin(kRows), std::end(kRows), [list](const auto& r) { return r.list == list; });
    Q_ASSERT(row != std::end(kRows));
    return *row;
}

} // namespace

QString vocabularySql(Vocabulary list, bool nationalMode)
{
    const VocabularyRow& row = rowOf(list);
    return (nationalMode || row.abroad.isEmpty() ? row.home : row.abroad).toString();
}

bool isInInformation(Vocabulary list)
{
    return rowOf(list).inInformation;
}

QString subcategoriesSql(const QString& category)
{
    return u"select distinct category2 from CNTB_CATEGORIES where category1='"_s + category
        + u"' order by Category2"_s;
}

QStringList firstColumn(jet::Database& database, const QString& sql)
{
    QStringList values;
    const jet::Recordset rows = database.openRecordset(sql);
    values.reserve(rows.count());
    for (int row = 0; row < rows.count(); ++row) {
        if (rows.valueAt(row, 0).isValid())
            values << rows.textAt(row, 0);
    }
    return values;
}

QStringList readVocabulary(jet::Database& data, jet::Database& info, Vocabulary list, bool nationalMode)
{
    return firstColumn(isInInformation(list) ? info : data, vocabularySql(list, nationalMode));
}

} // namespace core
