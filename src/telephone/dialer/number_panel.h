#pragma once

#include "telephone/dialer/dial_prefixes.h"

#include <QList>
#include <QWidget>

class QLabel;

namespace telephone {

class NumberButton;

/// The numbers of the person, address by address, each a button, with the area code in front.
class NumberPanel : public QWidget {
    Q_OBJECT

public:
    explicit NumberPanel(QWidget* parent = nullptr);

    void show(const ColumnText& contact);
    using QWidget::show;

Q_SIGNALS:
    void clicked(int place); ///< of numberSlots()

private:
    QList<NumberButton*> m_numbers; ///< lblhph(1) to lblhph(11)
    QList<QLabel*> m_codes; ///< lblhstd(1) to lblhstd(3)
};

} // namespace telephone
