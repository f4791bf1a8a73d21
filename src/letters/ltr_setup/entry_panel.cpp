#include "letters/ltr_setup/entry_panel.h"

#include "editor/text_editor.h"
#include "platform/message_boxes.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"
#include "widgets/record_list.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr QStringView kTextHeadings = u"     |Letter Type                                           ";

struct TextKind {
    QStringView stored;
    const char* caption;
};
constexpr TextKind kTextKinds[] = {
    {u"Letter", QT_TRANSLATE_NOOP("letters", "Letters only")},
    {u"Email", QT_TRANSLATE_NOOP("letters", "E-mail only")},
    {u"Both", QT_TRANSLATE_NOOP("letters", "Letters and e-mail")},
};

QString inLetters(const char* text)
{
    return QCoreApplication::translate("letters", text);
}

bool isStoredText(const StoredList& list)
{
    return list.tab == ListTab::LetterTexts || list.tab == ListTab::MailTexts;
}

} // namespace

EntryPanel::EntryPanel(core::Context& context, const StoredList& list, QWidget* parent)
    : SetupPanel(context, parent)
    , m_list(list)
    , m_rows(isStoredText(list) ? new widgets::HeadingGrid
                                : new widgets::RecordList(nullptr, list.column.toString()))
    , m_hint(core::makeHint(u"lblHint"_s + list.name.toString()))
{
    layOut();
    connectControls();
    show({});
}

void EntryPanel::layOut()
{
    widgets::FormKit form(
        this, [this](QStringView column) { return context().schema.textSize(m_list.table, column); });
    const QString name = m_list.name.toString();
    const QString caption = inLetters(m_list.caption);
    form.group(caption);
    if (isStoredText(m_list)) {
        m_rows->setHeadings(kTextHeadings, {QString(), m_list.column.toString()});
        m_rows->letColumnsGiveWay();
    }
    m_rows->setMinimumHeight(150);
    m_rows->setEmptyText(tr("Nothing here yet. Type below and press Save."));
    const QString grid = m_list.tab == ListTab::LetterTexts ? u"FG"_s : u"lst"_s + name;
    form.wide(grid, caption, m_rows);
    if (hasSeveralFields(m_list))
        form.nextColumn(2).group(tr("The chosen one, or a new one"));
    layOutFields(form);
    const auto nameOr = [&](QStringView given, const QString& own) {
        return given.isEmpty() ? own + name : given.toString();
    };
    form.button(u"cmdNew"_s + name, {}, u"add", tr("Type a new one"));
    m_new = static_cast<QPushButton*>(form.last());
    form.button(nameOr(m_list.saveButton, u"cmdSave"_s), tr("Save"), u"save", tr("Add or change it (Enter)"));
    m_save = static_cast<QPushButton*>(form.last());
    form.button(nameOr(m_list.deleteButton, u"cmdDelete"_s), tr("Delete"), u"delete",
        tr("Take the chosen one from the list (Del)"));
    m_delete = static_cast<QPushButton*>(form.last());
    form.wide(m_hint->objectName(), tr("Hint"), m_hint);
    if (!hasSeveralFields(m_list))
        static_cast<QGridLayout*>(m_rows->parentWidget()->layout())->setHorizontalSpacing(0);
    layout()->setContentsMargins(6, 10, 6, 6);
}

void EntryPanel::layOutFields(widgets::FormKit& form)
{
    const QString column = m_list.column.toString();
    const QString key = column.toLower();
    const bool isSeveral = hasSeveralFields(m_list);
    form.line(u"txt"_s + m_list.name.toString(), isSeveral ? tr("Name") : QString(), column);
    m_fields.insert(key, form.last());
    form.last()->setAccessibleName(inLetters(m_list.caption));
    if (!isSeveral)
        static_cast<QLineEdit*>(form.last())->setPlaceholderText(tr("A new word"));
    if (m_list.tab == ListTab::Phrases && isSeveral)
        addText(form, tr("Text of the phrase"), u"description"_s);
    if (!isStoredText(m_list))
        return;
    form.line(u"txtName"_s + m_list.name.toString(), tr("Title"), u"ltname"_s);
    m_fields.insert(u"ltname"_s, form.last());
    form.fixedCombo(u"cmbKind"_s + m_list.name.toString(), tr("Used for"));
    auto* kinds = static_cast<QComboBox*>(form.last());
    for (const TextKind& kind : kTextKinds)
        kinds->addItem(inLetters(kind.caption), kind.stored.toString());
    m_fields.insert(u"emil_ltr"_s, kinds);
    form.check(u"chkPreset"_s + m_list.name.toString(), tr("Preset: one of the standard texts"));
    m_fields.insert(u"preset"_s, form.last());
    addText(form, tr("Text"), u"ltcontent"_s);
}

