#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "support/screen_fixture.h"
#include "views/filters/FrmFind.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

/// Each tool hands the contact of its screen to another one, or says that there is none.
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
    void goesByTheNameWhereItIsTold();
    void goesByTheIdElsewhere();
    void findAndReplaceKnowsItsTable();
    void noShortMessageWithoutANumber();
    void hitGoesToThePageOfTheSelector();
    void editOfAContact_data();
    void editOfAContact();
    void deleteAsks_data();
    void deleteAsks();
    void filterComesBackToTheCaller_data();
    void filterComesBackToTheCaller();
    void cardsGoToTheirFolders();
    void nameThatIsNoFileName();
    void cardsOfManyCanBeStopped();
    void textsGoToTheDesktop();
    void printRecordLeavesTheRequest_data();
    void printRecordLeavesTheRequest();

private:
    enum Kind { View, Selector, Hits };

    core::ContactTools& tools(Kind kind = View);
    QStringList filesIn(const QString& folder) const
    {
        return QDir(m_fixture->drive.local(folder)).entryList(QDir::Files);
    }
    void trigger(const QString& id, Kind kind = View) { tools(kind).action(id)->trigger(); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    std::unique_ptr<QWidget> m_screen;
    QString m_name;
    qint64 m_id = 0;
    bool m_tellsName = true;
    QStringList m_events;
};

void ContactToolsTest::init()
{
    m_screen.reset();
    m_fixture = std::make_unique<support::ScreenFixture>();
    for (const QString& values : {u"'Ann', '98'"_s, u"'Bob', null"_s, u"'Ann', null"_s})
        m_fixture->execute(u"insert into cnt_main (Name, Sms) values (%1)"_s.arg(values));
    m_fixture->execute(u"insert into ov_setup ([key]) values ('')"_s);
    m_name = u"Bob"_s;
    m_id = 2;
    m_tellsName = true;
    m_events.clear();
}

void ContactToolsTest::cleanup()
{
    QCOMPARE(m_fixture->verify(), QString());
}

/// Made at the first use, when the targets of the test are known: one screen with one kind of tools.
core::ContactTools& ContactToolsTest::tools(Kind kind)
{
    if (!m_screen) {
        m_screen = std::make_unique<QWidget>();
        const core::ToolTable tables[] = {core::viewTools(), core::selectorTools(), core::hitTools()};
        auto* made = new core::ContactTools(m_fixture->context, tables[kind],
            {.callerForm = u"FullView"_s,
                .chosen =
                    [this] {
                        return core::ChosenContact{m_id, m_id, m_name};
                    },
                .tellsName = kind == View && m_tellsName,
                .needsName = kind != View,
                .saysNone = kind != Hits,
                .sounds = kind == Selector,
                .beforeFilter
                = [this] { m_events << u"reset before "_s + m_fixture->frame.placed.join(u","_s); }},
            m_screen.get());
        connect(made, &core::ContactTools::contactDeleted, this,
            [this](qint64 gone) { m_events << u"gone "_s + QString::number(gone); });
    }
    return *m_screen->findChild<core::ContactTools*>();
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
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    const auto row = [](Kind kind, const QString& id, const QString& form) {
        QTest::newRow(qPrintable(id + u" of kind "_s + QString::number(kind))) << int(kind) << id << form;
    };
    row(View, u"BriefView"_s, u"FrmContacts"_s);
    row(View, u"ViewLinkedItem"_s, u"frmCntViewer"_s);
    row(View, u"Call"_s, u"FrmDialer"_s);
    row(View, u"Letter"_s, u"FrmLetter"_s);
    row(View, u"Email2"_s, u"FormEmail"_s);
    row(View, u"DetailView"_s, u"frmSelector"_s);
    row(View, u"EditDetails"_s, u"FormMain"_s);
    row(View, u"PrintLabel"_s, u"FrmlblReport"_s);
    row(Selector, u"Caller"_s, u"FrmDialer"_s);
    row(Selector, u"ID_Ex"_s, u"FormEmail"_s);
    row(Selector, u"Letter2"_s, u"FrmLetter"_s);
    row(Selector, u"lrecord"_s, u"FrmLetterRecord"_s);
    row(Selector, u"Edit"_s, u"FormMain"_s);
    row(Hits, u"FullView"_s, u"FullView"_s);
    row(Hits, u"Email2"_s, u"FormEmail"_s);
}

void ContactToolsTest::handsOver()
{
    QFETCH(int, kind);
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    trigger(id, Kind(kind));
    const support::TargetScreen* target = m_fixture->target(form);
    QCOMPARE(target->contacts + target->recipients, QList<qint64>{2});
    QCOMPARE(m_fixture->shared.selectedContactId, 2);
    QCOMPARE(m_fixture->shared.selectedContactName, u"Bob"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList{form});
}

