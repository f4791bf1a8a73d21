#include "output/preview/FrmReportViewer.h"
#include "output/preview/page_view.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "views/full_view/FullViewWeb.h"
#include "widgets/fields.h"
#include "widgets/record_list.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;
using widgets::child;

constexpr QByteArrayView kAsha
    = "BEGIN:VCARD\r\nVERSION:2.1\r\nN:First,Last;Dr.;\r\nFN:Asha Rao\r\nNICKNAME:Ash\r\n"
      "ORG:Tea & Co;Sales\r\nSPOUSE:Ravi\r\nTITLE:Chef\r\nTEL;WORK;VOICE:11\r\n"
      "TEL;WORK;VOICE:12\r\nTEL;HOME;VOICE:21\r\nTEL;CELL;VOICE:99\r\nTEL;WORK;FAX:33\r\n"
      "ADR;WORK:;office;1 Park Road;Pune;MH;411001;India\r\nADR;HOME:;;Lane;Goa\r\n"
      "ADR;POSTAL:;;Box 5;;;;India\r\nBDAY:19800305\r\nEMAIL;PREF;INTERNET:a@x\r\n"
      "EMAIL;INTERNET:\r\nEMAIL;INTERNET:b@x\r\nURL;WORK:tea.in\r\nEnd:VCARD\r\n";

