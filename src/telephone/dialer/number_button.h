#pragma once

#include <QPushButton>

namespace telephone {

/// A text that can be clicked: a number of a person, a place of the memory. It is shown as it is, and cut
/// where there is no room; the whole is its tool tip.
class NumberButton : public QPushButton {
    Q_OBJECT

public:
    /// @param blank what stands there while there is no text
    explicit NumberButton(const QString& name, const QString& blank = {}, QWidget* parent = nullptr);

    void setValue(const QString& value);
    const QString& value() const { return m_value; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_value;
    QString m_blank;
};

} // namespace telephone