void ContactToolsTest::nothingSelected_data()
{
    handsOver_data();
    QTest::newRow("short message") << int(View) << u"SMS"_s << u"frmSms"_s;
    QTest::newRow("delete") << int(Selector) << u"Delete"_s << u"FormMain"_s;
}

// None, and in a list one with a blank name; a search says nothing.
void ContactToolsTest::nothingSelected()
{
    QFETCH(int, kind);
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    m_fixture->execute(u"insert into cnt_main (Name) values (' ')"_s);
    m_name.clear();
    for (const qint64 chosen : {0, 4}) {
        if (kind == View && chosen != 0)
            break;
        m_id = chosen;
        if (kind != Hits)
            m_fixture->boxes.expect(u"Record not selected"_s);
        trigger(id, Kind(kind));
    }
    QCOMPARE(
        m_fixture->boxes.shown.value(0), kind == Hits ? QString() : u"information: Record not selected"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList());
    QVERIFY(!m_fixture->shared.EditRequested);
    QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).size(), 4);
}

// The first of two with one name; one with an apostrophe breaks the look-up.
void ContactToolsTest::goesByTheNameWhereItIsTold()
{
    m_name = u"Ann"_s;
    m_id = 3;
    m_fixture->addTarget(u"FrmDialer"_s);
    trigger(u"Call"_s);
    QCOMPARE(m_fixture->target(u"FrmDialer"_s)->contacts, QList<qint64>{1});
    QCOMPARE(m_fixture->shared.selectedContactId, 1);
    m_name = u"O'Brien"_s;
    m_fixture->book.expectFailure(u"O'Brien"_s);
    m_fixture->boxes.expect(u"Record not selected"_s);
    trigger(u"Call"_s);
}

// A card, the pages, and in a screen that does not tell the name everything else.
void ContactToolsTest::goesByTheIdElsewhere()
{
    m_fixture->execute(u"insert into cnt_main (Name, Company) values (\"O'Brien\", 'Right')"_s);
    m_fixture->addTarget(u"FrmContacts"_s);
    m_fixture->addTarget(u"FrmLetter"_s);
    m_name = u"O'Brien"_s;
    m_id = 4;
    m_fixture->boxes.expect(u"VCF File Saved on C:\\OVUserFiles\\VCF"_s);
    trigger(u"SaveasVCF"_s);
    QCOMPARE(filesIn(u"C:\\OVUserFiles\\VCF"_s), QStringList{u"O'Brien.vcf"_s});
    m_name = u"Ann"_s;
    m_id = 3;
    trigger(u"BriefView"_s);
    QCOMPARE(m_fixture->target(u"FrmContacts"_s)->contacts, QList<qint64>{3});
    m_screen.reset();
    m_tellsName = false;
    trigger(u"Letter"_s);
    QCOMPARE(m_fixture->target(u"FrmLetter"_s)->contacts, QList<qint64>{3});
}

void ContactToolsTest::findAndReplaceKnowsItsTable()
{
    m_fixture->screens.add<views::FrmFind>(u"FrmFind"_s);
    core::ContactTools& made = tools();
    auto* menu = new QMenu(m_screen.get());
    made.addReplaceMenu(menu);
    QStringList fields;
    for (QAction* row : widgets::child<QMenu>(menu, u"MenuReplace"_s)->actions()) {
        row->trigger();
        auto* combo = widgets::child<QComboBox>(m_fixture->screens.find(u"FrmFind"), u"Combo1"_s);
        fields << combo->itemText(0) + QString::number(combo->count());
        combo->window()->hide();
    }
    QCOMPARE(fields, (QStringList{u"Type5"_s, u"Date3"_s, u"Type5"_s, u"From29"_s}));
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

// A book without the selector has the full view for it.
void ContactToolsTest::hitGoesToThePageOfTheSelector()
{
    m_fixture->addTarget(u"FullView"_s);
    trigger(u"OpenHit"_s, Hits);
    QCOMPARE(m_fixture->target(u"FullView"_s)->contacts, QList<qint64>{2});
    m_fixture->addTarget(u"frmSelector"_s);
    trigger(u"OpenHit"_s, Hits);
    QCOMPARE(m_fixture->target(u"frmSelector"_s)->pages, QStringList{u"Search"_s});
    QCOMPARE(m_fixture->target(u"FullView"_s)->contacts, QList<qint64>{2});
}

void ContactToolsTest::editOfAContact_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("known");
    QTest::newRow("view") << int(View) << u"EditDetails"_s << true;
    QTest::newRow("view, gone meanwhile") << int(View) << u"EditDetails"_s << false;
    QTest::newRow("selector") << int(Selector) << u"Edit"_s << true;
    QTest::newRow("selector, gone meanwhile") << int(Selector) << u"Edit"_s << false;
}

