#pragma once

#include "core/setup_panel.h"

class QCheckBox;

namespace setup {

/// What is dialled before a number.
class DialerPanel : public core::SetupPanel {
    Q_OBJECT

public:
    explicit DialerPanel(core::Context& context, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    QStringList texts() const;
    QString text(const QString& control) const;
    void save();
    void writeCitySwitch(bool on);

    QCheckBox* chkDialerCity;
    QLabel* m_hint;
    QStringList m_shown; ///< as they were read
};

} // namespace setup
