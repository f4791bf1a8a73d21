#include "views/selector/selector_page.h"

#include "views/contact_pages/frmDetailView.h"
#include "views/contact_pages/frmNoteView.h"
#include "views/contact_pages/page_tools.h"
#include "widgets/fields.h"
#include "widgets/theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr QStringView kDetail = u"Detail";

/// A page that is higher than the room below the list's tabs must not make the window grow.
QWidget* scrolled(QWidget* page)
{
    auto* area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(page->minimumSizeHint().width() + area->verticalScrollBar()->sizeHint().width());
    return area;
}

/// The selector has the tools of the contact itself.
void hideTools(QWidget* page)
{
    widgets::child<QToolBar>(page, kPageTools.toString())->hide();
}

} // namespace

SelectorPage::SelectorPage(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_word(kDetail.toString())
    , cmbmulto(new QComboBox)
    , m_choice(new QWidget)
    , m_full(new QToolButton)
    , m_pages(new QStackedWidget)
{
    cmbmulto->setObjectName(u"cmbmulto"_s);
    cmbmulto->addItems(QStringList{kDetail.toString()} + noteViews());
    cmbmulto->setAccessibleName(tr("Page"));
    cmbmulto->setToolTip(tr("What the page shows of a contact"));
    auto* label = new QLabel(tr("Pa&ge"));
    label->setBuddy(cmbmulto);
    auto* choiceLayout = new QHBoxLayout(m_choice);
    choiceLayout->setContentsMargins(0, 0, 0, 0);
    choiceLayout->addWidget(label);
    choiceLayout->addWidget(cmbmulto);
    m_full->setObjectName(u"PageInFull"_s);
    m_full->setAutoRaise(true);
    m_full->setCheckable(true);
    m_full->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    widgets::setIcon(m_full, u"card");
    m_full->setText(tr("In full"));
    m_full->setToolTip(
        tr("Give the page the whole room (double click in the list), or bring back the list (Esc)"));

    auto* nothing = new QLabel(tr("Choose a contact in the list to read it here."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setWordWrap(true);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing = nothing;
    m_pages->addWidget(m_nothing);
    auto* head = new QHBoxLayout;
    head->addWidget(m_choice);
    head->addStretch(1);
    head->addWidget(m_full);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 0, 0, 0);
    layout->setSpacing(6);
    layout->addLayout(head);
    layout->addWidget(m_pages, 1);

    connect(cmbmulto, &QComboBox::currentTextChanged, this, &SelectorPage::openPage);
    connect(m_full, &QToolButton::toggled, this, &SelectorPage::fullWanted);
}

void SelectorPage::openPage(const QString& page)
{
    if (page != u"Search" && cmbmulto->findText(page) < 0)
        return;
    m_word = page;
    const QSignalBlocker quiet(cmbmulto);
    // What a search has found is shown with everything.
    cmbmulto->setCurrentText(page == u"Search" ? u"Full"_s : page);
    showContact(m_id);
    Q_EMIT pageOpened();
}

QString SelectorPage::form() const
{
    return m_word == kDetail ? u"frmDetailView"_s : u"frmNoteView"_s;
}

void SelectorPage::showContact(qint64 id)
{
    m_id = id;
    if (id == 0)
        return m_pages->setCurrentWidget(m_nothing);
    bool found = false;
    if (m_word == kDetail) {
        if (!m_detail) {
            m_detail = new frmDetailView(m_context);
            m_detail->setObjectName(u"frmDetailView"_s);
            connect(m_detail, &frmDetailView::associateShown, this, &SelectorPage::associateShown);
            hideTools(m_detail);
            m_detailPage = scrolled(m_detail);
            m_pages->addWidget(m_detailPage);
        }
        found = m_detail->showContact(id);
    } else {
        if (!m_note) {
            m_note = new frmNoteView(m_context);
            m_note->setObjectName(u"frmNoteView"_s);
            m_note->setViewTabsVisible(false);
            hideTools(m_note);
            connect(m_note, &frmNoteView::associateShown, this, &SelectorPage::associateShown);
            m_pages->addWidget(m_note);
        }
        if (std::exchange(m_noteWord, m_word) != m_word)
            m_note->openPage(m_word);
        found = m_note->showContact(id);
    }
    QWidget* page = m_word == kDetail ? m_detailPage : m_note;
    m_pages->setCurrentWidget(found ? page : m_nothing);
}

void SelectorPage::setChoiceVisible(bool visible)
{
    m_choice->setVisible(visible);
}

void SelectorPage::setInFull(bool inFull)
{
    m_inFull = inFull;
    const QSignalBlocker quiet(m_full);
    m_full->setChecked(inFull);
    m_full->setText(inFull ? tr("Show the list") : tr("In full"));
    widgets::setIcon(m_full, inFull ? u"list" : u"card");
}

void SelectorPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_inFull)
        Q_EMIT fullWanted(false);
    else
        QWidget::keyPressEvent(event);
}

} // namespace views
