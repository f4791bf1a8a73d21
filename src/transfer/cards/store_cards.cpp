#include "transfer/cards/store_cards.h"

#include "core/contact_category.h"
#include "core/scheduler_rows.h"
#include "jet/date_text.h"
#include "platform/drive.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

constexpr QStringView kPhotos = u"C:\\OVUserFiles\\Photos";
constexpr qsizetype kRowsAtATime = 500;

/// Pictures of an import in the folder of photos, under free names; they go again unless keep() is said.
class CopiedPhotos {
public:
    explicit CopiedPhotos(const platform::Drive& drive)
        : m_drive(drive)
    {
    }
    ~CopiedPhotos()
    {
        for (const auto& [from, to] : m_copies)
            QFile::remove(to);
    }
    CopiedPhotos(const CopiedPhotos&) = delete;
    CopiedPhotos& operator=(const CopiedPhotos&) = delete;

    /// How the book names the copy; empty when it could not be made.
    QString copy(const QString& file, const QString& name)
    {
        if (!makeReady())
            return {};
        const QString ending = u'.' + QFileInfo(file).suffix();
        const QString stem = platform::Drive::safeFileName(name);
        int& number = m_numbers[stem.toLower() + ending];
        QString free;
        do {
            ++number;
            free = number == 1 ? stem + ending : u"%1 (%2)%3"_s.arg(stem).arg(number).arg(ending);
        } while (m_taken.contains(free.toLower()));
        const QString target = m_folder + u'/' + free;
        if (!QFile::copy(file, target)) {
            QFile::remove(target);
            return {};
        }
        m_taken.insert(free.toLower());
        m_copies.append({file, target});
        return kPhotos.toString() + u'\\' + free;
    }

    /// They stay, and go and come with the step.
    void keep(jet::Step& step, std::shared_ptr<QTemporaryDir> sources)
    {
        if (m_copies.isEmpty())
            return;
        step.follow([copies = std::exchange(m_copies, {}), sources](jet::StepDirection direction) {
            for (const auto& [from, to] : copies) {
                if (direction == jet::StepDirection::Back)
                    QFile::remove(to);
                else
                    QFile::copy(from, to);
            }
        });
    }

private:
    // The folder is looked at once and not for every picture.
    bool makeReady()
    {
        if (!m_folder.isEmpty())
            return true;
        if (!m_drive.ensureFolder(kPhotos))
            return false;
        m_folder = m_drive.local(kPhotos);
        for (const QString& name : QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden))
            m_taken.insert(name.toLower());
        return true;
    }

    const platform::Drive& m_drive;
    QString m_folder;
    QSet<QString> m_taken;
    QHash<QString, int> m_numbers; ///< that a stem has come to
    QList<std::pair<QString, QString>> m_copies;
};

/// The columns that at least one of the cards fills, and those that no contact is without.
class RowMaker {
public:
    RowMaker(const formats::CardColumns& columns, const IncomingCards& incoming, const StoreOptions& options)
        : m_columns(columns)
        , m_options(options)
        , m_places(size_t(columns.all().size()), -1)
    {
        for (const QStringView column : {u"Name", u"category1", u"category2", u"Priority", u"Product",
                 u"Status", u"region", u"dateEnter", u"DateModi"})
            m_places[numberOf(column)] = 0;
        for (const IncomingCard& card : incoming.cards) {
            for (const auto& value : card.contact.values)
                m_places[numberOf(value.column)] = 0;
        }
        for (qsizetype column = 0; column < columns.all().size(); ++column) {
            if (m_places[size_t(column)] < 0)
                continue;
            m_places[size_t(column)] = m_names.size();
            m_names << columns.all()[column].name;
            m_blank << blankOf(columns.all()[column]);
        }
        m_names << u"PhotLoc"_s;
    }

    const QStringList& names() const { return m_names; }

    QStringList row(const IncomingCard& card, const QString& photo) const
    {
        QStringList row = m_blank;
        for (const auto& value : card.contact.values)
            row[m_places[numberOf(value.column)]] = value.text;
        row << photo;
        return row;
    }

private:
    /// All that a contact on its way holds is a column of the schema.
    size_t numberOf(QStringView column) const
    {
        const formats::CardColumns::Column* found = m_columns.find(column);
        Q_ASSERT(found);
        return size_t(found - m_columns.all().constData());
    }

