#pragma once

#include "platform/scanner.h"

#include <QObject>
#include <QPointer>
#include <QProcess>

namespace platform {

/// Scanners by SANE, through its program scanimage: drivers of devices run in a process of their own, which
/// may hang or crash without this one.
class SaneScanner final : public QObject, public Scanner {
    Q_OBJECT

public:
    SaneScanner() = default;
    ~SaneScanner() override;

    bool isAvailable() const override;
    void findDevices(std::function<void(const QList<ScannerDevice>&)> found) override;
    void scan(const ScanOrder& order, std::function<void(const QString& cause)> done) override;
    void cancel() override;

    /// The lines of "scanimage -f".
    static QList<ScannerDevice> devicesOf(const QByteArray& lines);

private:
    using Ended = std::function<void(bool isWell, const QByteArray& output, const QString& cause)>;
    void run(const QStringList& arguments, int mostMilliseconds, Ended ended);

    QPointer<QProcess> m_process;
};

} // namespace platform
