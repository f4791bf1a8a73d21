#include "letters/record/FrmLettSum.h"

#include "letters/record/record_statements.h"

using namespace Qt::StringLiterals;

namespace letters {

// The tabs stand in the order of LetterCount.
FrmLettSum::FrmLettSum(core::Context& context, QWidget* parent)
    : CountScreen(context,
        {.title = tr("Letter Summary"),
            .tabs
            = {tr("Sent and received"), tr("By type"), tr("By category"), tr("By month"), tr("By person")},
            .tabsName = tr("By what letters are counted"),
            .gridName = tr("Letters counted"),
            .chartName = tr("Letters as bars"),
            .empty = tr("No letter was kept yet")},
        parent)
{
}

void FrmLettSum::showCounts()
{
    const jet::Recordset counts
        = context().data.openRecordset(letterCountsSql(static_cast<LetterCount>(tab())));
    int total = 0;
    for (int row = 0; row < counts.count(); ++row)
        total += counts.valueAt(row, 1).toInt();
    QList<Row> rows;
    for (int row = 0; row < counts.count(); ++row) {
        const int count = counts.valueAt(row, 1).toInt();
        const QString name = counts.textAt(row, 0).simplified();
        rows << Row{
            name.isEmpty() ? tr("(none)") : name, count, QString::number(100.0 * count / total, 'f', 1)};
    }
    showRows(u"|Letters                          |Count    |Percent    ", rows,
        total == 1 ? tr("1 letter") : tr("%1 letters").arg(total));
}

} // namespace letters
