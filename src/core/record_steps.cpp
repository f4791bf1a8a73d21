#include "core/record_steps.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace core {

QString positionText(const jet::Recordset& rows)
{
    if (!rows.hasRow())
        return {};
    return QString::number(rows.position() + 1) + u" of "_s + QString::number(rows.count());
}

void NextRecord(jet::Recordset& rows, platform::MessageBoxes& boxes, const QString& title)
{
    rows.moveNext();
    if (!rows.eof())
        return;
    rows.moveLast();
    boxes.warning(QCoreApplication::translate("core", "You are on the last record"), title);
}

void PrevRecord(jet::Recordset& rows, platform::MessageBoxes& boxes, const QString& title)
{
    rows.movePrevious();
    if (!rows.bof())
        return;
    rows.moveFirst();
    boxes.warning(QCoreApplication::translate("core", "You are on the first record"), title);
}

void DeleteCurrent(jet::Recordset& rows, platform::MessageBoxes& boxes, const QString& title)
{
    if (rows.isEmpty())
        return;
    const auto answer
        = boxes.ask(QCoreApplication::translate("core", "Are you sure you want to delete the record ? "),
            title, platform::Icon::Critical);
    if (answer == platform::Answer::Yes)
        rows.removeCurrent();
}

} // namespace core
