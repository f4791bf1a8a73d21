#include "core/screen.h"

#include "core/frame.h"
#include "core/take_back.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "widgets/filled_combo.h"
#include "widgets/tool_tip_box.h"

#include <QShowEvent>

using namespace Qt::StringLiterals;

namespace core {

Screen::Screen(Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
{
}

Screen::~Screen() = default;

bool Screen::mayClose()
{
    return mayDiscard();
}

void Screen::vocabulariesChanged()
{
    for (auto* combo : findChildren<widgets::FilledCombo*>())
        combo->refill();
}

QString Screen::frameTitle() const
{
    return m_frameTitle.isEmpty() ? windowTitle() : m_frameTitle;
}

void Screen::setFrameTitle(const QString& title)
{
    m_frameTitle = title;
    Q_EMIT headChanged();
}

void Screen::offerFrameTitle(const QString& title)
{
    if (m_frameTitle.isEmpty())
        setFrameTitle(title);
}

void Screen::setPosition(const QString& position)
{
    m_position = position;
    Q_EMIT headChanged();
}

void Screen::noteBookRead()
{
    m_bookRead = m_context.data.state();
}

bool Screen::mayDiscard() const
{
    if (!isTouched())
        return true;
    return m_context.services.boxes.ask(tr("What you entered was not saved. Do you want to discard it?"),
               shared().AppTitle, platform::Icon::Warning)
        == platform::Answer::Yes;
}

void Screen::tellSaved(const QString& name) const
{
    const auto step = m_context.data.lastChange();
    const QString text = tr("Saved %1").arg(name.simplified());
    if (!step)
        return m_context.frame.showNotice(text);
    m_context.frame.showNotice(text, tr("Undo"),
        [&context = m_context, id = step->id] { takeBack(context, jet::StepDirection::Back, id); });
}

void Screen::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    const QString before = m_bookRead;
    noteBookRead();
    if (!before.isEmpty() && before != m_bookRead)
        bookChanged();
}

void Screen::playSound(QStringView path) const
{
    m_context.services.sounds.play(path);
}

void Screen::inform(const QString& text) const
{
    m_context.services.boxes.information(text, shared().AppTitle);
}

void Screen::warn(const QString& text) const
{
    m_context.services.boxes.warning(text, shared().AppTitle);
}

void Screen::showHelp(const QString& code, QWidget* beside) const
{
    const auto row = m_context.data.openRecordset(u"Select * from ov_tooltip where Code='"_s + code + u"'"_s);
    if (const auto text = row.text(u"Tooltip"))
        widgets::showHelpBeside(beside, *text);
}

} // namespace core
