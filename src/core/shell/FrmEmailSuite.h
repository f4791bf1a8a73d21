#pragma once

#include "core/context.h"

#include <QMainWindow>

namespace shell {

/// The small shell of those who use the program for e-mail only: a list bar, and room for the screens of
/// e-mail.
class FrmEmailSuite : public QMainWindow {
    Q_OBJECT

public:
    explicit FrmEmailSuite(core::Context& context);

Q_SIGNALS:
    void firstActivated();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    core::Context& m_context;
};

} // namespace shell
