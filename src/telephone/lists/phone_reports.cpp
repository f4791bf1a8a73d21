#include "telephone/lists/phone_reports.h"

#include <QCoreApplication>

#include <span>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

struct Column {
    const char* head;
    const char16_t* text;
    double share;
};
constexpr Column kOneNumber[] = {
    {QT_TRANSLATE_NOOP("telephone", "Name"), u"{name}", 3},
    {QT_TRANSLATE_NOOP("telephone", "Phone"), u"{phone}", 2},
};
constexpr Column kAllNumbers[] = {
    {QT_TRANSLATE_NOOP("telephone", "Name"), u"{Name}", 3},
    {QT_TRANSLATE_NOOP("telephone", "Home"), u"{H_Ph1}\n{h_ph2}\n{h_ph3}", 2},
    {QT_TRANSLATE_NOOP("telephone", "Work 1"), u"{w_Ph1}\n{w_Ph2}\n{w_ph3}", 2},
    {QT_TRANSLATE_NOOP("telephone", "Work 2"), u"{B_Ph1}\n{B_Ph2}\n{B_ph3}", 2},
    {QT_TRANSLATE_NOOP("telephone", "Mobile"), u"{Mobile}\n{SP_Mobile}", 2},
    {QT_TRANSLATE_NOOP("telephone", "Fax"), u"{fax}", 2},
};
constexpr Column kMembers[] = {
    {QT_TRANSLATE_NOOP("telephone", "Name"), u"{name}", 3},
    {QT_TRANSLATE_NOOP("telephone", "Home"), u"{h_ph1}\n{h_ph2}\n{h_ph3}", 2},
    {QT_TRANSLATE_NOOP("telephone", "Work 1"), u"{w_ph1}\n{w_ph2}", 2},
};

std::span<const Column> columnsOf(ListKind kind)
{
    switch (kind) {
    case ListKind::Contacts: return kAllNumbers;
    case ListKind::Associations: return kMembers;
    case ListKind::User:
    case ListKind::Dialer: break;
    }
    return kOneNumber;
}

QString say(const char* text)
{
    return QCoreApplication::translate("telephone", text);
}

} // namespace

output::Report phoneReport(
    ListKind kind, const QString& list, std::shared_ptr<const output::ReportSource> rows)
{
    output::Report report;
    report.title = list.isEmpty() ? say("Phone List") : say("Phone List") + u" - "_s + list;
    report.fileStem = u"Phone List"_s;
    report.saveTitle = say("Phone List");
    report.htmlEnding = u".html"_s;
    report.source = std::move(rows);
    if (kind == ListKind::Contacts)
        report.paper = report.paper.turned();
    output::LineRule line;
    for (const Column& column : columnsOf(kind)) {
        report.columnHeads.cells.push_back({say(column.head), column.share, output::TextRole::Label});
        line.cells.push_back({QString::fromUtf16(column.text), column.share});
    }
    report.columnHeads.isRuled = true;
    report.detail.lines = {line};
    report.detail.spaceBelow = 50;
    report.footer.lines = {
        {{{say("Lines: %1").arg(u"{#count}"_s), 1, output::TextRole::Quiet, output::Align::Right}}, false}};
    return report;
}

} // namespace telephone
