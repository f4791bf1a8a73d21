#include "support/screen_fixture.h"
#include "views/selector/selector_tools.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;

/// Each tool of a record selector hands the current contact to its screen, deletes it, or says that there is
/// none.
class SelectorToolsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }
    void toolWithoutItsScreenIsDisabled();
    void handsOver_data();
    void handsOver();
    void nothingSelected_data();
    void nothingSelected();
    void editSounds_data();
    void editSounds();
    void deleteAsks_data();
    void deleteAsks();
    void filterStartsFromAll_data();
    void filterStartsFromAll();

private:
    void trigger(const QString& id);

    std::unique_ptr<support::ScreenFixture> m_fixture;
    std::unique_ptr<QWidget> m_screen;
    SelectorTools* m_tools = nullptr;
    qint64 m_current = 0;
    QStringList m_events;
};

void SelectorToolsTest::init()
{
    m_screen = std::make_unique<QWidget>();
    m_fixture = std::make_unique<support::ScreenFixture>();
    m_fixture->execute(u"insert into cnt_main (Name) values ('Ann')"_s);
    m_fixture->execute(u"insert into cnt_main (Name) values ('Bob')"_s);
    m_fixture->execute(u"insert into cnt_main (Name) values (' ')"_s);
    m_tools = nullptr;
    m_current = 2;
    m_events.clear();
}

/// The tools are made at the first use, when the targets of the test are known.
void SelectorToolsTest::trigger(const QString& id)
{
    if (!m_tools) {
        m_tools = new SelectorTools(m_fixture->context,
            {.callerForm = u"frmSelector"_s,
                .currentId = [this] { return m_current; },
                .beforeFilter
                = [this] { m_events << u"reset before "_s + m_fixture->frame.placed.join(u","_s); }},
            m_screen.get());
        connect(m_tools, &SelectorTools::contactDeleted, this,
            [this](qint64 gone) { m_events << u"gone "_s + QString::number(gone); });
    }
    m_tools->action(id)->trigger();
}

void SelectorToolsTest::toolWithoutItsScreenIsDisabled()
{
    m_fixture->addTarget(u"FrmDialer"_s);
    trigger(u"Simple"_s);
    for (const QString& id : {u"Caller"_s, u"Delete"_s, u"Simple"_s, u"Details"_s})
        QVERIFY2(m_tools->action(id)->isEnabled(), qPrintable(id));
    for (const QString& id : {u"Edit"_s, u"ID_Ex"_s, u"Letter2"_s, u"lrecord"_s, u"ID_Filter"_s,
             u"CommonFilter"_s, u"TabFilter"_s}) {
        QVERIFY2(!m_tools->action(id)->isEnabled(), qPrintable(id));
        QVERIFY(m_tools->action(id)->toolTip().contains(u"\nNot available yet"_s));
    }
    const std::unique_ptr<QMenu> menu(m_tools->makeFilterMenu(nullptr));
    QCOMPARE(
        menu->actions(), (QList<QAction*>{m_tools->action(u"CommonFilter"), m_tools->action(u"TabFilter")}));
}

void SelectorToolsTest::handsOver_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    QTest::newRow("dialer") << u"Caller"_s << u"FrmDialer"_s;
    QTest::newRow("mail") << u"ID_Ex"_s << u"FormEmail"_s;
    QTest::newRow("letter") << u"Letter2"_s << u"FrmLetter"_s;
    QTest::newRow("letter record") << u"lrecord"_s << u"FrmLetterRecord"_s;
    QTest::newRow("entry form") << u"Edit"_s << u"FormMain"_s;
}

void SelectorToolsTest::handsOver()
{
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    trigger(id);
    const support::TargetScreen* target = m_fixture->target(form);
    QCOMPARE(target->contacts + target->recipients, QList<qint64>{2});
    QCOMPARE(m_fixture->shared.selectedContactId, 2);
    QCOMPARE(m_fixture->shared.selectedContactName, u"Bob"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList{form});
}

void SelectorToolsTest::nothingSelected_data()
{
    handsOver_data();
    QTest::newRow("delete") << u"Delete"_s << u"FormMain"_s;
}

void SelectorToolsTest::nothingSelected()
{
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    for (const qint64 current : {0, 3}) { // none, and one with a blank name
        m_current = current;
        m_fixture->boxes.expect(u"Record not selected"_s);
        trigger(id);
    }
    QCOMPARE(m_fixture->boxes.shown.value(0), u"information: Record not selected"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList());
    QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).size(), 3);
}

void SelectorToolsTest::editSounds_data()
{
    QTest::addColumn<bool>("known");
    QTest::newRow("found") << true;
    QTest::newRow("gone meanwhile") << false;
}

void SelectorToolsTest::editSounds()
{
    QFETCH(bool, known);
    m_fixture->addTarget(u"FormMain"_s);
    dynamic_cast<support::TargetScreen*>(m_fixture->screens.load(u"FormMain"))->knowsContacts = known;
    if (!known) {
        m_current = 99;
        m_fixture->boxes.expect(u"Error"_s);
    }
    trigger(u"Edit"_s);
    QCOMPARE(m_fixture->shared.EditRequested, known);
    QCOMPARE(m_fixture->sounds.played,
        known ? QStringList{u"\\UserFiles\\Misc\\sound\\Edit.wav"_s} : QStringList());
}

void SelectorToolsTest::deleteAsks_data()
{
    QTest::addColumn<bool>("yes");
    QTest::addColumn<QString>("setup");
    QTest::addColumn<QStringList>("mailCalls");
    QTest::newRow("no") << false << u"true"_s << QStringList();
    QTest::newRow("yes") << true << u"false"_s << QStringList();
    QTest::newRow("yes, no settings") << true << QString() << QStringList();
    QTest::newRow("yes, and from the mail client") << true << u"true"_s << QStringList{u"remove 2OV"_s};
}

void SelectorToolsTest::deleteAsks()
{
    QFETCH(bool, yes);
    QFETCH(QString, setup);
    if (!setup.isEmpty())
        m_fixture->execute(u"insert into cntb_setup (UpdOutllook) values (%1)"_s.arg(setup));
    m_fixture->boxes.expect(u"Are you sure you want to delete this record?"_s,
        yes ? platform::Answer::Yes : platform::Answer::No);
    trigger(u"Delete"_s);
    QCOMPARE(m_fixture->book.rows(u"select id from cnt_main"_s).contains(u"2"_s), !yes);
    QTEST(m_fixture->mailContacts.calls, "mailCalls");
    QCOMPARE(m_events, yes ? QStringList{u"gone 2"_s} : QStringList());
    QCOMPARE(
        m_fixture->sounds.played, yes ? QStringList{u"\\UserFiles\\Misc\\sound\\Del.wav"_s} : QStringList());
}

void SelectorToolsTest::filterStartsFromAll_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("form");
    QTest::newRow("tool") << u"ID_Filter"_s << u"frmFilter"_s;
    QTest::newRow("menu") << u"CommonFilter"_s << u"frmFilter"_s;
    QTest::newRow("tabs") << u"TabFilter"_s << u"frmTabFilter"_s;
}

void SelectorToolsTest::filterStartsFromAll()
{
    QFETCH(QString, id);
    QFETCH(QString, form);
    m_fixture->addTarget(form);
    trigger(id);
    QCOMPARE(m_events, QStringList{u"reset before "_s});
    QCOMPARE(m_fixture->shared.CallerForm, u"frmSelector"_s);
    QCOMPARE(m_fixture->frame.placed, QStringList{form + u" modally"_s});
}

QTEST_MAIN(SelectorToolsTest)
#include "selector_tools_test.moc"
