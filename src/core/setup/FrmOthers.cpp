#include "core/setup/FrmOthers.h"

#include "core/screens.h"
#include "core/setup/category_panel.h"
#include "core/setup/city_panel.h"
#include "core/setup/default_panel.h"
#include "core/setup/dialer_panel.h"
#include "core/setup/list_panel.h"
#include "core/setup/mail_panel.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"
#include "widgets/wrapping_row.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace setup {

namespace {

constexpr QStringView kAddressHeadings
    = u"Address                          |Area                |City            ";
constexpr int kWidestList = 420;
constexpr QSize kDialogSize{1040, 660};

} // namespace

FrmOthers::FrmOthers(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , sstab1(new QTabWidget)
{
    setWindowTitle(tr("Address Book Setup"));
    sstab1->setObjectName(u"sstab1"_s);
    sstab1->setAccessibleName(tr("Subjects"));
    widgets::letIconsGiveWay(sstab1);
    addTab(new DefaultPanel(context), tr("Default"), u"setup");
    addTab(listsPage(ListTab::SavedCalls), tr("Saved Calls"), u"phone");
    addTab(listsPage(ListTab::Personal), tr("Personal"), u"family");
    addTab(listsPage(ListTab::Business), tr("Business"), u"work");
    addTab(listsPage(ListTab::General), tr("General"), u"list");
    addTab(listsPage(ListTab::UserDefined), tr("User Defined"), u"star");
    addTab(new CityPanel(context), tr("City"), u"city");
    addTab(new CategoryPanel(context), tr("Category"), u"category");
    addTab(new DialerPanel(context), tr("Dialer"), u"dial");
    addTab(new MailPanel(context), tr("Mail"), u"envelope");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(8);
    layout->addWidget(sstab1, 1);
    layout->addWidget(layOutFoot());
    setFocusProxy(sstab1);
    connect(sstab1, &QTabWidget::currentChanged, this, &FrmOthers::readTab);
}

// On a small screen a page scrolls, rather than the window growing out of it.
void FrmOthers::addTab(QWidget* page, const QString& caption, QStringView icon)
{
    if (auto* panel = qobject_cast<core::SetupPanel*>(page))
        watch(panel);
    auto* scroller = new QScrollArea;
    auto* holder = new QWidget;
    auto* layout = new QHBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    const bool isNarrow = page->maximumWidth() < QWIDGETSIZE_MAX;
    layout->addWidget(page, 1);
    if (isNarrow)
        layout->addStretch(1);
    scroller->setWidget(holder);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    sstab1->addTab(scroller, widgets::icon(icon), caption);
}

QWidget* FrmOthers::listsPage(ListTab tab)
{
    auto* page = new QWidget;
    auto* layout = new widgets::WrappingRow(page);
    layout->setContentsMargins(6, 0, 6, 0);
    layout->setSpacing(0);
    QList<const WordList*> lists;
    for (const WordList& list : wordLists()) {
        if (list.tab == tab)
            lists << &list;
    }
    const auto add = [&](const QList<const WordList*>& ofPanel) {
        auto* panel = new ListPanel(context(), ofPanel);
        panel->setMaximumWidth(kWidestList);
        watch(panel);
        layout->add(panel);
    };
    // Lists with the same buttons share a panel.
    if (lists.size() > 1 && lists[0]->saveButton == lists[1]->saveButton) {
        add(lists);
    } else {
        for (const WordList* list : lists)
            add({list});
    }
    if (tab == ListTab::General)
        layout->add(addresses(), 2);
    return page;
}

// They are kept where they are typed; here one can look which there are.
QWidget* FrmOthers::addresses()
{
    m_addresses = new widgets::HeadingGrid;
    m_addresses->setObjectName(u"GridAddress"_s);
    m_addresses->setAccessibleName(tr("Street addresses that are offered"));
    m_addresses->setHeadings(kAddressHeadings, {u"address"_s, u"area"_s, u"city"_s});
    m_addresses->setEmptyText(tr("No address is kept yet."));
    auto* group = new QGroupBox(tr("Street addresses"));
    auto* inside = new QVBoxLayout(group);
    inside->addWidget(m_addresses);
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(6, 12, 6, 12);
    layout->addWidget(group);
    return page;
}

QWidget* FrmOthers::layOutFoot()
{
    auto* help = new QPushButton(tr("&Help"));
    help->setObjectName(u"CmdHelp"_s);
    widgets::setIcon(help, u"help");
    auto* close = new QPushButton(tr("C&lose"));
    close->setObjectName(u"CmdClose"_s);
    widgets::setIcon(close, u"exit");
    auto* foot = new QWidget;
    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    for (QPushButton* button : {help, close}) {
        button->setAutoDefault(false);
        layout->addWidget(button);
    }
    connect(help, &QPushButton::clicked, this, [this, help] { showHelp(u"CON0062"_s, help); });
    connect(close, &QPushButton::clicked, this, &Screen::closeRequested);
    return foot;
}

void FrmOthers::watch(core::SetupPanel* panel)
{
    core::Screens& screens = context().screens;
    connect(panel, &core::SetupPanel::vocabulariesChanged, this,
        [&screens] { screens.tellVocabulariesChanged(); });
    connect(
        panel, &core::SetupPanel::contactsChanged, this, [this, &screens] { screens.tellBookChanged(this); });
}

QSize FrmOthers::sizeHint() const
{
    return kDialogSize;
}

void FrmOthers::load()
{
    setFrameTitle(u"Address Book Setup"_s);
    readTab();
}

// Pages are named as their tabs are in English.
void FrmOthers::openPage(const QString& page)
{
    const QString caption = tr(page.toUtf8().constData());
    for (int tab = 0; tab < sstab1->count(); ++tab) {
        if (sstab1->tabText(tab) == caption)
            sstab1->setCurrentIndex(tab);
    }
}

bool FrmOthers::isTouched() const
{
    return std::ranges::any_of(sstab1->findChildren<core::SetupPanel*>(), &core::SetupPanel::isTouched);
}

// Another screen may have changed a list or a setting.
void FrmOthers::bookChanged()
{
    readTab();
}

void FrmOthers::readTab()
{
    QWidget* page = sstab1->currentWidget();
    // What is typed and not saved stays while other tabs are looked at.
    for (auto* panel : page->findChildren<core::SetupPanel*>()) {
        if (!panel->isTouched())
            panel->refresh();
    }
    if (m_addresses && page->isAncestorOf(m_addresses))
        m_addresses->fill(context().data.openRecordset(u"select * from CNT_ADDRESS"_s));
}

} // namespace setup
