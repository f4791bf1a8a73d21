#include "telephone/dialer/person_picker.h"

#include "core/vocabularies.h"
#include "telephone/dialer/dialer_statements.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

PersonPicker::PersonPicker(core::Context& context, QWidget* parent)
    : QFrame(parent)
    , m_context(context)
    , DBCPerson(new widgets::RecordList(nullptr, u"name"_s))
{
    setObjectName(u"FrmeRelated"_s);
    DBCPerson->setEmptyText(tr("Nobody is in this category"));
    widgets::FormKit form(this);
    form.group(tr("Who is called"))
        .fixedCombo(u"dbccat"_s, tr("Cate&gory"))
        .wide(u"DBCPerson"_s, tr("People; typing looks for a name, Enter picks it"), DBCPerson);
    form.buttonRow()
        .stretch()
        .button(u"CmdPick"_s, tr("&Select"), u"next", tr("Call this person (Enter, double click)"))
        .button(u"CmdHidePicker"_s, tr("Bac&k"), u"cancel", tr("Leave it as it is (Esc)"));
    dbccat = child<widgets::FilledCombo>(this, u"dbccat"_s);
    dbccat->setSource([this] {
        QStringList categories = core::firstColumn(m_context.data, peopleCategoriesSql());
        categories.removeIf([](const QString& category) { return category.trimmed().isEmpty(); });
        return QStringList{u"All"_s} + categories;
    });
    connect(dbccat, &QComboBox::currentTextChanged, this, &PersonPicker::readPeople);
    connect(DBCPerson, &widgets::HeadingGrid::chosen, this, &PersonPicker::pick);
    connect(child<QPushButton>(this, u"CmdPick"_s), &QPushButton::clicked, this, &PersonPicker::pick);
    connect(
        child<QPushButton>(this, u"CmdHidePicker"_s), &QPushButton::clicked, this, &PersonPicker::cancelled);
}

void PersonPicker::open()
{
    {
        const QSignalBlocker quiet(dbccat);
        dbccat->refill();
        dbccat->setText(u"All"_s);
    }
    readPeople();
    DBCPerson->setFocus();
}

void PersonPicker::readPeople()
{
    const QString category = dbccat->currentText();
    DBCPerson->fill(m_context.data.openRecordset(
        category.isEmpty() || category == u"All" ? peopleSql() : peopleOfSql(category)));
    DBCPerson->setCurrentRow(0);
}

void PersonPicker::pick()
{
    if (DBCPerson->currentRow() >= 0)
        Q_EMIT picked(DBCPerson->currentKey(), DBCPerson->currentText(u"name"_s));
}

} // namespace telephone
