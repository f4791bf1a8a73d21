#include "anniversaries/wishes/TimedWishPanel.h"

#include "anniversaries/list/list_filter.h"
#include "anniversaries/wishes/send_wish.h"
#include "core/frame.h"
#include "core/screen.h"
#include "core/sound_files.h"
#include "jet/date_text.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "widgets/date_box.h"
#include "widgets/dialog_keys.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace anniversaries {

TimedWishPanel::TimedWishPanel(core::Context& context, core::Screen* screen)
    : QFrame(screen)
    , m_context(context)
    , m_screen(screen)
{
    setObjectName(u"famTimedEmails"_s);
    widgets::FormKit form(this);
    form.group(tr("Confirm before sending"))
        .caption(u"lblTimed"_s)
        .date(u"dtpSendDate"_s, tr("Send &on"))
        .beside()
        .caption(u"lblSendDay"_s)
        .check(u"chkAsk"_s, tr("As&k me on that day"))
        .hint(tr("At the first start from that day on the program offers to send it"))
        .button(u"CmdSave"_s, tr("Save"), u"save", tr("Keep the wishes for that day (Enter)"))
        .button(u"CmdHideTimed"_s, tr("Cancel"), u"cancel", tr("Send nothing (Esc)"));
    dtpSendDate = widgets::child<widgets::DateBox>(this, u"dtpSendDate"_s);
    dtpSendDate->setFormat(u"dd-MMM-yyyy"_s);
    dtpSendDate->setMaximumWidth(dtpSendDate->fontMetrics().averageCharWidth() * 24);
    chkAsk = widgets::child<QCheckBox>(this, u"chkAsk"_s);
    lblTimed = widgets::child<QLabel>(this, u"lblTimed"_s);
    connect(
        widgets::child<QPushButton>(this, u"CmdSave"_s), &QPushButton::clicked, this, &TimedWishPanel::keep);
    connect(widgets::child<QPushButton>(this, u"CmdHideTimed"_s), &QPushButton::clicked, this,
        &TimedWishPanel::leave);
    connect(dtpSendDate, &widgets::DateBox::dateChanged, this, &TimedWishPanel::showDay);
    hide();
}

void TimedWishPanel::ask(const Wish& wish)
{
    m_wish = wish;
    m_offered = dayInYear(wish.date, m_context.services.clock.today().year());
    lblTimed->setText(wishSubject(wish.occasion) + u": "_s + wish.person);
    dtpSendDate->setDate(m_offered.isValid() ? std::optional(m_offered) : std::nullopt);
    chkAsk->setChecked(true);
    showDay();
    show();
    dtpSendDate->setFocus();
}

bool TimedWishPanel::isTouched() const
{
    return isVisibleTo(parentWidget())
        && (!chkAsk->isChecked() || dtpSendDate->date().value_or(QDate()) != m_offered);
}

void TimedWishPanel::keyPressEvent(QKeyEvent* event)
{
    if (!widgets::answerDialogKey(
            event, this, [this] { keep(); },
            [this] {
                if (m_screen->mayClose())
                    leave();
            }))
        QFrame::keyPressEvent(event);
}

void TimedWishPanel::showDay()
{
    const QDate day = dtpSendDate->date().value_or(QDate());
    widgets::child<QLabel>(this, u"lblSendDay"_s)
        ->setText(jet::formatDate(day, m_context.shared.NationalMode ? u"dd mmm" : u"mmm dd"));
}

void TimedWishPanel::keep()
{
    if (!dtpSendDate->date())
        return dtpSendDate->askToMend();
    const QDate day = *dtpSendDate->date();
    if (!timeWish(m_context, m_wish, day, chkAsk->isChecked(), m_screen))
        return;
    m_context.services.sounds.play(core::sounds::Save);
    m_context.frame.showNotice(tr("The wishes for %1 are kept for %2")
                                   .arg(m_wish.person, jet::formatDate(day, dtpSendDate->format())),
        {}, {});
    leave();
}

void TimedWishPanel::leave()
{
    hide();
    Q_EMIT closed();
}

} // namespace anniversaries
