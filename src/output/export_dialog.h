#pragma once

#include "core/context.h"
#include "platform/message_boxes.h"

#include <functional>

namespace output {

/// Asks for the file to write to. A name that is not whole gets the ending; as the dialog has not asked about
/// that one, it is asked here whether a file of that name may go.
/// @return empty when the person gives up
QString askForFile(core::Context& context, const QString& title, QStringView filter,
    const platform::FileSuggestion& suggestion, const QString& ending,
    const std::function<bool(const QString& path)>& isWhole);

} // namespace output
