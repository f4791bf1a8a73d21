#pragma once

#include <QIcon>
#include <QString>

class QAbstractButton;
class QAction;
class QApplication;

namespace widgets {

enum class Look { Light, Dark };

/// What the person's desktop asks for, unless the environment variable ORVANE_LOOK says light or dark.
/// To be asked before the first apply().
Look preferred();
/// Gives the whole program its style, colours and font. May be called again to change the look.
void apply(QApplication& app, Look look);
Look currentLook();

/// The icon :/icons/NAME.svg, crisp at every size, in the colours of the look at the time of painting. A null
/// icon when there is no such file.
QIcon icon(QStringView name);
void setIcon(QAction* action, QStringView name);
void setIcon(QAbstractButton* button, QStringView name);

/// Colours beyond those of the palette.
QColor warningColor();
QColor quietTextColor();

} // namespace widgets
