#pragma once

#include <QString>

namespace entry {

/// The word that is being typed in a field with autotext: a blank starts a new one; backspace and "." do not
/// belong to it.
class TypedWord {
public:
    void type(QChar key);
    void clear() { m_word.clear(); }
    const QString& word() const { return m_word; }
    /// The word as it is looked up when "." is pressed: without its last letter.
    QString forLookUp() const { return m_word.chopped(m_word.isEmpty() ? 0 : 1); }

private:
    QString m_word;
};

/// The common words that begin with a word, or all of them when it is empty.
QString commonWordsSql(const QString& word);

/// A text whose last word before a place is replaced by another.
QString withWordReplaced(const QString& text, int cursor, const QString& word, const QString& pick);

} // namespace entry
