#include "letters/ltr_setup/mail_fields_panel.h"

#include "letters/ltr_setup/mail_setup.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace letters {

MailFieldsPanel::MailFieldsPanel(core::Context& context, QWidget* parent)
    : SetupPanel(context, parent)
    , Grid2(new widgets::HeadingGrid)
    , m_hint(core::makeHint(u"lblHintFields"_s))
{
    Grid2->setHeadings(
        u"||Fields                      |Show", {QString(), QString(), u"Fldname"_s, u"show"_s});
    Grid2->setTickColumn(u"show"_s);
    Grid2->setMayTick(true);
    Grid2->setMinimumHeight(180);
    Grid2->setEmptyText(tr("There are no fields of mail records to choose from."));
    widgets::FormKit form(this);
    form.group(tr("Fields of mail records in reports"))
        .wide(u"Grid2"_s, tr("Fields of mail records in reports"), Grid2)
        .wide(m_hint->objectName(), tr("Hint"), m_hint);
    layout()->setContentsMargins(6, 10, 6, 6);
    connect(Grid2, &widgets::HeadingGrid::tickChanged, this, &MailFieldsPanel::store);
}

void MailFieldsPanel::refresh()
{
    const QString current = Grid2->currentText(u"Fldname"_s);
    Grid2->fill(data().openRecordset(mailFieldsSql()));
    for (int row = 0; row < Grid2->rowCount(); ++row) {
        if (Grid2->textAt(row, u"Fldname"_s) == current)
            Grid2->setCurrentRow(row);
    }
}

void MailFieldsPanel::store(int row)
{
    const QString field = Grid2->textAt(row, u"Fldname"_s);
    const bool isShown = Grid2->isTicked(Grid2->sourceRow(row));
    const jet::Step step(
        data(), isShown ? tr("showing the field %1").arg(field) : tr("hiding the field %1").arg(field));
    if (setMailField(data(), field, isShown)) {
        m_hint->setText(tr("Saved."));
        Q_EMIT vocabulariesChanged();
        return;
    }
    m_hint->setText(notStored(tr("The tick could not be stored.")));
    refresh();
}

} // namespace letters
