#include "entry/turbo/TurboAdd.h"

#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "entry/assists/city_chain.h"
#include "entry/turbo/turbo_boxes.h"
#include "entry/turbo/turbo_columns.h"
#include "entry/turbo/turbo_values.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

constexpr int kFieldsWidth = 128;

/// Two lists side by side are told apart by the words above them.
QVBoxLayout* under(QLabel* heading, QWidget* control)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(6);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    heading->setBuddy(control);
    column->addWidget(heading);
    column->addWidget(control, 1);
    return column;
}

QWidget* buttons()
{
    auto* row = new QWidget;
    widgets::FormKit kit(row);
    kit.buttonRow()
        .button(u"SSCommand3"_s, TurboAdd::tr("&New entry"), u"person-add",
            TurboAdd::tr("Blanks all boxes for another contact"))
        .button(u"CmdHelp"_s, TurboAdd::tr("Help"), u"help", TurboAdd::tr("What this screen is for"))
        .stretch()
        .button(u"CmdExit"_s, TurboAdd::tr("Close"), u"exit", TurboAdd::tr("Closes the screen (Esc)"))
        .button(u"cmdcancel"_s, TurboAdd::tr("Cancel"), u"cancel", TurboAdd::tr("Forget what was entered"))
        .button(u"Command1"_s, TurboAdd::tr("Sa&ve"), u"save", TurboAdd::tr("Store the contact (Ctrl+S)"));
    row->layout()->setContentsMargins(0, 0, 0, 0);
    return row;
}

} // namespace

TurboAdd::TurboAdd(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , list1(new widgets::RecordList(this))
    , m_values(new TurboValues(context, this))
    , m_boxes(new TurboBoxes(
          [&context](QStringView column) { return context.schema.textSize(u"cnt_main", column); }, this))
{
    layOut();
    wire();
}

void TurboAdd::layOut()
{
    setWindowTitle(tr("Contacts Turbo Add"));
    list1->setObjectName(u"list1"_s);
    list1->setAccessibleName(tr("Fields of the contact"));
    list1->setToolTip(tr("Right arrow or Enter goes to the values, F2 to the box of the field"));
    list1->setFixedWidth(kFieldsWidth);
    auto* middle = new QHBoxLayout;
    middle->setSpacing(10);
    middle->addLayout(under(new QLabel(tr("&Fields")), list1));
    middle->addWidget(m_values, 1);
    middle->addWidget(m_boxes, 5);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(12, 8, 12, 8);
    whole->addLayout(middle, 1);
    whole->addWidget(buttons());
    setFocusProxy(list1);
}

void TurboAdd::wire()
{
    const auto onClick = [this](const QString& name, auto handler) {
        connect(widgets::child<QPushButton>(this, name), &QPushButton::clicked, this, handler);
    };
    onClick(u"Command1"_s, &TurboAdd::save);
    onClick(u"cmdcancel"_s, &TurboAdd::cancel);
    onClick(u"SSCommand3"_s, &TurboAdd::startEntry);
    onClick(u"CmdExit"_s, &TurboAdd::closeRequested);
    onClick(u"CmdHelp"_s, [this] { showHelp(u"CON0076"_s, widgets::child<QWidget>(this, u"CmdHelp"_s)); });

    // Beside the button's mnemonic, which a shortcut of its own would take the place of.
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, &TurboAdd::save);
    list1->installEventFilter(this);
    connect(list1, &widgets::HeadingGrid::currentRowChanged, this, &TurboAdd::enterField);
    connect(list1, &widgets::HeadingGrid::chosen, this, &TurboAdd::goToValues);

    connect(m_values, &TurboValues::taken, this, &TurboAdd::take);
    connect(m_values, &TurboValues::dayClicked, this, [this](QDate day) { m_boxes->setDate(target(), day); });
    connect(m_values, &TurboValues::dayTaken, this, [this](QDate day) {
        m_boxes->setDate(target(), day);
        step();
    });
    connect(m_values, &TurboValues::digitPressed, m_boxes, &TurboBoxes::appendDigit);
    connect(m_values, &TurboValues::backPressed, m_boxes, &TurboBoxes::takeBack);
    connect(m_values, &TurboValues::leftToFields, list1, qOverload<>(&QWidget::setFocus));
    connect(m_values, &TurboValues::rightToBox, this, [this] { m_boxes->focusBox(target()); });
    connect(m_boxes, &TurboBoxes::boxDone, this, &TurboAdd::boxDone);
    connect(m_boxes, &TurboBoxes::blockChanged, this, [this] { m_boxes->markTarget(target()); });
}

void TurboAdd::load()
{
    const QString pattern = core::datePattern(shared().NationalMode);
    m_boxes->setDateFormat(pattern);
    QList<QStringList> rows;
    for (const TurboField& field : turboFields())
        rows.append({QCoreApplication::translate("entry", field.name)});
    {
        // The new entry goes to the first row itself.
        const QSignalBlocker quiet(list1);
        list1->setRows(rows, {u"Name"_s});
    }
    startEntry();
    if (const auto kept = shared().unsavedEntries.take(objectName()); !kept.texts.isEmpty())
        m_boxes->show(kept);
    setFrameTitle(tr("Contacts Turbo Add"));
    setPosition(tr("Contacts Turbo Add"));
}

