#include "views/contact_pages/contact_page.h"

#include "core/handover/contact_screen.h"
#include "core/screens.h"
#include "platform/shell.h"
#include "widgets/theme.h"

#include <QEvent>
#include <QScrollBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr int kWidthOfTwoColumns = 700;
constexpr qsizetype kMostLetters = 64 * 1024;
constexpr QStringView kMore = u"more";
constexpr QStringView kDialer = u"FrmDialer";

qsizetype heightOf(const NoteSection& section)
{
    qsizetype lines = 2;
    for (const NoteLine& line : section.lines)
        lines += line.texts.size();
    return lines;
}

/// The digits of a number as it was typed, with the sign of a country code.
QString dialled(const QString& number)
{
    QString digits;
    for (const QChar letter : number) {
        if (letter.isDigit() || (letter == u'+' && digits.isEmpty()))
            digits += letter;
    }
    return digits;
}

} // namespace

ContactPage::ContactPage(core::Context& context, QWidget* parent)
    : QTextBrowser(parent)
    , m_context(context)
{
    setAccessibleName(tr("The contact"));
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(14);
    connect(this, &QTextBrowser::anchorClicked, this, &ContactPage::followLink);
}

void ContactPage::showContact(qint64 id, const QString& name, const QList<NoteSection>& sections)
{
    if (m_id != id)
        m_letters = kMostLetters;
    m_id = id;
    m_name = name;
    m_sections = sections;
    render();
}

void ContactPage::resizeEvent(QResizeEvent* event)
{
    QTextBrowser::resizeEvent(event);
    if (m_wide != (viewport()->width() >= kWidthOfTwoColumns))
        render();
}

// The colours of the page are those of the look in which it was written.
void ContactPage::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        render();
}

void ContactPage::render()
{
    m_wide = viewport()->width() >= kWidthOfTwoColumns;
    setHtml(html(m_wide));
    // A long word, such as an e-mail address, is never broken.
    if (m_wide && document()->size().width() > viewport()->width())
        setHtml(html(false));
}

QString ContactPage::html(bool inTwoColumns)
{
    m_links.clear();
    qsizetype all = 0;
    for (const NoteSection& section : std::as_const(m_sections))
        all += heightOf(section);
    QString columns[2];
    qsizetype used = 0;
    for (const NoteSection& section : std::as_const(m_sections)) {
        const bool right = inTwoColumns && 2 * used >= all;
        QString& column = columns[right ? 1 : 0];
        column += sectionHtml(section, column.isEmpty());
        used += heightOf(section);
    }
    if (m_sections.isEmpty())
        return u"<p style=\"color:%1\">%2</p>"_s.arg(
            widgets::quietTextColor().name(), tr("There is nothing to read in this view.").toHtmlEscaped());
    if (!inTwoColumns)
        return columns[0];
    return u"<table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\"><tr>"
           u"<td width=\"50%\">%1</td><td width=\"24\"></td><td width=\"50%\">%2</td></tr></table>"_s.arg(
               columns[0], columns[1]);
}

QString ContactPage::sectionHtml(const NoteSection& section, bool isFirst)
{
    const QString quiet = widgets::quietTextColor().name();
    QString html
        = u"<p style=\"margin-top:%1px; margin-bottom:4px; color:%2; font-weight:600\">%3</p><table width=\"100%\" cellspacing=\"0\" cellpadding=\"0\">"_s
              .arg(isFirst ? u"0"_s : u"18"_s, palette().color(QPalette::Link).name(),
                  section.title.toHtmlEscaped());
    for (const NoteLine& line : section.lines) {
        QStringList texts;
        for (const NoteText& text : line.texts)
            texts << htmlOf(text);
        html
            += u"<tr><td width=\"110\" style=\"color:%1; padding:3px 8px 3px 0\">%2</td><td style=\"padding:3px 0\">%3</td></tr>"_s
                   .arg(quiet, line.label.toHtmlEscaped(), texts.join(u"<br>"_s));
    }
    return html + u"</table>"_s;
}

// A link is a number into the list of links, so no stored text becomes an address here.
QString ContactPage::htmlOf(const NoteText& text)
{
    const QString part = text.text.left(m_letters);
    const QString shown = part.toHtmlEscaped().replace(u"\r\n"_s, u"<br>"_s).replace(u"\n"_s, u"<br>"_s);
    QString rest;
    if (part.size() < text.text.size())
        rest = u"\u2026 <a href=\"#%1\">%2</a>"_s.arg(kMore, tr("more"));
    if (text.link == NoteLink::None)
        return shown + rest;
    m_links << text;
    return u"<a style=\"text-decoration:none\" href=\"#%1\">%2</a>"_s.arg(
               QString::number(m_links.size() - 1), shown)
        + rest;
}

void ContactPage::followLink(const QUrl& link)
{
    if (link.fragment() != kMore)
        return follow(m_links.value(link.fragment().toInt()));
    m_letters += kMostLetters;
    const int place = verticalScrollBar()->value();
    render();
    verticalScrollBar()->setValue(place);
}

void ContactPage::follow(const NoteText& text)
{
    switch (text.link) {
    case NoteLink::None: break;
    case NoteLink::Mail: m_context.services.shell.openAddress(u"mailto:"_s + text.target); break;
    case NoteLink::Web: m_context.services.shell.openAddress(text.target); break;
    case NoteLink::Phone: call(text.target); break;
    case NoteLink::Contact: Q_EMIT contactChosen(text.target); break;
    }
}

// Without a dialer of the program's own, the desktop calls.
void ContactPage::call(const QString& number)
{
    if (!m_context.screens.has(kDialer)) {
        m_context.services.shell.openAddress(u"tel:"_s + dialled(number));
        return;
    }
    m_context.shared.selectedContactId = m_id;
    m_context.shared.selectedContactName = m_name;
    if (auto* dialer = m_context.screens.load<core::ContactScreen>(kDialer))
        dialer->showContact(m_id);
    m_context.screens.show(kDialer);
}

} // namespace views
