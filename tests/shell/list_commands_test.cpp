#include <QtTest>
#include <QtWidgets>

#include "core/screen.h"
#include "core/shell/MDIForm1.h"
#include "output/grid/list_print.h"
#include "output/register_output.h"
#include "support/disk.h"
#include "support/screen_fixture.h"
#include "widgets/heading_grid.h"

using namespace Qt::StringLiterals;

namespace {

/// Two lists, the second one larger, and a tool bar of one; the first one has a menu of its own.
class TwoLists final : public core::Screen {
public:
    explicit TwoLists(core::Context& context)
        : Screen(context)
    {
        setWindowTitle(u"Codes"_s);
        auto* layout = new QVBoxLayout(this);
        for (const QString& name : {u"Small"_s, u"Big"_s}) {
            auto* list = new widgets::HeadingGrid;
            list->setObjectName(name);
            list->setHeadings(u"City ");
            list->setRows({{name}});
            layout->addWidget(list, name == u"Big" ? 3 : 1);
            lists << list;
        }
        lists[0]->setContextMenuPolicy(Qt::CustomContextMenu);
        tools = new output::ListTools(context, lists[0], this);
        layout->addWidget(tools->makeToolBar(this));
    }
    void load() override { }

    QList<widgets::HeadingGrid*> lists;
    output::ListTools* tools;
};

class Frame final : public support::ScreenFixture {
public:
    Frame()
        : all{book.data(), book.data(), schema, shared, registry, window, context.services}
    {
        registry.setContext(all);
        registry.add<TwoLists>(u"TwoLists"_s);
        output::registerOutput(registry);
        execute(u"insert into ov_setup ([key]) values ('')"_s);
        window.build(all);
        window.loadFrame();
        window.show();
        clock.set(QDateTime(QDate(2026, 3, 5), QTime(12, 0)));
        QApplication::setActiveWindow(&window);
    }
    ~Frame() { registry.unloadAll(); }

    TwoLists* open()
    {
        registry.show(u"TwoLists"_s);
        QCoreApplication::processEvents();
        return static_cast<TwoLists*>(registry.find(u"TwoLists"));
    }
    /// What the export of the list would be called, and the list that it holds.
    QByteArray exportedBy(const std::function<void()>& ask)
    {
        const QString path = root.filePath(u"a.csv"_s);
        boxes.expectChoice(u"Export"_s, path);
        ask();
        QCoreApplication::processEvents();
        return support::bytesOf(path).mid(3);
    }

    core::Screens registry;
    shell::MDIForm1 window;
    core::Context all;
};

} // namespace

/// Printing and exporting of the list in front, by key, menu, right button and the tools of a screen.
class ListCommandsTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_f = std::make_unique<Frame>(); }
    void cleanup()
    {
        QCOMPARE(m_f->verify(), QString());
        m_f.reset();
    }

    void exportsTheLargestOrThatWithTheFocus()
    {
        TwoLists* screen = m_f->open();
        m_f->window.setFocus();
        const auto key
            = [this] { QTest::keyClick(&m_f->window, Qt::Key_X, Qt::ControlModifier | Qt::ShiftModifier); };
        QCOMPARE(m_f->exportedBy(key), "City\r\nBig\r\n");
        QVERIFY(m_f->boxes.suggested.last().endsWith(u"/Codes - Mar 05-2026.xls"));
        screen->lists[0]->setFocus();
        QCOMPARE(m_f->exportedBy(key), "City\r\nSmall\r\n");
        // A sample is no list to take away, though it is larger and has the focus.
        screen->lists[1]->setContextMenuPolicy(Qt::NoContextMenu);
        screen->lists[1]->setFocus();
        QCOMPARE(m_f->exportedBy(key), "City\r\nSmall\r\n");
    }

    void printShowsAPreview()
    {
        TwoLists* screen = m_f->open();
        screen->lists[1]->setFocus();
        QTest::keyClick(screen->lists[1], Qt::Key_P, Qt::ControlModifier);
        const core::Screen* viewer = m_f->registry.find(u"FrmReportViewer");
        QVERIFY(viewer && viewer->isVisible());
        QCOMPARE(viewer->windowTitle(), u"Print Codes"_s);
    }

    void nothingInFront()
    {
        const QString none = u"There is no list in front. Open a screen that shows one."_s;
        for (const Qt::Key key : {Qt::Key_P, Qt::Key_X}) {
            m_f->boxes.expect(none);
            QTest::keyClick(&m_f->window, key,
                key == Qt::Key_P ? Qt::ControlModifier : Qt::ControlModifier | Qt::ShiftModifier);
        }
    }

    void rightButton()
    {
        TwoLists* screen = m_f->open();
        const auto menuOf = [](widgets::HeadingGrid* list) {
            QContextMenuEvent press(
                QContextMenuEvent::Mouse, {5, 5}, list->viewport()->mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(list->viewport(), &press);
            return list->findChild<QMenu*>(u"ListMenu"_s);
        };
        QVERIFY(!menuOf(screen->lists[0]));
        QMenu* menu = menuOf(screen->lists[1]);
        QVERIFY(menu && menu->isVisible());
        QCOMPARE(m_f->exportedBy([menu] {
            QTest::mouseClick(menu, Qt::LeftButton, {},
                menu->actionGeometry(menu->findChild<QAction*>(u"FileExport"_s)).center());
        }),
            "City\r\nBig\r\n");
    }

    void sizeOfTheTexts()
    {
        TwoLists* screen = m_f->open();
        const int medium = screen->lists[0]->font().pointSize();
        screen->tools->action(u"Large")->trigger();
        QCOMPARE(screen->lists[0]->font().pointSize(), medium + 3);
        QCOMPARE(int(output::listSizeOf(screen->lists[0])), int(output::ListSize::Large));
        QCOMPARE(screen->lists[1]->font().pointSize(), medium);
        // The menu of the frame means the list in front, and tells its size.
        screen->lists[0]->setFocus();
        auto* sizes = m_f->window.findChild<QMenu*>(u"ListSizes"_s);
        sizes->popup({10, 10});
        QVERIFY(sizes->findChild<QAction*>(u"Large"_s)->isChecked());
        QTest::mouseClick(sizes, Qt::LeftButton, {},
            sizes->actionGeometry(sizes->findChild<QAction*>(u"VerySmall"_s)).center());
        QCOMPARE(screen->lists[0]->font().pointSize(), medium - 2);
    }

    void toolsOfAScreen()
    {
        TwoLists* screen = m_f->open();
        auto* bar = screen->findChild<QToolBar*>();
        const auto click = [&](QStringView id) {
            QTest::mouseClick(bar->widgetForAction(screen->tools->action(id)), Qt::LeftButton);
        };
        QCOMPARE(m_f->exportedBy([&] { click(u"Exports"); }), "City\r\nSmall\r\n");
        click(u"ListPrint");
        QVERIFY(m_f->registry.find(u"FrmReportViewer"));
    }

private:
    std::unique_ptr<Frame> m_f;
};

QTEST_MAIN(ListCommandsTest)
#include "list_commands_test.moc"
