#include "widgets/look_style.h"

#include "widgets/theme.h"

#include <QLabel>
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

void drawTabClose(const QStyleOption& option, QPainter* painter)
{
    if (isOn(option, QStyle::State_MouseOver) && isOn(option, QStyle::State_Enabled)) {
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.palette.color(QPalette::Mid));
        painter->drawRoundedRect(onPixels(option.rect), Radius, Radius);
    }
    icon(u"close").paint(painter, option.rect);
}

struct StandardIcon {
    QStyle::StandardPixmap standard;
    QStringView name;
};

constexpr StandardIcon StandardIcons[] = {
    {QStyle::SP_MessageBoxInformation, u"info"},
    {QStyle::SP_MessageBoxWarning, u"warning"},
    {QStyle::SP_MessageBoxCritical, u"error"},
    {QStyle::SP_MessageBoxQuestion, u"question"},
    {QStyle::SP_ArrowLeft, u"arrow-left"},
    {QStyle::SP_ArrowRight, u"arrow-right"},
    {QStyle::SP_ArrowUp, u"arrow-up"},
    {QStyle::SP_ArrowDown, u"arrow-down"},
    {QStyle::SP_ArrowBack, u"arrow-left"},
    {QStyle::SP_ArrowForward, u"arrow-right"},
    {QStyle::SP_TitleBarCloseButton, u"close"},
    {QStyle::SP_DockWidgetCloseButton, u"close"},
    {QStyle::SP_TitleBarNormalButton, u"window"},
    {QStyle::SP_TitleBarMaxButton, u"window"},
    {QStyle::SP_TabCloseButton, u"close"},
    {QStyle::SP_LineEditClearButton, u"close"},
    {QStyle::SP_ToolBarHorizontalExtensionButton, u"more"},
    {QStyle::SP_ToolBarVerticalExtensionButton, u"arrow-down"},
    {QStyle::SP_DirIcon, u"folder"},
    {QStyle::SP_DirClosedIcon, u"folder"},
    {QStyle::SP_DirOpenIcon, u"folder"},
    {QStyle::SP_DirLinkIcon, u"folder"},
    {QStyle::SP_DirHomeIcon, u"home"},
    {QStyle::SP_FileIcon, u"file"},
    {QStyle::SP_FileLinkIcon, u"file"},
    {QStyle::SP_ComputerIcon, u"drive"},
    {QStyle::SP_DesktopIcon, u"window"},
    {QStyle::SP_DriveHDIcon, u"drive"},
    {QStyle::SP_DriveNetIcon, u"drive"},
    {QStyle::SP_FileDialogToParent, u"folder-up"},
    {QStyle::SP_FileDialogNewFolder, u"folder-add"},
    {QStyle::SP_FileDialogBack, u"arrow-left"},
    {QStyle::SP_FileDialogDetailedView, u"report"},
    {QStyle::SP_FileDialogListView, u"list"},
};

} // namespace

LookStyle::LookStyle()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
{
}

// A tool tip is a label, too, and polished before it has its text.
void LookStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* label = qobject_cast<QLabel*>(widget); label && label->textFormat() == Qt::AutoText)
        label->setTextFormat(Qt::PlainText);
}

QIcon LookStyle::standardIcon(
    StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const
{
    const auto* found = std::find_if(std::begin(StandardIcons), std::end(StandardIcons),
        [standard](const StandardIcon& own) { return own.standard == standard; });
    return found == std::end(StandardIcons) ? QProxyStyle::standardIcon(standard, option, widget)
                                            : icon(found->name);
}

QPixmap LookStyle::standardPixmap(
    StandardPixmap standard, const QStyleOption* option, const QWidget* widget) const
{
    const bool own = std::any_of(std::begin(StandardIcons), std::end(StandardIcons),
        [standard](const StandardIcon& each) { return each.standard == standard; });
    if (!own)
        return QProxyStyle::standardPixmap(standard, option, widget);
    const int side = pixelMetric(PM_SmallIconSize, option, widget);
    return standardIcon(standard, option, widget)
        .pixmap(QSize(side, side), widget ? widget->devicePixelRatioF() : 1);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    constexpr int EasyToHit = 24;
    constexpr int Narrow = 17;
    if (metric == PM_ToolBarExtensionExtent)
        return EasyToHit;
    if (metric == PM_TabBarTabHSpace && widget && widget->property(kNarrowTabs).toBool())
        return Narrow;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

int LookStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returned) const
{
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
        ? 0
        : QProxyStyle::styleHint(hint, option, widget, returned);
}

// The icon of the entry that is under the mouse stands on the colour of the highlight.
void LookStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const auto* item
        = element == CE_MenuItem ? qstyleoption_cast<const QStyleOptionMenuItem*>(option) : nullptr;
    if (!item || item->icon.isNull() || !isOn(*item, State_Selected) || !isOn(*item, State_Enabled))
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionMenuItem highlighted = *item;
    const int side = pixelMetric(PM_SmallIconSize, option, widget);
    highlighted.icon = QIcon(
        item->icon.pixmap(QSize(side, side), painter->device()->devicePixelRatioF(), QIcon::Selected));
    QProxyStyle::drawControl(element, &highlighted, painter, widget);
}

void LookStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    painter->save();
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck: drawCheckBox(*option, painter); break;
    case PE_IndicatorRadioButton: drawRadioButton(*option, painter); break;
    case PE_IndicatorTabClose: drawTabClose(*option, painter); break;
    case PE_FrameLineEdit:
    case PE_Frame: drawFieldFrame(*option, painter); break;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget); break;
    }
    painter->restore();
}

} // namespace widgets