// By the row, whatever the name, and only a list can be heard.
void ContactToolsTest::editOfAContact()
{
    QFETCH(int, kind);
    QFETCH(QString, id);
    QFETCH(bool, known);
    m_name = u"Ann"_s;
    m_id = known ? 3 : 99;
    m_fixture->addTarget(u"FormMain"_s);
    dynamic_cast<support::TargetScreen*>(m_fixture->screens.load(u"FormMain"))->knowsContacts = known;
    if (!known)
        m_fixture->boxes.expect(u"Error"_s);
    trigger(id, Kind(kind));
    QCOMPARE(m_fixture->target(u"FormMain"_s)->contacts, QList<qint64>{m_id});
    QCOMPARE(m_fixture->shared.EditRequested, known);
    QCOMPARE(m_fixture->sounds.played.size(), known && kind == Selector ? 1 : 0);
}

void ContactToolsTest::deleteAsks_data()
{
    QTest::addColumn<bool>("yes");
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("mailCalls");
    QTest::newRow("no") << false << u"true"_s << QStringList();
    QTest::newRow("yes") << true << u"false"_s << QStringList();
    QTest::newRow("yes, no settings") << true << QString() << QStringList();
    QTest::newRow("yes, and from the mail client") << true << u"true"_s << QStringList{u"remove 2OV"_s};
}

void ContactToolsTest::deleteAsks()
{
    QFETCH(bool, yes);
    QFETCH(QString, setup);
    if (!setup.isEmpty())
        m_fixture->execute(u"insert into cntb_setup (UpdOutllook) values (%1)"_s.arg(setup));
    m_fixture->boxes.expect(u"Are you sure you want to delete this record?"_s,
        yes ? platform::Answer::Yes : platform::Answer::No);
    trigger(u"Delete"_s, Selector);
    QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).contains(u"2"_s), !yes);
    QTEST(m_fixture->mailContacts.calls, "mailCalls");
    QCOMPARE(m_events, yes ? QStringList{u"gone 2"_s} : QStringList());
    QCOMPARE(
        m_fixture->sounds.played, yes ? QStringList{u"\\UserFiles\\Misc\\sound\\Del.wav"_s} : QStringList());
}

void ContactToolsTest::filterComesBackToTheCaller_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    QTest::newRow("view") << int(View) << u"CommonFilter"_s << u"frmFilter"_s;
    QTest::newRow("selector") << int(Selector) << u"ID_Filter"_s << u"frmFilter"_s;
    QTest::newRow("selector, menu") << int(Selector) << u"CommonFilter"_s << u"frmFilter"_s;
    QTest::newRow("selector, tabs") << int(Selector) << u"TabFilter"_s << u"frmTabFilter"_s;
}

void ContactToolsTest::filterComesBackToTheCaller()
{
    QFETCH(int, kind);
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    trigger(id, Kind(kind));
    QCOMPARE(m_events, QStringList{u"reset before "_s});
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
        = u"1 VCF files could not be written. A contact whose name can not be the name of a file has none."
          "\n\nTea/Coffee"_s;
    m_fixture->boxes.expect(u"VCF File Saved on C:\\Desktop\n\nFiles written: 2"_s + kTwoAnns);
    m_fixture->boxes.expect(refusal);
    trigger(u"SaveToDesktopAll"_s);
    QCOMPARE(filesIn(u"C:\\Desktop"_s).size(), 2);
    m_id = 4;
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

void ContactToolsTest::textsGoToTheDesktop()
{
    m_fixture->boxes.expect(u"File saved successfully"_s);
    trigger(u"SaveRecordText"_s);
    QCOMPARE(filesIn(u"C:\\Desktop"_s), QStringList{u"Details of   Bob.txt"_s});
    m_fixture->boxes.expect(u"File saved on C:\\Desktop\\All Contact Address.txt"_s);
    trigger(u"SaveAllText"_s);
    QCOMPARE(filesIn(u"C:\\Desktop"_s).first(), u"All Contact Address.txt"_s);
    m_fixture->execute(u"update cnt_main set Name='Tea/Coffee' where id=2"_s);
    m_name = u"Tea/Coffee"_s;
    m_fixture->boxes.expect(
        u"The file was not written: a contact whose name can not be the name of a file has none."_s);
    trigger(u"SaveRecordText"_s);
    m_fixture->execute(u"delete * from cnt_main"_s);
    for (const QString& id : {u"SaveRecordText"_s, u"SaveAllText"_s}) {
        m_fixture->boxes.expect(u"Record not selected"_s);
        trigger(id);
    }
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
