#include "reports/list_layouts.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

using output::TextRole;

constexpr ListColumn kNames[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 4},
    {QT_TRANSLATE_NOOP("reports", "Company"), u"{Company}", 4},
    {QT_TRANSLATE_NOOP("reports", "Category"), u"{category1} - {category2}", 3},
};
constexpr ListColumn kDetails[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}\n{Company}", 2.6},
    {QT_TRANSLATE_NOOP("reports", "Home"), u"{h_add1}\n{h_add2}\n{h_city} - {h_pin}\n{h_state}, {h_country}",
        3},
    {QT_TRANSLATE_NOOP("reports", "Telephone"), u"{H_Ph1}, {h_ph2}, {h_ph3}\n{Mobile}", 2.2},
    {QT_TRANSLATE_NOOP("reports", "Work"), u"{w_add1}\n{w_add2}\n{w_city} - {w_pin}\n{w_Ph1}, {w_Ph2}", 3},
    {QT_TRANSLATE_NOOP("reports", "E-mail"), u"{H_email1}\n{b_email1}", 3.6},
};
constexpr ListColumn kCompanies[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 4},
    {QT_TRANSLATE_NOOP("reports", "Job title"), u"{Job_Title}", 3},
    {QT_TRANSLATE_NOOP("reports", "Telephone"), u"{w_Ph1}, {B_Ph1}\n{Mobile}", 3},
    {QT_TRANSLATE_NOOP("reports", "E-mail"), u"{b_email1}", 3},
};
constexpr ListColumn kAreas[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}\n{Company}", 3},
    {QT_TRANSLATE_NOOP("reports", "Address"), u"{h_add1}, {h_add2}\n{h_pin} {h_state}, {h_country}", 4},
    {QT_TRANSLATE_NOOP("reports", "Telephone"), u"{h_std} {H_Ph1}\n{Mobile}", 3},
};
constexpr ListColumn kWebs[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 3},
    {QT_TRANSLATE_NOOP("reports", "Home"), u"{h_web}", 4},
    {QT_TRANSLATE_NOOP("reports", "Work"), u"{B_Web}", 4},
};
constexpr ListColumn kEmails[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 3},
    {QT_TRANSLATE_NOOP("reports", "Home"), u"{H_email1}\n{h_email2}", 4},
    {QT_TRANSLATE_NOOP("reports", "Work"), u"{b_email1}\n{b_email2}", 4},
};
constexpr ListColumn kDates[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 3},
    {QT_TRANSLATE_NOOP("reports", "Birthday"), u"{M_BD}", 1.6},
    {QT_TRANSLATE_NOOP("reports", "Spouse"), u"{Spouse}\n{Sp_BD}", 2.4},
    {QT_TRANSLATE_NOOP("reports", "Anniversary"), u"{Anniv}", 1.8},
    {QT_TRANSLATE_NOOP("reports", "Children"), u"{kid1}, {Kid1_BD}\n{kid2}, {Kid2_BD}\n{kid3}, {Kid3_BD}", 3},
};
constexpr ListColumn kOthers[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 3},
    {QT_TRANSLATE_NOOP("reports", "Region"), u"{region}", 2},
    {QT_TRANSLATE_NOOP("reports", "Status"), u"{Status}\n{Relation}", 2},
    {QT_TRANSLATE_NOOP("reports", "Education"), u"{education}", 2},
    {QT_TRANSLATE_NOOP("reports", "Hobbies"), u"{Hobbies}", 2},
    {QT_TRANSLATE_NOOP("reports", "Own fields"), u"{User1}\n{User2}\n{User3}", 2.4},
};
constexpr ListColumn kPhones[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 3},
    {QT_TRANSLATE_NOOP("reports", "Home"), u"{H_Ph1}\n{h_ph2}\n{h_ph3}", 2},
    {QT_TRANSLATE_NOOP("reports", "Work 1"), u"{w_Ph1}\n{w_Ph2}\n{w_ph3}", 2},
    {QT_TRANSLATE_NOOP("reports", "Work 2"), u"{B_Ph1}\n{B_Ph2}\n{B_ph3}", 2},
    {QT_TRANSLATE_NOOP("reports", "Mobile"), u"{Mobile}", 2},
    {QT_TRANSLATE_NOOP("reports", "Spouse's mobile"), u"{SP_Mobile}", 2},
    {QT_TRANSLATE_NOOP("reports", "Fax"), u"{fax}", 2},
};
constexpr ListColumn kBirthdays[] = {
    {QT_TRANSLATE_NOOP("reports", "Birthday"), u"{day_BD}", 1.5},
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{person}", 4},
    {QT_TRANSLATE_NOOP("reports", "Contact person"), u"{contact}", 4},
    {QT_TRANSLATE_NOOP("reports", "Age"), u"{age}", 1},
};
constexpr ListColumn kAnniversaries[] = {
    {QT_TRANSLATE_NOOP("reports", "Anniversary"), u"{day_BD}", 1.5},
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{person}", 4},
    {QT_TRANSLATE_NOOP("reports", "Spouse"), u"{contact}", 4},
    {QT_TRANSLATE_NOOP("reports", "Years"), u"{age}", 1},
};
constexpr ListColumn kMembers[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{Name}", 4},
    {QT_TRANSLATE_NOOP("reports", "Designation"), u"{designation}", 3},
    {QT_TRANSLATE_NOOP("reports", "Telephone"), u"{H_Ph1}\n{Mobile}", 3},
    {QT_TRANSLATE_NOOP("reports", "E-mail"), u"{H_email1}", 3},
};
constexpr ListColumn kMails[] = {
    {QT_TRANSLATE_NOOP("reports", "Date"), u"{Date}", 2},
    {QT_TRANSLATE_NOOP("reports", "Subject"), u"{Subject}", 5},
    {QT_TRANSLATE_NOOP("reports", "Address"), u"{EmailAddress}", 4},
    {QT_TRANSLATE_NOOP("reports", "Category"), u"{mailcateg}", 2},
    {QT_TRANSLATE_NOOP("reports", "Sent or received"), u"{Type}", 2},
};
constexpr ListColumn kLetters[] = {
    {QT_TRANSLATE_NOOP("reports", "Date"), u"{Date}", 2},
    {QT_TRANSLATE_NOOP("reports", "Address"), u"{Add1}, {Add2}\n{city} - {Pin}", 5},
    {QT_TRANSLATE_NOOP("reports", "Category"), u"{mailcateg}", 2},
    {QT_TRANSLATE_NOOP("reports", "Type"), u"{Mailtype}", 2},
};
constexpr ListColumn kFamily[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), u"{person}", 5},
    {QT_TRANSLATE_NOOP("reports", "Spouse"), u"{spouse}", 3},
    {QT_TRANSLATE_NOOP("reports", "Children"), u"{children}", 4},
};

