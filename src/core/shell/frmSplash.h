#pragma once

#include "core/context.h"

#include <QTimer>
#include <QWidget>

class QLineEdit;
class QProgressBar;

namespace shell {

/// The start-up screen. It opens nothing by itself: it keeps one reading of the settings row, and a tenth of
/// a second after it came up says which shell is wanted. It lives until that shell is first activated.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    explicit frmSplash(core::Context& context);

    void load();
    bool hasTicked() const { return TickCount > 0; }

Q_SIGNALS:
    void mainShellWanted();
    void emailShellWanted();
    void bookUnreadable(); ///< the first tick found no settings to read
    void activated();
    void previousCallsWanted(); ///< the login path was passed

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    void layOut();
    void tick();
    void handOver(void (frmSplash::*wanted)());
    void logIn();
    void animate();

    core::Context& m_context;
    jet::Recordset SetupRecordset;
    qint32 TickCount = 0;
    QTimer Timer1;
    QTimer Timer2;
    QLineEdit* txtpassword = nullptr;
    QProgressBar* dxProgressBar1 = nullptr;
    QString m_password; ///< none is set: an empty box passes
};

} // namespace shell
