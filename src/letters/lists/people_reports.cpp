#include "letters/lists/people_reports.h"

#include <QCoreApplication>

#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

struct Column {
    const char* head;
    const char16_t* text;
    double share;
};
constexpr Column kNames[] = {{QT_TRANSLATE_NOOP("letters", "Name"), u"{name}", 1}};
constexpr Column kAddresses[] = {
    {QT_TRANSLATE_NOOP("letters", "Name"), u"{name}", 3},
    {QT_TRANSLATE_NOOP("letters", "Company"), u"{company}", 3},
    {QT_TRANSLATE_NOOP("letters", "Address"), u"{h_add1}\n{h_add2}\n{h_city}, {h_state} {h_pin}", 4},
};

QString say(const char* text)
{
    return QCoreApplication::translate("letters", text);
}

// A brace in the name of a list would be a column of the rows.
QString headed(const QString& title, const QString& list)
{
    return list.isEmpty() ? title : title + u" - "_s + QString(list).replace(u'{', u'(').replace(u'}', u')');
}

output::Report tableOf(
    std::span<const Column> columns, const QString& title, std::shared_ptr<const output::ReportSource> rows)
{
    output::Report report;
    report.title = title;
    report.fileStem = title;
    report.source = std::move(rows);
    output::LineRule line;
    for (const Column& column : columns) {
        report.columnHeads.cells.push_back({say(column.head), column.share, output::TextRole::Label});
        line.cells.push_back({QString::fromUtf16(column.text), column.share});
    }
    report.columnHeads.isRuled = true;
    report.detail.lines = {line};
    report.detail.spaceBelow = 50;
    report.footer.lines = {
        {{{say("Names: %1").arg(u"{#count}"_s), 1, output::TextRole::Quiet, output::Align::Right}}, false}};
    return report;
}

} // namespace

output::Report nameList(std::shared_ptr<const output::ReportSource> rows, const QString& list)
{
    return tableOf(kNames, headed(say("Name List"), list), std::move(rows));
}

output::Report addressList(std::shared_ptr<const output::ReportSource> rows, const QString& list)
{
    return tableOf(kAddresses, headed(say("Address List"), list), std::move(rows));
}

} // namespace letters