void EntryPanel::addText(widgets::FormKit& form, const QString& label, const QString& column)
{
    auto* text = new editor::TextEditor;
    text->setPlain();
    text->setSpeller(&context().services.speller);
    text->field().setTabChangesFocus(true);
    text->field().setMinimumHeight(90);
    text->field().setAccessibleName(label);
    text->field().setPlaceholderText(label);
    text->field().setObjectName(u"mem"_s + m_list.name.toString());
    form.wide(u"text"_s + m_list.name.toString(), label, text);
    m_fields.insert(column, text);
}

void EntryPanel::connectControls()
{
    QWidget* first = m_fields.value(m_list.column.toString().toLower());
    connect(m_rows, &widgets::HeadingGrid::currentRowChanged, this, &EntryPanel::rowChosen);
    connect(m_rows, &widgets::HeadingGrid::chosen, first, [first] {
        first->setFocus();
        static_cast<QLineEdit*>(first)->selectAll();
    });
    connect(static_cast<QLineEdit*>(first), &QLineEdit::returnPressed, this, &EntryPanel::save);
    connect(static_cast<QLineEdit*>(first), &QLineEdit::textEdited, this, [this] { tell({}); });
    connect(m_new, &QPushButton::clicked, this, &EntryPanel::beginNew);
    connect(m_save, &QPushButton::clicked, this, &EntryPanel::save);
    connect(m_delete, &QPushButton::clicked, this, &EntryPanel::remove);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, m_rows);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &EntryPanel::remove);
}

void EntryPanel::refresh()
{
    readRows(m_place);
}

bool EntryPanel::isTouched() const
{
    return typed() != m_shown;
}

// What is typed stays in the fields when its row has gone.
void EntryPanel::readRows(const EntryPlace& current)
{
    const QScopedValueRollback reading(m_isReading, true);
    m_rows->fill(data().openRecordset(listSql(m_list)));
    const int row = rowOf(current);
    m_rows->setCurrentRow(row);
    if (row >= 0 || current.value.isEmpty())
        rowChanged();
}

int EntryPanel::rowOf(const EntryPlace& place) const
{
    if (place.key > 0)
        return m_rows->rowOf(place.key);
    const QString column = m_list.column.toString();
    for (int row = 0; !place.value.isEmpty() && row < m_rows->rowCount(); ++row) {
        if (m_rows->textAt(row, column).compare(place.value, Qt::CaseInsensitive) == 0)
            return row;
    }
    return -1;
}

// Typed and not saved: the person says whether it may go, and the list goes back behind the event that moved
// it.
void EntryPanel::rowChosen()
{
    if (m_isReading)
        return;
    if (mayMove())
        return rowChanged();
    QMetaObject::invokeMethod(
        this,
        [this] {
            const QScopedValueRollback reading(m_isReading, true);
            m_rows->setCurrentRow(rowOf(m_place));
        },
        Qt::QueuedConnection);
}

bool EntryPanel::mayMove()
{
    return !isTouched() || mayDiscard();
}

void EntryPanel::rowChanged()
{
    const bool isRow = m_rows->currentRow() >= 0;
    m_place.value = isRow ? m_rows->currentText(m_list.column.toString()) : QString();
    m_place.key = isRow && hasSeveralFields(m_list) ? m_rows->currentKey() : 0;
    m_delete->setEnabled(isRow);
    if (hasSeveralFields(m_list))
        show(isRow ? entryOf(data(), m_list, m_place.key) : Entry());
    else
        show({{m_list.column.toString().toLower(), m_place.value}});
    tell({});
}

