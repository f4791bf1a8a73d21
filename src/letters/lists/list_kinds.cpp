#include "letters/lists/list_kinds.h"

#include "core/sql_text.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr int kMemorySlots = 10; // of a list of the dialer

struct KindRow {
    QStringView prefix;
    QStringView lists; ///< the statement, names in the first column, perhaps an id in the second
    const char* word;
    QStringView members; ///< the subselection of those who are in it; "%1" is the name or the id
    QStringView insert; ///< "%1" is the contact, "%2" the list by name or id, "%3" the name of the contact
};
/// In the order of ListKind.
constexpr KindRow kKinds[] = {
    {u"Mail     -", u"select distinct LISTNAME from CNT_MAILLIST where LISTNAME <> null",
        QT_TRANSLATE_NOOP("letters", "the mailing list"),
        u"Select perid from cnt_mailList where listname ='%1' and perid is not null",
        u"Insert Into cnt_maillist(perid,name,listname) values(%1,'%3','%2')"},
    {u"Phone    -", u"select distinct list from cnt_phonenum where list <> null",
        QT_TRANSLATE_NOOP("letters", "the list of the dialer"),
        u"Select perid from cnt_Phonenum where list ='%1' and perid is not null", u""},
    {u"Kitty    -", u"select [GROUP],ID from WMA_KITTYGROUP where [GROUP] <> null",
        QT_TRANSLATE_NOOP("letters", "the group"),
        u"Select cntid from wma_kittymember where groupid =%1 and cntid is not null",
        u"Insert Into wma_kittymember(cntid,groupid) values(%1,%2)"},
    // Kept: guests have no id of their own, so that it is the one of the contact which is compared here.
    {u"Party   -", u"select [EVENT],ID from WMA_PARTYPLANNER where [EVENT] <> null",
        QT_TRANSLATE_NOOP("letters", "the guests of"), u"Select gid from WMA_PARTYGUEST where id =%1",
        u"Insert Into WMA_Partyguest(gid,PID,name) values(%1,%2,'%3')"},
    {u"Association  -", u"select [GROUP],ID from CNT_ASSOGRP where [GROUP] <> null",
        QT_TRANSLATE_NOOP("letters", "the association"),
        u"Select cntid from cnt_assomember where groupid =%1 and cntid is not null",
        u"Insert Into cnt_assomember(cntid,groupid,name) values(%1,%2,'%3')"},
};

const KindRow& rowOf(ListKind kind)
{
    return kKinds[static_cast<int>(kind)];
}

/// The list as its members know it.
QString keyOf(const PickedList& list)
{
    const bool byName = list.kind == ListKind::Mail || list.kind == ListKind::Phone;
    return byName ? core::inQuotes(list.name) : QString::number(list.id);
}

struct Number {
    QStringView column;
    QStringView tag;
};
constexpr Number kNumbers[] = {{u"h_ph1", u"H1"}, {u"h_ph2", u"H2"}, {u"h_ph3", u"H3"}, {u"mobile", u"Mob"},
    {u"w_ph1", u"W1"}, {u"w_ph2", u"W2"}, {u"w_ph3", u"W3"}, {u"b_ph1", u"B1"}, {u"b_ph2", u"B2"},
    {u"b_ph3", u"B3"}, {u"sp_mobile", u"Mob"}};

/// Adds people to one list, one by one.
class Adding {
public:
    Adding(jet::Database& book, const PickedList& list)
        : m_book(book)
        , m_list(list)
    {
        if (list.kind == ListKind::Phone)
            findFreeSlot();
        if (list.kind == ListKind::Party)
            findGuests();
    }

    void add(const jet::Recordset& person)
    {
        const qint64 id = person.number(u"id");
        const QString name = person.textOrEmpty(u"name");
        if (m_guests.contains(id))
            return;
        if (m_list.kind == ListKind::Phone && !addNumber(person, name)) {
            result.without << name.simplified();
            return;
        }
        if (m_list.kind != ListKind::Phone)
            m_book.execute(insertSql(id, name));
        ++result.added;
    }

    MembersAdded result;

private:
    QString insertSql(qint64 id, const QString& name) const
    {
        const QString insert = rowOf(m_list.kind).insert.toString();
        return insert.contains(u"%3") ? insert.arg(QString::number(id), keyOf(m_list), core::inQuotes(name))
                                      : insert.arg(QString::number(id), keyOf(m_list));
    }

    void findFreeSlot()
    {
        const jet::Recordset last = m_book.openRecordset(
            u"Select max(cmbNum) from cnt_Phonenum where list ='%1'"_s.arg(keyOf(m_list)));
        m_slot = last.textAt(0).isEmpty() ? 0 : last.textAt(0).toInt() + 1;
    }

    void findGuests()
    {
        const jet::Recordset guests
            = m_book.openRecordset(u"select gid from wma_partyguest where PID = "_s + keyOf(m_list));
        for (int row = 0; row < guests.count(); ++row)
            m_guests.insert(guests.valueAt(row, 0).toLongLong());
    }

    bool addNumber(const jet::Recordset& person, const QString& name)
    {
        const auto number = std::ranges::find_if(kNumbers,
            [&person](const Number& each) { return !person.textOrEmpty(each.column).trimmed().isEmpty(); });
        if (number == std::end(kNumbers) || m_slot >= kMemorySlots)
            return false;
        jet::Recordset slot = m_book.openRecordset(u"select * from cnt_phonenum where 1>2"_s);
        slot.addNew();
        slot.set(u"List", m_list.name);
        slot.set(u"cmbnum", m_slot++);
        slot.set(u"PerId", person.number(u"id"));
        slot.set(u"phonenum", person.textOrEmpty(number->column).trimmed());
        slot.set(u"Name", name + u'-' + number->tag.toString());
        slot.update();
        return true;
    }

    jet::Database& m_book;
    const PickedList& m_list;
    int m_slot = 0;
    QSet<qint64> m_guests;
};

} // namespace

QString PickedList::caption() const
{
    return rowOf(kind).prefix.toString() + name;
}

QList<PickedList> pickableLists(jet::Database& book)
{
    QList<PickedList> lists;
    for (const ListKind kind :
        {ListKind::Mail, ListKind::Phone, ListKind::Kitty, ListKind::Party, ListKind::Association}) {
        const jet::Recordset rows = book.openRecordset(rowOf(kind).lists);
        const bool hasId = rows.columns().size() > 1;
        for (int row = 0; row < rows.count(); ++row) {
            if (!rows.textAt(row, 0).isEmpty())
                lists << PickedList{kind, rows.textAt(row, 0), hasId ? rows.valueAt(row, 1).toLongLong() : 0};
        }
    }
    return lists;
}

QString wordOf(ListKind kind)
{
    return QCoreApplication::translate("letters", rowOf(kind).word);
}

MembersAdded addToList(jet::Database& book, const PickedList& list, const QList<qint64>& ids)
{
    const jet::Step step(book, QCoreApplication::translate("letters", "adding people to %1").arg(list.name));
    jet::Batch batch(book);
    Adding adding(book, list);
    const QString members = rowOf(list.kind).members.toString().arg(keyOf(list));
    for (const QString& piece : idLists(ids)) {
        jet::Recordset people = book.openRecordset(
            u"SELECT * from cnt_main where id in (%1) and id not in (%2)"_s.arg(piece, members));
        for (; people.hasRow(); people.moveNext())
            adding.add(people);
    }
    adding.result.isStored = batch.commit();
    adding.result.known = int(ids.size()) - adding.result.added - int(adding.result.without.size());
    return adding.result;
}

} // namespace letters
