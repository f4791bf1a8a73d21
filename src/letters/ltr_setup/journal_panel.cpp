#include "letters/ltr_setup/journal_panel.h"

#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

JournalPanel::JournalPanel(core::Context& context, QWidget* parent)
    : SetupPanel(context, parent)
    , m_hint(core::makeHint(u"lblHintJournal"_s))
{
    const auto wordsOf = [this](const QString& sql) {
        return [this, sql] {
            const jet::Recordset rows = data().openRecordset(sql);
            QStringList words;
            for (int row = 0; row < rows.count(); ++row)
                words << rows.textAt(row, 0);
            words.removeAll(QString());
            return words;
        };
    };
    widgets::FormKit form(
        this, [this](QStringView column) { return this->context().schema.textSize(u"cntb_setup", column); });
    form.group(tr("Noted in the journal under"));
    const auto add = [&](Noted what, const QString& name, const QString& label, const QString& column,
                         const QString& subcolumn) {
        form.combo(u"cmb"_s + name, label, column);
        auto* category = static_cast<widgets::FilledCombo*>(form.last());
        form.combo(u"cmb"_s + name + u"Sub"_s, tr("and there"), subcolumn);
        auto* subcategory = static_cast<widgets::FilledCombo*>(form.last());
        subcategory->setAccessibleName(label + u", "_s + tr("and there"));
        category->setSource(wordsOf(journalCategoriesSql()));
        subcategory->setSource(wordsOf(journalSubcategoriesSql()));
        m_rows << Row{what, category, subcategory, {}};
    };
    add(Noted::Letters, u"LetterJournal"_s, tr("Letters"), u"ltrcat"_s, u"ltrsub"_s);
    add(Noted::Mails, u"MailJournal"_s, tr("E-mails"), u"emilcat"_s, u"emilsub"_s);
    form.button(u"cmdSaveJournal"_s, tr("Save"), u"save", tr("Store the words for the journal"));
    connect(static_cast<QPushButton*>(form.last()), &QPushButton::clicked, this, &JournalPanel::save);
    form.wide(m_hint->objectName(), tr("Hint"), m_hint);
    layout()->setContentsMargins(6, 10, 6, 6);
}

JournalWords JournalPanel::typed(const Row& row)
{
    return {row.category->currentText().trimmed(), row.subcategory->currentText().trimmed()};
}

void JournalPanel::refresh()
{
    for (Row& row : m_rows) {
        row.shown = journalWordsOf(data(), row.what);
        row.category->refill();
        row.category->setText(row.shown.category);
        row.subcategory->refill();
        row.subcategory->setText(row.shown.subcategory);
        row.shown = typed(row);
    }
    m_hint->clear();
}

bool JournalPanel::isTouched() const
{
    return std::ranges::any_of(m_rows, [](const Row& row) { return typed(row) != row.shown; });
}

void JournalPanel::save()
{
    const jet::Step step(data(), tr("changing the words for the journal"));
    jet::Batch batch(data());
    for (const Row& row : std::as_const(m_rows))
        storeJournalWords(data(), row.what, typed(row));
    if (!batch.commit())
        return m_hint->setText(notStored(tr("It could not be stored.")));
    for (Row& row : m_rows)
        row.shown = typed(row);
    playSound(u"save");
    m_hint->setText(tr("Saved."));
    Q_EMIT vocabulariesChanged();
}

} // namespace letters
