#include "telephone/calls/pending_work.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr int kRule = 50;
constexpr PendingKind kKinds[] = {
    {QT_TRANSLATE_NOOP("telephone", "Calls"), u"Callper", u"SelectcallPer", u"Call"},
    {QT_TRANSLATE_NOOP("telephone", "E-mails"), u"emailper", u"SelectEmailPer", u"Email"},
    {QT_TRANSLATE_NOOP("telephone", "Letters"), u"letterper", u"SelectLetterPer", u"Letter"},
};

} // namespace

std::span<const PendingKind> pendingKinds()
{
    return kKinds;
}

QString pendingText(const PendingList& list)
{
    const QString rule = QString(kRule, u'-') + u"\r\n"_s;
    QString text;
    for (size_t kind = 0; kind < list.size(); ++kind) {
        text += rule + QCoreApplication::translate("telephone", kKinds[kind].title) + u"\r\n"_s + rule;
        for (const PendingItem& item : list[kind]) {
            const QString name = item.name.simplified();
            if (!name.isEmpty())
                text += name + u" -"_s + kKinds[kind].word.toString()
                    + (item.isDone ? u" Done\r\n"_s : u" Not Done\r\n"_s);
        }
    }
    return text + rule;
}

} // namespace telephone
