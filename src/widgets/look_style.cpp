#include "widgets/look_style.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal Radius = 3;

QRectF onPixels(const QRect& rect)
{
    return QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
}

QColor outline(const QStyleOption& option)
{
    return option.palette.color(QPalette::Mid);
}

bool isOn(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

QRectF squareIn(const QRect& rect)
{
    const int side = std::min(rect.width(), rect.height());
    QRect square(0, 0, side, side);
    square.moveCenter(rect.center());
    return onPixels(square);
}

/// The empty box or ring of a choice, filled when it is chosen; the pen for the mark inside is left set.
void prepareChoice(const QStyleOption& option, QPainter* painter, bool filled)
{
    const bool enabled = isOn(option, QStyle::State_Enabled);
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    const QColor accent = option.palette.color(QPalette::Active, QPalette::Highlight);
    const bool accented = enabled
        && (filled || isOn(option, QStyle::State_HasFocus) || isOn(option, QStyle::State_MouseOver));
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(accented ? accent : outline(option));
    painter->setBrush(filled ? option.palette.color(group, QPalette::Highlight)
                             : option.palette.color(group, QPalette::Base));
}

void drawCheckBox(const QStyleOption& option, QPainter* painter)
{
    const QRectF box = squareIn(option.rect);
    const bool partly = isOn(option, QStyle::State_NoChange);
    const bool filled = partly || isOn(option, QStyle::State_On);
    prepareChoice(option, painter, filled);
    painter->drawRoundedRect(box, Radius, Radius);
    if (!filled)
        return;
    const auto at = [&box](qreal x, qreal y) {
        return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
    };
    painter->setPen(QPen(
        option.palette.color(QPalette::HighlightedText), 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    if (partly)
        painter->drawLine(at(0.28, 0.5), at(0.72, 0.5));
    else
        painter->drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.70), at(0.76, 0.32)});
}

void drawRadioButton(const QStyleOption& option, QPainter* painter)
{
    const QRectF ring = squareIn(option.rect);
    const bool filled = isOn(option, QStyle::State_On);
    prepareChoice(option, painter, filled);
    painter->drawEllipse(ring);
    if (!filled)
        return;
    painter->setPen(Qt::NoPen);
    painter->setBrush(option.palette.color(QPalette::HighlightedText));
    painter->drawEllipse(ring.center(), ring.width() * 0.2, ring.height() * 0.2);
}

void drawFieldFrame(const QStyleOption& option, QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    const bool focused = isOn(option, QStyle::State_HasFocus) && isOn(option, QStyle::State_Enabled);
    painter->setPen(focused ? option.palette.color(QPalette::Highlight) : outline(option));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(onPixels(option.rect), Radius, Radius);
}

} // namespace

LookStyle::LookStyle()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
{
}

void LookStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    painter->save();
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck: drawCheckBox(*option, painter); break;
    case PE_IndicatorRadioButton: drawRadioButton(*option, painter); break;
    case PE_FrameLineEdit:
    case PE_Frame: drawFieldFrame(*option, painter); break;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget); break;
    }
    painter->restore();
}

} // namespace widgets
