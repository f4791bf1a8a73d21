#include "letters/creator/letter_record.h"

#include "core/settings.h"
#include "formats/rtf_reader.h"
#include "formats/rtf_writer.h"
#include "letters/creator/letter_files.h"
#include "letters/creator/letter_lists.h"
#include "platform/drive.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr qint64 kLargestFile = 16 * 1024 * 1024;

struct PartColumn {
    QStringView column;
    QString& (*part)(LetterParts&);
};
constexpr std::array kPartColumns{
    PartColumn{u"open1", [](LetterParts& parts) -> QString& { return parts.openings[0]; }},
    PartColumn{u"open2", [](LetterParts& parts) -> QString& { return parts.openings[1]; }},
    PartColumn{u"open3", [](LetterParts& parts) -> QString& { return parts.openings[2]; }},
    PartColumn{u"memo1", [](LetterParts& parts) -> QString& { return parts.openings[3]; }},
    PartColumn{u"memo2", [](LetterParts& parts) -> QString& { return parts.openings[4]; }},
    PartColumn{u"memo3", [](LetterParts& parts) -> QString& { return parts.openings[5]; }},
    PartColumn{u"remark1", [](LetterParts& parts) -> QString& { return parts.closings[0]; }},
    PartColumn{u"remark2", [](LetterParts& parts) -> QString& { return parts.closings[1]; }},
    PartColumn{u"Closing", [](LetterParts& parts) -> QString& { return parts.ending; }},
};

struct AddressColumn {
    QStringView column;
    QStringView previewColumn; ///< in the work table of the preview
    QString LetterAddress::*part;
};
constexpr std::array kAddressColumns{
    AddressColumn{u"Add1", u"Add1", &LetterAddress::line1},
    AddressColumn{u"Add2", u"Add2", &LetterAddress::line2},
    AddressColumn{u"city", u"city", &LetterAddress::city},
    AddressColumn{u"State", u"State", &LetterAddress::state},
    AddressColumn{u"Country", u"Country", &LetterAddress::country},
    AddressColumn{u"Pin", u"zip", &LetterAddress::pin},
};

void setRow(jet::Recordset& rows, const LetterToKeep& letter, const Recipient& to, const QString& merged,
    const QString& path)
{
    rows.set(u"PerId", to.id);
    rows.set(u"person", to.name);
    for (const AddressColumn& address : kAddressColumns)
        rows.set(address.column, to.address.*address.part);
    LetterParts parts = letter.parts;
    for (const PartColumn& each : kPartColumns)
        rows.set(each.column, each.part(parts));
    rows.set(u"desc", letter.parts.body.plain());
    rows.set(u"mailcateg", letter.category);
    rows.set(u"Mailtype", letter.type.trimmed());
    rows.set(u"MailID", letter.serialNumber);
    rows.set(u"Date", letter.date);
    rows.set(u"Year", QString::number(letter.today.year()));
    rows.set(u"type1", u"Sent"_s);
    rows.set(u"type2", letter.kind);
    rows.set(u"MERGED", merged);
    rows.set(u"path", path);
    rows.set(u"category1", to.category);
    if (letter.hasNote)
        rows.set(u"note", letter.note);
}

void addToJournal(
    jet::Recordset& journal, const jet::Recordset& settings, const LetterToKeep& letter, const Recipient& to)
{
    const QString person = to.salutation.trimmed();
    const auto wordOr = [&settings](QStringView column, const QString& otherwise) {
        const QVariant word = settings.value(column);
        return word.isNull() ? otherwise : word.toString();
    };
    journal.addNew();
    journal.set(u"JDate", letter.date);
    journal.set(u"Priority", u"3"_s);
    journal.set(u"categ1", wordOr(u"ltrcat", u"Letters"_s));
    journal.set(u"categ2", wordOr(u"ltrsub", u"Sent"_s));
    journal.set(u"desc", u"Sent "_s + letter.caption + u" Letter to "_s + person);
    journal.set(u"person1", person);
    journal.update();
}

