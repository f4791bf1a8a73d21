#include "letters/creator/FrmEmailInsert.h"

#include "core/handover/phrase_target.h"
#include "core/screens.h"
#include "letters/creator/letter_lists.h"
#include "widgets/dialog_keys.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr QStringView kMailScreen = u"FormEmail";
constexpr QStringView kSetUp = u"FormLtrSetUp";
const QStringList kLetterScreens{u"FrmLetter"_s, u"FrmBusinessLetter"_s, u"FrmGrpLetter"_s};

} // namespace

FrmEmailInsert::FrmEmailInsert(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_phrases(new widgets::HeadingGrid)
{
    setWindowTitle(tr("Insert Phrase"));
    m_phrases->setHeadings(u"|Phrase                         ", {QString(), u"head"_s});
    m_phrases->letColumnsGiveWay();
    m_phrases->setEmptyText(tr("No phrases yet. \"Set-up\" takes new ones."));
    widgets::FormKit form(this);
    form.group()
        .line(u"txtFind"_s, tr("&Find"))
        .wide(u"Grid1"_s, tr("Phrases; Enter puts one into the text"), m_phrases)
        .readOnly(u"txtPreview"_s, tr("Text"), 5);
    form.buttonRow()
        .button(u"cmdSetup"_s, tr("Set-&up"), u"setup", tr("Change the stored phrases"))
        .stretch()
        .button(u"CmdInsert"_s, tr("&Insert"), u"add", tr("Put the phrase in at the caret (Enter)"))
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close without a phrase (Esc)"));
    txtFind = child<QLineEdit>(this, u"txtFind"_s);
    txtFind->setClearButtonEnabled(true);
    m_preview = child<QPlainTextEdit>(this, u"txtPreview"_s);
    connect(txtFind, &QLineEdit::textChanged, this, &FrmEmailInsert::readPhrases);
    connect(m_phrases, &widgets::HeadingGrid::currentRowChanged, this, &FrmEmailInsert::showPhrase);
    connect(m_phrases, &widgets::HeadingGrid::chosen, this, &FrmEmailInsert::insert);
    connect(child<QPushButton>(this, u"CmdInsert"_s), &QPushButton::clicked, this, &FrmEmailInsert::insert);
    connect(child<QPushButton>(this, u"CmdExit"_s), &QPushButton::clicked, this, &Screen::closeRequested);
    auto* setup = child<QPushButton>(this, u"cmdSetup"_s);
    setup->setEnabled(context.screens.has(kSetUp));
    connect(setup, &QPushButton::clicked, this, [this] {
        Q_EMIT closeRequested();
        if (auto* pages = this->context().screens.load<core::PageScreen>(kSetUp))
            pages->openPage(u"Phrases"_s);
        this->context().screens.show(kSetUp);
    });
    setFocusProxy(m_phrases);
    resize(460, 440);
}

void FrmEmailInsert::load()
{
    setFrameTitle(windowTitle());
    readPhrases();
}

void FrmEmailInsert::readPhrases()
{
    const jet::Recordset all = context().data.openRecordset(storedPhrasesSql());
    const QString wanted = txtFind->text().trimmed();
    QList<QStringList> rows;
    for (int row = 0; row < all.count(); ++row) {
        const QString head = all.textAt(row, all.columnIndex(u"Head"));
        const QString text = all.textAt(row, all.columnIndex(u"Description"));
        if (head.contains(wanted, Qt::CaseInsensitive) || text.contains(wanted, Qt::CaseInsensitive))
            rows << QStringList{head, text};
    }
    m_phrases->setRows(rows, {u"head"_s, u"description"_s});
    m_phrases->setCurrentRow(rows.isEmpty() ? -1 : 0);
    showPhrase();
}

void FrmEmailInsert::showPhrase()
{
    m_preview->setPlainText(m_phrases->currentText(u"description"_s));
    child<QPushButton>(this, u"CmdInsert"_s)->setEnabled(m_phrases->currentRow() >= 0);
}

/// The screen that asked; by the shared word where it did not tell its name.
core::PhraseTarget* FrmEmailInsert::target() const
{
    core::Screens& screens = context().screens;
    if (auto* caller = screens.find<core::PhraseTarget>(m_caller))
        return caller;
    if (shared().CallerForm != u"Letter")
        return screens.find<core::PhraseTarget>(kMailScreen);
    for (const QString& form : kLetterScreens) {
        if (auto* caller = screens.find<core::PhraseTarget>(form))
            return caller;
    }
    return nullptr;
}

void FrmEmailInsert::insert()
{
    if (m_phrases->currentRow() < 0)
        return inform(tr("Record not selected"));
    core::PhraseTarget* caller = target();
    if (!caller)
        return inform(tr("The text that asked for a phrase is not open any more."));
    caller->insertPhrase(m_phrases->currentText(u"description"_s));
    shared().CallerForm.clear();
    m_caller.clear();
    Q_EMIT closeRequested();
}

void FrmEmailInsert::keyPressEvent(QKeyEvent* event)
{
    if (!widgets::answerDialogKey(
            event, this, [this] { insert(); }, [this] { Q_EMIT closeRequested(); }))
        Screen::keyPressEvent(event);
}

} // namespace letters
