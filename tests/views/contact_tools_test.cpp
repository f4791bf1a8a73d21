#include "support/screen_fixture.h"
#include "views/contact_tools.h"
#include "views/filters/FrmFind.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;

/// Each tool of the full view hands the contact to its screen, or says that there is none.
class ContactToolsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void toolWithoutItsScreenIsDisabled();
    void handsOver_data();
    void handsOver();
    void nothingSelected_data();
    void nothingSelected();
    void firstOfTwoWithOneName();
    void apostropheMeansNotSelected();
    void idTellsEqualNamesApart();
    void findAndReplaceKnowsItsTable();
    void mailGoesToTheContact();
    void noShortMessageWithoutANumber();
    void detailViewOpensThePageOfTheSelector();
    void editDetailsGoesByTheRow();
    void editDetailsOfAContactThatIsGone();
    void filtersComeBackToTheCaller_data();
    void filtersComeBackToTheCaller();
    void cardsGoToTheirFolders();
    void nameThatIsNoFileName();
    void cardsOfManyCanBeStopped();
    void printRecordLeavesTheRequest_data();
    void printRecordLeavesTheRequest();

private:
    ContactTools& tools();
    QStringList filesIn(const QString& folder) const
    {
        return QDir(m_fixture->drive.local(folder)).entryList(QDir::Files);
    }
    void trigger(const QString& id) { tools().action(id)->trigger(); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    std::unique_ptr<QWidget> m_screen;
    QString m_name;
    qint64 m_listed = 0;
    bool m_byName = true; ///< the screen tells the name
};

void ContactToolsTest::init()
{
    m_screen.reset();
    m_fixture = std::make_unique<support::ScreenFixture>();
    m_fixture->execute(u"insert into cnt_main (Name, Sms) values ('Ann', '98')"_s);
    m_fixture->execute(u"insert into cnt_main (Name) values ('Bob')"_s);
    m_fixture->execute(u"insert into cnt_main (Name) values ('Ann')"_s);
    m_fixture->execute(u"insert into ov_setup ([key]) values ('')"_s);
    m_name = u"Bob"_s;
    m_listed = 2;
    m_byName = true;
}

void ContactToolsTest::cleanup()
{
    QCOMPARE(m_fixture->verify(), QString());
}

/// Made at the first use, when the targets of the test are known.
ContactTools& ContactToolsTest::tools()
{
    if (!m_screen) {
        m_screen = std::make_unique<QWidget>();
        new ContactTools(m_fixture->context,
            {.callerForm = u"FullView"_s,
                .shownId = [this] { return m_listed; },
                .listedId = [this] { return m_listed; },
                .shownName = m_byName ? [this] { return m_name; } : std::function<QString()>()},
            m_screen.get());
    }
    return *m_screen->findChild<ContactTools*>();
}

void ContactToolsTest::toolWithoutItsScreenIsDisabled()
{
    m_fixture->addTarget(u"FrmDialer"_s);
    for (const QString& id : {u"Call"_s, u"Search"_s, u"Edit"_s, u"PrintRecord"_s, u"SaveToDesktopAll"_s})
        QVERIFY2(tools().action(id)->isEnabled(), qPrintable(id));
    for (const QString& id : {u"Letter"_s, u"PrintSingle"_s, u"CommonFilter"_s, u"PrintLabel"_s}) {
        QVERIFY2(!tools().action(id)->isEnabled(), qPrintable(id));
        QVERIFY(tools().action(id)->toolTip().contains(u"Not available yet"_s));
    }
}

void ContactToolsTest::handsOver_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    QTest::newRow("brief view") << u"BriefView"_s << u"FrmContacts"_s;
    QTest::newRow("linked records") << u"ViewLinkedItem"_s << u"frmCntViewer"_s;
    QTest::newRow("dialer") << u"Call"_s << u"FrmDialer"_s;
    QTest::newRow("letter") << u"Letter"_s << u"FrmLetter"_s;
    QTest::newRow("full form") << u"EditDetails"_s << u"FormMain"_s;
}

void ContactToolsTest::handsOver()
{
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    trigger(id);
    QCOMPARE(m_fixture->target(form)->contacts, QList<qint64>{2});
    QCOMPARE(m_fixture->frame.placed, QStringList{form});
}

void ContactToolsTest::nothingSelected_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    handsOver_data();
    QTest::newRow("mail") << u"Email2"_s << u"FormEmail"_s;
    QTest::newRow("short message") << u"SMS"_s << u"frmSms"_s;
    QTest::newRow("selector") << u"DetailView"_s << u"frmSelector"_s;
}

void ContactToolsTest::nothingSelected()
{
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_name.clear();
    m_listed = 0;
    m_fixture->addTarget(form);
    m_fixture->boxes.expect(u"Record not selected"_s);
    trigger(id);
    QCOMPARE(m_fixture->boxes.shown, QStringList{u"information: Record not selected"_s});
    QCOMPARE(m_fixture->frame.placed, QStringList());
    QVERIFY(!m_fixture->shared.EditRequested);
}

