#pragma once

#include "core/setup/setup_lists.h"
#include "core/setup_panel.h"

#include <QList>

class QLineEdit;
class QPushButton;
class QRadioButton;

namespace widgets {
class RecordList;
}

namespace setup {

/// One word list, or several that share a pair of buttons and are chosen above: the words, and a box in which
/// the chosen one is changed or a new one typed. What can not be stored is said in a hint below.
class ListPanel : public core::SetupPanel {
    Q_OBJECT

public:
    ListPanel(core::Context& context, const QList<const WordList*>& lists, QWidget* parent = nullptr);

    void refresh() override;
    bool isTouched() const override;

private:
    void layOut();
    void chooseList(const WordList* list);
    void readWords(const QString& current);
    void wordChosen();
    int rowOf(const QString& word) const;
    void rowChanged();
    void startNew();
    void save();
    void remove();
    void tell(const QString& hint);
    QString caption(const WordList& list) const;

    QList<const WordList*> m_lists;
    const WordList* m_list;
    QString m_old; ///< the word that is being changed; empty while a new one is typed
    bool m_isReading = false;
    bool m_isOffered = false; ///< the word in the box was put there, after it was deleted

    QList<QRadioButton*> m_choices;
    widgets::RecordList* m_words;
    QLineEdit* m_box = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_delete = nullptr;
    QLabel* m_hint;
};

} // namespace setup
