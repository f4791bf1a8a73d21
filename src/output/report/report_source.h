#pragma once

#include "formats/rich_text.h"
#include "jet/recordset.h"

#include <QList>
#include <QStringList>

namespace output {

/// Rows of a report, in their order, as the texts that a person reads.
class ReportSource {
public:
    ReportSource() = default;
    ReportSource(const ReportSource&) = delete;
    ReportSource& operator=(const ReportSource&) = delete;
    virtual ~ReportSource() = default;

    virtual int count() const = 0;
    virtual int field(const QString& column) const = 0; ///< -1 when there is none
    virtual QString text(int row, int field) const = 0;
    /// The same text with its looks; nullptr for a plain one. It is set with them where it stands in a cell
    /// alone.
    virtual const formats::RichText* looks(int /*row*/, int /*field*/) const { return nullptr; }
};

/// How dates of the book are written in a report. Birthdays have no year.
struct ReportDates {
    QString date;
    QString birthday;
};
ReportDates reportDates(bool nationalMode);

/// The rows of a selection, read as pages ask for them.
class RecordsetSource final : public ReportSource {
public:
    RecordsetSource(jet::Recordset rows, ReportDates dates);

    int count() const override { return m_rows.count(); }
    int field(const QString& column) const override { return m_rows.columnIndex(column); }
    QString text(int row, int field) const override;

private:
    jet::Recordset m_rows;
    ReportDates m_dates;
    QList<QString> m_patterns; ///< by column; empty for one that holds no dates
};

class ListSource final : public ReportSource {
public:
    ListSource(QStringList columns, QList<QStringList> rows);

    int count() const override { return static_cast<int>(m_rows.size()); }
    int field(const QString& column) const override;
    QString text(int row, int field) const override { return m_rows.value(row).value(field); }

private:
    QStringList m_columns;
    QList<QStringList> m_rows;
};

} // namespace output
