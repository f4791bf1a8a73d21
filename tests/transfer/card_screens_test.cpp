#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "transfer/cards/FormCardImport.h"
#include "transfer/cards/FrmvCard.h"
#include "transfer/cards/FrmVCF.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// The screens of cards as a person works with them.
class CardScreensTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        m_fixture->shared.AppTitle = u"Orvane Contacts"_s;
    }
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void ticksOutliveTheFilters()
    {
        fill();
        auto* form = m_fixture->open<transfer::FrmVCF>(u"FrmVCF"_s);
        QCOMPARE(form->windowTitle(), u"Export To VCF"_s);
        auto* grid = widgets::child<widgets::HeadingGrid>(form, u"Grid1"_s);
        auto* tabs = widgets::child<QTabBar>(form, u"TabView"_s);
        m_fixture->boxes.expect(u"Record not selected"_s);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
        QCOMPARE(tabs->currentIndex(), 0);
        support::clickRow(grid, 0, 1);
        support::choose(form, u"CmbCategory"_s, u"Work"_s);
        QCOMPARE(support::keysOf(grid), u"2,3"_s);
        support::choose(form, u"CmbPriority"_s, u"2"_s);
        QCOMPARE(support::keysOf(grid), u"3"_s);
        grid->setCurrentRow(0);
        QTest::keyClick(grid, Qt::Key_Space);
        support::choose(form, u"CmbSubCategory"_s, u"Old"_s);
        QCOMPARE(support::keysOf(grid), QString());
        QCOMPARE(widgets::child<QLabel>(form, u"lblCount"_s)->text(),
            u"2 ticked, 2 of them are not in this list"_s);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(1).center());
        QCOMPARE(support::keysOf(grid), u"1,3"_s);
        m_fixture->boxes.expect(u"VCF File Saved to C:\\OVUserFiles\\Exported Files\\VCF"_s);
        m_fixture->boxes.expect(
            u"1 VCF files could not be written. A contact whose name can not be the name of a "
            u"file has none.\n\nCyd/Cy"_s);
        support::click(form, u"CmdSave"_s);
        QCOMPARE(files(), QStringList{u"Ann.vcf"_s});
        QCOMPARE(m_fixture->sounds.played, QStringList{u"\\UserFiles\\Misc\\sound\\save.wav"_s});
    }

    void allIntoOneFile()
    {
        fill();
        auto* form = m_fixture->open<transfer::FrmVCF>(u"FrmVCF"_s);
        m_fixture->boxes.expect(u"Record not selected"_s);
        support::click(form, u"CmdSave"_s);
        support::click(form, u"ChkSelect"_s);
        const QString file = m_fixture->root.filePath(u"all.vcf"_s);
        support::choose(form, u"CmbFormat"_s, u"vCard 4.0 (one file of all)"_s);
        m_fixture->boxes.expectChoice(u"Export To VCF"_s, file);
        m_fixture->boxes.expect(u"VCF File Saved to %1\n\nContacts written: 3"_s.arg(file));
        support::click(form, u"CmdSave"_s);
        QCOMPARE(support::bytesOf(file).count("BEGIN:VCARD\r\nVERSION:4.0"), 3);
        support::choose(form, u"CmbFormat"_s, u"vCard 3.0 (one file each)"_s);
        m_fixture->boxes.expect(
            u"VCF File Saved to C:\\OVUserFiles\\Exported Files\\VCF\n\nContacts written: 3"_s);
        support::click(form, u"CmdSave"_s);
        QCOMPARE(files(), (QStringList{u"Ann.vcf"_s, u"Bob.vcf"_s, u"Cyd_Cy.vcf"_s}));
    }

    void visitingCard()
    {
        auto* form = m_fixture->open<transfer::FrmvCard>(u"FrmvCard"_s);
        QCOMPARE(form->windowTitle(), u"Visiting Card to Orvane Contacts "_s);
        QVERIFY(!widgets::child<QPushButton>(form, u"cmdSave"_s)->isEnabled());
        m_fixture->boxes.expectChoice(u"Visiting card"_s,
            support::put(m_fixture->root.filePath(u"a.vcf"_s),
                "BEGIN:VCARD\r\nVERSION:2.1\r\nFN:Zo\xe9\r\nADR;WORK:;office;a;b\r\nTITLE:c\r\n"));
        m_fixture->boxes.expect(u"This address has fewer than five parts. Nothing behind it was read:\n\n"
                                u"ADR;WORK:;office;a;b"_s);
        support::click(form, u"Command1"_s);
        const QString pad(34, u' ');
        QCOMPARE(widgets::child<QPlainTextEdit>(form, u"Text1"_s)->toPlainText(),
            u"Full Name "_s + pad.left(30) + u"Zoé\nAdd(W)"_s + pad + u"a\nCity(W)"_s + pad.left(33) + u'b');
        m_fixture->boxes.expect(u"Data saved"_s);
        support::click(form, u"cmdSave"_s);
        QCOMPARE(m_fixture->book.rows(u"select Name, w_add1, w_city, w_State, Job_Title from cnt_main"_s),
            QStringList{u"Zoé|a|b||"_s});
    }

    void importShowsFirstAndStoresThen()
    {
        fill();
        auto* form = m_fixture->open<transfer::FormCardImport>(u"FormCardImport"_s);
        auto* button = widgets::child<QPushButton>(form, u"CmdImport"_s);
        QVERIFY(!button->isEnabled());
        m_fixture->boxes.expectChoice(u"Import vCards"_s,
            support::put(m_fixture->root.filePath(u"in.vcf"_s),
                "BEGIN:VCARD\nVERSION:2.1\nFN:Ann\nTEL;CELL:5551234\nEND:VCARD\n"
                "BEGIN:VCARD\nFN:Dee <b>&\nNOTE:x\nEND:VCARD\nBEGIN:VCARD\nEND:VCARD\n"));
        support::click(form, u"CmdFiles"_s);
        QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).size(), 3);
        QCOMPARE(widgets::child<QLabel>(form, u"lblSummary"_s)->text(),
            u"1 of 2 cards will be stored. 1 may be there already."_s);
        auto* cards = widgets::child<QTableView>(form, u"GridCards"_s);
        support::clickRow(cards, 1);
        QCOMPARE(widgets::child<QPlainTextEdit>(form, u"TxtDetail"_s)->toPlainText().section(u'\n', 0, 1),
            u"From in.vcf, card 2\nName: Dee <b>&"_s);
        QCOMPARE(widgets::child<widgets::HeadingGrid>(form, u"GridLeft"_s)->textAt(0, u"why"_s),
            u"the card is empty"_s);
        support::clickRow(cards, 0, 3);
        QTest::keyClick(cards, Qt::Key_Space);
        support::click(form, u"CmdImport"_s);
        QCOMPARE(m_fixture->book.rows(u"select Name, Mobile, memo1 from cnt_main where id>3"_s),
            (QStringList{u"Ann|5551234|null"_s, u"Dee <b>&|null|x"_s}));
        QCOMPARE(m_fixture->frame.notices, QStringList{u"2 contacts imported [Undo]"_s});
        m_fixture->frame.noticeAction();
        QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).size(), 3);
        QVERIFY(!button->isEnabled());
    }

    void foldersCanBeDropped()
    {
        support::put(m_fixture->root.filePath(u"cards/b/one.vcf"_s), "BEGIN:VCARD\nFN:a\nEND:VCARD");
        support::put(m_fixture->root.filePath(u"cards/two.VCF"_s), "BEGIN:VCARD\nFN:b\nEND:VCARD");
        support::put(m_fixture->root.filePath(u"cards/x.txt"_s), "BEGIN:VCARD\nFN:c\nEND:VCARD");
        auto* form = m_fixture->open<transfer::FormCardImport>(u"FormCardImport"_s);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(m_fixture->root.filePath(u"cards"_s)), QUrl(u"https://x/y.vcf"_s)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(form, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(form, &drop);
        QCoreApplication::processEvents();
        QCOMPARE(widgets::child<QTableView>(form, u"GridCards"_s)->model()->rowCount(), 2);
        m_fixture->boxes.expect(u"There is no vCard file."_s);
        QVERIFY(QDir(m_fixture->root.path()).mkdir(u"bare"_s));
        form->openFiles({m_fixture->root.filePath(u"bare"_s)});
    }

private:
    void fill()
    {
        m_fixture->execute(
            u"insert into cnt_main (Name, Mobile, category1) values ('Ann', '5551234', 'Friends')"_s);
        m_fixture->execute(
            u"insert into cnt_main (Name, category1, category2, Priority) values ('Bob', 'Work', 'Old', '1')"_s);
        m_fixture->execute(
            u"insert into cnt_main (Name, category1, Priority) values ('Cyd/Cy', 'Work', '2')"_s);
    }

    QStringList files() const
    {
        return QDir(m_fixture->root.filePath(u"OVUserFiles/Exported Files/VCF"_s))
            .entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
};

QTEST_MAIN(CardScreensTest)
#include "card_screens_test.moc"