void ContactToolsTest::firstOfTwoWithOneName()
{
    m_name = u"Ann"_s;
    m_fixture->addTarget(u"FrmDialer"_s);
    trigger(u"Call"_s);
    QCOMPARE(m_fixture->target(u"FrmDialer"_s)->contacts, QList<qint64>{1});
    QCOMPARE(m_fixture->shared.selectedContactId, 1);
}

void ContactToolsTest::apostropheMeansNotSelected()
{
    m_name = u"O'Brien"_s;
    m_fixture->addTarget(u"FrmLetter"_s);
    m_fixture->book.expectFailure(u"O'Brien"_s);
    m_fixture->boxes.expect(u"Record not selected"_s);
    trigger(u"Letter"_s);
}

// A card, the pages, and in a screen that knows the row everything else.
void ContactToolsTest::idTellsEqualNamesApart()
{
    m_fixture->execute(u"insert into cnt_main (Name, Company) values (\"O'Brien\", 'Right')"_s);
    m_fixture->addTarget(u"FrmContacts"_s);
    m_fixture->addTarget(u"FrmLetter"_s);
    m_name = u"O'Brien"_s;
    m_listed = 4;
    m_fixture->boxes.expect(u"VCF File Saved on C:\\OVUserFiles\\VCF"_s);
    trigger(u"SaveasVCF"_s);
    QCOMPARE(filesIn(u"C:\\OVUserFiles\\VCF"_s), QStringList{u"O'Brien.vcf"_s});
    m_name = u"Ann"_s;
    m_listed = 3;
    trigger(u"BriefView"_s);
    QCOMPARE(m_fixture->target(u"FrmContacts"_s)->contacts, QList<qint64>{3});
    m_screen.reset();
    m_byName = false;
    trigger(u"Letter"_s);
    QCOMPARE(m_fixture->target(u"FrmLetter"_s)->contacts, QList<qint64>{3});
}

void ContactToolsTest::findAndReplaceKnowsItsTable()
{
    m_fixture->screens.add<FrmFind>(u"FrmFind"_s);
    QMenu* menu = (tools(), m_screen->findChild<ContactTools*>()->makeMenu(m_screen.get()));
    const QList<QAction*> rows = widgets::child<QMenu>(menu, u"MenuReplace"_s)->actions();
    QStringList fields;
    for (QAction* row : rows) {
        row->trigger();
        auto* combo = widgets::child<QComboBox>(m_fixture->screens.find(u"FrmFind"), u"Combo1"_s);
        fields << combo->itemText(0) + QString::number(combo->count());
        combo->window()->hide();
    }
    QCOMPARE(fields, (QStringList{u"Type5"_s, u"Date3"_s, u"Type5"_s, u"From29"_s}));
}

void ContactToolsTest::mailGoesToTheContact()
{
    m_fixture->addTarget(u"FormEmail"_s);
    trigger(u"Email2"_s);
    QCOMPARE(m_fixture->target(u"FormEmail"_s)->recipients, QList<qint64>{2});
    QCOMPARE(m_fixture->frame.placed, QStringList{u"FormEmail"_s});
}

void ContactToolsTest::noShortMessageWithoutANumber()
{
    m_fixture->addTarget(u"frmSms"_s);
    trigger(u"SMS"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList());
    m_name = u"Ann"_s;
    trigger(u"SMS"_s);
    QCOMPARE(m_fixture->target(u"frmSms"_s)->contacts, QList<qint64>{1});
}

void ContactToolsTest::detailViewOpensThePageOfTheSelector()
{
    m_fixture->addTarget(u"frmSelector"_s);
    trigger(u"DetailView"_s);
    QCOMPARE(m_fixture->shared.selectedContactId, 2);
    QCOMPARE(m_fixture->target(u"frmSelector"_s)->pages, QStringList{u"Detail"_s});
}

void ContactToolsTest::editDetailsGoesByTheRow()
{
    m_name = u"Ann"_s;
    m_listed = 3;
    m_fixture->addTarget(u"FormMain"_s);
    trigger(u"EditDetails"_s);
    QCOMPARE(m_fixture->target(u"FormMain"_s)->contacts, QList<qint64>{3});
    QVERIFY(m_fixture->shared.EditRequested);
}

void ContactToolsTest::editDetailsOfAContactThatIsGone()
{
    m_fixture->addTarget(u"FormMain"_s);
    dynamic_cast<support::TargetScreen*>(m_fixture->screens.load(u"FormMain"))->knowsContacts = false;
    m_fixture->boxes.expect(u"Error"_s);
    trigger(u"EditDetails"_s);
    QVERIFY(!m_fixture->shared.EditRequested);
}

