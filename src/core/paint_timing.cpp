#include "core/paint_timing.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <ctime>

namespace core {

namespace {

class FirstPaint final : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // Behind the paint, not before it.
            QTimer::singleShot(0, this, [this, name = watched->objectName()] { write(name); });
        }
        return false;
    }

private:
    void write(const QString& name)
    {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        std::fprintf(stderr, "orvane-timing %s %lld\n", qUtf8Printable(name),
            static_cast<long long>(now.tv_sec) * 1000000 + now.tv_nsec / 1000);
        std::fflush(stderr);
        deleteLater();
    }
};

} // namespace

void reportFirstPaint(QWidget* widget)
{
    if (qEnvironmentVariable("ORVANE_TIMING") == QLatin1String("1"))
        widget->installEventFilter(new FirstPaint(widget));
}

} // namespace core