constexpr const char16_t* kContacts = u"select * from cnt_main ";
constexpr QStringView kHasPhone
    = u"(len(H_Ph1)<>0 or len(h_ph2)<>0 or len(h_ph3)<>0 or len(w_Ph1)<>0 or len(w_Ph2)<>0 or len(w_ph3)<>0"
      u" or len(B_Ph1)<>0 or len(B_Ph2)<>0 or len(B_ph3)<>0 or len(Mobile)<>0 or len(SP_Mobile)<>0"
      u" or len(fax)<>0)";
constexpr QStringView kHasEmail
    = u"(len(H_email1)<>0 or len(h_email2)<>0 or len(b_email1)<>0 or len(b_email2)<>0)";
constexpr QStringView kHasDate = u"(M_BD is not null or Sp_BD is not null or Anniv is not null or Kid1_BD is "
                                 u"not null or Kid2_BD is not null or Kid3_BD is not null)";
constexpr QStringView kByName = u" order by name";

// A date of the family is a row of its own; the contact is the one who knows the person.
constexpr const char16_t* kBirthdaySql
    = u"select month(m_bd) as mn,day(m_bd) as dy,name as person,'' as contact,m_bd as day_BD,%1 - year(m_bd)"
      u" as age,format(m_bd,'mmmm') as mname from cnt_main where m_bd is not null"
      u" union (select month(sp_bd),day(sp_bd),spouse,name,sp_bd,%1 - year(sp_bd),format(sp_bd,'mmmm')"
      u" from cnt_main where sp_bd is not null and len(spouse)<>0)"
      u" union (select month(kid1_bd),day(kid1_bd),kid1,name,kid1_bd,%1 - "
      u"year(kid1_bd),format(kid1_bd,'mmmm')"
      u" from cnt_main where kid1_bd is not null and len(kid1)<>0)"
      u" union (select month(kid2_bd),day(kid2_bd),kid2,name,kid2_bd,%1 - "
      u"year(kid2_bd),format(kid2_bd,'mmmm')"
      u" from cnt_main where kid2_bd is not null and len(kid2)<>0)"
      u" union (select month(kid3_bd),day(kid3_bd),kid3,name,kid3_bd,%1 - "
      u"year(kid3_bd),format(kid3_bd,'mmmm')"
      u" from cnt_main where kid3_bd is not null and len(kid3)<>0)";
constexpr const char16_t* kAnniversarySql
    = u"select month(anniv) as mn,day(anniv) as dy,name as person,spouse as contact,anniv as day_BD,"
      u"%1 - year(anniv) as age,format(anniv,'mmmm') as mname from cnt_main where anniv is not null";

