#include "output/labels/address_report.h"

#include "output/labels/label_report.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

constexpr QStringView kColumns = u"b.name,b.company,b.h_add1,b.h_add2,b.h_city,b.h_state,b.h_pin";
constexpr QStringView kOthers[] = {u"company", u"h_add1", u"h_add2", u"h_city", u"h_state", u"h_pin"};

// The table is the program's own scratch paper and nothing for a person to take back.
void fillWorkTable(jet::Database& data, const QString& condition)
{
    const jet::Upkeep byItself(data);
    jet::Batch batch(data, jet::Batch::Mode::KeepWhatSucceeds);
    data.execute(u"delete * from OV_temp");
    jet::Recordset people
        = data.openRecordset(u"SELECT "_s + kColumns.toString() + u" FROM [cnt_main] b WHERE "_s + condition);
    jet::Recordset work = data.openRecordset(u"select * from [OV_temp]");
    for (; people.hasRow(); people.moveNext()) {
        work.addNew();
        work.set(u"name", people.textOrEmpty(u"name").section(u'.', 0, 0));
        for (const QStringView column : kOthers)
            work.set(column, people.textOrEmpty(column));
        work.update();
    }
    batch.commit();
}

jet::Recordset workRows(jet::Database& data, const QString& rest)
{
    return data.openRecordset(u"SELECT "_s + kColumns.toString() + u" FROM [OV_temp] b "_s + rest);
}

} // namespace

jet::Recordset addressRows(jet::Database& data, const QString& name)
{
    const QString condition = u"b.name='"_s + name + u'\'';
    fillWorkTable(data, condition);
    return workRows(data, u"WHERE "_s + condition);
}

jet::Recordset addressRowsOf(jet::Database& data, const QString& ids)
{
    fillWorkTable(data, u"b.id in ("_s + ids + u')');
    return workRows(data, u"order by b.name "_s);
}

Report addressLabels(AddressLayout layout, jet::Recordset rows, const QString& printDate)
{
    return labelReport(std::make_shared<RecordsetSource>(std::move(rows), reportDates(false)),
        AddressSet::Home, builtinSheets()[static_cast<std::size_t>(layout)], printDate);
}

} // namespace output
