#include "views/filters/filter_screen.h"

#include "core/handover/filter_target.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "widgets/dialog_keys.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace views {

FilterScreen::FilterScreen(core::Context& context, const FilterKind& kind, QWidget* parent)
    : Screen(context, parent)
    , m_kind(kind)
{
}

// A dialog can also be closed by its frame.
FilterScreen::~FilterScreen()
{
    if (!m_finished)
        releaseCaller();
}

void FilterScreen::layOutButtons(widgets::FormKit& form)
{
    form.buttonRow()
        .button(u"CmdHelp"_s, tr("&Help"), u"help", tr("What this filter is for"))
        .button(u"CmdRefresh"_s, tr("R&efresh"), u"restore", tr("Set all choices back to All"))
        .stretch()
        .button(u"cmdOk"_s, tr("&Filter Record"), u"filter", tr("Show the contacts that fit (Enter)"))
        .button(u"CmdCancel"_s, tr("Cancel"), u"cancel", tr("Leave the list as it is (Esc)"));
    auto* ok = child<QPushButton>(this, u"cmdOk"_s);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &FilterScreen::filterRecords);
    connect(child<QPushButton>(this, u"CmdCancel"_s), &QPushButton::clicked, this, &FilterScreen::cancel);
    connect(child<QPushButton>(this, u"CmdRefresh"_s), &QPushButton::clicked, this, [this] { chooseAll(); });
    auto* help = child<QPushButton>(this, u"CmdHelp"_s);
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(m_kind.helpCode.toString(), help); });
}

QStringList FilterScreen::offeredValues(const QString& sql) const
{
    QStringList values = core::firstColumn(context().data, sql);
    values.removeIf([](const QString& value) { return value.trimmed().isEmpty(); });
    values.prepend(u"All"_s);
    return values;
}

// A screen that is not there gets nothing; one that is there and closed is opened by what it gets.
void FilterScreen::filterRecords()
{
    const QString caller = shared().CallerForm;
    if (const auto text = deliveredFilter(m_kind.form, caller, whereClause())) {
        if (auto* target = context().screens.load<core::FilterTarget>(caller))
            target->applyFilter(*text);
    }
    playSound(core::sounds::Save);
    finish();
}

void FilterScreen::cancel()
{
    playSound(core::sounds::Cancel);
    finish();
}

// Behind a dialog the caller is in sight already.
void FilterScreen::finish()
{
    const QString caller = shared().CallerForm;
    if (const core::Screen* screen = context().screens.find(caller); screen && !screen->isVisible())
        context().screens.show(caller);
    releaseCaller();
    m_finished = true;
    Q_EMIT closeRequested();
}

void FilterScreen::releaseCaller()
{
    if (const core::Screen* caller = context().screens.find(shared().CallerForm)) {
        if (auto* view = caller->findChild<QWidget*>(u"CmdView"_s))
            view->setEnabled(true);
    }
    if (m_kind.forgetsCaller)
        shared().CallerForm.clear();
}

void FilterScreen::keyPressEvent(QKeyEvent* event)
{
    if (!widgets::answerDialogKey(
            event, this, [this] { filterRecords(); }, [this] { cancel(); }))
        Screen::keyPressEvent(event);
}

} // namespace views
