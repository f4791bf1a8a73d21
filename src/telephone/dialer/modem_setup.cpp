#include "telephone/dialer/modem_setup.h"

#include "platform/serial_port.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;
using widgets::child;

namespace telephone {

namespace {

constexpr int kWidth = 460;

QString boxOf(int port)
{
    return u"CmbDevice_%1"_s.arg(port);
}

} // namespace

ModemSetup::ModemSetup(core::Context& context, QWidget* parent)
    : QDialog(parent)
    , m_context(context)
    , m_fault(nullptr)
{
    setObjectName(u"ModemSetup"_s);
    setWindowTitle(tr("Modems Setup"));
    setMinimumWidth(kWidth);
    widgets::FormKit form(this);
    form.group(tr("Device behind each port"));
    for (int port = 1; port <= platform::kSerialPorts; ++port) {
        form.combo(boxOf(port), tr("Port &%1").arg(port))
            .hint(tr("Choose a device, or type its path, such as /dev/ttyUSB0"));
        form.caption(u"lblDevice_%1"_s.arg(port));
    }
    form.caption(u"lblFound"_s).caption(u"lblFault"_s);
    form.buttonRow()
        .stretch()
        .button(u"cmdDeviceSave"_s, tr("&Save"), u"save", tr("Keep this on this computer"))
        .button(u"cmdDeviceCancel"_s, tr("&Cancel"), u"cancel");
    m_fault = child<QLabel>(this, u"lblFault"_s);
    connect(child<QPushButton>(this, u"cmdDeviceSave"_s), &QPushButton::clicked, this, &ModemSetup::accept);
    connect(child<QPushButton>(this, u"cmdDeviceCancel"_s), &QPushButton::clicked, this, &QDialog::reject);
    child<QPushButton>(this, u"cmdDeviceSave"_s)->setDefault(true);
    fill();
}

void ModemSetup::fill()
{
    const platform::SerialDevices& ports = m_context.services.modemPorts;
    QStringList paths;
    QStringList found;
    for (const platform::SerialDevice& device : ports.found()) {
        paths << device.path;
        found << (device.description.isEmpty() ? device.path
                                               : u"%1 (%2)"_s.arg(device.path, device.description));
    }
    child<QLabel>(this, u"lblFound"_s)
        ->setText(found.isEmpty() ? tr("No serial device was found on this computer.")
                                  : tr("Found: %1").arg(found.join(u", "_s)));
    for (int port = 1; port <= platform::kSerialPorts; ++port) {
        auto* box = child<widgets::FilledCombo>(this, boxOf(port));
        box->setValues(paths);
        box->setText(ports.device(port));
        connect(box, &QComboBox::currentTextChanged, this, [this, port] { followPath(port); });
        followPath(port);
    }
}

QString ModemSetup::path(int port) const
{
    return child<widgets::FilledCombo>(this, boxOf(port))->currentText().trimmed();
}

void ModemSetup::followPath(int port)
{
    const QString typed = path(port);
    auto* hint = child<QLabel>(this, u"lblDevice_%1"_s.arg(port));
    hint->setText(typed.isEmpty() ? QString() : m_context.services.modemPorts.complaint(typed));
    hint->setVisible(!hint->text().isEmpty());
}

void ModemSetup::accept()
{
    for (int port = 1; port <= platform::kSerialPorts; ++port) {
        if (!m_context.services.modemPorts.setDevice(port, path(port)))
            return m_fault->setText(tr("This could not be kept on this computer."));
    }
    QDialog::accept();
}

} // namespace telephone
