#include "telephone/dialer/FrmDialer.h"

#include "core/contact_lookups.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/sql_text.h"
#include "core/tool_set.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/serial_port.h"
#include "platform/shell.h"
#include "telephone/dialer/call_save_panel.h"
#include "telephone/dialer/city_time.h"
#include "telephone/dialer/contact_details.h"
#include "telephone/dialer/dialer_setup.h"
#include "telephone/dialer/dialer_statements.h"
#include "telephone/dialer/memory_chooser.h"
#include "telephone/dialer/memory_panel.h"
#include "telephone/dialer/modem_setup.h"
#include "telephone/dialer/number_panel.h"
#include "telephone/dialer/person_picker.h"
#include "widgets/filled_combo.h"
#include "widgets/long_text.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace telephone {

FrmDialer::~FrmDialer() = default;

void FrmDialer::load()
{
    setFrameTitle(tr("Telephone Dialer"));
    m_memory->readLists();
    int port = 1;
    while (port < platform::kSerialPorts && context().services.modemPorts.device(port).isEmpty())
        ++port;
    const bool isSet = !context().services.modemPorts.device(port).isEmpty();
    CmbPort->setText(QString::number(isSet ? port : 1));
    chkDialerCity->setChecked(
        context().data.openRecordset(u"select * from cntb_setup"_s).flag(u"DialerCity"));
    useHomeCity(chkDialerCity->isChecked());
    m_cityCodes->setSource([this] {
        QStringList cities;
        const jet::Recordset rows = context().info.openRecordset(cityCodesSql(shared().NationalMode));
        for (int row = 0; row < rows.count(); ++row)
            cities << rows.textAt(row, 0) + u"  "_s + rows.textAt(row, 1);
        return cities;
    });
    label(u"lblgmt"_s)->setHidden(shared().NationalMode);
    label(u"lbltimediff"_s)->setHidden(shared().NationalMode);
    label(u"lblTime"_s)->hide();
    showLabels(0, {});
}

bool FrmDialer::isTouched() const
{
    const QWidget* panel = m_right->currentWidget();
    return (panel == frmCallSaveAs && frmCallSaveAs->isTouched())
        || (panel == FrmeCall && FrmeCall->isTouched());
}

bool FrmDialer::mayClose()
{
    if (m_call->isRunning()
        && context().services.boxes.ask(tr("A number is being dialled. Do you want to end the call?"),
               shared().AppTitle, platform::Icon::Warning)
            != platform::Answer::Yes)
        return false;
    return mayDiscard();
}

void FrmDialer::bookChanged()
{
    m_memory->readLists();
    tab1->showCalls(m_name);
    if (m_id == 0)
        return;
    jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(m_id));
    if (!contact.hasRow())
        return;
    m_contact = std::move(contact);
    tab1->showContact(m_id);
    m_numbers->show(contactText());
}

ColumnText FrmDialer::contactText() const
{
    return
        [this](QStringView column) { return m_contact.hasRow() ? m_contact.textOrEmpty(column) : QString(); };
}

QLabel* FrmDialer::label(const QString& name) const
{
    return findChild<QLabel*>(name);
}

// ---- who is called

bool FrmDialer::showContact(qint64 id)
{
    jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(id));
    if (!contact.hasRow())
        return false;
    if (!mayDiscard())
        return true;
    const QString name = contact.textOrEmpty(u"Name");
    showOthers(true);
    showPerson(std::move(contact), NumberKind::None);
    showLabels(id, name);
    closePanel();
    // The first number stands ready; another one is a click away.
    if (txtNum->text().isEmpty()) {
        const ColumnText text = contactText();
        for (int place = 0; place < 11 && txtNum->text().isEmpty(); ++place) {
            if (const QString number = clickedNumber(place, text);
                number != text(clickedCode(place)) && number != u"0")
                dialClicked(place);
        }
    }
    enterNumber();
    return true;
}

void FrmDialer::offerNumber(const QString& number, const QString& who)
{
    if (!mayDiscard())
        return;
    // One of the person who is shown leaves all else as it is.
    if (m_id != 0 && who == m_name) {
        setNumber(number, m_id);
        closePanel();
        return enterNumber();
    }
    m_contact = {};
    m_numbers->show(contactText());
    tab1->clearContact();
    m_place.clear();
    label(u"labelcity"_s)->clear();
    showCityTime();
    showLabels(0, who);
    fillPrefixes(NumberKind::None);
    setNumber(number, 0);
    closePanel();
    enterNumber();
}

