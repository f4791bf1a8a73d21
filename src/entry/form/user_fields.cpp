#include "entry/form/user_fields.h"

#include "core/settings.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"

#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace entry {

UserFields::UserFields(QWidget* form, jet::Database& data)
    : QObject(form)
    , m_form(form)
    , m_data(data)
{
    for (int number = 1; number <= 3; ++number) {
        auto* label = m_form->findChild<QPushButton*>(u"lbluser%1"_s.arg(number));
        if (!label)
            return;
        connect(label, &QPushButton::clicked, this, [this, number] { rename(number); });
        // The third field has values, but none is added to its list.
        if (number < 3) {
            auto* values = widgets::child<QComboBox>(m_form, u"cmbuser%1"_s.arg(number));
            connect(values->lineEdit(), &QLineEdit::editingFinished, this,
                [this, number, values] { keepValue(number, values->currentText()); });
        }
    }
    connect(widgets::child<QLineEdit>(m_form, u"txtlbl"_s), &QLineEdit::returnPressed, this,
        &UserFields::keepLabel);
}

void UserFields::showLabels()
{
    const QStringList labels = core::userFieldLabels(core::readSettings(m_data));
    for (int number = 1; number <= 3; ++number) {
        auto* label = m_form->findChild<QPushButton*>(u"lbluser%1"_s.arg(number));
        if (!label)
            return;
        widgets::setTextOf(label, labels[number - 1]);
    }
}

void UserFields::rename(int number)
{
    m_renamed = number;
    auto* line = widgets::child<QLineEdit>(m_form, u"txtlbl"_s);
    line->clear();
    line->show();
    line->setFocus();
}

void UserFields::keepLabel()
{
    auto* line = widgets::child<QLineEdit>(m_form, u"txtlbl"_s);
    const QString label = line->text().trimmed();
    line->hide();
    if (label.isEmpty())
        return;
    jet::Recordset setup = core::readSettings(m_data);
    if (!setup.hasRow())
        return;
    setup.edit();
    setup.set(u"lbluse%1"_s.arg(m_renamed), label);
    setup.update();
    showLabels();
}

void UserFields::keepValue(int number, const QString& value)
{
    if (value.trimmed().isEmpty())
        return;
    const QString column = u"user%1"_s.arg(number);
    jet::Recordset known
        = m_data.openRecordset(u"select * from CNTB_OTHER where "_s + column + u"='"_s + value + u"'"_s);
    if (!known.isValid() || !known.isEmpty())
        return;
    known.addNew();
    known.set(column, value);
    known.update();
    widgets::child<widgets::FilledCombo>(m_form, u"cmb"_s + column)->refill();
}

} // namespace entry
