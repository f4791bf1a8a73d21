#pragma once

#include <QTextCursor>
#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QTextEdit;

namespace editor {

class TextMarks;

/// Walks through a text from the caret, word by word that is not known, in a strip above it.
class SpellingStrip : public QWidget {
    Q_OBJECT

public:
    SpellingStrip(QTextEdit* field, TextMarks* marks);

    void open(); ///< from the caret on
    bool addWord(const QString& word); ///< to the person's own; false, and said, when it can not be stored

Q_SIGNALS:
    void wordsChanged();

protected:
    bool event(QEvent* event) override;

private:
    void layOut();
    void next();
    bool findFrom(int position, int end);
    void change(bool everywhere);
    void ignore(bool everywhere);
    void end(const QString& told);
    void close();

    QTextEdit* m_field;
    TextMarks* m_marks;
    QLabel* m_told;
    QComboBox* m_other;
    QList<QPushButton*> m_buttons; ///< for the word that was found
    QTextCursor m_begun; ///< where the walk began; it ends there
    QTextCursor m_at; ///< behind the word that was looked at last
    bool m_isRound = false; ///< the end of the text is behind us
    QString m_word;
};

} // namespace editor
