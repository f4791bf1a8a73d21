#include "transfer/cards/FrmvCard.h"

#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/text_file.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace transfer {

namespace {

constexpr QStringView kImport = u"FormCardImport";
constexpr int kLinesInSight = 20;

} // namespace

FrmvCard::FrmvCard(core::Context& context, QWidget* parent)
    : Screen(context, parent)
{
    setWindowTitle(tr("Visiting Card to Orvane Contacts "));
    m_preview = new QPlainTextEdit;
    m_preview->setReadOnly(true);
    m_preview->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_preview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_preview->setMinimumHeight(QFontMetrics(m_preview->font()).lineSpacing() * kLinesInSight);
    m_preview->setTabChangesFocus(true);
    m_preview->setPlaceholderText(tr("What stands on the card is shown here."));
    widgets::FormKit form(this);
    form.group(tr("Visiting card"))
        .button(u"Command1"_s, tr("&Open a card..."), u"card", tr("Choose a vCard file (Ctrl+O)"))
        .button(u"CmdImport"_s, tr("&Import vCards..."), u"import",
            tr("Take in the cards of telephones and other programs, many at a time"))
        .wide(u"Text1"_s, tr("What stands on the card"), m_preview)
        .caption(u"lblNote"_s);
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("Help"), u"help", tr("What this screen is for"))
        .stretch()
        .button(u"cmdSave"_s, tr("&Data Save to Orvane Contact"), u"save",
            tr("Make a contact of the card (Ctrl+S)"))
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    m_note = child<QLabel>(this, u"lblNote"_s);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    auto* openButton = child<QPushButton>(this, u"Command1"_s);
    auto* saveButton = child<QPushButton>(this, u"cmdSave"_s);
    auto* importButton = child<QPushButton>(this, u"CmdImport"_s);
    auto* help = child<QPushButton>(this, u"CmdHelp"_s);
    widgets::setKey(openButton, QKeySequence::Open);
    widgets::setKey(saveButton, QKeySequence::Save);
    saveButton->setEnabled(false);
    importButton->setEnabled(context.screens.has(kImport));
    connect(openButton, &QPushButton::clicked, this, &FrmvCard::open);
    connect(saveButton, &QPushButton::clicked, this, &FrmvCard::save);
    connect(importButton, &QPushButton::clicked, this, [this] { this->context().screens.show(kImport); });
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0071"_s, help); });
    connect(child<QPushButton>(this, u"CmdExit"_s), &QPushButton::clicked, this, &Screen::closeRequested);
    setFocusProxy(openButton);
}

void FrmvCard::load()
{
    setFrameTitle(windowTitle());
}

void FrmvCard::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

void FrmvCard::open()
{
    const auto chosen = context().services.boxes.openFile(
        tr("Visiting card"), u"VCF (*.vcf)|*.vcf"_s, context().services.drive.local(u"C:"));
    if (!chosen)
        return;
    const auto text = platform::readText(*chosen);
    if (!text)
        return warn(tr("This file can not be read."));
    m_card = readVisitingCard(*text);
    m_preview->setPlainText(m_card.preview.join(u'\n'));
    child<QPushButton>(this, u"cmdSave"_s)->setEnabled(true);
    m_note->setText(m_card.isOfOthers
            ? tr("This is a card of another program, or there are several in the file. \"Import vCards\" "
                 "takes in all that they hold.")
            : QString());
    if (!m_card.stoppedAt.isEmpty())
        warn(tr("This address has fewer than five parts. Nothing behind it was read:\n\n%1")
                 .arg(m_card.stoppedAt.left(200)));
}

void FrmvCard::save()
{
    if (!addVisitingCard(context().data, m_card))
        return core::tellFailedSave(context());
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    inform(tr("Data saved"));
}

} // namespace transfer
