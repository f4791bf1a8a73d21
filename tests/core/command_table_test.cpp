#include "core/command_table.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QKeySequence>
#include <QSet>
#include <QStringBuilder>
#include <QTest>

#include "core/shell/tool_bar_table.h"

using namespace Qt::StringLiterals;
using core::Action;
using core::Command;

namespace {

/// An action in one line, so that a table can tell what is expected and a failure shows the difference.
struct Describe {
    QString operator()(const core::OpenScreen& screen) const
    {
        QString text = u"open "_s % screen.form.toString();
        if (!screen.page.isEmpty())
            text += u" on "_s % screen.page;
        if (!screen.title.isEmpty())
            text += u" titled "_s % screen.title;
        if (screen.shown == core::Shown::Modally)
            text += u" modally"_s;
        if (!screen.letterKind.isEmpty())
            text += u" for letters "_s % screen.letterKind;
        if (screen.listBar == core::ListBar::Hidden)
            text += u" without list bar"_s;
        return text;
    }
    QString operator()(const core::OpenLaunchPad& pad) const { return u"launch pad "_s % pad.mode; }
    QString operator()(const core::EditColumns& columns) const { return u"columns "_s % columns.columnSet; }
    QString operator()(const core::ListReport& report) const { return u"list report "_s % report.page; }
    QString operator()(const core::LaunchLinkAndSync& launch) const
    {
        return launch.ask == core::Ask::Yes ? u"ask, then link and sync"_s : u"link and sync"_s;
    }
    QString operator()(const core::StartSibling& sibling) const
    {
        QString text = u"start "_s % sibling.program;
        if (!sibling.key.isEmpty())
            text += u" key "_s % sibling.key;
        if (!sibling.keystroke.isEmpty())
            text += u" keystroke "_s % sibling.keystroke;
        return text;
    }
    QString operator()(const core::RequestReport& report) const { return u"request "_s % report.subModule; }
    QString operator()(const core::TextReport& report) const
    {
        return report.labels ? u"text with labels"_s : u"text without labels"_s;
    }
    QString operator()(const core::OpenFile& file) const { return u"file "_s % file.path; }
    QString operator()(const core::DropDown& drop) const { return u"drop "_s % drop.toolBarPage; }
    QString operator()(const core::OpenHelpFile&) const { return u"help"_s; }
    QString operator()(const core::ShowLinkedRecords&) const { return u"linked records"_s; }
    QString operator()(const core::EndProgram&) const { return u"end"_s; }
    QString operator()(const core::CloseFrame&) const { return u"close"_s; }
    QString operator()(const core::HideListBar&) const { return u"hide list bar"_s; }
    QString operator()(const core::NewContact&) const { return u"new contact"_s; }
    QString operator()(const core::EditContact&) const { return u"edit contact"_s; }
    QString operator()(const core::Restore&) const { return u"restore"_s; }
    QString operator()(const core::Inert&) const { return u"nothing"_s; }
};

QString described(const Action* action)
{
    return action ? std::visit(Describe{}, *action) : u"not listed"_s;
}

QStringList repeated(std::span<const Command> commands)
{
    QSet<QStringView> seen;
    QStringList twice;
    for (const Command& command : commands) {
        if (seen.contains(command.id))
            twice += command.id.toString();
        seen.insert(command.id);
    }
    return twice;
}

QString sourceFile(const QString& name)
{
    return QStringLiteral(ORVANE_SOURCE_DIR) + u'/' + name;
}

bool iconExists(QStringView icon)
{
    return QFile::exists(sourceFile(u"resources/icons/"_s % icon % u".svg"_s));
}

/// The cells of a CSV file of the seed, with quoted fields; no field there holds a line end.
QList<QStringList> csvRows(const QString& name)
{
    QFile file(sourceFile(name));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QList<QStringList> rows;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        QStringList cells{QString()};
        bool quoted = false;
        for (const QChar letter : line) {
            if (letter == u'"')
                quoted = !quoted;
            else if (letter == u',' && !quoted)
                cells += QString();
            else
                cells.last() += letter;
        }
        rows += cells;
    }
    return rows;
}

} // namespace

class CommandTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void toolDoes_data();
    void toolDoes();
    void keyOpens_data();
    void keyOpens();
    void shortCodeDoes_data();
    void shortCodeDoes();
    void launchPadDoes_data();
    void launchPadDoes();
    void dropDownShows_data();
    void dropDownShows();
    void idsAreUnique();
    void columnSetsOfAnotherName();
    void everyToolStandsOnOnePage();
    void everyDropDownPageIsThere();
    void hiddenToolsAreTools();
    void listBarRowsDoSomething();
    void iconsExist();
    void shortcutsAreKeysAndUnique();
    void mnemonicsOfPagesAreUnique();
    void launchPadRowsAreCommands();
};

void CommandTableTest::toolDoes_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("does");
    QTest::newRow("a screen") << u"Edit"_s << u"open FormMain"_s;
    QTest::newRow("the same screen by another id") << u"EditFull"_s << u"open FullView"_s;
    QTest::newRow("case counts") << u"edit"_s << u"not listed"_s;
    QTest::newRow("no id") << u""_s << u"not listed"_s;
    QTest::newRow("business letters")
        << u"BusinessLetterCreator"_s << u"open FrmBusinessLetter for letters Business"_s;
    QTest::newRow("a page and a title")
        << u"ArrangeEmail"_s << u"open FrmEmilRec on E_Mail Category Wise titled Arrange Emails"_s;
    QTest::newRow("a title alone") << u"ArrangeCategory"_s << u"open Frmgmail titled Arrange Letter"_s;
    QTest::newRow("record of letters") << u"Record"_s << u"open Frmgmail on Letter titled Letter Record"_s;
    QTest::newRow("record of mails") << u"ERecord"_s << u"open FrmEmailRecord titled Email Record"_s;
    QTest::newRow("brief page") << u"BriefView"_s << u"open frmSelector on Brief titled Detailed View Form"_s;
    QTest::newRow("FullView1 is a page of the selector")
        << u"FullView1"_s << u"open frmSelector on Full titled Detailed View Form"_s;
    QTest::newRow("birthday list, also a drop-down") << u"ID_BirthdayList"_s << u"open frmbday on Birthday"_s;
    QTest::newRow("anniversaries") << u"Ann"_s << u"open frmbday on Anniversary"_s;
    QTest::newRow("palm") << u"View Palm"_s << u"open FormPalmPilot on Palm"_s;
    QTest::newRow("the wait notice") << u"ViewLetters"_s << u"open Form3"_s;
    QTest::newRow("ID_Help shows the program view, not the help") << u"ID_Help"_s << u"open FrmPrgView"_s;
    QTest::newRow("BHelp shows the help") << u"BHelp"_s << u"help"_s;
    QTest::newRow("launch pad, odd id") << u"E=Mail"_s << u"launch pad From Email"_s;
    QTest::newRow("launch pad, second id") << u"ID_Add2"_s << u"launch pad From Add"_s;
    QTest::newRow("launch pad, other functions") << u"AnnivOther"_s << u"launch pad From Function Other"_s;
    QTest::newRow("columns of the same name") << u"Ph_Work2"_s << u"columns Ph_Work2"_s;
    QTest::newRow("report of the list") << u"Pdt1"_s << u"list report Pdt1"_s;
    QTest::newRow("a report asks") << u"Letter"_s << u"ask, then link and sync"_s;
    QTest::newRow("an import does not ask") << u"LS-OutlookImp/Exp"_s << u"link and sync"_s;
    QTest::newRow("export to Access") << u"ExpAcc"_s << u"start Orvane Link & Sync.exe"_s;
    QTest::newRow("the scheduler") << u"Diary"_s << u"start Orvane Scheduler.exe keystroke ^"_s;
    QTest::newRow("personal records")
        << u"Pr-PhoneCard"_s << u"start Orvane PersonalRecords.exe key userdefined1"_s;
    QTest::newRow("cities") << u"Info-Cities"_s << u"start Orvane Utility.exe key fomwinfo1"_s;
    QTest::newRow("text file") << u"GenerateTextFile"_s << u"text with labels"_s;
    QTest::newRow("text file, values only") << u"GenerateTextFilewolabel"_s << u"text without labels"_s;
    QTest::newRow("product page") << u"OrvaneSuiteProductDetails"_s
                                  << u"file \\UserFiles\\Misc\\Readme\\DescIndex.htm"_s;
    QTest::newRow("links") << u"Linked"_s << u"linked records"_s;
    QTest::newRow("Close ends at once") << u"Close"_s << u"end"_s;
    QTest::newRow("Exit closes the frame") << u"Exit"_s << u"close"_s;
    QTest::newRow("this program") << u"Contacts"_s << u"nothing"_s;
    QTest::newRow("only a drop-down") << u"DList"_s << u"drop ID_List"_s;
    QTest::newRow("a new contact at once") << u"NewContact"_s << u"new contact"_s;
    QTest::newRow("only hides the list bar") << u"IndianCities"_s << u"hide list bar"_s;
    QTest::newRow("restore") << u"RestoreBackup"_s << u"restore"_s;
    QTest::newRow("a group is no tool") << u"ProgramDrop"_s << u"not listed"_s;
}

