#pragma once

#include <QProxyStyle>

namespace widgets {

/// Fusion with clear outlines. Fusion derives them from the window's colour, and on a dark window they
/// vanish: fields have no edge and an unticked box can not be seen.
class LookStyle : public QProxyStyle {
    Q_OBJECT

public:
    LookStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
};

} // namespace widgets
