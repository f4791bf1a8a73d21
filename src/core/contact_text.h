#pragma once

#include "core/contact_record.h"

#include <QString>

namespace core {

/// How a contact is laid out in a text file: with which labels, and what shares a line.
enum class TextLayout {
    Single, ///< the file of one contact: each part of the home and first work address on a line of its own
    Selected, ///< several contacts that were chosen: short labels, an address on one line
    All, ///< the whole book: the home address on four lines
    Plain, ///< the lines of the whole book without their labels
};

/// The block of one contact: its name between two rules, an empty line, a line a field, in a fixed order. A
/// field that is not filled has its line too, so the same thing always stands on the same line. Lines are
/// ended by CR LF, but for the last one. A line break within a value is written as a blank.
/// @param contact needs to hold the columns of `contactTextColumns` only
/// @param datePattern of jet::formatDate
QString contactText(const ContactRecord& contact, TextLayout layout, const QString& datePattern);

QStringList contactTextColumns();

} // namespace core
