#pragma once

#include <QFontMetricsF>
#include <QList>
#include <QWidget>

namespace widgets {

/// Counts side by side, a bar each, with its label and its number. One bar may be the current one.
class BarChart : public QWidget {
    Q_OBJECT

public:
    struct Bar {
        QString label;
        int count = 0;
    };

    explicit BarChart(QWidget* parent = nullptr);

    void setBars(const QList<Bar>& bars);
    void setCurrent(int bar); ///< -1 for none
    /// In the light look, as large as the rectangle allows.
    void print(QPainter& painter, const QRectF& where) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(int bar); ///< by a click

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    double lineHeight(const QFontMetricsF& metrics, double room) const;
    void paintBars(QPainter& painter, const QRectF& where, const QPalette& colors) const;

    QList<Bar> m_bars;
    int m_current = -1;
};

} // namespace widgets
