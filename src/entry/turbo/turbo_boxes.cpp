#include "entry/turbo/turbo_boxes.h"

#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/key_filter.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;
using widgets::FormKit;
using widgets::KeyFilter;

namespace entry {

namespace {

// Three columns stand beside the lists also where the window is small.
constexpr int kLeastWidth = 40;
constexpr int kNameWidth = 54;
constexpr int kNumberWidth = 116; ///< of a telephone; less where the area code stands before it
constexpr int kShortNumberWidth = 82;

QString notStored()
{
    return TurboBoxes::tr("For your eyes only: this is not stored with the contact");
}

void personColumn(FormKit& kit)
{
    kit.group(TurboBoxes::tr("Person"))
        .line(u"txtfirst"_s, TurboBoxes::tr("First"), u"First"_s)
        .line(u"txtlast"_s, TurboBoxes::tr("Last"), u"Last"_s)
        .line(u"txtnick"_s, TurboBoxes::tr("Nick"), u"nick"_s)
        .line(u"TxtMaiden"_s, TurboBoxes::tr("Maiden"), u"Maiden"_s)
        .date(u"dtpBirtday"_s, TurboBoxes::tr("Birthday"), u"M_BD"_s)
        .date(u"SSDateAnn"_s, TurboBoxes::tr("Anniversary"), u"Anniv"_s)
        .group(TurboBoxes::tr("Family"))
        .line(u"TxtSpouse"_s, TurboBoxes::tr("Spouse"), u"Spouse"_s)
        .line(u"Txtkid1"_s, TurboBoxes::tr("Kid 1"), u"kid1"_s)
        .beside()
        .date(u"Datekid1"_s, {}, u"Kid1_BD"_s)
        .hint(TurboBoxes::tr("Birthday of the first kid"))
        .line(u"TxtKid2"_s, TurboBoxes::tr("Kid 2"), u"kid2"_s)
        .beside()
        .date(u"datekid2"_s, {}, u"Kid2_BD"_s)
        .hint(TurboBoxes::tr("Birthday of the second kid"))
        .line(u"TxtKid3"_s, TurboBoxes::tr("Kid 3"), u"kid3"_s)
        .beside()
        .date(u"datekid3"_s, {}, u"Kid3_BD"_s)
        .hint(TurboBoxes::tr("Birthday of the third kid"))
        .group(TurboBoxes::tr("Class"))
        .line(u"txtCat"_s, TurboBoxes::tr("Category"), {})
        .hint(TurboBoxes::tr("Category and subcategory, with - between"))
        .line(u"TxtPriority"_s, TurboBoxes::tr("Priority"), u"Priority"_s, KeyFilter::Digits)
        .line(u"txtregion"_s, TurboBoxes::tr("Region"), u"region"_s)
        .line(u"txtstatus"_s, TurboBoxes::tr("Status"), u"Status"_s)
        .line(u"TxtRelation"_s, TurboBoxes::tr("Relation"), u"Relation"_s);
}

void homeColumn(FormKit& kit)
{
    kit.nextColumn()
        .group(TurboBoxes::tr("Home"))
        .line(u"txthadd1"_s, TurboBoxes::tr("Address"), u"h_add1"_s)
        .line(u"txthadd2"_s, {}, u"h_add2"_s)
        .line(u"txthcity"_s, TurboBoxes::tr("City"), u"h_city"_s)
        .line(u"TxthZip"_s, TurboBoxes::tr("Zip"), u"h_pin"_s)
        .line(u"TxtHState"_s, TurboBoxes::tr("State"), u"h_state"_s)
        .hint(notStored())
        .line(u"txthcountry"_s, TurboBoxes::tr("Country"), u"h_country"_s)
        .hint(TurboBoxes::tr("Stored as the country of both addresses"))
        .line(u"txthstd"_s, TurboBoxes::tr("Phone 1"), u"h_std"_s, KeyFilter::NoLetters)
        .hint(TurboBoxes::tr("Area code"))
        .beside(2)
        .line(u"txthph1"_s, {}, u"H_Ph1"_s)
        .line(u"txthph2"_s, TurboBoxes::tr("Phone 2"), u"h_ph2"_s)
        .line(u"txthph3"_s, TurboBoxes::tr("Phone 3"), u"h_ph3"_s)
        .line(u"txtMobile"_s, TurboBoxes::tr("Mobile"), u"Mobile"_s)
        .line(u"txthemail1"_s, TurboBoxes::tr("E-mail"), u"H_email1"_s)
        .beside()
        .line(u"txthemailSuffix"_s, TurboBoxes::tr("@"), {})
        .hint(TurboBoxes::tr("What stands behind the @ of the e-mail address"))
        .line(u"txtHweb"_s, TurboBoxes::tr("Web"), u"h_web"_s)
        .group(TurboBoxes::tr("Hobbies, own fields"))
        .line(u"TxtHobbies"_s, TurboBoxes::tr("Hobbies"), u"Hobbies"_s)
        .line(u"TxtUser1"_s, TurboBoxes::tr("User 1"), u"User1"_s)
        .line(u"TxtUser2"_s, TurboBoxes::tr("User 2"), u"User2"_s)
        .line(u"TxtUser3"_s, TurboBoxes::tr("User 3"), u"User3"_s);
}

void workColumn(FormKit& kit)
{
    kit.nextColumn()
        .group(TurboBoxes::tr("Work"))
        .line(u"txtwadd1"_s, TurboBoxes::tr("Address"), u"w_add1"_s)
        .line(u"txtwadd2"_s, {}, u"w_add2"_s)
        .line(u"txtwcity"_s, TurboBoxes::tr("City"), u"w_city"_s)
        .line(u"TxtwZip"_s, TurboBoxes::tr("Zip"), u"w_pin"_s)
        .line(u"TxtWState"_s, TurboBoxes::tr("State"), u"w_State"_s)
        .hint(notStored())
        .line(u"txtwcountry"_s, TurboBoxes::tr("Country"), u"w_country"_s)
        .hint(TurboBoxes::tr("For your eyes only: the country of the home address is stored for both"))
        .line(u"txtwstd"_s, TurboBoxes::tr("Phone 1"), u"W_std"_s, KeyFilter::NoLetters)
        .hint(TurboBoxes::tr("Area code"))
        .beside(2)
        .line(u"txtwph1"_s, {}, u"w_Ph1"_s)
        .line(u"txtwph2"_s, TurboBoxes::tr("Phone 2"), u"w_Ph2"_s)
        .line(u"txtwph3"_s, TurboBoxes::tr("Phone 3"), u"w_ph3"_s)
        .line(u"txtfax"_s, TurboBoxes::tr("Fax"), u"fax"_s)
        .line(u"txtwemail1"_s, TurboBoxes::tr("E-mail"), u"b_email1"_s)
        .line(u"txtWweb"_s, TurboBoxes::tr("Web"), u"B_Web"_s)
        .group(TurboBoxes::tr("Company"))
        .line(u"txtcompany"_s, TurboBoxes::tr("Company"), u"Company"_s)
        .line(u"txtcompsuffix"_s, TurboBoxes::tr("Suffix"), u"Company"_s)
        .hint(TurboBoxes::tr("Stored directly behind the company, without a blank between"))
        .beside()
        .line(u"txtwAddtype"_s, TurboBoxes::tr("Type"), u"W_AddType"_s)
        .hint(notStored())
        .line(u"txtJobTitle"_s, TurboBoxes::tr("Job title"), u"Job_Title"_s)
        .line(u"txtproduct"_s, TurboBoxes::tr("Product"), u"Product"_s)
        .line(u"TxtBusiness"_s, TurboBoxes::tr("Note"), u"b_note"_s)
        .hint(TurboBoxes::tr("The business note"));
}

QGroupBox* groupOf(const QWidget* box)
{
    auto* group = qobject_cast<QGroupBox*>(box->parentWidget());
    Q_ASSERT(group);
    return group;
}

} // namespace

TurboBoxes::TurboBoxes(const FormKit::SizeOf& sizeOf, QWidget* parent)
    : QScrollArea(parent)
{
    auto* page = new QWidget;
    setObjectName(u"boxes"_s);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setWidget(page);
    layOut(page, sizeOf);
    setFocusPolicy(Qt::NoFocus);
    activate(Block::Home);
}

void TurboBoxes::layOut(QWidget* page, const FormKit::SizeOf& sizeOf)
{
    FormKit kit(page, sizeOf);
    kit.wrap();
    personColumn(kit);
    homeColumn(kit);
    workColumn(kit);
    page->layout()->setContentsMargins(0, 0, 0, 0);
    m_boxes = widgets::FieldSet(page);
    for (const widgets::Control& control : m_boxes.controls()) {
        const bool isDate = qobject_cast<widgets::DateBox*>(control.widget) != nullptr;
        if (!isDate)
            control.widget->setMinimumWidth(
                std::clamp(control.widget->minimumWidth(), kLeastWidth, kNumberWidth));
        control.widget->installEventFilter(this);
    }
    for (const QStringView kid : {u"Txtkid1", u"TxtKid2", u"TxtKid3"})
        box(kid)->setMinimumWidth(kNameWidth);
    for (const QStringView number : {u"txthph1", u"txtwph1"})
        box(number)->setMinimumWidth(kShortNumberWidth);
    for (const QStringView code : {u"txthstd", u"txtwstd"})
        box(code)->setMinimumWidth(kLeastWidth + 4);
    for (const QStringView code : {u"txthstd", u"txtwstd"})
        box(code)->setAccessibleName(tr("Area code"));
    m_homeGroup = groupOf(box(u"txthcity"));
    m_workGroup = groupOf(box(u"txtwcity"));
}

QWidget* TurboBoxes::box(QStringView name) const
{
    return widgets::child<QWidget>(this, name.toString());
}

void TurboBoxes::setDateFormat(const QString& pattern)
{
    for (const widgets::Control& control : m_boxes.controls()) {
        if (auto* date = qobject_cast<widgets::DateBox*>(control.widget))
            date->setFormat(pattern);
    }
}

void TurboBoxes::clear()
{
    m_boxes.clear();
    m_boxes.keepAsLoaded();
    m_lastPhone.clear();
    activate(Block::Home);
}

bool TurboBoxes::mendDates() const
{
    widgets::DateBox* bad = m_boxes.firstBadDate();
    if (bad)
        bad->askToMend();
    return !bad;
}

void TurboBoxes::clearFocused()
{
    for (const widgets::Control& control : m_boxes.controls()) {
        if (control.widget->hasFocus())
            widgets::clear(control.widget);
    }
}

QString TurboBoxes::text(QStringView name) const
{
    return widgets::textOf(box(name));
}

void TurboBoxes::setText(QStringView name, const QString& text)
{
    widgets::setTextOf(box(name), text);
}

std::optional<QDate> TurboBoxes::date(QStringView name) const
{
    return qobject_cast<const widgets::DateBox*>(box(name))->date();
}

void TurboBoxes::setDate(QStringView name, QDate date)
{
    qobject_cast<widgets::DateBox*>(box(name))->setDate(date);
}

/// The label of a box; one without a label of its own stands beside or under the one that has it.
QLabel* TurboBoxes::labelOf(QStringView name) const
{
    const QList<QLabel*> labels = findChildren<QLabel*>();
    const QList<widgets::Control>& boxes = m_boxes.controls();
    const auto found = std::ranges::find(boxes, name, &widgets::Control::name);
    for (qsizetype at = found - boxes.begin(); at >= 0; --at) {
        const auto label = std::ranges::find(labels, boxes[at].widget, &QLabel::buddy);
        if (label != labels.end())
            return *label;
    }
    return nullptr;
}

void TurboBoxes::markTarget(QStringView name)
{
    const auto embolden = [](QLabel* label, bool bold) {
        QFont font = label->font();
        font.setBold(bold);
        label->setFont(font);
    };
    if (m_marked)
        embolden(m_marked, false);
    m_marked = labelOf(name);
    if (m_marked)
        embolden(m_marked, true);
}

void TurboBoxes::bringInSight(QStringView name)
{
    ensureWidgetVisible(box(name));
}

void TurboBoxes::focusBox(QStringView name)
{
    bringInSight(name);
    m_byProgram = true;
    box(name)->setFocus();
    m_byProgram = false;
}

// ---- who was entered

bool TurboBoxes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        boxEntered(watched->objectName());
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Q_EMIT boxDone(watched->objectName());
            return true;
        }
    }
    return QScrollArea::eventFilter(watched, event);
}

