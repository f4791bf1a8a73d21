#include "anniversaries/list/copy_panel.h"

#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/sounds.h"
#include "widgets/dialog_keys.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace anniversaries {

namespace {

using widgets::child;

}

CopyPanel::CopyPanel(core::Context& context, DayList* list, core::Screen* screen)
    : QFrame(screen)
    , m_context(context)
    , m_list(list)
    , m_screen(screen)
    , PB1(new QProgressBar)
{
    setObjectName(u"Frame7"_s);
    widgets::FormKit form(this);
    form.group()
        .caption(u"lblchange"_s)
        .combo(u"Combo1"_s, tr("How many &times"))
        .hint(tr("1 to 9"))
        .beside(3)
        .caption(u"lblYears"_s, tr("years, beginning with this one"))
        .radio(u"Option2"_s, tr("Add All"))
        .radio(u"Option3"_s, tr("Add Only Priority 1 && 2"))
        .radio(u"Option4"_s, tr("Manually Select Contacts"))
        .wide(u"PB1"_s, tr("How much is copied"), PB1);
    form.buttonRow()
        .button(u"cmdOk"_s, tr("O&K"), u"calendar",
            tr("Copies the ticked dates, and takes the others out of the scheduler"))
        .button(u"cmdCancelCopy"_s, tr("Cancel"), u"cancel", tr("Copy nothing (Esc)"))
        .stretch();
    lblchange = child<QLabel>(this, u"lblchange"_s);
    Combo1 = child<widgets::FilledCombo>(this, u"Combo1"_s);
    Combo1->setMaximumWidth(Combo1->fontMetrics().averageCharWidth() * 16);
    QStringList times;
    for (int each = 1; each <= 9; ++each)
        times << QString::number(each);
    Combo1->setValues(times);
    connect(Combo1, &QComboBox::editTextChanged, this, &CopyPanel::followTimes);
    for (const QString& name : {u"Option2"_s, u"Option3"_s})
        connect(child<QRadioButton>(this, name), &QRadioButton::clicked, this, &CopyPanel::followChoice);
    connect(list, &DayList::ticked, this, [this] {
        m_hasTicked = true;
        child<QRadioButton>(this, u"Option4"_s)->setChecked(true);
    });
    connect(child<QPushButton>(this, u"cmdOk"_s), &QPushButton::clicked, this, &CopyPanel::copy);
    connect(child<QPushButton>(this, u"cmdCancelCopy"_s), &QPushButton::clicked, this, &CopyPanel::leave);
    hide();
}

void CopyPanel::ask()
{
    lblchange->setText(
        m_list->view().occasion == Occasion::Birthday ? tr("Add Birthdays") : tr("Add Anniversaries"));
    m_hasTicked = false;
    Combo1->setText({});
    child<QRadioButton>(this, u"Option4"_s)->setChecked(true);
    PB1->setValue(0);
    PB1->hide();
    m_list->setTicking(true);
    show();
    Combo1->setFocus();
}

bool CopyPanel::isTouched() const
{
    return isVisibleTo(parentWidget()) && (m_hasTicked || !Combo1->currentText().isEmpty());
}

void CopyPanel::keyPressEvent(QKeyEvent* event)
{
    if (!widgets::answerDialogKey(
            event, this, [this] { copy(); },
            [this] {
                if (m_screen->mayClose())
                    leave();
            }))
        QFrame::keyPressEvent(event);
}

void CopyPanel::followTimes(const QString& typed)
{
    if (typed.isEmpty() || copyTimes(typed))
        return;
    m_context.services.boxes.warning(tr("Invalid Entry"), m_context.shared.AppTitle);
    Combo1->setText({});
}

void CopyPanel::followChoice()
{
    m_hasTicked = true;
    if (child<QRadioButton>(this, u"Option2"_s)->isChecked())
        m_list->tickAll();
    else
        m_list->tickImportant();
}

void CopyPanel::copy()
{
    const std::optional<int> times = copyTimes(Combo1->currentText());
    if (!times) {
        m_context.services.boxes.stop(tr("Invalid Occurence"), m_context.shared.AppTitle);
        Combo1->setFocus();
        return;
    }
    setEnabled(false);
    const bool isCopied = copyRows(*times);
    setEnabled(true);
    if (!isCopied)
        return core::tellFailedSave(m_context);
    const QString told = m_list->view().occasion == Occasion::Birthday
        ? tr("Selected Birthdays are added to tasks %1 times")
        : tr("Selected Anniversarys are added to tasks %1 times");
    m_context.services.boxes.information(told.arg(*times), m_context.shared.AppTitle);
    m_context.services.sounds.play(core::sounds::Save);
    leave();
    m_context.screens.tellBookChanged(m_screen);
}

bool CopyPanel::copyRows(int times)
{
    constexpr int kRowsAStep = 500;
    const Occasion occasion = m_list->view().occasion;
    const jet::Step step(m_context.data,
        occasion == Occasion::Birthday ? tr("copying birthdays to the scheduler")
                                       : tr("copying anniversaries to the scheduler"));
    jet::Batch batch(m_context.data);
    SchedulerCopy copy(m_context.data, occasion, m_context.services.clock.today().year(), times);
    if (!copy.isReady())
        return false;
    const int rows = m_list->rows();
    PB1->setRange(0, rows);
    PB1->show();
    for (int row = 0; row < rows; ++row) {
        copy.copy(m_list->copiedRow(row));
        if (row % kRowsAStep == 0) {
            PB1->setValue(row);
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        }
    }
    PB1->setValue(rows);
    const bool isStored = batch.commit();
    PB1->setVisible(isStored);
    return isStored;
}

void CopyPanel::leave()
{
    hide();
    m_list->setTicking(false);
    Q_EMIT closed();
}

} // namespace anniversaries
