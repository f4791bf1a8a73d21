#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "views/contact_pages/frmNoteView.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using widgets::child;

/// The page to read: what stands on it in each view, and where its links lead.
class FrmNoteViewTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>(support::TestBook::Rows::Sample);
        m_fixture->shared.NationalMode = true;
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void sectionsOfViews_data()
    {
        support::columns<QString, QStringList, QStringList>("page", "there", "missing");
        QTest::newRow("brief") << u"Brief"_s
                               << QStringList{u"022 22110045"_s, u"Mumbai 400001"_s, u"15 Jun-1975 ( 49 )"_s}
                               << QStringList{u"Tata Steel"_s, u"Diya"_s, u"Work 2"_s};
        QTest::newRow("personal") << u"Personal"_s
                                  << QStringList{u"Priya, 02 Mar-1978 ( 46 )"_s, u"25 Nov-2001"_s, u"Diya"_s}
                                  << QStringList{u"Tata Steel"_s, u"Classes"_s};
        QTest::newRow("business") << u"Business"_s << QStringList{u"Tata Steel"_s, u"Mr. Anil Rao"_s}
                                  << QStringList{u"Marine Drive"_s, u"Family and dates"_s};
        QTest::newRow("full") << u"Full"_s
                              << QStringList{u"Tata Steel"_s, u"Diya"_s, u"12 Marine Drive"_s, u"Classes"_s,
                                     u"Business - Clients"_s}
                              << QStringList{u"Undefined"_s};
    }

    void sectionsOfViews()
    {
        QFETCH(QString, page);
        QFETCH(QStringList, there);
        QFETCH(QStringList, missing);
        open()->openPage(page);
        QVERIFY(m_form->showContact(1));
        for (const QString& each : there)
            QVERIFY2(text().contains(each), qPrintable(each + u"\n"_s + text()));
        for (const QString& each : missing)
            QVERIFY2(!text().contains(each), qPrintable(each + u"\n"_s + text()));
    }

    void emptyContactHasNoSections()
    {
        m_fixture->execute(
            u"insert into cnt_main (Name, H_email1, category1) values ('Bare', '@', 'Undefined')"_s);
        open()->openPage(u"Business"_s);
        QVERIFY(m_form->showContact(13));
        QCOMPARE(text(), u"There is nothing to read in this view."_s);
        QVERIFY(!m_form->showContact(99));
        QCOMPARE(m_form->shownContact(), 13);
    }

    void storedMarksAreText()
    {
        m_fixture->execute(
            u"update cnt_main set memo1 = '<b>5 < 6</b> & %1 more', nick = '<img src=\"x\">' where id=1"_s);
        open()->openPage(u"Full"_s);
        m_form->showContact(1);
        QVERIFY2(text().contains(u"<b>5 < 6</b> & %1 more"_s), qPrintable(text()));
        QVERIFY(text().contains(u"<img src=\"x\">"_s));
    }

    void linksLeadOut()
    {
        open()->openPage(u"Full"_s);
        m_form->showContact(1);
        click(u"rahul@example.in"_s);
        click(u"www.sharma.example"_s);
        QCOMPARE(m_fixture->shell.openedAddresses,
            (QStringList{u"mailto:rahul@example.in"_s, u"www.sharma.example"_s}));
    }

    // By the program's own dialer where there is one, else by the desktop.
    void numbersCall()
    {
        open()->showContact(1);
        click(u"22110045"_s);
        QCOMPARE(m_fixture->shell.openedAddresses, QStringList{u"tel:02222110045"_s});
        m_fixture->addTarget(u"FrmDialer"_s);
        m_form->showContact(1);
        click(u"22110045"_s);
        QCOMPARE(m_fixture->target(u"FrmDialer"_s)->contacts, QList<qint64>{1});
        QCOMPARE(m_fixture->shared.selectedContactId, 1);
    }

    void theContactGoesToAList()
    {
        m_fixture->addTarget(u"FrmList"_s);
        open()->showContact(7);
        auto* bar = child<QToolBar>(m_form, u"PageTools"_s);
        QTest::mouseClick(bar->widgetForAction(child<QAction>(m_form, u"AddToList"_s)), Qt::LeftButton);
        QCOMPARE(m_fixture->target(u"FrmList"_s)->contacts, QList<qint64>{7});
    }

    void associateIsShown()
    {
        m_fixture->execute(u"update cnt_main set Asso1 = 'Zen Traders' where id=1"_s);
        open()->openPage(u"Personal"_s);
        m_form->showContact(1);
        QSignalSpy shown(m_form, &views::frmNoteView::associateShown);
        click(u"Zen Traders"_s);
        QCOMPARE(shown.value(0), QVariantList{7});
        QCOMPARE(widgets::textOf(child<QWidget>(m_form, u"lblname"_s)), u"Zen Traders"_s);
    }

private:
    views::frmNoteView* open()
    {
        m_form = m_fixture->open<views::frmNoteView>(u"frmNoteView"_s);
        return m_form;
    }

    QString text() const { return child<QTextBrowser>(m_form, u"NotePage"_s)->toPlainText(); }

    void click(const QString& text) { support::clickLink(child<QTextBrowser>(m_form, u"NotePage"_s), text); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    views::frmNoteView* m_form = nullptr;
};

QTEST_MAIN(FrmNoteViewTest)
#include "frmNoteView_test.moc"
