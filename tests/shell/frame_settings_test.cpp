#include <QtTest>

#include "core/shell/frame_settings.h"
#include "platform/folder_drive.h"
#include "support/columns.h"
#include "support/test_book.h"

using namespace Qt::StringLiterals;
using namespace shell;

/// What the frame reads and makes when it loads.
class FrameSettingsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void settings_data()
    {
        // read: national, merged, business, selection, font, pictures
        support::columns<QStringList, QString>("statements", "read");
        const QString defaults = u"0 0 0 select * from cnt_main/8/Link"_s;
        const auto selection = [](const QString& sql) { return u"0 0 0 "_s + sql + u"/8/Link"_s; };
        QTest::newRow("an empty book") << QStringList{} << defaults;
        QTest::newRow("switches")
            << QStringList{u"insert into ov_setup (national,contmerge,Business) values (true,true,true)"_s}
            << u"1 1 1 select * from cnt_main/8/Link"_s;
        for (const QString& nothing : {u"ov_setup ([key]) values ('x')"_s, u"cnt_filter (sql) values ('1')"_s,
                 u"cnt_filter (category1) values ('x')"_s, u"cnt_filter (sql) values ('')"_s,
                 u"OV_GridFont (Proj,Font) values ('Contacts',0)"_s,
                 u"OV_GridFont (Proj,Font) values ('Contacts',null)"_s,
                 u"OV_GridFont (Proj,Font) values ('Other',20)"_s})
            QTest::newRow(qPrintable(nothing)) << QStringList{u"insert into "_s + nothing} << defaults;
        QTest::newRow("the first filter counts")
            << QStringList{u"insert into cnt_filter (sql) values ('select * from cnt_main where selected=true')"_s,
                   u"insert into cnt_filter (sql) values ('later')"_s}
            << selection(u"select * from cnt_main where selected=true"_s);
        QTest::newRow("no filter table") << QStringList{u"drop table cnt_filter"_s} << defaults;
        const auto font = [](const QString& values) {
            return u"insert into OV_GridFont (Proj,Font) values ("_s + values + u')';
        };
        QTest::newRow("font") << QStringList{font(u"'Contacts',11"_s), font(u"'Other',20"_s)}
                              << u"0 0 0 select * from cnt_main/11/Link"_s;
        for (const auto& [value, mode] : {std::pair{"1", "Copy"}, std::pair{"2", "Move"},
                 std::pair{"3", "Link"}, std::pair{"null", "Link"}})
            QTest::addRow("pictures %s", value)
                << QStringList{u"insert into cntb_setup (cpytoml) values (%1)"_s.arg(
                       QString::fromLatin1(value))}
                << u"0 0 0 select * from cnt_main/8/%1"_s.arg(QString::fromLatin1(mode));
        QTest::newRow("no settings table")
            << QStringList{u"drop table cntb_setup"_s, u"drop table ov_setup"_s} << defaults;
    }

    void settings()
    {
        QFETCH(QStringList, statements);
        support::TestBook book;
        for (const QString& statement : statements) {
            QVERIFY2(book.data().execute(statement), qPrintable(statement));
            if (statement.startsWith(u"drop"))
                book.expectFailure(statement.section(u' ', 2));
        }
        core::SharedState shared;
        const FrameSettings settings = readFrameSettings(book.data(), shared);
        QTEST(u"%1 %2 %3 %4/%5/%6"_s.arg(shared.NationalMode)
                  .arg(shared.ContMerge)
                  .arg(settings.business)
                  .arg(shared.CurrentSql)
                  .arg(shared.GridFontSize)
                  .arg(shared.PhotoStoreMode),
            "read");
        QCOMPARE(book.unexpected(), QString());
    }

    void settingsRowIsAdded()
    {
        support::TestBook book;
        core::SharedState shared;
        readFrameSettings(book.data(), shared);
        readFrameSettings(book.data(), shared);
        QCOMPARE(book.rows(u"select categ1,UpdOutllook,AddFav,cpytoml from cntb_setup"_s),
            QStringList{u"null|false|false|null"_s});
    }

    void foldersAreMadeAlone()
    {
        QTemporaryDir root;
        const platform::FolderDrive drive(root.path(), root.filePath(u"program"_s));
        const QDir user(root.filePath(u"OVUserFiles"_s));
        QVERIFY(user.mkpath(u"letters"_s)); // in another case
        QFile kept(user.filePath(u"letters/kept.rtf"_s));
        QVERIFY(kept.open(QIODevice::WriteOnly));
        makeUserFolders(drive);
        const auto names = QDir::Dirs | QDir::NoDotAndDotDot;
        QCOMPARE(user.entryList(names, QDir::Name | QDir::IgnoreCase).join(u','),
            u"Exported Files,HandHelds,letters,Main,Music,Notes Diary,Others,Photos"_s);
        QCOMPARE(QDir(user.filePath(u"Exported Files"_s))
                     .entryList(names, QDir::Name | QDir::IgnoreCase)
                     .join(u','),
            u"Emails,Excel,Html,Money,PDF,RTF,TableHtml"_s);
        QVERIFY(QDir(user.filePath(u"Exported Files/PDF"_s)).removeRecursively());
        makeUserFolders(drive);
        QVERIFY(user.exists(u"Exported Files/PDF"_s));
        QVERIFY(kept.exists());
    }

    void deferredKey_data()
    {
        support::columns<QString, QString>("stored", "taken");
        QTest::newRow("mixed case") << u"'FormMain'"_s << u"formmain"_s;
        QTest::newRow("with a blank") << u"'View Basic'"_s << u"view basic"_s;
        QTest::newRow("null") << u"null"_s << u""_s;
        QTest::newRow("empty") << u"''"_s << u""_s;
        QTest::newRow("unknown") << u"'nothing of ours'"_s << u"nothing of ours"_s;
    }

    void deferredKey()
    {
        QFETCH(QString, stored);
        support::TestBook book;
        QVERIFY(
            book.data().execute(u"insert into ov_setup ([key],rptMod) values (%1,'Contacts')"_s.arg(stored)));
        QTEST(takeDeferredKey(book.data()), "taken");
        // Where nothing is to be blanked nothing is written.
        const QString kept = stored == u"null" ? u"null|Contacts"_s : u"|Contacts"_s;
        QCOMPARE(book.rows(u"select [key],rptMod from ov_setup"_s), QStringList{kept});
        QCOMPARE(takeDeferredKey(book.data()), QString());
        QCOMPARE(book.unexpected(), QString());
    }

    void dueMails()
    {
        support::TestBook book;
        for (const QString& values : {u"#14-Mar-2024#,true,'yesterday'"_s, u"#15-Mar-2024#,true,'today'"_s,
                 u"#16-Mar-2024#,true,'tomorrow'"_s, u"#14-Mar-2024#,false,'not confirmed'"_s,
                 u"null,true,'no day'"_s})
            QVERIFY(book.data().execute(
                u"insert into time_email ([Date],confirm,Subject) values ("_s + values + u')'));
        QStringList subjects;
        for (auto rows = book.data().openRecordset(dueMailsSql(QDate(2024, 3, 15))); !rows.eof();
             rows.moveNext())
            subjects << rows.textOrEmpty(u"Subject");
        QCOMPARE(subjects.join(u','), u"yesterday,today"_s);
    }
};

QTEST_GUILESS_MAIN(FrameSettingsTest)
#include "frame_settings_test.moc"
