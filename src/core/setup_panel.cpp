#include "core/setup_panel.h"

#include "core/save_failure.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace core {

SetupPanel::SetupPanel(Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
{
}

void SetupPanel::playSound(QStringView name) const
{
    m_context.services.sounds.play(u"\\UserFiles\\Misc\\sound\\"_s + name.toString() + u".wav"_s);
}

void SetupPanel::inform(const QString& text) const
{
    m_context.services.boxes.information(text, m_context.shared.AppTitle);
}

bool SetupPanel::mayDiscard() const
{
    return m_context.services.boxes.ask(tr("What you entered was not saved. Do you want to discard it?"),
               m_context.shared.AppTitle, platform::Icon::Warning)
        == platform::Answer::Yes;
}

QString SetupPanel::notStored(const QString& hint) const
{
    const auto failure = data().lastFailure();
    if (!failure)
        return hint;
    noteFailedSaveIsTold(m_context);
    return hint + u' ' + savingFailed(*failure);
}

QLabel* makeHint(const QString& name)
{
    auto* hint = new QLabel;
    hint->setObjectName(name);
    hint->setTextFormat(Qt::PlainText);
    hint->setWordWrap(true);
    hint->setAlignment(Qt::AlignTop);
    hint->setMinimumHeight(2 * hint->fontMetrics().lineSpacing());
    return hint;
}

} // namespace core
