#include "anniversaries/summary/FrmBirthSum.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

FrmBirthSum::FrmBirthSum(core::Context& context, QWidget* parent)
    : CountScreen(context,
        {.title = tr("Birthdays Summary"),
            .tabs = {tr("SunSign-Wise Summary"), tr("Month-Wise Summary")},
            .tabsName = tr("By what birthdays are counted"),
            .gridName = tr("Birthdays counted"),
            .chartName = tr("Birthdays as bars"),
            .empty = tr("No birthday is known")},
        parent)
{
}

void FrmBirthSum::showCounts()
{
    const CountBy by = tab() == 0 ? CountBy::SunSign : CountBy::Month;
    const int total = int(context().data.openRecordset(totalSql(by)).number(u"mda"));
    QList<Row> rows;
    for (const BirthCount& each : birthCounts(context().data.openRecordset(countsSql(by)), by, total))
        rows << Row{each.name, each.count, each.percent};
    showRows(countsHeadings(by), rows, u"Summary  :  "_s + QString::number(total) + u"   Birthdays   "_s);
}

} // namespace anniversaries