void ContactToolsTest::filtersComeBackToTheCaller_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    QTest::newRow("filter") << u"CommonFilter"_s << u"frmFilter"_s;
    QTest::newRow("tabs") << u"TabFilter"_s << u"frmTabFilter"_s;
}

void ContactToolsTest::filtersComeBackToTheCaller()
{
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    trigger(id);
    QCOMPARE(m_fixture->shared.CallerForm, u"FullView"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList{form + u" modally"_s});
}

// The sample book has two contacts of this name.
const QString kTwoAnns = u"\n\nContacts of one name share a file, which holds the last of them: Ann"_s;

void ContactToolsTest::cardsGoToTheirFolders()
{
    m_fixture->boxes.expect(u"VCF File Saved on C:\\OVUserFiles\\VCF"_s);
    trigger(u"SaveasVCF"_s);
    QCOMPARE(filesIn(u"C:\\OVUserFiles\\VCF"_s), QStringList{u"Bob.vcf"_s});
    m_fixture->boxes.expect(u"VCF File Saved on C:\\Desktop"_s);
    trigger(u"SavetoDesktop"_s);
    QCOMPARE(filesIn(u"C:\\Desktop"_s), QStringList{u"Bob.vcf"_s});
    m_fixture->boxes.expect(u"VCF File Saved on C:\\Desktop\n\nFiles written: 2"_s + kTwoAnns);
    trigger(u"SaveToDesktopAll"_s);
    QCOMPARE(filesIn(u"C:\\Desktop"_s), (QStringList{u"Ann.vcf"_s, u"Bob.vcf"_s}));
    m_fixture->execute(u"delete * from cnt_main"_s);
    for (const QString& id : {u"SaveasVCF"_s, u"SavetoDesktop"_s, u"SaveToDesktopAll"_s}) {
        m_fixture->boxes.expect(u"Record not selected"_s);
        trigger(id);
    }
}

// The others are written all the same, and nobody is told of what is not there.
void ContactToolsTest::nameThatIsNoFileName()
{
    m_fixture->execute(u"insert into cnt_main (Name) values ('Tea/Coffee')"_s);
    const QString refusal
        = u"1 VCF files could not be written. A contact whose name can not be the name of a file has none."_s;
    m_fixture->boxes.expect(u"VCF File Saved on C:\\Desktop\n\nFiles written: 2"_s + kTwoAnns);
    m_fixture->boxes.expect(refusal);
    trigger(u"SaveToDesktopAll"_s);
    QCOMPARE(filesIn(u"C:\\Desktop"_s).size(), 2);
    m_listed = 4;
    m_fixture->boxes.expect(refusal);
    trigger(u"SaveasVCF"_s);
}

void ContactToolsTest::cardsOfManyCanBeStopped()
{
    QList<QStringList> rows;
    for (int i = 0; i < 997; ++i)
        rows << QStringList{u"Person %1"_s.arg(i)};
    QVERIFY(m_fixture->book.data().appendRows(u"cnt_main"_s, {u"Name"_s}, rows));
    /// Presses the stop button as soon as it is there.
    class Stopper final : public QObject {
    public:
        int contacts = 0;

    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            auto* dialog = qobject_cast<QProgressDialog*>(watched);
            if (dialog && event->type() == QEvent::Show) {
                contacts = dialog->maximum();
                dialog->cancel();
            }
            return false;
        }
    } stopper;
    qApp->installEventFilter(&stopper);
    m_fixture->boxes.expect(u"Stopped. 25 of 1000 VCF files were saved on C:\\Desktop"_s + kTwoAnns);
    trigger(u"SaveToDesktopAll"_s);
    QCOMPARE(stopper.contacts, 1000);
    QVERIFY(filesIn(u"C:\\Desktop"_s).size() <= 25);
}

void ContactToolsTest::printRecordLeavesTheRequest_data()
{
    QTest::addColumn<bool>("installed");
    QTest::newRow("sibling is there") << true;
    QTest::newRow("sibling is missing") << false;
}

void ContactToolsTest::printRecordLeavesTheRequest()
{
    QFETCH(bool, installed);
    if (installed)
        m_fixture->shell.siblings << u"Orvane Link & Sync.exe"_s;
    m_fixture->addTarget(u"FrmProjectMsg"_s);
    trigger(u"PrintRecord"_s);
    QCOMPARE(m_fixture->book.rows(u"select [key], rptMod, rptSubMod from ov_setup"_s),
        QStringList{u"report|Contacts|Address Book- Full"_s});
    QCOMPARE(m_fixture->shell.ends, installed ? 1 : 0);
    QCOMPARE(m_fixture->frame.placed, installed ? QStringList() : QStringList{u"FrmProjectMsg modally"_s});
}

QTEST_MAIN(ContactToolsTest)
#include "contact_tools_test.moc"
