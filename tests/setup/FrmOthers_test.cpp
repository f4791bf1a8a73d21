#include "core/setup/FrmOthers.h"
#include "core/setup/setup_lists.h"
#include "core/store/backups.h"
#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"
#include "widgets/record_list.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;
using platform::Answer;
using widgets::child;

namespace {

/// Any other open screen: a list from a vocabulary, a grid, and contacts.
class OtherScreen final : public core::Screen {
public:
    explicit OtherScreen(core::Context& context)
        : Screen(context)
        , combo(new widgets::FilledCombo(this))
        , grid(new widgets::HeadingGrid(this))
    {
        combo->setSource([this] {
            ++readings;
            return QStringList{};
        });
    }
    void load() override { }
    void vocabulariesChanged() override
    {
        Screen::vocabulariesChanged();
        ++changes;
    }
    void bookChanged() override { ++bookChanges; }

    widgets::FilledCombo* combo;
    widgets::HeadingGrid* grid;
    int readings = 0;
    int changes = 0;
    int bookChanges = 0;
};

} // namespace

/// The set-up as a person uses it: what each control stores, what is refused and how it is said.
class FrmOthersTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<support::ScreenFixture>();
        m_fixture->execute(
            u"insert into cntb_setup (categ1,Priority,lbluse2) values ('Family','3','Club & Co')"_s);
        m_fixture->execute(u"insert into ov_setup ([key]) values ('')"_s);
        for (const QString& word : {u"Clerk"_s, u"Cook"_s})
            m_fixture->execute(u"insert into cntb_other (jobtitle) values ('%1')"_s.arg(word));
        for (const QString& pair :
            {u"'Business','Clients'"_s, u"'Business','Dealers'"_s, u"'Family','Parents'"_s}) {
            m_fixture->execute(u"insert into cntb_categories (category1,category2) values (%1)"_s.arg(pair));
            m_fixture->execute(u"insert into cnt_main (category1,category2) values (%1)"_s.arg(pair));
        }
        m_fixture->screens.add<OtherScreen>(u"Other"_s);
        m_other = static_cast<OtherScreen*>(m_fixture->screens.load(u"Other"));
        m_other->show();
    }

    void cleanup() { QCOMPARE(m_fixture->verify(), QString()); }

    // By its own buttons, in its own column; the words of the others stay, but for those in the row of a word
    // that is deleted.
    void everyListStoresItsWords()
    {
        const QStringList lists{u"Purpose||SSCommand41 SSCommand40"_s, u"Response||SSCommand41 SSCommand40"_s,
            u"Relation|RELATIONVERSION|SSCommand22 SSCommand15"_s,
            u"Religion|RELIGIONVERSION|cmdreladd cmdreldel"_s,
            u"Education|EDUCATIONVERSION|cmdstadd cmdeddel"_s, u"Hobbies||CmdHBSave CmdHBDelete"_s,
            u"JobTitle||cmdjtadd cmdjtdel"_s, u"Product||cmdpradd cmdprdel"_s, u"Status||cmdedadd cmdstdel"_s,
            u"AddType||cmdadadd cmdaddel"_s, u"Region|REGIONVERSION|CmdRegionAdd CmdRegionDel"_s,
            u"User1||Command7 Command6"_s, u"User2||Command5 Command4"_s,
            u"User3||SSCommand29 SSCommand27"_s};
        m_fixture->execute(u"delete * from cntb_other"_s);
        m_fixture->execute(u"insert into cnt_main (name,Product,user1) values ('A','Old','Old')"_s);
        const auto tableOf = [](const QString& list) {
            return list.contains(u"VERSION") || list.startsWith(u"Hobbies") ? u"CNTB_OTHER1"_s
                                                                            : u"CNTB_OTHER"_s;
        };
        const auto sharedOf = [](const QString& table) {
            return table == u"CNTB_OTHER" ? u"CompSufix"_s : u"[Email Suffix]"_s;
        };
        for (const QString& list : lists)
            m_fixture->execute(u"insert into %1 (%2,%3) values ('Old','%2')"_s.arg(
                tableOf(list), list.section(u'|', 0, 0), sharedOf(tableOf(list))));
        open(u"Business"_s);
        for (const QString& each : lists) {
            const QString name = each.section(u'|', 0, 0);
            const QString version = each.section(u'|', 1, 1);
            const QString buttons = each.section(u'|', 2);
            const QString table = tableOf(each);
            const QString words = u"select %1 from %2 where %1<>'' order by %1"_s.arg(name, table);
            // Two lists share their box.
            const QString box = name == u"Response" ? u"Purpose"_s : name;
            if (box == u"Purpose")
                click(u"opt"_s + name);
            type(u"txt"_s + box, u"New"_s);
            click(buttons.section(u' ', 0, 0));
            QCOMPARE(rows(u"select %1,%2 from %3 where %1='New'"_s.arg(
                         name, version.isEmpty() ? name : version, table)),
                QStringList{version.isEmpty() ? u"New|New"_s : u"New|C"_s});
            auto* list = child<widgets::RecordList>(m_form, u"lst"_s + box);
            support::clickRow(list, 1);
            type(u"txt"_s + box, u"Older"_s);
            click(buttons.section(u' ', 0, 0));
            QCOMPARE(rows(words), (QStringList{u"New"_s, u"Older"_s}));
            support::clickRow(list, 1);
            click(buttons.section(u' ', 1));
            QCOMPARE(rows(words), QStringList{u"New"_s});
            // Only its own row went.
            const QString shared = u"select count(*) from %1 where %2='%3'"_s;
            for (const QString& other : lists) {
                const QString otherName = other.section(u'|', 0, 0);
                const bool gone = lists.indexOf(other) <= lists.indexOf(each);
                QCOMPARE(rows(shared.arg(tableOf(other), sharedOf(tableOf(other)), otherName)),
                    QStringList{gone ? u"0"_s : u"1"_s});
            }
        }
        QCOMPARE(rows(u"select Product,user1 from cnt_main where name='A'"_s), QStringList{u"Old|Old"_s});
    }

    void words_data()
    {
        // row: chosen before, -1 for a new word
        support::columns<int, QString, QStringList, QString>("row", "typed", "words", "hint");
        const QStringList before{u"Clerk"_s, u"Cook"_s};
        QTest::newRow("new") << -1 << u" Pilot "_s << before + QStringList{u"Pilot"_s} << u"Saved."_s;
        QTest::newRow("changed") << 0 << u"Porter"_s << QStringList{u"Cook"_s, u"Porter"_s} << u"Saved."_s;
        QTest::newRow("nothing") << -1 << u"  "_s << before << u"Type a word first."_s;
        QTest::newRow("emptied") << 0 << u""_s << before << u"Type a word first."_s;
        QTest::newRow("there already") << -1 << u"cook"_s << before << u"The list has this word already."_s;
        QTest::newRow("onto another") << 0 << u"COOK"_s << before << u"The list has this word already."_s;
        QTest::newRow("capitals only")
            << 0 << u"CLERK"_s << QStringList{u"CLERK"_s, u"Cook"_s} << u"Saved."_s;
        QTest::newRow("as it was") << 0 << u"Clerk"_s << before << u"Nothing was changed."_s;
        QTest::newRow("apostrophe") << -1 << u"Men's tailor"_s << before + QStringList{u"Mens tailor"_s}
                                    << u"Saved."_s;
        QTest::newRow("300 characters")
            << -1 << QString(300, u'x') << before + QStringList{QString(255, u'x')} << u"Saved."_s;
    }

    void words()
    {
        QFETCH(const int, row);
        QFETCH(const QString, typed);
        QFETCH(const QStringList, words);
        open(u"Business"_s);
        auto* list = child<widgets::RecordList>(m_form, u"lstJobTitle"_s);
        if (row >= 0)
            support::clickRow(list, row);
        m_other->combo->values();
        type(u"txtJobTitle"_s, typed);
        QTest::keyClick(child<QLineEdit>(m_form, u"txtJobTitle"_s), Qt::Key_Return);
        QTEST(hint(u"lblHintJobTitle"_s), "hint");
        QCOMPARE(rows(u"select jobtitle from cntb_other order by jobtitle"_s), words);
        QCOMPARE(list->rowCount(), int(words.size()));
        const bool saved = hint(u"lblHintJobTitle"_s) == u"Saved.";
        QCOMPARE(m_fixture->sounds.played.size(), saved ? 1 : 0);
        // The list of another open screen is read again, and only then.
        m_other->combo->values();
        QCOMPARE(m_other->readings, saved ? 2 : 1);
        QCOMPARE(m_other->changes, saved ? 1 : 0);
    }

    void deletedWordCanComeBack()
    {
        open(u"Business"_s);
        QVERIFY(!child<QWidget>(m_form, u"cmdjtdel"_s)->isEnabled()); // nothing is chosen
        auto* list = child<widgets::RecordList>(m_form, u"lstJobTitle"_s);
        QCOMPARE(list->rowCount(), 2);
        list->keyboardSearch(u"co"_s);
        QCOMPARE(text(u"txtJobTitle"_s), u"Cook"_s);
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Delete);
        QCOMPARE(rows(u"select jobtitle from cntb_other"_s), QStringList{u"Clerk"_s});
        QCOMPARE(m_fixture->sounds.played, QStringList{u"\\UserFiles\\Misc\\sound\\Del.wav"_s});
        click(u"cmdjtadd"_s);
        QCOMPARE(rows(u"select jobtitle from cntb_other"_s), (QStringList{u"Clerk"_s, u"Cook"_s}));
        click(u"cmdNewJobTitle"_s);
        QCOMPARE(text(u"txtJobTitle"_s), QString());
        QCOMPARE(list->currentRow(), -1);
    }

    void manyWords()
    {
        for (int i = 0; i < 200; ++i)
            m_fixture->execute(
                u"insert into cntb_other (user3) values ('Word %1')"_s.arg(i, 3, 10, QChar(u'0')));
        open(u"User Defined"_s);
        auto* list = child<widgets::RecordList>(m_form, u"lstUser3"_s);
        QCOMPARE(list->rowCount(), 200);
        list->setCurrentRow(150);
        type(u"txtUser3"_s, u"Another"_s);
        click(u"SSCommand29"_s);
        QCOMPARE(list->rowCount(), 200);
        QCOMPARE(list->currentText(u"USER3"_s), u"Another"_s);
        QCOMPARE(rows(u"select user3 from cntb_other where user3='Word 150'"_s), QStringList());
    }

    void userListsBearTheirLabels()
    {
        open(u"User Defined"_s);
        QStringList titles;
        for (const QString& list : {u"lstUser1"_s, u"lstUser2"_s})
            titles << qobject_cast<QGroupBox*>(child<QWidget>(m_form, list)->parentWidget())->title();
        QCOMPARE(titles, (QStringList{u"User 1"_s, u"Club && Co"_s}));
    }

    void savedCallsShareTheirButtons()
    {
        open(u"Saved Calls"_s);
        type(u"txtPurpose"_s, u"Order"_s);
        click(u"SSCommand41"_s);
        click(u"optResponse"_s);
        QCOMPARE(child<widgets::RecordList>(m_form, u"lstPurpose"_s)->rowCount(), 0);
        type(u"txtPurpose"_s, u"Agreed"_s);
        click(u"SSCommand41"_s);
        const QString both = u"select purpose,response from cntb_other where jobtitle is null"_s;
        QCOMPARE(rows(both), (QStringList{u"Order|null"_s, u"null|Agreed"_s}));
        click(u"SSCommand40"_s);
        QCOMPARE(rows(both), QStringList{u"Order|null"_s});
    }

    void switches_data()
    {
        support::columns<QString, QString, QString>("tab", "column", "table");
        const auto row = [](const char* control, const QString& column, const QString& tab = u"Default"_s) {
            QTest::newRow(control) << tab << column << u"cntb_setup"_s;
        };
        row("Check1", u"emiltojrnl"_s);
        row("Check2", u"ltrtojrnl"_s);
        row("Check4", u"AssoToJrnl"_s);
        row("chkAddFav", u"AddFav"_s);
        row("chkUpdOutlook", u"UpdOutllook"_s);
        row("chkDialerCity", u"DialerCity"_s, u"Dialer"_s);
        QTest::newRow("ChkMerge") << u"Default"_s << u"contmerge"_s << u"ov_setup"_s;
    }

    // Each shows what is stored and writes at once; no other switch moves.
    void switches()
    {
        QFETCH(const QString, tab);
        QFETCH(const QString, column);
        QFETCH(const QString, table);
        const QString all
            = u"select emiltojrnl,ltrtojrnl,AssoToJrnl,AddFav,UpdOutllook,DialerCity from cntb_setup"_s;
        const auto on = [&] { return rows(all).constFirst().count(u"true"_s); };
        m_fixture->execute(u"update %1 set %2 = true"_s.arg(table, column));
        open(tab);
        const QString box = QString::fromLatin1(QTest::currentDataTag());
        QVERIFY(child<QCheckBox>(m_form, box)->isChecked());
        click(box);
        QCOMPARE(rows(u"select %1 from %2"_s.arg(column, table)), QStringList{u"false"_s});
        QCOMPARE(on(), 0);
        click(box);
        QCOMPARE(rows(u"select %1 from %2"_s.arg(column, table)), QStringList{u"true"_s});
        QCOMPARE(on(), table == u"ov_setup" ? 0 : 1);
        QCOMPARE(m_fixture->shared.ContMerge, table == u"ov_setup");
    }

    void defaultsAndSuffix()
    {
        open(u"Default"_s);
        QCOMPARE(text(u"DBCombo3"_s) + u'|' + text(u"DBCombo4"_s) + u'|' + text(u"CmbPri"_s) + u'|'
                + text(u"txtltcat"_s),
            u"Family||3|"_s);
        type(u"DBCombo3"_s, u"Business"_s);
        choose(u"DBCombo4"_s, u"Dealers"_s);
        type(u"TxtEMilCat"_s, u"Post-Out"_s);
        m_fixture->boxes.expectChoice(u"Default Path of VCF Files"_s, m_fixture->root.filePath(u"Cards"_s));
        click(u"CmdVCF"_s);
        QCOMPARE(rows(u"select categ1,emilcat from cntb_setup"_s), QStringList{u"Family|null"_s});
        click(u"SSCommand12"_s);
        QCOMPARE(rows(u"select categ1,categ2,Priority,VCFPath from cntb_setup"_s),
            QStringList{u"Business|Dealers|3|C:\\Cards"_s});
        QCOMPARE(rows(u"select ltrcat,ltrsub,emilcat,emilsub,assojcat,assojscat from cntb_setup"_s),
            QStringList{u"Letters|Sent|Post|Out|Asso|Meetings"_s});
        QCOMPARE(text(u"CmbAsso"_s), u"Asso-Meetings"_s);

        type(u"cboPrefix"_s, u"Ltd's"_s);
        QTest::keyClick(child<QComboBox>(m_form, u"cboPrefix"_s)->lineEdit(), Qt::Key_Return);
        QCOMPARE(rows(u"select cmpnysuffix from cntb_setup"_s), QStringList{u"Ltds"_s});
    }

    void storeRules_data()
    {
        support::columns<QString, QString>("option", "stored");
        QTest::newRow("Copy") << u"OpCopy_1"_s << u"1"_s;
        QTest::newRow("Move") << u"OpCopy_2"_s << u"2"_s;
        QTest::newRow("Link") << u"OpCopy_3"_s << u"3"_s;
    }

    void storeRules()
    {
        QFETCH(const QString, option);
        m_fixture->shared.PhotoStoreMode.clear();
        open(u"Default"_s);
        QVERIFY(child<QRadioButton>(m_form, u"OpCopy_3"_s)->isChecked());
        click(option);
        QCOMPARE(rows(u"select cpytoml from cntb_setup"_s), QStringList{u"null"_s});
        click(u"CmdCpyToML"_s);
        QTEST(rows(u"select cpytoml from cntb_setup"_s).join(u';'), "stored");
        QCOMPARE(m_fixture->shared.PhotoStoreMode, QString::fromLatin1(QTest::currentDataTag()));
    }

    void fontChangesOpenGrids()
    {
        m_fixture->execute(u"insert into OV_GridFont (Proj,Font) values ('Scheduler',14)"_s);
        open(u"Default"_s);
        const int before = m_other->grid->font().pointSize();
        const int height = m_other->grid->verticalHeader()->defaultSectionSize();
        click(u"Opts_Large"_s);
        click(u"SSCommand2"_s);
        const QString stored = u"select Proj,Font,Frm,contr from OV_GridFont"_s;
        QCOMPARE(rows(stored), (QStringList{u"Scheduler|14|null|null"_s, u"Contacts|12||Grid"_s}));
        QCOMPARE(m_fixture->shared.GridFontSize, 12);
        QCOMPARE(m_other->grid->font().pointSize(), before + 4);
        QVERIFY(m_other->grid->verticalHeader()->defaultSectionSize() > height);
        QCOMPARE(widgets::HeadingGrid().font().pointSize(), before + 4);
        click(u"Opts_Small"_s);
        click(u"SSCommand2"_s);
        QCOMPARE(rows(stored).size(), 2);
        QCOMPARE(m_other->grid->font().pointSize(), before);
    }

    void newCategory()
    {
        m_fixture->execute(
            u"insert into ov_defcat (project,category,subcat) values ('Contacts','Bank','Loan')"_s);
        m_fixture->execute(u"update cntb_categories set deleted=true where category2='Parents'"_s);
        open(u"Category"_s);
        QCOMPARE(text(u"lblflg"_s), u"View"_s);
        type(u"DBCcat"_s, u"Travel"_s);
        QCOMPARE(text(u"lblflg"_s), u"New"_s);
        type(u"DBCSubCat"_s, u"Hotels"_s);
        click(u"CmdAdd"_s);
        QCOMPARE(text(u"lblflg"_s), u"View"_s);
        QCOMPARE(child<widgets::HeadingGrid>(m_form, u"FG"_s)->currentText(u"category2"_s), u"Hotels"_s);
        choose(u"cboDefCat"_s, u"Bank-Loan"_s);
        click(u"CmdAdd"_s);
        QCOMPARE(rows(u"select category1,category2,deleted from cntb_categories where catid>3"_s),
            (QStringList{u"Travel|Hotels|false"_s, u"Bank|Loan|false"_s}));
        QCOMPARE(m_fixture->sounds.played.size(), 2);
        QCOMPARE(m_other->changes, 2);
        QCOMPARE(m_other->bookChanges, 0);
        // What was retired may come again.
        click(u"CmdNew"_s);
        type(u"DBCcat"_s, u"Family"_s);
        type(u"DBCSubCat"_s, u"Parents"_s);
        click(u"CmdAdd"_s);
        QCOMPARE(rows(u"select deleted from cntb_categories where category2='Parents'"_s),
            (QStringList{u"true"_s, u"false"_s}));
    }

    void refusedCategories_data()
    {
        support::columns<QString, QString, QString, QString>("chosen", "category", "sub", "box");
        QTest::newRow("both empty") << u""_s << u""_s << u" "_s << u"Please fill category and subCategory"_s;
        QTest::newRow("emptied") << u"Dealers"_s << u""_s << u""_s
                                 << u"Please fill category and subCategory"_s;
        QTest::newRow("no category") << u""_s << u""_s << u"Hotels"_s << u""_s;
        QTest::newRow("there already") << u""_s << u"family"_s << u"PARENTS"_s << u""_s;
        QTest::newRow("onto another") << u"Dealers"_s << u"Family"_s << u"Parents"_s << u""_s;
        QTest::newRow("as it was") << u"Dealers"_s << u"Business"_s << u"Dealers"_s << u""_s;
    }

    void refusedCategories()
    {
        QFETCH(const QString, chosen);
        QFETCH(const QString, category);
        QFETCH(const QString, sub);
        QFETCH(const QString, box);
        const QStringList before = rows(u"select * from cntb_categories"_s);
        open(u"Category"_s);
        if (!chosen.isEmpty())
            chooseCategory(chosen);
        type(u"DBCcat"_s, category);
        type(u"DBCSubCat"_s, sub);
        if (!box.isEmpty())
            m_fixture->boxes.expect(box);
        click(u"CmdAdd"_s);
        QCOMPARE(hint(u"lblCatHint"_s).isEmpty(), !box.isEmpty());
        QCOMPARE(rows(u"select * from cntb_categories"_s), before);
        QCOMPARE(m_other->changes, 0);
        // What is stored stands there again.
        click(u"CmdCatCancel"_s);
        QCOMPARE(text(u"DBCSubCat"_s), chosen);
    }

    void renamedCategory()
    {
        open(u"Category"_s);
        chooseCategory(u"Dealers"_s);
        type(u"DBCSubCat"_s, u"Dealer's"_s); // the apostrophe can not be typed
        type(u"DBCcat"_s, u"Trade"_s);
        type(u"DBCSubCat"_s, u"Dealers"_s);
        QCOMPARE(text(u"lblflg"_s), u"Edit"_s);
        const QString question
            = u"This process will globally change all records  with category Business to Trade Do you wish to continue? "_s;
        m_fixture->boxes.expect(question, Answer::No);
        click(u"CmdAdd"_s);
        QCOMPARE(text(u"lblflg"_s), u"Edit"_s);
        QCOMPARE(rows(u"select id from cnt_main where category1='Trade'"_s), QStringList());
        m_fixture->boxes.expect(question, Answer::Yes);
        click(u"CmdAdd"_s);
        QCOMPARE(rows(u"select category1,category2 from cnt_main order by id"_s),
            (QStringList{u"Business|Clients"_s, u"Trade|Dealers"_s, u"Family|Parents"_s}));
        QCOMPARE(rows(u"select category1 from cntb_categories where category2='Dealers'"_s),
            QStringList{u"Trade"_s});
        QCOMPARE(text(u"lblflg"_s) + u' ' + text(u"DBCcat"_s), u"View Trade"_s);
        QCOMPARE(m_other->bookChanges, 1);
        QCOMPARE(m_fixture->boxes.titles, (QStringList{u"Orvane Contacts"_s, u"Orvane Contacts"_s}));
    }

    void deletionAsks()
    {
        open(u"Category"_s);
        m_fixture->boxes.expect(u"First Select Category & Sub-Category"_s);
        click(u"CmdCatDel"_s);
        chooseCategory(u"Clients"_s);
        click(u"CmdCatDel"_s);
        m_fixture->boxes.expect(u"Select choices for deletion"_s);
        click(u"cmddelok"_s);
        QCOMPARE(rows(u"select deleted from cntb_categories where deleted = true"_s), QStringList());
        click(u"optDel1"_s);
        click(u"cmddelok"_s);
        QCOMPARE(
            rows(u"select category2 from cntb_categories where deleted = true"_s), QStringList{u"Clients"_s});
        QCOMPARE(rows(u"select id from cnt_main where category2='Clients'"_s), QStringList{u"1"_s});
        QCOMPARE(child<widgets::HeadingGrid>(m_form, u"FG"_s)->rowCount(), 2);
        QVERIFY(child<QWidget>(m_form, u"cmddelok"_s)->isHidden()
            || !child<QWidget>(m_form, u"cmddelok"_s)->isVisible());
        // Nothing is left chosen from the time before.
        chooseCategory(u"Dealers"_s);
        click(u"CmdCatDel"_s);
        m_fixture->boxes.expect(u"Select choices for deletion"_s);
        click(u"cmddelok"_s);
    }

    void deletionMovesContacts()
    {
        open(u"Category"_s);
        chooseCategory(u"Clients"_s);
        click(u"CmdCatDel"_s);
        QVERIFY(!child<QWidget>(m_form, u"cmbCateg1"_s)->isEnabled());
        click(u"optDel3"_s);
        click(u"cmddelok"_s);
        QVERIFY(!hint(u"lblDelHint"_s).isEmpty()); // no target
        choose(u"cmbCateg1"_s, u"Business"_s);
        choose(u"cmbCateg2"_s, u"Clients"_s);
        click(u"cmddelok"_s);
        QVERIFY(!hint(u"lblDelHint"_s).isEmpty()); // onto itself
        QCOMPARE(rows(u"select catid from cntb_categories"_s).size(), 3);
        choose(u"cmbCateg2"_s, u"Dealers"_s);
        click(u"cmddelok"_s);
        QCOMPARE(rows(u"select category2 from cnt_main"_s),
            (QStringList{u"Dealers"_s, u"Dealers"_s, u"Parents"_s}));
        QCOMPARE(rows(u"select category2 from cntb_categories"_s), (QStringList{u"Dealers"_s, u"Parents"_s}));
        QCOMPARE(m_other->bookChanges, 1);
    }

    // Contacts go without a further question; the copy made before still has them.
    void deletionOfContactsKeepsACopy()
    {
        open(u"Category"_s);
        chooseCategory(u"Clients"_s);
        click(u"CmdCatDel"_s);
        click(u"optDel2"_s);
        click(u"cmddelok"_s);
        QCOMPARE(
            rows(u"select category2 from cnt_main order by id"_s), (QStringList{u"Dealers"_s, u"Parents"_s}));
        QCOMPARE(rows(u"select category2 from cntb_categories"_s), (QStringList{u"Dealers"_s, u"Parents"_s}));
        const QDir folder(m_fixture->root.filePath(u"OVUserFiles/Others/Backup"_s));
        const QString copy = u"Orvanedata-2024-03-15-before-deletion-120000.dll"_s;
        QCOMPARE(folder.entryList(QDir::Files), QStringList{copy});
        jet::Database kept;
        QCOMPARE(kept.open(folder.filePath(copy), jet::Database::Kind::Information),
            jet::Database::OpenResult::Opened);
        QCOMPARE(kept.openRecordset(u"select id from cnt_main where category2='Clients'").count(), 1);
    }

    void noCopyNoDeletion()
    {
        // A file stands where the folder should be.
        QDir(m_fixture->root.path()).mkpath(u"OVUserFiles/Others"_s);
        QFile inTheWay(m_fixture->root.filePath(u"OVUserFiles/Others/Backup"_s));
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        open(u"Category"_s);
        chooseCategory(u"Clients"_s);
        click(u"CmdCatDel"_s);
        click(u"optDel2"_s);
        m_fixture->boxes.expect(
            u"Nothing was deleted: no copy of the address book could be made in "
            u"\"C:\\OVUserFiles\\Others\\Backup\" "
            u"before. Make room on the disk, or see that the folder can be written, and try again."_s);
        click(u"cmddelok"_s);
        QCOMPARE(rows(u"select id from cnt_main"_s).size(), 3);
        QCOMPARE(rows(u"select catid from cntb_categories where deleted = false"_s).size(), 3);
    }

    void treeShowsTheSame()
    {
        m_fixture->execute(u"update cntb_categories set deleted = true where category2='Parents'"_s);
        open(u"Category"_s);
        chooseCategory(u"Dealers"_s);
        click(u"CmdList"_s);
        auto* tree = child<QTreeWidget>(m_form, u"SSTree1"_s);
        QVERIFY(tree->isVisible());
        QCOMPARE(child<QPushButton>(m_form, u"CmdList"_s)->text(), u"List"_s);
        QCOMPARE(tree->topLevelItem(0)->text(0), u"Orvane Contact Category & Subcategory"_s);
        QCOMPARE(tree->topLevelItem(0)->childCount(), 1);
        QCOMPARE(tree->currentItem()->text(0), u"Dealers"_s);
        tree->setCurrentItem(tree->topLevelItem(0)->child(0)->child(0));
        QCOMPARE(text(u"DBCcat"_s) + u'-' + text(u"DBCSubCat"_s), u"Business-Clients"_s);
        click(u"CmdList"_s);
        QCOMPARE(child<widgets::HeadingGrid>(m_form, u"FG"_s)->currentText(u"category2"_s), u"Clients"_s);
    }

    void cities()
    {
        m_fixture->shared.NationalMode = true;
        m_fixture->execute(
            u"insert into cnt_topcities (city,type,priority,default) values ('Pune','National',4,true)"_s);
        m_fixture->execute(
            u"insert into wia_india (city,state,chtype) values ('Mumbai','Maharashtra','M')"_s);
        m_fixture->execute(u"insert into wia_india (city,state) values ('Thane','Maharashtra')"_s);
        m_fixture->execute(u"insert into wia_city (city,[country id],chtype) values ('Paris',7,'M')"_s);
        open(u"City"_s);
        auto* frequent = child<widgets::HeadingGrid>(m_form, u"DataGrid"_s);
        auto* available = child<widgets::RecordList>(m_form, u"lstCities"_s);
        QCOMPARE(text(u"DBCombo1"_s), u"Pune"_s);
        QCOMPARE(available->rowCount(), 1);
        click(u"Check3"_s);
        QCOMPARE(available->rowCount(), 2);
        available->setCurrentRow(1);
        click(u"LblAdd"_s);
        click(u"LblAdd"_s);
        QCOMPARE(rows(u"select city,type,priority,default from cnt_topcities"_s),
            (QStringList{u"Pune|National|4|true"_s, u"Thane|National|5|false"_s}));
        QVERIFY(hint(u"lblCityHint"_s).contains(u"already"));

        frequent->setCurrentRow(0);
        click(u"CmdCityDel"_s);
        QCOMPARE(frequent->rowCount(), 2); // the default city stays
        choose(u"DBCombo1"_s, u"Thane"_s);
        QCOMPARE(rows(u"select city from cnt_topcities where default = true"_s), QStringList{u"Thane"_s});
        frequent->setCurrentRow(0);
        click(u"CmdCityDel"_s);
        QCOMPARE(rows(u"select city from cnt_topcities"_s), QStringList{u"Thane"_s});

        click(u"Option2"_s);
        QCOMPARE(frequent->rowCount(), 0);
        QCOMPARE(available->textAt(0, u"city"_s), u"Paris"_s);
    }

    void dialPrefixes()
    {
        m_fixture->execute(u"update cntb_setup set Prefix2='9',DialerCity=true"_s);
        open(u"Dialer"_s);
        QCOMPARE(text(u"txtprefix2"_s), u"9"_s);
        type(u"txtprefix1"_s, u" 0 "_s);
        type(u"txtprefix3"_s, u"1'2"_s);
        type(u"txtpbx"_s, u"77"_s);
        click(u"SSCommand37"_s);
        QCOMPARE(rows(u"select Prefix1,Prefix2,Prefix3,PBX,DialerCity from cntb_setup"_s),
            QStringList{u"0|9|12|77|true"_s});
    }

