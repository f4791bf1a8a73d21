#pragma once

#include <memory>

#include <QHash>
#include <QSet>

#include "platform/speller.h"

class Hunspell;

namespace platform {

/// The folders of this computer in which dictionaries lie.
QStringList dictionaryFolders();

/// Dictionaries of the kind that most programs of the desktop share. One is read when the first word is
/// checked. The person's words and choice are files in the given folder.
class HunspellSpeller final : public Speller {
public:
    HunspellSpeller(const QString& folder, const QStringList& dictionaryFolders, const QString& language);
    ~HunspellSpeller() override;

    QStringList dictionaries() const override;
    QString dictionary() const override;
    bool setDictionary(const QString& name) override;
    bool isKnown(const QString& word) override;
    QStringList suggestions(const QString& word) override;
    QStringList ownWords() const override;
    bool addWord(const QString& word) override;
    bool removeWord(const QString& word) override;

private:
    void findDictionaries() const;
    void readOwnWords() const;
    bool storeOwnWords(const QSet<QString>& words);
    bool load();
    std::string encoded(const QString& word, bool* fits) const;

    QString m_folder;
    QStringList m_dictionaryFolders;
    QString m_language;
    mutable QHash<QString, QString> m_found; ///< dictionaries and their paths, without the ending
    mutable bool m_hasLooked = false;
    mutable QSet<QString> m_ownWords;
    mutable bool m_hasOwnWords = false;
    QString m_chosen;
    bool m_isBroken = false; ///< the chosen one can not be read
    std::unique_ptr<Hunspell> m_hunspell;
    QByteArray m_charset;
    QHash<QString, bool> m_checked;
};

} // namespace platform
