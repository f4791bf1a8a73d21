#include "editor/text_document.h"

#include "formats/rtf_reader.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QTextList>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;
using formats::CharStyle;
using formats::RichText;
using formats::TextParagraph;
using formats::TextRun;

namespace editor {

namespace {

constexpr qsizetype kLongestHtml = 2 * 1024 * 1024;
constexpr qsizetype kDeepestHtml = 200; ///< elements within one another
constexpr double kPointsOfPixel = 0.75;
constexpr Qt::Alignment kAligns[] = {Qt::AlignLeft | Qt::AlignAbsolute, Qt::AlignHCenter,
    Qt::AlignRight | Qt::AlignAbsolute, Qt::AlignJustify};

/// Parts that a text names are left where they are: on this computer, or on others.
class ClosedDocument final : public QTextDocument {
protected:
    QVariant loadResource(int, const QUrl&) override { return {}; }
};

QTextCharFormat formatOf(const CharStyle& style)
{
    QTextCharFormat format;
    if (style.isBold)
        format.setFontWeight(QFont::Bold);
    if (style.isItalic)
        format.setFontItalic(true);
    if (style.isUnderlined)
        format.setFontUnderline(true);
    if (style.isStruckOut)
        format.setFontStrikeOut(true);
    if (!style.family.isEmpty())
        format.setFontFamilies({style.family});
    if (style.points > 0)
        format.setFontPointSize(style.points);
    if (style.color != 0)
        format.setForeground(QColor::fromRgba(style.color));
    return format;
}

CharStyle styleOf(const QTextCharFormat& format)
{
    CharStyle style;
    style.isBold = format.fontWeight() >= QFont::DemiBold;
    style.isItalic = format.fontItalic();
    style.isUnderlined = format.fontUnderline();
    style.isStruckOut = format.fontStrikeOut();
    style.family = format.fontFamilies().toStringList().value(0);
    if (format.hasProperty(QTextFormat::FontPointSize))
        style.points = format.fontPointSize();
    else if (format.hasProperty(QTextFormat::FontPixelSize))
        style.points = format.property(QTextFormat::FontPixelSize).toInt() * kPointsOfPixel;
    if (format.hasProperty(QTextFormat::ForegroundBrush))
        style.color = format.foreground().color().rgba();
    return style;
}

/// A line end within a paragraph, as the document has it.
QString withLineSeparators(QString text)
{
    return text.remove(u'\r')
        .replace(u'\n', QChar::LineSeparator)
        .replace(QChar::ParagraphSeparator, QChar::LineSeparator);
}

TextParagraph::Align alignOf(const QTextBlockFormat& format)
{
    const Qt::Alignment align = format.alignment();
    if (align & Qt::AlignHCenter)
        return TextParagraph::Align::Center;
    if (align & Qt::AlignJustify)
        return TextParagraph::Align::Justified;
    return align & Qt::AlignRight ? TextParagraph::Align::Right : TextParagraph::Align::Left;
}

bool isNumbered(const QTextList* list)
{
    const auto style = list->format().style();
    return style <= QTextListFormat::ListDecimal && style >= QTextListFormat::ListUpperRoman;
}

TextParagraph paragraphOf(const QTextBlock& block)
{
    TextParagraph paragraph;
    paragraph.align = alignOf(block.blockFormat());
    paragraph.indent = std::max(0, block.blockFormat().indent());
    if (const QTextList* list = block.textList()) {
        paragraph.list = isNumbered(list) ? TextParagraph::List::Numbers : TextParagraph::List::Bullets;
        paragraph.indent += std::max(0, list->format().indent() - 1);
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        QString text = it.fragment().text();
        text.remove(QChar::ObjectReplacementCharacter);
        text.replace(QChar::LineSeparator, u'\n');
        if (text.isEmpty())
            continue;
        const CharStyle style = styleOf(it.fragment().charFormat());
        if (!paragraph.runs.isEmpty() && paragraph.runs.constLast().style == style)
            paragraph.runs.last().text += text;
        else
            paragraph.runs << TextRun{text, style};
    }
    return paragraph;
}

/// Puts paragraphs in at a cursor. Items of one list that lie alike belong together, also around items that
/// lie deeper.
class Filler {
public:
    explicit Filler(QTextCursor& cursor)
        : m_cursor(cursor)
    {
    }

