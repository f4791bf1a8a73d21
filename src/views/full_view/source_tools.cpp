#include "views/full_view/source_tools.h"

#include "core/screens.h"
#include "views/command_button.h"
#include "widgets/theme.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace views {

namespace {

struct SourceRow {
    Source source;
    QStringView tool;
    QStringView icon;
    const char* text;
};

// Kept: the last tool's name is misspelt; what performs it knows it by that name.
constexpr SourceRow kSources[] = {
    {Source::OwnBook, u"UseOrvaneContactDatabase", u"persons", QT_TRANSLATE_NOOP("views", "Orvane Contacts")},
    {Source::MailClient, u"UseMSOutlookDatabase", u"envelope", QT_TRANSLATE_NOOP("views", "Mail client")},
    {Source::CardFolder, u"UseVCFFiles", u"card", QT_TRANSLATE_NOOP("views", "vCard files")},
    {Source::AddressBook, u"UseMSOullookExpressDatabase", u"list",
        QT_TRANSLATE_NOOP("views", "Second address book")},
};

} // namespace

SourceTools::SourceTools(core::Context& context, QWidget* screen)
    : QObject(screen)
    , MenuDb(new QMenu(screen))
    , m_row(new QWidget)
    , CmdDatabase(commandButton(u"CmdDatabase"_s, u"persons", tr("Choose the address book to look at")))
    , FolderViewOff(commandButton(u"FolderViewOff"_s, u"folder", tr("Choose the folder of the vCard files")))
    , CmdScan(commandButton(u"CmdScan"_s, u"picture", tr("Scan a picture")))
    , CmdKey(commandButton(u"CmdKey"_s, u"search", tr("Search for a keyword")))
{
    makeMenu(screen);
    layOutRow(context);
    setCurrent(Source::OwnBook);
    connect(FolderViewOff, &QToolButton::clicked, this, &SourceTools::folderWanted);
    connect(CmdKey, &QToolButton::clicked, this, &SourceTools::keywordsWanted);
    connect(CmdScan, &QToolButton::clicked, this, [&context] { context.screens.show(u"frmScan"); });
}

void SourceTools::makeMenu(QWidget* screen)
{
    MenuDb->setObjectName(u"MenuDb"_s);
    auto* group = new QActionGroup(this);
    for (const SourceRow& row : kSources) {
        auto* tool = new QAction(QCoreApplication::translate("views", row.text), screen);
        tool->setObjectName(row.tool.toString());
        widgets::setIcon(tool, row.icon);
        tool->setCheckable(true);
        group->addAction(tool);
        MenuDb->addAction(tool);
        m_tools.insert(row.source, tool);
        connect(tool, &QAction::toggled, this, [this, tool, icon = row.icon](bool down) {
            if (!down)
                return;
            CmdDatabase->setText(tool->text());
            widgets::setIcon(CmdDatabase, icon);
        });
        connect(tool, &QAction::triggered, this, [this, source = row.source] { Q_EMIT chosen(source); });
    }
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
    for (const SourceRow& row : kSources) {
        if (m_tools[row.source]->isChecked())
            return row.source;
    }
    return Source::OwnBook;
}

void SourceTools::setCurrent(Source source)
{
    m_tools[source]->setChecked(true);
}

void SourceTools::allowKeywords(bool allowed)
{
    CmdKey->setEnabled(allowed);
}

} // namespace views
