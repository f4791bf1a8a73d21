#include "reports/address_layouts.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace reports {

namespace {

using output::Align;
using output::CellRule;
using output::LineRule;
using output::TextRole;

constexpr LayoutRow kLayouts[] = {
    {Layout::FullByCategory, u"fcategory", QT_TRANSLATE_NOOP("reports", "Category Wise"), true,
        u"ContAddFullCatWise", u"", u" order by category1,category2", u"Contact-Full-Category", u"category1",
        false},
    {Layout::FullByCompany, u"fcompany", QT_TRANSLATE_NOOP("reports", "Company Wise"), true,
        u"ContAddFullCompanyWise", u"Company is not null", u" order by Company", u"Contact-Full-Company",
        u"Company", false},
    {Layout::FullByFirst, u"ffirst", QT_TRANSLATE_NOOP("reports", "First Name Wise"), true,
        u"ContAddFullFirstNameWise", u"first is not null", u" order by first", u"Contact-Full-FirstName",
        u"First", true},
    {Layout::FullByLast, u"flast", QT_TRANSLATE_NOOP("reports", "Last Name Wise"), true,
        u"ContAddFullLastWise", u"last is not null", u" order by last", u"Contact-Full-LastName", u"Last",
        true},
    {Layout::ShortByFirst, u"sfirst", QT_TRANSLATE_NOOP("reports", "First Name Wise"), false,
        u"ContAddShortFirstWise", u"first is not null", u" order by first", u"Contact-Short-FirstName",
        u"First", true},
    {Layout::ShortByLast, u"slast", QT_TRANSLATE_NOOP("reports", "Last Name Wise"), false,
        u"ContAddShortLastWise", u"last is not null", u" order by last", u"Contact-Short-LastName", u"Last",
        true},
};

QString say(const char* text)
{
    return QCoreApplication::translate("reports", text);
}

/// What a contact is called where the book is sorted so.
QString nameIn(Layout layout)
{
    switch (layout) {
    case Layout::FullByFirst:
    case Layout::ShortByFirst: return u"{First} {Mid} {Last}"_s;
    case Layout::FullByLast:
    case Layout::ShortByLast: return u"{Last}, {First} {Mid}"_s;
    default: return u"{Name}"_s;
    }
}

/// An address as it is written on a letter, with the ways to reach somebody there below it.
QString addressText(const QString& prefix, const QStringList& more)
{
    const QString telephone = say("Tel. %1").arg(u"{%1std} {%1Ph1}, {%1ph2}, {%1ph3}"_s.arg(prefix));
    return u"{%1add1}\n{%1add2}\n{%1city} - {%1pin}\n{%1state}, {%1country}\n"_s.arg(prefix) + telephone
        + u'\n' + more.join(u'\n');
}

output::Section fullDetail(Layout layout)
{
    // Dates have a blank in front of them, days of birth have none.
    const QString family = say("Birthday %1").arg(u"{M_BD}"_s) + u'\n'
        + say("Spouse %1").arg(u"{Spouse}, {Sp_BD}, {SP_Mobile}"_s) + u'\n'
        + say("Anniversary%1").arg(u"{Anniv}"_s);
    output::Section section;
    section.lines = {
        {{{nameIn(layout), 5, TextRole::Strong}, {u"{Company}"_s, 4},
             {u"{category1} - {category2}"_s, 3, TextRole::Quiet, Align::Right}},
            false},
        {{{u"{Job_Title}"_s, 5}, {u"{Product}"_s, 4}, {u"{Status}"_s, 3, TextRole::Quiet, Align::Right}},
            false},
        {{{.text = addressText(
               u"h_"_s, {say("Mobile %1").arg(u"{Mobile}"_s), u"{H_email1}\n{h_email2}\n{h_web}"_s}),
              .label = say("Home")},
             {.text = addressText(u"w_"_s, {}), .label = say("Work 1")},
             {.text = addressText(
                  u"b_"_s, {say("Fax %1").arg(u"{fax}"_s), u"{b_email1}\n{b_email2}\n{B_Web}"_s}),
                 .label = say("Work 2")}},
            false},
        {{{.text = family, .label = say("Family")},
             {.text = u"{kid1}, {Kid1_BD}\n{kid2}, {Kid2_BD}\n{kid3}, {Kid3_BD}"_s, .label = say("Children")},
             {.text = u"{memo1}\n{b_note}\n{fam_note}"_s, .label = say("Notes")}},
            false},
    };
    section.picture = u"PhotLoc"_s;
    section.spaceBelow = 220;
    return section;
}

/// The columns of the short layouts; the heads and the rows share the widths.
struct ShortColumn {
    const char* head;
    const char16_t* text; ///< null for the name
    double share;
};
constexpr ShortColumn kShortColumns[] = {
    {QT_TRANSLATE_NOOP("reports", "Name"), nullptr, 2.6},
    {QT_TRANSLATE_NOOP("reports", "Address"), u"{h_add1}, {h_add2}\n{h_city} - {h_pin}", 3},
    {QT_TRANSLATE_NOOP("reports", "Telephone"), u"{H_Ph1}, {h_ph2}\n{Mobile}", 1.9},
    {QT_TRANSLATE_NOOP("reports", "E-mail"), u"{H_email1}\n{b_email1}", 3.9},
};

void setShort(Layout layout, output::Report& report)
{
    LineRule line;
    for (const ShortColumn& column : kShortColumns) {
        report.columnHeads.cells.push_back({say(column.head), column.share, TextRole::Label});
        if (column.text)
            line.cells.push_back({QString::fromUtf16(column.text), column.share});
        else
            line.cells.push_back({nameIn(layout), column.share, TextRole::Strong});
    }
    report.columnHeads.isRuled = true;
    report.detail.lines = {{line}, {{{u"{Company}"_s, 1, TextRole::Quiet}}, false}};
    report.detail.spaceBelow = 60;
}

} // namespace

std::span<const LayoutRow> layoutRows()
{
    return kLayouts;
}

const LayoutRow& rowOf(Layout layout)
{
    return kLayouts[static_cast<int>(layout)];
}

QString layoutSql(Layout layout, const QString& filter)
{
    const LayoutRow& row = rowOf(layout);
    QString sql = u"select * from cnt_main "_s + filter;
    if (!row.clause.isEmpty())
        sql += (filter.isEmpty() ? u" where "_s : u" and "_s) + row.clause.toString();
    return sql + row.order.toString();
}

output::Report addressReport(
    Layout layout, std::shared_ptr<const output::ReportSource> source, const ReportHead& head)
{
    const LayoutRow& row = rowOf(layout);
    output::Report report;
    report.title = head.title;
    report.printDate = head.printDate;
    report.colors = head.colors;
    report.fileStem = row.fileStem.toString();
    report.source = std::move(source);
    report.grouping = output::Grouping{row.groupBy.toString(), row.byFirstLetter, say("Undefined")};
    report.groupHeader.lines = {{{{u"{#key}"_s, 1, TextRole::GroupTitle}}, true}};
    report.groupHeader.spaceBelow = 80;
    report.footer.lines
        = {{{{say("Contacts: %1").arg(u"{#count}"_s), 1, TextRole::Quiet, Align::Right}}, false}};
    if (row.isFull) {
        report.header.lines = {{{{u"{#title}"_s, 1, TextRole::Title}}, false}};
        report.header.spaceBelow = 160;
        report.detail = fullDetail(layout);
    } else {
        setShort(layout, report);
    }
    return report;
}

} // namespace reports
