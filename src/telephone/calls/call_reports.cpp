#include "telephone/calls/call_reports.h"

#include "jet/date_text.h"

#include <QCoreApplication>
#include <QDateTime>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr CallReportRow kReports[] = {
    {u"PrevCallList", QT_TRANSLATE_NOOP("telephone", "Previous calls by person"),
        u"name,[date] desc,[time] desc", u"lname"},
    {u"PrevCallListDate", QT_TRANSLATE_NOOP("telephone", "Previous calls by date"),
        u"[date] desc,[time] desc,name", u"day"},
    {u"PrevCallListPurpose", QT_TRANSLATE_NOOP("telephone", "Previous calls by purpose"),
        u"todo,[date] desc,[time] desc,name", u"purpose"},
};

struct Column {
    const char* head;
    QStringView name;
    double share;
};
constexpr Column kColumns[] = {
    {QT_TRANSLATE_NOOP("telephone", "Name"), u"lname", 3},
    {QT_TRANSLATE_NOOP("telephone", "Date"), u"day", 1.8},
    {QT_TRANSLATE_NOOP("telephone", "Time"), u"hour", 1},
    {QT_TRANSLATE_NOOP("telephone", "Number"), u"numb", 2},
    {QT_TRANSLATE_NOOP("telephone", "Purpose"), u"purpose", 2},
    {QT_TRANSLATE_NOOP("telephone", "Response"), u"result", 2},
    {QT_TRANSLATE_NOOP("telephone", "Next call"), u"next", 1.8},
};

QString say(const char* text)
{
    return QCoreApplication::translate("telephone", text);
}

} // namespace

std::span<const CallReportRow> callReports()
{
    return kReports;
}

QString callReportSql(const CallReportRow& row, const QString& dates)
{
    return u"select name as lname,[date],[time],numb,todo,result,nextcall from cnt_phcall"_s + dates
        + u" order by "_s + QString::fromUtf16(row.order);
}

output::Report callReport(
    const CallReportRow& row, const jet::Recordset& calls, const QString& datePattern, QDate today)
{
    const auto dateText = [&](int at, int column) {
        return jet::formatDate(calls.valueAt(at, column).toDate(), datePattern);
    };
    QStringList names;
    for (const Column& column : kColumns)
        names << column.name.toString();
    QList<QStringList> rows;
    for (int at = 0; at < calls.count(); ++at)
        rows << QStringList{calls.textAt(at, 0), dateText(at, 1),
            calls.valueAt(at, 2).toDateTime().time().toString(u"HH:mm"_s), calls.textAt(at, 3),
            calls.textAt(at, 4), calls.textAt(at, 5), dateText(at, 6)};
    output::Report report;
    report.title = say(row.title);
    report.fileStem = row.name.toString();
    report.printDate = jet::formatDate(today, datePattern);
    report.source = std::make_shared<output::ListSource>(names, rows);
    report.paper = report.paper.turned();
    output::LineRule line;
    for (const Column& column : kColumns) {
        if (column.name == QStringView(row.group))
            continue;
        report.columnHeads.cells.push_back({say(column.head), column.share, output::TextRole::Label});
        line.cells.push_back({u'{' + column.name.toString() + u'}', column.share});
    }
    report.columnHeads.isRuled = true;
    report.detail.lines = {line};
    report.detail.spaceBelow = 50;
    report.grouping = output::Grouping{QString::fromUtf16(row.group), false, say("Undefined")};
    report.groupHeader.lines = {{{{u"{#key}"_s, 1, output::TextRole::GroupTitle}}, true}};
    report.groupHeader.spaceBelow = 50;
    report.footer.lines = {
        {{{say("Calls: %1").arg(u"{#count}"_s), 1, output::TextRole::Quiet, output::Align::Right}}, false}};
    return report;
}

} // namespace telephone
