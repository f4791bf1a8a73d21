#pragma once

#include <QObject>
#include <QSet>
#include <QTextBlock>
#include <QTimer>

class QTextEdit;

namespace platform {
class Speller;
}

namespace editor {

/// What is drawn over a text without being part of it: waves below words that the speller does not know, and
/// other colours where those of the text can not be seen. Only what is in sight is looked at, so that the
/// length of the text does not count.
class TextMarks : public QObject {
    Q_OBJECT

public:
    explicit TextMarks(QTextEdit* field);

    void setSpeller(platform::Speller* speller);
    platform::Speller* speller() const { return m_speller; }
    void setOn(bool on); ///< the waves
    bool isOn() const { return m_isOn; }
    /// Whether a word is to be marked, were it in sight.
    bool isUnknown(const QString& word) const;
    void ignore(const QString& word); ///< in this text
    void forgetIgnored() { m_ignored.clear(); }
    void refresh(); ///< the speller has learned something, or the colours have changed

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow(int from, int removed, int added);
    void caretMoved();
    void markVisible();
    bool mark(const QTextBlock& block);
    QList<QTextLayout::FormatRange> rangesFor(const QTextBlock& block) const;
    void addWaves(const QTextBlock& block, QList<QTextLayout::FormatRange>* ranges) const;

    QTextEdit* m_field;
    platform::Speller* m_speller = nullptr;
    bool m_isOn = true;
    QSet<QString> m_ignored;
    QTimer m_soon;
    int m_generation = 0;
    bool m_isTyping = false; ///< the word at the caret may not be whole
    bool m_hasChanged = false; ///< since the caret was moved last
    int m_typedAt = 0;
};

} // namespace editor
