#include "core/setup/list_panel.h"

#include "core/setup/setup_settings.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QShortcut>

using namespace Qt::StringLiterals;
using widgets::child;

namespace setup {

ListPanel::ListPanel(core::Context& context, const QList<const WordList*>& lists, QWidget* parent)
    : core::SetupPanel(context, parent)
    , m_lists(lists)
    , m_list(lists.constFirst())
    , m_words(new widgets::RecordList(nullptr, lists.constFirst()->column.toString()))
    , m_hint(core::makeHint(u"lblHint"_s + lists.constFirst()->name.toString()))
{
    layOut();
    connect(m_words, &widgets::RecordList::currentRowChanged, this, &ListPanel::wordChosen);
    connect(m_words, &widgets::RecordList::chosen, m_box, [this] {
        m_box->setFocus();
        m_box->selectAll();
    });
    connect(m_box, &QLineEdit::returnPressed, this, &ListPanel::save);
    connect(m_box, &QLineEdit::textEdited, this, [this] {
        m_isOffered = false;
        tell({});
    });
    connect(m_save, &QPushButton::clicked, this, &ListPanel::save);
    connect(m_delete, &QPushButton::clicked, this, &ListPanel::remove);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, m_words);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &ListPanel::remove);
    for (int i = 0; i < m_choices.size(); ++i)
        connect(m_choices[i], &QRadioButton::clicked, this, [this, i] { chooseList(m_lists[i]); });
}

void ListPanel::layOut()
{
    widgets::FormKit form(
        this, [this](QStringView column) { return context().schema.textSize(m_list->table, column); });
    form.group(m_lists.size() > 1 ? tr("Saved calls") : caption(*m_list));
    if (m_lists.size() > 1) {
        for (const WordList* list : std::as_const(m_lists)) {
            form.radio(u"opt"_s + list->name.toString(), caption(*list));
            m_choices << static_cast<QRadioButton*>(form.last());
        }
        m_choices.constFirst()->setChecked(true);
    }
    const QString name = m_list->name.toString();
    m_words->setMinimumHeight(160);
    form.wide(u"lst"_s + name, caption(*m_list), m_words)
        .line(u"txt"_s + name, {}, m_list->column.toString(), widgets::KeyFilter::NoApostrophe);
    m_box = static_cast<QLineEdit*>(form.last());
    m_box->setPlaceholderText(tr("A new word"));
    m_box->setAccessibleName(caption(*m_list));
    m_box->setToolTip(tr("Type a new word, or change the chosen one (Enter saves)"));
    form.button(u"cmdNew"_s + name, {}, u"add", tr("Type a new word"));
    connect(static_cast<QPushButton*>(form.last()), &QPushButton::clicked, this, &ListPanel::startNew);
    form.button(m_list->saveButton.toString(), tr("Save"), u"save", tr("Add or change the word (Enter)"))
        .button(m_list->deleteButton.toString(), tr("Delete"), u"delete",
            tr("Take the chosen word from the list (Del)"));
    m_save = child<QPushButton>(this, m_list->saveButton.toString());
    m_delete = child<QPushButton>(this, m_list->deleteButton.toString());
    form.wide(m_hint->objectName(), tr("Hint"), m_hint);
    // No label stands in front, so box and buttons begin where the list does; four panels fit side by side.
    static_cast<QGridLayout*>(m_words->parentWidget()->layout())->setHorizontalSpacing(0);
    layout()->setContentsMargins(6, 12, 6, 12);
}

QString ListPanel::caption(const WordList& list) const
{
    const QString own = list.labelColumn.isEmpty()
        ? QString()
        : context().data.openRecordset(settingsSql()).textOrEmpty(list.labelColumn);
    return own.isEmpty() ? QCoreApplication::translate("setup", list.caption) : own;
}

// A heading that the person has chosen may have changed as well.
void ListPanel::refresh()
{
    if (!m_list->labelColumn.isEmpty())
        findChild<QGroupBox*>()->setTitle(caption(*m_list).replace(u'&', u"&&"_s));
    readWords(m_old);
}