// Kept: the time is looked up by the place of the person shown before.
void FrmDialer::showPerson(jet::Recordset contact, NumberKind kind)
{
    m_contact = std::move(contact);
    tab1->showContact(m_contact.number(u"id"));
    showCityTime();
    const ColumnText text = contactText();
    m_place = u" - "_s + text(u"h_city");
    QLabel* place = label(u"labelcity"_s);
    place->setText(text(u"h_city").isEmpty() ? QString() : widgets::beginning(place, m_place));
    m_numbers->show(text);
    if (m_ownerOfNumber != 0 && m_ownerOfNumber != m_contact.number(u"id"))
        setNumber({}, 0);
    fillPrefixes(kind == NumberKind::None ? firstKind(text) : kind);
}

void FrmDialer::showLabels(qint64 id, const QString& name)
{
    m_id = id;
    m_name = name;
    QLabel* who = label(u"lblhcity"_s);
    who->setText(widgets::beginning(who, name));
    label(u"lblid"_s)->setText(id == 0 ? QString() : QString::number(id));
    tab1->showCalls(name);
}

void FrmDialer::showCityTime()
{
    QLabel* gmt = label(u"lblgmt"_s);
    QLabel* difference = label(u"lbltimediff"_s);
    gmt->clear();
    difference->clear();
    if (!shared().NationalMode) {
        const jet::Recordset city = context().info.openRecordset(cityTimeSql(m_place));
        gmt->setText(city.textOrEmpty(u"td gmt"));
        difference->setText(differenceFromIndia(gmt->text()));
    }
    label(u"lblctime"_s)->setText(timeThere());
    label(u"lblTime"_s)->setHidden(label(u"lblctime"_s)->text().isEmpty());
}

QString FrmDialer::timeThere() const
{
    const QTime now = context().services.clock.now().time();
    if (shared().NationalMode)
        return timeHere(now);
    const auto difference = readDifference(label(u"lbltimediff"_s)->text());
    return difference ? farEndTime(*difference, now) : QString();
}

void FrmDialer::fillPrefixes(NumberKind kind)
{
    const jet::Recordset settings = context().data.openRecordset(u"select * from cntb_Setup"_s);
    const QSignalBlocker quietPrefix(cboPrefix);
    const QSignalBlocker quietNumber(cboNum);
    const ColumnText text = contactText();
    cboPrefix->setValues(
        offeredPrefixes(kind, text, [&](QStringView column) { return settings.textOrEmpty(column); }));
    cboNum->setValues(offeredNumbers(kind, text));
    cboPrefix->setText({});
    cboNum->setText({});
}

void FrmDialer::setNumber(const QString& number, qint64 ownerOfNumber)
{
    txtNum->setText(number);
    m_ownerOfNumber = ownerOfNumber;
}

void FrmDialer::enterNumber()
{
    QWidget* field = txtNum->isHidden() ? static_cast<QWidget*>(cboNum) : txtNum;
    field->setFocus();
}

void FrmDialer::useHomeCity(bool on)
{
    txtNum->setVisible(on);
    for (QWidget* part : {static_cast<QWidget*>(cboPrefix), static_cast<QWidget*>(cboNum),
             static_cast<QWidget*>(label(u"lblDials"_s))})
        part->setHidden(on);
}

void FrmDialer::writeHomeCity(bool on)
{
    const jet::Step step(context().data, tr("a change of the settings"));
    if (!context().data.execute(homeCitySql(on)))
        core::tellFailedSave(context());
    useHomeCity(on);
}

// In front of what is there, as a code is.
void FrmDialer::putCityCode(const QString& choice)
{
    const QString code = choice.mid(choice.lastIndexOf(u"  ") + 2);
    setNumber(memoryNumber(code, txtNum->text()), m_ownerOfNumber);
    enterNumber();
}

// ---- memory and numbers

