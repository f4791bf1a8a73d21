#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBrowser>
#include <QtTest>

#include "platform/desktop_boxes.h"
#include "platform/desktop_shell.h"
#include "platform/folder_drive.h"
#include "platform/help_window.h"
#include "support/disk.h"
#include "support/recording_services.h"

using namespace Qt::StringLiterals;
using namespace platform;

class DesktopWindowsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void helpPages()
    {
        for (const auto& [name, html] : {std::pair{u"a.htm"_s, "<a href='b.htm'>b</a>"},
                 std::pair{u"b.htm"_s, "page b <a href='http://x.org/'>x</a>"}})
            support::put(m_folder.filePath(name), html);
        const FolderDrive drive(m_folder.path(), m_folder.path());
        support::RecordingShell shell;
        WindowHelpViewer viewer(drive, shell);
        viewer.openHelp(uR"(\A.HTM)");
        const auto windows = [] {
            QWidgetList found = QApplication::topLevelWidgets();
            found.removeIf([](const QWidget* widget) { return widget->objectName() != "HelpWindow"_L1; });
            return found;
        };
        QCOMPARE(windows().size(), 1);
        QWidget* window = windows().first();
        auto* pages = window->findChild<QTextBrowser*>(u"pages"_s);
        auto* back = window->findChild<QAction*>(u"back"_s);
        QVERIFY(!back->isEnabled());

        window->activateWindow();
        pages->setFocus();
        for (int follow = 0; follow < 2; ++follow) {
            QTest::keyClick(pages, Qt::Key_Tab); // to the link of the page
            QTest::keyClick(pages, Qt::Key_Return);
            QCOMPARE(pages->toPlainText(), u"page b x"_s);
            QCOMPARE(shell.openedAddresses.size(), follow);
        }
        QCOMPARE(shell.openedAddresses, QStringList{u"http://x.org/"_s});
        back->trigger();
        QCOMPARE(pages->toPlainText(), u"b"_s);

        // The help file stands for the built-in pages; this test has none built in, and says so instead of
        // nothing.
        viewer.openHelp(uR"(\UserFiles\Help\OrvaneHelp.chm)");
        QVERIFY(!pages->toPlainText().isEmpty());
        QVERIFY(pages->toPlainText() != u"b"_s);
        QCOMPARE(windows(), QWidgetList{window});
    }

    void boxes()
    {
        DesktopBoxes boxes;
        for (const auto& [button, answer] :
            {std::pair{QMessageBox::Yes, Answer::Yes}, std::pair{QMessageBox::No, Answer::No}}) {
            whenOpen<QMessageBox>([button = button](QMessageBox* box) {
                QTest::mouseClick(box->button(button), Qt::LeftButton);
            });
            QCOMPARE(boxes.ask(u"Sure?"_s, u"T"_s, Icon::Critical), answer);
        }
        whenOpen<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Escape); });
        QCOMPARE(boxes.ask(u"Sure?"_s, u"T"_s, Icon::Question), Answer::No);

        // Enter alone loses nothing.
        for (const auto& [asked, answer] : {std::pair{Icon::Question, Answer::Yes},
                 std::pair{Icon::Warning, Answer::No}, std::pair{Icon::Critical, Answer::No}}) {
            whenOpen<QMessageBox>([](QMessageBox* box) { QTest::keyClick(box, Qt::Key_Return); });
            QCOMPARE(boxes.ask(u"Sure?"_s, u"T"_s, asked), answer);
        }

        QMessageBox::Icon icon = QMessageBox::NoIcon;
        Qt::TextFormat format = Qt::RichText;
        whenOpen<QMessageBox>([&](QMessageBox* box) {
            icon = box->icon();
            format = box->textFormat();
            box->accept();
        });
        boxes.warning(u"<b>x</b>"_s, u"T"_s);
        QCOMPARE(icon, QMessageBox::Warning);
        QCOMPARE(format, Qt::PlainText);

        whenOpen<QInputDialog>([](QInputDialog* dialog) { dialog->reject(); });
        QVERIFY(!boxes.inputText(u"T"_s, u"L"_s));
        whenOpen<QInputDialog>([](QInputDialog* dialog) { dialog->accept(); });
        QCOMPARE(boxes.inputText(u"T"_s, u"L"_s), QString()); // empty, and not cancelled
    }

    void saveGetsItsExtension()
    {
        DesktopBoxes boxes;
        const QString wanted = m_folder.filePath(u"card"_s);
        whenOpen<QFileDialog>([&wanted](QFileDialog* dialog) {
            dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(wanted);
            static_cast<QDialog*>(dialog)->accept();
        });
        QCOMPARE(boxes.saveFile(u"T"_s, u"VCF (*.vcf)|*.vcf"_s, {}), QString(wanted + u".vcf"_s));
    }

    void shellEndsTheProgram()
    {
        const FolderDrive drive(m_folder.path(), m_folder.path());
        DesktopShell shell(drive);
        QVERIFY(!shell.startSibling(u"\\Orvane Scheduler.exe"));
        QVERIFY(!shell.openFile(u"\\none.txt"));
        QVERIFY(!shell.openAddress(u"javascript:x"));
        shell.endProgram(); // before the event loop runs
        QTimer::singleShot(5000, [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
    }

private:
    /// Runs once a modal dialog is open.
    template <typename Dialog> void whenOpen(std::function<void(Dialog*)> act)
    {
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, [timer, act] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                timer->deleteLater();
                timer->stop();
                act(dialog);
            }
        });
        timer->start(5);
    }

    QTemporaryDir m_folder;
};

QTEST_MAIN(DesktopWindowsTest)
#include "desktop_windows_test.moc"
