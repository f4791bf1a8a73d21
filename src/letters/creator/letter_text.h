#pragma once

#include "formats/rich_text.h"
#include "jet/recordset.h"
#include "letters/creator/letter_address.h"

#include <array>

namespace letters {

/// What a letter says, whoever it goes to.
struct LetterParts {
    std::array<QString, 6> openings = {};
    formats::RichText body = {};
    std::array<QString, 2> closings = {};
    QString ending = {};
    QString signature = {};

    bool operator==(const LetterParts&) const = default;
};

/// Whom a letter goes to.
struct Recipient {
    qint64 id = 0; ///< 0 for somebody who is not in the book
    QString name = {};
    QString salutation = {}; ///< how the letter speaks to them
    LetterAddress address = {};
    QString category = {};

    bool operator==(const Recipient&) const = default;
};

Recipient recipientOf(const jet::Recordset& contact, AddressType type);

/// The address and the line that speaks to the reader. Parts of the address that are blank take no line.
formats::RichText letterHead(const Recipient& recipient);
/// The same for a letter to several, with a marker for each part of the address.
formats::RichText groupHead();
/// The whole letter below one of these heads.
formats::RichText composedLetter(const formats::RichText& head, const LetterParts& parts);
formats::RichText composedLetter(const Recipient& recipient, const LetterParts& parts);

/// Another head on a letter that was changed by hand, in the looks of the first. Nothing when the letter
/// does not begin with the old one any more.
std::optional<formats::RichText> withOtherHead(
    const formats::RichText& letter, const formats::RichText& oldHead, const formats::RichText& newHead);
/// One reader's copy of a letter to several that was changed by hand: the marker lines of its head give way
/// to what is known of the reader. What they are replaced by is not looked at again, nor is the text below
/// the line that speaks to the reader.
formats::RichText mergedLetter(const formats::RichText& groupLetter, const Recipient& recipient);

/// What stands below the line that speaks to the reader; without such a line, what stands below the address
/// of the head with which the letter was composed.
formats::RichText belowHead(const formats::RichText& letter, const formats::RichText& head);
/// Whom that line speaks to, which is nobody in a letter to several; nothing when there is no such line.
std::optional<QString> spokenTo(const formats::RichText& letter, const formats::RichText& head);
/// What only the text of a kept letter tells: how it speaks to its reader, who signs it, and the looks of
/// its body.
void readFromMerged(const formats::RichText& merged, Recipient& recipient, LetterParts& parts);

/// The text that is laid out with a letterhead of its own: opening lines and body.
formats::RichText openingsAndBody(const LetterParts& parts);
/// The same as one text, each part ended by a line break.
QString previewBody(const LetterParts& parts);

/// "Spouse, Kid1 & Kid2." from the row of a contact; "all" when nobody is on record.
QString familyNames(const jet::Recordset& contact);
/// The line with which a letter greets them.
QString familyGreeting(const QString& names);

} // namespace letters
