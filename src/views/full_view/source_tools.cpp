#include "views/full_view/source_tools.h"

#include "core/screens.h"
#include "core/tool_set.h"
#include "views/command_button.h"
#include "widgets/theme.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// In the order of Source. Kept: the last tool's name is misspelt; what performs it knows it by that name.
constexpr core::Tool kTools[] = {
    {.id = u"UseOrvaneContactDatabase",
        .icon = u"persons",
        .text = QT_TRANSLATE_NOOP("views", "Orvane Contacts"),
        .places = core::Tool::Menu},
    {.id = u"UseMSOutlookDatabase",
        .icon = u"envelope",
        .text = QT_TRANSLATE_NOOP("views", "Mail client"),
        .places = core::Tool::Menu},
    {.id = u"UseVCFFiles",
        .icon = u"card",
        .text = QT_TRANSLATE_NOOP("views", "vCard files"),
        .places = core::Tool::Menu},
    {.id = u"UseMSOullookExpressDatabase",
        .icon = u"list",
        .text = QT_TRANSLATE_NOOP("views", "Second address book"),
        .places = core::Tool::Menu},
};

} // namespace

SourceTools::SourceTools(core::Context& context, QWidget* screen)
    : QObject(screen)
    , m_tools(new core::ToolSet(context.screens, {kTools, "views"}, screen))
    , MenuDb(m_tools->makeMenu(u"MenuDb"_s, screen))
    , m_row(new QWidget)
    , CmdDatabase(commandButton(u"CmdDatabase"_s, u"persons", tr("Choose the address book to look at")))
    , FolderViewOff(commandButton(u"FolderViewOff"_s, u"folder", tr("Choose the folder of the vCard files")))
    , CmdScan(commandButton(u"CmdScan"_s, u"picture", tr("Scan a picture")))
    , CmdKey(commandButton(u"CmdKey"_s, u"search", tr("Search for a keyword")))
{
    connectTools();
    layOutRow(context);
    setCurrent(Source::OwnBook);
    connect(FolderViewOff, &QToolButton::clicked, this, &SourceTools::folderWanted);
    connect(CmdKey, &QToolButton::clicked, this, &SourceTools::keywordsWanted);
    connect(CmdScan, &QToolButton::clicked, this, [&context] { context.screens.show(u"frmScan"); });
}

void SourceTools::connectTools()
{
    auto* group = new QActionGroup(this);
    for (const core::Tool& tool : kTools) {
        QAction* action = m_tools->action(tool.id);
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::toggled, this, [this, action, icon = tool.icon](bool down) {
            if (!down)
                return;
            CmdDatabase->setText(action->text());
            widgets::setIcon(CmdDatabase, icon);
        });
    }
    connect(m_tools, &core::ToolSet::triggered, this,
        [this](const core::Tool& tool) { Q_EMIT chosen(Source(&tool - kTools)); });
}

void SourceTools::layOutRow(core::Context& context)
{
    CmdDatabase->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    CmdDatabase->setPopupMode(QToolButton::InstantPopup);
    CmdDatabase->setMenu(MenuDb);
    CmdScan->setEnabled(context.screens.has(u"frmScan"));
    if (!CmdScan->isEnabled())
        CmdScan->setToolTip(tr("%1\nNot available yet").arg(CmdScan->toolTip()));
    auto* layout = new QHBoxLayout(m_row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(CmdDatabase);
    layout->addStretch(1);
    for (QToolButton* each : {FolderViewOff, CmdScan, CmdKey})
        layout->addWidget(each);
}

Source SourceTools::current() const
{
    const auto down = std::ranges::find_if(
        kTools, [this](const core::Tool& tool) { return m_tools->action(tool.id)->isChecked(); });
    return down == std::end(kTools) ? Source::OwnBook : Source(down - kTools);
}

void SourceTools::setCurrent(Source source)
{
    m_tools->action(kTools[std::size_t(source)].id)->setChecked(true);
}

void SourceTools::allowKeywords(bool allowed)
{
    CmdKey->setEnabled(allowed);
}

} // namespace views