    QString blankOf(const formats::CardColumns::Column& column) const
    {
        const auto is
            = [&column](QStringView name) { return column.name.compare(name, Qt::CaseInsensitive) == 0; };
        if (column.type == jet::ColumnType::YesNo)
            return u"false"_s;
        if (is(u"dateEnter") || is(u"DateModi"))
            return jet::isoDate(m_options.today);
        if (is(u"Priority"))
            return m_options.priority.isEmpty() ? u"2"_s : m_options.priority;
        for (const QStringView name : {u"category1", u"category2", u"Product", u"Status", u"region"}) {
            if (is(name))
                return core::orUndefined({});
        }
        return {};
    }

    const formats::CardColumns& m_columns;
    const StoreOptions& m_options;
    std::vector<qsizetype> m_places; ///< by number of the column, -1 for one that is not written
    QStringList m_names;
    QStringList m_blank;
};

std::optional<QDate> dateOf(const formats::CardContact& contact, QStringView column)
{
    const QDate date = jet::dayOfIso(contact.text(column));
    return date.isValid() ? std::optional(date) : std::nullopt;
}

core::ScheduledDates datesOf(const formats::CardContact& contact, qint64 id)
{
    core::ScheduledDates dates;
    dates.id = id;
    dates.first = contact.text(u"First");
    dates.last = contact.text(u"Last");
    dates.birthday = dateOf(contact, u"M_BD");
    dates.anniversary = dateOf(contact, u"Anniv");
    dates.spouseBirthday = dateOf(contact, u"Sp_BD");
    if (dates.spouseBirthday)
        dates.spouse = contact.text(u"Spouse");
    for (int kid = 0; kid < 3; ++kid) {
        dates.kidBirthdays[kid] = dateOf(contact, u"Kid%1_BD"_s.arg(kid + 1));
        if (dates.kidBirthdays[kid])
            dates.kids[kid] = contact.text(u"kid%1"_s.arg(kid + 1));
    }
    return dates;
}

/// Rows without a day are of no use to a scheduler; a whole book of cards would bring thousands.
QList<core::SchedulerRow> schedulerRowsOf(const formats::CardContact& contact, qint64 id, int year)
{
    QList<core::SchedulerRow> rows = core::schedulerRows(datesOf(contact, id), year);
    rows.removeIf([](const core::SchedulerRow& row) { return row.date.isEmpty(); });
    return rows;
}

QString newestSql()
{
    return u"select max(id) as newest from cnt_main"_s;
}

QString newerThanSql(qint64 id)
{
    return u"select id from cnt_main where id>%1 order by id"_s.arg(id);
}

} // namespace

StoredCards storeCards(jet::Database& book, const platform::Drive& drive, const formats::CardColumns& columns,
    const IncomingCards& incoming, const StoreOptions& options)
{
    StoredCards result;
    std::vector<const IncomingCard*> ticked;
    for (const IncomingCard& card : incoming.cards) {
        if (card.isTicked)
            ticked.push_back(&card);
    }
    const QString count = QString::number(ticked.size());
    jet::Step step(book, QCoreApplication::translate("transfer", "importing %1 cards").arg(count));
    CopiedPhotos photos(drive);
    jet::Batch batch(book);
    const qint64 newest = book.openRecordset(newestSql()).number(u"newest");
    const RowMaker maker(columns, incoming, options);
    QList<QStringList> rows;
    bool isDone = true;
    for (size_t i = 0; i < ticked.size() && isDone; ++i) {
        const IncomingCard& card = *ticked[i];
        QString photo;
        if (!card.photoFile.isEmpty()) {
            photo = photos.copy(card.photoFile, card.contact.text(u"Name"));
            result.photosLost += photo.isEmpty() ? 1 : 0;
        }
        rows << maker.row(card, photo);
        if (rows.size() < kRowsAtATime && i + 1 < ticked.size())
            continue;
        isDone = book.appendRows(u"cnt_main"_s, maker.names(), std::exchange(rows, {}));
        result.isStopped = isDone && options.progress && !options.progress(int(i + 1));
        isDone = isDone && !result.isStopped;
    }
    if (isDone && options.makesSchedulerRows) {
        QList<core::SchedulerRow> events;
        const jet::Recordset ids = book.openRecordset(newerThanSql(newest));
        for (int i = 0; i < ids.count() && size_t(i) < ticked.size(); ++i)
            events += schedulerRowsOf(ticked[size_t(i)]->contact, ids.keyAt(i), options.today.year());
        core::addSchedulerRows(book, events);
    }
    if (!isDone)
        batch.rollBack();
    else if (batch.commit()) {
        result.added = int(ticked.size());
        photos.keep(step, options.photos);
    }
    return result;
}

} // namespace transfer
