#include "letters/record/record_tools.h"

#include "core/screens.h"
#include "letters/record/letter_actions.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

using enum core::Tool::Place;

constexpr core::Tool kTools[] = {
    {.id = u"WriteAgain",
        .icon = u"letter",
        .text = QT_TRANSLATE_NOOP("letters", "Open"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Open the letter in the letter creator (Enter)"),
        .places = Labelled | Menu},
    {.id = u"ListEdit",
        .icon = u"edit",
        .text = QT_TRANSLATE_NOOP("letters", "Edit"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Change what the record says of the letter (F2)"),
        .places = Labelled | Menu,
        .key = Qt::Key_F2},
    {.id = u"CmdDelete",
        .icon = u"delete",
        .text = QT_TRANSLATE_NOOP("letters", "Delete"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Delete what is chosen from the record (Del)"),
        .places = Labelled | Menu,
        .key = Qt::Key_Delete},
    {.id = u"ViewPerson",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("letters", "Person"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "Show the person in the full view"),
        .form = u"FullView",
        .places = IconOnly | Menu | GroupStart},
    {.id = u"PrintLetter",
        .icon = u"printer",
        .text = QT_TRANSLATE_NOOP("letters", "Print the letter"),
        .places = IconOnly | Menu},
    {.id = u"Summary",
        .icon = u"report",
        .text = QT_TRANSLATE_NOOP("letters", "Summary"),
        .toolTip = QT_TRANSLATE_NOOP("letters", "How many letters of each kind there are"),
        .task = core::ToolTask::Open,
        .form = u"FrmLettSum",
        .places = IconOnly},
};

} // namespace

RecordTools::RecordTools(core::Context& context, widgets::HeadingGrid* grid, QWidget* screen)
    : ToolSet(context.screens, {kTools, "letters"}, screen)
    , m_context(context)
    , m_grid(grid)
{
    const auto on = [this](QStringView id, auto perform) {
        connect(action(id), &QAction::triggered, this, perform);
        m_grid->addAction(action(id));
    };
    on(u"WriteAgain", [this] { writeAgain(m_context, m_grid->currentKey()); });
    on(u"ListEdit", [this] { editLetter(m_context, m_grid->currentKey()); });
    on(u"CmdDelete", [this] { Q_EMIT removeWanted(); });
    on(u"ViewPerson", [this] { showPerson(m_context, m_grid->currentKey()); });
    on(u"PrintLetter", [this] { printLetter(m_context, m_grid->currentKey()); });
    connect(m_grid, &widgets::HeadingGrid::chosen, action(u"WriteAgain"), &QAction::trigger);
    QMenu* menu = makeMenu(u"LetterMenu"_s, screen);
    m_grid->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_grid, &QWidget::customContextMenuRequested, this, [this, menu](const QPoint& at) {
        if (m_grid->currentKey() != 0)
            menu->popup(m_grid->viewport()->mapToGlobal(at));
    });
}

void RecordTools::follow()
{
    const bool hasLetter = m_grid->currentKey() != 0;
    for (const QStringView id : {u"WriteAgain", u"ListEdit", u"CmdDelete", u"PrintLetter"})
        action(id)->setEnabled(hasLetter);
    action(u"ViewPerson")->setEnabled(hasLetter && m_context.screens.has(u"FullView"));
}

} // namespace letters
