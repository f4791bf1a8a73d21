#include "core/shell/frmAbout.h"
#include "core/shell/FrmPrgView.h"
#include "core/shell/program_view_rows.h"
#include "core/shell/tool_bar_table.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using core::OpenScreen;
using widgets::child;

/// What the program says about itself: what it can do, and what it is.
class ProgramViewTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->execute(u"insert into ov_setup ([key]) values ('')"_s);
    }
    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void leavesOutWhatCanNotBeDone()
    {
        const auto forms = [](shell::ProgramUser user, const QString& absent) {
            QStringList all;
            for (const auto& subject : shell::programSubjects(user, [&absent](const core::Action& action) {
                     const auto* open = std::get_if<OpenScreen>(&action);
                     return !open || open->form != absent;
                 })) {
                for (const shell::ProgramRow& row : subject.rows) {
                    const auto* open = std::get_if<OpenScreen>(row.action);
                    all << row.tool->id.toString() + u'>' + (open ? open->form.toString() : QString());
                }
            }
            return all;
        };
        const QStringList all = forms({true, false}, {});
        const auto noneOf = [](const QStringList& rows, std::span<const QStringView> ids) {
            return std::none_of(rows.begin(), rows.end(), [ids](const QString& row) {
                return std::find(ids.begin(), ids.end(), row.section(u'>', 0, 0)) != ids.end();
            });
        };
        QVERIFY(
            noneOf(forms({true, true}, {}), core::personalTools()) && !noneOf(all, core::personalTools()));
        QVERIFY(noneOf(forms({false, false}, {}), core::homeCountryTools())
            && !noneOf(all, core::homeCountryTools()));
        QVERIFY(all.contains(u"BirthdayList>frmbday"_s));
        QCOMPARE(forms({true, false}, u"frmbday"_s).filter(u">frmbday"_s).size(), 0);
        // Tools that only make room, and this list itself.
        QCOMPARE(all.filter(u"ID_AddGray>"_s).size() + all.filter(u"FrmPrgView"_s).size(), 0);
        QVERIFY(all.size() > 60);
    }

    void findsAndOpensByKeys_data()
    {
        support::columns<QString, QString, int>("typed", "opened", "down");
        QTest::newRow("of the tool tip") << u"TWELVE zodiac"_s << u"frmzodiac"_s << 0;
        QTest::newRow("in any order") << u"turbo contacts"_s << u"TurboAdd"_s << 0;
        QTest::newRow("none") << u"zzz"_s << QString() << 0;
        QTest::newRow("markup") << u"<b>"_s << QString() << 0;
        QTest::newRow("the next one") << u"setup"_s << QString(u"*"_s) << 1;
    }
    void findsAndOpensByKeys()
    {
        QFETCH(QString, typed);
        QFETCH(QString, opened);
        QFETCH(int, down);
        open<shell::FrmPrgView>(u"FrmPrgView"_s);
        auto* search = child<QLineEdit>(m_screen, u"txtSearch"_s);
        QTest::keyClicks(search, typed);
        auto* tree = child<QTreeWidget>(m_screen, u"SSTree1"_s);
        QTreeWidgetItem* first = tree->currentItem();
        for (int i = 0; i < down; ++i)
            QTest::keyClick(search, Qt::Key_Down);
        QCOMPARE(tree->currentItem() == first, down == 0);
        QTest::keyClick(search, Qt::Key_Return);
        const auto& performed = m_fixture->frame.performed;
        QCOMPARE(performed.size(), opened.isEmpty() ? 0U : 1U);
        QCOMPARE(child<QPushButton>(m_screen, u"cmdOpen"_s)->isEnabled(), !opened.isEmpty());
        QCOMPARE(support::isTold(u"Nothing in the program is called so."_s), opened.isEmpty());
        if (!opened.isEmpty() && opened != u"*")
            QCOMPARE(std::get<OpenScreen>(performed[0]).form.toString(), opened);
    }

    void opensByAClickAndClearsTheSearch()
    {
        open<shell::FrmPrgView>(u"FrmPrgView"_s);
        const int all = m_screen->position().section(u' ', 0, 0).toInt();
        support::type(m_screen, u"txtSearch"_s, u"duplicator"_s);
        QCOMPARE(m_screen->position(), u"1 found"_s);
        support::click(m_screen, u"cmdOpen"_s);
        QCOMPARE(std::get<OpenScreen>(m_fixture->frame.performed.at(0)).form, u"FrmDuplicator");
        support::type(m_screen, u"txtSearch"_s, u""_s);
        QCOMPARE(m_screen->position(), u"%1 found"_s.arg(all));
        QCOMPARE(child<QTreeWidget>(m_screen, u"SSTree1"_s)->currentItem()->text(0), u"Record Duplicator"_s);
        m_fixture->frame.able = false;
        m_screen->bookChanged();
        QCOMPARE(m_screen->position(), u"0 found"_s);
    }

    void aboutShowsVersionsAndAllLicences()
    {
        open<shell::frmAbout>(u"frmAbout"_s);
        support::click(m_screen, u"cmdCopy"_s);
        const QString copied = QGuiApplication::clipboard()->text();
        QCOMPARE(copied, child<QLabel>(m_screen, u"lblVersion"_s)->text());
        static const QRegularExpression form(
            uR"(^Orvane Contacts \d+\.\d+\.\d+\nQt 6\.\d+\.\d+\nSQLite 3\.\d+\.\d+\n.+ \(\w+\)$)"_s);
        QVERIFY2(form.match(copied).hasMatch(), qPrintable(copied));
        // Each text that the list of what comes from others points to, and the ones beside it, is there.
        QStringList shipped;
        for (const QString& file : QDir(QStringLiteral(ORVANE_SOURCE_DIR "/licenses")).entryList(QDir::Files))
            shipped << file.chopped(4);
        auto* list = child<QListWidget>(m_screen, u"lstLicences"_s);
        QCOMPARE(list->count(), shipped.size() + 2);
        for (int row = 0; row < list->count(); ++row) {
            support::clickRow(list, row);
            QVERIFY2(child<QTextBrowser>(m_screen, u"txtLicence"_s)->toPlainText().size() > 500,
                qPrintable(list->item(row)->text()));
            shipped.removeOne(list->item(row)->text());
        }
        QCOMPARE(shipped, QStringList());
    }

private:
    template <class Form> void open(const QString& name)
    {
        m_screen = m_fixture->open<Form>(name);
        m_screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_screen));
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    core::Screen* m_screen = nullptr;
};

QTEST_MAIN(ProgramViewTest)
#include "program_view_test.moc"
