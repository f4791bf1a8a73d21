#include "core/shell/FrmLaunchDisk.h"

#include "core/frame.h"
#include "core/shell/launch_grid.h"
#include "core/shell/launch_pages.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

FrmLaunchDisk::FrmLaunchDisk(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , LblFrmDesc(new QLabel(this))
    , LblTitle(new QLabel(this))
    , Grid1(new LaunchGrid(this))
{
    LblFrmDesc->setObjectName(u"LblFrmDesc"_s);
    LblFrmDesc->setWordWrap(true);
    LblFrmDesc->setTextFormat(Qt::PlainText);
    LblTitle->setObjectName(u"LblTitle"_s);
    LblTitle->setTextFormat(Qt::PlainText);
    LblTitle->setMinimumHeight(LblTitle->fontMetrics().lineSpacing());
    Grid1->setObjectName(u"Grid1"_s);
    Grid1->setAccessibleName(tr("Commands"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 16, 20, 12);
    layout->setSpacing(10);
    layout->addWidget(LblFrmDesc);
    layout->addWidget(Grid1, 1);
    layout->addWidget(LblTitle);
    connect(Grid1, &LaunchGrid::hovered, this,
        [this](const QString& label) { LblTitle->setText(u" - "_s + label); });
    connect(Grid1, &LaunchGrid::started, this, &FrmLaunchDisk::start);
    setFocusProxy(Grid1);
}

void FrmLaunchDisk::load()
{
    showPage();
}

void FrmLaunchDisk::openPage(const QString& mode)
{
    shared().LaunchMode = mode;
    showPage();
}

void FrmLaunchDisk::showPage()
{
    const LaunchPage* page = launchPageOf(shared().LaunchMode);
    if (!page)
        return;
    setWindowTitle(QCoreApplication::translate("shell", page->title));
    LblFrmDesc->setText(
        context().data.openRecordset(launchDescriptionSql(*page)).textOrEmpty(u"Description"));
    // The command that the mouse rested on is not on this page.
    LblTitle->clear();
    Grid1->clearTiles();
    jet::Recordset rows = context().data.openRecordset(launchRowsSql(*page));
    for (; !rows.eof(); rows.moveNext()) {
        const QString label = rows.textOrEmpty(u"Title");
        const core::Action* action = core::launchPadAction(label);
        Grid1->addTile(label, rows.textOrEmpty(u"Description"), rows.textOrEmpty(u"Icon"),
            action && context().frame.canPerform(*action));
    }
}

void FrmLaunchDisk::start(const QString& label)
{
    if (const core::Action* action = core::launchPadAction(label))
        context().frame.perform(*action);
}

} // namespace shell
