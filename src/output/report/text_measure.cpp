#include "output/report/text_measure.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTextLayout>

#include <algorithm>

namespace output {

namespace {

constexpr int kTwipsAPoint = 20;

struct RoleLook {
    double points;
    bool isBold;
};
constexpr RoleLook kLooks[] = {{9, false}, {10.5, true}, {7, false}, {8, false}, {13, true}, {17, true}};

} // namespace

TextMeasure::TextMeasure(double scale)
{
    for (std::size_t role = 0; role < m_faces.size(); ++role) {
        Face& face = m_faces[role];
        face.font = QGuiApplication::font();
        face.font.setPixelSize(qRound(kLooks[role].points * kTwipsAPoint * scale));
        face.font.setBold(kLooks[role].isBold);
        face.font.setHintingPreference(QFont::PreferNoHinting);
        const QFontMetricsF metrics(face.font);
        face.lineHeight = metrics.lineSpacing();
        face.ascent = metrics.ascent();
        for (int letter = 0x20; letter < kKnown; ++letter)
            face.advances[static_cast<std::size_t>(letter)]
                = static_cast<float>(metrics.horizontalAdvance(QChar(letter)));
    }
}

double TextMeasure::width(const QString& text, TextRole role) const
{
    return QFontMetricsF(face(role).font).horizontalAdvance(text);
}

QFont TextMeasure::styled(TextRole role, const formats::CharStyle& style) const
{
    QFont font = face(role).font;
    if (!style.family.isEmpty())
        font.setFamily(style.family);
    if (style.points > 0)
        font.setPixelSize(std::max(1, qRound(style.points * kTwipsAPoint)));
    font.setBold(font.bold() || style.isBold);
    font.setItalic(style.isItalic);
    font.setUnderline(style.isUnderlined);
    font.setStrikeOut(style.isStruckOut);
    return font;
}

// Most texts are short, and shaping each of ten thousand contacts twice is what takes the time: the sum of
// the letters is enough, as long as it leaves room for what pairs of letters move.
bool TextMeasure::surelyFits(QStringView text, const Face& face, double width)
{
    const double room = width * 0.96;
    double sum = 0;
    for (const QChar letter : text) {
        if (letter.unicode() >= kKnown)
            return false;
        sum += static_cast<double>(face.advances[letter.unicode()]);
        if (sum > room)
            return false;
    }
    return true;
}

void TextMeasure::wrapParagraph(const QString& text, const Face& face, double width, QStringList& lines)
{
    if (surelyFits(text, face, width)) {
        lines << text;
        return;
    }
    QTextLayout layout(text, face.font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        // Blanks in front indent a text; those where it was broken are in nobody's way.
        QString part = text.mid(line.textStart(), line.textLength());
        while (part.endsWith(u' '))
            part.chop(1);
        lines << part;
    }
    layout.endLayout();
}

QStringList TextMeasure::wrap(const QString& text, TextRole role, double width) const
{
    QStringList lines;
    if (text.isEmpty())
        return lines;
    qsizetype from = 0;
    for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', from)) {
        wrapParagraph(text.mid(from, end - from), face(role), width, lines);
        from = end + 1;
    }
    wrapParagraph(from == 0 ? text : text.mid(from), face(role), width, lines);
    return lines;
}

} // namespace output
