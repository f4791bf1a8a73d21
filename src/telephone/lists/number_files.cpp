#include "telephone/lists/number_files.h"

#include "platform/storage.h"
#include "platform/text_file.h"

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

QString write(const jet::Recordset& rows, const QString& path, QStringView head, QStringView nameColumn,
    const QString& mark)
{
    platform::TextFileWriter file(path);
    const int name = rows.columnIndex(nameColumn);
    const int phone = rows.columnIndex(u"phone");
    bool written = file.isOpen() && file.writeLine(head);
    for (int row = 0; written && row < rows.count(); ++row) {
        const QString number = rows.textAt(row, phone);
        const QString who = rows.textAt(row, name);
        written = file.writeLine(number.isEmpty() ? who : who + mark + number);
    }
    return written && file.commit() ? QString() : file.whyNot();
}

} // namespace

// Kept: the head has a column for descriptions, which stays empty.
QString exportNumbers(const jet::Recordset& rows, const QString& path, const QString& ending)
{
    const bool isText = ending.compare(u"txt", Qt::CaseInsensitive) == 0;
    return write(rows, path, u"Name           ,Phone                      ,Description", u"name",
        isText ? u" "_s : u", "_s);
}

QString exportTimex(const jet::Recordset& rows, const QString& path)
{
    return write(rows, path, u"Name           ,Phone                      ", u"desc", u", "_s);
}

} // namespace telephone
