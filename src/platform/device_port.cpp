#include "platform/device_port.h"

#include <array>
#include <utility>

#include <QCoreApplication>
#include <QFileInfo>
#include <QSerialPort>
#include <QSerialPortInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QString keyOf(int port)
{
    return u"port%1"_s.arg(port);
}

struct ParityLetter {
    QChar letter;
    QSerialPort::Parity parity;
};
constexpr std::array kParities{ParityLetter{u'N', QSerialPort::NoParity},
    ParityLetter{u'E', QSerialPort::EvenParity}, ParityLetter{u'O', QSerialPort::OddParity},
    ParityLetter{u'M', QSerialPort::MarkParity}, ParityLetter{u'S', QSerialPort::SpaceParity}};

} // namespace

SerialDeviceFile::SerialDeviceFile(QString file)
    : m_file(std::move(file))
{
}

QList<SerialDevice> SerialDeviceFile::found() const
{
    QList<SerialDevice> devices;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts())
        devices.append({info.systemLocation(), info.description()});
    return devices;
}

QString SerialDeviceFile::device(int port) const
{
    return QSettings(m_file, QSettings::IniFormat).value(keyOf(port)).toString();
}

bool SerialDeviceFile::setDevice(int port, const QString& path)
{
    QSettings file(m_file, QSettings::IniFormat);
    if (path.isEmpty())
        file.remove(keyOf(port));
    else
        file.setValue(keyOf(port), path);
    file.sync();
    return file.status() == QSettings::NoError;
}

QString SerialDeviceFile::complaint(const QString& path) const
{
    const QFileInfo device(path);
    if (!device.exists())
        return QCoreApplication::translate("platform", "%1 is not there now.").arg(path);
    if (device.isReadable() && device.isWritable())
        return {};
    const QString group = device.group().isEmpty() ? u"dialout"_s : device.group();
    return QCoreApplication::translate("platform",
        "You may not use %1. Ask whoever looks after this computer to make you a member of the group %2, and "
        "log in anew.")
        .arg(path, group);
}

DevicePort::DevicePort(const SerialDevices& devices)
    : m_devices(devices)
    , m_port(std::make_unique<QSerialPort>())
{
    QObject::connect(m_port.get(), &QSerialPort::readyRead, m_port.get(), [this] { tell(); });
    QObject::connect(
        m_port.get(), &QSerialPort::errorOccurred, m_port.get(), [this](QSerialPort::SerialPortError error) {
            // A setting that a line does not know, as some adapters, is no reason not to use it.
            if (error != QSerialPort::NoError && error != QSerialPort::UnsupportedOperationError)
                failed();
        });
}

DevicePort::~DevicePort()
{
    m_port->disconnect();
}

void DevicePort::CommPort(int number)
{
    if (number == m_number)
        return;
    PortOpen(false);
    m_number = number;
}

void DevicePort::Settings(const QString& settings)
{
    m_settings = settings;
    if (m_port->isOpen())
        applySettings();
}

void DevicePort::applySettings()
{
    const QStringList parts = m_settings.split(u',');
    m_port->setBaudRate(parts.value(0).toInt());
    for (const ParityLetter& each : kParities) {
        if (parts.value(1) == each.letter)
            m_port->setParity(each.parity);
    }
    m_port->setDataBits(static_cast<QSerialPort::DataBits>(parts.value(2).toInt()));
    m_port->setStopBits(parts.value(3) == u"2" ? QSerialPort::TwoStop : QSerialPort::OneStop);
    m_port->clearError();
}

bool DevicePort::PortOpen(bool open)
{
    if (!open) {
        m_port->close();
        return true;
    }
    if (m_port->isOpen())
        return true;
    m_fault.clear();
    const QString device = m_devices.device(m_number);
    if (device.isEmpty()) {
        m_fault = QCoreApplication::translate("platform", "no modem was chosen for port %1").arg(m_number);
        return false;
    }
    m_port->setPortName(device);
    m_isOpening = true;
    const bool isOpen = m_port->open(QIODevice::ReadWrite);
    m_isOpening = false;
    if (!isOpen) {
        const QString why = m_devices.complaint(device);
        m_fault = why.isEmpty() ? m_port->errorString() : why;
        return false;
    }
    applySettings();
    return true;
}

bool DevicePort::PortOpen() const
{
    return m_port->isOpen();
}

int DevicePort::InBufferCount() const
{
    return static_cast<int>(m_port->bytesAvailable());
}

void DevicePort::InBufferCount(int count)
{
    if (count != 0 || !m_port->isOpen())
        return;
    m_port->clear(QSerialPort::Input);
    m_port->readAll();
}

bool DevicePort::Output(const QByteArray& bytes)
{
    if (!m_port->isOpen() || m_port->write(bytes) != bytes.size())
        return false;
    // What the line takes goes at once, so that it is not lost with a port that is closed next.
    m_port->flush();
    return true;
}

QByteArray DevicePort::Input()
{
    return m_port->readAll();
}

// A line that is gone keeps its file open and reports again and again.
void DevicePort::failed()
{
    if (m_isOpening || !m_port->isOpen())
        return;
    m_fault = m_port->errorString();
    QMetaObject::invokeMethod(
        m_port.get(),
        [this] {
            m_port->close();
            tell();
        },
        Qt::QueuedConnection);
}

void DevicePort::tell() const
{
    // It may be exchanged by what it calls.
    if (const auto listener = m_listener)
        listener();
}

} // namespace platform