/// The smart view and the address books that it can browse.
class FullViewWebTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->execute(u"insert into cnt_main (Name, First, Last) values ('Cy Young', 'Cy', 'Young')"_s);
        m_fixture->execute(u"insert into cnt_main (Name, First) values ('Ann', 'Ann')"_s);
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void exactlyOneToolIsDown()
    {
        setCardPath(u"C:\\Cards"_s);
        put(u"C:\\Cards\\a.vcf"_s, kAsha.toByteArray());
        open();
        QCOMPARE(toolsDown(), QStringList{u"UseOrvaneContactDatabase"_s});
        for (const QString& tool :
            {u"UseMSOutlookDatabase"_s, u"UseVCFFiles"_s, u"UseMSOullookExpressDatabase"_s,
                u"UseMSOullookExpressDatabase"_s, u"UseOrvaneContactDatabase"_s}) {
            choose(tool);
            QCOMPARE(toolsDown(), QStringList{tool});
            QCOMPARE(
                child<QToolButton>(m_view, u"CmdDatabase"_s)->text(), child<QAction>(m_view, tool)->text());
        }
        QCOMPARE(listed(), (QStringList{u"Ann"_s, u"Cy Young"_s}));
    }

    void mailClientIsListedAndShown()
    {
        platform::MailContact asha;
        asha.first = u"Asha"_s;
        asha.last = u"Rao"_s;
        asha.fullName = u"Cy Young"_s;
        asha.categories = u"Friends"_s;
        asha.home = {u"Lane"_s, u"2"_s, u"Goa"_s, u"GA"_s, u"403"_s, u"India"_s};
        asha.work = {u"Park"_s, {}, u"Pune"_s, {}, {}, {}};
        asha.homePhone1 = u"21"_s;
        asha.homePhone2 = u"22"_s;
        asha.workPhone1 = u"11"_s;
        asha.workPhone2 = u"12"_s;
        asha.fax = u"33"_s;
        asha.homeWeb = u"h.in"_s;
        asha.workWeb = u"w.in"_s;
        asha.user1 = u"u1"_s;
        asha.user3 = u"u3"_s;
        asha.company = u"not shown"_s;
        platform::MailContact company;
        company.company = u"Tea & Co"_s;
        m_fixture->mailContacts.add(asha);
        m_fixture->mailContacts.add(company);
        open();
        m_view->showContact(1);
        choose(u"UseMSOutlookDatabase"_s);
        QCOMPARE(listed(), (QStringList{u"Asha Rao"_s, u"Tea & Co"_s}));
        QCOMPARE(text(u"lblCounter"_s), QString());
        QCOMPARE(shown(), QStringList());
        list()->setCurrentRow(0);
        QCOMPARE(shown().join(u'|'),
            u"TxtUser1=u1|TxtUser3=u3|txtCat=Friends|txtHweb=h.in|txtWweb=w.in|txtfax=33|txtfirst=Asha Rao|"
            "txthadd=Lane/2|txthcity=Goa  -  403|txthph1=21|txthph2=22|txthstate=GA  -  India|txtwadd=Park|"
            "txtwcity=Pune|txtwph1=11|txtwph2=12"_s);
        QCOMPARE(text(u"lblCounter"_s), u"1 of 2"_s);
        QCOMPARE(text(u"SSCommand8"_s), u"Cy Young"_s);
        QCOMPARE(text(u"lblid"_s), QString());
        support::click(m_view, u"ssnext"_s);
        QCOMPARE(shown(), QStringList());
        QCOMPARE(text(u"lblPlainName"_s), u"Tea & Co"_s);
    }

    // Kept: all mail addresses of a card stand under the work.
    void cardsAreListedAndShown()
    {
        setCardPath(u"C:\\Cards"_s);
        put(u"C:\\Cards\\1.vcf"_s, kAsha.toByteArray());
        put(u"C:\\Cards\\2.VCF"_s, "BEGIN:VCARD\nN:Young;Cy\nTEL;HOME;VOICE:5\n");
        put(u"C:\\Cards\\3 no card.vcf"_s, QByteArray("\0\xff\n", 3));
        open();
        m_view->showContact(2);
        choose(u"UseVCFFiles"_s);
        QCOMPARE(listed(), (QStringList{u"Asha Rao"_s, u"Young Cy"_s, u"3 no card"_s}));
        list()->setCurrentRow(0);
        QCOMPARE(shown().join(u'|'),
            u"TxtSpouse=Ravi|dtpBirtday=05/Mar/1980|txtJobTitle=Chef|txtWweb=tea.in|txtbadd=Box 5 India|"
            "txtcompany=Tea & Co|txtfax=33|txtfirst=Asha Rao|txthadd=Lane - Goa|txthph1=21/99|txtnick=Ash|"
            "txtwadd=1 Park Road - Pune (MH) India|txtwemail1=a@x/b@x|txtwph1=11/12"_s);
        QCOMPARE(text(u"lblPlainName"_s), u"Asha Rao"_s);
        // The tools look for a contact by this name, and a card is none.
        QCOMPARE(text(u"SSCommand8"_s), QString());
        list()->setCurrentRow(1);
        QCOMPARE(shown(), (QStringList{u"txtfirst=Young Cy"_s, u"txthph1=5"_s}));
        list()->setCurrentRow(2);
        QCOMPARE(shown(), QStringList());
        choose(u"UseOrvaneContactDatabase"_s);
        list()->setCurrentRow(0);
        QCOMPARE(text(u"SSCommand8"_s), u"Ann"_s);
        QVERIFY(!child<QWidget>(m_view, u"lblPlainName"_s)->isVisibleTo(m_view));
    }

    void addressBookShowsAFewFields()
    {
        put(u"C:\\Application Data\\Address Book\\asha.vcf"_s, kAsha.toByteArray());
        open();
        choose(u"UseMSOullookExpressDatabase"_s);
        QCOMPARE(listed(), QStringList{u"Asha Rao"_s});
        list()->setCurrentRow(0);
        QCOMPARE(shown().join(u'|'),
            u"txtfax=33|txtfirst=Asha Rao|txthemail1=b@x|txthph1=21|txtwemail1=a@x|txtwph1=11/12"_s);
    }

    void noFolderOfCards_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("not set") << QString();
        QTest::newRow("no drive") << u"X:\\Cards"_s;
        QTest::newRow("no cards in it") << u"C:\\Empty"_s;
    }

    void noFolderOfCards()
    {
        QFETCH(QString, path);
        put(u"C:\\Empty\\note.txt"_s, "x");
        setCardPath(path);
        open();
        choose(u"UseMSOullookExpressDatabase"_s);
        m_fixture->boxes.expect(u"Please Select Correct Path in Setup"_s);
        choose(u"UseVCFFiles"_s);
        QCOMPARE(m_fixture->boxes.shown, QStringList{u"information: Please Select Correct Path in Setup"_s});
        QCOMPARE(toolsDown(), QStringList{u"UseOrvaneContactDatabase"_s});
        QCOMPARE(listed(), (QStringList{u"Ann"_s, u"Cy Young"_s}));
    }

    void othersAreReadOnly()
    {
        put(u"C:\\Application Data\\Address Book\\asha.vcf"_s, kAsha.toByteArray());
        open();
        m_view->showContact(1);
        child<QAction>(m_view, u"Edit"_s)->trigger();
        choose(u"UseMSOullookExpressDatabase"_s);
        list()->setCurrentRow(0);
        const auto* tabs = child<QTabWidget>(m_view, u"TabsEdit"_s);
        QVERIFY(!tabs->isTabEnabled(1));
        for (const QString& id : {u"Edit"_s, u"Search"_s})
            QVERIFY2(!child<QAction>(m_view, id)->isEnabled(), qPrintable(id));
        for (const QString& button : {u"CmdTree"_s, u"CmdList"_s, u"CmdKey"_s})
            QVERIFY2(!child<QWidget>(m_view, button)->isEnabled(), qPrintable(button));
        QTest::keyClick(list(), Qt::Key_F2);
        QVERIFY(!child<QWidget>(m_view, u"DBList1Editor"_s)->isVisible());
        // A card is no contact of the book.
        m_fixture->boxes.expect(u"Record not selected"_s);
        child<QAction>(m_view, u"SaveasVCF"_s)->trigger();

        choose(u"UseOrvaneContactDatabase"_s);
        QVERIFY(tabs->isTabEnabled(1));
        for (const QString& id : {u"Edit"_s, u"Search"_s})
            QVERIFY2(child<QAction>(m_view, id)->isEnabled(), qPrintable(id));
        QVERIFY(!child<QAction>(m_view, u"Edit"_s)->isChecked());
        QVERIFY(child<QWidget>(m_view, u"CmdTree"_s)->isEnabled()
            && child<QWidget>(m_view, u"CmdKey"_s)->isEnabled());
    }

    void handOverComesBackToTheOwnBook()
    {
        open();
        choose(u"UseMSOullookExpressDatabase"_s);
        QVERIFY(!m_view->showContact(99));
        QCOMPARE(toolsDown(), QStringList{u"UseMSOullookExpressDatabase"_s});
        QVERIFY(m_view->showContact(1));
        QCOMPARE(toolsDown(), QStringList{u"UseOrvaneContactDatabase"_s});
        QCOMPARE(text(u"SSCommand8"_s), u"Cy Young"_s);
        QCOMPARE(listed(), (QStringList{u"Ann"_s, u"Cy Young"_s}));
    }

    void refreshReadsTheFolderAgain()
    {
        open();
        choose(u"UseMSOullookExpressDatabase"_s);
        QCOMPARE(listed(), QStringList());
        put(u"C:\\Application Data\\Address Book\\asha.vcf"_s, kAsha.toByteArray());
        support::click(m_view, u"CmdRefresh"_s);
        QCOMPARE(listed(), QStringList{u"Asha Rao"_s});
        list()->setCurrentRow(0);
        QFile::remove(m_fixture->drive.local(u"C:\\Application Data\\Address Book\\asha.vcf"));
        support::click(m_view, u"CmdRefresh"_s);
        QCOMPARE(listed(), QStringList());
        QCOMPARE(shown(), QStringList());
    }

    void folderIsChosen()
    {
        put(u"C:\\My Cards\\a.vcf"_s, "BEGIN:VCARD\nFN:A\n");
        open();
        const auto press = [this] { support::click(m_view, u"FolderViewOff"_s); };
        const QString title = u"Folder of the vCard files"_s;
        m_fixture->boxes.expectChoice(title, {});
        press();
        m_fixture->boxes.expectChoice(title, u"/elsewhere"_s);
        m_fixture->boxes.expect(u"This folder lies outside drive C:, where vCard files are looked for."_s);
        press();
        QCOMPARE(m_fixture->book.rows(u"select VCFPath from cntb_setup"_s), QStringList());
        m_fixture->boxes.expectChoice(title, m_fixture->drive.local(u"C:\\My Cards"));
        press();
        QCOMPARE(m_fixture->book.rows(u"select VCFPath from cntb_setup"_s), QStringList{u"C:\\My Cards"_s});
        choose(u"UseVCFFiles"_s);
        QCOMPARE(listed(), QStringList{u"A"_s});
        put(u"C:\\Other\\b.vcf"_s, "BEGIN:VCARD\nFN:B\n");
        m_fixture->boxes.expectChoice(title, m_fixture->drive.local(u"C:\\Other"));
        press();
        QCOMPARE(listed(), QStringList{u"B"_s});
    }

    // Kept: a filter is asked for in the name of the full view.
    void toolsOfItsOwn()
    {
        for (const QString& form : {u"frmFilter"_s, u"FormEmail"_s})
            m_fixture->addTarget(form);
        m_fixture->screens.add<output::FrmReportViewer>(u"FrmReportViewer"_s);
        m_fixture->execute(u"insert into ov_setup (Email) values (false)"_s);
        open();
        m_view->showContact(1);
        child<QAction>(m_view, u"CommonFilter"_s)->trigger();
        QCOMPARE(m_fixture->shared.CallerForm, u"FullView"_s);
        child<QAction>(m_view, u"Type3"_s)->trigger();
        const QString label
            = child<output::PageView>(m_fixture->screens.find(u"FrmReportViewer"), u"arV"_s)->pageText(1);
        QVERIFY2(label.contains(u"To.\n"_s + child<QPushButton>(m_view, u"SSCommand8"_s)->text()),
            qUtf8Printable(label));
        auto* menu = child<QMenu>(m_view, u"Menu"_s);
        for (const bool mailEdition : {false, true}) {
            auto* name = child<QWidget>(m_view, u"SSCommand8"_s);
            QContextMenuEvent asked(QContextMenuEvent::Mouse, {5, 5}, name->mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(name, &asked);
            QVERIFY(menu->isVisible());
            QCOMPARE(menu->defaultAction(), mailEdition ? child<QAction>(m_view, u"Email2"_s) : nullptr);
            menu->close();
            m_fixture->execute(u"update ov_setup set Email=true"_s);
        }
        support::click(m_view, u"CmdKey"_s);
        QTest::keyClicks(child<QLineEdit>(m_view, u"txtkeyword"_s), u"cy"_s);
        support::click(m_view, u"CmdSearch"_s);
        QCOMPARE(listed(), QStringList{u"Cy Young"_s});
    }

    // A folder of ten thousand cards opens at once, since only the names in sight are read.
    void namesAreReadWhenSeen()
    {
        setCardPath(u"C:\\Many"_s);
        for (int i = 0; i < 300; ++i)
            put(u"C:\\Many\\%1.vcf"_s.arg(i, 4, 10, QChar(u'0')), "BEGIN:VCARD\nFN:A\n");
        open();
        choose(u"UseVCFFiles"_s);
        QCOMPARE(list()->rowCount(), 300);
        QCoreApplication::processEvents();
        m_view->grab();
        // What has not been in sight has not been read, and so has its new name.
        for (const int i : {0, 299})
            put(u"C:\\Many\\%1.vcf"_s.arg(i, 4, 10, QChar(u'0')), "BEGIN:VCARD\nFN:New\n");
        QCOMPARE(listed().value(0), u"A"_s);
        QCOMPARE(listed().value(299), u"New"_s);
    }

private:
    void open() { m_view = m_fixture->open<FullViewWeb>(u"FullViewWeb"_s); }
    void choose(const QString& tool) { child<QAction>(m_view, tool)->trigger(); }

    QStringList toolsDown() const
    {
        QStringList down;
        for (const QString& tool : {u"UseOrvaneContactDatabase"_s, u"UseMSOutlookDatabase"_s,
                 u"UseVCFFiles"_s, u"UseMSOullookExpressDatabase"_s}) {
            if (child<QAction>(m_view, tool)->isChecked())
                down << tool;
        }
        return down;
    }

    void put(const QString& path, const QByteArray& bytes) const
    {
        support::put(m_fixture->drive.local(path), bytes);
    }

    void setCardPath(const QString& path)
    {
        m_fixture->execute(u"insert into cntb_setup (VCFPath) values ('"_s + path + u"')"_s);
    }

    QString text(const QString& control) const { return widgets::textOf(child<QWidget>(m_view, control)); }
    widgets::RecordList* list() const { return child<widgets::RecordList>(m_view, u"DBList1"_s); }

    QStringList listed() const
    {
        QStringList names;
        for (int row = 0; row < list()->rowCount(); ++row)
            names << list()->model()->index(row, 0).data().toString();
        return names;
    }

    /// The texts of all controls that show something, but for the name in the head.
    QStringList shown() const
    {
        QStringList texts;
        for (const QWidget* control :
            child<QTabWidget>(m_view, u"TabsEdit"_s)->widget(0)->findChildren<QWidget*>()) {
            static const QRegularExpression field(u"^(txt|Txt|dtp)"_s);
            if (field.match(control->objectName()).hasMatch()
                && !widgets::textOf(control).trimmed().isEmpty())
                texts << control->objectName() + u'='
                        + widgets::textOf(control).replace(u'\n', u'/').remove(u'\r');
        }
        texts.sort();
        return texts;
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    FullViewWeb* m_view = nullptr;
};

QTEST_MAIN(FullViewWebTest)
#include "FullViewWeb_test.moc"
