#include "entry/duplicator/duplicate_columns.h"

#include <QString>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr DuplicateChoice kChoices[] = {
    {u"OptSpouse", u"LblSpouse", u"Spouse", u"Spouse", QT_TRANSLATE_NOOP("entry", "&Spouse"), true},
    {u"OptKid1", u"LblKid1", u"Kid1", u"kid1", QT_TRANSLATE_NOOP("entry", "Kid &1"), true},
    {u"OptKid2", u"LblKid2", u"Kid2", u"kid2", QT_TRANSLATE_NOOP("entry", "Kid &2"), true},
    {u"OptKid3", u"LblKid3", u"Kid3", u"kid3", QT_TRANSLATE_NOOP("entry", "Kid &3"), true},
    {u"OptAltPer", u"LblAltPerson", u"AltContact", u"altcontact",
        QT_TRANSLATE_NOOP("entry", "&Alternate person"), false},
    {u"OptCompanyName", u"LblCompany", u"Company", u"Company", QT_TRANSLATE_NOOP("entry", "C&ompany"), false},
};

struct Part {
    bool DuplicateParts::*wanted;
    std::span<const QStringView> columns;
};

constexpr QStringView kHome[] = {
    u"h_add1", u"h_add2", u"h_state", u"h_country", u"h_pin", u"h_std", u"H_Ph1", u"h_ph2", u"h_ph3", u"fax"};
// Kept: the state of the second work address stays behind.
constexpr QStringView kWork[] = {u"Product", u"b_add1", u"b_add2", u"b_city", u"b_state", u"b_country",
    u"b_pin", u"B_std", u"B_Ph1", u"B_Ph2", u"B_ph3", u"w_add1", u"w_add2", u"w_city", u"w_country", u"w_pin",
    u"w_Ph1", u"w_Ph2", u"w_ph3"};
constexpr QStringView kMail[] = {u"h_web", u"H_email1", u"h_email2", u"b_email1", u"b_email2", u"B_Web"};
constexpr QStringView kClasses[] = {u"Status", u"Religion", u"region"};

constexpr Part kParts[] = {
    {&DuplicateParts::home, kHome},
    {&DuplicateParts::work, kWork},
    {&DuplicateParts::mail, kMail},
    {&DuplicateParts::classes, kClasses},
};

QString orElse(const QString& entered, const QString& other)
{
    return entered.trimmed().isEmpty() ? other : entered.trimmed();
}

} // namespace

std::span<const DuplicateChoice> duplicateChoices()
{
    return kChoices;
}

QString duplicateName(const QString& first, const QString& last)
{
    return first + u' ' + last;
}

void assignDuplicate(jet::Recordset& added, const jet::Recordset& source, const Duplicate& duplicate)
{
    const auto copy = [&](QStringView column) { added.set(column, source.value(column)); };
    added.set(u"First", duplicate.first);
    copy(u"Last");
    added.set(u"Name", duplicateName(duplicate.first, source.textOrEmpty(u"Last")));
    added.set(u"category1", orElse(duplicate.category, source.textOrEmpty(u"category1")));
    added.set(u"category2", orElse(duplicate.subcategory, source.textOrEmpty(u"category2")));
    added.set(u"Priority", duplicate.priority);
    added.set(u"h_city", source.textOrEmpty(u"h_city").trimmed());
    for (const Part& part : kParts) {
        if (!(duplicate.parts.*part.wanted))
            continue;
        for (const QStringView column : part.columns)
            copy(column);
    }
    added.set(u"Asso1", source.textOrEmpty(u"Name")); // links the new contact to the old one
    added.set(u"DateModi", duplicate.today);
}

QString duplicateNamesSql(const QString& category, const QString& whereClause)
{
    const QString all = u"select distinct name from cnt_main "_s;
    if (!whereClause.trimmed().isEmpty())
        return all + whereClause + u" order by name"_s;
    if (category.trimmed().isEmpty())
        return all + u"order by name "_s;
    return all + u"WHERE CATEGORY1='"_s + category + u"' order by name"_s;
}

QString duplicateSourceSql(const QString& name)
{
    return u"select * from cnt_main where name ='"_s + name + u'\'';
}

QString duplicateCategoriesSql()
{
    return u"select distinct category1 from cntb_categories  where deleted = false and category1 is not null"_s;
}

QString duplicateSubcategoriesSql(const QString& category)
{
    return u"select distinct category2 from cntb_categories where deleted = false and  category1='"_s
        + category + u"' and category2 is not null"_s;
}

} // namespace entry
