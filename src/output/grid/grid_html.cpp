#include "output/grid/grid_html.h"

#include "platform/cp1252.h"
#include "platform/storage.h"

#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr int kRowsAStep = 50;
// Kept: readers of these pages find out by the name of the component what wrote them.
constexpr auto kComponent = "Orvane HeadingGrid";

/// By the code of the alignment, below the general one.
constexpr const char* kAlignments[] = {
    " VALIGN=TOP",
    "",
    " VALIGN=BOTTOM",
    " ALIGN=CENTER VALIGN=TOP",
    " ALIGN=CENTER",
    " ALIGN=CENTER VALIGN=BOTTOM",
    " ALIGN=RIGHT VALIGN=TOP",
    " ALIGN=RIGHT",
    " ALIGN=RIGHT VALIGN=BOTTOM",
};

/// The bytes of the code page, and the number of each character that it lacks.
QByteArray pageBytes(QStringView text)
{
    if (platform::isInCp1252(text))
        return platform::toCp1252(text);
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair
            = text[at].isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate();
        const QStringView one = text.mid(at, isPair ? 2 : 1);
        const QByteArray byte = platform::toCp1252(one);
        const char32_t code = isPair ? QChar::surrogateToUcs4(one[0], one[1]) : one[0].unicode();
        const bool isLacking = byte == "?" && code != U'?' && !(one[0].isSurrogate() && !isPair);
        bytes += isLacking ? "&#" + QByteArray::number(uint(code)) + ';' : byte;
        at += one.size();
    }
    return bytes;
}

QByteArray quoted(const QString& text)
{
    QString attribute = text;
    attribute.replace(u'&', u"&amp;"_s).replace(u'"', u"&quot;"_s);
    return '"' + pageBytes(attribute) + '"';
}

/// In the order &, <, >: no "&" of an entity is replaced again.
QString escaped(QString text)
{
    return text.replace(u'&', u"&amp;"_s).replace(u'<', u"&lt;"_s).replace(u'>', u"&gt;"_s);
}

class HtmlWriter {
public:
    HtmlWriter(const GridTable& grid, QIODevice& file)
        : m_grid(grid)
        , m_file(file)
        , m_shown(grid.shownColumns())
        , m_clientWidth(std::max(1, grid.clientWidth > 0 ? grid.clientWidth : grid.shownWidth()))
    {
    }

    bool write(const GridProgress& progress)
    {
        put(head());
        put(headingRow());
        for (int row = 0; m_isWritten && row < m_grid.rowCount(); ++row) {
            putRow(row);
            if (row % kRowsAStep == kRowsAStep - 1 && progress && !progress(row + 1))
                return false;
        }
        put("</TABLE>\r\n</BODY>\r\n</HTML>\r\n");
        return m_isWritten;
    }

private:
    void put(const QByteArray& bytes) { m_isWritten = m_isWritten && m_file.write(bytes) == bytes.size(); }

    QByteArray percent(int width) const
    {
        return QByteArray::number(qRound(width * 100.0 / m_clientWidth)) + '%';
    }

    QByteArray head() const
    {
        QByteArray head = "<HTML>\r\n<HEAD>\r\n"
                          "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;charset=windows-1252\">\r\n"
                          "<META NAME=\"Generator\" CONTENT=\"";
        head += kComponent;
        head += "\">\r\n<TITLE>";
        head += kComponent;
        head += "</TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n";
        // Kept: the font is opened once and never closed, and its size is always 1.
        if (!m_grid.fontName.isEmpty())
            head += "<FONT FACE=" + quoted(m_grid.fontName) + " SIZE=1>\r\n";
        head += "<TABLE BORDER CELLSPACING=0 CELLPADDING=2 VALIGN=CENTER BGCOLOR=" + htmlColor(m_grid.back)
            + " BORDERCOLOR=" + htmlColor(m_grid.gridLine) + " WIDTH=" + percent(m_grid.shownWidth())
            + ">\r\n";
        return head;
    }

    QByteArray headingRow() const
    {
        QByteArray line = "<TR>\r\n";
        for (const int column : m_shown)
            line += td({m_grid.columns[column].heading}, column, {}, true, -1);
        return line + "</TR>\r\n";
    }

    bool isShown(int row) const
    {
        const GridRow about = m_grid.rows->row(row);
        return !about.isHidden && about.hasHeight;
    }

    void putRow(int row)
    {
        const GridRow about = m_grid.rows->row(row);
        if (about.isHidden || !about.hasHeight)
            return;
        QByteArray line = "<TR>\r\n";
        for (const int column : m_shown) {
            const MergedRange range = m_grid.rows->mergedRange(row, column);
            if (range.isMerged() && !leads(range, row, column))
                continue;
            const bool isFixed = column < m_grid.fixedColumns;
            line += td(m_grid.rows->cell(row, column), column, range, isFixed, about.outlineLevel);
        }
        put(line + "</TR>\r\n");
    }

