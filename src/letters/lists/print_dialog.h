#pragma once

#include "core/context.h"
#include "letters/labels/label_panel.h"

#include <QDialog>

class QLabel;

namespace letters {

/// The choices before the members of a list are printed. It closes before pages are shown and keeps the
/// choices for the next time.
class PrintDialog : public QDialog {
    Q_OBJECT

public:
    explicit PrintDialog(core::Context& context, QWidget* parent);

    /// @param who of whom something is printed, for the person to read
    void ask(const QString& who);

Q_SIGNALS:
    void chosen(const letters::LabelChoice& choice);

private:
    LabelPanel* m_panel;
    QLabel* lblWho;
};

} // namespace letters
