#include "core/command_table.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QKeySequence>
#include <QSet>
#include <QStringBuilder>
#include <QTest>

#include "core/shell/tool_bar_table.h"
#include "core/store/book_schema.h"

using namespace Qt::StringLiterals;
using core::Action;
using core::Command;

namespace {

/// The screen that an action opens, with its page.
QString screenOf(const Action* action)
{
    const auto* screen = action ? std::get_if<core::OpenScreen>(action) : nullptr;
    return screen ? QString(screen->form % u' ' % screen->page).trimmed() : QString();
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

bool iconExists(QStringView icon)
{
    return QFile::exists(QStringLiteral(ORVANE_SOURCE_DIR) % u"/resources/icons/"_s % icon % u".svg"_s);
}

} // namespace

class CommandTableTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // What nobody would guess from the name, and what would be mended by mistake.
    void surprises()
    {
        const std::pair<const Action*, QString> opens[] = {{core::toolAction(u"ID_Help"), u"FrmPrgView"_s},
            {core::toolAction(u"EditFull"), u"FullView"_s},
            {core::toolAction(u"FullView1"), u"frmSelector Full"_s},
            {core::toolAction(u"ID_BirthdayList"), u"frmbday Birthday"_s},
            {core::keyAction(u"formmain"), u"FormMain1"_s}, {core::keyAction(u"formemail"), u"FrmEmail"_s},
            {core::keyAction(u"previouscall"), u"Form1"_s},
            {core::shortCodeAction(u"e"), u"FrmAddFullRptView MDI"_s},
            {core::launchPadAction(u"Arrange Letters"), u"Frmgmail Arrange"_s}};
        for (const auto& [action, screen] : opens)
            QCOMPARE(screenOf(action), screen);
        // Letters count as they are written, and a group is no tool.
        QVERIFY(!core::toolAction(u"edit") && !core::toolAction(u"") && !core::toolAction(u"ProgramDrop"));
        QVERIFY(!core::keyAction(u"FormMain") && !core::launchPadAction(u"quick add"));
        // Close ends at once, where Exit asks; of two rows the first one counts.
        QVERIFY(std::holds_alternative<core::EndProgram>(*core::toolAction(u"Close")));
        QVERIFY(std::holds_alternative<core::CloseFrame>(*core::toolAction(u"Exit")));
        QCOMPARE(std::get<core::DropDown>(*core::dropDownAction(u"ID_Data")).toolBarPage, u"Data");
    }

    void idsAreUnique()
    {
        QCOMPARE(repeated(core::toolCommands()), QStringList());
        QCOMPARE(repeated(core::keyCommands()), QStringList());
        QCOMPARE(repeated(core::shortCodeCommands()), QStringList());
        QCOMPARE(repeated(core::launchPadCommands()), QStringList());
        QCOMPARE(repeated(core::dropDownCommands()), QStringList{u"ID_Data"_s});
    }

    void columnSetsOfAnotherName()
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

    void everyToolStandsOnOnePage()
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

    void everyDropDownPageIsThere()
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

    void hiddenToolsAreTools()
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

    void listBarRowsDoSomething()
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

    void iconsExist()
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

    void shortcutsAreKeysAndUnique()
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

    void mnemonicsOfPagesAreUnique()
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

    void launchPadRowsAreCommands()
    {
        QList<QStringList> rows;
        for (const core::ShippedRows& shipped : core::shippedRows(core::BookPart::Data)) {
            if (shipped.table.compare(u"ov_cnt_launch", Qt::CaseInsensitive) == 0) {
                rows = shipped.rows;
                QCOMPARE(shipped.columns.join(u','), u"ID,Main,Title,Description,Icon,Screen"_s);
            }
        }
        QSet<QString> labels;
        QSet<QString> pages;
        QStringList wrong;
        for (const QStringList& row : rows) {
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
};

QTEST_GUILESS_MAIN(CommandTableTest)
#include "command_table_test.moc"
