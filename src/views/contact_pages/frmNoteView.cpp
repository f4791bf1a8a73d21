#include "views/contact_pages/frmNoteView.h"

#include "core/contact_lookups.h"
#include "core/photo_file.h"
#include "core/settings.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "views/contact_pages/contact_page.h"
#include "views/contact_pages/page_tools.h"
#include "views/full_view/full_view_sql.h"
#include "widgets/picture_box.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kPictureSize = 64;
constexpr QStringView kSearch = u"Search";

} // namespace

frmNoteView::frmNoteView(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_views(new QTabBar)
    , m_picture(new widgets::PictureBox)
    , lblname(new QLabel)
    , m_line(new QLabel)
    , lblCaption(new QLabel)
    , m_page(new ContactPage(context))
    , m_stack(new QStackedWidget)
{
    setWindowTitle(tr("Note view"));
    m_views->setObjectName(u"NoteViews"_s);
    m_views->setAccessibleName(tr("View"));
    m_views->setDrawBase(false);
    m_views->setExpanding(false);
    for (const char* caption :
        {QT_TR_NOOP("&Brief"), QT_TR_NOOP("&Personal"), QT_TR_NOOP("B&usiness"), QT_TR_NOOP("&Full")})
        m_views->addTab(tr(caption));
    m_page->setObjectName(u"NotePage"_s);

    auto* record = new QWidget;
    auto* recordLayout = new QVBoxLayout(record);
    recordLayout->setContentsMargins(0, 0, 0, 0);
    recordLayout->setSpacing(8);
    recordLayout->addWidget(layOutHead());
    recordLayout->addWidget(m_page, 1);
    auto* nothing = new QLabel(tr("No contact is chosen."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setForegroundRole(QPalette::PlaceholderText);
    m_stack->addWidget(nothing);
    m_stack->addWidget(record);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_views);
    layout->addWidget(m_stack, 1);
    setFocusProxy(m_page);

    connect(m_views, &QTabBar::currentChanged, this, [this](int tab) { openPage(noteViews().value(tab)); });
    connect(m_page, &ContactPage::contactChosen, this, &frmNoteView::goToContact);
}

QWidget* frmNoteView::layOutHead()
{
    m_picture->setObjectName(u"Photo"_s);
    m_picture->setAccessibleName(tr("Picture"));
    m_picture->setFixedSize(kPictureSize, kPictureSize);
    m_picture->setFocusPolicy(Qt::NoFocus);
    lblname->setObjectName(u"lblname"_s);
    lblname->setStyleSheet(u"font-size: 17pt; font-weight: 600;"_s);
    lblCaption->setObjectName(u"lblCaption"_s);
    lblCaption->setForegroundRole(QPalette::PlaceholderText);
    for (QLabel* label : {lblname, m_line}) {
        label->setTextFormat(Qt::PlainText);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    auto* names = new QVBoxLayout;
    names->setSpacing(2);
    names->addStretch(1);
    names->addWidget(lblname);
    names->addWidget(m_line);
    names->addStretch(1);
    auto* head = new QWidget;
    auto* layout = new QHBoxLayout(head);
    layout->setContentsMargins(6, 4, 6, 0);
    layout->setSpacing(12);
    layout->addWidget(m_picture);
    layout->addLayout(names, 1);
    layout->addWidget(lblCaption, 0, Qt::AlignTop);
    layout->addWidget(makePageTools(context(), this, [this] { return m_id; }), 0, Qt::AlignTop);
    return head;
}

bool frmNoteView::showContact(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(id));
    if (!contact.hasRow())
        return false;
    m_id = id;
    const NoteHead head = noteHead(contact);
    lblname->setText(head.name);
    m_line->setText(head.line);
    m_line->setVisible(!head.line.isEmpty());
    m_picture->setPath(core::photoFile(context().services.drive, head.picture));
    m_picture->setVisible(!head.picture.trimmed().isEmpty());
    m_stack->setCurrentIndex(1);
    m_page->showContact(id, head.name,
        noteSections(contact, m_view,
            {shared().NationalMode, context().services.clock.today(),
                core::userFieldLabels(core::readSettings(context().data))}));
    return true;
}

void frmNoteView::openPage(const QString& page)
{
    const auto view = noteViewOf(page);
    if (!view && page != kSearch)
        return;
    m_view = view.value_or(NoteView::Full);
    const QSignalBlocker quiet(m_views);
    m_views->setCurrentIndex(static_cast<int>(m_view));
    lblCaption->setText(view ? QString() : tr("Search"));
    readAgain();
}

void frmNoteView::setViewTabsVisible(bool visible)
{
    m_views->setVisible(visible);
}

void frmNoteView::readAgain()
{
    if (m_id != 0 && !showContact(m_id)) {
        m_id = 0;
        m_stack->setCurrentIndex(0);
    }
}

void frmNoteView::goToContact(const QString& name)
{
    const jet::Recordset contact = context().data.openRecordset(associateSql(name));
    if (contact.hasRow() && showContact(contact.number(u"id")))
        Q_EMIT associateShown(contact.number(u"id"));
}

} // namespace views
