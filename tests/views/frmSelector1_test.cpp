#include "support/person.h"
#include "support/screen_fixture.h"
#include "views/filters/frmFilter.h"
#include "views/selector/frmSelector1.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"
#include "widgets/thumbnail_view.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;
using widgets::child;

/// The advanced search as a person uses it.
class FrmSelector1Test : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        for (const QStringView values :
            {u"'Ann Lee','Ann','Lee','Acme','Friends','Chess','1','India','Goa','020','Peru','Pisac','084'",
                u"'Bob Ray','Bob','Ray','Bolt','Work','Sales','2','Chad','Mao','023','India','Pune','022'",
                u"'Cy Lee','Cy','Lee','Acme','Work','Law','3','Mali','Kita','','Mali','Kayes',''"}) {
            m_fixture->execute(
                u"insert into cnt_main (Name,First,Last,Company,category1,category2,Priority,h_country,h_city,h_std,b_country,b_city,b_std) values ("_s
                + values.toString() + u')');
        }
    }

    void cleanup()
    {
        m_fixture->screens.unloadAll();
        QCOMPARE(m_fixture->verify(), QString());
    }

    void pagesAndTitles()
    {
        open();
        QCOMPARE(m_form->frameTitle(), u"Search"_s);
        auto* tree = control<QTreeWidget>(u"SSTree1"_s);
        QCOMPARE(tree->topLevelItem(0)->text(0), u"Orvane Contacts-Location Wise"_s);
        QCOMPARE(grid()->rowCount(), 3);
        auto* tabs = control<QTabBar>(u"SSActiveTabs1"_s);
        const std::pair<int, QString> titles[] = {{2, u"Search-Category Tree"_s}, {3, u"Search-Advanced"_s},
            {4, u"Search-Pics Thumbnails"_s}, {0, u"Search-Location Tree"_s}};
        for (const auto& [tab, title] : titles) {
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
            QCOMPARE(m_form->frameTitle(), title);
            QCOMPARE(tree->isVisible(), tab == 0 || tab == 2);
        }
        QVERIFY(m_form->findChild<QWidget*>(u"FormTree2"_s)->isVisible());
    }

    void opensOnThePageAskedFor()
    {
        m_fixture->screens.add<frmSelector1>(u"frmSelector1"_s);
        m_form = static_cast<frmSelector1*>(m_fixture->screens.load(u"frmSelector1"));
        m_form->openPage(u"Category"_s);
        m_fixture->screens.show(u"frmSelector1");
        QCOMPARE(
            control<QTreeWidget>(u"SSTree1"_s)->topLevelItem(0)->text(0), u"Orvane Contacts-Category Wise"_s);
        QCOMPARE(m_form->frameTitle(), u"Search-Category Tree"_s);
    }

    void choicesNarrowTheResults()
    {
        open()->openPage(u"Search"_s);
        choose(u"cboCompany"_s, u"Acme"_s);
        QCOMPARE(listed(), u"1,3"_s);
        choose(u"cboPriority"_s, u"2&3"_s);
        QCOMPARE(listed(), u"3"_s);
        auto* last = control<QComboBox>(u"cboLast"_s)->lineEdit();
        last->selectAll();
        QTest::keyClicks(last, u"R*"_s);
        QCOMPARE(listed(), QString());
        press(u"cmdRef"_s);
        QCOMPARE(listed(), u"1,2,3"_s);
        QCOMPARE(last->text(), u"All"_s);
    }

    void listsFollowOneAnother()
    {
        open()->openPage(u"Search"_s);
        const auto values = [this](const QString& combo) {
            return control<widgets::FilledCombo>(combo)->values().join(u',');
        };
        QCOMPARE(values(u"cboPriority"_s), u"All,1&2,2&3,3&4"_s);
        QCOMPARE(values(u"cboSubCateg"_s), u"All,Chess,Law,Sales"_s);
        choose(u"cboCateg"_s, u"Work"_s);
        QCOMPARE(values(u"cboSubCateg"_s), u"All,Law,Sales"_s);
        choose(u"cboCountry"_s, u"India"_s);
        QCOMPARE(values(u"cboCity"_s), u"All,Goa,Pune"_s);
        QCOMPARE(values(u"cboStd"_s), u"All,020,022"_s);
        press(u"cmdRef"_s);
        QVERIFY(values(u"cboCity"_s).contains(u"Kita"_s));
    }

    void keyword()
    {
        m_fixture->execute(u"update cnt_main set b_note='met at the Rotary' where id=2"_s);
        open();
        control<QAction>(u"Search"_s)->trigger();
        QCOMPARE(m_form->frameTitle(), u"Search-Advanced"_s);
        QTest::keyClicks(control<QLineEdit>(u"txtkeyword"_s), u"rotary"_s);
        press(u"CmdSearch"_s);
        QCOMPARE(listed(), u"2"_s);
    }

    void namesAndTheirButtons()
    {
        open()->openPage(u"Name"_s);
        choose(u"cmbflast"_s, u"Lee"_s);
        choose(u"CmbFCmpny"_s, u"Acme"_s);
        choose(u"cmbffirst"_s, u"Cy"_s);
        QCOMPARE(listed(), u"3"_s);
        press(u"SSCommand5"_s);
        QCOMPARE(listed(), u"1,2,3"_s);
        QCOMPARE(control<QComboBox>(u"cmbflast"_s)->currentText(), u"Lee"_s);
        press(u"SSCommand2"_s);
        QCOMPARE(control<QComboBox>(u"cmbflast"_s)->currentText(), QString());
        QCOMPARE(listed(), u"1,2,3"_s);
    }

    void thumbnails()
    {
        QVERIFY(m_fixture->drive.ensureFolder(u"C:\\Photos"));
        const QDir folder(m_fixture->drive.local(u"C:\\Photos"));
        QImage image(20, 20, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QVERIFY(image.save(folder.filePath(u"Cy.JPG"_s), "JPG"));
        QVERIFY(image.save(folder.filePath(u"bob.png"_s), "PNG"));
        m_fixture->execute(u"update cnt_main set PhotLoc='C:\\photos\\cy.jpg' where id=3"_s);
        m_fixture->execute(
            u"update cnt_main set PhotLoc='%1' where id=1"_s.arg(folder.filePath(u"Cy.JPG"_s)));
        m_fixture->execute(
            u"update cnt_main set PhotLoc='C:\\Photos\\bob.png' where id=2"_s); // Kept: no "*.JPG"
        m_fixture->execute(u"insert into cnt_main (Name,PhotLoc) values ('Aa','C:\\Photos\\gone.jpg')"_s);
        openPictures();
        auto* view = control<widgets::ThumbnailView>(u"Thumb"_s);
        QCOMPARE(view->count(), 2);
        QTRY_VERIFY(!view->pictureOf(1).isNull());
        support::clickRow(view, 1);
        QCOMPARE(listed(), u"3"_s);
        QCOMPARE(shownHeadings(), u"|Category|First|Last|H City|H Std"_s);
        QCOMPARE(grid()->model()->index(0, 2).data().toString(), u"Cy"_s);
        QCOMPARE(m_fixture->shared.selectedContactId, 3);
        control<QAction>(u"Name"_s)->trigger();
        QCOMPARE(shownHeadings(), u"|First|Last|Category1|Category2|H City|H Std"_s);
    }

    void sizeIsRemembered()
    {
        openPictures();
        control<QAction>(u"Large"_s)->trigger();
        m_fixture->screens.unloadAll();
        openPictures();
        QVERIFY(control<QAction>(u"Large"_s)->isChecked());
        QTest::keyClick(control<QWidget>(u"Thumb"_s), Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(control<QAction>(u"Small"_s)->isChecked());
    }

    void toolsActOnTheCurrentRow()
    {
        open()->openPage(u"Search"_s);
        m_fixture->boxes.expect(u"Record not selected"_s);
        control<QAction>(u"Delete"_s)->trigger();
        grid()->selectKey(2);
        m_fixture->boxes.expect(u"Are you sure you want to delete this record?"_s, platform::Answer::Yes);
        control<QAction>(u"Delete"_s)->trigger();
        QCOMPARE(listed(), u"1,3"_s);
        QCOMPARE(widgets::textOf(control<QLabel>(u"lblname"_s)), QString());
        control<QAction>(u"Simple"_s)->trigger();
        QVERIFY(!control<QTabBar>(u"SSActiveTabs1"_s)->isVisible());
        control<QAction>(u"Details"_s)->trigger();
        QVERIFY(control<QTabBar>(u"SSActiveTabs1"_s)->isVisible());
    }

    void cardOfTheRowNotOfTheName()
    {
        m_fixture->execute(u"insert into cnt_main (Name,First,Company) values ('Ann Lee','Ann','Second')"_s);
        open()->openPage(u"Search"_s);
        int bars = 0;
        for (const QToolBar* bar : m_form->findChildren<QToolBar*>())
            bars += bar->isVisible();
        QCOMPARE(bars, 1);
        const int row = grid()->rowOf(4);
        const QPoint at = grid()->visualRect(grid()->model()->index(row, 1)).center();
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, at);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, at, grid()->viewport()->mapToGlobal(at));
        QApplication::sendEvent(grid()->viewport(), &asked);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        QVERIFY(menu);
        m_fixture->boxes.expect(u"VCF File Saved on C:\\OVUserFiles\\VCF"_s);
        const QPoint entry = menu->actionGeometry(control<QAction>(u"SaveasVCF"_s)).center();
        QTest::mouseClick(menu, Qt::LeftButton, {}, entry);
        QFile card(m_fixture->drive.local(u"C:\\OVUserFiles\\VCF\\Ann Lee.vcf"));
        QVERIFY(card.open(QFile::ReadOnly));
        QVERIFY(card.readAll().contains("Second"));
    }

    void treeFollowsADeletion()
    {
        open()->openPage(u"Category"_s);
        auto* tree = control<QTreeWidget>(u"SSTree1"_s);
        const QTreeWidgetItem* friends = tree->topLevelItem(0)->child(0);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(friends).center());
        QCOMPARE(listed(), u"1"_s);
        grid()->selectKey(1);
        m_fixture->boxes.expect(u"Are you sure you want to delete this record?"_s, platform::Answer::Yes);
        control<QAction>(u"Delete"_s)->trigger();
        QCOMPARE(tree->topLevelItem(0)->childCount(), 1);
        QCOMPARE(listed(), u"2,3"_s);
    }

    void placesGoWithTheirCountry()
    {
        open()->openPage(u"Search"_s);
        choose(u"cboCountry"_s, u"India"_s);
        choose(u"cboCity"_s, u"Goa"_s);
        choose(u"cboCountry"_s, u"Chad"_s);
        QCOMPARE(control<QComboBox>(u"cboCity"_s)->currentText(), u"All"_s);
        QCOMPARE(listed(), u"2"_s);
    }

    void filterIsDelivered()
    {
        m_fixture->screens.add<frmFilter>(u"frmFilter"_s);
        open()->openPage(u"Search"_s);
        choose(u"cboCompany"_s, u"Bolt"_s);
        control<QAction>(u"ID_Filter"_s)->trigger();
        QCOMPARE(control<QComboBox>(u"cboCompany"_s)->currentText(), u"All"_s);
        auto* filter = m_fixture->screens.find(u"frmFilter");
        child<QLineEdit>(filter, u"txtkey"_s)->setText(u"acme"_s);
        QTest::mouseClick(child<QAbstractButton>(filter, u"cmdOk"_s), Qt::LeftButton);
        QCOMPARE(listed(), u"1,3"_s);
    }

private:
    frmSelector1* open()
    {
        m_form = m_fixture->open<frmSelector1>(u"frmSelector1"_s);
        return m_form;
    }

    void openPictures()
    {
        open()->openPage(u"Picture"_s);
        QTRY_VERIFY(!control<QProgressBar>(u"PG1"_s)->isVisible());
    }

    QString listed() const { return support::keysOf(grid()); }
    QString shownHeadings() const { return support::headingsOf(grid()).join(u'|'); }
    void choose(const QString& combo, const QString& value) { support::choose(m_form, combo, value); }
    void press(const QString& button) { support::click(m_form, button); }
    template <class T> T* control(const QString& name) const { return child<T>(m_form, name); }
    widgets::HeadingGrid* grid() const { return control<widgets::HeadingGrid>(u"FG1"_s); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    frmSelector1* m_form = nullptr;
};

QTEST_MAIN(FrmSelector1Test)
#include "frmSelector1_test.moc"
