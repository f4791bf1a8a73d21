#include "anniversaries/list/scheduler_copy.h"

#include "anniversaries/list/birthday_list_sql.h"
#include "core/dated_persons.h"
#include "jet/date_text.h"

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

constexpr QStringView kAnniversaryFlag = u"cpsanni";

/// As long as the columns of the scheduler are.
QString fitting(const QString& text)
{
    constexpr int kLongest = 255;
    return text.left(kLongest);
}

QString flaggedSql(Occasion occasion)
{
    QStringList flags;
    for (const core::DatedPerson& person : core::datedPersons())
        flags << person.copied.toString() + u"=true"_s;
    if (occasion == Occasion::Anniversary)
        flags = {kAnniversaryFlag.toString() + u"=true"_s};
    return u"select id from cnt_main where "_s + flags.join(u" or "_s);
}

} // namespace

std::optional<int> copyTimes(const QString& typed)
{
    constexpr int kMost = 9;
    bool isNumber = false;
    const int times = typed.trimmed().toInt(&isNumber);
    return isNumber && times >= 1 && times <= kMost ? std::optional(times) : std::nullopt;
}

SchedulerCopy::SchedulerCopy(jet::Database& data, Occasion occasion, int thisYear, int times)
    : m_data(data)
    , m_occasion(occasion)
    , m_thisYear(thisYear)
    , m_times(times)
    , m_schedule(data.openRecordset(u"select * from ovs_schedular"_s))
{
    const jet::Recordset flagged = data.openRecordset(flaggedSql(occasion));
    for (int row = 0; row < flagged.count(); ++row)
        m_flagged << flagged.valueAt(row, 0).toLongLong();
    const jet::Recordset scheduled = data.openRecordset(u"select distinct b_a_id from ovs_schedular"_s);
    for (int row = 0; row < scheduled.count(); ++row)
        m_scheduled << scheduled.textAt(row, 0).toLower();
}

// Kept: who is ticked gets rows each time, also when the date was copied before.
void SchedulerCopy::copy(const CopiedRow& row)
{
    const QString key = keyOf(row);
    if (row.isTicked) {
        if (!row.wasTicked)
            setFlag(row, true);
        return addRows(row, key);
    }
    if (m_flagged.contains(row.id))
        setFlag(row, false);
    if (m_scheduled.contains(key.toLower()))
        m_data.execute(u"delete * from ovs_schedular where b_a_id ="_s + quoted(key));
}

// Two people of one contact with one day share the flag of the first.
QString SchedulerCopy::flagOf(const CopiedRow& row) const
{
    if (m_occasion == Occasion::Anniversary)
        return kAnniversaryFlag.toString();
    jet::Database data = m_data;
    const jet::Recordset contact = data.openRecordset(u"select * from cnt_main where id=%1"_s.arg(row.id));
    for (const core::DatedPerson& person : core::datedPersons()) {
        if (row.date.isValid() && contact.hasRow() && contact.date(person.date) == row.date)
            return person.copied.toString();
    }
    return {};
}

void SchedulerCopy::setFlag(const CopiedRow& row, bool copied)
{
    if (copied)
        m_flagged << row.id;
    if (const QString flag = flagOf(row); !flag.isEmpty())
        m_data.execute(u"update cnt_main set %1 = %2 where id = %3"_s.arg(
            flag, copied ? u"true"_s : u"false"_s, QString::number(row.id)));
}

void SchedulerCopy::addRows(const CopiedRow& row, const QString& key)
{
    const QString kind = m_occasion == Occasion::Birthday ? u"Birthday"_s : u"Anniversary"_s;
    m_scheduled << key.toLower();
    for (int year = m_thisYear; year < m_thisYear + m_times; ++year) {
        m_schedule.addNew();
        m_schedule.set(u"Done", false);
        m_schedule.set(u"categ1", kind);
        m_schedule.set(u"Date", jet::formatDate(row.date, u"dd mmm") + u' ' + QString::number(year));
        m_schedule.set(u"Priority", row.priority.isEmpty() ? QVariant() : row.priority);
        m_schedule.set(u"Type", kind);
        m_schedule.set(u"person", fitting(row.person));
        m_schedule.set(u"desc", fitting(kind + u" of "_s + row.name + u' ' + row.beside));
        m_schedule.set(u"Diary", false);
        m_schedule.set(u"recurring", false);
        m_schedule.set(u"Outlook", false);
        m_schedule.set(u"Frm", u"Contact"_s);
        m_schedule.set(u"b_a_id", key);
        m_schedule.update();
    }
}

QString SchedulerCopy::keyOf(const CopiedRow& row) const
{
    const QString kind = m_occasion == Occasion::Birthday ? u"Bd"_s : u"An"_s;
    return fitting(kind + QString::number(row.id) + row.name);
}

} // namespace anniversaries
