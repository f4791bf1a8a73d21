#include "letters/ltr_setup/lines_panel.h"

#include "letters/ltr_setup/mail_setup.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

LinesPanel::LinesPanel(core::Context& context, QWidget* parent)
    : SetupPanel(context, parent)
{
}

void LinesPanel::addLines(
    widgets::FormKit& form, const QStringList& names, const QStringList& labels, const QStringList& columns)
{
    for (qsizetype i = 0; i < names.size(); ++i) {
        form.line(names[i], labels[i], columns[i]);
        m_lines << static_cast<QLineEdit*>(form.last());
        connect(m_lines.constLast(), &QLineEdit::textEdited, this, [this] { tell({}); });
        m_shown << QString();
    }
}

void LinesPanel::addHint(widgets::FormKit& form, const QString& name)
{
    m_hint = core::makeHint(name);
    form.wide(name, tr("Hint"), m_hint);
    layout()->setContentsMargins(6, 10, 6, 6);
}

void LinesPanel::show(const QStringList& texts)
{
    for (qsizetype i = 0; i < m_lines.size(); ++i)
        m_lines[i]->setText(texts.value(i));
    m_shown = typed();
}

QStringList LinesPanel::typed() const
{
    QStringList texts;
    for (const QLineEdit* line : m_lines)
        texts << line->text();
    return texts;
}

void LinesPanel::tell(const QString& hint)
{
    m_hint->setText(hint);
}

void LinesPanel::tellStored(bool isStored)
{
    if (!isStored)
        return tell(notStored(tr("It could not be stored.")));
    m_shown = typed();
    playSound(u"save");
    tell(tr("Saved."));
    Q_EMIT vocabulariesChanged();
}

SignaturePanel::SignaturePanel(core::Context& context, QWidget* parent)
    : LinesPanel(context, parent)
{
    widgets::FormKit form(this,
        [this](QStringView column) { return this->context().schema.textSize(u"CNT_EMAILCSTM", column); });
    form.group(tr("Signature"))
        .caption(u"lblSign"_s, tr("Please write sign text to appear in Email message."));
    static_cast<QLabel*>(form.last())->setWordWrap(true);
    addLines(form, {u"txtSign_1"_s, u"txtSign_2"_s, u"txtSign_3"_s, u"txtSign_4"_s},
        {tr("Line 1"), tr("Line 2"), tr("Line 3"), tr("Line 4")}, {u"f1"_s, u"f2"_s, u"f3"_s, u"f4"_s});
    form.button(u"cmdSaveSign"_s, tr("Save"), u"save", tr("Store the signature"));
    connect(static_cast<QPushButton*>(form.last()), &QPushButton::clicked, this, &SignaturePanel::save);
    for (const QLineEdit* line : lines())
        connect(line, &QLineEdit::returnPressed, this, &SignaturePanel::save);
    addHint(form, u"lblHintSign"_s);
}

void SignaturePanel::refresh()
{
    show(signatureOf(data()));
    tell({});
}

void SignaturePanel::save()
{
    const jet::Step step(data(), tr("changing the signature"));
    tellStored(storeSignature(data(), typed()));
}

UserFieldsPanel::UserFieldsPanel(core::Context& context, QWidget* parent)
    : LinesPanel(context, parent)
    , PGroup(nullptr)
{
    widgets::FormKit form(
        this, [this](QStringView column) { return this->context().schema.textSize(u"HB_USER", column); });
    form.group(tr("User fields of a group")).fixedCombo(u"PGroup"_s, tr("Group"));
    auto* groups = static_cast<widgets::FilledCombo*>(form.last());
    groups->setSource([this] {
        const jet::Recordset rows = data().openRecordset(groupsSql());
        QStringList names;
        for (int row = 0; row < rows.count(); ++row)
            names << rows.textAt(row, rows.columnIndex(u"Group"));
        names.removeDuplicates();
        return names;
    });
    PGroup = groups;
    addLines(form, {u"User1"_s, u"User2"_s, u"User3"_s, u"User4"_s},
        {tr("Field 1"), tr("Field 2"), tr("Field 3"), tr("Field 4")},
        {u"User1"_s, u"User2"_s, u"User3"_s, u"User4"_s});
    form.button(u"Edit"_s, tr("Edit"), u"edit", tr("Change the fields of the group"))
        .button(u"Save"_s, tr("Save"), u"save", tr("Store the fields of the group"));
    connect(child<QPushButton>(this, u"Edit"_s), &QPushButton::clicked, this, &UserFieldsPanel::edit);
    connect(child<QPushButton>(this, u"Save"_s), &QPushButton::clicked, this, &UserFieldsPanel::save);
    connect(PGroup, &QComboBox::activated, this, &UserFieldsPanel::chooseGroup);
    addHint(form, u"lblHintUser"_s);
}

QString UserFieldsPanel::group() const
{
    return PGroup->currentIndex() < 0 ? QString() : PGroup->currentText();
}

void UserFieldsPanel::refresh()
{
    static_cast<widgets::FilledCombo*>(PGroup)->refill();
    readGroup();
}

void UserFieldsPanel::readGroup()
{
    m_group = group();
    show(m_group.isEmpty() ? QStringList() : userFieldsOf(data(), m_group).value_or(QStringList()));
    tell({});
    if (m_group.isEmpty())
        tell(data().openRecordset(groupsSql()).isEmpty() ? tr("The book has no groups of associations yet.")
                                                         : tr("Choose a group to name its fields."));
}

void UserFieldsPanel::chooseGroup()
{
    if (!isTouched() || mayDiscard())
        return readGroup();
    const QSignalBlocker silent(PGroup);
    PGroup->setCurrentIndex(PGroup->findText(m_group));
}

void UserFieldsPanel::edit()
{
    if (group().isEmpty())
        return inform(tr("Please select a Group"));
    if (!userFieldsOf(data(), group()))
        inform(tr("There is no record to edit"));
    lines().constFirst()->setFocus();
    lines().constFirst()->selectAll();
}

void UserFieldsPanel::save()
{
    if (group().isEmpty())
        return inform(tr("Please select a Group"));
    const jet::Step step(data(), tr("naming the fields of %1").arg(group()));
    tellStored(storeUserFields(data(), group(), typed()));
}

} // namespace letters
