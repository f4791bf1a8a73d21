#pragma once

#include "jet/database.h"
#include "views/search/search_clauses.h"

#include <QHash>
#include <QWidget>

class QGroupBox;
class QPushButton;

namespace widgets {
class FilledCombo;
class FormKit;
} // namespace widgets

namespace views {

/// The choices of the search screen: the filter with its second half behind a button, and the quick search
/// for a name. The lists of values are read when they drop down.
class SearchFilter : public QWidget {
    Q_OBJECT

public:
    explicit SearchFilter(jet::Database& book, QWidget* parent = nullptr);

    SearchChoices choices() const;
    NameChoices names() const;
    /// Sets all to "All" without a word.
    void reset();
    /// The values are read anew when they are needed next.
    void refill();
    void setFindVisible(bool on);

    QPushButton* SSCommand6 = nullptr; ///< sets all to "All"; the list is the screen's

Q_SIGNALS:
    void choicesChanged();
    void namesChanged();

private:
    QGroupBox* layOutFind();
    QGroupBox* layOutFilter();
    QGroupBox* layOutAdvanced();
    void connectCombos();
    void resetWithin(bool find); ///< the quick search, or the filter
    void setQuietly(const QString& combo, const QString& text);
    QString text(const QString& combo) const;

    QHash<QString, widgets::FilledCombo*> m_combos;
    QGroupBox* Frame1;
    QGroupBox* Frame2;
};

} // namespace views
