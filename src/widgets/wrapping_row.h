#pragma once

#include <QLayout>
#include <QList>

namespace widgets {

/// Parts side by side, each as wide as its stretch says, while there is room for all; where there is not,
/// they stand in as many rows as it takes, the same number in each. For pages that scroll down: it never asks
/// for more width than its widest part.
class WrappingRow : public QLayout {
    Q_OBJECT

public:
    explicit WrappingRow(QWidget* parent = nullptr);
    ~WrappingRow() override;

    void add(QWidget* part, int stretch = 1);
    void add(QLayout* part, int stretch = 1);

    void addItem(QLayoutItem* item) override;
    int count() const override { return int(m_parts.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    bool hasHeightForWidth() const override { return true; }
    /// The least that is enough, since what is higher than the page's view scrolls.
    int heightForWidth(int width) const override;
    int minimumHeightForWidth(int width) const override { return heightForWidth(width); }
    void setGeometry(const QRect& rect) override;

private:
    struct Part {
        QLayoutItem* item;
        int stretch;
    };
    int inARow(int width) const;
    bool fits(int parts, int width) const;
    QList<int> widthsOf(int first, int last, int width) const;
    int heightOf(int first, const QList<int>& widths) const;
    int between() const;

    QList<Part> m_parts;
};

} // namespace widgets
