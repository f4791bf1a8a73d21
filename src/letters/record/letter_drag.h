#pragma once

#include <QList>
#include <QObject>
#include <QPoint>

#include <optional>

namespace widgets {
class HeadingGrid;
}

namespace letters {

/// Lets letters of one list be dragged onto a row of another one with the mouse.
class LetterDrag : public QObject {
    Q_OBJECT

public:
    LetterDrag(widgets::HeadingGrid* from, widgets::HeadingGrid* onto, QObject* parent);

    /// Whether rows take letters at present.
    void setEnabled(bool enabled) { m_isEnabled = enabled; }

Q_SIGNALS:
    void dropped(const QList<qint64>& letters, int row);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool watchSource(QEvent* event);
    bool watchTarget(QEvent* event);

    widgets::HeadingGrid* m_from;
    widgets::HeadingGrid* m_onto;
    bool m_isEnabled = false;
    std::optional<QPoint> m_pressed;
};

} // namespace letters