void EntryPanel::show(const Entry& entry)
{
    for (const auto& [column, field] : m_fields.asKeyValueRange()) {
        const QVariant value = entry.value(column);
        if (auto* line = qobject_cast<QLineEdit*>(field)) {
            line->setText(value.toString());
        } else if (auto* check = qobject_cast<QCheckBox*>(field)) {
            check->setChecked(value.toBool());
        } else if (auto* kinds = qobject_cast<QComboBox*>(field)) {
            const QString kind = entry.isEmpty() ? m_list.kind.toString() : value.toString();
            const int known = kinds->findData(kind, Qt::UserRole, Qt::MatchFixedString);
            // Any other word means both.
            kinds->setCurrentIndex(known < 0 ? kinds->count() - 1 : known);
        } else {
            static_cast<editor::TextEditor*>(field)->setText(
                formats::RichText::fromPlain(value.toString().remove(u'\r')));
        }
    }
    m_shown = typed();
}

Entry EntryPanel::typed() const
{
    Entry entry;
    for (const auto& [column, field] : m_fields.asKeyValueRange()) {
        if (const auto* line = qobject_cast<QLineEdit*>(field))
            entry.insert(column, line->text());
        else if (const auto* check = qobject_cast<QCheckBox*>(field))
            entry.insert(column, check->isChecked());
        else if (const auto* kinds = qobject_cast<QComboBox*>(field))
            entry.insert(column, kinds->currentData());
        else
            entry.insert(column, static_cast<editor::TextEditor*>(field)->plainText());
    }
    return entry;
}

QString EntryPanel::typedValue() const
{
    return typed().value(m_list.column.toString().toLower()).toString().trimmed();
}

void EntryPanel::beginNew()
{
    if (!mayMove())
        return;
    const QScopedValueRollback reading(m_isReading, true);
    m_rows->setCurrentRow(-1);
    rowChanged();
    m_fields.value(m_list.column.toString().toLower())->setFocus();
}

void EntryPanel::save()
{
    const QString value = typedValue();
    if (!m_place.value.isEmpty() && !isTouched())
        return tell(tr("Nothing was changed."));
    switch (checkEntry(data(), m_list, m_place.value, value)) {
    case EntryFault::Empty: return tell(tr("Type a word first."));
    case EntryFault::Known: return tell(tr("The list has this one already."));
    case EntryFault::None: break;
    }
    Entry entry = typed();
    entry.insert(m_list.column.toString().toLower(), value);
    const QString caption = inLetters(m_list.caption);
    const bool isNew = m_place.value.isEmpty();
    const jet::Step step(data(),
        isNew ? tr("adding \"%1\" to the list %2").arg(value, caption)
              : tr("changing \"%1\" in the list %2").arg(m_place.value, caption));
    const bool isStored
        = isNew ? addEntry(data(), m_list, entry) : changeEntry(data(), m_list, m_place, entry);
    if (!isStored)
        return tell(notStored(tr("It could not be stored.")));
    playSound(m_list.saveSound);
    m_shown = typed();
    // The row of a new entry is found by its value, the one of a changed entry is the same as before. Behind
    // a new word the box is free for the next one, which else would take its place.
    m_place.value = value;
    if (isNew)
        readRows(hasSeveralFields(m_list) ? EntryPlace{value, 0} : EntryPlace());
    else
        readRows(m_place);
    // A text that is now for the other kind stands in the other list.
    if (m_rows->currentRow() < 0) {
        m_place = {};
        rowChanged();
    }
    tell(tr("Saved."));
    Q_EMIT vocabulariesChanged();
}

// A word stays in its box, so that Save brings it back.
void EntryPanel::remove()
{
    const EntryPlace place = m_place;
    if (place.value.isEmpty() || !mayMove())
        return;
    const QString question = inLetters(m_list.question);
    if (!question.isEmpty()
        && context().services.boxes.ask(question, context().shared.AppTitle, platform::Icon::Warning)
            != platform::Answer::Yes)
        return;
    const Entry before = typed();
    const jet::Step step(
        data(), tr("deleting \"%1\" from the list %2").arg(place.value, inLetters(m_list.caption)));
    if (!removeEntry(data(), m_list, place))
        return tell(notStored(tr("It could not be deleted.")));
    playSound(u"Del");
    m_place = {};
    readRows({});
    show(before);
    tell(tr("Deleted. Save brings it back."));
    Q_EMIT vocabulariesChanged();
}

void EntryPanel::tell(const QString& hint)
{
    m_hint->setText(hint);
}

} // namespace letters
