#pragma once

#include <functional>
#include <optional>

#include <QByteArray>
#include <QList>
#include <QString>

namespace platform {

/// A modem's line to this computer. No call waits for the other side; a port that fails is a port that is not
/// open any more, and fault() says why.
class SerialPort {
public:
    SerialPort() = default;
    SerialPort(const SerialPort&) = delete;
    SerialPort& operator=(const SerialPort&) = delete;
    virtual ~SerialPort() = default;

    virtual void CommPort(int number) = 0; ///< 1 to kSerialPorts, of those in SerialDevices
    virtual void Settings(const QString& settings) = 0; ///< as "9600,N,8,1"
    virtual bool PortOpen(bool open) = 0; ///< opens or closes; false when it could not be opened
    virtual bool PortOpen() const = 0;
    virtual int InBufferCount() const = 0; ///< bytes that wait to be read
    virtual void InBufferCount(int count) = 0; ///< 0 discards them
    virtual bool Output(const QByteArray& bytes) = 0;
    virtual QByteArray Input() = 0; ///< all that waits

    virtual QString fault() const = 0; ///< a piece of a sentence, empty when nothing went wrong
    /// Called when bytes have come, and when the port has gone.
    virtual void setListener(std::function<void()> listener) = 0;
};

inline constexpr int kSerialPorts = 3;

struct SerialDevice {
    QString path; ///< such as "/dev/ttyUSB0"
    QString description; ///< what it is, as far as the computer knows
};

/// Which device of this computer is behind a port number.
class SerialDevices {
public:
    SerialDevices() = default;
    SerialDevices(const SerialDevices&) = delete;
    SerialDevices& operator=(const SerialDevices&) = delete;
    virtual ~SerialDevices() = default;

    virtual QList<SerialDevice> found() const = 0; ///< those that the computer has now
    virtual QString device(int port) const = 0; ///< empty when none was chosen
    /// Keeps the choice; an empty path takes it back. False when it could not be kept.
    virtual bool setDevice(int port, const QString& path) = 0;
    /// What keeps the device from being used, with what can be done about it; empty when nothing does.
    virtual QString complaint(const QString& path) const = 0;
};

} // namespace platform