    void startParagraph(const TextParagraph& paragraph)
    {
        const bool isListed = paragraph.list != TextParagraph::List::None;
        QTextBlockFormat format;
        if (paragraph.align != TextParagraph::Align::Left)
            format.setAlignment(kAligns[int(paragraph.align)]);
        if (!isListed && paragraph.indent > 0)
            format.setIndent(paragraph.indent);
        m_cursor.setBlockFormat(format);
        m_cursor.setBlockCharFormat({});
        m_lists.erase(m_lists.upper_bound(isListed ? paragraph.indent : -1), m_lists.end());
        if (!isListed)
            return;
        auto& [kind, list] = m_lists[paragraph.indent];
        if (list && kind == paragraph.list) {
            list->add(m_cursor.block());
            return;
        }
        QTextListFormat listFormat;
        listFormat.setStyle(paragraph.list == TextParagraph::List::Numbers ? QTextListFormat::ListDecimal
                                                                           : QTextListFormat::ListDisc);
        listFormat.setIndent(paragraph.indent + 1);
        kind = paragraph.list;
        list = m_cursor.createList(listFormat);
    }

    void putRuns(const TextParagraph& paragraph)
    {
        for (const TextRun& run : paragraph.runs)
            m_cursor.insertText(withLineSeparators(run.text), formatOf(run.style));
    }

private:
    QTextCursor& m_cursor;
    std::map<int, std::pair<TextParagraph::List, QTextList*>> m_lists;
};

void putParagraphs(QTextCursor& cursor, const RichText& text)
{
    Filler filler(cursor);
    for (qsizetype i = 0; i < text.paragraphs.size(); ++i) {
        const TextParagraph& paragraph = text.paragraphs[i];
        if (i > 0)
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        // What is put into the middle of a paragraph takes its form.
        const bool isInside = i == 0 && (text.paragraphs.size() == 1 || !cursor.atBlockStart())
            && cursor.block().length() > 1;
        if (!isInside)
            filler.startParagraph(paragraph);
        filler.putRuns(paragraph);
    }
}

bool isTooLargeForLooks(const QString& html)
{
    if (html.size() > kLongestHtml)
        return true;
    qsizetype depth = 0;
    qsizetype deepest = 0;
    for (qsizetype at = html.indexOf(u'<'); at >= 0 && at + 1 < html.size();
         at = html.indexOf(u'<', at + 1)) {
        if (html[at + 1] == u'/')
            --depth;
        else if (html[at + 1].isLetter())
            deepest = std::max(deepest, ++depth);
    }
    // Elements without an end, such as those of pictures, count as if they held what follows.
    return deepest > kDeepestHtml + std::max<qsizetype>(0, depth);
}

} // namespace

void fillDocument(QTextDocument& document, const RichText& text)
{
    const bool undo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    if (!text.isFormatted()) {
        QStringList paragraphs;
        for (const TextParagraph& paragraph : text.paragraphs)
            paragraphs << withLineSeparators(paragraph.plain());
        document.setPlainText(paragraphs.join(u'\n'));
    } else {
        document.clear();
        QTextCursor cursor(&document);
        cursor.beginEditBlock();
        putParagraphs(cursor, text);
        cursor.endEditBlock();
    }
    document.setUndoRedoEnabled(undo);
}

RichText textOf(const QTextDocument& document)
{
    RichText text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        text.paragraphs << paragraphOf(block);
    return text;
}

RichText selectedText(const QTextCursor& selection)
{
    ClosedDocument document;
    QTextCursor(&document).insertFragment(selection.selection());
    return textOf(document);
}

void insertRichText(QTextCursor cursor, const RichText& text)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QTextCharFormat around = cursor.charFormat();
    putParagraphs(cursor, text);
    // What is typed next looks as it would have without the text.
    cursor.setCharFormat(around);
    cursor.endEditBlock();
}

RichText textOf(const QMimeData& data)
{
    for (const QString& type : {u"text/rtf"_s, u"application/rtf"_s, u"text/richtext"_s}) {
        if (!data.hasFormat(type))
            continue;
        if (const auto text = formats::readRtf(data.data(type)))
            return *text;
    }
    if (data.hasHtml() && !isTooLargeForLooks(data.html())) {
        ClosedDocument document;
        document.setHtml(data.html());
        RichText text = textOf(document);
        if (!text.isEmpty())
            return text;
    }
    return RichText::fromPlain(data.text().remove(u'\r'));
}

} // namespace editor
