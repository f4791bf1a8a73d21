#pragma once

#include "platform/contact_sync.h"
#include "reports/address_layouts.h"

#include <QStringList>

#include <functional>
#include <vector>

namespace platform {
class CardFolder;
}

namespace reports {

/// Contacts of another address book as rows of a report, under the columns of our own.
struct BookRows {
    QStringList columns;
    QList<QStringList> rows;
};

BookRows rowsOf(const std::vector<platform::MailContact>& contacts);
/// One row a card; a file that is none gives an empty row. The answer false of `progress` ends the reading.
BookRows rowsOf(const platform::CardFolder& cards, const std::function<bool(int done)>& progress);

/// Sorted as the layout wants it, without the rows that it leaves out.
std::shared_ptr<const output::ReportSource> sortedFor(Layout layout, BookRows rows);

} // namespace reports
