#include "core/progress.h"

#include <QCoreApplication>
#include <QProgressDialog>

namespace core {

Progress::Progress(
    const QString& name, const QString& title, const QString& text, int total, QWidget* over, int tooFew)
{
    if (total <= tooFew)
        return;
    m_dialog = std::make_unique<QProgressDialog>(
        text, QCoreApplication::translate("core", "Stop"), 0, total, over);
    m_dialog->setObjectName(name);
    m_dialog->setWindowTitle(title);
    m_dialog->setWindowModality(Qt::ApplicationModal);
    m_dialog->setMinimumDuration(0);
    m_dialog->setMinimumWidth(360);
    m_dialog->setAutoReset(false);
    m_dialog->setValue(0);
}

Progress::~Progress() = default;

bool Progress::advance(int done)
{
    if (m_dialog)
        m_dialog->setValue(done);
    return !m_dialog || !m_dialog->wasCanceled();
}

void Progress::say(const QString& text)
{
    if (m_dialog)
        m_dialog->setLabelText(text);
}

} // namespace core