void TurboBoxes::boxEntered(const QString& name)
{
    const auto phones = padBoxes();
    if (std::ranges::find(phones, name) != phones.end())
        m_lastPhone = name;
    if (m_byProgram)
        return;
    const QWidget* group = box(name)->parentWidget();
    if (group == m_homeGroup)
        activate(Block::Home);
    else if (group == m_workGroup)
        activate(Block::Work);
}

void TurboBoxes::activate(Block block)
{
    m_block = block;
    const auto show = [](QGroupBox* group, const QString& name, bool active) {
        group->setTitle(active ? tr("%1: takes City, Zip and URL").arg(name) : name);
        group->setToolTip(active
                ? tr("City, Zip and URL go to this address, since one of its boxes was entered "
                     "last. To choose the other address, enter one of its boxes.")
                : tr("Enter a box here, and City, Zip and URL go to this address"));
    };
    show(m_homeGroup, tr("Home"), block == Block::Home);
    show(m_workGroup, tr("Work"), block == Block::Work);
    Q_EMIT blockChanged();
}

// ---- digit pad

QString TurboBoxes::phoneBox() const
{
    return padBox(m_lastPhone).toString();
}

void TurboBoxes::appendDigit(const QString& digit)
{
    setText(phoneBox(), text(phoneBox()) + digit);
}

void TurboBoxes::takeBack()
{
    setText(phoneBox(), text(phoneBox()).chopped(qMin<qsizetype>(1, text(phoneBox()).size())));
}

} // namespace entry
