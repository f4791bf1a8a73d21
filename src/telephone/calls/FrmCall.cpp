#include "telephone/calls/FrmCall.h"

#include "core/contact_lookups.h"
#include "core/handover/contact_screen.h"
#include "core/handover/mail_composer.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/sql_text.h"
#include "core/tool_set.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/special_folders.h"
#include "platform/storage.h"
#include "platform/text_file.h"
#include "telephone/dialer/dialer_statements.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/theme.h"
#include "widgets/wrapping_row.h"

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

namespace {

using enum core::Tool::Place;

constexpr int kEmails = 1; ///< of the kinds
constexpr int kLeastGroup = 360;
constexpr QStringView kFileName = u"Orvane Communicator.txt";
constexpr core::Tool kTools[] = {
    {.id = u"GeneratetextFile",
        .icon = u"file",
        .text = QT_TRANSLATE_NOOP("telephone", "Generate Text File"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Write the list to C:\\Orvane Communicator.txt"),
        .places = Labelled},
    {.id = u"CopyPendingItemonDesktop",
        .icon = u"export",
        .text = QT_TRANSLATE_NOOP("telephone", "Copy Pending Items on Desktop"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Write the list to a text file on the desktop"),
        .places = Labelled},
    {.id = u"Delete",
        .icon = u"delete",
        .text = QT_TRANSLATE_NOOP("telephone", "Delete"),
        .toolTip = QT_TRANSLATE_NOOP("telephone", "Delete the whole list"),
        .places = Labelled | GroupStart},
};

/// What is done with the person of a line, by kind.
struct Hand {
    QStringView form;
    QStringView button;
    QStringView icon;
    const char* text;
};
constexpr Hand kHands[] = {
    {u"FrmDialer", u"CmdCall", u"phone", QT_TRANSLATE_NOOP("telephone", "Call")},
    {u"FormEmail", u"CmdEmail", u"envelope", QT_TRANSLATE_NOOP("telephone", "E-mail")},
    {u"FrmLetter", u"CmdLetter", u"letter", QT_TRANSLATE_NOOP("telephone", "Letter")},
};

QString numbered(QStringView name, int line)
{
    return name.toString() + QString::number(line + 1);
}

} // namespace

FrmCall::FrmCall(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ToolSet(context.screens, {kTools, "telephone"}, this))
    , m_hint(new QLabel)
{
    setWindowTitle(tr("Communicator"));
    m_hint->setObjectName(u"lblHint"_s);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    auto* body = new QWidget;
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(12, 12, 12, 12);
    auto* groups = new widgets::WrappingRow;
    groups->setSpacing(12);
    for (int kind = 0; kind < int(pendingKinds().size()); ++kind)
        groups->add(layOutKind(kind));
    column->addLayout(groups);
    column->addWidget(m_hint);
    column->addStretch(1);
    auto* close = new QPushButton(tr("Close"));
    close->setObjectName(u"CmdExit"_s);
    close->setToolTip(tr("Close the screen (Esc)"));
    close->setAutoDefault(false);
    widgets::setIcon(close, u"exit");
    connect(close, &QPushButton::clicked, this, &Screen::closeRequested);
    auto* page = new QScrollArea;
    page->setWidget(body);
    page->setWidgetResizable(true);
    page->setFrameShape(QFrame::NoFrame);
    page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(12, 0, 12, 10);
    foot->addStretch(1);
    foot->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_tools->makeToolBar(this));
    layout->addWidget(page, 1);
    layout->addLayout(foot);
    connect(m_tools->action(u"GeneratetextFile"), &QAction::triggered, this, &FrmCall::generateText);
    connect(m_tools->action(u"CopyPendingItemonDesktop"), &QAction::triggered, this, &FrmCall::copyToDesktop);
    connect(m_tools->action(u"Delete"), &QAction::triggered, this, &FrmCall::deleteAll);
    setFocusProxy(nameBox(0, 0));
}

// The field that has the focus says that it is finished when it goes, and by then there is nothing to store.
FrmCall::~FrmCall()
{
    for (auto* line : findChildren<QLineEdit*>())
        line->disconnect(this);
}

QWidget* FrmCall::layOutKind(int kind)
{
    auto* group = new QGroupBox(QCoreApplication::translate("telephone", pendingKinds()[kind].title));
    group->setMinimumWidth(kLeastGroup);
    auto* grid = new QGridLayout(group);
    grid->setVerticalSpacing(4);
    grid->setColumnStretch(0, 1);
    for (int line = 0; line < kPendingLines; ++line)
        addLine(grid, kind, line);
    return group;
}

void FrmCall::addLine(QGridLayout* grid, int kind, int line)
{
    const PendingKind& what = pendingKinds()[kind];
    const Hand& hand = kHands[kind];
    const QString title = QCoreApplication::translate("telephone", what.title);
    auto* name = new widgets::FilledCombo;
    name->setObjectName(numbered(what.name, line));
    name->setAccessibleName(u"%1 %2"_s.arg(title).arg(line + 1));
    name->lineEdit()->setMaxLength(context().schema.textSize(u"OV_PendWork", name->objectName()));
    name->lineEdit()->setPlaceholderText(tr("Name"));
    name->setSource([this] {
        QStringList names;
        const jet::Recordset people = context().data.openRecordset(peopleSql());
        for (int row = 0; row < people.count(); ++row)
            names << people.textAt(row, 1);
        return names;
    });
    auto* tick = new QCheckBox(tr("Done"));
    tick->setObjectName(numbered(what.tick, line));
    auto* button = new QPushButton(QCoreApplication::translate("telephone", hand.text));
    button->setObjectName(numbered(hand.button, line));
    button->setAutoDefault(false);
    widgets::setIcon(button, hand.icon);
    const bool isThere = context().screens.has(hand.form);
    button->setEnabled(isThere);
    button->setToolTip(isThere ? tr("Hand the person of this line over") : tr("Not available yet"));
    grid->addWidget(name, line, 0);
    grid->addWidget(tick, line, 1);
    grid->addWidget(button, line, 2);
    connect(
        name->lineEdit(), &QLineEdit::editingFinished, this, [this, kind, line] { storeName(kind, line); });
    connect(name, &QComboBox::activated, this, [this, kind, line] { storeName(kind, line); });
    connect(name, &QComboBox::currentTextChanged, this, [this, kind, line] { follow(kind, line); });
    connect(tick, &QCheckBox::clicked, this, [this, kind, line] { storeTick(kind, line); });
    connect(button, &QPushButton::clicked, this, [this, kind, line] { handOver(kind, line); });
}

widgets::FilledCombo* FrmCall::nameBox(int kind, int line) const
{
    return child<widgets::FilledCombo>(this, numbered(pendingKinds()[kind].name, line));
}

QCheckBox* FrmCall::tickBox(int kind, int line) const
{
    return child<QCheckBox>(this, numbered(pendingKinds()[kind].tick, line));
}

void FrmCall::load()
{
    setFrameTitle(windowTitle());
    show(context().data.openRecordset(u"Select * From OV_PendWork"_s));
    m_hint->setText(tr("Names and ticks are stored at once."));
}

void FrmCall::bookChanged()
{
    show(context().data.openRecordset(u"Select * From OV_PendWork"_s));
}

// What is being typed stays.
void FrmCall::show(const jet::Recordset& row)
{
    for (int kind = 0; kind < int(pendingKinds().size()); ++kind) {
        for (int line = 0; line < kPendingLines; ++line) {
            PendingItem& stored = m_stored[kind][line];
            widgets::FilledCombo* name = nameBox(kind, line);
            const bool isBeingTyped = name->currentText() != stored.name;
            stored.name = row.textOrEmpty(name->objectName());
            stored.isDone = row.hasRow() && row.flag(tickBox(kind, line)->objectName());
            name->refill();
            if (!isBeingTyped)
                name->setText(stored.name);
            tickBox(kind, line)->setChecked(stored.isDone);
            follow(kind, line);
        }
    }
}

PendingList FrmCall::list() const
{
    return m_stored;
}

void FrmCall::follow(int kind, int line)
{
    tickBox(kind, line)->setEnabled(!nameBox(kind, line)->currentText().trimmed().isEmpty());
}

// A line without a name is nothing that could be done.
void FrmCall::storeName(int kind, int line)
{
    PendingItem& stored = m_stored[kind][line];
    const QString name = nameBox(kind, line)->currentText();
    if (name == stored.name)
        return;
    const jet::Step step(context().data, tr("the pending list"));
    jet::Batch batch(context().data);
    const bool isDone = stored.isDone && !name.trimmed().isEmpty();
    const bool isStored = store(nameBox(kind, line)->objectName(), name)
        && (isDone == stored.isDone || store(tickBox(kind, line)->objectName(), isDone));
    if (!batch.commit() || !isStored)
        return core::tellFailedSave(context());
    stored = {name, isDone};
    tickBox(kind, line)->setChecked(isDone);
    context().screens.tellBookChanged(this);
}

void FrmCall::storeTick(int kind, int line)
{
    const bool isDone = tickBox(kind, line)->isChecked();
    storeName(kind, line); // takes the mark of another name away
    tickBox(kind, line)->setChecked(isDone);
    const jet::Step step(context().data, tr("the pending list"));
    if (!store(tickBox(kind, line)->objectName(), isDone)) {
        tickBox(kind, line)->setChecked(m_stored[kind][line].isDone);
        return core::tellFailedSave(context());
    }
    m_stored[kind][line].isDone = isDone;
    context().screens.tellBookChanged(this);
}

bool FrmCall::store(const QString& column, const QVariant& value)
{
    jet::Recordset row = context().data.openRecordset(u"Select * From OV_PendWork"_s);
    if (row.hasRow())
        row.edit();
    else
        row.addNew();
    row.set(column, value);
    return row.update();
}

// Of people with one name the first is meant.
void FrmCall::handOver(int kind, int line)
{
    storeName(kind, line);
    const QString name = nameBox(kind, line)->currentText();
    if (name.trimmed().isEmpty())
        return inform(tr("Select Person Name"));
    const jet::Recordset contact = context().data.openRecordset(core::contactByNameSql(core::inQuotes(name)));
    if (!contact.hasRow())
        return inform(tr("Record not selected"));
    const qint64 id = contact.number(u"id");
    core::Screens& screens = context().screens;
    if (auto* screen = kind == kEmails ? nullptr : screens.load<core::ContactScreen>(kHands[kind].form))
        screen->showContact(id);
    if (auto* composer = kind != kEmails ? nullptr : screens.load<core::MailComposer>(kHands[kind].form))
        composer->AddRecipient(id);
    screens.show(kHands[kind].form);
}

bool FrmCall::writeText(const QString& path)
{
    storeNames();
    if (platform::writeText(context().services.drive, path, pendingText(list()))) {
        playSound(core::sounds::Save);
        m_hint->setText(tr("Written to %1").arg(path));
        return true;
    }
    const QString folder = QFileInfo(context().services.drive.local(path)).absolutePath();
    warn(tr("%1 could not be written: %2.").arg(path, platform::whyNotWritable(folder)));
    return false;
}

void FrmCall::generateText()
{
    writeText(u"C:\\"_s + kFileName.toString());
}

void FrmCall::copyToDesktop()
{
    writeText(
        context().services.folders.SpecialFolderPath(platform::csidlDesktop) + u'\\' + kFileName.toString());
}

void FrmCall::deleteAll()
{
    if (context().services.boxes.ask(
            tr("Do you want to delete the whole list of pending calls, e-mails and letters?"),
            shared().AppTitle, platform::Icon::Warning)
        != platform::Answer::Yes)
        return;
    {
        const jet::Step step(context().data, tr("deleting the pending list"));
        if (!context().data.execute(u"Delete * from OV_PendWork"_s))
            return core::tellFailedSave(context());
    }
    playSound(core::sounds::Delete);
    for (int kind = 0; kind < int(pendingKinds().size()); ++kind) {
        for (int line = 0; line < kPendingLines; ++line)
            m_stored[kind][line].name = nameBox(kind, line)->currentText();
    }
    bookChanged();
    context().screens.tellBookChanged(this);
}

bool FrmCall::isTouched() const
{
    for (int kind = 0; kind < int(pendingKinds().size()); ++kind) {
        for (int line = 0; line < kPendingLines; ++line) {
            if (nameBox(kind, line)->currentText() != m_stored[kind][line].name)
                return true;
        }
    }
    return false;
}

bool FrmCall::mayClose()
{
    storeNames();
    return mayDiscard();
}

// A tool of the bar leaves the focus, and what is typed, in the field.
void FrmCall::storeNames()
{
    for (int kind = 0; kind < int(pendingKinds().size()); ++kind) {
        for (int line = 0; line < kPendingLines; ++line)
            storeName(kind, line);
    }
}

void FrmCall::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

} // namespace telephone
