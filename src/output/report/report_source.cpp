#include "output/report/report_source.h"

#include "core/date_patterns.h"
#include "jet/date_text.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace output {

namespace {

// What lists have for places and categories that nobody has filled in says nothing on paper.
constexpr QStringView kUnknown = u"Undefined";

} // namespace

// Kept: the blank in front of a date sets it off from its label.
ReportDates reportDates(bool nationalMode)
{
    return {u' ' + core::datePattern(nationalMode), nationalMode ? u"dd mmm"_s : u"mmm dd"_s};
}

RecordsetSource::RecordsetSource(jet::Recordset rows, ReportDates dates)
    : m_rows(std::move(rows))
    , m_dates(std::move(dates))
{
    const QStringList columns = m_rows.columns();
    for (int column = 0; column < columns.size(); ++column) {
        const bool isDate = m_rows.columnType(column) == jet::ColumnType::Date;
        const bool isBirthday = columns[column].endsWith(u"_BD", Qt::CaseInsensitive);
        m_patterns << (!isDate ? QString() : isBirthday ? m_dates.birthday : m_dates.date);
    }
}

QString RecordsetSource::text(int row, int field) const
{
    const QString& pattern = m_patterns[field];
    if (pattern.isEmpty()) {
        const QString text = m_rows.textAt(row, field);
        return text == kUnknown ? QString() : text;
    }
    const QDate date = m_rows.valueAt(row, field).toDate();
    return date.isValid() ? jet::formatDate(date, pattern) : QString();
}

ListSource::ListSource(QStringList columns, QList<QStringList> rows)
    : m_columns(std::move(columns))
    , m_rows(std::move(rows))
{
}

int ListSource::field(const QString& column) const
{
    return static_cast<int>(m_columns.indexOf(column));
}

} // namespace output
