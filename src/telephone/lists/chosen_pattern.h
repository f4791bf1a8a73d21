#pragma once

#include "widgets/filled_combo.h"

namespace telephone {

/// The text of a combo as a pattern: a value of its list stands for itself also where it has brackets, other
/// text is taken as it was typed.
inline QString chosenPattern(widgets::FilledCombo* combo)
{
    const QString text = combo->currentText();
    return text.contains(u'[') && combo->values().contains(text)
        ? QString(text).replace(u'[', QStringLiteral("[[]"))
        : text;
}

} // namespace telephone
