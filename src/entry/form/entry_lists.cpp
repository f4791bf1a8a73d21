#include "entry/form/entry_lists.h"

#include "core/contact_names.h"
#include "core/merged_category.h"
#include "core/vocabularies.h"
#include "widgets/filled_combo.h"

using namespace Qt::StringLiterals;
using core::Vocabulary;
using widgets::FilledCombo;

namespace entry {

namespace {

struct ListRow {
    QStringView control;
    Vocabulary list;
};
constexpr ListRow kLists[] = {
    {u"dtcmbfname", Vocabulary::FirstNames},
    {u"dtcmblname", Vocabulary::LastNames},
    {u"dtcmbmid", Vocabulary::MiddleNames},
    {u"dtcmbnick", Vocabulary::NickNames},
    {u"dtcmbcity", Vocabulary::TopCities},
    {u"dtcmbcity1", Vocabulary::TopCities},
    {u"dtcmbbcity", Vocabulary::TopCities},
    {u"dtcmbwcity", Vocabulary::TopCities},
    {u"dtcmbcountry", Vocabulary::Countries},
    {u"dtcmbbcountry", Vocabulary::Countries},
    {u"dtcmbwcountry", Vocabulary::Countries},
    {u"txtcmpnySuffix", Vocabulary::CompanySuffixes},
    {u"cboemail1", Vocabulary::EmailSuffixes},
    {u"dtcmbjob", Vocabulary::JobTitles},
    {u"dtcmbalttitle", Vocabulary::JobTitles},
    {u"txtbaddty", Vocabulary::AddressTypes},
    {u"dtcmbbadtyp", Vocabulary::AddressTypes},
    {u"Dtcmbbproduct", Vocabulary::Products},
    {u"Dtcmbstatus", Vocabulary::Statuses},
    {u"dtcmbrelation", Vocabulary::Relations},
    {u"dtcmbreligion", Vocabulary::Religions},
    {u"dtcmbregion", Vocabulary::Regions},
    {u"CmbEducation", Vocabulary::Educations},
    {u"txthobby", Vocabulary::Hobbies},
    {u"cmbuser1", Vocabulary::User1},
    {u"cmbuser2", Vocabulary::User2},
    {u"cmbuser3", Vocabulary::User3},
};

struct StateRow {
    QStringView control;
    QStringView country;
};
constexpr StateRow kStates[] = {
    {u"dtcmbstate", u"dtcmbcountry"}, {u"dtcmbbstate", u"dtcmbbcountry"}, {u"dtcmbwstate", u"dtcmbwcountry"}};

FilledCombo* comboOf(QWidget* form, QStringView name)
{
    return form->findChild<FilledCombo*>(name.toString());
}

QString statesSql(const QString& country)
{
    if (country.trimmed().compare(u"India", Qt::CaseInsensitive) == 0)
        return u"select distinct state from WIA_INDIA where state is not null and state <>''"_s;
    return u"select distinct [state] from WIA_CITY where [country id] in(select id from WIA_GLOBALMAS  where country ='"_s
        + country + u"') and state is not null and state <>''"_s;
}

} // namespace

void setListSources(QWidget* form, core::Context& context)
{
    core::Context* all = &context;
    for (const ListRow& row : kLists) {
        if (FilledCombo* combo = comboOf(form, row.control))
            combo->setSource([all, list = row.list] {
                return core::readVocabulary(all->data, all->info, list, all->shared.NationalMode);
            });
    }
    for (const StateRow& row : kStates) {
        FilledCombo* combo = comboOf(form, row.control);
        FilledCombo* country = comboOf(form, row.country);
        if (!combo || !country)
            continue;
        combo->setSource([all, country] {
            const QString name = country->currentText();
            return name.isEmpty() || name.contains(u'\'') ? QStringList()
                                                          : core::firstColumn(all->info, statesSql(name));
        });
        QObject::connect(country, &QComboBox::currentTextChanged, combo, [combo] { combo->refill(); });
    }
    for (const QStringView name : {QStringView(u"dtcmbasso1"), QStringView(u"dtcmbasso2")}) {
        if (FilledCombo* combo = comboOf(form, name))
            combo->setSource(
                [all] { return core::firstColumn(all->data, u"select name from CNT_MAIN order by name"_s); });
    }
    if (FilledCombo* category = comboOf(form, u"DtcmbCate"))
        category->setSource([all] {
            const auto list = all->shared.ContMerge ? Vocabulary::MergedCategories : Vocabulary::Categories;
            return core::readVocabulary(all->data, all->info, list, all->shared.NationalMode);
        });
    if (FilledCombo* sub = comboOf(form, u"DtcmbSubCate"))
        sub->setSource([all, category = comboOf(form, u"DtcmbCate")] {
            return core::firstColumn(all->data, core::subcategoriesSql(category->currentText()));
        });
}

void setFixedLists(QWidget* form)
{
    comboOf(form, u"Cmbtitle")->setValues({u"Dr."_s, u"Miss."_s, u"Mr."_s, u"Mrs."_s, u"Ms."_s, u"Prof."_s});
    comboOf(form, u"cmbnview")->setValues(core::nameViews());
}

void followCategorySwitch(QWidget* form, widgets::FieldSet& fields, bool& isMerged, bool merges)
{
    if (isMerged == merges)
        return;
    const bool wasTouched = fields.isTouched();
    isMerged = merges;
    core::mergeCategoryLists(form, merges);
    if (!wasTouched)
        fields.keepAsLoaded();
}

void refillLists(QWidget* form)
{
    for (FilledCombo* combo : form->findChildren<FilledCombo*>())
        combo->refill();
}

} // namespace entry
