#include "formats/workbook.h"

#include "formats/biff_records.h"
#include "formats/shared_texts.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <unistd.h>
#include <utility>

#include <gsf/gsf.h>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

using biff::Bytes;
using biff::record;

// The numbers of the cell formats in the workbook, behind the fifteen that styles take.
constexpr quint16 kPlain = 15;
constexpr quint16 kHeading = 16;
constexpr quint16 kDate = 17;
constexpr quint16 kTime = 18;
constexpr int kStyleFormats = 15;
// Those below are of the spreadsheet program itself.
constexpr int kDateFormat = 164;
constexpr int kTimeFormat = 165;
// Kept: there is no font of the number 4, so the fifth one is number 5.
constexpr int kOrdinaryFonts = 4;
constexpr int kBoldFont = 5;

constexpr int kWidestColumn = 255; // characters
constexpr qint64 kBlock = 1024 * 1024;

QByteArray beginOf(int kind)
{
    return record(biff::Bof, Bytes().u16(0x0600).u16(kind).u16(0x0DBB).u16(0x07CC).u32(0x41).u32(6).bytes());
}

constexpr int kOrdinaryWeight = 400;
constexpr int kBoldWeight = 700;

QByteArray font(int weight)
{
    constexpr int kTenPoints = 200;
    constexpr int kAutomaticColor = 0x7FFF;
    return record(biff::Font,
        Bytes()
            .u16(kTenPoints)
            .u16(weight > kOrdinaryWeight ? 1 : 0)
            .u16(kAutomaticColor)
            .u16(weight)
            .u16(0)
            .zeros(4)
            .shortText(u"Arial")
            .bytes());
}

/// @param used which parts of the format do not come from the style
QByteArray cellFormat(int fontNumber, int numberFormat, int kind, int used)
{
    return record(biff::Xf,
        Bytes()
            .u16(fontNumber)
            .u16(numberFormat)
            .u16(kind)
            .u8(0x20) // at the bottom of the cell
            .zeros(2)
            .u8(used)
            .zeros(8)
            .u16(0x20C0)
            .bytes());
}

QByteArray cellFormats()
{
    constexpr int kStyle = 0xFFF5;
    constexpr int kCell = 0x0001;
    QByteArray all = cellFormat(0, 0, kStyle, 0);
    for (int style = 1; style < kStyleFormats; ++style)
        all += cellFormat(0, 0, kStyle, 0xF4);
    return all + cellFormat(0, 0, kCell, 0) + cellFormat(kBoldFont, 0, kCell, 0x08)
        + cellFormat(0, kDateFormat, kCell, 0x04) + cellFormat(0, kTimeFormat, kCell, 0x04);
}

/// Days since the end of 1899, as spreadsheets count them: with a 29 February 1900 that never was.
double dayNumber(QDate day)
{
    return double(QDate(1899, 12, 30).daysTo(day));
}

bool isNumber(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double: return true;
    default: return false;
    }
}

/// The part of the file in which a container keeps its one stream, from opening to closing.
class Container {
public:
    explicit Container(QFileDevice& file)
    {
        gsf_init();
        // A descriptor of its own, so that closing it leaves the file open.
        const int copy = ::dup(file.handle());
        m_stream = copy < 0 ? nullptr : ::fdopen(copy, "w");
        if (!m_stream)
            return;
        m_sink = gsf_output_stdio_new_FILE("workbook", m_stream, TRUE);
        m_container = m_sink ? gsf_outfile_msole_new(m_sink) : nullptr;
        m_book = m_container ? gsf_outfile_new_child(m_container, "Workbook", FALSE) : nullptr;
        m_isWhole = m_book != nullptr;
    }
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;
    ~Container() { close(); }

    bool write(const QByteArray& bytes)
    {
        m_isWhole = m_isWhole
            && gsf_output_write(
                m_book, size_t(bytes.size()), reinterpret_cast<const guint8*>(bytes.constData()));
        return m_isWhole;
    }

    bool close()
    {
        for (GsfOutput* output : {m_book, m_container ? GSF_OUTPUT(m_container) : nullptr, m_sink}) {
            if (!output)
                continue;
            // The container closes its sink.
            m_isWhole = (gsf_output_is_closed(output) || gsf_output_close(output)) && m_isWhole;
            g_object_unref(output);
        }
        m_book = nullptr;
        m_container = nullptr;
        m_sink = nullptr;
        if (m_stream)
            m_isWhole = std::fclose(m_stream) == 0 && m_isWhole;
        m_stream = nullptr;
        return m_isWhole;
    }

private:
    std::FILE* m_stream = nullptr;
    GsfOutput* m_sink = nullptr;
    GsfOutfile* m_container = nullptr;
    GsfOutput* m_book = nullptr;
    bool m_isWhole = false;
};

} // namespace

WorkbookWriter::WorkbookWriter(QFileDevice& file, const QString& sheetName, const QList<SheetColumn>& columns,
    const QString& datePattern)
    : m_file(file)
    , m_sheetName(safeSheetName(sheetName))
    , m_columns(columns.mid(0, maxSheetColumns))
    , m_datePattern(datePattern)
    , m_cells(QFileInfo(file.fileName()).absolutePath() + u"/.orvane-XXXXXX"_s)
    , m_texts(std::make_unique<SharedTexts>(QFileInfo(file.fileName()).absolutePath()))
{
    if (!m_cells.open())
        return;
    for (int column = 0; column < m_columns.size(); ++column)
        addText(column, m_columns[column].heading, kHeading);
    m_cells.write(std::exchange(m_row, {}));
    m_rows = 1;
}

WorkbookWriter::~WorkbookWriter() = default;

