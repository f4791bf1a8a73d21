#pragma once

#include <QLayout>
#include <QList>

namespace widgets {

/// Small controls one behind the other, in as many rows as the place asks for.
class FlowLayout : public QLayout {
    Q_OBJECT

public:
    explicit FlowLayout(QWidget* parent = nullptr);
    ~FlowLayout() override;

    void addItem(QLayoutItem* item) override { m_items << item; }
    int count() const override { return int(m_items.size()); }
    QLayoutItem* itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem* takeAt(int index) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    void setGeometry(const QRect& rect) override;

private:
    int flow(const QRect& rect, bool place) const; ///< @return the height of all rows

    QList<QLayoutItem*> m_items;
};

} // namespace widgets
