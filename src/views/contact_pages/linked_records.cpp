#include "views/contact_pages/linked_records.h"

#include "core/date_patterns.h"
#include "jet/date_text.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace views {

namespace {

// What is linked by name is found by the name in the contact's row, so that no name can break a statement.
constexpr LinkedList kLists[] = {
    {u"Letters", u"letter", QT_TRANSLATE_NOOP("views", "Letters"), u"*", u"CNT_LETTERS where [PERID] =%1",
        u" order by Date desc",
        u"Date           |Direction   |Type            |Category          |City        ",
        u"Date,type1,Mailtype,mailcateg,city", u"MERGED"},
    {u"Emails", u"envelope", QT_TRANSLATE_NOOP("views", "E-mails"), u"*", u"CNT_EMAILS where [PERID] =%1", {},
        u"Date           |Direction  |Subject                            |Address                   "
        u"|Category   ",
        u"Date,Type,Subject,EmailAddress,mailcateg", u"desc"},
    {u"TimedEmails", u"clock", QT_TRANSLATE_NOOP("views", "E-mails to be sent"), u"*",
        u"time_email where PerId=%1", u" order by Date",
        u"Date           |Subject                            |Address                   |Confirmed  ",
        u"Date,Subject,emailadd,confirm", u"Message"},
    {u"Calls", u"phone", QT_TRANSLATE_NOOP("views", "Calls"), u"*", u"cnt_phcall where PerId=%1",
        u" order by Date desc,Time desc",
        u"Date           |Time     |Number           |Purpose         |Response        |Next call   ",
        u"Date,Time,Numb,Todo,Result,NextCall"},
    {u"PhoneLists", u"list", QT_TRANSLATE_NOOP("views", "Phone lists"), u"*", u"cnt_phlist where PerId=%1",
        u" order by listname", u"List                |Entry                       |Number              ",
        u"listname,Name,phone"},
    {u"QuickDial", u"dial", QT_TRANSLATE_NOOP("views", "Dialer memory"), u"*", u"cnt_phonenum where PerId=%1",
        u" order by List,cmbnum", u"List                |Key   |Entry                       |Number         ",
        u"List,cmbnum,Name,phonenum"},
    {u"MailLists", u"persons", QT_TRANSLATE_NOOP("views", "Mailing lists"), u"*",
        u"cnt_maillist where perid=%1", u" order by listname",
        u"List                        |Name                        ", u"listname,name"},
    {u"Groups", u"club", QT_TRANSLATE_NOOP("views", "Associations and clubs"),
        u"g.id as id,g.[Group] as Grp,m.designation as designation,g.DTOFJOIN as DTOFJOIN,g.REMARK as REMARK",
        u"cnt_assomember m,cnt_assogrp g where m.GroupID=g.id and m.cntid=%1", u" order by g.[Group]",
        u"Group                       |Office              |Joined          |Remark                    ",
        u"Grp,designation,DTOFJOIN,REMARK"},
    {u"Meetings", u"calendar", QT_TRANSLATE_NOOP("views", "Meetings"),
        u"a.PartyID as id,a.Date as Date,a.groupnam as groupnam,a.Place as Place,a.Details as Details",
        u"Cnt_Association a,cnt_assomember m where a.GroupID=m.GroupID and m.cntid=%1",
        u" order by a.Date desc",
        u"Date           |Group                  |Place                |Details                   ",
        u"Date,groupnam,Place,Details", u"Details"},
    {u"Associates", u"link", QT_TRANSLATE_NOOP("views", "Associates"),
        u"b.id as id,b.name as Name,b.Company as Company,b.h_city as City",
        u"cnt_main a,cnt_main b where a.id=%1 and len(b.name)<>0 and (b.name=a.Asso1 or b.name=a.asso2)",
        u" order by b.name", u"Name                      |Company                 |City            ",
        u"Name,Company,City", {}, true},
    {u"NamedBy", u"link", QT_TRANSLATE_NOOP("views", "Associate of"),
        u"b.id as id,b.name as Name,b.Company as Company,b.h_city as City",
        u"cnt_main a,cnt_main b where a.id=%1 and len(a.name)<>0 and (b.Asso1=a.name or b.asso2=a.name)",
        u" order by b.name", u"Name                      |Company                 |City            ",
        u"Name,Company,City", {}, true, u"b.id"},
    {u"Scheduler", u"clock", QT_TRANSLATE_NOOP("views", "Scheduler"),
        u"s.Date as Date,s.Type as Type,s.desc as desc,s.Priority as Priority",
        u"ovs_schedular s,cnt_main a where a.id=%1 and (s.person=a.name or s.person=a.First+' '+a.Last or "
        u"s.b_a_id='%1Bd' or s.b_a_id='%1An')",
        {}, u"Date             |Type              |Description                             |Priority  ",
        u"Date,Type,desc,Priority", u"desc"},
    {u"Journal", u"note", QT_TRANSLATE_NOOP("views", "Journal"),
        u"j.JDate as JDate,j.categ1 as categ1,j.categ2 as categ2,j.Source as Source,j.desc as desc",
        u"OV_JOURNAL j,cnt_main a where a.id=%1 and len(a.name)<>0 and j.person1=a.name",
        u" order by j.JDate desc",
        u"Date           |Category            |Sub category        |Source         ",
        u"JDate,categ1,categ2,Source", u"desc"},
    {u"FamilyTree", u"family", QT_TRANSLATE_NOOP("views", "Below in the family tree"),
        u"id,name,Relation,Spouse", u"cnt_main where fmtree=true and gen_id='%1'", u" order by name",
        u"Name                      |Relation            |Spouse              ", u"name,Relation,Spouse", {},
        true, u"id"},
};

struct Relative {
    const char* relation;
    QStringView name;
    QStringView born;
};

constexpr Relative kRelatives[] = {
    {QT_TRANSLATE_NOOP("views", "Spouse"), u"Spouse", u"Sp_BD"},
    {QT_TRANSLATE_NOOP("views", "Child 1"), u"kid1", u"Kid1_BD"},
    {QT_TRANSLATE_NOOP("views", "Child 2"), u"kid2", u"Kid2_BD"},
    {QT_TRANSLATE_NOOP("views", "Child 3"), u"kid3", u"Kid3_BD"},
};

} // namespace

std::span<const LinkedList> linkedLists()
{
    return kLists;
}

QString linkedSql(const LinkedList& list, qint64 id)
{
    return u"select "_s + list.columns.toString() + u" from "_s + list.from.toString().arg(id)
        + list.order.toString();
}

QString linkedCountSql(const LinkedList& list, qint64 id)
{
    return u"select count(*) as Count from "_s + list.from.toString().arg(id);
}

QString linkedCountSql(const LinkedList& list, qint64 id, qint64 from, qint64 to)
{
    return linkedCountSql(list, id)
        + u" and %1 between %2 and %3"_s.arg(
            list.scanned.toString(), QString::number(from), QString::number(to));
}

QList<QStringList> relativesOf(const jet::Recordset& contact, bool nationalMode)
{
    QList<QStringList> rows;
    for (const Relative& relative : kRelatives) {
        const QString name = contact.textOrEmpty(relative.name).trimmed();
        const QDate born = contact.date(relative.born);
        if (name.isEmpty() && !born.isValid())
            continue;
        rows << QStringList{QCoreApplication::translate("views", relative.relation), name,
            jet::formatDate(born, core::datePattern(nationalMode))};
    }
    return rows;
}

} // namespace views
