#pragma once

#include "widgets/heading_grid.h"

namespace widgets {

/// A list of contacts or other records by one column, with the key behind it: the heading grid without its
/// headings.
class RecordList : public HeadingGrid {
    Q_OBJECT

public:
    explicit RecordList(QWidget* parent = nullptr, const QString& column = QStringLiteral("Name"));
};

} // namespace widgets
