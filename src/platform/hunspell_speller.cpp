#include "platform/hunspell_speller.h"

#include <algorithm>

#include <hunspell/hunspell.hxx>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSettings>
#include <QStandardPaths>
#include <QStringConverter>

#include "platform/durable_files.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr qsizetype kLongestWord = 100; ///< longer ones are no words of a language
constexpr qsizetype kLongestForSuggestions = 40; ///< the search takes long
constexpr qint64 kMostOwnWords = 4 * 1024 * 1024; ///< bytes of the file
constexpr qsizetype kMostRemembered = 50'000; ///< words that were checked

QString ownWordsFile(const QString& folder)
{
    return QDir(folder).filePath(u"words.txt"_s);
}

QString settingsFile(const QString& folder)
{
    return QDir(folder).filePath(u"spelling.ini"_s);
}

/// The spelling that dictionaries have: a straight apostrophe, and nothing that can not be seen.
QString plainWord(QString word)
{
    word.replace(u'\u2019', u'\'');
    return word.remove(u'\u00ad');
}

/// The name of a character set as dictionaries write it, as decoders know it.
QByteArray charsetOf(QByteArray name)
{
    name = name.trimmed();
    constexpr const char* kMicrosoft = "microsoft-cp";
    if (name.toLower().startsWith(kMicrosoft))
        return "windows-" + name.sliced(qsizetype(qstrlen(kMicrosoft)));
    if (name.toUpper().startsWith("ISO8859"))
        return "ISO-" + name.sliced(3);
    return name.toUpper() == "TIS620-2533" ? QByteArray("TIS-620") : name;
}

} // namespace