/// The looks of a kept letter. A file that is gone, or that says something else, has none.
formats::RichText withKeptLooks(const platform::Drive& drive, const QString& path, const QString& plain)
{
    QFile file(path.isEmpty() ? QString() : localPath(drive, path));
    if (QFileInfo(file).isFile() && file.size() <= kLargestFile && file.open(QIODevice::ReadOnly)) {
        const auto kept = formats::readRtf(file.read(kLargestFile));
        if (kept && kept->plain() == plain)
            return *kept;
    }
    return formats::RichText::fromPlain(plain);
}

} // namespace

std::optional<QString> keepLetters(jet::Database& data, const platform::Drive& drive,
    const LetterToKeep& letter, const QList<Recipient>& recipients, const MergedFor& mergedFor)
{
    const QString what = recipients.size() == 1 ? recipients.constFirst().name.simplified()
                                                : QString::number(recipients.size());
    const char* const name = recipients.size() == 1
        ? QT_TRANSLATE_NOOP("letters", "keeping the letter to %1")
        : QT_TRANSLATE_NOOP("letters", "keeping the letter to %1 people");
    const jet::Step step(data, QCoreApplication::translate("letters", name).arg(what));
    LetterFolder files(drive, letter.folder);
    jet::Batch batch(data);
    jet::Recordset rows = data.openRecordset(u"select * from CNT_letters order by id desc");
    const jet::Recordset settings = core::readSettings(data);
    const bool isJournalled = settings.flag(u"ltrtojrnl");
    jet::Recordset journal
        = isJournalled ? data.openRecordset(u"select * from OV_JOURNAL") : jet::Recordset();
    for (const Recipient& to : recipients) {
        const formats::RichText merged = mergedFor(to);
        QString path;
        if (merged.isFormatted()) {
            path = files.write(to.name, formats::writeRtf(merged));
            if (path.isEmpty()) {
                batch.rollBack();
                files.removeWritten();
                return files.whyNot();
            }
        }
        rows.addNew();
        setRow(rows, letter, to, merged.plain(), path);
        if (rows.update() && isJournalled)
            addToJournal(journal, settings, letter, to);
    }
    files.settle();
    if (batch.commit())
        return std::nullopt;
    files.removeWritten();
    return QString();
}

std::optional<StoredLetter> storedLetter(jet::Database& data, const platform::Drive& drive, qint64 letterId)
{
    const jet::Recordset text = data.openRecordset(mergedTextSql(letterId));
    const jet::Recordset row = data.openRecordset(letterByIdSql(letterId));
    if (!row.hasRow())
        return std::nullopt;
    StoredLetter stored;
    stored.merged = withKeptLooks(drive, row.textOrEmpty(u"path"), text.textOrEmpty(u"Merged"));
    LetterToKeep& letter = stored.letter;
    for (const PartColumn& each : kPartColumns)
        each.part(letter.parts) = row.textOrEmpty(each.column);
    letter.parts.body = formats::RichText::fromPlain(row.textOrEmpty(u"desc"));
    letter.category = row.textOrEmpty(u"mailcateg");
    letter.type = row.textOrEmpty(u"Mailtype");
    letter.serialNumber = row.textOrEmpty(u"MailID");
    letter.kind = row.textOrEmpty(u"type2");
    letter.note = row.textOrEmpty(u"note");
    letter.date = row.date(u"Date");
    Recipient& to = stored.recipient;
    to.id = row.number(u"PerId");
    to.name = to.salutation = row.textOrEmpty(u"person");
    for (const AddressColumn& address : kAddressColumns)
        to.address.*address.part = row.textOrEmpty(address.column);
    to.category = row.textOrEmpty(u"category1");
    readFromMerged(stored.merged, to, letter.parts);
    return stored;
}

bool fillPreviewRows(jet::Database& data, const LetterParts& parts, const QList<Recipient>& recipients)
{
    const jet::Upkeep upkeep(data);
    jet::Batch batch(data);
    data.execute(u"Delete from rptletter");
    jet::Recordset rows = data.openRecordset(u"Select * from rptletter");
    const QString body = previewBody(parts);
    for (const Recipient& to : recipients) {
        rows.addNew();
        rows.set(u"person", to.name);
        for (const AddressColumn& address : kAddressColumns)
            rows.set(address.previewColumn, to.address.*address.part);
        rows.set(u"Body", body);
        rows.update();
    }
    return batch.commit();
}

} // namespace letters
