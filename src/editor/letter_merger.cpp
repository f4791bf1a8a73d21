#include "editor/letter_merger.h"

#include "editor/text_document.h"
#include "formats/delimited.h"
#include "formats/rtf_writer.h"
#include "platform/cp1252.h"
#include "platform/drive.h"
#include "platform/shell.h"
#include "platform/storage.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextDocumentWriter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace editor {

using formats::RichText;
using formats::TextParagraph;

namespace {

// A document for a screen takes many times the room of its text.
constexpr qsizetype kLargestDocument = 8 * 1024 * 1024;

bool writeWhole(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
        && platform::commitWhole(file);
}

bool writeOpenDocument(const QString& path, const QList<RichText>& letters)
{
    RichText all;
    QList<qsizetype> beginnings;
    for (const RichText& letter : letters) {
        beginnings << all.paragraphs.size();
        all.append(letter);
    }
    QTextDocument document;
    fillDocument(document, all);
    for (const qsizetype first : beginnings.mid(1)) {
        QTextCursor cursor(document.findBlockByNumber(int(first)));
        QTextBlockFormat format;
        format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        cursor.mergeBlockFormat(format);
    }
    // The writer closes what it writes to, which a file that is saved as a whole does not bear.
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QTextDocumentWriter writer(&bytes, "odf");
    return writer.write(&document) && writeWhole(path, bytes.data());
}

/// A name for both files that no file of the folder bears.
QString freeStem(const QString& folder, const QString& stem)
{
    QString free = folder + u'/' + stem;
    for (int number = 2; QFileInfo::exists(free + u".rtf"_s) || QFileInfo::exists(free + u".odt"_s); ++number)
        free = u"%1/%2 (%3)"_s.arg(folder, stem).arg(number);
    return free;
}

} // namespace

LetterMerger::LetterMerger(const platform::Drive& drive, platform::Shell& shell)
    : m_drive(drive)
    , m_shell(shell)
{
}

bool LetterMerger::create()
{
    m_columns.clear();
    m_rows.clear();
    m_paragraphs.clear();
    m_files.clear();
    m_isInLine = false;
    return true;
}

QString LetterMerger::setData(QStringView file, const QString& header, const QList<QStringList>& rows)
{
    m_columns.clear();
    for (const QString& column : header.split(u','))
        m_columns << column.trimmed();
    m_rows = rows;
    QByteArray bytes = header.toUtf8() + "\r\n";
    for (const QStringList& row : rows)
        bytes += formats::csvLine(row);
    // In the code page, as word processors expect such a file; only where that would lose letters it is not.
    const QString text = QString::fromUtf8(bytes);
    bytes = platform::isInCp1252(text) ? platform::toCp1252(text) : formats::utf8Mark + bytes;
    const QString path = m_drive.local(file);
    if (path.isEmpty() || !QDir().mkpath(QFileInfo(path).path()) || !writeWhole(path, bytes))
        return platform::whyNotReplaced(path);
    return {};
}

void LetterMerger::typeText(const QString& text)
{
    const QStringList lines = text.split(u'\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0 || !m_isInLine)
            m_paragraphs.emplaceBack();
        m_isInLine = true;
        if (!lines.at(line).isEmpty())
            m_paragraphs.last().pieces << Piece{.text = lines.at(line)};
    }
}

void LetterMerger::typeField(const QString& column)
{
    if (!m_isInLine)
        m_paragraphs.emplaceBack();
    m_isInLine = true;
    m_paragraphs.last().pieces << Piece{.column = m_columns.indexOf(column)};
}

void LetterMerger::typeParagraphs(const RichText& text)
{
    for (const TextParagraph& paragraph : text.paragraphs)
        m_paragraphs << Paragraph{.text = paragraph};
    m_isInLine = false;
}

// A line of which all fields are blank takes no room. What a field says is text, whatever it looks like.
RichText LetterMerger::letterOf(const QStringList& row) const
{
    RichText letter;
    for (const Paragraph& paragraph : m_paragraphs) {
        if (paragraph.pieces.isEmpty()) {
            letter.paragraphs << paragraph.text;
            continue;
        }
        bool hasField = false;
        bool saysSomething = false;
        QString line;
        for (const Piece& piece : paragraph.pieces) {
            const bool isField = piece.text.isEmpty();
            const QString text = isField ? row.value(piece.column) : piece.text;
            hasField |= isField;
            saysSomething |= isField && !text.trimmed().isEmpty();
            line += text;
        }
        if (saysSomething || !hasField)
            letter.append(RichText::fromPlain(line));
    }
    return letter;
}

platform::MergeResult LetterMerger::run(const QString& folder, const QString& stem)
{
    m_files.clear();
    const QString place = QDir::isAbsolutePath(folder) ? folder : m_drive.local(folder);
    if (place.isEmpty() || !QDir().mkpath(place))
        return {.whyNot = platform::whyNotWritable(place)};
    QList<RichText> letters;
    qsizetype size = 0;
    for (const QStringList& row : std::as_const(m_rows)) {
        letters << letterOf(row);
        size += letters.constLast().plain().size();
    }
    const QString path = freeStem(place, platform::Drive::safeFileName(stem));
    if (!writeWhole(path + u".rtf"_s, formats::writeRtf(letters)))
        return {.whyNot = platform::whyNotWritable(place)};
    m_files << path + u".rtf"_s;
    if (size <= kLargestDocument) {
        if (!writeOpenDocument(path + u".odt"_s, letters)) {
            QFile::remove(std::exchange(m_files, {}).constFirst());
            return {.whyNot = platform::whyNotWritable(place)};
        }
        m_files.prepend(path + u".odt"_s);
    }
    return {.files = m_files};
}

bool LetterMerger::show()
{
    return std::any_of(
        m_files.cbegin(), m_files.cend(), [this](const QString& file) { return m_shell.openFile(file); });
}

} // namespace editor
