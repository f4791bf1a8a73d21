#pragma once

#include <QString>
#include <QStringList>

#include <span>

namespace reports {

/// A column of a contact as it can be exported, in the order in which it is offered.
struct ExportColumn {
    QStringView name; ///< in cnt_main
    const char* caption; ///< for translation in the context "reports"
    bool isUsual = false; ///< chosen until the person has chosen otherwise
};
std::span<const ExportColumn> exportColumns();

/// What a column is called for a person; the three fields of the person's own have their names from the
/// settings.
QString exportCaption(const ExportColumn& column, const QStringList& userLabels);

/// What the rows of an export have in common; "All" and an empty value ask for nothing.
struct ExportFilter {
    QString category;
    QString subcategory;
    QString priority;
};

/// The keys of the contacts, by name.
QString exportKeysSql(const ExportFilter& filter);
/// The columns of the contacts, by name.
QString exportSql(const QStringList& columns, const ExportFilter& filter);
/// The same of a few contacts.
QString exportSampleSql(const QStringList& columns, const QStringList& keys);

} // namespace reports
