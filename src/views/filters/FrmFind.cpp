#include "views/filters/FrmFind.h"

#include "core/handover/refreshable.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "platform/message_boxes.h"
#include "views/filters/find_columns.h"
#include "widgets/dialog_keys.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>

using namespace Qt::StringLiterals;
using widgets::child;

namespace views {

namespace {

constexpr int kLeastWidth = 440;

} // namespace

FrmFind::FrmFind(core::Context& context, QWidget* parent)
    : Screen(context, parent)
{
    setWindowTitle(tr("Find and Replace"));
    setMinimumWidth(kLeastWidth);
    layOut();
}

void FrmFind::layOut()
{
    using widgets::KeyFilter;
    widgets::FormKit form(this);
    form.group()
        .fixedCombo(u"Combo1"_s, tr("F&ield"))
        .hint(tr("The field in which values are replaced"))
        .line(u"txtfind"_s, tr("&Find"), {}, KeyFilter::NoApostrophe)
        .hint(tr("The whole value, as it stands in the field"))
        .line(u"txtrep"_s, tr("Replace &with"), {}, KeyFilter::NoApostrophe)
        .caption(u"lblResult"_s);
    form.buttonRow()
        .stretch()
        .button(
            u"CmdSave"_s, tr("&Replace"), u"edit", tr("Replace the value in every row that has it (Enter)"))
        .button(u"CmdCancel"_s, tr("Close"), u"cancel", tr("Close without replacing (Esc)"));
    Combo1 = child<QComboBox>(this, u"Combo1"_s);
    txtfind = child<QLineEdit>(this, u"txtfind"_s);
    txtrep = child<QLineEdit>(this, u"txtrep"_s);
    lblResult = child<QLabel>(this, u"lblResult"_s);
    auto* ok = child<QPushButton>(this, u"CmdSave"_s);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &FrmFind::replace);
    connect(child<QPushButton>(this, u"CmdCancel"_s), &QPushButton::clicked, this, &FrmFind::cancel);
    setFocusProxy(Combo1);
}

void FrmFind::load()
{
    m_target = &findTarget(shared().CallerForm);
    QStringList captions;
    for (const FindColumn& field : m_target->columns)
        captions << QCoreApplication::translate("views", field.caption);
    child<widgets::FilledCombo>(this, u"Combo1"_s)->setValues(captions);
    Combo1->setCurrentIndex(-1);
    lblResult->clear();
}

void FrmFind::replace()
{
    lblResult->clear();
    const int field = Combo1->currentIndex();
    if (field < 0) {
        context().services.boxes.stop(tr("Please select field for find and replace"), shared().AppTitle);
        Combo1->setFocus();
        return;
    }
    const QString find = txtfind->text();
    const QString replacement = txtrep->text().trimmed();
    if (replacement.isEmpty()
        && context().services.boxes.ask(tr("This will replace all %1 with blanks").arg(find),
               shared().AppTitle, platform::Icon::Warning)
            == platform::Answer::No)
        return;
    const QStringView column = m_target->columns[static_cast<std::size_t>(field)].column;
    const jet::Outcome outcome = context().data.execute(replaceSql(*m_target, column, find, replacement));
    if (!outcome)
        return;
    lblResult->setText(tr("Rows changed: %1").arg(outcome.changed));
    refreshCaller();
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
}

// A caller that is not open gets nothing, and reads its rows when it opens.
void FrmFind::refreshCaller()
{
    if (auto* caller = context().screens.find<core::Refreshable>(m_target->form))
        caller->refreshList(m_target->listSql.toString());
}

void FrmFind::cancel()
{
    playSound(core::sounds::Cancel);
    Q_EMIT closeRequested();
}

// It may be open still when the next caller asks for it.
void FrmFind::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    if (!event->spontaneous() && m_target != &findTarget(shared().CallerForm))
        load();
}

void FrmFind::keyPressEvent(QKeyEvent* event)
{
    if (!widgets::answerDialogKey(
            event, this, [this] { replace(); }, [this] { cancel(); }))
        Screen::keyPressEvent(event);
}

} // namespace views
