#include "anniversaries/list/frmbday.h"
#include "support/columns.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/day_calendar.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using anniversaries::frmbday;
using widgets::child;

/// The list of birthdays and anniversaries as a person uses it.
class FrmbdayTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->clock.set(QDateTime(QDate(2026, 11, 22), QTime(12, 0)));
        m_fixture->shared.NationalMode = true;
        add(u"Name, First, M_BD, Spouse, Sp_BD, kid1, Kid1_BD, kid2, Kid2_BD, Anniv, category1, category2, "
            "Priority, h_city, b_email2"_s,
            u"'Pat O''Hara', 'Pat', #3/2/1980#, 'D''Arcy', #11/25/1982#, 'Kim', #2/29/2008#, 'Lee', "
            "#12/24/2030#, #11/30/2004#, 'Friends', 'Club', '1', 'Cork', 'pat@example.com'"_s);
        add(u"Name, First, M_BD, Anniv, Spouse, category1, Priority, h_city"_s,
            u"'Ann Lee', 'Ann', #11/25/0100#, #3/1/9999#, 'Bo', 'Work', '4', 'Agra'"_s);
        add(u"Name, First, M_BD, category1, Priority"_s, u"'Cy Ray', 'Cy', #12/31/2026#, 'Work', '2'"_s);
        m_fixture->addTarget(u"FrmLetter"_s);
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    void groups_data()
    {
        support::columns<QString, int, QString, QString>("page", "tab", "heads", "lines");

        const auto row
            = [](const char* name, const QString& page, int tab, const char* heads, const QString& lines) {
                  QTest::newRow(name) << page << tab << QString::fromLatin1(heads) << lines;
              };
        row("birthdays", u"Birthday"_s, 0,
            "Birthday,Priority,Category,Sub Category,Contact Person,Contact,Date of Birth,Age,Copy to "
            "Scheduler",
            u"Kim,Pat O'Hara,D'Arcy,Ann Lee,Lee,Cy Ray"_s);
        row("by category", u"Birthday"_s, 1,
            "Category,Sub Category,Priority,Contact Person,Contcat,Birthday,Date of Birth,Age,Copy to "
            "Scheduler",
            u"[Friends],Kim,Pat O'Hara,D'Arcy,Lee,[Work],Ann Lee,Cy Ray"_s);
        row("by month", u"Birthday"_s, 3,
            "Month,Category,Sub Category,Priority,Contact Person,Contact,Birthday,Date of Birth,Age,Copy to "
            "Scheduler",
            u"[February],Kim,[March],Pat O'Hara,[November],D'Arcy,Ann Lee,[December],Lee,Cy Ray"_s);
        row("by age", u"Birthday"_s, 4,
            "Age,Category,Sub Category,Priority,Contact Person,Contact,Birthday,Date of Birth,Copy to "
            "Scheduler",
            u"[-4],Lee,[0],Cy Ray,[18],Kim,[44],D'Arcy,[46],Pat O'Hara,[1926],Ann Lee"_s);
        row("anniversaries", u"Anniversary"_s, 0,
            "Anniversary,Priority,Category,Sub Category,Contact Person,Spouse", u"Ann Lee,Pat O'Hara"_s);
        row("by city", u"Anniversary"_s, 5,
            "City,Category,Sub Category,Priority,Contcat Person,Spouse,Anniversary",
            u"[Agra],Ann Lee,[Cork],Pat O'Hara"_s);
    }

    void groups()
    {
        QFETCH(QString, page);
        QFETCH(int, tab);
        open(page);
        clickTab(u"ssTabMerge"_s, tab);
        QTRY_VERIFY(!shownLines().contains(u"!!!!!"_s));
        QTEST(heads(), "heads");
        QTEST(shownLines(), "lines");
    }

    void shortView()
    {
        open();
        child<QAction>(m_form, u"Simple"_s)->trigger();
        QCOMPARE(heads(), u"Date,Priority,Contact Person,Contact"_s);
        QCOMPARE(grid()->model()->index(0, 1).data().toString(), u"29 Feb"_s);
        QVERIFY(!child<QWidget>(m_form, u"ssTabMerge"_s)->isVisible());
        QVERIFY(!child<QAction>(m_form, u"TransTask"_s)->isEnabled());
        walkDays(3);
        QCOMPARE(grid()->model()->index(grid()->currentRow(), 1).data().toString(), u"25 Nov"_s);
        clickTab(u"SSActiveTabs1"_s, 1);
        QCOMPARE(shownLines(), u"Ann Lee,Pat O'Hara"_s);
        child<QAction>(m_form, u"Details"_s)->trigger();
        QCOMPARE(heads().count(u','), 5);
    }

    void whatIsHiddenCombines()
    {
        open();
        const auto tool = [this](const QString& id) { child<QAction>(m_form, id)->trigger(); };
        tool(u"ViewNext"_s);
        QCOMPARE(shownLines(), u"D'Arcy,Ann Lee,Lee,Cy Ray"_s);
        QVERIFY(child<QRadioButton>(m_form, u"Opt60"_s)->isChecked());
        tool(u"Priority1"_s);
        QCOMPARE(shownLines(), u"D'Arcy,Lee,Cy Ray"_s);
        support::choose(m_form, u"DBCcat"_s, u"Work"_s);
        QCOMPARE(shownLines(), u"Cy Ray"_s);
        support::clickRow(grid(), 0, 1);
        QCOMPARE(m_form->position(), u"1 Of 1"_s);
        tool(u"Priority2"_s);
        QCOMPARE(shownLines(), QString());
        tool(u"Priority1"_s);
        support::choose(m_form, u"DBCPriority"_s, u"4"_s);
        QCOMPARE(shownLines(), u"Ann Lee"_s);
        for (const QString& combo : {u"DBCcat"_s, u"DBCPriority"_s})
            support::choose(m_form, combo, u"All"_s);
        tool(u"Priority2"_s);
        support::click(m_form, u"OptAll"_s);
        QCOMPARE(grid()->recordCount(), 6);
    }

    void dayOfTheMonth()
    {
        m_fixture->execute(u"update cnt_main set Sp_BD=#3/2/1990# where id=2"_s);
        open();
        auto* month = child<widgets::DayCalendar>(m_form, u"SSMonth1"_s);
        QTRY_COMPARE(month->styleOf(11, 25), u"Birth12"_s); // one of priority 1, one of 4
        QCOMPARE(month->styleOf(3, 2), u"Birth12"_s);
        QCOMPARE(month->styleOf(11, 30), u"Anniv12"_s);
        QCOMPARE(month->styleOf(3, 1), u"Anniv34"_s);
        QCOMPARE(month->styleOf(11, 22), QString());
        walkDays(3);
        QCOMPARE(grid()->currentText(u"name"_s), u"D'Arcy"_s);
        QCOMPARE(m_form->position(), u"4 Of 7"_s);
        const QHash<QString, QString> texts{{u"lblname"_s, u"D'Arcy    (Pat O'Hara)"_s},
            {u"LblDate"_s, u"25 Nov  is Birthday of D'Arcy"_s}, {u"LblBday"_s, u"25-Nov-1982"_s},
            {u"lblAge"_s, u"44"_s}, {u"LblPerson"_s, u"D'Arcy"_s}, {u"lblZodiac"_s, u"Sagittarius"_s},
            {u"lblcity"_s, u"Cork"_s}, {u"lblCateg"_s, u"Friends  Club"_s}};
        for (auto text = texts.cbegin(); text != texts.cend(); ++text)
            QCOMPARE(child<QLabel>(m_form, text.key())->text(), text.value());
        QTest::keyClick(month, Qt::Key_Right); // a day without a birthday
        QCOMPARE(grid()->currentRow(), -1);
        QCOMPARE(child<QLabel>(m_form, u"LblBday"_s)->text(), QString());
        m_form->openPage(u"Anniversary"_s);
        support::clickRow(grid(), 1, 1);
        QCOMPARE(child<QLabel>(m_form, u"lblname"_s)->text(), u"Pat O'Hara & D'Arcy"_s);
        QCOMPARE(child<QLabel>(m_form, u"LblDate"_s)->text(), u"30 Nov  -  Anniversary of Pat O'Hara"_s);
    }

    // The rows of one contact are told apart.
    void followsTheBook()
    {
        open();
        for (const int tab : {0, 1}) {
            clickTab(u"ssTabMerge"_s, tab);
            QTRY_VERIFY(lineOf(u"D'Arcy"_s) >= 0 && !shownLines().contains(u"!!!!!"_s));
            choose(u"D'Arcy"_s);
            m_fixture->execute(u"update cnt_main set h_city='City %1', M_BD=#4/%2/1980# where id=1"_s.arg(
                QString::number(tab), QString::number(tab + 1)));
            m_fixture->screens.tellBookChanged();
            QCOMPARE(grid()->currentText(u"name"_s), u"D'Arcy"_s);
            QCOMPARE(child<QLabel>(m_form, u"lblcity"_s)->text(), u"City %1"_s.arg(tab));
        }
    }

    void copiesToTheScheduler()
    {
        open();
        support::click(m_form, u"SSCommand2"_s);
        m_fixture->boxes.expect(u"Invalid Occurence"_s);
        support::click(m_form, u"cmdOk"_s);
        m_fixture->boxes.expect(u"Invalid Entry"_s);
        support::type(m_form, u"Combo1"_s, u"10"_s);
        support::type(m_form, u"Combo1"_s, u"2"_s);
        tick(u"D'Arcy"_s);
        tick(u"Lee"_s);
        m_fixture->screens.tellBookChanged(); // what is being ticked stays
        m_fixture->boxes.expect(
            u"What you entered was not saved. Do you want to discard it?"_s, platform::Answer::No);
        m_form->openPage(u"Anniversary"_s);
        m_fixture->boxes.expect(u"Selected Birthdays are added to tasks 2 times"_s);
        support::click(m_form, u"cmdOk"_s);
        QVERIFY(!child<QWidget>(m_form, u"Frame7"_s)->isVisible());
        QCOMPARE(m_fixture->book.rows(u"select distinct [Date], person, [desc], b_a_id from ovs_schedular"_s),
            (QStringList{u"24 Dec 2026|Pat O'Hara|Birthday of Lee 24-Dec-2030|Bd1Lee"_s,
                u"24 Dec 2027|Pat O'Hara|Birthday of Lee 24-Dec-2030|Bd1Lee"_s,
                u"25 Nov 2026|Pat O'Hara|Birthday of D'Arcy 25-Nov-1982|Bd1D'Arcy"_s,
                u"25 Nov 2027|Pat O'Hara|Birthday of D'Arcy 25-Nov-1982|Bd1D'Arcy"_s}));
        // Kept: the second child shows the tick of the first, so its own flag is not seen.
        QCOMPARE(flags(), u"0|1|0|1"_s);
        QVERIFY(isTicked(u"D'Arcy"_s) && !isTicked(u"Lee"_s));

        // Who stays ticked gets rows again; who is not loses them and the flag.
        m_fixture->boxes.expect(u"Selected Birthdays are added to tasks 1 times"_s);
        copy(u"1"_s);
        QCOMPARE(m_fixture->book.rows(u"select b_a_id from ovs_schedular"_s), QStringList(3, u"Bd1D'Arcy"_s));
        QCOMPARE(flags(), u"0|1|0|0"_s);
        m_fixture->boxes.expect(u"Selected Birthdays are added to tasks 1 times"_s);
        copy(u"1"_s, u"D'Arcy"_s);
        QCOMPARE(m_fixture->book.firstText(u"select count(*) from ovs_schedular"_s), u"0"_s);

        m_form->openPage(u"Anniversary"_s);
        m_fixture->boxes.expect(u"Selected Anniversarys are added to tasks 9 times"_s);
        copy(u"9"_s, {}, u"Option3"_s);
        QCOMPARE(m_fixture->book.rows(u"select max([desc]), max(b_a_id), count(*) from ovs_schedular"_s),
            QStringList{u"Anniversary of Pat O'Hara D'Arcy|An1Pat O'Hara|9"_s});
    }

    // A list that is not read as a whole has the same groups, and the same days are found in it.
    void longList()
    {
        constexpr int kMany = 5200;
        QList<QStringList> people;
        for (int i = 0; i < kMany; ++i)
            people += QStringList{u"Person %1"_s.arg(i), QDate(1950, 1, 1).addDays(i).toString(Qt::ISODate),
                QString::number(1 + i % 4)};
        QVERIFY(
            m_fixture->book.data().appendRows(u"cnt_main"_s, {u"Name"_s, u"M_BD"_s, u"Priority"_s}, people));
        open();
        child<QAction>(m_form, u"ViewNext"_s)->trigger();
        const int near = grid()->recordCount();
        child<QAction>(m_form, u"Priority1"_s)->trigger();
        child<QAction>(m_form, u"Priority2"_s)->trigger();
        QCOMPARE(grid()->recordCount(), 0);
        for (const QString& tool : {u"ViewNext"_s, u"Priority1"_s, u"Priority2"_s})
            child<QAction>(m_form, tool)->trigger();
        clickTab(u"ssTabMerge"_s, 3);
        QTRY_COMPARE(grid()->rowCount(), kMany + 6 + 12);
        int ofDays = 0;
        QStringList months;
        for (int line = 0; line < grid()->rowCount(); ++line) {
            const QModelIndex month = grid()->model()->index(line, 1);
            const QDate born = QDate::fromString(grid()->textAt(line, u"m_bd"_s).left(10), Qt::ISODate);
            if (grid()->isHeading(line))
                months << month.data().toString();
            else
                QCOMPARE(month.data().toString(), months.constLast());
            const QDate day(2026, born.month(), born.day());
            ofDays += day.isValid() && day >= QDate(2026, 11, 22) ? 1 : 0;
        }
        QCOMPARE(months.size(), 12);
        walkDays(10);
        QCOMPARE(grid()->model()->index(grid()->currentRow(), 7).data().toString(), u"02 Dec"_s);
        QCOMPARE(ofDays, near); // to the end of the year
    }

    // What is out of sight is not written; a tick is.
    void exportsWhatIsSeen()
    {
        m_fixture->execute(u"update cnt_main set cpsmnbd=true where id=3"_s);
        open();
        child<QAction>(m_form, u"ViewNext"_s)->trigger();
        child<QAction>(m_form, u"Priority1"_s)->trigger();
        const QString path = m_fixture->root.filePath(u"days.csv"_s);
        m_fixture->boxes.expectChoice(u"Export"_s, path);
        support::click(m_form, u"SSCommand5"_s);
        QCOMPARE(QFileInfo(m_fixture->boxes.suggested.constFirst()).fileName(),
            u"Contact-Birthday - 22 Nov-2026.xls"_s);
        const QStringList lines = QString::fromUtf8(support::bytesOf(path)).split(u"\r\n"_s);
        QCOMPARE(lines.mid(1),
            (QStringList{u"25 Nov,1,Friends,Club,Pat O'Hara,D'Arcy,25-Nov-1982,44,"_s,
                u"24 Dec,1,Friends,Club,Pat O'Hara,Lee,24-Dec-2030,-4,"_s,
                u"31 Dec,2,Work,,Cy Ray,Cy Ray,31-Dec-2026,0,Y"_s, QString()}));
    }

    // A copy that fails has done nothing, and can be made again.
    void failedCopyKeepsThePanel()
    {
        open();
        m_fixture->book.expectFailure(u"disk"_s);
        m_fixture->boxes.answerAll(platform::Answer::No);
        {
            const support::FullDisk full;
            copy(u"1"_s, u"Kim"_s);
        }
        QVERIFY(child<QWidget>(m_form, u"Frame7"_s)->isVisible() && isTicked(u"Kim"_s));
        QCOMPARE(flags(), u"0|0|0|0"_s);
        QVERIFY(m_form->isTouched());
        QCOMPARE(m_fixture->boxes.shown.size(), 1);
    }

    void wishes()
    {
        open();
        m_fixture->execute(u"insert into cnt_user (Name) values ('Me')"_s);
        m_fixture->boxes.expect(u"Record not selected"_s);
        support::click(m_form, u"cmdSend"_s);
        choose(u"Ann Lee"_s);
        m_fixture->boxes.expect(u"No E-Mail ID for selected person"_s);
        support::click(m_form, u"cmdemail"_s);
        const QString greeting
            = u"Dear  Pat\r\n%1\r\nLove\r\nMe\r\nThis message generated by:\r\nOrvane Smart Organizer "
              "Software\r\nhttps://orvane.org/contacts"_s;
        choose(u"Pat O'Hara"_s);
        support::click(m_form, u"cmdSend"_s);
        choose(u"D'Arcy"_s);
        support::click(m_form, u"cmdSend"_s);
        m_form->openPage(u"Anniversary"_s);
        choose(u"Pat O'Hara"_s);
        support::click(m_form, u"cmdemail"_s);
        const auto& sent = m_fixture->mail.sent;
        QCOMPARE(sent.size(), 2u);
        QCOMPARE(sent[0],
            (platform::MailItem{.To = u"pat@example.com"_s,
                .Subject = u"Birthday Wishes"_s,
                .Body = greeting.arg(u"Many Many Happy Returns of the day - Wish you a happy Birthday"_s)}));
        QCOMPARE(sent[1].Body, greeting.arg(u"Best Wishes to D'Arcy  for a very happy Birthday"_s));
        QCOMPARE(m_fixture->mail.displayed.front().Subject, u"Anniversary Wishes"_s);
        QCOMPARE(
            m_fixture->mail.displayed.front().Body, greeting.arg(u"Best wishes for a happy anniversary"_s));
        m_fixture->mail.refusal = u"the disk is full"_s;
        m_fixture->boxes.expect(u"The message was not written: the disk is full"_s);
        support::click(m_form, u"cmdemail"_s);
    }

    void timedWish()
    {
        open();
        choose(u"Kim"_s); // born on a 29 February
        support::click(m_form, u"cmdLeter"_s);
        QCOMPARE(child<QLineEdit>(m_form, u"dtpSendDate"_s)->text(), u"28-Feb-2026"_s);
        support::type(m_form, u"dtpSendDate"_s, u"1 xyz"_s);
        support::click(m_form, u"CmdSave"_s);
        QVERIFY(m_form->isTouched());
        support::type(m_form, u"dtpSendDate"_s, u"28-Feb-2027"_s);
        support::click(m_form, u"chkAsk"_s);
        support::click(m_form, u"CmdSave"_s);
        QVERIFY(!m_form->isTouched());
        QCOMPARE(m_fixture->book.rows(
                     u"select [Date],confirm,Subject,person,PerId,emailadd,Message from time_email"_s),
            QStringList{
                u"2027-02-28|false|Birthday Wishes|Kim|1|pat@example.com|Dear  Kim\r\nMany Many Happy "
                "Returns of the day - Wish you a happy Birthday"_s});
    }

    void letterAndReport()
    {
        open();
        m_fixture->boxes.expect(u"Record not selected"_s);
        support::click(m_form, u"cmdletter"_s);
        choose(u"D'Arcy"_s);
        support::click(m_form, u"cmdletter"_s);
        QCOMPARE(m_fixture->target(u"FrmLetter"_s)->contacts, QList<qint64>{1});
        QCOMPARE(m_fixture->target(u"FrmLetter"_s)->pages, QStringList{u"Birthday2"_s});
        QCOMPARE(m_fixture->shared.selectedContactName, u"Pat O'Hara"_s);
        // In the short view it goes by the name of who celebrates, which is no contact's.
        child<QAction>(m_form, u"Simple"_s)->trigger();
        choose(u"D'Arcy"_s);
        m_fixture->boxes.expect(u"Record not selected"_s);
        support::click(m_form, u"cmdletter"_s);
        m_fixture->execute(u"insert into ov_setup ([key]) values ('')"_s);
        m_fixture->shell.siblings = {u"Orvane Link & Sync.exe"_s};
        child<QAction>(m_form, u"Print"_s)->trigger();
        QCOMPARE(m_fixture->book.rows(u"select [key], rptMod, rptSubMod from ov_setup"_s),
            QStringList{u"report|Contacts|Birthday"_s});
    }

