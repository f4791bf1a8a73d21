#pragma once

#include "core/context.h"

#include <QObject>

#include <functional>

class QMenu;
class QWidget;

namespace widgets {
class HeadingGrid;
}

namespace shell {

class KeyArbiter;

/// Printing and exporting of whatever list is in front: that with the focus, else the largest one of the
/// screen in front. A list that has no menu of its own offers the same at the right button. One that
/// shall have none at all, such as a sample of what is exported elsewhere, is passed over.
class ListCommands : public QObject {
    Q_OBJECT

public:
    using FrontScreen = std::function<QWidget*()>;
    /// @param menu with the entries `ListPrint`, `FileExport` and `ListSize`
    ListCommands(core::Context& context, FrontScreen frontScreen, QMenu* menu, KeyArbiter& keys);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Command = std::function<void(widgets::HeadingGrid*)>;

    widgets::HeadingGrid* listInFront() const;
    void withListInFront(const Command& command) const;
    void print(widgets::HeadingGrid* list) const;
    void exportToFile(widgets::HeadingGrid* list) const;
    void fillSizes(QMenu* sizes, const std::function<widgets::HeadingGrid*()>& list) const;
    void offer(widgets::HeadingGrid* list, const QPoint& place) const;

    core::Context& m_context;
    FrontScreen m_frontScreen;
};

} // namespace shell
