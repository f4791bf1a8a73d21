#include "letters/creator/letter_database.h"

#include "formats/delimited.h"
#include "jet/database.h"
#include "jet/schema.h"
#include "platform/drive.h"
#include "platform/durable_files.h"
#include "platform/storage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

const QStringList kColumns{u"Address"_s, u"Text"_s, u"User1"_s, u"User2"_s};

jet::Schema listSchema()
{
    jet::SchemaTable list{.database = u"letters"_s, .name = u"List"_s, .columns = {}};
    for (const QString& column : kColumns)
        list.columns << jet::SchemaColumn{.name = column, .type = jet::ColumnType::Memo};
    return {.tables = {list}, .indexes = {}};
}

bool isListDatabase(const QString& file)
{
    jet::Database database;
    return QFileInfo(file).isFile() && database.open(file) == jet::Database::OpenResult::Opened
        && database.tables().contains(u"List"_s, Qt::CaseInsensitive);
}

bool makeListDatabase(const QString& file)
{
    jet::Database database;
    return jet::Database::create(file) && database.open(file) == jet::Database::OpenResult::Opened
        && database.applySchema(listSchema(), u"letters"_s);
}

/// The template as a file of this computer; empty when there is none and none can be made.
QString letterTemplate(const platform::Drive& drive)
{
    const QString file = drive.local(kLetterTemplate);
    if (file.isEmpty() || isListDatabase(file))
        return file;
    // What lies there under its name is no template, and may be somebody's.
    if (QFileInfo::exists(file) || !QDir().mkpath(QFileInfo(file).path()) || !makeListDatabase(file))
        return {};
    return file;
}

QStringList listRow(const Recipient& to, const formats::RichText& letter)
{
    QStringList address = letterHead(to).plain().split(u'\n');
    address.removeLast(); // the line that speaks to the reader
    return {address.join(u'\n'), letter.plain(), to.name, to.salutation};
}

bool fillList(const QString& file, const QList<QStringList>& rows)
{
    jet::Database database;
    if (database.open(file) != jet::Database::OpenResult::Opened)
        return false;
    jet::Batch batch(database);
    database.execute(u"delete * from list");
    jet::Recordset list = database.openRecordset(u"Select * from List");
    for (const QStringList& row : rows) {
        list.addNew();
        for (qsizetype column = 0; column < kColumns.size(); ++column)
            list.set(kColumns.at(column), row.at(column));
        list.update();
    }
    return batch.commit();
}

bool writeCsv(const QString& path, const QList<QStringList>& rows)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(formats::utf8Mark + formats::csvLine(kColumns));
    for (const QStringList& row : rows)
        file.write(formats::csvLine(row));
    return platform::commitWhole(file);
}

/// An open database keeps a log beside its file.
void removeDatabase(const QString& file)
{
    for (const QStringView ending : {u"", u"-wal", u"-shm"})
        QFile::remove(file + ending.toString());
}

/// The CSV file beside a database. One that belongs to something else is left alone.
QString csvBeside(const QString& file)
{
    const QString stem = QFileInfo(file).path() + u'/' + QFileInfo(file).completeBaseName();
    QString csv = stem + u".csv"_s;
    for (int number = 2; QFileInfo::exists(csv) && !QFileInfo::exists(file); ++number)
        csv = u"%1 (%2).csv"_s.arg(stem).arg(number);
    return csv;
}

} // namespace

LetterDatabase writeLetterDatabase(const platform::Drive& drive, const QString& file,
    const QList<Recipient>& recipients, const std::function<formats::RichText(const Recipient&)>& letterTo)
{
    const QString model = letterTemplate(drive);
    if (!model.isEmpty() && QFileInfo(file) == QFileInfo(model))
        return {.whyNot
            = QCoreApplication::translate("letters", "this is the empty database that others are made from")};
    QList<QStringList> rows;
    for (const Recipient& to : recipients)
        rows << listRow(to, letterTo(to));
    const QString draft = file + u".new"_s;
    const QString csv = csvBeside(file);
    removeDatabase(draft);
    const bool isMade = model.isEmpty() ? makeListDatabase(draft) : QFile::copy(model, draft);
    const bool isWritten = isMade && fillList(draft, rows) && writeCsv(csv, rows);
    if (isWritten)
        removeDatabase(file);
    const bool isInPlace = isWritten && platform::putInPlace(draft, file);
    removeDatabase(draft);
    return isInPlace ? LetterDatabase{.csv = csv} : LetterDatabase{.whyNot = platform::whyNotReplaced(file)};
}

} // namespace letters
