#include "letters/lists/list_members.h"

#include "core/sql_text.h"
#include "letters/lists/mail_list_sql.h"

#include <QCoreApplication>
#include <QSet>

#include <utility>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr qsizetype kIdsInAStatement = 250;
constexpr int kPeopleAStep = 100;

QString say(const char* text)
{
    return QCoreApplication::translate("letters", text);
}

QString ofList(const QString& list)
{
    return u"listname='%1'"_s.arg(core::inQuotes(list));
}

/// Read once, since a look at the list for each of ten thousand people would take as many times longer.
QSet<qint64> membersOf(jet::Database& book, const QString& list)
{
    QSet<qint64> members;
    const jet::Recordset rows
        = book.openRecordset(u"SELECT perid FROM [cnt_maillist] WHERE "_s + ofList(list));
    for (int row = 0; row < rows.count(); ++row)
        members.insert(rows.valueAt(row, 0).toLongLong());
    return members;
}

} // namespace

QStringList idLists(const QList<qint64>& ids)
{
    QStringList lists;
    QStringList piece;
    for (const qint64 id : ids) {
        piece << QString::number(id);
        if (piece.size() == kIdsInAStatement)
            lists << std::exchange(piece, {}).join(u',');
    }
    if (!piece.isEmpty())
        lists << piece.join(u',');
    return lists;
}

MembersAdded addListMembers(jet::Database& book, const QString& list, const QList<qint64>& ids,
    const std::function<bool(int)>& progress)
{
    MembersAdded result;
    const jet::Step step(book, say("adding people to the list %1").arg(list));
    jet::Batch batch(book);
    QSet<qint64> known = membersOf(book, list);
    jet::Recordset rows = book.openRecordset(u"select * from cnt_maillist where 1>2"_s);
    int done = 0;
    for (const qint64 id : ids) {
        if (++done % kPeopleAStep == 0 && progress && !progress(done)) {
            batch.rollBack();
            return {.isStopped = true};
        }
        const jet::Recordset person
            = book.openRecordset(u"SELECT id,name FROM [cnt_main] WHERE id = "_s + QString::number(id));
        if (!person.hasRow() || known.contains(id)) {
            ++result.known;
            continue;
        }
        rows.addNew();
        rows.set(u"perid", id);
        rows.set(u"name", person.textOrEmpty(u"name"));
        rows.set(u"listname", list);
        rows.update();
        known.insert(id);
        ++result.added;
    }
    result.isStored = batch.commit();
    return result;
}

int rowsOfMember(jet::Database& book, const QString& list, const QString& name, qint64 id)
{
    const QString of = u"select count(*) from cnt_maillist where "_s + ofList(list);
    return book
        .openRecordset(
            of + u" and ([name] = '%1' or perid = %2)"_s.arg(core::inQuotes(name), QString::number(id)))
        .textAt(0)
        .toInt();
}

bool removeListMember(jet::Database& book, const QString& list, const QString& name, qint64 id)
{
    const jet::Step step(book, say("taking %1 off the list %2").arg(name.simplified(), list));
    jet::Batch batch(book);
    book.execute(u"delete * from CNT_MAILLIST where [NAME] = '%1' and [LISTNAME] = '%2'"_s.arg(
        core::inQuotes(name), core::inQuotes(list)));
    if (id != 0)
        book.execute(u"delete * from CNT_MAILLIST where perid = %1 and "_s.arg(id) + ofList(list));
    return batch.commit();
}

bool renameMailList(jet::Database& book, const QString& from, const QString& to)
{
    const jet::Step step(book, say("renaming the list %1").arg(from));
    jet::Batch batch(book);
    if (from.compare(to, Qt::CaseInsensitive) != 0)
        book.execute(u"delete * from cnt_maillist where "_s + ofList(from)
            + u" and perid in (select perid from cnt_maillist where "_s + ofList(to) + u')');
    book.execute(u"update cnt_maillist set listname='%1' where "_s.arg(core::inQuotes(to)) + ofList(from));
    return batch.commit();
}

bool deleteMailList(jet::Database& book, const QString& list)
{
    const jet::Step step(book, say("deleting the list %1").arg(list));
    return book.execute(u"delete * from cnt_maillist where "_s + ofList(list)).ok;
}

bool clearSelection(jet::Database& book)
{
    const jet::Upkeep byItself(book);
    return book.execute(clearSelectionSql()).ok;
}

bool selectContact(jet::Database& book, qint64 id, bool selected)
{
    const jet::Upkeep byItself(book);
    return book.execute(selectContactSql(id, selected)).ok;
}

bool selectWhere(jet::Database& book, const QString& condition, jet::Way way, bool selected)
{
    const jet::Upkeep byItself(book);
    return book
        .execute(
            u"update [cnt_main] set selected=%1 where "_s.arg(selected ? u"true"_s : u"false"_s) + condition,
            way)
        .ok;
}

bool selectContacts(jet::Database& book, const QList<qint64>& ids, bool selected)
{
    const jet::Upkeep byItself(book);
    jet::Batch batch(book);
    for (const QString& piece : idLists(ids))
        selectWhere(book, u"id in ("_s + piece + u')', jet::Way::Dao, selected);
    return batch.commit();
}

} // namespace letters