// ---- going through the fields

const TurboField& TurboAdd::field() const
{
    return turboFields()[size_t(qMax(0, list1->currentRow()))];
}

QString TurboAdd::target() const
{
    if (field().kind == TurboKind::DigitPad)
        return m_boxes->phoneBox();
    return boxOf(field(), m_boxes->activeBlock()).toString();
}

void TurboAdd::goToField(int row)
{
    if (list1->currentRow() == row)
        enterField();
    else
        list1->setCurrentRow(row);
}

void TurboAdd::enterField()
{
    if (list1->currentRow() < 0)
        return;
    QDate day;
    if (field().kind == TurboKind::Calendar)
        day = m_boxes->date(target()).value_or(context().services.clock.today());
    m_values->showField(field(), m_boxes->text(u"txthcity"), day);
    m_boxes->markTarget(target());
    m_boxes->bringInSight(target());
}

void TurboAdd::goToValues()
{
    if (!m_values->focusValues())
        m_boxes->focusBox(target());
}

void TurboAdd::step()
{
    const int next = list1->currentRow() + 1;
    if (next < list1->rowCount()) {
        list1->setCurrentRow(next);
        goToValues();
    }
}

// Enter in the box of the current field goes on as a taken value does; in another box it goes to the next
// one.
void TurboAdd::boxDone(const QString& box)
{
    if (box == target())
        step();
    else
        focusNextChild();
}

// ---- taking a value

void TurboAdd::take(const QString& value)
{
    if (field().kind == TurboKind::City)
        takeCity(value);
    else
        m_boxes->setText(target(), takenText(field(), m_boxes->text(target()), value));
    step();
}

void TurboAdd::takeCity(const QString& city)
{
    m_boxes->setText(target(), city);
    const CityChain chain = cityChain(context().info, city, m_values->country());
    const auto show = [this](const std::optional<QString>& text, std::initializer_list<QStringView> boxes) {
        for (const QStringView box : boxes) {
            if (text)
                m_boxes->setText(box, *text);
        }
    };
    // Kept: country, code and state go to both addresses, whichever of them the city is for.
    show(chain.country, {u"txthcountry", u"txtwcountry"});
    show(chain.region, {u"txtregion"});
    show(chain.std, {u"txthstd", u"txtwstd"});
    show(chain.state, {u"TxtHState", u"TxtWState"});
}

// ---- entries

void TurboAdd::clearEntry()
{
    m_boxes->clear();
    goToField(0);
    list1->setFocus();
}

void TurboAdd::startEntry()
{
    clearEntry();
    playSound(core::sounds::Add);
}

void TurboAdd::cancel()
{
    clearEntry();
    playSound(core::sounds::Cancel);
}

void TurboAdd::save()
{
    // What could not be stored stays in the boxes, so that it can be saved again.
    if (!m_boxes->mendDates() || !mayBeNameless() || !store())
        return;
    m_boxes->keepAsLoaded();
    context().screens.tellBookChanged(this);
    const auto answer = context().services.boxes.ask(
        tr("Record Saved.\r\nDo you want to add new record ?"), shared().AppTitle, platform::Icon::Question);
    if (answer == platform::Answer::Yes)
        startEntry();
    playSound(core::sounds::Save);
}

// Such a contact is in no list by name, and goes when an entry form clears blank contacts away.
bool TurboAdd::mayBeNameless()
{
    const FormValues values = m_boxes->values();
    for (const QStringView box : {u"txtfirst", u"txtlast", u"txtcompany", u"txtcompsuffix"}) {
        if (!values.trimmed(box).isEmpty())
            return true;
    }
    const auto answer = context().services.boxes.ask(
        tr("This contact has no first name, no last name and no company. Do you want to save it without a "
           "name?"),
        shared().AppTitle, platform::Icon::Warning);
    if (answer == platform::Answer::No)
        m_boxes->focusBox(u"txtfirst");
    return answer == platform::Answer::Yes;
}

// Kept: nothing but the name is checked; a contact without any entry is stored too.
bool TurboAdd::store()
{
    const FormValues values = m_boxes->values();
    const auto fill = [this, &values](jet::Recordset& rows) {
        assign(rows, turboColumns(), values, {turboName(values), context().services.clock.today(), true});
    };
    if (addContact(context(), newTurboContact(values), fill) != 0)
        return true;
    core::tellFailedSave(context());
    return false;
}

bool TurboAdd::isTouched() const
{
    return m_boxes->isTouched();
}

bool TurboAdd::mayClose()
{
    if (isTouched())
        shared().unsavedEntries.insert(objectName(), m_boxes->values());
    return true;
}

// ---- keys

bool TurboAdd::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == list1 && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Right) {
        goToValues();
        return true;
    }
    return Screen::eventFilter(watched, event);
}

void TurboAdd::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape: m_boxes->clearFocused(); break;
    case Qt::Key_F2: m_boxes->focusBox(target()); break;
    default: Screen::keyPressEvent(event);
    }
}

} // namespace entry
