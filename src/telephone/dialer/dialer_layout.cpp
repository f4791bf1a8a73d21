#include "telephone/dialer/FrmDialer.h"

#include "core/frame.h"
#include "core/screens.h"
#include "core/take_back.h"
#include "core/tool_set.h"
#include "telephone/dialer/call_save_panel.h"
#include "telephone/dialer/contact_details.h"
#include "telephone/dialer/dialer_setup.h"
#include "telephone/dialer/memory_chooser.h"
#include "telephone/dialer/memory_panel.h"
#include "telephone/dialer/number_panel.h"
#include "telephone/dialer/person_picker.h"
#include "widgets/filled_combo.h"
#include "widgets/key_pad.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

using enum core::Tool::Place;

constexpr core::Tool kTools[] = {
    {.id = u"SelectManualy",
        .icon = u"dial",
        .text = QT_TRANSLATE_NOOP("telephone", "Select Manually"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Enter the number by hand"),
        .places = Labelled},
    {.id = u"SelectPerson",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("telephone", "Select Person"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Choose who is called"),
        .places = Labelled},
    {.id = u"SelectotherPhonenumber",
        .icon = u"phone",
        .text = QT_TRANSLATE_NOOP("telephone", "Select Other Phone Number"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Choose another person's number"),
        .places = IconOnly},
    {.id = u"PhoneList",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("telephone", "Phone List"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Choose a memory list"),
        .places = Labelled},
    {.id = u"Save",
        .icon = u"save",
        .text = QT_TRANSLATE_NOOP("telephone", "Save"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "End the call and record it"),
        .places = Labelled | GroupStart},
    {.id = u"Setup",
        .icon = u"setup",
        .text = QT_TRANSLATE_NOOP("telephone", "Setup"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Memory lists, prefixes and modems"),
        .places = Labelled | GroupStart},
    {.id = u"Menu",
        .icon = u"more",
        .text = QT_TRANSLATE_NOOP("telephone", "Menu"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "More about calls"),
        .places = Labelled},
};

constexpr int kDialWidth = 270;
constexpr int kLeastLetters = 7; ///< of the combos on the left
constexpr int kMostDigits = 100;

QLabel* plainLabel(const QString& name, QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(1);
    return label;
}

QPushButton* button(const QString& name, QStringView icon, const QString& text, const QString& toolTip)
{
    auto* made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(toolTip);
    made->setAutoDefault(false);
    widgets::setIcon(made, icon);
    return made;
}

widgets::FilledCombo* combo(const QString& name, const QString& what,
    widgets::FilledCombo::Typing typing = widgets::FilledCombo::Typing::Free)
{
    auto* made = new widgets::FilledCombo(nullptr, typing);
    made->setObjectName(name);
    made->setAccessibleName(what);
    made->setToolTip(what);
    made->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    made->setMinimumContentsLength(kLeastLetters);
    made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return made;
}

void letGrow(QWidget* widget, double by, bool isBold = true)
{
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * by);
    font.setBold(isBold);
    widget->setFont(font);
}

} // namespace

FrmDialer::FrmDialer(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "telephone"}, this))
    , m_right(new QStackedWidget)
    , m_numbers(new NumberPanel)
    , m_memory(new MemoryPanel(context.data))
    , Frame3(new MemoryChooser(context))
    , FrmeRelated(new PersonPicker(context))
    , FrmeCall(new DialerSetup(context))
    , frmCallSaveAs(new CallSavePanel(context))
    , tab1(new ContactDetails(context))
    , m_call(new ModemDialogue(context.services.modem, this))
    , txtNum(new QLineEdit)
    , cboPrefix(combo(u"cboPrefix"_s, tr("Code or prefix")))
    , cboNum(combo(u"cboNum"_s, tr("Number")))
    , CmbPort(combo(u"CmbPort"_s, tr("Port of the modem"), widgets::FilledCombo::Typing::ListOnly))
    , m_cityCodes(combo(u"CmbCityCode"_s, tr("Put the code of a city before the number")))
    , chkDialerCity(new QCheckBox(tr("&Use Home City To Dial")))
    , DialButton(button(u"DialButton"_s, u"phone", tr("&Dial"), tr("Dial the number (Enter)")))
    , CancelButton(
          button(u"CancelButton"_s, u"cancel", tr("&Cancel"), tr("Take the number and the name away")))
    , Cmdmisc(button(u"Cmdmisc"_s, u"save", tr("&End, save"), tr("End the call and record it")))
    , CmdOther(button(u"CmdOther"_s, u"phone", {}, tr("Show the numbers of the person, or hide them")))
    , PBDial(new QProgressBar)
    , Status(plainLabel(u"Status"_s, nullptr))
{
    setWindowTitle(tr("Phone Dialer"));
    m_dialSide = layOutDial();
    m_personSide = layOutPerson();
    for (QWidget* panel : {m_personSide, static_cast<QWidget*>(FrmeRelated), static_cast<QWidget*>(FrmeCall),
             static_cast<QWidget*>(Frame3), static_cast<QWidget*>(frmCallSaveAs)})
        m_right->addWidget(panel);
    auto* sides = new QHBoxLayout;
    sides->setContentsMargins(10, 8, 10, 8);
    sides->setSpacing(14);
    sides->addWidget(m_dialSide);
    sides->addWidget(m_right, 1);
    QToolBar* bar = m_tools->makeToolBar(this);
    bar->setObjectName(u"ToolBars1"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(sides, 1);
    connectTools();
    connectDial();
    connectPanels();
    showOthers(true);
}

QWidget* FrmDialer::layOutDial()
{
    auto* side = new QWidget;
    side->setFixedWidth(kDialWidth);
    auto* heading = plainLabel(u"lblHeading"_s, side);
    heading->setText(tr("Orvane Phone Dialer"));
    letGrow(heading, 1.2);
    auto* who = plainLabel(u"lblhcity"_s, side);
    letGrow(who, 1.1);
    auto* number = plainLabel(u"lblid"_s, side);
    number->setForegroundRole(QPalette::PlaceholderText);
    number->setToolTip(tr("Number of the contact"));
    auto* time = plainLabel(u"lblTime"_s, side);
    time->setText(tr("Time there"));
    auto* dials = plainLabel(u"lblDials"_s, side);
    auto* caption = plainLabel(u"lblPCap"_s, side);
    caption->setWordWrap(true);
    caption->hide();
    txtNum->setObjectName(u"txtNum"_s);
    txtNum->setAccessibleName(tr("Number"));
    txtNum->setPlaceholderText(tr("Number"));
    txtNum->setMaxLength(kMostDigits);
    txtNum->setClearButtonEnabled(true);
    letGrow(txtNum, 1.4, false);
    PBDial->setObjectName(u"PBDial"_s);
    PBDial->setTextVisible(false);
    PBDial->setFixedHeight(8);
    PBDial->hide();
    Status->setWordWrap(true);
    Status->setAccessibleName(tr("State of the call"));
    chkDialerCity->setObjectName(u"chkDialerCity"_s);
    chkDialerCity->setToolTip(tr("One field for the number, or a choice of codes and numbers"));
    auto* port = new QLabel(tr("Po&rt"));
    port->setBuddy(CmbPort);
    CmbPort->setValues({u"1"_s, u"2"_s, u"3"_s});
    CmbPort->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    CmbPort->setMinimumWidth(56);
    auto* city = new QLabel(tr("City code"));
    city->setBuddy(m_cityCodes);

    auto* grid = new QGridLayout(side);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(5);
    auto row = [grid, at = 0](const QList<QWidget*>& parts, int wide = 0) mutable {
        auto* box = new QHBoxLayout;
        box->setSpacing(6);
        for (int i = 0; i < parts.size(); ++i)
            box->addWidget(parts[i], i == wide ? 1 : 0,
                qobject_cast<widgets::KeyPad*>(parts[i]) ? Qt::AlignTop : Qt::Alignment());
        grid->addLayout(box, at++, 0);
    };
    auto* keys = new widgets::KeyPad(u"cmdpd"_s);
    connect(keys, &widgets::KeyPad::keyPressed, this, [this](const QString& key) {
        txtNum->setText(txtNum->text() + key);
        m_ownerOfNumber = 0;
    });
    auto* actions = new QWidget;
    auto* column = new QVBoxLayout(actions);
    column->setContentsMargins(8, 0, 0, 0);
    DialButton->setMinimumHeight(40);
    for (QPushButton* each : {DialButton, CancelButton, Cmdmisc})
        column->addWidget(each);
    column->addStretch(1);
    row({heading});
    row({who, number});
    row({plainLabel(u"labelcity"_s, side)});
    row({time, plainLabel(u"lblctime"_s, side), plainLabel(u"lblgmt"_s, side),
            plainLabel(u"lbltimediff"_s, side)},
        1);
    row({txtNum});
    row({cboPrefix, cboNum}, 1);
    row({dials});
    row({caption});
    row({keys, actions}, 1);
    row({PBDial});
    row({Status});
    row({city, m_cityCodes}, 1);
    row({chkDialerCity});
    row({port, CmbPort,
            button(u"CmdDialer"_s, u"setup", tr("&Modems Setup"), tr("Which device is behind each port"))},
        2);
    row({button(u"CmdHelp"_s, u"help", tr("&Help"), tr("What this screen is for")),
            button(u"Esc"_s, u"exit", tr("Close"), tr("Close the dialer (Esc)"))},
        -1);
    grid->setRowStretch(11, 1);
    return side;
}

QWidget* FrmDialer::layOutPerson()
{
    auto* side = new QWidget;
    auto* caption = plainLabel(u"Label27"_s, side);
    auto* top = new QHBoxLayout;
    top->addWidget(caption, 1);
    top->addWidget(CmdOther);
    auto* lower = new QHBoxLayout;
    lower->setSpacing(12);
    lower->addWidget(m_memory, 2);
    lower->addWidget(tab1, 3);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(top);
    layout->addWidget(m_numbers);
    layout->addLayout(lower, 1);
    return side;
}

void FrmDialer::connectTools()
{
    const auto on = [this](QStringView id, auto perform) {
        connect(m_tools->action(id), &QAction::triggered, this, perform);
    };
    on(u"SelectManualy", [this] {
        askToClosePanel();
        enterNumber();
    });
    for (const QStringView id : {u"SelectPerson"_s, u"SelectotherPhonenumber"_s}) {
        on(id, [this] {
            showPanel(FrmeRelated);
            if (m_right->currentWidget() == FrmeRelated)
                FrmeRelated->open();
        });
    }
    on(u"PhoneList", [this] {
        askToClosePanel();
        if (m_right->currentWidget() == m_personSide)
            m_memory->focusList(true);
    });
    on(u"Save", &FrmDialer::endCall);
    on(u"Setup", [this] {
        if (m_right->currentWidget() == FrmeCall)
            return;
        showPanel(FrmeCall);
        if (m_right->currentWidget() == FrmeCall)
            FrmeCall->read();
    });
    auto* menu = new QMenu(this);
    menu->setObjectName(u"DialerMenu"_s);
    menu->addAction(
            widgets::icon(u"clock"), tr("Previous Calls"), this, [this] { context().screens.show(u"Form1"); })
        ->setEnabled(context().screens.has(u"Form1"));
    menu->addAction(widgets::icon(u"setup"), tr("Modems Setup"), this, &FrmDialer::openModems);
    on(u"Menu", [this, menu] {
        const auto* bar = findChild<QToolBar*>(u"ToolBars1"_s);
        const QWidget* at = bar->widgetForAction(m_tools->action(u"Menu"));
        menu->popup(at->mapToGlobal(at->rect().bottomLeft()));
    });
}

void FrmDialer::connectDial()
{
    connect(DialButton, &QPushButton::clicked, this, &FrmDialer::dial);
    connect(CancelButton, &QPushButton::clicked, this, &FrmDialer::forgetNumber);
    connect(Cmdmisc, &QPushButton::clicked, this, &FrmDialer::endCall);
    connect(chkDialerCity, &QCheckBox::clicked, this, &FrmDialer::writeHomeCity);
    connect(txtNum, &QLineEdit::textEdited, this, [this] { m_ownerOfNumber = 0; });
    connect(txtNum, &QLineEdit::textChanged, this, [this](const QString& number) {
        label(u"lblDials"_s)->setText(number.isEmpty() ? QString() : tr("Dials %1").arg(number));
    });
    for (widgets::FilledCombo* each : {cboPrefix, cboNum})
        connect(each, &QComboBox::currentTextChanged, this,
            [this] { setNumber(pickedNumber(cboPrefix->currentText(), cboNum->currentText()), m_id); });
    connect(m_cityCodes, &QComboBox::activated, this, [this] { putCityCode(m_cityCodes->currentText()); });
    connect(findChild<QPushButton*>(u"CmdDialer"_s), &QPushButton::clicked, this, &FrmDialer::openModems);
    connect(findChild<QPushButton*>(u"Esc"_s), &QPushButton::clicked, this, &Screen::closeRequested);
    auto* help = findChild<QPushButton*>(u"CmdHelp"_s);
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0043"_s, help); });
    connect(m_call, &ModemDialogue::progressed, PBDial, &QProgressBar::setValue);
    connect(m_call, &ModemDialogue::answered, this, &FrmDialer::pickUp, Qt::QueuedConnection);
    connect(m_call, &ModemDialogue::ended, this, &FrmDialer::callEnded);
    connect(m_call, &ModemDialogue::said, this, [this](const QString& line) {
        Status->setText(tr("Dialing - %1. The modem says: %2").arg(txtNum->text(), line));
    });
    CancelButton->setEnabled(true);
    Status->setText(tr("Ready"));
    m_status = Status->text();
}

void FrmDialer::connectPanels()
{
    connect(m_numbers, &NumberPanel::clicked, this, &FrmDialer::dialClicked);
    connect(CmdOther, &QPushButton::clicked, this, [this] { showOthers(m_numbers->isHidden()); });
    connect(m_memory, &MemoryPanel::slotClicked, this, &FrmDialer::dialSlot);
    connect(m_memory, &MemoryPanel::assignWanted, this, &FrmDialer::assignSlot);
    connect(m_memory, &MemoryPanel::clearWanted, this, &FrmDialer::clearSlot);
    connect(Frame3, &MemoryChooser::cancelled, this, &FrmDialer::closePanel);
    connect(Frame3, &MemoryChooser::saved, this, [this] {
        closePanel();
        m_memory->readLists();
        m_memory->showSaved(tr("Saved in Main List"));
        context().screens.tellBookChanged(this);
    });
    connect(FrmeRelated, &PersonPicker::cancelled, this, &FrmDialer::closePanel);
    connect(FrmeRelated, &PersonPicker::picked, this, [this](qint64 id) { showContact(id); });
    connect(FrmeCall, &DialerSetup::listAdded, this, [this](const QString& list) {
        m_memory->readLists();
        m_memory->showList(list);
        context().screens.tellBookChanged(this);
    });
    connect(FrmeCall, &DialerSetup::listsChanged, this, [this] {
        m_memory->showList({});
        m_memory->readLists();
        context().screens.tellBookChanged(this);
    });
    connect(FrmeCall, &DialerSetup::listDeleted, this, [this](const QString& list) {
        m_memory->readLists();
        m_memory->showList({});
        context().screens.tellBookChanged(this);
        const auto step = context().data.lastChange();
        context().frame.showNotice(tr("Deleted the list %1").arg(list), step ? tr("Undo") : QString(),
            [&book = context(), id = step ? step->id : 0] {
                core::takeBack(book, jet::StepDirection::Back, id);
            });
    });
    connect(FrmeCall, &DialerSetup::finished, this, &FrmDialer::askToClosePanel);
    connect(FrmeCall, &DialerSetup::modemsWanted, this, &FrmDialer::openModems);
    connect(frmCallSaveAs, &CallSavePanel::cancelled, this, &FrmDialer::askToClosePanel);
    connect(frmCallSaveAs, &CallSavePanel::saved, this, [this](const QString& name) {
        closePanel();
        tab1->showCalls(m_name);
        tellSaved(tr("the call to %1").arg(name));
        context().screens.tellBookChanged(this);
    });
}

} // namespace telephone
