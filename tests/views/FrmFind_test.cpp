#include "core/handover/refreshable.h"
#include "core/sound_files.h"
#include "support/columns.h"
#include "support/screen_fixture.h"
#include "views/filters/find_columns.h"
#include "views/filters/FrmFind.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using namespace views;
using platform::Answer;
using widgets::child;

namespace {

/// A list that is told to read itself again.
class ListScreen final : public core::Screen, public core::Refreshable {
public:
    using Screen::Screen;
    void load() override { }
    void refreshList(const QString& sql) override { refreshed << sql; }

    QStringList refreshed;
};

} // namespace

/// Find and replace, for each caller that has it.
class FrmFindTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        for (const QString& type : {u"Sent"_s, u"sent"_s, u"Sent twice"_s, QString()})
            m_fixture->execute(u"insert into cnt_emails (Type, person) values ('"_s + type + u"', 'Ann')"_s);
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void everyFieldOfEveryCaller_data()
    {
        QTest::addColumn<int>("fields");
        QTest::newRow("Letters") << 5;
        QTest::newRow("Associations") << 3;
        QTest::newRow("emailtodb") << 29;
        QTest::newRow("FrmEmilRec") << 5;
    }

    // Each statement runs in the book as it is.
    void everyFieldOfEveryCaller()
    {
        QFETCH(int, fields);
        open(QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(combo()->count(), fields);
        QCOMPARE(combo()->currentIndex(), -1);
        for (int field = 0; field < fields; ++field) {
            const QString caption = combo()->itemText(field);
            replace(caption, u"1-Jan-2020"_s, u"2-Jan-2020"_s);
            QVERIFY2(result() == u"Rows changed: 0", qPrintable(caption));
        }
    }

    void wholeValuesOnly()
    {
        open(u"FrmEmailRecord"_s);
        replace(u"Type"_s, u"Sent"_s, u"  Gone "_s);
        QCOMPARE(m_fixture->book.rows(u"select Type from cnt_emails order by id"_s),
            (QStringList{u"Gone"_s, u"Gone"_s, u"Sent twice"_s, u""_s}));
        QCOMPARE(result(), u"Rows changed: 2"_s);
        QCOMPARE(m_fixture->sounds.played, QStringList{core::sounds::Save.toString()});
        replace(u"Person"_s, u"A*"_s, u"x"_s);
        QCOMPARE(result(), u"Rows changed: 0"_s);
        // An empty text finds the empty ones, not those that have none.
        m_fixture->execute(u"insert into cnt_emails (person) values ('null type')"_s);
        replace(u"Type"_s, {}, u"New"_s);
        QCOMPARE(result(), u"Rows changed: 1"_s);
    }

    void asksBeforeItBlanks()
    {
        open({});
        m_fixture->boxes.expect(u"Please select field for find and replace"_s);
        replace({}, u"Sent"_s, u"Gone"_s);
        QCOMPARE(m_fixture->boxes.shown, QStringList{u"stop: Please select field for find and replace"_s});
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            QCOMPARE(m_fixture->book.firstText(u"select Type from cnt_emails order by id"_s), u"Sent"_s);
            m_fixture->boxes.expect(u"This will replace all Sent with blanks"_s, answer);
            replace(u"Type"_s, u"Sent"_s, u"  "_s);
        }
        QCOMPARE(m_fixture->book.firstText(u"select Type from cnt_emails order by id"_s), QString());
        QCOMPARE(m_fixture->sounds.played, QStringList{core::sounds::Save.toString()});
    }

    // Else it would change the table of the caller before.
    void openForTheNextCaller()
    {
        open(u"Letters"_s);
        combo()->setCurrentIndex(0);
        m_find->hide();
        m_fixture->shared.CallerForm = u"Associations"_s;
        m_find->show();
        QCOMPARE(combo()->itemText(1), u"Place"_s);
        QCOMPARE(combo()->currentIndex(), -1);
    }

    void refusedDateChangesNothing()
    {
        m_fixture->execute(u"insert into Cnt_Association ([Date]) values (#15-Jun-2026#)"_s);
        ListScreen* caller = list(u"FrmAssoParty"_s);
        open(u"Associations"_s);
        m_fixture->book.expectFailure(u"set Date = 'soon'"_s);
        replace(u"Date"_s, u"15-Jun-2026"_s, u"soon"_s);
        QCOMPARE(m_fixture->sounds.played, QStringList());
        QCOMPARE(caller->refreshed, QStringList());
        QCOMPARE(result(), QString());
        replace(u"Date"_s, u"15-Jun-2026"_s, u"20 Jun-2026"_s);
        QCOMPARE(
            m_fixture->book.rows(u"select PartyID from Cnt_Association where [Date]=#20-Jun-2026#"_s).size(),
            1);
    }

    void onlyTheCallerReadsAgain_data()
    {
        support::columns<QString, QString, QString, QString>("caller", "form", "field", "sql");
        QTest::newRow("letters") << u"Letters"_s << u"FrmLetterRecord"_s << u"Person"_s << QString();
        QTest::newRow("meetings") << u"Associations"_s << u"FrmAssoParty"_s << u"Place"_s << QString();
        QTest::newRow("mail database") << u"emailtodb"_s << u"FrmEmailtoDb"_s << u"to"_s << QString();
        QTest::newRow("mail")
            << u"x"_s << u"FrmEmilRec"_s << u"Person"_s
            << u"select id,person,category1,type,date,mailtype,mailcateg from cnt_emails  order by person"_s;
    }

    void onlyTheCallerReadsAgain()
    {
        QFETCH(QString, caller);
        QFETCH(QString, form);
        QFETCH(QString, field);
        QFETCH(QString, sql);
        QList<ListScreen*> others;
        for (const QString& each :
            {u"FrmLetterRecord"_s, u"FrmAssoParty"_s, u"FrmEmailtoDb"_s, u"FrmEmilRec"_s}) {
            if (each != form)
                others << list(each);
        }
        open(caller);
        replace(field, u"a"_s, u"b"_s); // nobody is there
        ListScreen* screen = list(form);
        replace(field, u"a"_s, u"b"_s);
        QCOMPARE(screen->refreshed, QStringList{sql});
        for (const ListScreen* other : std::as_const(others))
            QCOMPARE(other->refreshed, QStringList());
    }

    void keys()
    {
        open({});
        combo()->setCurrentIndex(combo()->findText(u"Type"_s));
        auto* find = child<QLineEdit>(m_find, u"txtfind"_s);
        QTest::keyClicks(find, u"Se'nt"_s);
        QTest::keyClicks(child<QLineEdit>(m_find, u"txtrep"_s), u"x"_s);
        QTest::keyClick(find, Qt::Key_Return);
        QCOMPARE(result(), u"Rows changed: 2"_s);
        QSignalSpy closed(m_find, &core::Screen::closeRequested);
        QTest::keyClick(find, Qt::Key_Escape);
        QCOMPARE(closed.size(), 1);
        QCOMPARE(m_fixture->sounds.played.constLast(), core::sounds::Cancel.toString());
    }

private:
    void open(const QString& caller)
    {
        m_fixture->shared.CallerForm = caller;
        m_find = m_fixture->open<FrmFind>(u"FrmFind"_s);
    }

    void replace(const QString& field, const QString& find, const QString& with)
    {
        const int row = combo()->findText(field);
        QVERIFY2(field.isEmpty() || row >= 0, qPrintable(field));
        combo()->setCurrentIndex(row);
        child<QLineEdit>(m_find, u"txtfind"_s)->setText(find);
        child<QLineEdit>(m_find, u"txtrep"_s)->setText(with);
        QTest::mouseClick(child<QPushButton>(m_find, u"CmdSave"_s), Qt::LeftButton);
    }

    QString result() { return widgets::textOf(child<QWidget>(m_find, u"lblResult"_s)); }
    QComboBox* combo() { return child<QComboBox>(m_find, u"Combo1"_s); }
    ListScreen* list(const QString& form)
    {
        m_fixture->screens.add<ListScreen>(form);
        return static_cast<ListScreen*>(m_fixture->screens.load(form));
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    FrmFind* m_find = nullptr;
};

QTEST_MAIN(FrmFindTest)
#include "FrmFind_test.moc"
