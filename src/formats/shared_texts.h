#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QTemporaryFile>

#include <functional>

namespace formats {

/// The table of the texts of a workbook, on its way in a temporary file. Texts that come again and again, as
/// cities do, are stored once; of how many that is known has a bound, so memory has one too.
class SharedTexts {
public:
    explicit SharedTexts(const QString& folder);

    bool isOpen() const { return m_file.isOpen(); }
    /// The number of the text in the table.
    quint32 add(const QString& text);
    /// Ends the table; false when not all of it could be stored.
    bool finish();
    qint64 size() const { return m_size; } ///< bytes of the finished table
    bool copyTo(const std::function<bool(const QByteArray&)>& write);

private:
    void store(const QString& text);
    void flush();

    QTemporaryFile m_file;
    QHash<QString, quint32> m_known;
    QByteArray m_record;
    qint64 m_size = 0;
    quint32 m_stored = 0;
    quint32 m_used = 0;
    bool m_isFirst = true;
    bool m_isWhole = true;
};

} // namespace formats
