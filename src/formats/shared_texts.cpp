#include "formats/shared_texts.h"

#include "formats/biff_records.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace formats {

namespace {

constexpr qsizetype kMostKnown = 20'000;
constexpr qsizetype kLongestKnown = 64;
constexpr int kHeadOfRecord = 4;
constexpr int kHeadOfText = 3;
constexpr qint64 kBlock = 1024 * 1024;

} // namespace

SharedTexts::SharedTexts(const QString& folder)
    : m_file(folder + u"/.orvane-XXXXXX"_s)
    , m_record(
          biff::Bytes().zeros(8).bytes()) // how often texts are used and how many there are, known at the end
{
    m_isWhole = m_file.open();
}

quint32 SharedTexts::add(const QString& text)
{
    ++m_used;
    const bool mayComeAgain = text.size() <= kLongestKnown;
    if (mayComeAgain) {
        if (const auto known = m_known.constFind(text); known != m_known.cend())
            return *known;
        if (m_known.size() < kMostKnown)
            m_known.insert(text, m_stored);
    }
    store(text);
    return m_stored++;
}

// A text that finds no room in a record goes on in the next one, but never the three bytes in front of it.
// What goes on tells anew how wide its letters are.
void SharedTexts::store(const QString& text)
{
    const bool wide = biff::isWide(text);
    const int width = wide ? 2 : 1;
    if (m_record.size() + kHeadOfText + width > biff::maxRecord)
        flush();
    m_record += biff::Bytes().u16(int(text.size())).u8(wide ? 1 : 0).bytes();
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype room = (biff::maxRecord - m_record.size()) / width;
        const qsizetype part = std::min(room, text.size() - at);
        m_record += biff::Bytes().letters(QStringView(text).mid(at, part), wide).bytes();
        at += part;
        if (at < text.size()) {
            flush();
            m_record += char(wide ? 1 : 0);
        }
    }
}

void SharedTexts::flush()
{
    const QByteArray bytes
        = biff::record(std::exchange(m_isFirst, false) ? biff::Sst : biff::Continue, m_record);
    m_isWhole = m_isWhole && m_file.write(bytes) == bytes.size();
    m_size += bytes.size();
    m_record.clear();
}

bool SharedTexts::finish()
{
    flush();
    const QByteArray counts = biff::Bytes().u32(m_used).u32(m_stored).bytes();
    m_isWhole
        = m_isWhole && m_file.seek(kHeadOfRecord) && m_file.write(counts) == counts.size() && m_file.flush();
    return m_isWhole;
}

bool SharedTexts::copyTo(const std::function<bool(const QByteArray&)>& write)
{
    if (!m_file.seek(0))
        return false;
    while (!m_file.atEnd()) {
        const QByteArray block = m_file.read(kBlock);
        if (block.isEmpty() || !write(block))
            return false;
    }
    return true;
}

} // namespace formats
