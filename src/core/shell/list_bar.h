#pragma once

#include "core/command_table.h"

#include <QTreeWidget>

#include <functional>

namespace shell {

/// The bar at the side with the areas of the program; an area opens to its commands, a click on one starts
/// it. A command whose screen is not there yet is grey, and out of sight until the person wants to see it.
class ListBar : public QTreeWidget {
    Q_OBJECT

public:
    using IsAvailable = std::function<bool(const core::Action&)>;
    explicit ListBar(const IsAvailable& isAvailable, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {210, 400}; }
    QSize minimumSizeHint() const override { return {190, 100}; }

    void showWhatIsToCome(bool shown);

Q_SIGNALS:
    void chosen(const core::Action& action);

private:
    void start(const QTreeWidgetItem* item);
};

} // namespace shell
