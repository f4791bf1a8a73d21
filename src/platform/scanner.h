#pragma once

#include <QList>
#include <QString>

#include <functional>

namespace platform {

struct ScannerDevice {
    QString name; ///< by which it is asked to scan
    QString title; ///< for a person: maker and model
};

struct ScanOrder {
    QString device;
    int dotsPerInch = 200;
    bool isColored = false;
    QString file; ///< of this computer, to which the page is written as PNG
};

/// The scanners of this computer. Nothing waits: answers come when they come, or with the cause of a failure
/// when it takes too long.
class Scanner {
public:
    Scanner() = default;
    Scanner(const Scanner&) = delete;
    Scanner& operator=(const Scanner&) = delete;
    virtual ~Scanner() = default;

    /// Whether there is anything here that could find scanners.
    virtual bool isAvailable() const = 0;
    virtual void findDevices(std::function<void(const QList<ScannerDevice>&)> found) = 0;
    /// One page at a time. An empty cause means that the page is in its file.
    virtual void scan(const ScanOrder& order, std::function<void(const QString& cause)> done) = 0;
    /// What is under way is ended, and nobody hears of it any more.
    virtual void cancel() = 0;
};

} // namespace platform
