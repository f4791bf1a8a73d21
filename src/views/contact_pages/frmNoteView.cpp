#include "views/contact_pages/frmNoteView.h"

#include "core/photo_file.h"
#include "core/screens.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/shell.h"
#include "views/full_view/full_view_sql.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kPictureSize = 64;
constexpr int kWidthOfTwoColumns = 700;
constexpr qsizetype kMostLetters = 64 * 1024;
constexpr QStringView kMore = u"more";
constexpr QStringView kDialer = u"FrmDialer";
constexpr QStringView kSearch = u"Search";

qsizetype heightOf(const NoteSection& section)
{
    qsizetype lines = 2;
    for (const NoteLine& line : section.lines)
        lines += line.texts.size();
    return lines;
}

} // namespace

frmNoteView::frmNoteView(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_views(new QTabBar)
    , m_picture(new widgets::PictureBox)
    , lblname(new QLabel)
    , m_line(new QLabel)
    , lblCaption(new QLabel)
    , m_page(new QTextBrowser)
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
    m_page->setAccessibleName(tr("The contact"));
    m_page->setOpenLinks(false);
    m_page->setFrameShape(QFrame::NoFrame);
    m_page->document()->setDocumentMargin(14);

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
    connect(m_page, &QTextBrowser::anchorClicked, this, &frmNoteView::follow);
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
    return head;
}

bool frmNoteView::showContact(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(contactByIdSql(id));
    if (!contact.hasRow())
        return false;
    if (m_id != id)
        m_letters = kMostLetters;
    m_id = id;
    m_sections = noteSections(contact, m_view, shared().NationalMode, context().services.clock.today());
    const NoteHead head = noteHead(contact);
    lblname->setText(head.name);
    m_line->setText(head.line);
    m_line->setVisible(!head.line.isEmpty());
    m_picture->setPath(core::photoFile(context().services.drive, head.picture));
    m_picture->setVisible(!head.picture.trimmed().isEmpty());
    m_stack->setCurrentIndex(1);
    render();
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

void frmNoteView::resizeEvent(QResizeEvent* event)
{
    Screen::resizeEvent(event);
    if (m_wide != (m_page->viewport()->width() >= kWidthOfTwoColumns))
        render();
}

// The colours of the page are those of the look in which it was written.
void frmNoteView::changeEvent(QEvent* event)
{
    Screen::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        render();
}

void frmNoteView::render()
{
    m_links.clear();
    m_wide = m_page->viewport()->width() >= kWidthOfTwoColumns;
    qsizetype all = 0;
    for (const NoteSection& section : std::as_const(m_sections))
        all += heightOf(section);
    QString columns[2];
    qsizetype used = 0;
    for (const NoteSection& section : std::as_const(m_sections)) {
        const bool right = m_wide && 2 * used >= all;
        QString& column = columns[right ? 1 : 0];
        column += sectionHtml(section, column.isEmpty());
        used += heightOf(section);
    }
    QString html = columns[0];
    if (m_wide)
        html = u"<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\"><tr>"
               u"<td width=\"50%\">%1</td><td width=\"24\"></td><td width=\"50%\">%2</td></tr></table>"_s.arg(
                   columns[0], columns[1]);
    if (m_sections.isEmpty())
        html = u"<p style=\"color:%1\">%2</p>"_s.arg(
            widgets::quietTextColor().name(), tr("There is nothing to read in this view.").toHtmlEscaped());
    m_page->setHtml(html);
}

QString frmNoteView::sectionHtml(const NoteSection& section, bool isFirst)
{
    const QString quiet = widgets::quietTextColor().name();
    QString html
        = u"<p style=\"margin-top:%1px; margin-bottom:4px; color:%2; font-weight:600\">%3</p><table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">"_s
              .arg(isFirst ? u"0"_s : u"18"_s, palette().color(QPalette::Link).name(),
                  section.title.toHtmlEscaped());
    for (const NoteLine& line : section.lines) {
        QStringList texts;
        for (const NoteText& text : line.texts)
            texts << textOf(text);
        html
            += u"<tr><td width=\"110\" style=\"color:%1; padding:3px 8px 3px 0\">%2</td><td style=\"padding:3px 0\">%3</td></tr>"_s
                   .arg(quiet, line.label.toHtmlEscaped(), texts.join(u"<br>"_s));
    }
    return html + u"</table>"_s;
}

// A link is a number into the list of links, so no stored text becomes an address here. A number is a link
// when there is a screen to call it.
QString frmNoteView::textOf(const NoteText& text)
{
    const QString part = text.text.left(m_letters);
    const QString shown = part.toHtmlEscaped().replace(u"\r\n"_s, u"<br>"_s).replace(u"\n"_s, u"<br>"_s);
    QString rest;
    if (part.size() < text.text.size())
        rest = u"\u2026 <a href=\"#%1\">%2</a>"_s.arg(kMore, tr("more"));
    if (text.link == NoteLink::None || (text.link == NoteLink::Phone && !context().screens.has(kDialer)))
        return shown + rest;
    m_links << text;
    return u"<a style=\"text-decoration:none\" href=\"#%1\">%2</a>"_s.arg(
               QString::number(m_links.size() - 1), shown)
        + rest;
}

void frmNoteView::follow(const QUrl& link)
{
    if (link.fragment() == kMore) {
        m_letters += kMostLetters;
        const int place = m_page->verticalScrollBar()->value();
        render();
        m_page->verticalScrollBar()->setValue(place);
        return;
    }
    const NoteText text = m_links.value(link.fragment().toInt());
    switch (text.link) {
    case NoteLink::None: break;
    case NoteLink::Mail: context().services.shell.openAddress(u"mailto:"_s + text.target); break;
    case NoteLink::Web: context().services.shell.openAddress(text.target); break;
    case NoteLink::Phone:
        shared().selectedContactId = m_id;
        shared().selectedContactName = lblname->text();
        if (auto* dialer = context().screens.load<core::ContactScreen>(kDialer))
            dialer->showContact(m_id);
        context().screens.show(kDialer);
        break;
    case NoteLink::Contact: goToContact(text.target); break;
    }
}

void frmNoteView::goToContact(const QString& name)
{
    const jet::Recordset contact = context().data.openRecordset(associateSql(name));
    if (contact.hasRow() && showContact(contact.number(u"id")))
        Q_EMIT associateShown(contact.number(u"id"));
}

} // namespace views
