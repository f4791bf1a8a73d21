#pragma once

#include <QString>
#include <QStringView>

#include <string>

namespace jet {

/// Text that is put together from many short pieces: translating is little else than this, and a QString asks
/// about sharing at each of them.
class TextBuilder {
public:
    void reserve(qsizetype size)
    {
        if (size_t(size) > m_text.size())
            m_text.resize(size_t(size));
    }
    void operator+=(QStringView text)
    {
        if (m_size + size_t(text.size()) > m_text.size())
            m_text.resize(2 * (m_size + size_t(text.size())));
        std::char_traits<char16_t>::copy(m_text.data() + m_size, text.utf16(), size_t(text.size()));
        m_size += size_t(text.size());
    }
    void operator+=(char16_t letter) { *this += QStringView(&letter, 1); }
    void clear() { m_size = 0; }
    QString text() const { return QStringView(m_text.data(), qsizetype(m_size)).toString(); }

private:
    std::u16string m_text; ///< its size is the room there is
    size_t m_size = 0;
};

} // namespace jet
