#include "platform/file_filter.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString patterns(QStringView list)
{
    QStringList found;
    for (const QStringView pattern : list.split(u';', Qt::SkipEmptyParts)) {
        // "*.*" would leave out the names without a dot.
        const QStringView trimmed = pattern.trimmed();
        if (!trimmed.isEmpty())
            found << (trimmed == u"*.*" ? u"*"_s : trimmed.toString());
    }
    return found.join(u' ');
}

} // namespace

QString dialogFilter(QStringView barred)
{
    const auto parts = barred.split(u'|');
    if (parts.size() < 2)
        return patterns(barred).isEmpty() ? QString() : u'(' + patterns(barred) + u')';
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const qsizetype bracket = parts[i].indexOf(u'(');
        const QStringView label = (bracket < 0 ? parts[i] : parts[i].left(bracket)).trimmed();
        filters << QString(label.toString() + u" ("_s + patterns(parts[i + 1]) + u')').trimmed();
    }
    return filters.join(u";;"_s);
}

QString defaultSuffix(QStringView barred, qsizetype label)
{
    const auto parts = barred.split(u'|');
    const QString first
        = patterns(parts.size() < 2 ? barred : parts.value(2 * label + 1)).section(u' ', 0, 0);
    const QString suffix = first.section(u'.', -1);
    return first.startsWith("*."_L1) && !suffix.contains(u'*') && !suffix.contains(u'?') ? suffix : QString();
}

} // namespace platform
