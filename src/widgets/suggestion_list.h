#pragma once

#include <QCompleter>
#include <QListView>
#include <QStringList>

class QKeyEvent;
class QLineEdit;

namespace widgets {

/// The values that begin as the text in a field, below that field while it is typed into.
///
/// The list takes neither the focus nor the mouse of others: keys go on to the field that has the focus, and
/// a click elsewhere closes the list and reaches what it was meant for. The field asks it about each key.
class SuggestionList : public QListView {
    Q_OBJECT

public:
    SuggestionList(QLineEdit* line, QAbstractItemModel* values);

    void setSorted(bool sorted); ///< the values are, case aside: they are searched faster then
    /// Shows the values that begin so; goes when there are none, or when the text is one of them already.
    void suggestFor(const QString& typed);
    QStringList suggestions() const;
    /// Whether a key is for the list while it is shown: up and down, Esc, and Enter on a value.
    bool isForList(const QKeyEvent* key) const;
    void take(const QKeyEvent* key);

Q_SIGNALS:
    void picked(int row); ///< of the values
    void passedOver(); ///< by a click or a shortcut, which need not take the focus from the field

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void place();
    void step(int rows);
    void pick(const QModelIndex& index);

    QLineEdit* m_line;
    QCompleter m_matches;
    QString m_typed; ///< by the person, while the line shows a value of the list
};

} // namespace widgets
