#include <QtTest>
#include <QtWidgets>

#include "support/columns.h"
#include "support/person.h"
#include "support/screen_fixture.h"
#include "telephone/replacer/FrmPhReplacer.h"
#include "telephone/replacer/replacement.h"
#include "telephone/search/FrmPhSearch.h"
#include "widgets/fields.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;
using namespace telephone;
using support::click;
using widgets::child;

namespace {

const QString kBefore = u"2212345678901|22|0221|0229|0228|Mumbai|Mumbai North"_s;

} // namespace

/// Changes of numbering plans in all contacts, and the search over all numbers.
class ReplacerTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_f = std::make_unique<support::ScreenFixture>();
        m_f->book.data().keepChanges({{u"cnt_main"_s, u"Name"_s}});
        m_f->execute(
            u"insert into cnt_main (Name,category1,h_ph1,B_Ph1,Mobile,fax,h_std,B_std,W_std,h_city,b_city) "
            "values ('Ann','Work','2212345678901','22','998','22','0221','0229','0228','Mumbai','Mumbai "
            "North')"_s);
        m_f->execute(u"insert into cnt_main (Name,category1,h_ph1,W_Ph1,Mobile,h_city,w_city) values "
                     "('Bo','Home','555','555','2277','Pune','St. John''s')"_s);
    }
    void cleanup() { QCOMPARE(m_f->verify(), QString()); }

    // The row of Ann, then Bo's mobile number.
    void statements_data()
    {
        support::columns<int, QString, QString, QString, QString>("part", "from", "to", "city", "after");
        const auto row = [](const char* name, ReplacedPart part, const QString& from, const QString& to,
                             const QString& after, const QString& city = {}) {
            QTest::newRow(name) << int(part) << from << to << city << after;
        };
        using enum ReplacedPart;
        row("nine characters stay, no fax", Numbers, u"22"_s, u"+9122"_s,
            u"+9122123456789|+9122|0221|0229|0228|Mumbai|Mumbai North;+912277"_s);
        row("only those of a city", Numbers, u"22"_s, u"4"_s,
            u"4123456789|22|0221|0229|0228|Mumbai|Mumbai North;2277"_s, u"mumbai"_s);
        row("a blank behind the old text", Numbers, u"22 "_s, u"4"_s, kBefore + u";2277"_s);
        // The zero in front does not count, and work takes its rest from home, which has changed by then.
        row("codes", Codes, u"022"_s, u"0999"_s,
            u"2212345678901|22|09991|099991|099991|Mumbai|Mumbai North;2277"_s);
        row("codes without a zero", Codes, u"0"_s, u"7"_s,
            u"2212345678901|22|721|71|71|Mumbai|Mumbai North;2277"_s);
        row("a code that is a sum", Codes, u"022-1"_s, u"7"_s, kBefore + u";2277"_s);
        row("a longer city is rewritten whole", Cities, u"Mumb"_s, u"O'Town"_s,
            u"2212345678901|22|0221|0229|0228|O'Town|O'Town;2277"_s);
    }
    void statements()
    {
        QFETCH(int, part);
        QFETCH(QString, from);
        QFETCH(QString, to);
        QFETCH(QString, city);
        QFETCH(QString, after);
        const Replacement wanted{ReplacedPart(part), from, to, city};
        jet::Database& book = m_f->book.data();
        const ReplacementPreview preview = previewOf(book, wanted);
        const QStringList before = texts();
        const Replaced done = replaceAll(book, wanted);
        QVERIFY(done.isStored);
        QCOMPARE(texts().join(u';'), after);
        QCOMPARE(preview.rows, done.rows);
        for (const CutText& cut : preview.cut) {
            const auto stored
                = book.openRecordset(u"select %1 from cnt_main where Name='%2'"_s.arg(cut.column, cut.name))
                      .textAt(0);
            QCOMPARE(cut.after, stored);
            QVERIFY(cut.after != to + cut.before.mid(from.size()));
        }
        if (done.rows > 0) { // all statements are one step
            QCOMPARE(book.undoLastChange(), jet::TakenBack::Done);
            QCOMPARE(texts(), before);
        }
    }

    void previewIsAsked()
    {
        open<FrmPhReplacer>(u"FrmPhReplacer"_s);
        support::type(m_form, u"txtFind"_s, u"22"_s);
        QTRY_COMPARE(shown(), u"22,2212345678901,2277"_s);
        click(m_form, u"cmdreplace"_s); // a blank box: nothing runs
        support::type(m_form, u"txtreplace"_s, u"33"_s);
        answer(u"CmdCancel"_s);
        click(m_form, u"cmdreplace"_s);
        QCOMPARE(m_told,
            u"3 entries will change:;1 of them lose digits at their end:;"
            "Ann,Home, first number,2212345678901,33123456789"_s);
        QCOMPARE(texts().constFirst(), kBefore);
        answer(u"ChkPreview"_s, u"CmdOk"_s);
        click(m_form, u"cmdreplace"_s);
        QVERIFY(texts().constFirst().startsWith(u"33123456789|33|"_s));
        QVERIFY(!child<QCheckBox>(m_form, u"ChkPreview"_s)->isChecked());
        QVERIFY(child<QLineEdit>(m_form, u"txtFind"_s)->text().isEmpty());
        QCOMPARE(shown(), u"33,33123456789,3377,555,998"_s);
        const auto undo = m_f->frame.noticeAction;
        undo();
        QCOMPARE(texts().constFirst(), kBefore);

        // From now on nothing is asked, also not by the next screen.
        support::type(m_form, u"txtFstd"_s, u"022"_s);
        support::type(m_form, u"txtRstd"_s, u"033"_s);
        click(m_form, u"CmdStdReplace"_s);
        QCOMPARE(child<widgets::HeadingGrid>(m_form, u"FGStd"_s)->rowCount(), 2); // equal rows are one
        support::type(m_form, u"txtFcity"_s, u"St. John's"_s);
        support::type(m_form, u"txtRcity"_s, u"Saint John"_s);
        click(m_form, u"CmdCity"_s);
        QCOMPARE(child<widgets::HeadingGrid>(m_form, u"FGCity"_s)->currentText(u"city"_s), QString());
        QCOMPARE(child<widgets::HeadingGrid>(m_form, u"FGCity"_s)->textAt(0, u"city"_s), u"Saint John"_s);
    }

    void whatCanNotBeReplacedIsSaid()
    {
        open<FrmPhReplacer>(u"FrmPhReplacer"_s);
        const auto replace = [&](const QString& from, const QString& to, const QString& box) {
            support::type(m_form, from.section(u'=', 0, 0), from.section(u'=', 1));
            support::type(m_form, to.section(u'=', 0, 0), to.section(u'=', 1));
            m_f->boxes.expect(box);
            click(m_form, u"cmdreplace"_s);
        };
        replace(u"txtFind=9'1"_s, u"txtreplace=2"_s, u"Nothing begins with 9'1, so nothing was changed."_s);
        m_f->book.expectFailure(u"2[1"_s);
        replace(u"txtFind=2[1"_s, u"txtreplace=2"_s,
            u"The old text has an opening bracket [ without a closing one. Brackets stand for one of the "
            u"letters "
            "between them; leave the bracket out."_s);
        QTest::qWait(200); // for the search of what was typed
        replace(u"txtFstd=O22"_s, u"txtRstd=2"_s,
            u"The old code may hold digits only, with + or - between or in front of them."_s);
        // A wildcard works, and the preview says so.
        support::type(m_form, u"txtFind"_s, u"2?7"_s);
        support::type(m_form, u"txtreplace"_s, u"9"_s);
        answer(u"CmdCancel"_s);
        click(m_form, u"cmdreplace"_s);
        QVERIFY(m_told.contains(u"* stands for any letters"));
    }

    void searchOverAllNumbers()
    {
        m_f->execute(u"insert into cnt_user (h_city) values ('Pune')"_s);
        for (const QString& form : {u"FrmDialer"_s, u"frmCntViewer"_s})
            m_f->addTarget(form);
        open<FrmPhSearch>(u"FrmPhSearch"_s);
        QCOMPARE(shown(), u"2277,555"_s); // the mobile number goes by the home city
        support::choose(m_form, u"Combo1"_s, u"All"_s);
        QTRY_COMPARE(shown(), u"22,2212345678901,2277,555,998"_s); // equal numbers are one row
        support::type(m_form, u"DBCombo1"_s, u"27"_s); // anywhere in the number
        QTRY_COMPARE(shown(), u"2277"_s);
        m_f->book.expectFailure(u"*["_s);
        support::type(m_form, u"DBCombo1"_s, u"["_s);
        QTest::qWait(250);
        QCOMPARE(shown(), u"2277"_s);
        support::clickRow(child<widgets::HeadingGrid>(m_form, u"FG2"_s), 0, 1);
        child<QAction>(m_form, u"Call"_s)->trigger();
        click(m_form, u"cmdgoto"_s);
        for (const QString& form : {u"FrmDialer"_s, u"frmCntViewer"_s})
            QCOMPARE(m_f->target(form)->contacts, QList<qint64>{2});
        click(m_form, u"CmdRefresh"_s);
        QCOMPARE(shown(), u"2277,555"_s);

        support::type(m_form, u"txtFind"_s, u"22"_s);
        support::type(m_form, u"txtreplace"_s, u"6"_s);
        answer(u"CmdOk"_s);
        click(m_form, u"cmdreplace"_s);
        QCOMPARE(texts().join(u';'), kBefore + u";677"_s);
        QCOMPARE(shown(), u"555,677"_s);
        support::type(m_form, u"Combo1"_s, u""_s);
        support::type(m_form, u"txtFind"_s, u"6"_s);
        support::type(m_form, u"txtreplace"_s, u"7"_s);
        m_f->boxes.expect(
            u"Choose the city whose numbers change. The replacer changes those of all cities."_s);
        click(m_form, u"cmdreplace"_s);
    }

