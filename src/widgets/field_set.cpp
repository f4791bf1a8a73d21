#include "widgets/field_set.h"

#include "jet/recordset.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"

#include <QVariant>

using namespace Qt::StringLiterals;

namespace widgets {

FieldSet::FieldSet(const QWidget* pages)
{
    for (QWidget* each : pages->findChildren<QWidget*>()) {
        const QVariant column = each->property(kFieldColumn);
        if (!column.isValid())
            continue;
        m_places.insert(each->objectName(), m_controls.size());
        m_controls += Control{each->objectName(), column.toString(), each};
    }
    keepAsLoaded();
}

QWidget* FieldSet::widget(const QString& name) const
{
    const auto place = m_places.constFind(name);
    Q_ASSERT_X(place != m_places.constEnd(), "FieldSet", qUtf8Printable(name));
    return m_controls.at(*place).widget;
}

QString FieldSet::label(const QString& name) const
{
    return widget(name)->accessibleName();
}

QString FieldSet::text(const QString& name) const
{
    return textOf(widget(name));
}

void FieldSet::setText(const QString& name, const QString& text)
{
    setTextOf(widget(name), text);
}

FieldValues FieldSet::values() const
{
    FieldValues all;
    for (const Control& field : m_controls) {
        all.texts.insert(field.name, textOf(field.widget));
        if (const auto* box = qobject_cast<const DateBox*>(field.widget))
            all.dates.insert(field.name, box->date());
    }
    return all;
}

void FieldSet::show(const FieldValues& values)
{
    for (const Control& field : m_controls) {
        auto* box = qobject_cast<DateBox*>(field.widget);
        if (box && values.dates.contains(field.name))
            box->setDate(values.date(field.name));
        else if (!box && values.texts.contains(field.name))
            setTextOf(field.widget, values.text(field.name));
    }
}

void FieldSet::showRow(const jet::Recordset& row, const QSet<QString>& but)
{
    for (const Control& field : m_controls) {
        if (field.column.isEmpty() || but.contains(field.name))
            continue;
        if (auto* box = qobject_cast<DateBox*>(field.widget)) {
            const QDate date = row.date(field.column);
            box->setDate(date.isValid() ? std::optional(date) : std::nullopt);
        } else {
            setTextOf(field.widget, row.textOrEmpty(field.column));
        }
    }
}

void FieldSet::clear()
{
    for (const Control& field : m_controls)
        widgets::clear(field.widget);
}

bool FieldSet::isTouched(const QString& name) const
{
    return text(name) != m_loaded.text(name);
}

DateBox* FieldSet::firstBadDate() const
{
    for (const Control& field : m_controls) {
        auto* box = qobject_cast<DateBox*>(field.widget);
        if (box && box->holdsBadText())
            return box;
    }
    return nullptr;
}

} // namespace widgets