void CommandTableTest::toolDoes()
{
    QFETCH(QString, id);
    QTEST(described(core::toolAction(id)), "does");
}

void CommandTableTest::keyOpens_data()
{
    QTest::addColumn<QString>("does");
    const auto row = [](const char* key, const QString& does) { QTest::newRow(key) << does; };
    row("frmaddfullrptview", u"open FrmAddFullRptView"_s);
    row("frmselector1", u"open frmSelector1"_s);
    row("frmdialer", u"open FrmDialer"_s);
    row("formemail", u"open FrmEmail"_s);
    row("frmletter", u"open FrmLetter"_s);
    row("frmbday", u"open frmbday modally"_s);
    row("frmfamily", u"open frmfamily"_s);
    row("frmassoparty", u"open FrmAssoParty modally"_s);
    row("formmain1", u"open FormMain1"_s);
    row("formmain", u"open FormMain1"_s);
    row("formnotebook", u"open FormNotebook"_s);
    row("frmcontacts", u"open FrmContacts modally"_s);
    row("frmselector", u"open frmSelector"_s);
    row("formtree2", u"open FormTree2"_s);
    row("frmphlist", u"open FrmPhList"_s);
    row("frmphsearch", u"open FrmPhSearch"_s);
    row("frmemilrec", u"open FrmEmilRec"_s);
    row("frmgmail", u"open Frmgmail"_s);
    row("formmaillist", u"open FormMailList"_s);
    row("frmarrangecateg", u"open frmArrangeCateg"_s);
    row("payee", u"nothing"_s);
    row("view basic", u"open frmSelector without list bar"_s);
    row("formuseredit", u"open FormUserEdit"_s);
    row("fullview", u"open FullView"_s);
    row("turboadd", u"open TurboAdd"_s);
    row("fulllist", u"open FrmListDetails"_s);
    row("previouscall", u"open Form1"_s);
    row("smsbyemail", u"open frmSms"_s);
    row("bulkemail", u"open frmImportEmail"_s);
    row("vcf", u"open FrmVCF"_s);
    row("expaddbook", u"open FrmAddExp"_s);
    row("addlist", u"open frmMultiAdd"_s);
    row("emaillist", u"open FrmEmail"_s);
    row("emailsavetodb", u"open FrmEmailtoDb"_s);
    row("businessadd", u"open FormMainBusiness"_s);
    row("simpleletterviewer", u"open FrmLetterRecord"_s);
    row("simpleemailcreator", u"open FrmEmailCr"_s);
    row("businesslettercreator", u"open FrmBusinessLetter for letters Business"_s);
    row("outlookexpressemails", u"open FrmoutlookExp modally"_s);
    row("report", u"not listed"_s);
    row("FormMain", u"not listed"_s);
}

void CommandTableTest::keyOpens()
{
    QTEST(described(core::keyAction(QString::fromLatin1(QTest::currentDataTag()))), "does");
}

void CommandTableTest::shortCodeDoes_data()
{
    QTest::addColumn<QString>("does");
    QTest::newRow("e") << u"open FrmAddFullRptView on MDI"_s;
    QTest::newRow("f") << u"open frmSelector on Full"_s;
    QTest::newRow("lpersonal") << u"open frmSelector on Personal"_s;
    QTest::newRow("j") << u"columns ID_Name"_s;
    QTest::newRow("imp2") << u"open FrmvCard"_s;
    QTest::newRow("exp6") << u"link and sync"_s;
    QTest::newRow("an") << u"open frmbday on Anniversary"_s;
    QTest::newRow("help") << u"help"_s;
    QTest::newRow("linked") << u"linked records"_s;
    QTest::newRow("zz") << u"not listed"_s;
}

