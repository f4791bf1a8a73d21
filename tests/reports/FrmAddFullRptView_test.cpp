#include "core/report_request.h"
#include "output/preview/page_view.h"
#include "reports/FrmAddFullRptView.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace reports;

/// The report screen as a person uses it: what stands on its pages, in its files and on paper.
class FrmAddFullRptViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->addTarget(u"frmFilter"_s);
        add(u"'Bob Ray','Bob','Ray','Acme','Work','Sales','Pune','2026-03-01','Tea'"_s);
        add(u"'Asha Oberoi','Asha','Oberoi',null,'Friends','Club','Oslo',null,'<b>Run</b>'"_s);
        add(u"'Acme',null,null,'Acme','Work','Office','Agra',null,null"_s);
        m_fixture->clock.set(QDateTime(QDate(2026, 11, 22), QTime(9, 0)));
        m_screen = m_fixture->open<FrmAddFullRptView>(u"FrmAddFullRptView"_s);
        m_screen->resize(1000, 640);
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void layoutsAreSortedAndGrouped_data()
    {
        support::columns<QString, QStringList>("option", "order");
        QTest::newRow("category") << u"fcategory"_s
                                  << QStringList{
                                         u"Friends"_s, u"Asha Oberoi"_s, u"Work"_s, u"Acme"_s, u"Bob Ray"_s};
        QTest::newRow("company") << u"fcompany"_s << QStringList{u"Acme"_s, u"Bob Ray"_s, u"Acme"_s};
        QTest::newRow("first") << u"ffirst"_s << QStringList{u"A"_s, u"Asha Oberoi"_s, u"B"_s, u"Bob Ray"_s};
        QTest::newRow("last") << u"flast"_s << QStringList{u"O"_s, u"Oberoi, Asha"_s, u"R"_s, u"Ray, Bob"_s};
        QTest::newRow("short first") << u"sfirst"_s
                                     << QStringList{u"A"_s, u"Asha Oberoi"_s, u"B"_s, u"Bob Ray"_s};
        QTest::newRow("short last") << u"slast"_s
                                    << QStringList{u"O"_s, u"Oberoi, Asha"_s, u"R"_s, u"Ray, Bob"_s};
    }

    void layoutsAreSortedAndGrouped()
    {
        QFETCH(QString, option);
        QFETCH(QStringList, order);
        click(option);
        QStringList found;
        for (const QString& line : page().split(u'\n')) {
            const QString first = line.section(u'\t', 0, 0);
            if (order.contains(first) && found.value(found.size() - 1) != first)
                found << first;
        }
        QCOMPARE(found, order);
    }

    void datesAreWrittenAsTheSettingSays()
    {
        m_fixture->shared.NationalMode = true;
        click(u"ffirst"_s);
        QVERIFY2(page().contains(u"01 Mar"_s) && !page().contains(u"01 Mar-2026"_s), qUtf8Printable(page()));
        QCOMPARE(pages()->report()->printDate, u"22 Nov-2026"_s);
    }

    void filterComesFirstInTheCondition()
    {
        click(u"ffirst"_s);
        m_screen->findChild<QAction*>(u"CommonFilter"_s)->trigger();
        QCOMPARE(m_fixture->shared.CallerForm, u"FrmAddFullRptView"_s);
        m_screen->applyFilter(u" Where h_city ='Oslo'"_s);
        QVERIFY(page().contains(u"Asha"_s) && !page().contains(u"Bob"_s));
        QVERIFY(support::isTold(u"h_city ='Oslo'"_s));
        // A page of a list has the same filter.
        QVERIFY(m_screen->showReport(u"Pname"_s));
        QVERIFY(page().contains(u"Asha Oberoi"_s) && !page().contains(u"Bob"_s));
        m_fixture->boxes.expect(u"No records are available for the selection"_s);
        m_screen->applyFilter(u" where h_city ='Nowhere'"_s);
        QCOMPARE(pages()->pageCount(), 0);
    }

    // A note of a contact is text, whatever it looks like.
    void savesWhereTheFormatSays_data()
    {
        support::columns<QString, QString, QString, QByteArray>("action", "folder", "file", "piece");
        QTest::newRow("html") << u"SaveHtml"_s << u"Html"_s << u"Contact-Full-FirstName.htm"_s
                              << QByteArray("&lt;b&gt;Run");
        QTest::newRow("pdf") << u"SavePdf"_s << u"PDF"_s << u"Contact-Full-FirstName.pdf"_s
                             << QByteArray("%PDF-1");
        QTest::newRow("rtf") << u"SaveRtf"_s << u"RTF"_s << u"Contact-Full-FirstName.rtf"_s
                             << QByteArray("<b>Run</b>");
    }

    void savesWhereTheFormatSays()
    {
        QFETCH(QString, folder);
        QFETCH(QByteArray, piece);
        QFETCH(QString, file);
        click(u"ffirst"_s);
        const QString place = m_fixture->drive.local(u"C:\\OVUserFiles\\Exported Files\\"_s + folder);
        // A name without the extension gets it.
        save(place + u'/' + QFileInfo(file).completeBaseName());
        QCOMPARE(m_fixture->boxes.suggested, QStringList{place + u'/' + file});
        QVERIFY(support::bytesOf(place + u'/' + file).contains(piece));
        QCOMPARE(m_fixture->frame.notices, QStringList{u"Saved %1 [Open]"_s.arg(file)});
    }

    void aFullDiskLeavesTheOldFile()
    {
        click(u"ffirst"_s);
        const QString file = support::put(m_fixture->root.filePath(u"old.pdf"_s), "old");
        {
            const support::FullDisk full;
            m_fixture->boxes.expectChoice(u"Save As PDF"_s, file);
            m_fixture->boxes.expect(
                u"The report could not be saved as %1: there is not enough room on the disk."_s.arg(file));
            m_screen->findChild<QAction*>(u"SavePdf"_s)->trigger();
        }
        QCOMPARE(support::bytesOf(file), QByteArray("old"));
        QVERIFY(
            m_fixture->boxes.shown.constLast().startsWith(u"warning: The report could not be saved as"_s));
        QCOMPARE(QDir(m_fixture->root.path()).entryList({u"old.pdf*"_s}), QStringList{u"old.pdf"_s});
    }

    void printsAllPages()
    {
        click(u"sfirst"_s);
        m_screen->findChild<QAction*>(u"Print"_s)->trigger();
        QCOMPARE(m_fixture->printer.printed, QStringList{u"Address Book - First Name Wise: 1"_s});
    }

    void findsOnAnyPage()
    {
        for (int row = 0; row < 300; ++row)
            add(u"'Zed%1','Zed%1','Zed',null,'Work','x','Pune',null,null"_s.arg(row, 3, 10, QChar(u'0')));
        click(u"ffirst"_s);
        QTRY_VERIFY(!pages()->isCounting());
        QVERIFY(pages()->pageCount() > 5);
        support::type(m_screen, u"FindText"_s, u"zed299"_s);
        QTRY_VERIFY(pages()->currentPage() > 5);
        QVERIFY(pages()->pageText(pages()->currentPage()).contains(u"Zed299"_s));
        support::type(m_screen, u"FindText"_s, u"no such thing"_s);
        QTRY_VERIFY(m_screen->findChild<QLabel*>(u"NotFound"_s)->isVisible());
    }

    void colorsComeFromTheScheme()
    {
        m_fixture->execute(u"insert into wia_colorScheme (schemename,FormColor) values ('Night',8388608)"_s);
        m_screen->load();
        click(u"ffirst"_s);
        support::choose(m_screen, u"CmbColor"_s, u"Night"_s);
        QCOMPARE(pages()->report()->colors.back, QColor(0, 0, 128));
        QCOMPARE(pages()->report()->colors.text, QColor(Qt::white));
    }

    void otherBooksAreReports()
    {
        platform::MailContact contact;
        contact.first = u"Mia"_s;
        contact.last = u"Mail"_s;
        m_fixture->mailContacts.add(contact);
        support::put(m_fixture->drive.local(u"C:\\Cards\\v.vcf"_s),
            "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Vera Card\r\nTEL;CELL;VOICE:555\r\nEnd:VCARD\r\n");
        m_fixture->execute(u"delete * from cntb_setup"_s);
        m_fixture->execute(u"insert into cntb_setup (VCFPath) values ('C:\\Cards')"_s);
        click(u"sfirst"_s);
        m_screen->findChild<QAction*>(u"UseMSOutlookDatabase"_s)->trigger();
        QVERIFY(page().contains(u"Mia Mail"_s) && !page().contains(u"Asha"_s));
        m_screen->findChild<QAction*>(u"UseVCFFile"_s)->trigger();
        QVERIFY2(page().contains(u"Vera Card"_s) && page().contains(u"555"_s), qUtf8Printable(page()));
        m_fixture->boxes.expect(u"No records are available for the selection"_s);
        m_screen->findChild<QAction*>(u"UseMSOutlookExpressDatabase"_s)->trigger();
        m_screen->findChild<QAction*>(u"UseOrvaneContactDatabase"_s)->trigger();
        QVERIFY(page().contains(u"Asha"_s));
    }

    // With the program that prints reports it is asked to; without it each of its reports is here.
    void moreReportsAreAskedForOrShown()
    {
        m_fixture->execute(u"insert into ov_setup (version) values ('1')"_s);
        m_fixture->shell.siblings << u"Orvane Link & Sync.exe"_s;
        click(u"Option1"_s);
        QCOMPARE(m_fixture->shell.startedSiblings, QStringList{u"Orvane Link & Sync.exe"_s});
        QCOMPARE(m_fixture->book.rows(u"select key,rptMod,rptSubMod from ov_setup"_s),
            QStringList{u"report|Contacts|Address Book"_s});
        m_fixture->shell.siblings.clear();
        m_fixture->boxes.answerAll(platform::Answer::No);
        click(u"Option1"_s);
        auto* list = m_screen->findChild<QListWidget*>(u"MoreReports"_s);
        QVERIFY(list->isVisible());
        for (int row = 0; row < list->count(); ++row) {
            support::clickRow(list, row);
            QVERIFY(m_fixture->book.unexpected().isEmpty());
        }
    }

    // Whoever asks for a report where the program that prints them is missing gets it, and the note is left.
    void requestsAreServedHere()
    {
        m_fixture->execute(u"insert into ov_setup (version) values ('1')"_s);
        m_fixture->execute(u"update cnt_main set mobile='98' where first='Bob'"_s);
        QVERIFY(core::requestReport(
            m_fixture->context, u"Phone List"_s, {u"update ov_setup set rptSubMod='Phone List'"_s}));
        QVERIFY(page().contains(u"Bob Ray"_s));
        QCOMPARE(m_fixture->book.rows(u"select rptSubMod from ov_setup"_s), QStringList{u"Phone List"_s});
        m_screen->showContactReport(u"Asha Oberoi"_s);
        QVERIFY(page().contains(u"<b>Run</b>"_s) && !page().contains(u"Bob"_s));
        QVERIFY(m_fixture->shell.startedSiblings.isEmpty());
    }

    void listsHaveTheirRows_data()
    {
        support::columns<QString, QStringList>("name", "lines");
        QTest::newRow("birthdays") << u"Birthday"_s
                                   << QStringList{u"March"_s, u"Mar 01\tBob Ray\t\t0"_s, u"April"_s,
                                          u"Apr 05\tKim\tAsha Oberoi\t6"_s};
        QTest::newRow("family") << u"Family Tree"_s
                                << QStringList{u"Asha Oberoi\t\tKim"_s, u"  Bob Ray\t\t"_s};
        QTest::newRow("phones") << u"Phone List"_s << QStringList{u"Bob Ray\t\t\t\t98\t\t"_s};
    }

    void listsHaveTheirRows()
    {
        QFETCH(QStringList, lines);
        QFETCH(QString, name);
        m_fixture->execute(
            u"update cnt_main set kid1='Kim',kid1_bd=#05-Apr-2020#,fmtree=true,gen_id='0' where first='Asha'"_s);
        m_fixture->execute(u"update cnt_main set mobile='98',fmtree=true,gen_id='2' where first='Bob'"_s);
        QVERIFY(m_screen->showReport(name));
        QString text = page();
        text.replace(QChar(0x2003), u' ');
        QStringList found;
        for (const QString& line : text.split(u'\n')) {
            if (lines.contains(line))
                found << line;
        }
        QVERIFY2(found == lines, qUtf8Printable(text));
    }

private:
    void add(const QString& values)
    {
        m_fixture->execute(
            u"insert into cnt_main (Name,First,Last,Company,category1,category2,h_city,M_BD,memo1) values (%1)"_s
                .arg(QString(values).replace(u"'2026-03-01'"_s, u"#01-Mar-2026#"_s)));
    }
    void click(const QString& name) { support::click(m_screen, name); }
    output::PageView* pages() const { return m_screen->findChild<output::PageView*>(u"arV"_s); }
    QString page() const { return pages()->pageText(1); }
    void save(const QString& file)
    {
        const QString kind = QString::fromLatin1(QTest::currentDataTag());
        m_fixture->boxes.expectChoice(u"Save As "_s + kind.toUpper(), file);
        const QString action = u"Save"_s + kind.left(1).toUpper() + kind.mid(1).toLower();
        m_screen->findChild<QAction*>(action)->trigger();
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    FrmAddFullRptView* m_screen = nullptr;
};

QTEST_MAIN(FrmAddFullRptViewTest)
#include "FrmAddFullRptView_test.moc"
