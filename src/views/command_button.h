#pragma once

#include <QKeySequence>
#include <QString>

class QToolButton;

namespace views {

/// A flat button of the rows over a list: an icon, perhaps with a text beside it, and what it does as its
/// tool tip, with the key behind it.
QToolButton* commandButton(const QString& name, QStringView icon, const QString& toolTip,
    const QString& text = {}, const QKeySequence& key = {});

} // namespace views
