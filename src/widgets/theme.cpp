#include "widgets/theme.h"

#include "widgets/look_style.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

#include <cmath>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr auto LookProperty = "orvaneLook"; ///< of the application object

struct Colours {
    QStringView window, base, alternate, button, text, quiet, disabled, accent, onAccent, line, edge, toolTip;
    QStringView iconStroke, iconAccent, warning;
};

constexpr Colours LightColours{
    .window = u"#f3f4f6",
    .base = u"#ffffff",
    .alternate = u"#f8fafc",
    .button = u"#f9fafb",
    .text = u"#1f2937",
    .quiet = u"#5f6876",
    .disabled = u"#9ca3af",
    .accent = u"#2563eb",
    .onAccent = u"#ffffff",
    .line = u"#d1d5db",
    .edge = u"#b4bbc6",
    .toolTip = u"#ffffff",
    .iconStroke = u"#475569",
    .iconAccent = u"#2563eb",
    .warning = u"#c81e1e",
};
constexpr Colours DarkColours{
    .window = u"#23262d",
    .base = u"#1b1e24",
    .alternate = u"#20242b",
    .button = u"#2d313a",
    .text = u"#e5e7eb",
    .quiet = u"#9ca3af",
    .disabled = u"#6b7280",
    .accent = u"#60a5fa",
    .onAccent = u"#0b1220",
    .line = u"#3f4552",
    .edge = u"#525a69",
    .toolTip = u"#2d313a",
    .iconStroke = u"#cbd5e1",
    .iconAccent = u"#60a5fa",
    .warning = u"#f87171",
};

const Colours& coloursOf(Look look)
{
    return look == Look::Dark ? DarkColours : LightColours;
}

QPalette paletteOf(const Colours& colours)
{
    const QColor window(colours.window);
    const QColor line(colours.line);
    QPalette palette(QColor(colours.text), QColor(colours.button), QColor(colours.button).lighter(110),
        line.darker(130), QColor(colours.edge), QColor(colours.text), QColor(colours.onAccent),
        QColor(colours.base), window);
    palette.setColor(QPalette::AlternateBase, QColor(colours.alternate));
    palette.setColor(QPalette::PlaceholderText, QColor(colours.quiet));
    palette.setColor(QPalette::Highlight, QColor(colours.accent));
    palette.setColor(QPalette::HighlightedText, QColor(colours.onAccent));
    palette.setColor(QPalette::Link, QColor(colours.accent));
    palette.setColor(QPalette::LinkVisited, QColor(colours.accent));
    palette.setColor(QPalette::ToolTipBase, QColor(colours.toolTip));
    palette.setColor(QPalette::ToolTipText, QColor(colours.text));
    for (const auto role :
        {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        palette.setColor(QPalette::Disabled, role, QColor(colours.disabled));
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, line);
    return palette;
}

/// Short on purpose: what Fusion draws well from the palette is left to it, and QMdiSubWindow loses its frame
/// when it is styled.
QString styleSheetOf(const Colours& colours)
{
    QString sheet = uR"(
QToolBar { border: none; border-bottom: 1px solid @line; spacing: 1px; padding: 3px; }
QFrame[continuesBar="true"] { border: none; border-bottom: 1px solid @line; }
QToolBar::separator { background: @line; width: 1px; margin: 5px 4px; }
QToolBar QToolButton { border: 1px solid transparent; border-radius: 5px; padding: 4px; }
QToolBar QToolButton[popupMode="1"] { padding-right: 16px; }
QToolBar QToolButton::menu-button { border: none; width: 15px; border-radius: 5px; }
QToolBar QToolButton::menu-button:hover { background: @pressed; }
QToolBar QToolButton:hover { background: @hover; }
QToolBar QToolButton:pressed, QToolBar QToolButton:checked { background: @pressed; border-color: @line; }
QToolBar QToolButton:focus { border-color: @accent; }
QScrollBar { background: transparent; border: none; }
QScrollBar:vertical { width: 13px; }
QScrollBar:horizontal { height: 13px; }
QScrollBar::handle { background: @edge; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: @quiet; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QHeaderView { background: @window; }
QHeaderView::section { background: @window; color: @quiet; border: none; border-bottom: 1px solid @line;
    padding: 4px 3px; font-weight: 600; }
QTabWidget::pane { border: 1px solid @line; border-radius: 4px; top: -1px; }
QStatusBar::item { border: none; }
QGroupBox { border: 1px solid @line; border-radius: 6px; margin-top: 1.35em; padding: 4px 2px 2px 2px; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 2px; color: @quiet; }
QGroupBox { font-weight: 600; }
QLineEdit:read-only, QPlainTextEdit[readOnly="true"] { background: @window; }
QComboBox { combobox-popup: 0; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: @window; }
QCalendarWidget QToolButton { color: @text; border: none; border-radius: 5px; padding: 4px; }
QCalendarWidget QToolButton:hover { background: @hover; }
QCalendarWidget QToolButton::menu-indicator { image: none; }
QToolTip { background: @toolTip; color: @text; border: 1px solid @line; padding: 4px; }
)"_s;
    const auto faded = [&colours](double share) {
        const QColor front(colours.text);
        const QColor back(colours.window);
        return QColor::fromRgbF(static_cast<float>(front.redF() * share + back.redF() * (1 - share)),
            static_cast<float>(front.greenF() * share + back.greenF() * (1 - share)),
            static_cast<float>(front.blueF() * share + back.blueF() * (1 - share)))
            .name();
    };
    const auto put
        = [&sheet](const QString& mark, QStringView colour) { sheet.replace(mark, colour.toString()); };
    put(u"@line"_s, colours.line);
    put(u"@edge"_s, colours.edge);
    put(u"@hover"_s, faded(0.07));
    put(u"@pressed"_s, faded(0.14));
    put(u"@window"_s, colours.window);
    put(u"@quiet"_s, colours.quiet);
    put(u"@accent"_s, colours.accent);
    put(u"@toolTip"_s, colours.toolTip);
    put(u"@text"_s, colours.text);
    return sheet;
}

/// Draws the SVG anew at each size and in the look of the moment, so that icons need not be replaced when the
/// look changes.
class LookIconEngine final : public QIconEngine {
public:
    explicit LookIconEngine(const QString& fileName)
        : m_fileName(fileName)
    {
    }

    QIconEngine* clone() const override { return new LookIconEngine(*this); }
    QString key() const override { return u"orvane-look"_s; }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {}; }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        drawn.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), drawn);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const Look look = currentLook();
        const QString key = u"%1 %2x%3 %4 %5"_s.arg(m_fileName)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(int(mode == QIcon::Active ? QIcon::Normal : mode))
                                .arg(look == Look::Dark);
        QPixmap drawn;
        if (QPixmapCache::find(key, &drawn))
            return drawn;

        QFile file(m_fileName);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QByteArray svg = file.readAll();
        const auto recolour
            = [&svg](QStringView from, QStringView to) { svg.replace(from.toLatin1(), to.toLatin1()); };
        const Colours& colours = coloursOf(look);
        const bool highlighted = mode == QIcon::Selected;
        recolour(LightColours.iconStroke, highlighted ? colours.onAccent : colours.iconStroke);
        recolour(LightColours.iconAccent, highlighted ? colours.onAccent : colours.iconAccent);

        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        if (mode == QIcon::Disabled)
            painter.setOpacity(0.35);
        QSvgRenderer renderer(svg);
        renderer.setAspectRatioMode(Qt::KeepAspectRatio);
        renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
        painter.end();
        drawn = QPixmap::fromImage(image);
        QPixmapCache::insert(key, drawn);
        return drawn;
    }

