#include "core/contact_tools.h"
#include "views/full_view/category_tree.h"
#include "views/full_view/full_view_edit.h"
#include "views/full_view/full_view_header.h"
#include "views/full_view/full_view_pages.h"
#include "views/full_view/FullView.h"
#include "views/full_view/keyword_panel.h"
#include "widgets/found_strip.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QLabel>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

void FullView::layOut()
{
    auto* bar = m_tools->makeToolBar(this);
    bar->setObjectName(u"SSActiveToolBars1"_s);
    lblCounter->setObjectName(u"lblCounter"_s);
    lblCounter->setAccessibleName(tr("Position in the list"));
    // Beside the tools, which may give way to their overflow arrow; the steps never do.
    auto* steps = new QFrame;
    steps->setProperty("continuesBar", true);
    auto* stepsLayout = new QHBoxLayout(steps);
    stepsLayout->setContentsMargins(0, 0, 8, 0);
    for (QWidget* step : std::initializer_list<QWidget*>{ssprevious, lblCounter, ssnext})
        stepsLayout->addWidget(step);
    auto* head = new QHBoxLayout;
    head->setSpacing(0);
    head->addWidget(bar, 1);
    head->addWidget(steps);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    m_browser = layOutBrowser();
    splitter->addWidget(m_browser);
    splitter->addWidget(layOutRecord());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({270, 900});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(splitter, 1);
    setFocusProxy(DBList1);
}

QWidget* FullView::layOutBrowser()
{
    DBList1->setObjectName(u"DBList1"_s);
    DBList1->setAccessibleName(tr("Contacts"));
    DBList1->setEmptyText(tr("No contacts here"));
    tvwdb->setObjectName(u"tvwdb"_s);
    frmkeyword->setObjectName(u"frmkeyword"_s);
    frmkeyword->hide();
    CmdList->setEnabled(false);
    m_lists = new QStackedWidget;
    m_listPage = new QWidget;
    auto* listLayout = new QVBoxLayout(m_listPage);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(6);
    listLayout->addWidget(m_found);
    listLayout->addWidget(DBList1, 1);
    m_lists->addWidget(m_listPage);
    m_lists->addWidget(tvwdb);

    auto* commands = new QHBoxLayout;
    commands->setSpacing(2);
    commands->addWidget(CmdList);
    commands->addWidget(CmdTree);
    commands->addStretch(1);
    commands->addWidget(CmdView);
    commands->addWidget(CmdRefresh);
    auto* browser = new QWidget;
    browser->setMinimumWidth(200);
    auto* layout = new QVBoxLayout(browser);
    layout->setContentsMargins(8, 8, 0, 8);
    layout->setSpacing(6);
    layout->addLayout(commands);
    layout->addWidget(frmkeyword);
    layout->addWidget(m_lists, 1);
    return browser;
}

QWidget* FullView::layOutRecord()
{
    TabsEdit = new QTabWidget;
    TabsEdit->setObjectName(u"TabsEdit"_s);
    m_pages = new FullViewPages(context(), m_kind.browsesOthers);
    m_pages->setDocumentMode(true);
    TabsEdit->addTab(m_pages, widgets::icon(u"card"), tr("View"));
    TabsEdit->addTab(m_edit, widgets::icon(u"edit"), tr("Edit"));
    auto* record = new QWidget;
    auto* recordLayout = new QVBoxLayout(record);
    recordLayout->setContentsMargins(0, 0, 0, 0);
    recordLayout->addWidget(m_header);
    recordLayout->addWidget(TabsEdit, 1);
    auto* nothing = new QLabel(tr("Choose a contact on the left to see everything about it here."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    m_record = new QStackedWidget;
    m_record->addWidget(nothing);
    m_record->addWidget(record);

    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(4, 4, 8, 8);
    layout->addWidget(m_record, 1);
    return side;
}

} // namespace views
