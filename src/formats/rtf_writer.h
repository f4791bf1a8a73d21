#pragma once

#include "formats/rich_text.h"

#include <QByteArray>

namespace formats {

/// How far one step of the indent goes, and a list mark stands in front of its text, in twips.
inline constexpr int kRtfIndentStep = 720;
inline constexpr int kRtfListStep = 360;

/// A text with its looks as an RTF file, in ASCII; readRtf() gives the same text again.
QByteArray writeRtf(const RichText& text);
/// Several texts in one file, each beginning on a page of its own, such as a letter for each of its readers.
QByteArray writeRtf(const QList<RichText>& pages);

} // namespace formats
