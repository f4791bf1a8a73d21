#include "letters/record/FrmEditLetterRecord.h"

#include "core/date_patterns.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "letters/record/record_statements.h"
#include "platform/message_boxes.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

FrmEditLetterRecord::FrmEditLetterRecord(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_editor(context, u"cnt_letters"_s)
{
    setWindowTitle(tr("Edit Letter Record"));
    layOut();
}

void FrmEditLetterRecord::layOut()
{
    widgets::FormKit form(
        this, [this](QStringView column) { return context().schema.textSize(u"cnt_letters", column); });
    form.group(tr("Letter"))
        .line(u"txtperson"_s, tr("&Person"), u"person"_s)
        .date(u"Ssdate1"_s, tr("&Date"), u"Date"_s)
        .combo(u"CmbType1"_s, tr("Di&rection"), u"type1"_s)
        .hint(tr("Sent or received"))
        .combo(u"DBCgrp"_s, tr("&Type"), u"Mailtype"_s)
        .combo(u"DBCmlcat"_s, tr("Cate&gory"), u"mailcateg"_s)
        .line(u"txtseno"_s, tr("Serial &no."), u"MailID"_s)
        .line(u"txtpath"_s, tr("&File"), u"path"_s)
        .hint(tr("The file that belongs to the letter"));
    form.group(tr("Address"))
        .line(u"txtadd1"_s, tr("&Address"), u"Add1"_s)
        .line(u"txtadd2"_s, {}, u"Add2"_s)
        .line(u"DBCcity"_s, tr("C&ity"), u"city"_s)
        .line(u"DBCPin"_s, tr("&Zip"), u"Pin"_s)
        .line(u"DBcstate"_s, tr("State"), u"State"_s)
        .line(u"DBCcountry"_s, tr("Co&untry"), u"Country"_s);
    form.nextColumn(2)
        .group(tr("Text"))
        .memo(u"txtmerged"_s, tr("&Letter text"), u"MERGED"_s, 12)
        .grow(4)
        .memo(u"txtnote"_s, tr("N&ote"), u"note"_s, 4);
    form.buttonRow()
        .button(u"CmdPrevious"_s, tr("Pre&vious"), u"previous", tr("The letter before in the record"))
        .button(u"CmdNext"_s, tr("Ne&xt"), u"next", tr("The next letter of the record"))
        .stretch()
        .button(u"CmdSave"_s, tr("&Save"), u"save", tr("Save the changes (Ctrl+S)"))
        .button(u"CmdCancel"_s, tr("&Cancel"), u"cancel", tr("Close without saving (Esc)"));
    m_fields = widgets::FieldSet(this);
    m_fields.control<widgets::FilledCombo>(u"CmbType1"_s)->setValues({u"Sent"_s, u"Received"_s});
    m_fields.control<widgets::FilledCombo>(u"DBCgrp"_s)->setSource([this] {
        return core::firstColumn(
            context().data, u"select item from GF_MAST where itmtyp='Ltyp' and delst='N'"_s);
    });
    m_fields.control<widgets::FilledCombo>(u"DBCmlcat"_s)->setSource([this] {
        return core::firstColumn(context().data, mailCategoriesSql());
    });
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"CmdPrevious"_s, [this] { move(-1); });
    onClick(u"CmdNext"_s, [this] { move(1); });
    onClick(u"CmdSave"_s, [this] { save(); });
    onClick(u"CmdCancel"_s, [this] { Q_EMIT closeRequested(); });
    child<QPushButton>(this, u"CmdSave"_s)->setShortcut(QKeySequence::Save);
}

void FrmEditLetterRecord::load()
{
    setFrameTitle(windowTitle());
    m_fields.control<widgets::DateBox>(u"Ssdate1"_s)->setFormat(core::datePattern(shared().NationalMode));
    // Opened by itself it begins with the latest letter.
    const jet::Recordset last
        = context().data.openRecordset(u"select id from cnt_letters order by id desc"_s);
    if (!display(last.hasRow() ? last.number(u"id") : 0))
        m_fields.keepAsLoaded();
}

bool FrmEditLetterRecord::editLetter(qint64 letter)
{
    if (letter == m_editor.id())
        return true;
    return mayDiscard() && display(letter);
}

bool FrmEditLetterRecord::display(qint64 letter)
{
    const jet::Recordset row = m_editor.load(letter);
    const bool isThere = row.hasRow();
    if (isThere)
        m_fields.showRow(row);
    else
        m_fields.clear();
    m_fields.keepAsLoaded();
    for (const QString& name : {u"CmdSave"_s, u"CmdPrevious"_s, u"CmdNext"_s})
        child<QPushButton>(this, name)->setEnabled(isThere);
    setPosition(isThere ? tr("Letter %1").arg(letter) : tr("No letter was kept yet"));
    return isThere;
}

void FrmEditLetterRecord::move(int step)
{
    const QString sql = step < 0 ? u"select id from cnt_letters where id<%1 order by id desc"_s
                                 : u"select id from cnt_letters where id>%1 order by id"_s;
    const jet::Recordset other = context().data.openRecordset(sql.arg(m_editor.id()));
    const qint64 letter = other.hasRow() ? other.number(u"id") : 0;
    if (letter != 0 && mayDiscard())
        display(letter);
}

QList<core::ColumnEdit> FrmEditLetterRecord::edits() const
{
    QList<core::ColumnEdit> edits;
    const widgets::FieldValues now = m_fields.values();
    for (const widgets::Control& field : m_fields.controls()) {
        const bool isDate = now.dates.contains(field.name);
        const std::optional<QDate> date = now.date(field.name);
        const QString text = now.text(field.name);
        QVariant value;
        if (isDate)
            value = date ? QVariant(*date) : QVariant();
        else if (!text.isEmpty())
            value = text;
        edits << core::ColumnEdit{
            field.column, value, m_fields.isTouched(field.name), false, m_fields.label(field.name)};
        // The year stands beside the date, as a text.
        if (isDate)
            edits << core::ColumnEdit{u"Year"_s, date ? QVariant(QString::number(date->year())) : QVariant(),
                m_fields.isTouched(field.name), false, tr("Year")};
    }
    return edits;
}

void FrmEditLetterRecord::save()
{
    if (m_editor.id() == 0)
        return;
    if (widgets::DateBox* bad = m_fields.firstBadDate())
        return bad->askToMend();
    {
        const jet::Step step(context().data, tr("a letter"));
        switch (m_editor.store(edits())) {
        case core::RecordEditor::Outcome::Stored: break;
        case core::RecordEditor::Outcome::Gone:
            warn(tr("This letter was deleted while you were changing it. What you entered is still here."));
            return;
        case core::RecordEditor::Outcome::NotStored: return;
        }
    }
    const QString person = m_fields.text(u"txtperson"_s);
    display(m_editor.id());
    playSound(core::sounds::Save);
    tellSaved(tr("the letter to %1").arg(person));
    context().screens.tellBookChanged(this);
}

void FrmEditLetterRecord::bookChanged()
{
    if (!isTouched())
        display(m_editor.id());
}

void FrmEditLetterRecord::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

} // namespace letters
