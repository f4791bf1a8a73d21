#pragma once

#include "core/setup_panel.h"

class QLabel;

namespace widgets {
class HeadingGrid;
}

namespace letters {

/// Which fields of a mail record the reports show; a tick is stored at once.
class MailFieldsPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit MailFieldsPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;

private:
    void store(int row);

    widgets::HeadingGrid* Grid2;
    QLabel* m_hint;
};

} // namespace letters
