#include "letters/ltr_setup/FormLtrSetUp.h"

#include "core/screens.h"
#include "letters/ltr_setup/entry_panel.h"
#include "letters/ltr_setup/journal_panel.h"
#include "letters/ltr_setup/lines_panel.h"
#include "letters/ltr_setup/list_choice.h"
#include "letters/ltr_setup/mail_fields_panel.h"
#include "widgets/narrow_bars.h"
#include "widgets/theme.h"
#include "widgets/wrapping_row.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr int kWidestList = 460;
constexpr QSize kDialogSize{1040, 660};
constexpr auto kHelpCode = "helpCode"; ///< of a page
constexpr auto kPage = "setUpPage"; ///< of a panel: the name by which other screens open it
constexpr QStringView kGeneralHelp = u"CON0012";

QWidget* narrow(QWidget* panel)
{
    panel->setMaximumWidth(kWidestList);
    return panel;
}

QWidget* named(QWidget* panel, const char* page)
{
    panel->setProperty(kPage, QString::fromLatin1(page));
    return panel;
}

} // namespace

FormLtrSetUp::FormLtrSetUp(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , SSTab1(new QTabWidget)
{
    setWindowTitle(tr("Letter Setup"));
    SSTab1->setObjectName(u"SSTab1"_s);
    SSTab1->setAccessibleName(tr("Subjects"));
    widgets::letIconsGiveWay(SSTab1);
    addTab([this] { return listsOf(ListTab::Openings); }, tr("Openings"), u"letter", u"CON009"_s);
    addTab([this] { return listsOf(ListTab::LetterTexts); }, tr("Letter texts"), u"note", u"CON0010"_s);
    addTab([this] { return listsOf(ListTab::MailTexts); }, tr("E-mail texts"), u"envelope", u"CON0010"_s);
    addTab(
        [this] {
            return listsOf(ListTab::Categories) << named(new JournalPanel(this->context()), "Journal");
        },
        tr("Categories"), u"category", u"CON0011"_s);
    addTab([this] { return listsOf(ListTab::Phrases); }, tr("Phrases"), u"list", u"CON0015"_s);
    addTab(
        [this] {
            return listsOf(ListTab::Mail) << named(new SignaturePanel(this->context()), "Signature")
                                          << named(new MailFieldsPanel(this->context()), "Fields");
        },
        tr("E-mail"), u"edit", u"CON0014"_s);
    addTab([this] { return QList<QWidget*>{named(mailDatabase(), "Email lists")}; }, tr("E-mail database"),
        u"drive", u"CON0016"_s);
    addTab(
        [this] {
            return QList<QWidget*>{named(narrow(new UserFieldsPanel(this->context())), "User fields")};
        },
        tr("User fields"), u"star", kGeneralHelp.toString());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(8);
    layout->addWidget(SSTab1, 1);
    layout->addWidget(layOutFoot());
    setFocusProxy(SSTab1);
    connect(SSTab1, &QTabWidget::currentChanged, this, &FormLtrSetUp::readTab);
}

// On a small screen a page scrolls, rather than the window growing out of it.
void FormLtrSetUp::addTab(Panels panels, const QString& caption, QStringView icon, const QString& helpCode)
{
    auto* scroller = new QScrollArea;
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setProperty(kHelpCode, helpCode);
    SSTab1->addTab(scroller, widgets::icon(icon), caption);
    m_panels << std::move(panels);
}

// The panels of a tab are made when it is looked at first.
QWidget* FormLtrSetUp::pageOf(int tab)
{
    auto* scroller = static_cast<QScrollArea*>(SSTab1->widget(tab));
    if (scroller->widget())
        return scroller->widget();
    auto* page = new QWidget;
    auto* row = new widgets::WrappingRow(page);
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(0);
    core::Screens& screens = context().screens;
    const QList<QWidget*> panels = m_panels.at(tab)();
    for (QWidget* each : panels) {
        if (each->maximumWidth() == QWIDGETSIZE_MAX && panels.size() > 1)
            each->setMaximumWidth(2 * kWidestList);
        // Messages are sentences, the other lists have words.
        row->add(each, each->property(kPage).toString() == u"Messages" ? 3 : 1);
        connect(static_cast<core::SetupPanel*>(each), &core::SetupPanel::vocabulariesChanged, this,
            [&screens] { screens.tellVocabulariesChanged(); });
    }
    scroller->setWidget(page);
    return page;
}

QList<QWidget*> FormLtrSetUp::listsOf(ListTab tab)
{
    QList<QWidget*> panels;
    for (const StoredList& list : storedLists()) {
        if (list.tab != tab)
            continue;
        auto* panel = new EntryPanel(context(), list);
        panel->setProperty(kPage, list.page.toString());
        if (!hasSeveralFields(list))
            panel->setMaximumWidth(kWidestList);
        panels << panel;
    }
    return panels;
}

QWidget* FormLtrSetUp::mailDatabase()
{
    QList<const StoredList*> lists;
    for (const StoredList& list : storedLists()) {
        if (list.tab == ListTab::MailDatabase)
            lists << &list;
    }
    return new ListChoice(context(), lists);
}

QWidget* FormLtrSetUp::layOutFoot()
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
    connect(help, &QPushButton::clicked, this,
        [this, help] { showHelp(SSTab1->currentWidget()->property(kHelpCode).toString(), help); });
    connect(close, &QPushButton::clicked, this, &Screen::closeRequested);
    return foot;
}

QSize FormLtrSetUp::sizeHint() const
{
    return kDialogSize;
}

void FormLtrSetUp::load()
{
    setFrameTitle(tr("Letter Setup"));
    setPosition(tr("Letter Setup"));
    readTab();
}

void FormLtrSetUp::openPage(const QString& page)
{
    for (int tab = 0; tab < SSTab1->count(); ++tab) {
        for (auto* panel : pageOf(tab)->findChildren<core::SetupPanel*>()) {
            if (panel->property(kPage).toString().compare(page, Qt::CaseInsensitive) != 0)
                continue;
            SSTab1->setCurrentIndex(tab);
            auto* scroller = static_cast<QScrollArea*>(SSTab1->widget(tab));
            // Where it is, the layout of the page has still to say.
            QTimer::singleShot(0, panel, [scroller, panel] { scroller->ensureWidgetVisible(panel); });
            return;
        }
    }
}

bool FormLtrSetUp::isTouched() const
{
    return std::ranges::any_of(SSTab1->findChildren<core::SetupPanel*>(), &core::SetupPanel::isTouched);
}

// Another screen may have changed a list.
void FormLtrSetUp::bookChanged()
{
    readTab();
}

// What is typed and not saved stays while other tabs are looked at.
void FormLtrSetUp::readTab()
{
    const QWidget* page = pageOf(SSTab1->currentIndex());
    for (auto* panel : page->findChildren<core::SetupPanel*>(Qt::FindDirectChildrenOnly)) {
        if (!panel->isTouched())
            panel->refresh();
    }
}

} // namespace letters
