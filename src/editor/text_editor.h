#pragma once

#include "editor/text_commands.h"
#include "formats/rich_text.h"

#include <QTextEdit>
#include <QTimer>
#include <QWidget>

#include <functional>

class QLabel;
class QMenu;
class QToolButton;

namespace platform {
class Speller;
}

namespace editor {

class FindStrip;
class SpellingStrip;
class TextField;
class TextMarks;
class TextTools;
class WordOffers;

/// A text with its tool bar: bold, lists, fonts, spelling and words that are offered while one types.
class TextEditor : public QWidget {
    Q_OBJECT

public:
    /// Stored words that begin with what was typed, in their order.
    using WordSource = std::function<QStringList(const QString& prefix)>;

    explicit TextEditor(QWidget* parent = nullptr);

    /// In place of the text there is; nothing is left to undo, and it counts as unchanged.
    void setText(const formats::RichText& text);
    formats::RichText text() const;
    QString plainText() const;
    /// Puts a text in at the caret, as one step to undo.
    void insertText(const QString& text);
    /// The same with its looks.
    void insertText(const formats::RichText& text);
    /// Words that are offered for the one being typed, and taken by ".".
    void setWordSource(WordSource words);
    /// Checks the spelling from now on; it has to live as long as the editor. Null for none.
    void setSpeller(platform::Speller* speller);
    /// Whether a person has changed the text since it was set, or since setModified(false).
    bool isModified() const;
    void setModified(bool modified);
    void setReadOnly(bool readOnly);
    /// What a tool of the bar does.
    void perform(TextCommand command);
    /// The field itself, for its name, its place in the order of tabs and its menu.
    QTextEdit& field() const;

public Q_SLOTS:
    void checkSpelling(); ///< word by word, from the caret
    void chooseFont(); ///< for what is selected, or for what is typed next

Q_SIGNALS:
    void textChanged();

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* layOutFoot();
    void fillSpellingMenu();
    void showMenu(QContextMenuEvent* event);
    void offerCorrections(QMenu* menu, const QTextCursor& word);
    void editOwnWords();
    void tellCounts();
    void tellLanguage();

    TextField* m_field;
    TextMarks* m_marks;
    TextTools* m_tools;
    FindStrip* m_find;
    SpellingStrip* m_spelling;
    WordOffers* m_offers;
    QToolButton* m_language;
    QMenu* m_spellingMenu;
    QLabel* m_counts;
    QTimer m_countSoon;
};

} // namespace editor
