#pragma once

#include <QString>

namespace platform {

/// The filter of a file dialog, from "VCF (*.vcf)|*.vcf" to "VCF (*.vcf)". Several patterns of one label
/// stand with
/// ";" between; a text without a bar is one pattern.
QString dialogFilter(QStringView barred);

/// The extension of the first pattern of a label, which a name without one gets on saving; empty for "*.*".
QString defaultSuffix(QStringView barred, qsizetype label = 0);

} // namespace platform