QStringList dictionaryFolders()
{
    QStringList folders = qEnvironmentVariable("DICPATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    for (const QString& data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders << data + u"/hunspell"_s << data + u"/myspell/dicts"_s << data + u"/myspell"_s;
    folders << u"/usr/share/hunspell"_s << u"/usr/share/myspell/dicts"_s;
    folders.removeDuplicates();
    return folders;
}

HunspellSpeller::HunspellSpeller(
    const QString& folder, const QStringList& dictionaryFolders, const QString& language)
    : m_folder(folder)
    , m_dictionaryFolders(dictionaryFolders)
    , m_language(language == u"C" ? u"en_US"_s : language)
{
}

HunspellSpeller::~HunspellSpeller() = default;

QStringList HunspellSpeller::dictionaries() const
{
    findDictionaries();
    QStringList names = m_found.keys();
    names.sort();
    return names;
}

void HunspellSpeller::findDictionaries() const
{
    if (std::exchange(m_hasLooked, true))
        return;
    for (const QString& path : m_dictionaryFolders) {
        const QDir folder(path);
        for (const QString& rules : folder.entryList({u"*.aff"_s}, QDir::Files)) {
            const QString name = rules.chopped(4);
            // The first folder wins, as those of the person stand in front.
            if (folder.exists(name + u".dic"_s) && !m_found.contains(name))
                m_found.insert(name, folder.filePath(name));
        }
    }
}

// A dictionary of another language would find fault with every word, so none is taken unasked.
QString HunspellSpeller::dictionary() const
{
    const QStringList names = dictionaries();
    const QString chosen = m_chosen.isEmpty()
        ? QSettings(settingsFile(m_folder), QSettings::IniFormat).value(u"dictionary"_s).toString()
        : m_chosen;
    if (names.contains(chosen))
        return chosen;
    if (names.contains(m_language))
        return m_language;
    const QString language = m_language.section(u'_', 0, 0);
    if (names.contains(language))
        return language;
    const auto found = std::find_if(
        names.begin(), names.end(), [&](const QString& name) { return name.startsWith(language + u'_'); });
    return found == names.end() ? QString() : *found;
}

bool HunspellSpeller::setDictionary(const QString& name)
{
    if (!dictionaries().contains(name))
        return false;
    const QString before = dictionary();
    m_hunspell.reset();
    m_checked.clear();
    m_isBroken = false;
    m_chosen = name;
    if (!load()) {
        m_chosen = before;
        m_isBroken = false;
        return false;
    }
    QSettings(settingsFile(m_folder), QSettings::IniFormat).setValue(u"dictionary"_s, name);
    return true;
}

bool HunspellSpeller::load()
{
    if (m_hunspell)
        return true;
    const QString name = dictionary();
    if (m_isBroken || name.isEmpty())
        return false;
    const QByteArray path = QFile::encodeName(m_found.value(name));
    m_isBroken = !QFile(m_found.value(name) + u".aff"_s).open(QIODevice::ReadOnly)
        || !QFile(m_found.value(name) + u".dic"_s).open(QIODevice::ReadOnly);
    if (m_isBroken)
        return false;
    m_chosen = name;
    m_hunspell = std::make_unique<Hunspell>((path + ".aff").constData(), (path + ".dic").constData());
    m_charset = charsetOf(QByteArray::fromStdString(m_hunspell->get_dict_encoding()));
    if (!QStringEncoder(m_charset.constData()).isValid())
        m_charset = "ISO-8859-1";
    readOwnWords();
    return true;
}

std::string HunspellSpeller::encoded(const QString& word, bool* fits) const
{
    QStringEncoder encoder(m_charset.constData());
    const QByteArray bytes = encoder.encode(word);
    *fits = !encoder.hasError() && !bytes.contains('\x1a');
    return bytes.toStdString();
}

bool HunspellSpeller::isKnown(const QString& word)
{
    if (word.size() > kLongestWord || !load())
        return true;
    const QString plain = plainWord(word);
    readOwnWords();
    if (m_ownWords.contains(plain) || m_ownWords.contains(plain.toLower()))
        return true;
    if (const auto known = m_checked.constFind(plain); known != m_checked.constEnd())
        return *known;
    bool fits = false;
    const std::string bytes = encoded(plain, &fits);
    const bool isKnown = fits && m_hunspell->spell(bytes);
    if (m_checked.size() > kMostRemembered)
        m_checked.clear();
    m_checked.insert(plain, isKnown);
    return isKnown;
}

QStringList HunspellSpeller::suggestions(const QString& word)
{
    if (word.size() > kLongestForSuggestions || !load())
        return {};
    bool fits = false;
    const std::string bytes = encoded(plainWord(word), &fits);
    QStringList words;
    if (fits) {
        QStringDecoder decoder(m_charset.constData());
        for (const std::string& each : m_hunspell->suggest(bytes))
            words << decoder.decode(QByteArray::fromStdString(each));
    }
    // Words of the person that differ in case only.
    for (const QString& own : ownWords()) {
        if (own.compare(word, Qt::CaseInsensitive) == 0 && !words.contains(own))
            words.prepend(own);
    }
    return words;
}

void HunspellSpeller::readOwnWords() const
{
    if (std::exchange(m_hasOwnWords, true))
        return;
    QFile file(ownWordsFile(m_folder));
    if (!file.open(QIODevice::ReadOnly))
        return;
    for (const QString& line : QString::fromUtf8(file.read(kMostOwnWords)).split(u'\n')) {
        const QString word = line.trimmed();
        if (!word.isEmpty() && word.size() <= kLongestWord)
            m_ownWords.insert(word);
    }
}

QStringList HunspellSpeller::ownWords() const
{
    readOwnWords();
    QStringList words(m_ownWords.begin(), m_ownWords.end());
    words.sort(Qt::CaseInsensitive);
    return words;
}

bool HunspellSpeller::addWord(const QString& word)
{
    const QString plain = plainWord(word).simplified();
    readOwnWords();
    if (plain.isEmpty() || plain.size() > kLongestWord)
        return false;
    QSet<QString> words = m_ownWords;
    words.insert(plain);
    return storeOwnWords(words);
}

bool HunspellSpeller::removeWord(const QString& word)
{
    readOwnWords();
    QSet<QString> words = m_ownWords;
    return words.remove(plainWord(word)) && storeOwnWords(words);
}

// The list is what the person has typed in years: the old one stays until the new one is whole on the disk.
bool HunspellSpeller::storeOwnWords(const QSet<QString>& words)
{
    QStringList sorted(words.begin(), words.end());
    sorted.sort(Qt::CaseInsensitive);
    const QString name = ownWordsFile(m_folder);
    const QString finished = name + u".new"_s;
    QFile file(finished);
    const QByteArray bytes = (sorted.join(u'\n') + u'\n').toUtf8();
    const bool isWritten
        = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    file.close();
    if (!isWritten || !putInPlace(finished, name)) {
        QFile::remove(finished);
        return false;
    }
    m_ownWords = words;
    return true;
}

} // namespace platform
