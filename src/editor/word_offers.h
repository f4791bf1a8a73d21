#pragma once

#include <QFrame>
#include <QStringList>

#include <functional>

class QLabel;
class QListWidget;
class QTextEdit;

namespace editor {

class TextField;

/// Stored words that begin as the word at the caret, below it while one types. The full stop takes the chosen
/// one; it is chosen already where what is typed is no word yet, else the arrow keys choose. Any other key is
/// typed as ever.
class WordOffers : public QFrame {
    Q_OBJECT

public:
    using Source = std::function<QStringList(const QString& prefix)>;
    using IsWord = std::function<bool(const QString& word)>;

    explicit WordOffers(TextField* field);

    void setSource(Source source) { m_source = std::move(source); }
    bool hasSource() const { return bool(m_source); }
    /// Says of what is typed whether it could stay as it is.
    void setIsWord(IsWord isWord) { m_isWord = std::move(isWord); }
    /// Shows all words, or those for the word at the caret, however short.
    void offerAll();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    bool isForList(const QKeyEvent* key) const;
    void takeKey(const QKeyEvent* key);
    void offer();
    void show(const QStringList& words, bool isChosen);
    void choose(int row);
    void take();
    void place();

    TextField* m_field;
    QListWidget* m_list;
    QLabel* m_hint;
    Source m_source;
    IsWord m_isWord;
    int m_declined = -1; ///< where the word begins for which the list was closed
    bool m_hasMoved = false; ///< the person has chosen by the arrow keys
};

} // namespace editor
