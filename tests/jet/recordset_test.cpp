#include "support/test_book.h"

#include <QDateTime>
#include <QtTest>

using namespace Qt::StringLiterals;
using support::TestBook;

class RecordsetTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book = std::make_unique<TestBook>(TestBook::Rows::Sample); }
    void cleanup() { QCOMPARE(m_book->unexpected(), QString()); }

    void position()
    {
        jet::Recordset rows = open(u"select id from cnt_main where id < 4 order by id"_s);
        QVERIFY(rows.hasRow() && rows.position() == 0 && !rows.bof() && !rows.eof());
        rows.movePrevious();
        QVERIFY(rows.bof() && !rows.hasRow() && rows.position() == -1);
        rows.movePrevious();
        QCOMPARE(rows.position(), -1);
        QVERIFY(!rows.value(u"id").isValid() && !rows.text(u"id"));
        rows.moveNext();
        QCOMPARE(rows.number(u"ID"), 1);
        rows.moveLast();
        QCOMPARE(rows.number(u"id"), 3);
        rows.moveNext();
        QVERIFY(rows.eof() && rows.position() == 3);
        rows.moveNext();
        QCOMPARE(rows.position(), 3);
        QVERIFY(!rows.moveTo(3) && !rows.moveTo(-1) && rows.moveTo(1));
        QCOMPARE(rows.number(u"id"), 2);
        rows.moveFirst();
        QCOMPARE(rows.number(u"id"), 1);
    }

    // Rows that are read ahead may have been changed by this program at once, by another one after a moment.
    void readingRowAfterRow()
    {
        QList<QStringList> more(200, {u"More"_s});
        QVERIFY(m_book->data().appendRows(u"cnt_main"_s, {u"Name"_s}, more));
        jet::Recordset rows = open(u"select * from cnt_main order by id"_s);
        jet::Database other;
        QCOMPARE(other.open(m_book->path()), jet::Database::OpenResult::Opened);
        const auto rename = [](jet::Database& book, qint64 id, const QString& name) {
            QVERIFY(book.execute(u"update cnt_main set Name='%1' where id=%2"_s.arg(name).arg(id)));
        };
        QStringList read;
        for (int row = 0; row < rows.count(); ++row) {
            if (row == 100)
                rename(m_book->data(), rows.keyAt(101), u"Ours"_s);
            if (row == 140) {
                rename(other, rows.keyAt(142), u"Theirs"_s);
                QVERIFY(other.execute(u"delete * from cnt_main where id=%1"_s.arg(rows.keyAt(145))));
                QTest::qWait(150);
            }
            read << rows.textAt(row, rows.columnIndex(u"Name"));
        }
        QCOMPARE(read.mid(99, 4), (QStringList{u"More"_s, u"More"_s, u"Ours"_s, u"More"_s}));
        QCOMPARE(read.mid(141, 6),
            (QStringList{u"More"_s, u"Theirs"_s, u"More"_s, u"More"_s, QString(), u"More"_s}));
        QCOMPARE(rows.textAt(3, rows.columnIndex(u"id")), QString::number(rows.keyAt(3)));
    }

    void emptyAndFailed()
    {
        jet::Recordset empty = open(u"select id from cnt_main where 1>2"_s);
        QVERIFY(empty.isValid() && empty.isEmpty() && empty.bof() && empty.eof() && !empty.hasRow());
        QCOMPARE(empty.columns(), QStringList{u"id"_s});
        m_book->expectFailure(u"nothing"_s);
        jet::Recordset failed = open(u"select nothing from cnt_main"_s);
        jet::Recordset none;
        for (jet::Recordset* rows : {&failed, &none}) {
            QVERIFY(!rows->isValid() && rows->isEmpty() && rows->bof() && rows->eof()
                && rows->columns().isEmpty());
            rows->moveLast();
            rows->movePrevious();
            rows->edit();
            rows->addNew();
            QVERIFY(!rows->set(u"id", 1) && !rows->update() && !rows->removeCurrent()
                && !rows->findFirst(u"id=1"));
            QVERIFY(!rows->moveTo(0) && !rows->text(u"id") && rows->textAt(0, 0).isEmpty()
                && rows->keyAt(0) == 0);
        }
    }

    void reading()
    {
        jet::Recordset rows = open(u"select * from cnt_main where id in (1,8) order by id"_s);
        QCOMPARE(rows.value(u"NAME"), QVariant(u"Rahul Sharma"_s));
        QCOMPARE(rows.date(u"m_bd"), QDate(1975, 6, 15));
        QCOMPARE(rows.value(u"M_BD"), QVariant(QDate(1975, 6, 15)));
        QVERIFY(rows.flag(u"cpsmnbd") && !rows.flag(u"cpsanni"));
        QCOMPARE(rows.value(u"cpsmnbd"), QVariant(true));
        QCOMPARE(rows.textAt(rows.columnIndex(u"h_std")), u"022"_s);
        QCOMPARE(rows.number(u"h_std"), 22);
        QCOMPARE(rows.number(u"name"), 0);
        QCOMPARE(rows.keyAt(0), 1);
        QCOMPARE(rows.columnType(rows.columnIndex(u"m_bd")), jet::ColumnType::Date);
        QVERIFY(!rows.value(u"no such column").isValid() && !rows.text(u"no such column"));
        rows.moveNext();
        QVERIFY(!rows.value(u"category1").isValid());
        QVERIFY(rows.text(u"category1").has_value());
        QVERIFY(rows.textOrEmpty(u"category1").isEmpty() && rows.number(u"category1") == 0);
        QVERIFY(!rows.date(u"datemodi").isValid() && !rows.flag(u"cpsmnbd"));
        QCOMPARE(rows.valueAt(0, rows.columnIndex(u"name")), QVariant(u"Rahul Sharma"_s));
        QCOMPARE(rows.position(), 1);

        jet::Recordset call = open(u"select * from cnt_phcall where id=1"_s);
        QCOMPARE(call.value(u"time"), QVariant(QDateTime(QDate(1899, 12, 30), QTime(10, 30))));
        jet::Recordset part = open(u"select 7/2 as half,m_bd from cnt_main where id=1"_s);
        QCOMPARE(part.value(u"half"), QVariant(3.5));
        QCOMPARE(part.textAt(0), u"3.5"_s);
    }

    void oneColumnTwice()
    {
        for (const auto& sql : {u"select m_bd,id,m_bd,name as id from cnt_main where id=2"_s,
                 u"select distinct m_bd,id,m_bd,name as id from cnt_main where id=2"_s}) {
            const jet::Recordset rows = open(sql);
            QCOMPARE(rows.columns().size(), 4);
            QCOMPARE(rows.value(0), rows.value(2));
            QCOMPARE(rows.columnIndex(u"ID"), 1);
            QCOMPARE(rows.textAt(3), u"Mary Brown"_s);
        }
    }

    // ---- finding

    void find_data()
    {
        QTest::addColumn<QString>("sql");
        const QString columns = u"id, name as Who, m_bd, month(m_bd) as m, cpsmnbd from cnt_main"_s;
        QTest::newRow("keyset") << u"select "_s + columns + u" order by id desc"_s;
        QTest::newRow("keyset with wide rows") << u"select * from cnt_main order by id desc"_s;
        QTest::newRow("snapshot") << u"select distinct "_s + columns + u" order by id desc"_s;
        QTest::newRow("snapshot with values of its own") << u"select distinct "_s + columns
                + u" where name <> 'nobody' and first <> 'x' order by id desc"_s;
    }

    void find()
    {
        QFETCH(const QString, sql);
        jet::Recordset rows = open(sql);
        const bool hasAlias = rows.columnIndex(u"who") >= 0;
        const QString name = hasAlias && !rows.isEditable() ? u"who"_s : u"name"_s;
        QVERIFY(rows.findFirst(u"id=3"));
        QCOMPARE(rows.number(u"id"), 3);
        QCOMPARE(rows.position(), 9);
        QVERIFY(rows.findFirst(u' ' + name + u" = 'mary brown'"_s));
        QCOMPARE(rows.number(u"id"), 2);
        QVERIFY(rows.findFirst(name + u" like '*a*' and id > 1"_s));
        QCOMPARE(rows.number(u"id"), 11);
        QVERIFY(rows.findFirst(u"m_bd = '15-Jun-1975'"));
        QCOMPARE(rows.number(u"id"), 1);
        QVERIFY(rows.findFirst(u"m_bd between #1-Jan-1980# and #31/Dec/1985#"));
        QCOMPARE(rows.number(u"id"), 10);
        QVERIFY(rows.findFirst(u"[ID]='4' or cpsmnbd = true"));
        QCOMPARE(rows.number(u"id"), 4);
        QVERIFY(!rows.findFirst(u"id=99"));
        QCOMPARE(rows.number(u"id"), 4);
        m_book->expectFailure(u"cboState"_s);
        QVERIFY(!rows.findFirst(u"cboState=1"));
        m_book->expectFailure(u"D'Arcy"_s);
        QVERIFY(!rows.findFirst(name + u"='D'Arcy'"_s));
        m_book->expectFailure(u"id="_s);
        QVERIFY(!rows.findFirst(u"id="));
        m_book->expectFailure(u"soon"_s);
        QVERIFY(!rows.findFirst(u"m_bd='soon'"));
        m_book->expectFailure(u"x[*"_s);
        QVERIFY(!rows.findFirst(name + u" like 'x[*'"_s));
        QCOMPARE(rows.number(u"id"), 4);
    }

    void findThroughAnAlias()
    {
        jet::Recordset rows = open(u"select * from cnt_main m where m.id > 3"_s);
        QVERIFY(rows.findFirst(u"m.id=5"));
        QVERIFY(rows.findFirst(u"name='sara stone'"));
        QCOMPARE(rows.keyAt(rows.position()), 11);
        QVERIFY(!rows.findFirst(u"id=1"));
    }

    // ---- changing

    void addAndEdit()
    {
        jet::Recordset rows = open(u"select * from cnt_main"_s);
        QVERIFY(rows.isEditable());
        rows.addNew();
        QVERIFY(rows.set(u"NAME", u"O'Neil; --"_s));
        QVERIFY(rows.set(u"name", u"Tatum O'Neil"_s));
        QVERIFY(rows.set(u"m_bd", u"15/Jun/1976"_s));
        QVERIFY(rows.set(u"first", 7));
        QVERIFY(rows.set(u"cpsmnbd", QVariant()));
        QVERIFY(rows.update());
        QCOMPARE(rows.lastAddedKey(), 13);
        QCOMPARE(rows.count(), 13);
        QCOMPARE(rows.position(), 0);
        rows.moveLast();
        QCOMPARE(rows.textOrEmpty(u"name"), u"Tatum O'Neil"_s);
        QCOMPARE(rows.textOrEmpty(u"gen_id"), u"0"_s);
        QCOMPARE(rows.textOrEmpty(u"first"), u"7"_s);
        QVERIFY(!rows.flag(u"cpsmnbd"));
        rows.edit();
        QVERIFY(rows.set(u"m_bd", QDate(1977, 1, 2)));
        QVERIFY(rows.set(u"name", QVariant()));
        QVERIFY(rows.set(u"cpsmnbd", true));
        QVERIFY(rows.update());
        QCOMPARE(rows.date(u"m_bd"), QDate(1977, 1, 2));
        QVERIFY(!rows.value(u"name").isValid() && rows.flag(u"cpsmnbd"));
        QCOMPARE(m_book->rows(u"select id from cnt_main where name is null and m_bd=#2-Jan-77#"_s),
            QStringList{u"13"_s});
    }

    void narrowRowsAreReadAnewAfterAChange()
    {
        jet::Recordset rows = open(u"select id,name as who,len(name) from cnt_main where id<3 order by id"_s);
        rows.edit();
        QVERIFY(rows.set(u"who", u"Bo"_s));
        QVERIFY(rows.update());
        QCOMPARE(rows.textAt(0, 1) + rows.textAt(0, 2), u"Bo2"_s);
        QCOMPARE(rows.textAt(1, 1), u"Mary Brown"_s);
    }

    // Each assignment that does not fit is skipped alone and reported once; the
    // others are stored.
    void badAssignments_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("no date") << u"nextcall"_s << QVariant(u"soon"_s);
        QTest::newRow("empty date") << u"nextcall"_s << QVariant(u""_s);
        QTest::newRow("impossible date") << u"nextcall"_s << QVariant(u"31/Jun/2026"_s);
        QTest::newRow("invalid date") << u"nextcall"_s << QVariant(QDate());
        QTest::newRow("no number") << u"perid"_s << QVariant(u"many"_s);
        QTest::newRow("infinite number") << u"perid"_s << QVariant(u"inf"_s);
        QTest::newRow("no truth") << u"calllater"_s << QVariant(u"perhaps"_s);
        QTest::newRow("no column") << u"cboState"_s << QVariant(1);
    }

    void badAssignments()
    {
        QFETCH(const QString, column);
        QFETCH(const QVariant, value);
        jet::Recordset rows = open(u"select * from cnt_phcall where id=1"_s);
        rows.edit();
        QVERIFY(rows.set(u"todo", u"before"_s));
        m_book->expectFailure(column);
        QVERIFY(!rows.set(column, value));
        QVERIFY(rows.set(u"result", u"after"_s));
        QVERIFY(rows.update());
        QCOMPARE(m_book->rows(u"select todo,result,nextcall,perid,calllater from cnt_phcall where id=1"_s),
            QStringList{u"before|after|2026-06-20|1|true"_s});
    }

    void whatIsNoRowOfATableIsNotChanged()
    {
        m_book->expectFailure(u"Expr1001"_s);
        jet::Recordset rows = open(u"select id,len(name) from cnt_main where id=1"_s);
        rows.edit();
        QVERIFY(!rows.set(u"Expr1001", 5));
        jet::Recordset snapshot = open(u"select distinct id,name from cnt_main"_s);
        QVERIFY(!snapshot.isEditable());
        snapshot.edit();
        m_book->expectFailure(u"assignment to name"_s);
        QVERIFY(!snapshot.set(u"name", u"x"_s));
        m_book->expectFailure(u"no row to delete"_s);
        QVERIFY(!snapshot.removeCurrent());
        m_book->expectFailure(u"without a row that is edited"_s);
        QVERIFY(!snapshot.update());
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_main where name='x'"_s), u"0"_s);
    }

    void withoutEditNothingIsStored()
    {
        jet::Recordset rows = open(u"select * from cnt_main where id < 3 order by id"_s);
        m_book->expectFailure(u"assignment"_s);
        QVERIFY(!rows.set(u"name", u"x"_s));
        rows.edit();
        QVERIFY(rows.set(u"name", u"x"_s));
        rows.cancelUpdate();
        m_book->expectFailure(u"update without"_s);
        QVERIFY(!rows.update());
        // Moving away gives the edit up, so that it can't reach another row.
        rows.edit();
        QVERIFY(rows.set(u"name", u"x"_s));
        rows.moveNext();
        m_book->expectFailure(u"update without"_s);
        QVERIFY(!rows.update());
        // A second edit starts anew.
        rows.edit();
        QVERIFY(rows.set(u"name", u"x"_s));
        rows.edit();
        QVERIFY(rows.set(u"first", u"Maria"_s));
        QVERIFY(rows.update());
        QCOMPARE(m_book->rows(u"select first,name from cnt_main where id < 3 order by id"_s),
            (QStringList{u"Rahul|Rahul Sharma"_s, u"Maria|Mary Brown"_s}));
    }

    void removing()
    {
        jet::Recordset rows = open(u"select * from cnt_main where id < 4 order by id"_s);
        rows.moveNext();
        QVERIFY(rows.removeCurrent());
        QCOMPARE(rows.count(), 2);
        QCOMPARE(rows.number(u"id"), 3);
        QVERIFY(rows.removeCurrent());
        QVERIFY(rows.eof());
        m_book->expectFailure(u"no row to delete"_s);
        QVERIFY(!rows.removeCurrent());
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_main where id < 4"_s), u"1"_s);
    }

    void keysAreNeverUsedAgain()
    {
        jet::Recordset rows = open(u"select id,name from cnt_main"_s);
        QVERIFY(m_book->data().execute(u"delete * from cnt_main where id > 10").changed == 2);
        rows.addNew();
        QVERIFY(rows.set(u"name", u"thirteen"_s) && rows.update());
        QCOMPARE(rows.lastAddedKey(), 13);
        rows.moveLast();
        QVERIFY(rows.removeCurrent());
        rows.addNew();
        QVERIFY(rows.update());
        QCOMPARE(rows.lastAddedKey(), 14);
    }

    // Even the key 0, which a repaired file may hold, is a key.
    void keyNought()
    {
        QVERIFY(m_book->data().execute(u"insert into cnt_main (id,name) values (0,'Zero')").ok);
        jet::Recordset rows = open(u"select * from cnt_main where id=0"_s);
        rows.edit();
        QVERIFY(rows.set(u"name", u"Nought"_s) && rows.update());
        QCOMPARE(rows.textOrEmpty(u"name"), u"Nought"_s);
        QVERIFY(rows.removeCurrent());
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_main"_s), u"12"_s);
    }

    void laterChangesAreSeen()
    {
        jet::Recordset wide = open(u"select * from cnt_main where id < 4 order by id"_s);
        jet::Recordset same = open(u"select * from cnt_main where id < 4 order by id"_s);
        QVERIFY(m_book->data().execute(u"update cnt_main set name='Changed' where id=2").ok);
        QCOMPARE(wide.textAt(1, wide.columnIndex(u"name")), u"Changed"_s);
        QVERIFY(m_book->data().execute(u"delete * from cnt_main where id=2").ok);
        QVERIFY(same.moveTo(1));
        QVERIFY(
            !same.value(u"name").isValid() && same.textOrEmpty(u"name").isEmpty() && same.number(u"id") == 0);
        QCOMPARE(same.count(), 3);
        same.edit();
        QVERIFY(same.set(u"name", u"Back"_s));
        m_book->expectFailure(u"the row is gone"_s);
        QVERIFY(!same.update());
        m_book->expectFailure(u"the row is gone"_s);
        QVERIFY(!same.removeCurrent());
        QVERIFY(same.findFirst(u"id=3"));
        QCOMPARE(same.textOrEmpty(u"name"), u"Priya Mehta"_s);
    }

    void outlivesItsFile()
    {
        jet::Recordset wide = open(u"select * from cnt_main where id < 4 order by id"_s);
        jet::Recordset narrow = open(u"select id,name from cnt_main where id < 4 order by id"_s);
        jet::Recordset looked = open(u"select * from cnt_main where id < 4 order by id"_s);
        QCOMPARE(looked.textAt(1, looked.columnIndex(u"name")), u"Mary Brown"_s);
        m_book->data().close();
        QVERIFY(!wide.valueAt(1, wide.columnIndex(u"name")).isValid());
        QCOMPARE(narrow.textOrEmpty(u"name"), u"Rahul Sharma"_s);
        QVERIFY(!looked.valueAt(2, looked.columnIndex(u"name")).isValid());
        m_book->expectFailure(u"id=1"_s);
        QVERIFY(!wide.findFirst(u"id=1"));
        narrow.edit();
        QVERIFY(narrow.set(u"name", u"x"_s));
        m_book->expectFailure(u"no database is open"_s);
        QVERIFY(!narrow.update());
        m_book->expectFailure(u"no database is open"_s);
        QVERIFY(!open(u"select * from cnt_main"_s).isValid());
        m_book->expectFailure(u"no database is open"_s);
        QVERIFY(!m_book->data().execute(u"delete * from cnt_main").ok);
        QVERIFY(m_book->data().tables().isEmpty() && !m_book->data().checkSoundness().isEmpty());
        QCOMPARE(m_book->data().open(m_book->path()), jet::Database::OpenResult::Opened);
        QVERIFY(!wide.findFirst(u"id=1") || wide.position() == 0);
        m_book->expectFailure(u"id=1"_s);
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_main"_s), u"12"_s);
    }

    // ---- batches

    void batchKeepsWhatSucceeded()
    {
        {
            jet::Batch batch(m_book->data(), jet::Batch::Mode::KeepWhatSucceeds);
            for (const QString& value : {u"1"_s, u"'two'"_s, u"3"_s}) {
                m_book->data().execute(u"insert into wma_handycontacts (cntid) values ("_s + value + u')');
                m_book->data().execute(u"update cnt_phcall set nextcall='soon' where id="_s + value);
            }
        }
        for (const auto& piece : {u"'two'"_s, u"id=1"_s, u"'two'"_s, u"id=3"_s})
            m_book->expectFailure(piece);
        QCOMPARE(m_book->rows(u"select cntid from wma_handycontacts order by cntid"_s),
            (QStringList{u"1"_s, u"1"_s, u"3"_s, u"11"_s}));
    }

    // One failed write of any sort takes the others with it, a broken selection does not.
    void batchOfAllOrNothing()
    {
        jet::Database& data = m_book->data();
        for (const bool isUpdate : {true, false}) {
            jet::Batch batch(data);
            QVERIFY(data.execute(u"delete * from cnt_phcall"));
            jet::Recordset gone = open(u"select * from cnt_main where id=999"_s);
            gone.edit();
            m_book->expectFailure(isUpdate ? u"id=999"_s : u"'it's'"_s);
            QVERIFY(isUpdate ? !gone.update() : !data.execute(u"update cnt_main set name='it's'"));
            QVERIFY(data.execute(u"delete * from cnt_user"));
            QVERIFY(!batch.commit());
            QCOMPARE(data.lastFailure()->cause, jet::Failure::Cause::Statement);
        }
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_phcall"_s), u"3"_s);
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_user"_s), u"1"_s);
        jet::Batch batch(data);
        m_book->expectFailure(u"'it's'"_s);
        QVERIFY(!open(u"select * from cnt_main where name='it's'"_s).isValid());
        QVERIFY(data.execute(u"delete * from cnt_user") && batch.commit() && !data.lastFailure());
    }

    // One statement over many rows that fails in the middle has changed none of
    // them.
    void statementThatFailsInTheMiddle()
    {
        jet::Batch batch(m_book->data(), jet::Batch::Mode::KeepWhatSucceeds);
        QVERIFY(m_book->data().execute(u"update cnt_main set hobbies='Chess'").changed == 12);
        m_book->expectFailure(u"m_bd=name"_s);
        QVERIFY(!m_book->data().execute(u"update cnt_main set hobbies='Go', m_bd=name").ok);
        m_book->expectFailure(u"cstr"_s);
        QVERIFY(!m_book->data().execute(u"update cnt_main set hobbies=cstr(category1)").ok);
        QVERIFY(batch.commit());
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_main where hobbies='chess'"_s), u"12"_s);
    }

    void batchRollsBackAndNests()
    {
        jet::Database& data = m_book->data();
        const auto users = [this] { return m_book->firstText(u"select count(*) from cnt_user"_s); };
        {
            jet::Batch outer(data);
            data.execute(u"delete * from cnt_main");
            data.execute(u"select * into copied from cnt_user");
            {
                jet::Batch inner(data);
                data.execute(u"delete * from cnt_user");
                QVERIFY(inner.commit());
            }
            QCOMPARE(users(), u"0"_s);
            QCOMPARE(m_book->firstText(u"select count(*) from copied"_s), u"1"_s);
            outer.rollBack();
        }
        QCOMPARE(m_book->firstText(u"select count(*) from cnt_main"_s), u"12"_s);
        QCOMPARE(users(), u"1"_s);
        for (const auto mode : {jet::Batch::Mode::AllOrNothing, jet::Batch::Mode::KeepWhatSucceeds}) {
            jet::Batch outer(data, mode);
            data.execute(u"delete * from cnt_phcall");
            {
                jet::Batch inner(data);
                data.execute(u"delete * from cnt_user");
                inner.rollBack();
            }
            QCOMPARE(users(), u"1"_s);
            QCOMPARE(outer.commit(), mode == jet::Batch::Mode::KeepWhatSucceeds);
            QCOMPARE(m_book->firstText(u"select count(*) from cnt_phcall"_s),
                mode == jet::Batch::Mode::KeepWhatSucceeds ? u"0"_s : u"3"_s);
        }
        // The table that was made inside is gone, and can be made again.
        QVERIFY(data.execute(u"select * into copied from cnt_user").ok);
        QVERIFY(data.execute(u"drop table copied").ok);
    }

    void rowsAddedInABatchAreOneByOne()
    {
        jet::Database& data = m_book->data();
        QVERIFY(!data.appendRows(u"wma_handycontacts"_s, {u"cntid"_s}, {{u"5"_s}, {u"six"_s}}));
        m_book->expectFailure(u"wma_handycontacts"_s);
        QVERIFY(data.appendRows(u"cnt_phcall"_s, {u"date"_s, u"calllater"_s, u"name"_s},
            {{u"2026-06-15"_s, u"true"_s, u""_s}, {u""_s, u""_s, u"x"_s}}));
        QCOMPARE(m_book->rows(u"select date,calllater,name from cnt_phcall where id > 3 order by id"_s),
            (QStringList{u"2026-06-15|true|null"_s, u"null|false|x"_s}));
        QCOMPARE(m_book->firstText(u"select count(*) from wma_handycontacts"_s), u"2"_s);
    }

private:
    jet::Recordset open(const QString& sql) { return m_book->data().openRecordset(sql); }

    std::unique_ptr<TestBook> m_book;
};

QTEST_GUILESS_MAIN(RecordsetTest)
#include "recordset_test.moc"