constexpr ListRow kLists[] = {
    {u"Phone List", QT_TRANSLATE_NOOP("reports", "Phone List"), kContacts, kHasPhone, kByName, kPhones, {},
        true, true},
    {u"Birthday", QT_TRANSLATE_NOOP("reports", "Birthdays"), kBirthdaySql, {}, u" order by mn,dy,person",
        kBirthdays, u"mname", false},
    {u"Anniversaries", QT_TRANSLATE_NOOP("reports", "Anniversaries"), kAnniversarySql, {},
        u" order by month(anniv),day(anniv),name", kAnniversaries, u"mname", false},
    {u"Family Tree", QT_TRANSLATE_NOOP("reports", "Family Tree"),
        u"select id,name,spouse,kid1,kid2,kid3,gen_id from cnt_main where fmtree=true", {}, kByName, kFamily,
        {}, false},
    {u"Associations-Reports", QT_TRANSLATE_NOOP("reports", "Associations"),
        u"select cnt_assogrp.[group] as grp,cnt_main.name as name,cnt_assomember.designation as designation,"
        u"cnt_main.h_ph1 as h_ph1,cnt_main.mobile as mobile,cnt_main.h_email1 as h_email1"
        u" from cnt_main,cnt_assogrp,cnt_assomember where cnt_assogrp.id=cnt_assomember.groupid"
        u" and cnt_assomember.cntid=cnt_main.id",
        {}, u" order by cnt_assogrp.[group],cnt_main.name", kMembers, u"grp", false},
    {u"Emails", QT_TRANSLATE_NOOP("reports", "Record of E-Mails"), u"select * from cnt_emails", {},
        u" order by person,[date]", kMails, u"person", false},
    {u"Letter Record", QT_TRANSLATE_NOOP("reports", "Record of Letters"), u"select * from cnt_letters", {},
        u" order by person,[date]", kLetters, u"person", false},
    {u"Pname", QT_TRANSLATE_NOOP("reports", "Names"), kContacts, {}, kByName, kNames},
    {u"Pdetails", QT_TRANSLATE_NOOP("reports", "Details"), kContacts, {}, kByName, kDetails, {}, true, true},
    {u"Pcompany", QT_TRANSLATE_NOOP("reports", "Companies"), kContacts, u"len(Company)<>0",
        u" order by Company,name", kCompanies, u"Company"},
    {u"Parea", QT_TRANSLATE_NOOP("reports", "Areas"), kContacts, u"len(h_city)<>0", u" order by h_city,name",
        kAreas, u"h_city"},
    {u"Pphone1", QT_TRANSLATE_NOOP("reports", "Telephone numbers"), kContacts, kHasPhone, kByName, kPhones,
        {}, true, true},
    {u"Pemail", QT_TRANSLATE_NOOP("reports", "E-mail addresses"), kContacts, kHasEmail, kByName, kEmails},
    {u"Pweb", QT_TRANSLATE_NOOP("reports", "Web addresses"), kContacts, u"(len(h_web)<>0 or len(B_Web)<>0)",
        kByName, kWebs},
    {u"Pdt1", QT_TRANSLATE_NOOP("reports", "Dates"), kContacts, kHasDate, kByName, kDates},
    {u"Pother", QT_TRANSLATE_NOOP("reports", "Other fields"), kContacts, {}, kByName, kOthers},
};

QString say(const char* text)
{
    return QCoreApplication::translate("reports", text);
}

} // namespace

std::span<const ListRow> listRows()
{
    return kLists;
}

const ListRow* listRow(QStringView name)
{
    const auto* found = std::find_if(
        std::begin(kLists), std::end(kLists), [name](const ListRow& row) { return row.name == name; });
    return found == std::end(kLists) ? nullptr : found;
}

QString listSql(const ListRow& row, const QString& filter, int year)
{
    QString sql = QString::fromUtf16(row.sql);
    if (sql.contains(u"%1"))
        sql = sql.arg(year);
    const QString used = row.takesFilter ? filter : QString();
    sql += used;
    if (!row.clause.isEmpty())
        sql += (used.isEmpty() ? u" where "_s : u" and "_s) + row.clause.toString();
    return sql + row.order.toString();
}

output::Report printedList(
    const ListRow& row, std::shared_ptr<const output::ReportSource> source, const ReportHead& head)
{
    output::Report report;
    report.title = head.title;
    report.printDate = head.printDate;
    report.colors = head.colors;
    report.fileStem = u"Contact-"_s + say(row.title);
    report.source = std::move(source);
    if (row.isWide)
        report.paper = report.paper.turned();
    output::LineRule line;
    for (const ListColumn& column : row.columns) {
        report.columnHeads.cells.push_back({say(column.head), column.share, TextRole::Label});
        line.cells.push_back({QString::fromUtf16(column.text), column.share});
    }
    report.columnHeads.isRuled = true;
    report.detail.lines = {line};
    report.detail.spaceBelow = 50;
    if (!row.groupBy.isEmpty()) {
        report.grouping = output::Grouping{row.groupBy.toString(), false, say("Undefined")};
        report.groupHeader.lines = {{{{u"{#key}"_s, 1, TextRole::GroupTitle}}, true}};
        report.groupHeader.spaceBelow = 50;
    }
    report.footer.lines
        = {{{{say("Lines: %1").arg(u"{#count}"_s), 1, TextRole::Quiet, output::Align::Right}}, false}};
    return report;
}

} // namespace reports
