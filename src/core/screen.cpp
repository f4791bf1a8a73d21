#include "core/screen.h"

#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "widgets/tool_tip_box.h"

using namespace Qt::StringLiterals;

namespace core {

Screen::Screen(Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
{
}

Screen::~Screen() = default;

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
