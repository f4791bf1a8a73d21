#include "telephone/dialer/call_save_panel.h"

#include "core/save_failure.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "platform/clock.h"
#include "platform/sounds.h"
#include "telephone/dialer/dialer_statements.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

namespace {

const QDate kDayZero(1899, 12, 30); ///< a time of day alone stands on it

} // namespace

CallSavePanel::CallSavePanel(core::Context& context, QWidget* parent)
    : QFrame(parent)
    , m_context(context)
{
    setObjectName(u"frmCallSaveAs"_s);
    widgets::FormKit form(
        this, [this](QStringView column) { return m_context.schema.textSize(u"cnt_phcall", column); });
    form.group(tr("Save the call"))
        .caption(u"lblCall"_s)
        .combo(u"DBPurpose"_s, tr("&Purpose"), u"Todo"_s)
        .combo(u"DBResponse"_s, tr("&Response"), u"Result"_s)
        .check(u"Check1"_s, tr("Call &Later"))
        .beside()
        .date(u"ssdtNextCall"_s, {})
        .hint(tr("When to call next"))
        .stretch();
    form.buttonRow()
        .stretch()
        .button(u"cmdCallSave"_s, tr("&Save"), u"save", tr("Record the call"))
        .button(u"CmdHideSave"_s, tr("&Cancel"), u"cancel", tr("Record nothing (Esc)"));
    DBPurpose = child<widgets::FilledCombo>(this, u"DBPurpose"_s);
    DBResponse = child<widgets::FilledCombo>(this, u"DBResponse"_s);
    Check1 = child<QCheckBox>(this, u"Check1"_s);
    ssdtNextCall = child<widgets::DateBox>(this, u"ssdtNextCall"_s);
    m_what = child<QLabel>(this, u"lblCall"_s);
    ssdtNextCall->setFormat(u"dd MMM-yyyy"_s);
    DBPurpose->setSource([this] { return core::firstColumn(m_context.data, purposesSql()); });
    DBResponse->setSource([this] { return core::firstColumn(m_context.data, responsesSql()); });
    connect(Check1, &QCheckBox::clicked, this, &CallSavePanel::followCheck);
    connect(child<QPushButton>(this, u"cmdCallSave"_s), &QPushButton::clicked, this, &CallSavePanel::save);
    connect(
        child<QPushButton>(this, u"CmdHideSave"_s), &QPushButton::clicked, this, &CallSavePanel::cancelled);
}

void CallSavePanel::open(const DialledCall& call)
{
    m_call = call;
    m_what->setText(call.name.isEmpty() ? call.number : call.name + u'\n' + call.number);
    for (widgets::FilledCombo* combo : {DBPurpose, DBResponse}) {
        combo->refill();
        combo->setText({});
    }
    Check1->setChecked(false);
    ssdtNextCall->setDate(m_context.services.clock.today());
    ssdtNextCall->hide();
    DBPurpose->setFocus();
}

bool CallSavePanel::isTouched() const
{
    return !isHidden()
        && (Check1->isChecked() || !DBPurpose->currentText().isEmpty()
            || !DBResponse->currentText().isEmpty());
}

// Kept: each click moves the date on, also one that takes the tick away.
void CallSavePanel::followCheck()
{
    ssdtNextCall->setVisible(Check1->isChecked());
    if (const auto date = ssdtNextCall->date())
        ssdtNextCall->setDate(date->addDays(1));
}

void CallSavePanel::save()
{
    if (Check1->isChecked() && ssdtNextCall->holdsBadText())
        return ssdtNextCall->askToMend();
    const QDateTime now = m_context.services.clock.now();
    const jet::Step step(
        m_context.data, tr("the call to %1").arg(m_call.name.isEmpty() ? m_call.number : m_call.name));
    jet::Recordset calls = m_context.data.openRecordset(u"select * from CNT_PHCALL order by ID"_s);
    calls.addNew();
    if (m_call.person != 0)
        calls.set(u"PerId", m_call.person);
    calls.set(u"Numb", m_call.number);
    calls.set(u"Name", m_call.name.trimmed());
    calls.set(u"Date", now.date());
    calls.set(
        u"Time", QDateTime(kDayZero, QTime(now.time().hour(), now.time().minute(), now.time().second())));
    calls.set(u"Todo", DBPurpose->currentText());
    calls.set(u"Result", DBResponse->currentText());
    const auto next = Check1->isChecked() ? ssdtNextCall->date() : std::nullopt;
    calls.set(u"NextCall", next ? QVariant(*next) : QVariant(QString()));
    calls.set(u"CallLater", Check1->isChecked() ? 1 : 0);
    if (!calls.update())
        return core::tellFailedSave(m_context);
    m_context.services.sounds.play(core::sounds::Save);
    Q_EMIT saved(m_call.name.isEmpty() ? m_call.number : m_call.name);
}

} // namespace telephone
