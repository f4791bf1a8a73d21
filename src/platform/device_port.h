#pragma once

#include <memory>

#include "platform/serial_port.h"

class QSerialPort;

namespace platform {

/// The serial ports of this computer, and in a settings file which number stands for which.
class SerialDeviceFile final : public SerialDevices {
public:
    explicit SerialDeviceFile(QString file);

    QList<SerialDevice> found() const override;
    QString device(int port) const override;
    bool setDevice(int port, const QString& path) override;
    QString complaint(const QString& path) const override;

private:
    QString m_file;
};

/// A port of this computer, also a pseudo terminal.
class DevicePort final : public SerialPort {
public:
    explicit DevicePort(const SerialDevices& devices);
    ~DevicePort() override;

    void CommPort(int number) override;
    void Settings(const QString& settings) override;
    bool PortOpen(bool open) override;
    bool PortOpen() const override;
    int InBufferCount() const override;
    void InBufferCount(int count) override;
    bool Output(const QByteArray& bytes) override;
    QByteArray Input() override;
    QString fault() const override { return m_fault; }
    void setListener(std::function<void()> listener) override { m_listener = std::move(listener); }

private:
    void applySettings();
    void failed();
    void tell() const;

    const SerialDevices& m_devices;
    std::unique_ptr<QSerialPort> m_port;
    QString m_settings;
    QString m_fault;
    std::function<void()> m_listener;
    int m_number = 1;
    bool m_isOpening = false;
};

} // namespace platform
