#pragma once

#include "jet/database.h"
#include "views/search/tree_search_sql.h"

#include <QWidget>

namespace widgets {
class FilledCombo;
}

namespace views {

/// The quick search of the advanced search screen: first and last name and company.
class NameChoicesPanel : public QWidget {
    Q_OBJECT

public:
    explicit NameChoicesPanel(jet::Database& book, QWidget* parent = nullptr);

    /// Holds but the three.
    TreeChoices choices() const;
    /// Sets all to "All" without a word.
    void reset();
    /// The values are read anew when they are needed next.
    void refill();

Q_SIGNALS:
    void choicesChanged();
    void allWanted();

private:
    void setTexts(const QString& text);

    QList<widgets::FilledCombo*> m_combos;
};

} // namespace views
