#pragma once

#include "formats/vcard_lines.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QByteArray>
#include <QString>
#include <QStringList>

class QIODevice;

/// vCards of other programs, versions 2.1, 3.0 and 4.0, as telephones, mail programs and web services write
/// them.
namespace formats {

/// One value of a card with all that was said about it.
struct ForeignProperty {
    QString group; ///< "item1" of item1.TEL; in upper case
    QString name; ///< in upper case
    QStringList types; ///< in upper case, without the words that are encodings
    std::vector<VCardParameter> parameters;
    QString value; ///< as written, with its escapes; what could not be read as a property stands here whole
    QByteArray bytes; ///< of a value that is no text, such as a picture
    int depth = 0; ///< 1 for a property of a card within the card
    bool isBinary = false;
    bool isTooLong = false; ///< bytes are missing, or a text ends early
    bool isUnread = false; ///< the line was no property

    bool is(QStringView type) const { return types.contains(type); }
    QString parameter(QStringView parameterName) const;
};

struct ForeignCard {
    QString version; ///< "2.1", "3.0", "4.0"; "3.0" for a card without one
    std::vector<ForeignProperty> properties;
    bool hasEnd = false;
    bool isCut = false; ///< more lines or bytes than one card may have: the rest is missing

    /// The value as text: its escapes resolved as its version has them.
    QString text(const ForeignProperty& property) const;
    /// The same for each part of a value of several, at semicolons or commas that are not escaped.
    QStringList parts(const ForeignProperty& property, QChar separator) const;
};

/// What is read of a file at most. A longer one is not refused: what is above is left out and told.
struct CardLimits {
    qsizetype textLine = 1024 * 1024; ///< bytes of one property
    qsizetype binaryLine = 24 * 1024 * 1024; ///< the same of a picture
    qsizetype card = 48 * 1024 * 1024; ///< bytes of all properties of a card
    int properties = 5000;
};

/// Reads the cards of a file one after the other, in time in proportion to its length and with no more in
/// memory than one card. Whatever stands between the cards is passed over.
class ForeignCardReader {
public:
    /// @param keepGoing asked again and again while a long line is read; false ends the file there
    explicit ForeignCardReader(
        QIODevice& file, std::function<bool()> keepGoing = {}, const CardLimits& limits = {});
    ~ForeignCardReader();
    ForeignCardReader(const ForeignCardReader&) = delete;
    ForeignCardReader& operator=(const ForeignCardReader&) = delete;

    /// Nothing at the end of the file.
    std::optional<ForeignCard> next();
    qint64 bytesRead() const;

private:
    class Lines;

    void readCard(ForeignCard& card);
    QByteArray logicalLine(const ForeignCard& card, bool* isCut);

    std::unique_ptr<Lines> m_lines;
    CardLimits m_limits;
};

} // namespace formats
