#include "core/text_pieces.h"

#include <QList>

using namespace Qt::StringLiterals;

namespace core {

namespace {

QString pick(QStringView text, QChar mark, int n)
{
    const auto items = text.split(mark);
    return n >= 1 && n <= items.size() ? items[n - 1].toString() : QString();
}

} // namespace

QString PickByComma(QStringView text, int n)
{
    return pick(text, u',', n);
}
QString PickByDash(QStringView text, int n)
{
    return pick(text, u'-', n);
}

QString FormatOperator(QStringView word)
{
    const QString upper = word.trimmed().toString().toUpper();
    return upper == u"BEFORE" ? u"<"_s : upper == u"AFTER" ? u">"_s : u"="_s;
}

QString LeftOfLastBackslash(const QString& path)
{
    return path.left(qMax<qsizetype>(0, path.lastIndexOf(u'\\')));
}
QString AfterLastBackslash(const QString& path)
{
    return path.mid(path.lastIndexOf(u'\\') + 1);
}

} // namespace core
