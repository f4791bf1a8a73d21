#include "widgets/tool_tip_box.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include <algorithm>

namespace widgets {

using namespace Qt::StringLiterals;

namespace {

constexpr int WidestText = 340;
constexpr int Gap = 6;
constexpr qreal Radius = 8;

/// Part of its window, not a window of its own: it takes no focus, and moves and goes with what it explains.
class Balloon final : public QLabel {
public:
    explicit Balloon(QWidget* window)
        : QLabel(window)
    {
        setObjectName(u"CToolTip"_s);
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setContentsMargins(14, 10, 14, 10);
        setForegroundRole(QPalette::ToolTipText);
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool escape
            = event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        const bool own = static_cast<QObject*>(window()) == watched || watched->isWidgetType();
        if (escape && own && isVisible()) {
            dismiss();
            return true; // Esc is used up: the screen below stays open
        }
        return QLabel::eventFilter(watched, event);
    }

    void mousePressEvent(QMouseEvent*) override { dismiss(); }

    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QPainterPath frame;
        frame.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
        painter.fillPath(frame, palette().color(QPalette::ToolTipBase));
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawPath(frame);
        painter.end();
        QLabel::paintEvent(event);
    }

private:
    void dismiss()
    {
        hide();
        deleteLater();
    }
};

} // namespace

void showHelpBeside(QWidget* control, const QString& text)
{
    QWidget* window = control->window();
    delete window->findChild<QLabel*>(u"CToolTip"_s, Qt::FindDirectChildrenOnly);
    if (text.trimmed().isEmpty())
        return;

    auto* balloon = new Balloon(window);
    balloon->setText(text);
    const int width = std::min({WidestText, window->width() - 2 * Gap, balloon->sizeHint().width() + 40});
    balloon->resize(width, balloon->heightForWidth(width));

    // To the right of the control, or below, or above; never outside the window.
    const QRect beside(control->mapTo(window, QPoint(0, 0)), control->size());
    QPoint place(beside.right() + Gap, beside.top());
    if (place.x() + balloon->width() > window->width()) {
        place = QPoint(beside.right() - balloon->width(), beside.bottom() + Gap);
        if (place.y() + balloon->height() > window->height())
            place.setY(beside.top() - Gap - balloon->height());
    }
    place.setX(std::clamp(place.x(), Gap, std::max(Gap, window->width() - balloon->width() - Gap)));
    place.setY(std::clamp(place.y(), Gap, std::max(Gap, window->height() - balloon->height() - Gap)));
    balloon->move(place);
    balloon->show();
    balloon->raise();

    constexpr int ShortestTime = 8000;
    constexpr int TimePerCharacter = 60;
    const int time = std::max(ShortestTime, static_cast<int>(text.size()) * TimePerCharacter);
    QTimer::singleShot(time, balloon, &QObject::deleteLater);
}

} // namespace widgets
