#pragma once

#include "core/setup/setup_settings.h"
#include "core/setup_panel.h"

class QButtonGroup;

namespace widgets {
class FilledCombo;
class FormKit;
} // namespace widgets

namespace setup {

/// What a new contact starts with, which copies are made of it, where files go, and how large lists are.
/// Check boxes and the company suffix are written at once, the rest by its Save button.
class DefaultPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit DefaultPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    void layOutDefaults(widgets::FormKit& form);
    void layOutFiles(widgets::FormKit& form);
    void layOutFont(widgets::FormKit& form);
    void addSwitch(widgets::FormKit& form, QStringView control);
    void setSources();
    void connectControls();

    widgets::FilledCombo* combo(const QString& name) const;
    Defaults defaults() const;
    void save();
    void writeSwitch(const Switch& which, bool on);
    void writeSuffix();
    void chooseFolder();
    void saveStoreRule();
    void saveFont();
    void tell(const QString& hint);

    Defaults m_shown; ///< as they were read
    bool m_isRead = false;
    QString m_suffix; ///< as it is stored
    QButtonGroup* m_rules;
    QButtonGroup* m_fonts;
    QLabel* m_hint;
};

} // namespace setup
