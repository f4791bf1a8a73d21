#include <QtTest>
#include <QtWidgets>

#include "editor/text_document.h"
#include "editor/text_editor.h"
#include "formats/rtf_reader.h"
#include "support/disk.h"
#include "support/person.h"
#include "support/recording_services.h"

using namespace Qt::StringLiterals;
using formats::RichText;
using Align = formats::TextParagraph::Align;
using List = formats::TextParagraph::List;

namespace {

/// An editor in a window that has keys of its own.
struct Desk {
    Desk()
    {
        editor.setSpeller(&speller);
        editor.setWordSource([](const QString& prefix) {
            QStringList words{u"Regards"_s, u"Regarding"_s, u"Thanks"_s};
            words.removeIf(
                [&](const QString& each) { return !each.startsWith(prefix, Qt::CaseInsensitive); });
            return words;
        });
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(&editor);
        for (const QKeySequence key :
            {Qt::CTRL | Qt::Key_B, Qt::CTRL | Qt::Key_F, QKeyCombination(Qt::Key_Escape)})
            QObject::connect(new QShortcut(key, &window), &QShortcut::activated, [this] { ++windowKeys; });
        window.resize(700, 500);
        window.show();
        window.activateWindow();
        editor.setFocus();
        QCoreApplication::processEvents();
    }

    QTextEdit& field() { return editor.field(); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.windowHandle(), Qt::Key(key), modifiers);
    }
    void keys(const QString& text)
    {
        for (const QChar letter : text)
            QTest::keyClick(window.windowHandle(), letter.toLatin1());
    }
    void show(const QString& text)
    {
        editor.setText(RichText::fromPlain(text));
        field().moveCursor(QTextCursor::End);
    }
    /// The words of a paragraph that bear a wave.
    QString marked(int paragraph = 0)
    {
        QTest::qWait(1);
        const QTextBlock block = field().document()->findBlockByNumber(paragraph);
        QStringList words;
        for (const auto& range : block.layout()->formats()) {
            if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline)
                words << block.text().mid(range.start, range.length);
        }
        return words.join(u' ');
    }
    /// Chooses from the menu of the word at the caret; what it begins with.
    QString choose(const QString& entry)
    {
        QString first;
        QTimer::singleShot(0, &window, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            first = menu->actions().constFirst()->text();
            for (QAction* action : menu->actions()) {
                if (action->text() == entry)
                    menu->setActiveAction(action);
            }
            QTest::keyClick(menu, menu->activeAction() ? Qt::Key_Return : Qt::Key_Escape);
        });
        QContextMenuEvent event(
            QContextMenuEvent::Keyboard, field().cursorRect().center(), field().mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&field(), &event);
        return first;
    }

    support::FixedSpeller speller;
    QWidget window;
    editor::TextEditor editor;
    int windowKeys = 0;
};

RichText allLooks()
{
    return {{{{{u"a\tb "_s}, {u"all"_s, {true, true, true, true, u"DejaVu Serif"_s, 13.5, 0xff102030}},
                 {u" x\ny"_s}}},
        {{{u"middle"_s}}, Align::Center}, {}, {{{u"1"_s}}, Align::Left, List::Numbers},
        {{{u"in"_s}}, Align::Left, List::Bullets, 1},
        {{{u"2"_s, {.color = 0xff000000}}}, Align::Right, List::Numbers},
        {{{u"in"_s}}, Align::Justified, List::None, 3}, {}}};
}

} // namespace

class TextEditorTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksComeBackAndAreCopied()
    {
        Desk desk;
        desk.editor.setText(allLooks());
        QVERIFY(desk.editor.text() == allLooks() && !desk.editor.isModified());
        desk.key(Qt::Key_A, Qt::ControlModifier);
        desk.key(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(*formats::readRtf(QApplication::clipboard()->mimeData()->data(u"text/rtf"_s)) == allLooks());
        desk.editor.setText({});
        desk.key(Qt::Key_V, Qt::ControlModifier);
        QVERIFY(desk.editor.text() == allLooks());
        desk.key(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(desk.editor.text().isEmpty());
        desk.key(Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!desk.editor.text().isFormatted());
    }

    // Neither this computer nor another one is asked for what a text names.
    void pastedPagesBringNothingAlong()
    {
        const QTemporaryDir folder;
        const QString picture = support::put(folder.filePath(u"a.png"_s));
        const QString style = support::put(folder.filePath(u"a.css"_s), "p { color: #ff0000 }");
        QMimeData page;
        page.setHtml(
            u"<html><head><link rel='stylesheet' href='%2'></head><body><p>one<img src='%1'> <b>two</b></p><ul><li>three"_s
                .arg(QUrl::fromLocalFile(picture).toString(), QUrl::fromLocalFile(style).toString()));
        const RichText text = editor::textOf(page);
        QCOMPARE(text.plain(), u"one two\nthree"_s);
        QVERIFY(text.paragraphs[0].runs[0].style == formats::CharStyle());
        QVERIFY(text.paragraphs[0].runs[1].style.isBold && text.paragraphs[1].list == List::Bullets);
    }

    void keysOfTheFieldAreItsOwn()
    {
        Desk desk;
        desk.show(u"plain"_s);
        desk.key(Qt::Key_A, Qt::ControlModifier);
        desk.key(Qt::Key_B, Qt::ControlModifier);
        QVERIFY(desk.editor.text().paragraphs[0].runs[0].style.isBold);
        desk.key(Qt::Key_B, Qt::ControlModifier);
        QVERIFY(!desk.editor.text().isFormatted());
        desk.key(Qt::Key_F, Qt::ControlModifier);
        QVERIFY(desk.editor.findChild<QLineEdit*>(u"txtFind"_s)->hasFocus());
        desk.key(Qt::Key_Escape);
        QVERIFY(desk.field().hasFocus());
        QCOMPARE(desk.windowKeys, 0);
        desk.key(Qt::Key_Escape);
        QCOMPARE(desk.windowKeys, 1);
    }

    void listsByToolAndKey()
    {
        Desk desk;
        desk.keys(u"a"_s);
        desk.editor.findChild<QAction*>(u"Numbers"_s)->trigger();
        desk.key(Qt::Key_Return);
        desk.key(Qt::Key_Tab);
        desk.keys(u"b"_s);
        desk.key(Qt::Key_Return);
        desk.key(Qt::Key_Return); // An empty item comes out by one step, then out of the list.
        desk.keys(u"c"_s);
        desk.key(Qt::Key_Return);
        desk.key(Qt::Key_Backspace);
        desk.keys(u"d"_s);
        const auto paragraphs = desk.editor.text().paragraphs;
        QStringList lies;
        for (const auto& each : paragraphs)
            lies << each.plain() + QString::number(int(each.list)) + QString::number(each.indent);
        QCOMPARE(lies.join(u' '), u"a20 b21 c20 d00"_s);
    }

    void offeredWords_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::newRow("the stop takes the word") << u"Dear reg."_s << u"Dear Regards"_s;
        QTest::newRow("begun with a capital") << u"Reg. x"_s << u"Regards x"_s;
        QTest::newRow("what is a word can end a sentence") << u"Than. So"_s << u"Than. So"_s;
        QTest::newRow("typed on") << u"Regiment."_s << u"Regiment."_s;
        QTest::newRow("closed, then a sentence ends") << u"Re^g."_s << u"Reg."_s;
        QTest::newRow("closed for one word only") << u"Re^g reg."_s << u"Reg Regards"_s;
        QTest::newRow("Enter is a new line") << u"Reg/x"_s << u"Reg\nx"_s;
        QTest::newRow("chosen, Enter takes it") << u"Regv/"_s << u"Regarding"_s;
        QTest::newRow("a word that cannot stay as it is") << u"Thanv."_s << u"Thanks"_s;
    }

    void offeredWords()
    {
        QFETCH(QString, typed);
        Desk desk;
        desk.speller.faults = {{u"reg"_s, {}}, {u"Reg"_s, {}}, {u"Re"_s, {}}, {u"re"_s, {}}};
        for (const QChar letter : typed) {
            if (letter == u'^')
                desk.key(Qt::Key_Escape);
            else if (letter == u'v')
                desk.key(Qt::Key_Down);
            else if (letter == u'/')
                desk.key(Qt::Key_Return);
            else
                desk.keys(letter);
        }
        QTEST(desk.editor.plainText(), "text");
        QCOMPARE(desk.windowKeys, 0);
    }

    void unknownWordsAreMarkedAndMended()
    {
        Desk desk;
        desk.speller.faults = {{u"lettr"_s, {u"letter"_s, u"latter"_s}}, {u"Orvane"_s, {}}};
        desk.show(u"lettr 4you http://lettr"_s);
        QCOMPARE(desk.marked(), u"lettr"_s);
        desk.keys(u" Orvane"_s);
        QCOMPARE(desk.marked(), u"lettr"_s); // It may not be whole yet.
        desk.key(Qt::Key_Home);
        QCOMPARE(desk.marked(), u"lettr Orvane"_s);
        desk.editor.setModified(false);
        QCOMPARE(desk.choose(u"latter"_s), u"letter"_s);
        QCOMPARE(desk.editor.plainText(), u"latter 4you http://lettr Orvane"_s);
        desk.key(Qt::Key_Z, Qt::ControlModifier);
        desk.key(Qt::Key_End);
        desk.speller.stores = false;
        desk.choose(u"Add to dictionary"_s);
        QVERIFY(support::isTold(u"could not be added"_s));
        desk.speller.stores = true;
        desk.choose(u"Add to dictionary"_s);
        QCOMPARE(desk.marked(), u"lettr"_s);
        desk.key(Qt::Key_F7);
        support::click(&desk.editor, u"cmdChangeAll"_s);
        QCOMPARE(desk.editor.plainText(), u"letter 4you http://letter Orvane"_s);
        QVERIFY(support::isTold(u"The whole text is checked."_s));
    }

    void longTextsCostWhatIsSeen()
    {
        Desk desk;
        desk.speller.faults = {{u"lettr"_s, {}}};
        QString text;
        while (text.size() < 1'000'000)
            text += u"some words of a lettr and more of them, and so on\n"_s;
        QElapsedTimer clock;
        clock.start();
        desk.show(text);
        QCOMPARE(desk.marked(desk.field().document()->blockCount() - 3), u"lettr"_s);
        QCOMPARE(desk.marked(5000), QString());
        QVERIFY2(desk.speller.checked < 5000, "words that nobody sees");
        QVERIFY(clock.elapsed() < 5000 && !desk.editor.isModified());
    }

    void coloursCanBeReadInTheDark()
    {
        Desk desk;
        QPalette dark = desk.window.palette();
        dark.setColor(QPalette::Base, u"#1b1e24"_s);
        desk.window.setPalette(dark);
        desk.editor.setText(allLooks());
        desk.marked();
        const auto ranges = desk.field().document()->begin().layout()->formats();
        QCOMPARE(ranges.size(), 1);
        QVERIFY(ranges[0].format.foreground().color().lightnessF() > 0.5F);
        QVERIFY(desk.editor.text() == allLooks());
    }

    void findAndReplace()
    {
        Desk desk;
        desk.show(u"One two\none"_s);
        desk.key(Qt::Key_F, Qt::ControlModifier);
        support::type(&desk.editor, u"txtFind"_s, u"one"_s);
        desk.key(Qt::Key_Return);
        QVERIFY(support::isTold(u"1 of 2"_s));
        support::type(&desk.editor, u"txtReplace"_s, u"one more"_s);
        support::click(&desk.editor, u"cmdReplaceAll"_s);
        QCOMPARE(desk.editor.plainText(), u"one more two\none more"_s);
        desk.field().setFocus();
        desk.key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(desk.editor.plainText(), u"One two\none"_s);
    }

    void nothingChangesWhatIsOnlyRead()
    {
        Desk desk;
        desk.speller.faults = {{u"lettr"_s, {u"letter"_s}}};
        desk.show(u"lettr"_s);
        desk.editor.setReadOnly(true);
        for (QAction* tool : desk.editor.findChild<QWidget*>(u"barText"_s)->actions())
            tool->trigger();
        desk.key(Qt::Key_A, Qt::ControlModifier);
        for (const int key : {int(Qt::Key_B), int(Qt::Key_V), int(Qt::Key_X), int(Qt::Key_Y)})
            desk.key(key, Qt::ControlModifier);
        desk.key(Qt::Key_F7);
        desk.keys(u"x"_s);
        QVERIFY(desk.editor.text() == RichText::fromPlain(u"lettr"_s));
    }
};

QTEST_MAIN(TextEditorTest)
#include "text_editor_test.moc"
