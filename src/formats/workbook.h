#pragma once

#include <QDate>
#include <QFileDevice>
#include <QList>
#include <QString>
#include <QTemporaryFile>
#include <QVariant>

#include <memory>

/// Workbooks of one sheet, in the binary format .xls (BIFF8) that every spreadsheet program reads.
namespace formats {

class SharedTexts;

inline constexpr int maxSheetRows = 65'536; ///< with the headings
inline constexpr int maxSheetColumns = 256;
inline constexpr int maxSheetText = 32'767; ///< letters in a cell

struct SheetColumn {
    QString heading;
    int width = 10; ///< in characters
};

/// Writes a workbook row by row. Cells are kept in temporary files beside the workbook until all texts are
/// known, so memory does not grow with the rows.
class WorkbookWriter {
public:
    /// @param file open for writing, nothing in it yet
    /// @param datePattern as a spreadsheet writes it, such as "dd mmm-yyyy"
    WorkbookWriter(QFileDevice& file, const QString& sheetName, const QList<SheetColumn>& columns,
        const QString& datePattern);
    ~WorkbookWriter();

    /// Numbers, dates and texts become cells of their kind; an invalid value, an empty text and a date that
    /// is none of a sheet become no cell. False when the sheet or the disk is full.
    bool addRow(const QVariantList& cells);
    /// Puts the workbook together; false when the disk is full.
    bool finish();
    int cutTexts() const { return m_cutTexts; } ///< that had more letters than a cell takes

private:
    void addText(int column, QString text, quint16 format);
    void addNumber(int column, double number, quint16 format);
    bool writeContainer();
    QByteArray globals(qint64 sizeOfTexts) const;
    QByteArray sheetHead() const;

    QFileDevice& m_file;
    QString m_sheetName;
    QList<SheetColumn> m_columns;
    QString m_datePattern;
    QTemporaryFile m_cells;
    std::unique_ptr<SharedTexts> m_texts;
    QByteArray m_row;
    int m_rows = 0;
    int m_cutTexts = 0;
};

/// Whether a day can be a date in a sheet: from March 1900. Earlier ones have no number that all programs
/// agree about, and are better written as texts.
bool isSheetDate(QDate day);

/// What a sheet may be called: 31 letters, none of those that a formula needs.
QString safeSheetName(const QString& name);

} // namespace formats
