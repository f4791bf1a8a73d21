#include "editor/spelling_words.h"

#include <algorithm>

namespace editor {

namespace {

bool isApostrophe(QChar letter)
{
    return letter == u'\'' || letter == u'\u2019';
}

bool isPart(QStringView text, qsizetype at)
{
    const QChar letter = text[at];
    if (isWordLetter(letter))
        return true;
    return isApostrophe(letter) && at > 0 && at + 1 < text.size() && isWordLetter(text[at - 1])
        && isWordLetter(text[at + 1]);
}

/// Words of these scripts run into one another.
bool hasNoBlanks(QChar letter)
{
    switch (letter.script()) {
    case QChar::Script_Han:
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
    case QChar::Script_Thai:
    case QChar::Script_Lao:
    case QChar::Script_Khmer:
    case QChar::Script_Myanmar: return true;
    default: return letter.isSurrogate();
    }
}

bool isAddress(QStringView token)
{
    return token.contains(u"://") || token.contains(u'@') || token.startsWith(u"www.", Qt::CaseInsensitive);
}

bool canBeChecked(QStringView word)
{
    return word.size() > 1
        && std::none_of(word.begin(), word.end(), [](QChar c) { return c.isDigit() || hasNoBlanks(c); });
}

} // namespace

bool isWordLetter(QChar letter)
{
    return letter.isLetterOrNumber() || letter.isMark() || letter.isSurrogate() || letter == u'\u00ad';
}

QList<WordPlace> wordsToCheck(QStringView text)
{
    QList<WordPlace> words;
    for (qsizetype at = 0; at < text.size();) {
        if (text[at].isSpace()) {
            ++at;
            continue;
        }
        qsizetype tokenEnd = at;
        while (tokenEnd < text.size() && !text[tokenEnd].isSpace())
            ++tokenEnd;
        if (isAddress(text.sliced(at, tokenEnd - at)))
            at = tokenEnd;
        while (at < tokenEnd) {
            const qsizetype begin = at;
            while (at < tokenEnd && isPart(text, at))
                ++at;
            if (canBeChecked(text.sliced(begin, at - begin)))
                words << WordPlace{begin, at - begin};
            if (at == begin)
                ++at;
        }
    }
    return words;
}

WordPlace wordBefore(QStringView text, qsizetype place)
{
    qsizetype begin = place;
    while (begin > 0 && isPart(text, begin - 1))
        --begin;
    const bool isInside = place < text.size() && isPart(text, place);
    return isInside ? WordPlace{place, 0} : WordPlace{begin, place - begin};
}

qsizetype countWords(QStringView text)
{
    qsizetype count = 0;
    bool isInside = false;
    bool hasLetter = false;
    for (const QChar c : text) {
        isInside = !c.isSpace();
        if (!isInside)
            hasLetter = false;
        else if (!hasLetter && isWordLetter(c)) {
            hasLetter = true;
            ++count;
        }
    }
    return count;
}

} // namespace editor
