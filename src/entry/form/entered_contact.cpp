#include "entry/form/entered_contact.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr QStringView kNote = u"memo1";

QString enteredText(const ColumnRow& row, const FormValues& values)
{
    const QString text = values.trimmed(row.control);
    switch (row.rule) {
    case Rule::Email: return text.isEmpty() ? QString() : QString(text + u'@' + values.trimmed(row.second));
    case Rule::Joined: return QString(values.text(row.control) + values.text(row.second)).trimmed();
    default: return row.column == kNote ? values.text(row.control) : text;
    }
}

} // namespace

core::ContactRecord enteredContact(
    std::span<const ColumnRow> columns, const FormValues& values, const QString& name)
{
    core::ContactRecord contact;
    for (const ColumnRow& row : columns) {
        const QString control = row.control.toString();
        if (values.dates.contains(control))
            contact.set(row.column, values.date(control).value_or(QDate()));
        else if (values.texts.contains(control))
            contact.set(row.column, enteredText(row, values));
    }
    contact.set(u"Name", name);
    return contact;
}

std::span<const ColumnRow> enteredColumns()
{
    static const QList<ColumnRow> columns = [] {
        const auto written = detailedEditColumns();
        QList<ColumnRow> all(written.begin(), written.end());
        all << ColumnRow{u"fax", u"txtfax"} << ColumnRow{kNote, u"txtMemo"};
        return all;
    }();
    return columns;
}

} // namespace entry