void CommandTableTest::shortCodeDoes()
{
    QTEST(described(core::shortCodeAction(QString::fromLatin1(QTest::currentDataTag()))), "does");
}

void CommandTableTest::launchPadDoes_data()
{
    QTest::addColumn<QString>("does");
    QTest::newRow("Address Book") << u"open FrmOthers"_s;
    QTest::newRow("Replace(Phones,Codes & City names)") << u"open FrmPhReplacer"_s;
    QTest::newRow("Arrange Letters") << u"open Frmgmail titled Arrange Letter"_s;
    QTest::newRow("Diary Single Page") << u"open FrmBookView"_s;
    QTest::newRow("Report - Address Book-Short") << u"request Address Book-Short"_s;
    QTest::newRow("Report - Phone List") << u"request Phone List"_s;
    QTest::newRow("quick add") << u"not listed"_s;
}

void CommandTableTest::launchPadDoes()
{
    QTEST(described(core::launchPadAction(QString::fromLatin1(QTest::currentDataTag()))), "does");
}

void CommandTableTest::dropDownShows_data()
{
    QTest::addColumn<QString>("does");
    QTest::newRow("ID_Add") << u"drop ID_AddM"_s;
    QTest::newRow("ID_Data") << u"drop Data"_s; // the first of two rows counts
    QTest::newRow("ID_Setup1") << u"drop Setup"_s;
    QTest::newRow("ID_Information") << u"drop ID_Inormation"_s;
    QTest::newRow("ID_View") << u"drop ID_AddBook"_s;
    QTest::newRow("Edit") << u"not listed"_s;
}

void CommandTableTest::dropDownShows()
{
    QTEST(described(core::dropDownAction(QString::fromLatin1(QTest::currentDataTag()))), "does");
}

void CommandTableTest::idsAreUnique()
{
    QCOMPARE(repeated(core::toolCommands()), QStringList());
    QCOMPARE(repeated(core::keyCommands()), QStringList());
    QCOMPARE(repeated(core::shortCodeCommands()), QStringList());
    QCOMPARE(repeated(core::launchPadCommands()), QStringList());
    QCOMPARE(repeated(core::dropDownCommands()), QStringList{u"ID_Data"_s});
}

void CommandTableTest::columnSetsOfAnotherName()
{
    QStringList others;
    for (const Command& command : core::toolCommands()) {
        const auto* columns = std::get_if<core::EditColumns>(&command.action);
        if (columns && columns->columnSet != command.id)
            others += QString(command.id % u" "_s % columns->columnSet);
    }
    QCOMPARE(others,
        (QStringList{u"ID_EmailL ID_Emails"_s, u"ID_DetailsL ID_Details"_s, u"ID_Priority Priority"_s,
            u"ID_Product Product"_s}));
}

void CommandTableTest::everyToolStandsOnOnePage()
{
    QHash<QStringView, int> pages;
    for (const shell::ToolGroup& group : shell::toolGroups()) {
        for (const shell::Tool& tool : group.tools)
            ++pages[tool.id];
    }
    QStringList wrong;
    for (const Command& command : core::toolCommands()) {
        if (const int count = pages.take(command.id); count != 1)
            wrong += u"%1 on %2 pages"_s.arg(command.id).arg(count);
    }
    for (const QStringView id : pages.keys())
        wrong += u"%1 without an action"_s.arg(id);
    QCOMPARE(wrong, QStringList());
}

void CommandTableTest::everyDropDownPageIsThere()
{
    QSet<QStringView> pages;
    for (const shell::ToolGroup& group : shell::toolGroups())
        pages.insert(group.page);
    QCOMPARE(pages.size(), qsizetype(shell::toolGroups().size()));

    QStringList missing;
    for (const Command& command : core::dropDownCommands()) {
        const auto page = std::get<core::DropDown>(command.action).toolBarPage;
        if (!pages.contains(page))
            missing += page.toString();
    }
    QCOMPARE(missing, QStringList());
}

