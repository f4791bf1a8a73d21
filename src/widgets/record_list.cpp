#include "widgets/record_list.h"

#include <QHeaderView>

namespace widgets {

RecordList::RecordList(QWidget* parent, const QString& column)
    : HeadingGrid(parent)
{
    setHeadings(column, {column});
    horizontalHeader()->hide();
}

} // namespace widgets
