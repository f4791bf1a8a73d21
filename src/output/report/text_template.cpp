#include "output/report/text_template.h"

using namespace Qt::StringLiterals;

namespace output {

TextTemplate::TextTemplate(const QString& text, const ReportSource& source)
{
    for (const QString& line : text.split(u'\n')) {
        Line parsed;
        qsizetype from = 0;
        for (qsizetype open = line.indexOf(u'{'); open >= 0; open = line.indexOf(u'{', from)) {
            const qsizetype close = line.indexOf(u'}', open);
            if (close < 0)
                break;
            const QString name = line.mid(open + 1, close - open - 1);
            const bool isColumn = !name.startsWith(u'#');
            parsed.pieces.push_back({line.mid(from, open - from), isColumn ? source.field(name) : -1,
                isColumn ? QString() : name});
            from = close + 1;
            m_hasFields = true;
        }
        parsed.end = line.mid(from);
        m_lines.push_back(parsed);
    }
}

int TextTemplate::onlyField() const
{
    if (m_lines.size() != 1 || m_lines.front().pieces.size() != 1)
        return -1;
    const Piece& piece = m_lines.front().pieces.front();
    return piece.before.isEmpty() && m_lines.front().end.isEmpty() ? piece.field : -1;
}

QString TextTemplate::fill(const ReportSource& source, int row, const NamedTexts& names) const
{
    QString filled;
    for (const Line& line : m_lines) {
        const QString text = fillLine(line, source, row, names);
        if (text.isEmpty() && m_hasFields)
            continue;
        if (!filled.isEmpty())
            filled += u'\n';
        filled += text;
    }
    return filled;
}

QString TextTemplate::fillLine(
    const Line& line, const ReportSource& source, int row, const NamedTexts& names) const
{
    if (line.pieces.empty())
        return m_hasFields ? QString() : line.end;
    QString filled;
    bool hasValue = false;
    for (const Piece& piece : line.pieces) {
        QString value = !piece.name.isEmpty() ? names.value(piece.name)
            : piece.field >= 0                ? source.text(row, piece.field)
                                              : QString();
        value.remove(u'\r');
        if (value.trimmed().isEmpty())
            continue;
        // The first value has what begins the line in front of it, whichever it is.
        filled += hasValue ? piece.before : line.pieces.front().before;
        filled += value;
        hasValue = true;
    }
    return hasValue ? filled + line.end : QString();
}

} // namespace output
