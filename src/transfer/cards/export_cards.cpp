#include "transfer/cards/export_cards.h"

#include "core/contact_category.h"
#include "core/photo_file.h"
#include "jet/date_text.h"
#include "platform/drive.h"
#include "platform/storage.h"

#include <filesystem>
#include <system_error>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

constexpr qint64 kMostPhotoBytes = 16 * 1024 * 1024;
constexpr qsizetype kIdsAtATime = 250;
constexpr int kContactsAStep = 25;

QString contactsSql(const QList<qint64>& ids)
{
    QStringList numbers;
    for (const qint64 id : ids)
        numbers << QString::number(id);
    return u"Select * from cnt_main where id in ("_s + numbers.join(u',') + u')';
}

QByteArray photoOf(const QString& file)
{
    const QFileInfo info(file);
    QFile photo(file);
    if (file.isEmpty() || !info.isFile() || info.size() > kMostPhotoBytes || !photo.open(QIODevice::ReadOnly))
        return {};
    return photo.read(kMostPhotoBytes);
}

QString cardText(const QVariant& value, jet::ColumnType type)
{
    if (type == jet::ColumnType::YesNo)
        return value.toBool() ? u"true"_s : QString();
    if (value.typeId() == QMetaType::QDateTime)
        return jet::isoDate(value.toDateTime().date(), value.toDateTime().time());
    return type == jet::ColumnType::Date ? jet::isoDate(value.toDate()) : value.toString();
}

/// Where the cards go: one file, or one each.
class CardTarget {
public:
    CardTarget(const platform::Drive& drive, const CardExport& target)
        : m_isOneFile(!target.file.isEmpty())
        , m_folder(m_isOneFile ? QFileInfo(target.file).path() : QString())
    {
        if (m_isOneFile) {
            m_file.setFileName(target.file);
            m_isReady = m_file.open(QIODevice::WriteOnly);
        } else if (drive.ensureFolder(target.folder)) {
            m_folder = drive.local(target.folder);
            m_isReady = true;
        }
    }

    bool isReady() const { return m_isReady; }
    const QString& folder() const { return m_folder; }

    bool write(const QString& name, const QByteArray& card)
    {
        if (m_isOneFile)
            return m_file.write(card) == card.size();
        const QString stem = platform::Drive::safeFileName(name);
        QString free = stem;
        for (int& number = m_numbers[stem.toLower()]; number == 0 || m_written.contains(free.toLower());)
            free = ++number == 1 ? stem : u"%1 (%2)"_s.arg(stem).arg(number);
        m_written.insert(free.toLower());
        return replace(m_folder + u'/' + free + u".vcf"_s, card);
    }

    bool finish() { return !m_isOneFile || platform::commitWhole(m_file); }
    void giveUp()
    {
        if (m_isOneFile)
            m_file.cancelWriting();
    }

private:
    // The old card stays whole until the new one is. Nobody waits for the disk, as a save of the book does.
    bool replace(const QString& path, const QByteArray& card) const
    {
        QFile draft(m_folder + u"/.card-in-writing"_s);
        const bool isWritten
            = draft.open(QIODevice::WriteOnly) && draft.write(card) == card.size() && draft.flush();
        draft.close();
        std::error_code failure;
        if (isWritten)
            std::filesystem::rename(QFile::encodeName(draft.fileName()).constData(),
                QFile::encodeName(path).constData(), failure);
        if (!isWritten || failure)
            draft.remove();
        return isWritten && !failure;
    }

    bool m_isOneFile;
    bool m_isReady = false;
    QString m_folder;
    QSaveFile m_file;
    QHash<QString, int> m_numbers;
    QSet<QString> m_written;
};

/// Contacts of the book with all that a card can tell of them, and their pictures.
class RowReader {
public:
    RowReader(const jet::Recordset& rows, const formats::CardColumns& columns)
        : m_columns(columns.all())
        , m_photo(rows.columnIndex(u"PhotLoc"))
    {
        for (const formats::CardColumns::Column& column : m_columns)
            m_places.push_back(rows.columnIndex(column.name));
    }

    formats::CardContact read(const jet::Recordset& row, const platform::Drive& drive) const
    {
        formats::CardContact contact;
        for (size_t i = 0; i < m_places.size(); ++i) {
            const formats::CardColumns::Column& column = m_columns[qsizetype(i)];
            if (m_places[i] < 0)
                continue;
            const QString text = cardText(row.value(m_places[i]), column.type);
            // The word that stands for nothing is put there again by whoever takes the card in.
            if (!text.isEmpty() && text != core::orUndefined({}))
                contact.values.push_back({column.name, text});
        }
        contact.photo = photoOf(core::photoFile(drive, row.textAt(m_photo)));
        return contact;
    }

private:
    const QList<formats::CardColumns::Column>& m_columns;
    std::vector<int> m_places;
    int m_photo;
};

} // namespace

core::CardsWritten exportCards(jet::Database& book, const platform::Drive& drive,
    const formats::CardColumns& columns, const QList<qint64>& ids, const CardExport& target,
    const core::CardProgress& progress)
{
    core::CardsWritten result;
    CardTarget cards(drive, target);
    const auto whyNot = [&cards] { return platform::whyNotWritable(cards.folder()); };
    if (!cards.isReady()) {
        result.stoppedBy = whyNot();
        return result;
    }
    for (qsizetype at = 0; at < ids.size(); at += kIdsAtATime) {
        jet::Recordset rows = book.openRecordset(contactsSql(ids.mid(at, kIdsAtATime)));
        const RowReader reader(rows, columns);
        for (; rows.hasRow(); rows.moveNext()) {
            const formats::CardContact contact = reader.read(rows, drive);
            const bool isWritten = cards.write(contact.text(u"Name"), cardOf(contact, target.version));
            ++(isWritten ? result.written : result.failed);
            if (!isWritten && (!target.file.isEmpty() || !platform::isWritable(cards.folder()))) {
                cards.giveUp();
                result.stoppedBy = whyNot();
                result.written = target.file.isEmpty() ? result.written : 0;
                return result;
            }
            const int done = result.written + result.failed;
            if (progress && done % kContactsAStep == 0 && !progress(done)) {
                cards.giveUp();
                result.stopped = true;
                result.written = target.file.isEmpty() ? result.written : 0;
                return result;
            }
        }
    }
    if (!cards.finish()) {
        result.written = 0;
        result.stoppedBy = whyNot();
    }
    return result;
}

} // namespace transfer
