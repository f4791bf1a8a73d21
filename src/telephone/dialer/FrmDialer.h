#pragma once

#include "core/handover/contact_screen.h"
#include "core/handover/number_dialer.h"
#include "core/screen.h"
#include "telephone/dialer/dial_prefixes.h"
#include "telephone/dialer/modem_dialogue.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace core {
class ToolSet;
}

namespace widgets {
class FilledCombo;
}

namespace telephone {

class CallSavePanel;
class ContactDetails;
class DialerSetup;
class MemoryChooser;
class MemoryPanel;
class NumberPanel;
class PersonPicker;

/// Dials a number through a voice modem, or by the telephone program of the desktop where there is no modem,
/// and leaves the talk to the receiver. On the left what is dialled, on the right the person: numbers,
/// memory, details and earlier calls. What is asked for on the way (a person, a number for the memory, the
/// purpose of a call) takes the place of the right side.
class FrmDialer : public core::Screen, public core::ContactScreen, public core::NumberDialer {
    Q_OBJECT

public:
    explicit FrmDialer(core::Context& context, QWidget* parent = nullptr);
    ~FrmDialer() override;

    void load() override;
    bool isTouched() const override;
    bool mayClose() override;
    void bookChanged() override;
    bool showContact(qint64 id) override;
    void offerNumber(const QString& number, const QString& who) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* layOutDial();
    QWidget* layOutPerson();
    void connectTools();
    void connectDial();
    void connectPanels();

    void showPanel(QWidget* panel); ///< after a question where something typed would be lost
    void closePanel();
    void askToClosePanel();
    void openModems();
    void enterNumber();

    void showPerson(jet::Recordset contact, NumberKind kind);
    void showLabels(qint64 id, const QString& name);
    void showCityTime();
    QString timeThere() const;
    void fillPrefixes(NumberKind kind);
    void setNumber(const QString& number, qint64 ownerOfNumber);
    void useHomeCity(bool on);
    void writeHomeCity(bool on);
    void putCityCode(const QString& choice);

    void dialSlot(int slot);
    void assignSlot(int slot);
    void clearSlot(int slot);
    void dialClicked(int place);
    void showOthers(bool shown);

    void dial();
    bool mayDialAtNight();
    void dialByModem(const QString& number);
    void dialByDesktop(const QString& number);
    void pickUp();
    void callEnded(ModemDialogue::End end);
    void endDial();
    void forgetNumber();
    void endCall();
    void saveCall();

    ColumnText contactText() const;
    QLabel* label(const QString& name) const;

    core::ToolSet* m_tools;
    QStackedWidget* m_right;
    QWidget* m_dialSide = nullptr;
    QWidget* m_personSide = nullptr;
    NumberPanel* m_numbers;
    MemoryPanel* m_memory;
    MemoryChooser* Frame3;
    PersonPicker* FrmeRelated;
    DialerSetup* FrmeCall;
    CallSavePanel* frmCallSaveAs;
    ContactDetails* tab1;
    ModemDialogue* m_call;
    QLineEdit* txtNum;
    widgets::FilledCombo* cboPrefix;
    widgets::FilledCombo* cboNum;
    widgets::FilledCombo* CmbPort;
    widgets::FilledCombo* m_cityCodes;
    QCheckBox* chkDialerCity;
    QPushButton* DialButton;
    QPushButton* CancelButton;
    QPushButton* Cmdmisc;
    QPushButton* CmdOther;
    QProgressBar* PBDial;
    QLabel* Status;

    jet::Recordset m_contact; ///< the person whose numbers are shown
    qint64 m_id = 0; ///< as lblid shows it
    QString m_name; ///< whom lblhcity names
    qint64 m_ownerOfNumber = 0; ///< whose number stands there; 0 for one that was typed
    QString m_place; ///< as labelcity shows it
    QString m_status; ///< what stood there before the call
};

} // namespace telephone