private:
    template <class Form> void open(const QString& form) { m_form = m_f->open<Form>(form); }
    QStringList texts() const
    {
        return {
            m_f->book.rows(u"select h_ph1,B_Ph1,h_std,B_std,W_std,h_city,b_city from cnt_main where id=1"_s)
                .value(0),
            m_f->book.firstText(u"select Mobile from cnt_main where id=2"_s)};
    }
    QString shown() const
    {
        const auto* grid = child<widgets::HeadingGrid>(m_form, u"FG2"_s);
        QStringList phones;
        for (int row = 0; row < grid->rowCount(); ++row)
            phones << grid->textAt(row, u"phone"_s);
        phones.sort();
        return phones.join(u',');
    }
    /// Reads the preview when it comes, and presses its buttons.
    template <class... Names> void answer(const Names&... names)
    {
        m_told.clear();
        QTimer::singleShot(50, this, [this, pressed = QStringList{names...}] {
            QWidget* dialog = QApplication::activeModalWidget();
            QStringList told;
            for (const QString& label : {u"lblChanges"_s, u"lblPattern"_s, u"lblCut"_s}) {
                if (const auto* found = dialog->findChild<QLabel*>(label))
                    told << found->text();
            }
            if (const auto* cut = dialog->findChild<widgets::HeadingGrid*>(u"FGCut"_s)) {
                QStringList cells;
                for (const QString& column : {u"name"_s, u"where"_s, u"before"_s, u"after"_s})
                    cells << cut->textAt(0, column);
                told << cells.join(u',');
            }
            m_told = told.join(u';');
            for (const QString& name : pressed)
                click(dialog, name);
        });
    }

    std::unique_ptr<support::ScreenFixture> m_f;
    core::Screen* m_form = nullptr;
    QString m_told;
};

QTEST_MAIN(ReplacerTest)
#include "replacer_test.moc"
