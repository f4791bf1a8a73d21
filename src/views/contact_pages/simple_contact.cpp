#include "views/contact_pages/simple_contact.h"

#include "core/contact_category.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr SimpleField kFields[] = {
    {u"Cmbtitle", u"Title"},
    {u"dtcmbfname", u"First"},
    {u"dtcmblname", u"Last"},
    {u"txtcmpny", u"Company"},
    {u"cmbnview", u"Nview"},
    {u"txtstd", u"h_std"},
    {u"txtph1", u"H_Ph1"},
    {u"txtbph1", u"B_Ph1"},
    {u"txtMobile", u"Mobile"},
    {u"txtemail1", u"H_email1"},
    {u"txtadd1", u"h_add1"},
    {u"txtadd2", u"h_add2"},
    {u"dtcmbcity", u"h_city"},
    {u"dtcmbpin", u"h_pin"},
    {u"dtcmbstate", u"h_state"},
    {u"dtcmbcountry", u"h_country"},
    {u"txtMemo", u"memo1", false},
};

constexpr QStringView kCategory = u"DtcmbCate";
constexpr QStringView kSubcategory = u"DtcmbSubCate";
constexpr QStringView kNameView = u"cmbnview";

/// What the lists of classes hold for a contact of which nothing is known.
constexpr QStringView kUndefined[] = {u"Product", u"Status", u"region"};

core::NameParts partsOf(const SimpleValues& values)
{
    return {values.text(u"Cmbtitle"), values.text(u"dtcmbfname"), values.text(u"dtcmblname"),
        values.text(u"txtcmpny")};
}

QString nameOf(const SimpleValues& values)
{
    const auto view = core::nameViewOf(values.text(kNameView));
    return view ? core::composeName(*view, partsOf(values)) : QString();
}

} // namespace

std::span<const SimpleField> simpleFields()
{
    return kFields;
}

std::optional<SimpleRefusal> refusalOf(const SimpleValues& values)
{
    const core::NameParts parts = partsOf(values);
    if (parts.first.trimmed().isEmpty() && parts.last.trimmed().isEmpty()
        && parts.company.trimmed().isEmpty())
        return SimpleRefusal::AllBlank;
    if (!core::nameViewOf(values.text(kNameView)))
        return SimpleRefusal::NoNameView;
    // A contact without a name could not be chosen in any list.
    if (nameOf(values).trimmed().isEmpty())
        return SimpleRefusal::NoName;
    return {};
}

QList<core::ColumnEdit> changedColumns(
    const SimpleValues& values, const SimpleSave& save, const core::TouchedFields& fields)
{
    QList<core::ColumnEdit> edits;
    const auto write = [&](QStringView column, const QVariant& value, const QStringList& controls) {
        edits.append({column.toString(), value, std::ranges::any_of(controls, fields.isTouched), false,
            fields.label(controls.constFirst())});
    };
    const QStringList classes{kCategory.toString(), kSubcategory.toString()};
    const core::Category category
        = core::storedCategory(values.text(kCategory), values.text(kSubcategory), save.mergedCategory);
    write(u"Name", nameOf(values), {u"dtcmbfname"_s, u"dtcmblname"_s, u"txtcmpny"_s, kNameView.toString()});
    // Of a joined entry that nobody touched the pieces stay: a category may have a dash in its name.
    if (!save.mergedCategory || std::ranges::any_of(classes, fields.isTouched)) {
        write(u"category1", category.category, classes);
        write(u"category2", category.subcategory, classes);
    }
    for (const SimpleField& field : kFields) {
        const QString text = values.text(field.control);
        write(field.column, field.trimmed ? text.trimmed() : text, {field.control.toString()});
    }
    write(u"M_BD", values.birthday ? QVariant(*values.birthday) : QVariant(), {u"DateBday"_s});
    edits.append({u"DateModi"_s, save.today, false, true, {}});
    return edits;
}

void assignNew(jet::Recordset& rows, const SimpleValues& values, const SimpleSave& save)
{
    const auto all = [](const QString&) { return true; };
    const auto noLabel = [](const QString&) { return QString(); };
    for (const core::ColumnEdit& edit : changedColumns(values, save, {all, noLabel}))
        rows.set(edit.column, edit.value);
    const QString priority = save.newPriority.trimmed();
    rows.set(u"Priority", priority.isEmpty() ? u"2"_s : priority);
    for (const QStringView column : kUndefined)
        rows.set(column, core::orUndefined({}));
    rows.set(u"dateEnter", save.today);
}

void fillMailItem(platform::MailContact& item, const SimpleValues& values)
{
    const auto text = [&values](QStringView control) { return values.text(control).trimmed(); };
    item.title = text(u"Cmbtitle");
    item.first = text(u"dtcmbfname");
    item.last = text(u"dtcmblname");
    item.company = text(u"txtcmpny");
    item.fullName = nameOf(values);
    item.fileAs
        = core::nameViewOf(values.text(kNameView)) == core::NameView::Company ? item.company : item.fullName;
    item.home = {text(u"txtadd1"), text(u"txtadd2"), text(u"dtcmbcity"), text(u"dtcmbstate"),
        text(u"dtcmbpin"), text(u"dtcmbcountry")};
    item.homePhone1 = text(u"txtph1");
    item.workPhone1 = text(u"txtbph1");
    item.mobile = text(u"txtMobile");
    item.email1 = text(u"txtemail1");
    item.birthday = values.birthday.value_or(QDate());
    item.note = values.text(u"txtMemo");
}

SimpleValues simpleValuesOf(const jet::Recordset& row, bool mergedCategory)
{
    SimpleValues values;
    for (const SimpleField& field : kFields)
        values.texts.insert(field.control.toString(), row.textOrEmpty(field.column));
    const core::Category category{row.textOrEmpty(u"category1"), row.textOrEmpty(u"category2")};
    values.texts.insert(kCategory.toString(), core::shownCategory(category, mergedCategory));
    values.texts.insert(kSubcategory.toString(), category.subcategory);
    // Imported contacts may have none.
    QString& view = values.texts[kNameView.toString()];
    if (view.trimmed().isEmpty())
        view = core::nameViews().constFirst();
    if (const QDate born = row.date(u"M_BD"); born.isValid())
        values.birthday = born;
    return values;
}

} // namespace views
