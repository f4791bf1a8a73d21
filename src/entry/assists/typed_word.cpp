#include "entry/assists/typed_word.h"

using namespace Qt::StringLiterals;

namespace entry {

namespace {

/// A word as a piece of a pattern, in which no letter of it is a wildcard or ends the text.
QString literally(const QString& word)
{
    QString pattern;
    for (const QChar letter : word) {
        if (QStringView(u"*?#[").contains(letter))
            pattern += u'[' + letter + u']';
        else
            pattern += letter == u'\'' ? u"''"_s : QString(letter);
    }
    return pattern;
}

} // namespace

void TypedWord::type(QChar key)
{
    if (key == u' ')
        m_word.clear();
    else if (key != u'\b' && key != u'.' && key.isPrint())
        m_word += key;
}

QString commonWordsSql(const QString& word)
{
    return word.isEmpty()
        ? u"Select * from OV_CmmWrds order by word"_s
        : u"Select * from OV_CmmWrds where word like '"_s + literally(word) + u"*' order by word"_s;
}

QString withWordReplaced(const QString& text, int cursor, const QString& word, const QString& pick)
{
    const QString before = text.left(cursor);
    const QString kept = before.endsWith(word, Qt::CaseInsensitive) ? before.chopped(word.size()) : before;
    return kept + pick + text.mid(cursor);
}

} // namespace entry
