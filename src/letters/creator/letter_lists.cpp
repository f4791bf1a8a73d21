#include "letters/creator/letter_lists.h"

#include "core/sql_text.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace letters {

using core::inQuotes;

QString stockTextsSql()
{
    return u"select distinct ltcaption from cnt_lettercontent where emil_ltr<>'Email'"_s;
}

QString stockTextSql(const QString& caption)
{
    return u"select * from CNT_LETTERCONTENT where ltcaption='"_s + inQuotes(caption) + u'\'';
}

QString recipientNamesSql()
{
    return u"Select distinct  [name] from cnt_main where [name] is not null or [name] <>'' order by name"_s;
}

QString openingsSql()
{
    return u"select distinct openchoice from cntb_letter where openchoice is not null"_s;
}

QString furtherLinesSql()
{
    return u"select distinct memo1 from cntb_letter where memo1 is not null"_s;
}

QString closingLinesSql()
{
    return u"select distinct remarks from cntb_letter where remarks is not null"_s;
}

QString endingsSql()
{
    return u"select distinct closechoice from CNTB_LETTER where closechoice is not null"_s;
}

QString letterTypesSql()
{
    return u"select item from GF_MAST where itmtyp='Ltyp' and delst='N'"_s;
}

QString letterCategoriesSql()
{
    return u"select item from gf_mast where itmtyp='Ltcat' and delst='N'"_s;
}

QString recipientCategoriesSql()
{
    return u"select distinct Category1 from CNT_MAIN"_s;
}

QString signersSql()
{
    return u"select Name as Contact from Cnt_User Union select Spouse as Contact from Cnt_User "
           u" Union select Kid1 as Contact from Cnt_User Union select Kid2 as Contact from Cnt_User"
           u" Union Select Kid3 as Contact from Cnt_User"_s;
}

QString commonWordsSql(const QString& prefix)
{
    return u"Select * from OV_CmmWrds where word like '"_s + core::likeText(prefix) + u"*' order by word"_s;
}

QString lettersToSql(const QString& person)
{
    return u"select date,mailtype,mailcateg,id from CNT_letters where [person] ='"_s + inQuotes(person)
        + u'\'';
}

QString mergedTextSql(qint64 letterId)
{
    return u"Select Merged from cnt_letters where id="_s + QString::number(letterId);
}

QString letterByIdSql(qint64 letterId)
{
    return u"select * from CNT_LETTERS where id= "_s + QString::number(letterId);
}

QString storedPhrasesSql()
{
    return u"Select * from Cnt_Emailinsert order by Head"_s;
}

QString mailingListsSql()
{
    return u"select distinct listname from cnt_maillist where listname is not null and listname <> ''"_s;
}

QString peopleSql(PeopleOf source, const QString& group, const QString& beginning)
{
    QStringList terms{u"name<>''"_s};
    switch (source) {
    case PeopleOf::Book: break;
    case PeopleOf::Category: terms << u"category1='"_s + inQuotes(group) + u'\''; break;
    case PeopleOf::MailingList:
        terms << u"id in (select perid from cnt_maillist where listname='"_s + inQuotes(group) + u"')"_s;
        break;
    case PeopleOf::PrintSelection: terms << u"selected=true"_s; break;
    }
    if (!beginning.isEmpty())
        terms << u"name like '"_s + core::likeText(beginning) + u"*'"_s;
    return u"select id,name,h_city from cnt_main where "_s + terms.join(u" and "_s) + u" order by name"_s;
}

} // namespace letters