private:
    void add(const QString& columns, const QString& values)
    {
        m_fixture->execute(u"insert into cnt_main (%1) values (%2)"_s.arg(columns, values));
    }

    void open(const QString& page = u"Birthday"_s)
    {
        m_fixture->screens.add<frmbday>(u"frmbday"_s);
        m_form = static_cast<frmbday*>(m_fixture->screens.load(u"frmbday"));
        m_form->openPage(page);
        m_form->resize(1000, 700);
        m_fixture->screens.show(u"frmbday");
    }

    widgets::HeadingGrid* grid() const { return child<widgets::HeadingGrid>(m_form, u"FGBday"_s); }

    QString shownLines() const
    {
        QStringList lines;
        for (int line = 0; line < grid()->rowCount(); ++line)
            lines << (grid()->isHeading(line)
                    ? u"[%1]"_s.arg(grid()->model()->index(line, 1).data().toString())
                    : grid()->textAt(line, u"name"_s));
        return lines.join(u',');
    }

    QString heads() const { return support::headingsOf(grid()).mid(1).join(u','); } // behind the margin

    void clickTab(const QString& name, int tab)
    {
        auto* tabs = child<QTabBar>(m_form, name);
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
    }

    void walkDays(int days) const
    {
        auto* month = child<widgets::DayCalendar>(m_form, u"SSMonth1"_s);
        month->setFocus();
        for (int day = 0; day < days; ++day)
            QTest::keyClick(month, Qt::Key_Right);
    }

    int lineOf(const QString& name) const { return int(shownLines().split(u',').indexOf(name)); }
    void choose(const QString& name) { support::clickRow(grid(), lineOf(name), 1); }

    int tickColumn() const { return grid()->model()->columnCount() - 1; }
    void tick(const QString& name) { support::clickRow(grid(), lineOf(name), tickColumn()); }
    bool isTicked(const QString& name) const
    {
        return grid()->model()->index(lineOf(name), tickColumn()).data(Qt::CheckStateRole) == Qt::Checked;
    }

    void copy(const QString& times, const QString& ticked = {}, const QString& option = u"Option4"_s)
    {
        support::click(m_form, u"SSCommand2"_s);
        support::click(m_form, option);
        if (!ticked.isEmpty())
            tick(ticked);
        support::type(m_form, u"Combo1"_s, times);
        support::click(m_form, u"cmdOk"_s);
    }

    QString flags() const
    {
        return m_fixture->book
            .rows(u"select iif(cpsmnbd,1,0),iif(cpsspbd,1,0),iif(cpsk1bd,1,0),iif(cpsk2bd,1,0) from cnt_main "
                  "where id=1"_s)
            .constFirst();
    }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    frmbday* m_form = nullptr;
};

QTEST_MAIN(FrmbdayTest)
#include "frmbday_test.moc"