bool WorkbookWriter::addRow(const QVariantList& cells)
{
    if (!m_cells.isOpen() || m_rows >= maxSheetRows)
        return false;
    m_row.clear();
    for (int column = 0; column < std::min(cells.size(), m_columns.size()); ++column) {
        const QVariant& value = cells[column];
        const bool hasTime = value.userType() == QMetaType::QDateTime;
        const bool isDay = hasTime || value.userType() == QMetaType::QDate;
        constexpr double kMillisecondsADay = 86'400'000;
        if (isDay && !isSheetDate(value.toDate()))
            continue;
        if (hasTime)
            addNumber(column,
                dayNumber(value.toDate()) + value.toTime().msecsSinceStartOfDay() / kMillisecondsADay, kTime);
        else if (isDay)
            addNumber(column, dayNumber(value.toDate()), kDate);
        else if (isNumber(value))
            addNumber(column, value.toDouble(), kPlain);
        else
            addText(column, value.toString(), kPlain);
    }
    ++m_rows;
    return m_cells.write(m_row) == m_row.size();
}

void WorkbookWriter::addText(int column, QString text, quint16 format)
{
    if (text.isEmpty())
        return;
    if (text.size() > maxSheetText) {
        ++m_cutTexts;
        text.truncate(text[maxSheetText - 1].isHighSurrogate() ? maxSheetText - 1 : maxSheetText);
    }
    m_row += record(
        biff::LabelSst, Bytes().u16(m_rows).u16(column).u16(format).u32(m_texts->add(text)).bytes());
}

void WorkbookWriter::addNumber(int column, double number, quint16 format)
{
    m_row += record(biff::Number, Bytes().u16(m_rows).u16(column).u16(format).real(number).bytes());
}

QByteArray WorkbookWriter::globals(qint64 sizeOfTexts) const
{
    QByteArray head = beginOf(0x0005);
    head += record(biff::CodePage, Bytes().u16(1200).bytes());
    head += record(biff::Window1,
        Bytes().u16(0).u16(0).u16(0x4000).u16(0x2000).u16(0x0038).u16(0).u16(0).u16(1).u16(0x0258).bytes());
    head += record(biff::DateMode, Bytes().u16(0).bytes());
    for (int number = 0; number < kOrdinaryFonts; ++number)
        head += font(kOrdinaryWeight);
    head += font(kBoldWeight);
    head += record(biff::Format, Bytes().u16(kDateFormat).longText(m_datePattern).bytes());
    head += record(biff::Format, Bytes().u16(kTimeFormat).longText(m_datePattern + u" hh:mm"_s).bytes());
    head += cellFormats();
    head += record(biff::Style, Bytes().u16(0x8000).u8(0).u8(0xFF).bytes());
    // Where the sheet begins, counted from the beginning of the stream: behind this record and the texts.
    const auto place = [&](quint32 at) {
        return record(biff::BoundSheet, Bytes().u32(at).u16(0).shortText(m_sheetName).bytes());
    };
    const QByteArray end = record(biff::Eof, {});
    const qint64 begin = head.size() + place(0).size() + sizeOfTexts + end.size();
    return head + place(quint32(begin));
}

QByteArray WorkbookWriter::sheetHead() const
{
    QByteArray head = beginOf(0x0010);
    for (int column = 0; column < m_columns.size(); ++column) {
        const int width = std::clamp(m_columns[column].width, 1, kWidestColumn) * 256;
        head += record(
            biff::ColInfo, Bytes().u16(column).u16(column).u16(width).u16(kPlain).u16(0).u16(0).bytes());
    }
    head += record(biff::Dimensions,
        Bytes().u32(0).u32(quint32(m_rows)).u16(0).u16(int(m_columns.size())).u16(0).bytes());
    return head;
}

bool WorkbookWriter::finish()
{
    return m_cells.isOpen() && m_cells.flush() && m_texts->finish() && writeContainer();
}

bool WorkbookWriter::writeContainer()
{
    Container container(m_file);
    bool isWhole = container.write(globals(m_texts->size()))
        && m_texts->copyTo([&container](const QByteArray& block) { return container.write(block); })
        && container.write(record(biff::Eof, {})) && container.write(sheetHead()) && m_cells.seek(0);
    while (isWhole && !m_cells.atEnd()) {
        const QByteArray block = m_cells.read(kBlock);
        isWhole = !block.isEmpty() && container.write(block);
    }
    // The headings stay in sight while the rows move.
    constexpr int kShownAndFrozen = 0x06B6 | 0x0008 | 0x0100;
    isWhole = isWhole
        && container.write(record(
            biff::Window2, Bytes().u16(kShownAndFrozen).u16(0).u16(0).u32(0x40).u16(0).u16(0).u32(0).bytes()))
        && container.write(record(biff::Pane, Bytes().u16(0).u16(1).u16(1).u16(0).u8(2).u8(0).bytes()))
        && container.write(record(biff::Eof, {}));
    return container.close() && isWhole;
}

bool isSheetDate(QDate day)
{
    return day.isValid() && day >= QDate(1900, 3, 1) && day.year() < 10'000;
}

QString safeSheetName(const QString& name)
{
    constexpr qsizetype kLongest = 31;
    QString safe;
    for (const QChar letter : name) {
        const bool isTaken
            = QStringView(u"\\/?*[]:").contains(letter) || letter.category() == QChar::Other_Control;
        safe += isTaken ? u'_' : letter;
    }
    safe = safe.trimmed().left(kLongest);
    if (!safe.isEmpty() && safe.back().isHighSurrogate())
        safe.chop(1);
    while (safe.startsWith(u'\''))
        safe.remove(0, 1);
    while (safe.endsWith(u'\''))
        safe.chop(1);
    return safe.isEmpty() ? u"Sheet1"_s : safe;
}

} // namespace formats
