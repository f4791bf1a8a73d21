#include "telephone/lists/list_members.h"

#include "core/sql_text.h"
#include "telephone/lists/phone_list_sql.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("telephone", text);
}

} // namespace

// Kept: the name without a tag is looked for, so only rows that were stored without one are found and a
// person can be added twice.
MemberAdded addMember(jet::Database& book, const QString& list, const NewMember& member)
{
    const QString known = u"select * from cnt_phlist where name='%1' and listname='%2'"_s.arg(
        core::inQuotes(member.name), core::inQuotes(list));
    if (!book.openRecordset(known).isEmpty())
        return MemberAdded::AlreadyThere;
    const auto hasNumber = [](const TaggedNumber& each) { return !each.number.trimmed().isEmpty(); };
    if (std::ranges::none_of(member.numbers, hasNumber))
        return MemberAdded::NoNumber;
    const jet::Step step(book, translated("adding %1 to the list %2").arg(member.name.simplified(), list));
    jet::Batch batch(book);
    jet::Recordset rows = book.openRecordset(u"select * from cnt_phlist where 1>2"_s);
    for (const TaggedNumber& each : member.numbers) {
        if (!hasNumber(each))
            continue;
        rows.addNew();
        rows.set(u"Name", member.name + u' ' + each.tag);
        rows.set(u"desc", member.name + u' ' + each.tag);
        rows.set(u"phone", each.number);
        rows.set(u"PerId", member.id);
        rows.set(u"category1", member.category);
        rows.set(u"city", member.city);
        rows.set(u"Priority", member.priority);
        rows.set(u"listname", list);
        rows.update();
    }
    return batch.commit() ? MemberAdded::Added : MemberAdded::NotStored;
}

bool addList(jet::Database& book, const QString& list)
{
    const jet::Step step(book, translated("making the list %1").arg(list));
    jet::Recordset rows = book.openRecordset(newListSql(list));
    rows.addNew();
    rows.set(u"listname", list);
    return rows.update();
}

bool deleteList(jet::Database& book, const QString& list)
{
    const jet::Step step(book, translated("deleting the list %1").arg(list));
    return book.execute(u"delete from cnt_phlist where listname='%1'"_s.arg(core::inQuotes(list))).ok;
}

bool deleteNumber(jet::Database& book, const QString& list, const QString& phone, qint64 person)
{
    const jet::Step step(book, translated("deleting %1 from the list %2").arg(phone, list));
    const QString ofList = u"delete from cnt_phlist where listname='"_s + core::inQuotes(list) + u"' and "_s;
    if (phone.isEmpty())
        return book.execute(ofList + u"(phone is null or phone='') and perid="_s + QString::number(person))
            .ok;
    return book.execute(ofList + u"phone ='"_s + core::inQuotes(phone) + u'\'').ok;
}

} // namespace telephone