void FrmDialer::dialSlot(int slot)
{
    if (m_memory->isEmpty(slot))
        return assignSlot(slot);
    const QString caption = m_memory->caption(slot);
    const jet::Recordset row = context().data.openRecordset(memorySlotSql(m_memory->list(), slot));
    const jet::Recordset byCaption = context().data.openRecordset(memoryByCaptionSql(caption));
    // A caption that reads as another pattern finds nothing, the place itself is there.
    const jet::Recordset& found = byCaption.hasRow() ? byCaption : row;
    const QString name = found.textOrEmpty(u"Name");
    label(u"Label27"_s)->setText(widgets::beginning(label(u"Label27"_s), u"       "_s + name));
    tab1->setCaption(name);
    if (found.hasRow())
        tab1->showContact(found.number(u"PerId"));
    if (!row.hasRow())
        return;
    const SlotTag tag = slotTag(caption);
    jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(row.number(u"PerId")));
    if (contact.hasRow()) {
        showPerson(std::move(contact), tag.kind);
    } else {
        m_contact = {};
        showCityTime();
        m_numbers->show(contactText());
        fillPrefixes(tag.kind);
    }
    // The name alone, up to the dash before the tag.
    const QString stored = row.textOrEmpty(u"Name");
    const qsizetype dash = stored.indexOf(u'-');
    showLabels(row.number(u"PerId"), dash < 0 ? stored : stored.left(dash));
    const QString code = tag.code.isEmpty() ? QString() : contactText()(tag.code);
    setNumber(memoryNumber(code, row.textOrEmpty(u"phonenum")), m_id);
    label(u"lblPCap"_s)->setText(u"Calling   "_s + txtNum->text() + u"\n                  of Mr "_s + name);
    label(u"lblPCap"_s)->setVisible(true);
}

void FrmDialer::assignSlot(int slot)
{
    if (m_memory->list().isEmpty()) {
        inform(tr("PhoneList cannot be Empty"));
        return m_memory->focusList();
    }
    showPanel(Frame3);
    if (m_right->currentWidget() == Frame3)
        Frame3->open(m_memory->list(), slot);
}

void FrmDialer::clearSlot(int slot)
{
    {
        const jet::Step step(context().data, tr("emptying a place of the memory"));
        if (!context().data.execute(u"Delete * from cnt_phonenum where list='%1' and cmbnum = %2"_s
                                        .arg(core::inQuotes(m_memory->list()))
                                        .arg(slot)))
            return core::tellFailedSave(context());
    }
    playSound(core::sounds::Delete);
    m_memory->readSlots();
    context().screens.tellBookChanged(this);
}

void FrmDialer::dialClicked(int place)
{
    setNumber(clickedNumber(place, contactText()), m_id);
    label(u"lblPCap"_s)->hide();
}

// The numbers of the person may make room for the memory.
void FrmDialer::showOthers(bool shown)
{
    m_numbers->setVisible(shown);
    CmdOther->setText(shown ? tr("Hide &Other Phone Numbers") : tr("Show &Other Phone Numbers"));
}

// ---- the call

void FrmDialer::dial()
{
    if (!DialButton->isEnabled())
        return;
    PBDial->setValue(0);
    PBDial->show();
    tab1->show();
    PBDial->setValue(20);
    const QString number = txtNum->text();
    if (!mayDialAtNight() || number.isEmpty()) {
        PBDial->hide();
        return enterNumber();
    }
    if (context().services.modemPorts.device(CmbPort->currentText().toInt()).isEmpty())
        return dialByDesktop(number);
    dialByModem(number);
}

bool FrmDialer::mayDialAtNight()
{
    QLabel* there = label(u"lblctime"_s);
    if (!there->text().isEmpty())
        there->setText(timeThere());
    const QString time = there->text();
    if (!isNight(time))
        return true;
    return context().services.boxes.ask(nightQuestion(time, m_place, m_name), tr("Dialer Status"))
        == platform::Answer::Yes;
}

void FrmDialer::dialByModem(const QString& number)
{
    DialButton->setEnabled(false);
    CancelButton->setEnabled(true);
    if (!m_call->isRunning())
        m_status = Status->text();
    Status->setText(u"Dialing - "_s + number);
    if (m_call->dial(CmbPort->currentText().toInt(), number))
        return;
    warn(tr("Please change the ComPort property to suitable port "));
    endDial();
    Status->setText(tr("Port %1: %2").arg(CmbPort->currentText(), context().services.modem.fault()));
}

