// A window with what every such program has and nothing else: the measure for the start and the memory of the
// whole program. Tells when it was first painted, then waits to be ended.

#include <QApplication>
#include <QEvent>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

class Window final : public QMainWindow {
protected:
    void paintEvent(QPaintEvent* event) override
    {
        QMainWindow::paintEvent(event);
        if (m_painted)
            return;
        m_painted = true;
        // Behind the painting of the children and the handing over to the display.
        QMetaObject::invokeMethod(
            this,
            [] {
                timespec now{};
                clock_gettime(CLOCK_MONOTONIC, &now);
                std::fprintf(
                    stderr, "orvane-timing bare %lld\n", now.tv_sec * 1000000LL + now.tv_nsec / 1000);
            },
            Qt::QueuedConnection);
    }

private:
    bool m_painted = false;
};

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Window window;
    for (const auto& title : {u"File"_s, u"Edit"_s, u"View"_s, u"Help"_s})
        window.menuBar()->addMenu(title)->addAction(u"Item"_s);
    QToolBar* tools = window.addToolBar(u"Tools"_s);
    for (int i = 0; i < 8; ++i)
        tools->addAction(u"Tool %1"_s.arg(i));
    window.setCentralWidget(new QMdiArea);
    window.statusBar()->showMessage(u"Ready"_s);
    window.resize(1280, 800);
    window.show();
    return QApplication::exec();
}
