#pragma once

#include <QColor>

namespace editor {

/// A colour of a text as it can be read on a background: itself where it stands out, else one of the same hue
/// that does.
QColor readableOn(const QColor& text, const QColor& background);

} // namespace editor