bool ListPanel::isTouched() const
{
    return !m_isOffered && m_box->text() != m_old;
}

void ListPanel::chooseList(const WordList* list)
{
    if (isTouched() && !mayDiscard()) {
        m_choices[m_lists.indexOf(m_list)]->setChecked(true);
        return;
    }
    m_box->clear();
    m_list = list;
    m_words->setHeadings(list->column, {list->column.toString()});
    m_words->setAccessibleName(caption(*list));
    m_box->setAccessibleName(caption(*list));
    readWords({});
    startNew();
}

void ListPanel::readWords(const QString& current)
{
    const QString typed = m_box->text();
    const QScopedValueRollback reading(m_isReading, true);
    m_words->fill(data().openRecordset(listSql(*m_list)));
    const int found = rowOf(current);
    m_words->setCurrentRow(found);
    rowChanged();
    if (found < 0)
        m_box->setText(typed);
}

// Typed and not saved: the person says whether it may go, and the list goes back behind the event that moved
// it.
void ListPanel::wordChosen()
{
    if (m_isReading)
        return;
    if (!isTouched() || mayDiscard())
        return rowChanged();
    QMetaObject::invokeMethod(
        this,
        [this] {
            const QScopedValueRollback reading(m_isReading, true);
            m_words->setCurrentRow(rowOf(m_old));
        },
        Qt::QueuedConnection);
}

int ListPanel::rowOf(const QString& word) const
{
    const QString column = m_list->column.toString();
    for (int row = 0; !word.isEmpty() && row < m_words->rowCount(); ++row) {
        if (m_words->textAt(row, column).compare(word, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

void ListPanel::rowChanged()
{
    m_isOffered = false;
    m_old = m_words->currentText(m_list->column.toString());
    m_delete->setEnabled(!m_old.isEmpty());
    if (!m_old.isEmpty())
        widgets::setTextOf(m_box, m_old);
    tell({});
}

void ListPanel::startNew()
{
    if (isTouched() && !mayDiscard())
        return;
    const QScopedValueRollback reading(m_isReading, true);
    m_words->setCurrentRow(-1);
    rowChanged();
    m_box->clear();
    m_box->setFocus();
}

void ListPanel::save()
{
    const QString word = m_box->text().trimmed();
    switch (checkWord(data(), *m_list, m_old, word)) {
    case WordFault::Empty: return tell(tr("Type a word first."));
    case WordFault::Known: return tell(tr("The list has this word already."));
    case WordFault::Unchanged: return tell(tr("Nothing was changed."));
    case WordFault::None: break;
    }
    const jet::Step step(data(),
        m_old.isEmpty() ? tr("adding \"%1\" to the list %2").arg(word, caption(*m_list))
                        : tr("changing \"%1\" in the list %2").arg(m_old, caption(*m_list)));
    const bool stored
        = m_old.isEmpty() ? addWord(data(), *m_list, word) : renameWord(data(), *m_list, m_old, word);
    if (!stored)
        return tell(notStored(tr("The word could not be stored.")));
    playSound(u"save");
    readWords(word);
    tell(tr("Saved."));
    Q_EMIT vocabulariesChanged();
}

// The word stays in the box, so that Save brings it back.
void ListPanel::remove()
{
    const QString word = m_old;
    if (word.isEmpty())
        return;
    const jet::Step step(data(), tr("deleting \"%1\" from the list %2").arg(word, caption(*m_list)));
    if (!deleteWord(data(), *m_list, word))
        return tell(notStored(tr("The word could not be deleted.")));
    playSound(u"Del");
    readWords({});
    m_box->setText(word);
    m_isOffered = true;
    tell(tr("Deleted. Save brings it back."));
    Q_EMIT vocabulariesChanged();
}

void ListPanel::tell(const QString& hint)
{
    m_hint->setText(hint);
}

} // namespace setup
