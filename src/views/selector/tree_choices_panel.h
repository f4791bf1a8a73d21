#pragma once

#include "jet/database.h"
#include "views/search/tree_search_sql.h"

#include <QHash>
#include <QWidget>

namespace widgets {
class FilledCombo;
}

namespace views {

class KeywordPanel;

/// The choices of the advanced search, each with "All" first, and behind a button the search for a keyword.
/// The lists of values are read when they drop down.
class TreeChoicesPanel : public QWidget {
    Q_OBJECT

public:
    explicit TreeChoicesPanel(jet::Database& book, QWidget* parent = nullptr);

    TreeChoices choices() const;
    /// Sets all to "All" without a word.
    void reset();
    /// The values are read anew when they are needed next.
    void refill();
    void openKeyword();

Q_SIGNALS:
    void choicesChanged();
    void keywordWanted(const QString& keyword);

private:
    void layOut();
    void setSources(jet::Database& book);
    void connectCombos();

    QHash<QString, widgets::FilledCombo*> m_combos;
    KeywordPanel* m_keyword;
};

} // namespace views
