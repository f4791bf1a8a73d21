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
        .combo(u"DBResponse"_s, tr("Respo&nse"), u"Result"_s)
        .check(u"Check1"_s, tr("Call &Later"))
        .beside()
        .date(u"ssdtNextCall"_s, {})
        .hint(tr("When to call next"))
        .stretch();
    form.buttonRow()
        .stretch()
        .button(u"cmdCallSave"_s, tr("&Save"), u"save", tr("Record the call"))
        .button(u"CmdHideSave"_s, tr("Bac&k"), u"cancel", tr("Record nothing (Esc)"));
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
    m_editedId = 0;
    showValues({}, m_context.services.clock.today());
}

bool CallSavePanel::edit(qint64 callId)
{
    const jet::Recordset call
        = m_context.data.openRecordset(u"select * from CNT_PHCALL where ID="_s + QString::number(callId));
    if (!call.hasRow())
        return false;
    m_call = {call.number(u"PerId"), call.textOrEmpty(u"Numb"), call.textOrEmpty(u"Name")};
    m_editedId = callId;
    const QDate next = call.date(u"NextCall");
    showValues({call.textOrEmpty(u"Todo"), call.textOrEmpty(u"Result"), call.flag(u"CallLater"), {}},
        next.isValid() ? next : m_context.services.clock.today());
    return true;
}

void CallSavePanel::setCall(const DialledCall& call)
{
    m_call = call;
    m_what->setText(m_call.name.isEmpty() ? m_call.number : m_call.name + u'\n' + m_call.number);
}

void CallSavePanel::showValues(const Entered& values, const std::optional<QDate>& next)
{
    setCall(m_call);
    for (widgets::FilledCombo* combo : {DBPurpose, DBResponse})
        combo->refill();
    DBPurpose->setText(values.purpose);
    DBResponse->setText(values.response);
    Check1->setChecked(values.isLater);
    ssdtNextCall->setDate(next);
    ssdtNextCall->setVisible(values.isLater);
    m_shown = entered();
    DBPurpose->setFocus();
}

CallSavePanel::Entered CallSavePanel::entered() const
{
    const bool isLater = Check1->isChecked();
    return {DBPurpose->currentText(), DBResponse->currentText(), isLater,
        isLater ? ssdtNextCall->text() : QString()};
}

bool CallSavePanel::isTouched() const
{
    return !isHidden() && entered() != m_shown;
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
    const QString who = m_call.name.isEmpty() ? m_call.number : m_call.name;
    if (!record(tr("the call to %1").arg(who)))
        return core::tellFailedSave(m_context);
    m_shown = entered();
    m_context.services.sounds.play(core::sounds::Save);
    Q_EMIT saved(who);
}

bool CallSavePanel::record(const QString& stepName)
{
    const jet::Step step(m_context.data, stepName);
    jet::Recordset calls = m_context.data.openRecordset(u"select * from CNT_PHCALL order by ID"_s);
    if (m_editedId == 0) {
        const QDateTime now = m_context.services.clock.now();
        const QTime time(now.time().hour(), now.time().minute(), now.time().second());
        calls.addNew();
        if (m_call.person != 0)
            calls.set(u"PerId", m_call.person);
        calls.set(u"Numb", m_call.number);
        calls.set(u"Name", m_call.name.trimmed());
        calls.set(u"Date", now.date());
        calls.set(u"Time", QDateTime(kDayZero, time));
    } else if (calls.findFirst(u"ID="_s + QString::number(m_editedId))) {
        calls.edit();
    }
    const Entered values = entered();
    const auto next = values.isLater ? ssdtNextCall->date() : std::nullopt;
    calls.set(u"Todo", values.purpose);
    calls.set(u"Result", values.response);
    calls.set(u"NextCall", next ? QVariant(*next) : QVariant());
    calls.set(u"CallLater", values.isLater ? 1 : 0);
    return calls.update();
}

} // namespace telephone
