#pragma once

#include "core/setup_panel.h"
#include "letters/ltr_setup/mail_setup.h"

class QLabel;

namespace widgets {
class FilledCombo;
}

namespace letters {

/// Under which words of the journal letters and mails are noted.
class JournalPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit JournalPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    struct Row {
        Noted what;
        widgets::FilledCombo* category;
        widgets::FilledCombo* subcategory;
        JournalWords shown;
    };
    static JournalWords typed(const Row& row);
    void save();

    QList<Row> m_rows;
    QLabel* m_hint;
};

} // namespace letters
