#pragma once

#include "formats/rich_text.h"

#include <QByteArray>

#include <optional>

namespace formats {

/// What a file may make us hold. Behind the limit of bytes it counts as cut off; groups that lie deeper share
/// the looks of the deepest that is kept.
struct RtfLimits {
    qsizetype bytes = 16 * 1024 * 1024;
    int depth = 256;
    int tableRows = 4096; ///< of fonts, colours and lists each
};

/// Whether bytes are meant as RTF, by how they begin.
bool isRtf(const QByteArray& bytes);

/// The text of an RTF file with the looks that our texts know. Pictures, objects and the instructions of
/// fields are passed over: nothing in it is ever run or fetched. Of a damaged file comes what could be read.
/// @return nothing when the bytes are no RTF at all
std::optional<RichText> readRtf(const QByteArray& bytes, const RtfLimits& limits = {});

} // namespace formats
