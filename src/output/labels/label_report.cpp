#include "output/labels/label_report.h"

#include <QCoreApplication>
#include <QHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

QString say(const char* text)
{
    return QCoreApplication::translate("output", text);
}

QString allOf(const QStringList& names)
{
    if (names.size() < 2)
        return names.join(QString());
    return names.mid(0, names.size() - 1).join(u", "_s) + u" & "_s + names.last();
}

} // namespace

QStringList addressColumns(AddressSet set)
{
    static constexpr QStringView kPrefixes[] = {u"h_", u"w_", u"b_"};
    QStringList columns;
    for (const QStringView column : {u"add1", u"add2", u"city", u"state", u"pin"})
        columns << kPrefixes[static_cast<int>(set)].toString() + column.toString();
    return columns;
}

Report labelReport(std::shared_ptr<const ReportSource> rows, AddressSet set, const LabelSheet& sheet,
    const QString& printDate)
{
    QStringList fields;
    for (const QString& column : addressColumns(set))
        fields << u'{' + column + u'}';
    Report report;
    report.title = say("Mailing List Labels");
    report.printDate = printDate;
    report.fileStem = u"Contact-Labels"_s;
    report.source = std::move(rows);
    report.paper = sheet.paper;
    report.sheet = sheet.layout;
    report.hasPageMarks = false;
    report.header.lines = {{{}, true},
        {{{say(" Orvane Contacts"), 1, TextRole::Quiet},
             {say("Mailing List Labels"), 1, TextRole::Quiet, Align::Center},
             {say("Note -Cut & Paste on Envelopes"), 1, TextRole::Quiet, Align::Right}},
            true}};
    report.detail.lines = {
        {{{say("To."), 1, TextRole::Label}}},
        {{{u"{name}"_s, 1, TextRole::Strong}}},
        {{{fields[0]}}},
        {{{fields[1]}}},
        {{{fields[2] + u", "_s + fields[3]}}},
        {{{(set == AddressSet::Home ? say("Zip") : say("Pin")) + u' ' + fields[4]}}},
    };
    return report;
}

std::shared_ptr<const ReportSource> householdsOf(const ReportSource& rows, AddressSet set)
{
    const QStringList columns = addressColumns(set);
    QList<int> fields;
    for (const QString& column : columns)
        fields << rows.field(column);
    const int name = rows.field(u"name"_s);
    // People of one town, of whom no street is known, do not live together.
    const auto hasStreet
        = [](const QStringList& address) { return !(address[0] + address[1]).trimmed().isEmpty(); };
    QHash<QString, qsizetype> known;
    QList<QStringList> names;
    QList<QStringList> addresses;
    for (int row = 0; row < rows.count(); ++row) {
        QStringList address;
        for (const int field : fields)
            address << (field < 0 ? QString() : rows.text(row, field));
        const QString key = hasStreet(address) ? address.join(u'\n').simplified().toCaseFolded() : QString();
        const auto found = key.isEmpty() ? known.cend() : known.constFind(key);
        if (found != known.cend()) {
            names[*found] << rows.text(row, name);
            continue;
        }
        if (!key.isEmpty())
            known.insert(key, names.size());
        names << QStringList{name < 0 ? QString() : rows.text(row, name)};
        addresses << address;
    }
    QList<QStringList> joined;
    for (qsizetype row = 0; row < names.size(); ++row)
        joined << (QStringList{allOf(names[row])} << addresses[row]);
    return std::make_shared<ListSource>(QStringList{u"name"_s} << columns, joined);
}

} // namespace output
