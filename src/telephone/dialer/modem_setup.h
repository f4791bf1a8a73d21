#pragma once

#include "core/context.h"

#include <QDialog>

class QLabel;

namespace telephone {

/// Which device of this computer is behind each port of the dialer: one that was found, or a path typed by
/// hand.
class ModemSetup : public QDialog {
    Q_OBJECT

public:
    explicit ModemSetup(core::Context& context, QWidget* parent = nullptr);

    void accept() override;

private:
    void fill();
    void followPath(int port);
    QString path(int port) const;

    core::Context& m_context;
    QLabel* m_fault;
};

} // namespace telephone