// Without a modem the telephone program of the desktop may do.
void FrmDialer::dialByDesktop(const QString& number)
{
    PBDial->hide();
    const QString address = telephoneAddress(number);
    if (address.isEmpty()
        || context().services.boxes.ask(
               tr("No modem is set up for port %1. Do you want to call %2 with the telephone program of this "
                  "computer?")
                   .arg(CmbPort->currentText(), address),
               tr("Dialer Status"))
            != platform::Answer::Yes)
        return warn(tr("Please change the ComPort property to suitable port "));
    if (!context().services.shell.openAddress(u"tel:"_s + address))
        return warn(tr("No telephone program was found on this computer."));
    saveCall();
}

// The box waits for the person; the modem must not wait for the box to come.
void FrmDialer::pickUp()
{
    QApplication::beep();
    const QPointer<FrmDialer> self(this);
    warn(tr("Please pick up the phone and either press Enter or click OK"));
    if (self)
        m_call->hangUp();
}

void FrmDialer::callEnded(ModemDialogue::End end)
{
    endDial();
    if (end == ModemDialogue::End::Vanished)
        Status->setText(tr("The modem was lost: %1").arg(context().services.modem.fault()));
}

void FrmDialer::endDial()
{
    PBDial->setValue(100);
    PBDial->hide();
    DialButton->setEnabled(true);
    Status->setText(m_status);
    if (m_id != 0)
        tab1->showContact(m_id);
}

// The wait goes on; Cmdmisc ends it.
void FrmDialer::forgetNumber()
{
    setNumber({}, 0);
    for (widgets::FilledCombo* combo : {cboPrefix, cboNum}) {
        const QSignalBlocker quiet(combo);
        combo->setText({});
    }
    m_name.clear();
    label(u"lblhcity"_s)->clear();
    DialButton->setEnabled(true);
}

void FrmDialer::endCall()
{
    const bool wasRunning = m_call->isRunning();
    m_call->cancel();
    DialButton->setEnabled(true);
    // A call that was given up before has nothing to record.
    if (!wasRunning || !txtNum->text().isEmpty() || !m_name.isEmpty())
        saveCall();
}

void FrmDialer::saveCall()
{
    if (txtNum->text().isEmpty() && m_name.isEmpty())
        return inform(tr("Record not selected"));
    const bool isOpen = m_right->currentWidget() == frmCallSaveAs;
    showPanel(frmCallSaveAs);
    if (isOpen)
        frmCallSaveAs->setCall({m_id, txtNum->text(), m_name});
    else if (m_right->currentWidget() == frmCallSaveAs)
        frmCallSaveAs->open({m_id, txtNum->text(), m_name});
}

// ---- panels

void FrmDialer::showPanel(QWidget* panel)
{
    if (m_right->currentWidget() != panel && mayDiscard())
        m_right->setCurrentWidget(panel);
}

void FrmDialer::askToClosePanel()
{
    if (mayDiscard())
        closePanel();
}

void FrmDialer::closePanel()
{
    m_right->setCurrentWidget(m_personSide);
    enterNumber();
}

void FrmDialer::openModems()
{
    ModemSetup modems(context(), this);
    if (modems.exec() != QDialog::Accepted)
        return;
    for (int port = 1; port <= platform::kSerialPorts; ++port) {
        if (!context().services.modemPorts.device(port).isEmpty())
            return CmbPort->setText(QString::number(port));
    }
}

// Digits go to the number wherever the focus is; Enter dials, or presses the button that has the focus.
void FrmDialer::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isOnRight = m_right->isAncestorOf(focusWidget());
    if (event->key() == Qt::Key_Escape) {
        if (m_right->currentWidget() != m_personSide)
            askToClosePanel();
        else
            Q_EMIT closeRequested();
    } else if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()); isEnter && button) {
        button->click();
    } else if (isEnter && !isOnRight) {
        dial();
    } else if (!isEnter && m_right->currentWidget() == m_personSide && event->text().size() == 1
        && QStringView(u"0123456789*#+").contains(event->text())
        && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
        txtNum->setText(txtNum->text() + event->text());
        m_ownerOfNumber = 0;
    } else {
        Screen::keyPressEvent(event);
    }
}

} // namespace telephone
