#pragma once

#include "views/filters/filter_screen.h"

#include <QHash>

class QLineEdit;

namespace widgets {
class FilledCombo;
}

namespace views {

/// The common filter: a keyword for all main fields, or a choice for each of eight.
class frmFilter : public FilterScreen {
    Q_OBJECT

public:
    explicit frmFilter(core::Context& context, QWidget* parent = nullptr);

    void load() override;

protected:
    QString whereClause() const override;
    void chooseAll() override;
    void showEvent(QShowEvent* event) override;

private:
    FilterChoices choices() const;

    QLineEdit* txtkey = nullptr;
    QHash<QString, widgets::FilledCombo*> m_combos;
};

} // namespace views
