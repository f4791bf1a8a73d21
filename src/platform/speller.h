#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// Checks the spelling of single words, by one of the dictionaries of this computer and the person's own
/// words. Without a dictionary every word counts as known.
class Speller {
public:
    Speller() = default;
    Speller(const Speller&) = delete;
    Speller& operator=(const Speller&) = delete;
    virtual ~Speller() = default;

    /// The dictionaries there are, by language and territory ("en_US"), sorted.
    virtual QStringList dictionaries() const = 0;
    /// The one that is used; empty when none fits the person's language, or none is installed.
    virtual QString dictionary() const = 0;
    /// Uses another one from now on, and the next time the program runs. False when it can not be read.
    virtual bool setDictionary(const QString& name) = 0;
    virtual bool isKnown(const QString& word) = 0;
    /// What may have been meant, the likeliest first.
    virtual QStringList suggestions(const QString& word) = 0;

    /// The words that the person has added; they hold in every language.
    virtual QStringList ownWords() const = 0;
    /// False when the list can not be stored; the word is then not added.
    virtual bool addWord(const QString& word) = 0;
    virtual bool removeWord(const QString& word) = 0;
};

} // namespace platform
