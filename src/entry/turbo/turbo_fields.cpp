#include "entry/turbo/turbo_fields.h"

#include <QtGlobal>

#include <algorithm>

using namespace Qt::StringLiterals;
using core::Vocabulary;

namespace entry {

namespace {

constexpr TurboField shared(const char* name, QStringView box, Vocabulary list)
{
    return {.name = name, .box = box, .vocabulary = list};
}

constexpr TurboField own(const char* name, QStringView box, QStringView sql)
{
    return {.name = name, .box = box, .home = sql};
}

constexpr TurboField special(const char* name, TurboKind kind, QStringView box, QStringView workBox = {})
{
    return {.name = name, .kind = kind, .box = box, .workBox = workBox};
}

constexpr QStringView kPriorities[] = {u"1", u"2", u"3", u"4"};
constexpr QStringView kAddresses[] = {u"www.            .com", u"www.            .org",
    u"www.            .co", u"www.            .co.us", u"www.            .co.ca", u"www.            .com.au",
    u"www.            .com.uk", u"www.            .com.in", u"http://          .com"};

constexpr TurboField kFields[] = {
    shared(QT_TRANSLATE_NOOP("entry", "First"), u"txtfirst", Vocabulary::FirstNames),
    shared(QT_TRANSLATE_NOOP("entry", "Last"), u"txtlast", Vocabulary::LastNames),
    shared(QT_TRANSLATE_NOOP("entry", "Category"), u"txtCat", Vocabulary::MergedCategories),
    {.name = QT_TRANSLATE_NOOP("entry", "Priority"),
        .kind = TurboKind::Fixed,
        .box = u"TxtPriority",
        .fixed = kPriorities},
    shared(QT_TRANSLATE_NOOP("entry", "Product"), u"txtproduct", Vocabulary::Products),
    shared(QT_TRANSLATE_NOOP("entry", "Company"), u"txtcompany", Vocabulary::Companies),
    own(QT_TRANSLATE_NOOP("entry", "Company Suffix"), u"txtcompsuffix",
        u"select distinct CompSufix from CNTB_OTHER where CompSufix is not null and CompSufix <>'' order by "
        u"CompSufix"),
    own(QT_TRANSLATE_NOOP("entry", "Add Type"), u"txtwAddtype",
        u"select distinct [ADDTYPE] from CNTB_OTHER where [ADDTYPE] is not null and addtype <>''  order by "
        u"[ADDTYPE]"),
    // Kept: in the home country the addresses come as they lie in the table, blank ones among them.
    {.name = QT_TRANSLATE_NOOP("entry", "Add General"),
        .box = u"txthadd1",
        .appends = true,
        .home = u"Select address from cnt_address where national= 'N'",
        .abroad = u"Select address from cnt_address where national= 'C' and address is not null and address "
                  u"<>'' order by address "},
    {.name = QT_TRANSLATE_NOOP("entry", "Add Specific"),
        .box = u"txthadd2",
        .appends = true,
        .home = u"Select area from cnt_address where city= '%1' and area is not null and area <>'' order by "
                u"area "},
    special(QT_TRANSLATE_NOOP("entry", "City"), TurboKind::City, u"txthcity", u"txtwcity"),
    special(QT_TRANSLATE_NOOP("entry", "Zip"), TurboKind::Typed, u"TxthZip", u"TxtwZip"),
    special(QT_TRANSLATE_NOOP("entry", "Telcode"), TurboKind::DigitPad, u"txthph1"),
    own(QT_TRANSLATE_NOOP("entry", "Email Suffix"), u"txthemailSuffix",
        u"select distinct [Email Suffix] from CNTB_OTHER1 where [Email Suffix] is not null "
        u"and [email suffix] <>''"),
    {.name = QT_TRANSLATE_NOOP("entry", "URL"),
        .kind = TurboKind::Fixed,
        .box = u"txtHweb",
        .workBox = u"txtWweb",
        .fixed = kAddresses},
    shared(QT_TRANSLATE_NOOP("entry", "Region"), u"txtregion", Vocabulary::Regions),
    own(QT_TRANSLATE_NOOP("entry", "Status"), u"txtstatus",
        u"select distinct [STATUS] from CNTB_OTHER where [STATUS] is not null and status <>''"),
    shared(QT_TRANSLATE_NOOP("entry", "Relation"), u"TxtRelation", Vocabulary::Relations),
    shared(QT_TRANSLATE_NOOP("entry", "Maiden"), u"TxtMaiden", Vocabulary::LastNames),
    {.name = QT_TRANSLATE_NOOP("entry", "Nick"),
        .box = u"txtnick",
        .home = u"SELECT DISTINCT nick FROM [wia_cntnames] WHERE  nick IS NOT NULL ORDER BY nick",
        .abroad = u"SELECT DISTINCT nick FROM [wia_cntnames] WHERE  [national]='C' and  nick IS NOT NULL "
                  u"ORDER BY nick",
        .inInformation = true},
    own(QT_TRANSLATE_NOOP("entry", "Job Title"), u"txtJobTitle",
        u"select distinct [jobtitle] from CNTB_OTHER where [jobtitle] is not null and jobtitle <>'' order by "
        u"[jobtitle]"),
    shared(QT_TRANSLATE_NOOP("entry", "Spouse"), u"TxtSpouse", Vocabulary::FirstNames),
    own(QT_TRANSLATE_NOOP("entry", "Hobbies"), u"TxtHobbies",
        u"select distinct Hobbies from CNTB_OTHER1 where Hobbies is not null and Hobbies <>''"),
    shared(QT_TRANSLATE_NOOP("entry", "Kid1"), u"Txtkid1", Vocabulary::FirstNames),
    shared(QT_TRANSLATE_NOOP("entry", "Kid2"), u"TxtKid2", Vocabulary::FirstNames),
    shared(QT_TRANSLATE_NOOP("entry", "Kid3"), u"TxtKid3", Vocabulary::FirstNames),
    own(QT_TRANSLATE_NOOP("entry", "User1"), u"TxtUser1",
        u"select distinct user1 from CNTB_OTHER where user1 is not null and user1 <>'' order by user1"),
    own(QT_TRANSLATE_NOOP("entry", "User2"), u"TxtUser2",
        u"select distinct user2 from CNTB_OTHER where user2 is not null and user2 <>'' order by user2"),
    own(QT_TRANSLATE_NOOP("entry", "User3"), u"TxtUser3",
        u"select distinct user3 from CNTB_OTHER where user3 is not null and user3 <>'' order by user3"),
    {.name = QT_TRANSLATE_NOOP("entry", "Birthday"),
        .kind = TurboKind::Calendar,
        .box = u"dtpBirtday",
        .tag = u"Bday"},
    {.name = QT_TRANSLATE_NOOP("entry", "Anniversary"),
        .kind = TurboKind::Calendar,
        .box = u"SSDateAnn",
        .tag = u"Ann"},
};

/// The first one is where digits go until another one was entered.
constexpr QStringView kPadBoxes[] = {u"txthph1", u"txthph2", u"txthph3", u"txthstd", u"txtwstd", u"txtwph1",
    u"txtwph2", u"txtwph3", u"txtMobile", u"txtfax"};

} // namespace

std::span<const TurboField> turboFields()
{
    return kFields;
}

TurboSource turboSource(const TurboField& field, bool nationalMode, const QString& homeCity)
{
    if (field.vocabulary)
        return {
            core::vocabularySql(*field.vocabulary, nationalMode), core::isInInformation(*field.vocabulary)};
    const QStringView sql = nationalMode || field.abroad.isEmpty() ? field.home : field.abroad;
    return {sql.toString().replace(u"%1"_s, homeCity), field.inInformation};
}

QStringList fixedValues(const TurboField& field)
{
    QStringList values;
    for (const QStringView text : field.fixed)
        values << text.toString();
    return values;
}

QStringView boxOf(const TurboField& field, Block block)
{
    return block == Block::Work && !field.workBox.isEmpty() ? field.workBox : field.box;
}

QString takenText(const TurboField& field, const QString& standing, const QString& value)
{
    if (!field.appends || standing.isEmpty())
        return value;
    return value.isEmpty() ? standing : QString(standing + u' ' + value);
}

std::span<const QStringView> padBoxes()
{
    return kPadBoxes;
}

QStringView padBox(QStringView lastEntered)
{
    const auto* found = std::ranges::find(kPadBoxes, lastEntered);
    return found == std::end(kPadBoxes) ? kPadBoxes[0] : *found;
}

} // namespace entry
