#pragma once

#include "output/report/report.h"

namespace output {

/// How a letter is set: under a head with the sender's name, with the sender at the right as letters have
/// long been written, or flush left with the sender in a line above the address.
enum class LetterStyle { Letterhead, Classic, Modern };

/// What is the same in all letters of a batch.
struct LetterLook {
    LetterStyle style = LetterStyle::Letterhead;
    bool isUSLetter = false; ///< else A4
    QString senderName = {};
    QStringList senderAddress = {}; ///< by line
    QString date = {};
    QString greeting = {}; ///< in front of the name
    QStringList readers = {}; ///< how each is spoken to, by row; by the name where nothing is given
    bool isGreetedInBody = false; ///< no line of its own speaks to the reader
    QStringList closing = {}; ///< lines below the body
    QString ending = {};
    QString signature = {};
    formats::RichText body = {}; ///< in place of the column `Body`, with its looks; empty for that column
};

/// Letters on pages of their own, the address where the window of an envelope is: for A4 the address field of
/// DIN 5008 form B, 45 to 90 mm from the top; for US Letter that of a No. 10 envelope.
/// @param rows `person`, `Add1`, `Add2`, `city`, `State`, `Country`, `zip`, `Body`
Report letterReport(const LetterLook& look, std::shared_ptr<const ReportSource> rows);

} // namespace output
