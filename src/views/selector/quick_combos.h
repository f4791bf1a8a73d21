#pragma once

#include "jet/database.h"
#include "views/selector/selector_list.h"

#include <QFrame>

namespace widgets {
class FilledCombo;
}

namespace views {

/// The four quick combos of the record selector. Their values are read when they drop down.
class QuickCombos : public QFrame {
    Q_OBJECT

public:
    explicit QuickCombos(jet::Database& book, QWidget* parent = nullptr);

    QuickChoices choices() const;
    bool isAll() const;
    /// Sets all to "All" without a word.
    void reset();
    /// The values are read anew when they are needed next.
    void refill();

Q_SIGNALS:
    void choicesChanged();

private:
    widgets::FilledCombo* addCombo(const QString& name);
    void setSources();

    jet::Database& m_book;
    bool m_categoryChanged = false;
    widgets::FilledCombo* cboCity;
    widgets::FilledCombo* cboPriority;
    widgets::FilledCombo* cboCateg;
    widgets::FilledCombo* cboSubCateg;
};

} // namespace views
