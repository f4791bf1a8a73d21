#pragma once

#include "output/report/report_source.h"

#include <QHash>

#include <vector>

namespace output {

/// What is no column of the source: "#key", "#count", "#title" and so on, without their braces.
using NamedTexts = QHash<QString, QString>;

/// A text with columns in braces, looked up once and filled for each row.
class TextTemplate {
public:
    TextTemplate(const QString& text, const ReportSource& source);

    /// The lines that have a value, with "\n" between; a text without columns as it is.
    QString fill(const ReportSource& source, int row, const NamedTexts& names) const;
    bool hasFields() const { return m_hasFields; }
    /// The column that is all of the text; -1 when there is more, or less.
    int onlyField() const;

private:
    struct Piece {
        QString before; ///< what stands in front of the field, behind the field before
        int field = -1;
        QString name = {}; ///< of a text that is no column
    };
    struct Line {
        std::vector<Piece> pieces;
        QString end;
    };
    QString fillLine(const Line& line, const ReportSource& source, int row, const NamedTexts& names) const;

    std::vector<Line> m_lines;
    bool m_hasFields = false;
};

} // namespace output