    /// Whether a cell is the first of its range that is shown; the others are covered by it.
    bool leads(const MergedRange& range, int row, int column) const
    {
        for (int above = range.row; above < row; ++above) {
            if (isShown(above))
                return false;
        }
        return std::none_of(m_shown.begin(), m_shown.end(),
            [&](int shown) { return shown >= range.column && shown < column; });
    }

    /// The width of the cell and what it spans, of what is shown.
    QByteArray extent(int column, const MergedRange& range) const
    {
        if (!range.isMerged())
            return quotedPercent(m_grid.columns[column].width);
        int columns = 0;
        int width = 0;
        for (const int shown : m_shown) {
            if (shown >= range.column && shown < range.column + range.columns) {
                ++columns;
                width += m_grid.columns[shown].width;
            }
        }
        int rows = 0;
        for (int row = range.row; row < range.row + range.rows; ++row)
            rows += isShown(row) ? 1 : 0;
        return quotedPercent(width) + " COLSPAN=" + QByteArray::number(columns)
            + " ROWSPAN=" + QByteArray::number(rows);
    }

    QByteArray quotedPercent(int width) const { return '"' + percent(width) + '"'; }

    QByteArray alignment(const GridCell& cell, const QString& text, int column) const
    {
        const int code = cell.look.alignment.value_or(m_grid.columns[column].alignment);
        if (code >= 0 && code < int(std::size(kAlignments)))
            return kAlignments[code];
        if (cell.look.isPicture)
            return " ALIGN=CENTER";
        return looksNumeric(text) ? " ALIGN=RIGHT" : "";
    }

    /// One cell on a line of its own.
    QByteArray td(const GridCell& cell, int column, const MergedRange& range, bool isFixed, int level) const
    {
        const QString text = textOf(m_grid.columns[column], cell);
        QByteArray line = "<TD WIDTH=" + extent(column, range);
        if (cell.look.back || isFixed)
            line += " BGCOLOR=" + htmlColor(cell.look.back.value_or(m_grid.fixedBack));
        if (isFixed)
            line += " BORDERCOLOR=" + htmlColor(m_grid.gridLine);
        line += alignment(cell, text, column) + '>';

        QByteArray font;
        if (!cell.look.font.isEmpty() && cell.look.font != m_grid.fontName)
            font += " FACE=" + quoted(cell.look.font);
        if (cell.look.color || isFixed)
            font += " COLOR=" + htmlColor(cell.look.color.value_or(m_grid.fixedColor));
        const struct {
            bool isOpen;
            QByteArray open;
            QByteArray close;
        } tags[] = {
            {cell.look.isBold, "<B>", "</B>"},
            {cell.look.isItalic, "<I>", "</I>"},
            {cell.look.isUnderlined, "<U>", "</U>"},
            {!font.isEmpty(), "<FONT" + font + '>', "</FONT>"},
        };
        if (tags[3].isOpen)
            line += tags[3].open;
        for (int tag = 0; tag < 3; ++tag)
            line += tags[tag].isOpen ? tags[tag].open : QByteArray();
        // Kept: the blanks of an outline have no semicolon behind them.
        for (int indent = 0; indent < level; ++indent)
            line += "&nbsp&nbsp&nbsp&nbsp";
        line += htmlText(text);
        // Kept: closed in the order in which they were opened.
        for (const auto& tag : tags)
            line += tag.isOpen ? tag.close : QByteArray();
        return line + "</TD>\r\n";
    }

    const GridTable& m_grid;
    QIODevice& m_file;
    QList<int> m_shown;
    int m_clientWidth;
    bool m_isWritten = true;
};

} // namespace

int WriteGridHtml(const GridTable& grid, const QString& path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return int(file.error());
    if (writeGridHtml(grid, file) && platform::commitWhole(file))
        return 0;
    return int(file.error() == QFileDevice::NoError ? QFileDevice::WriteError : file.error());
}

bool writeGridHtml(const GridTable& grid, QIODevice& file, const GridProgress& progress)
{
    return HtmlWriter(grid, file).write(progress);
}

QByteArray htmlText(const QString& text)
{
    // A cell is one line of the file; a page shows a line break as a blank anyway.
    QString line = text;
    line.replace(u"\r\n"_s, u" "_s).replace(u'\n', u' ').replace(u'\r', u' ');
    const QByteArray bytes = pageBytes(escaped(line));
    return bytes.isEmpty() ? QByteArray("&nbsp;") : bytes;
}

bool looksNumeric(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    bool hasDigit = false;
    int points = 0;
    for (qsizetype at = 0; at < trimmed.size(); ++at) {
        const QChar letter = trimmed[at];
        hasDigit |= letter >= u'0' && letter <= u'9';
        points += letter == u'.' ? 1 : 0;
        const bool isSign = at == 0 && (letter == u'-' || letter == u'+');
        if (!isSign && !QStringView(u"0123456789,.").contains(letter))
            return false;
    }
    return hasDigit && points <= 1;
}

} // namespace output
