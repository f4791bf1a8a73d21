#include "platform/sane_scanner.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

constexpr int kFindMs = 30'000;
constexpr int kScanMs = 300'000; ///< a slow device at a fine resolution
constexpr qint64 kMostOutput = 64 * 1024;

QString program()
{
    return QStandardPaths::findExecutable(u"scanimage"_s);
}

/// The last line that says something; it is what a person can make something of.
QString causeOf(const QByteArray& errors)
{
    const QStringList lines = QString::fromLocal8Bit(errors).split(u'\n', Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last().trimmed().left(300);
}

} // namespace

SaneScanner::~SaneScanner()
{
    cancel();
}

bool SaneScanner::isAvailable() const
{
    return !program().isEmpty();
}

void SaneScanner::cancel()
{
    if (!m_process)
        return;
    m_process->disconnect(this);
    m_process->kill();
    m_process->waitForFinished(1000);
    delete m_process;
}

void SaneScanner::run(const QStringList& arguments, int mostMilliseconds, Ended ended)
{
    cancel();
    auto* process = new QProcess(this);
    m_process = process;
    auto* limit = new QTimer(process);
    limit->setSingleShot(true);
    connect(limit, &QTimer::timeout, process, &QProcess::kill);
    const auto end = [this, process, limit, ended = std::move(ended)](bool isWell) {
        if (m_process != process)
            return;
        m_process = nullptr;
        process->disconnect(this);
        process->deleteLater();
        const QString cause = limit->isActive() ? causeOf(process->readAllStandardError())
                                                : tr("The scanner did not answer in time.");
        ended(isWell, process->readAllStandardOutput().left(kMostOutput), cause);
    };
    connect(process, &QProcess::finished, this,
        [end](int code, QProcess::ExitStatus status) { end(status == QProcess::NormalExit && code == 0); });
    connect(process, &QProcess::errorOccurred, this, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(false);
    });
    limit->start(mostMilliseconds);
    process->start(program(), arguments, QIODevice::ReadOnly);
}

QList<ScannerDevice> SaneScanner::devicesOf(const QByteArray& lines)
{
    QList<ScannerDevice> devices;
    for (const QByteArray& line : lines.split('\n')) {
        const QList<QByteArray> parts = line.split('\t');
        if (parts.size() != 2 || parts[0].isEmpty())
            continue;
        const QString name = QString::fromLocal8Bit(parts[0]);
        const QString title = QString::fromLocal8Bit(parts[1]).simplified();
        devices << ScannerDevice{name, title.isEmpty() ? name : title};
    }
    return devices;
}

void SaneScanner::findDevices(std::function<void(const QList<ScannerDevice>&)> found)
{
    run({u"--formatted-device-list=%d\t%v %m\n"_s}, kFindMs,
        [found = std::move(found)](bool isWell, const QByteArray& output, const QString& /*cause*/) {
            found(isWell ? devicesOf(output) : QList<ScannerDevice>());
        });
}

void SaneScanner::scan(const ScanOrder& order, std::function<void(const QString& cause)> done)
{
    run({u"--device-name="_s + order.device, u"--format=png"_s,
            u"--resolution="_s + QString::number(order.dotsPerInch),
            u"--mode="_s + (order.isColored ? u"Color"_s : u"Gray"_s), u"--output-file="_s + order.file},
        kScanMs,
        [done = std::move(done), file = order.file](
            bool isWell, const QByteArray& /*output*/, const QString& cause) {
            if (isWell && QFileInfo(file).size() > 0)
                return done({});
            done(cause.isEmpty() ? tr("The scanner gave no page.") : cause);
        });
}

} // namespace platform
