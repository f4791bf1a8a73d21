#include "core/shell/start_page_rows.h"

#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace shell {

namespace {

/// Typed text within a pattern: its own wildcards stand for themselves.
QString inPattern(const QString& typed)
{
    QString text;
    for (const QChar c : typed) {
        if (u"*?#["_s.contains(c))
            text += u'[' + QString(c) + u']';
        else if (c == u'\'')
            text += u"''"_s;
        else
            text += c;
    }
    return text;
}

} // namespace

QString startSearchSql(const QString& typed)
{
    const QString like = u" like '*"_s + inPattern(typed.trimmed()) + u"*'"_s;
    return u"select id,name from cnt_main where name"_s + like + u" or company"_s + like + u" or mobile"_s
        + like + u" or h_email1"_s + like + u" order by name"_s;
}

QString changedLatelySql(QDate today)
{
    constexpr int kDays = 30;
    return u"select id,name from cnt_main where datemodi >= #"_s
        + jet::formatDate(today.addDays(-kDays), u"dd-mmm-yyyy") + u"# order by datemodi desc,id desc"_s;
}

QString contactCountSql()
{
    return u"select count(id) as n from cnt_main"_s;
}

} // namespace shell