void CommandTableTest::hiddenToolsAreTools()
{
    QStringList unknown;
    for (const auto tools : {core::personalTools(), core::homeCountryTools()}) {
        for (const QStringView id : tools) {
            if (!core::toolAction(id))
                unknown += id.toString();
        }
    }
    QCOMPARE(unknown, QStringList{u"ID_FamilyDetails"_s});
}

void CommandTableTest::listBarRowsDoSomething()
{
    QCOMPARE(shell::listBarAreas().size(), std::size_t(10));
    QStringList wrong;
    for (const shell::ListBarArea& area : shell::listBarAreas()) {
        if (area.rows.size() < 5 || area.rows.size() > 9)
            wrong += QString::fromLatin1(area.caption);
        for (const shell::ListBarRow& row : area.rows) {
            const Action* action
                = row.kind == shell::Row::Tool ? core::toolAction(row.id) : core::shortCodeAction(row.id);
            if (!action || std::holds_alternative<core::Inert>(*action))
                wrong += row.id.toString();
        }
    }
    QCOMPARE(wrong, QStringList());
}

void CommandTableTest::iconsExist()
{
    QSet<QStringView> icons;
    for (const shell::ToolGroup& group : shell::toolGroups()) {
        icons.insert(group.icon);
        for (const shell::Tool& tool : group.tools)
            icons.insert(tool.icon);
    }
    for (const shell::ListBarArea& area : shell::listBarAreas())
        icons.insert(area.icon);

    QStringList missing;
    for (const QStringView icon : icons) {
        if (!iconExists(icon))
            missing += icon.toString();
    }
    QCOMPARE(missing, QStringList());
}

void CommandTableTest::shortcutsAreKeysAndUnique()
{
    QSet<QString> seen;
    QStringList wrong;
    for (const shell::ToolGroup& group : shell::toolGroups()) {
        for (const shell::Tool& tool : group.tools) {
            if (tool.shortcut.isEmpty())
                continue;
            const QString text = tool.shortcut.toString();
            const QString key = QKeySequence(text).toString(QKeySequence::PortableText);
            if (key != text || seen.contains(key))
                wrong += text;
            seen.insert(key);
        }
    }
    QCOMPARE(wrong, QStringList());
    QVERIFY(seen.contains(u"F1"_s));
}

void CommandTableTest::mnemonicsOfPagesAreUnique()
{
    QSet<QChar> seen;
    QStringList wrong;
    for (const shell::ToolGroup& group : shell::toolGroups()) {
        const QString caption = QString::fromLatin1(group.caption);
        const QChar key = caption.section(u'&', 1, 1).left(1).toUpper().at(0);
        if (seen.contains(key))
            wrong += caption;
        seen.insert(key);
    }
    QCOMPARE(wrong, QStringList());
}

void CommandTableTest::launchPadRowsAreCommands()
{
    const QList<QStringList> rows = csvRows(u"data/seed/ov_cnt_launch.csv"_s);
    QVERIFY(rows.size() > 1);
    QCOMPARE(rows.first(),
        (QStringList{u"ID"_s, u"Main"_s, u"Title"_s, u"Description"_s, u"Icon"_s, u"Screen"_s}));

    QSet<QString> labels;
    QSet<QString> pages;
    QStringList wrong;
    for (const QStringList& row : rows.sliced(1)) {
        QCOMPARE(row.size(), 6);
        if (!iconExists(row.at(4)))
            wrong += row.at(4);
        if (row.at(1).startsWith(u"Desc"))
            continue;
        const Action* action = core::launchPadAction(row.at(2));
        if (!action || labels.contains(row.at(2)))
            wrong += row.at(2);
        else if (const auto* screen = std::get_if<core::OpenScreen>(action);
                 screen && screen->form != row.at(5))
            wrong += row.at(5);
        labels.insert(row.at(2));
        pages.insert(row.at(1));
    }
    QCOMPARE(wrong, QStringList());
    QCOMPARE(labels.size(), qsizetype(core::launchPadCommands().size()));

    for (const Command& command : core::toolCommands()) {
        if (const auto* pad = std::get_if<core::OpenLaunchPad>(&command.action))
            QVERIFY2(pages.contains(pad->mode.toString()), qPrintable(pad->mode.toString()));
    }
}

QTEST_GUILESS_MAIN(CommandTableTest)
#include "command_table_test.moc"