private:
    void open(const QString& tab)
    {
        m_form = m_fixture->open<setup::FrmOthers>(u"FrmOthers"_s);
        m_form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_form));
        auto* tabs = child<QTabWidget>(m_form, u"sstab1"_s);
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i) == tab)
                tabs->setCurrentIndex(i);
        }
        QCOMPARE(tabs->tabText(tabs->currentIndex()), tab);
    }

    QString hint(const QString& label) const { return child<QLabel>(m_form, label)->text(); }
    QString text(const QString& control) const { return widgets::textOf(child<QWidget>(m_form, control)); }
    void click(const QString& button) { support::click(m_form, button); }
    void type(const QString& control, const QString& text) { support::type(m_form, control, text); }
    void choose(const QString& combo, const QString& value) { support::choose(m_form, combo, value); }

    void chooseCategory(const QString& sub)
    {
        auto* grid = child<widgets::HeadingGrid>(m_form, u"FG"_s);
        for (int row = 0; row < grid->rowCount(); ++row) {
            if (grid->textAt(row, u"category2"_s) == sub)
                grid->setCurrentRow(row);
        }
        QCOMPARE(grid->currentText(u"category2"_s), sub);
    }

    QStringList rows(const QString& sql) { return m_fixture->book.rows(sql); }

    std::unique_ptr<support::ScreenFixture> m_fixture;
    setup::FrmOthers* m_form = nullptr;
    OtherScreen* m_other = nullptr;
};

QTEST_MAIN(FrmOthersTest)
#include "FrmOthers_test.moc"
