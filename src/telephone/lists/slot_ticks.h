#pragma once

#include "telephone/lists/list_members.h"

#include <QWidget>

#include <functional>
#include <vector>

class QCheckBox;
class QLabel;

namespace telephone {

/// The twelve numbers of a contact, each with a tick for the ones that are wanted. Ticks stay while the
/// contact changes, so that one kind of number can be taken of many people.
class SlotTicks : public QWidget {
    Q_OBJECT

public:
    explicit SlotTicks(QWidget* parent = nullptr);

    /// Shows the numbers of a contact, by the name of a column; all blank without a reader.
    void show(const std::function<QString(const QString& column)>& read);
    using QWidget::show;
    QList<TaggedNumber> ticked() const;

private:
    std::vector<QCheckBox*> m_ticks;
    std::vector<QLabel*> m_numbers;
};

} // namespace telephone
