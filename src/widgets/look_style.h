#pragma once

#include <QProxyStyle>

namespace widgets {

/// Under this property a bar of tabs says that they stand close together.
inline constexpr char kNarrowTabs[] = "narrowTabs";

/// Fusion with clear outlines. Fusion derives them from the window's colour, and on a dark window they
/// vanish: fields have no edge and an unticked box can not be seen. The icons that Qt asks a style for are
/// our own. Labels and tool tips show their text as it is: what a person stored is never markup.
class LookStyle : public QProxyStyle {
    Q_OBJECT

public:
    LookStyle();

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    QIcon standardIcon(StandardPixmap standard, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;
    QPixmap standardPixmap(StandardPixmap standard, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
        const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
        QStyleHintReturn* returned = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override;
};

} // namespace widgets