private:
    QString m_fileName;
};

} // namespace

Look preferred()
{
    const QString wanted = qEnvironmentVariable("ORVANE_LOOK").toLower();
    if (wanted == u"dark")
        return Look::Dark;
    if (wanted == u"light")
        return Look::Light;
    constexpr int Middle = 128;
    return QGuiApplication::palette().color(QPalette::Window).lightness() < Middle ? Look::Dark : Look::Light;
}

void apply(QApplication& app, Look look)
{
    const Colours& colours = coloursOf(look);
    app.setProperty(LookProperty, static_cast<int>(look));
    app.setStyle(new LookStyle);
    app.setPalette(paletteOf(colours));
    QFont font;
    font.setFamilies({u"Inter"_s, u"Noto Sans"_s, u"Segoe UI"_s, u"DejaVu Sans"_s});
    font.setPointSize(10);
    app.setFont(font);
    app.setStyleSheet(styleSheetOf(colours));
}

Look currentLook()
{
    return qApp->property(LookProperty).toInt() == static_cast<int>(Look::Dark) ? Look::Dark : Look::Light;
}

QIcon icon(QStringView name)
{
    const QString fileName = u":/icons/%1.svg"_s.arg(name);
    return QFile::exists(fileName) ? QIcon(new LookIconEngine(fileName)) : QIcon();
}

void setIcon(QAction* action, QStringView name)
{
    action->setIcon(icon(name));
}

void setIcon(QAbstractButton* button, QStringView name)
{
    button->setIcon(icon(name));
}

QColor warningColor()
{
    return QColor(coloursOf(currentLook()).warning);
}

QColor quietTextColor()
{
    return QColor(coloursOf(currentLook()).quiet);
}

} // namespace widgets
