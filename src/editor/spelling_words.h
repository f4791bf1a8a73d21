#pragma once

#include <QList>
#include <QStringView>

namespace editor {

/// Where a word stands in a text.
struct WordPlace {
    qsizetype begin = 0;
    qsizetype length = 0;

    qsizetype end() const { return begin + length; }
    bool operator==(const WordPlace&) const = default;
};

/// Whether a letter can stand inside a word; an apostrophe only between two others.
bool isWordLetter(QChar letter);

/// The words whose spelling can be checked: not those with digits, of addresses of the net, or of scripts
/// that write words without blanks.
QList<WordPlace> wordsToCheck(QStringView text);

/// The word before a place in a text, as far as it is typed; of no length when something else stands there,
/// or when the place is inside a word.
WordPlace wordBefore(QStringView text, qsizetype place);

/// How many words stand in a text, by the blanks between them.
qsizetype countWords(QStringView text);

} // namespace editor
