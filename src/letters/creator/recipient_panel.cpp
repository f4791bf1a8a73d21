#include "letters/creator/recipient_panel.h"

#include "core/contact_lookups.h"
#include "core/context.h"
#include "core/progress.h"
#include "core/sql_text.h"
#include "core/vocabularies.h"
#include "letters/creator/letter_lists.h"
#include "letters/creator/people_picker.h"
#include "platform/message_boxes.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QStackedLayout>

#include <algorithm>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

struct Box {
    QStringView name;
    QString& (*part)(Recipient&);
};
constexpr std::array kBoxes{
    Box{u"txtfirst", [](Recipient& to) -> QString& { return to.salutation; }},
    Box{u"txtadd1", [](Recipient& to) -> QString& { return to.address.line1; }},
    Box{u"txtadd2", [](Recipient& to) -> QString& { return to.address.line2; }},
    Box{u"DBCcity", [](Recipient& to) -> QString& { return to.address.city; }},
    Box{u"DBcstate", [](Recipient& to) -> QString& { return to.address.state; }},
    Box{u"DBCcountry", [](Recipient& to) -> QString& { return to.address.country; }},
    Box{u"DBCPin", [](Recipient& to) -> QString& { return to.address.pin; }},
};
constexpr size_t kFirstOfAddress = 1;

constexpr qsizetype kMany = 1000; ///< more are taken only when the person means it
constexpr int kListHeight = 92; ///< of the least list: its heading and two people

} // namespace

RecipientPanel::RecipientPanel(core::Context& context, Ticks ticks, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_ticks(ticks)
    , m_pages(new QStackedLayout(this))
    , m_fields(new QWidget)
    , m_picker(new PeoplePicker(context.data))
    , list1(new widgets::HeadingGrid)
{
    m_pages->addWidget(m_fields);
    m_pages->addWidget(m_picker);
    layOut();
    connectControls();
    setFocusProxy(DBCperson);
}

void RecipientPanel::layOut()
{
    const bool hasTicks = m_ticks == Ticks::Shown;
    list1->setHeadings(
        u"   |To                 |City        ", {hasTicks ? u"tick"_s : QString(), u"name"_s, u"city"_s});
    if (hasTicks) {
        list1->setTickColumn(u"tick"_s);
        list1->setMayTick(true);
    }
    list1->letColumnsGiveWay();
    list1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list1->setEmptyText(tr("Nobody yet. Type a name above,\nor choose people with \"Select\"."));
    list1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list1->setMinimumHeight(kListHeight);
    widgets::FormKit form(m_fields);
    form.group(tr("Recipients"))
        .combo(u"DBCperson"_s, tr("&To"))
        .hint(tr("Enter puts the name into the list; one that is not in the address book is taken as well"))
        .beside()
        .button(u"CmdAddPerson"_s, tr("Add"), u"add", tr("Write to this person (Enter)"))
        .wide(u"list1"_s, tr("Recipients of the letter"), list1)
        .button(u"CmdSelect"_s, tr("Select..."), u"persons",
            tr("Choose people by category, mailing list or print selection"))
        .button(
            u"CmdRemove"_s, tr("Remove"), u"delete", tr("Take those that are selected off the list (Del)"))
        .beside()
        .caption(u"lblRecipients"_s)
        .group(tr("Address on the letter"))
        .fixedCombo(u"Combo1"_s, tr("Address t&ype"))
        .line(u"txtfirst"_s, tr("&Dear"))
        .line(u"txtadd1"_s, tr("&Address"))
        .line(u"txtadd2"_s, {})
        .combo(u"DBCcity"_s, tr("&City"))
        .beside()
        .line(u"DBcstate"_s, tr("State"))
        .combo(u"DBCcountry"_s, tr("Country"))
        .beside()
        .line(u"DBCPin"_s, tr("Pin"))
        .stretch();
    m_fields->layout()->setContentsMargins(0, 0, 0, 0);
    DBCperson = child<widgets::FilledCombo>(this, u"DBCperson"_s);
    Combo1 = child<widgets::FilledCombo>(this, u"Combo1"_s);
    m_count = child<QLabel>(this, u"lblRecipients"_s);
    for (const Box& box : kBoxes)
        m_boxes << child<QWidget>(m_fields, box.name.toString());
    Combo1->setValues(addressTypes());
    Combo1->setCurrentIndex(0);
}

void RecipientPanel::connectControls()
{
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"CmdAddPerson"_s, &RecipientPanel::takeTypedName);
    onClick(u"CmdSelect"_s, &RecipientPanel::showPicker);
    onClick(u"CmdRemove"_s, &RecipientPanel::removeSelected);
    connect(DBCperson->lineEdit(), &QLineEdit::returnPressed, this, &RecipientPanel::takeTypedName);
    connect(DBCperson, &QComboBox::activated, this, &RecipientPanel::takeTypedName);
    connect(list1, &widgets::HeadingGrid::currentRowChanged, this, [this] {
        showCurrent();
        Q_EMIT currentChanged();
    });
    auto* remove = new QAction(tr("Remove"), this);
    remove->setShortcut(Qt::Key_Delete);
    remove->setShortcutContext(Qt::WidgetShortcut);
    connect(remove, &QAction::triggered, this, &RecipientPanel::removeSelected);
    list1->addAction(remove);
    list1->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(Combo1, &QComboBox::currentIndexChanged, this, &RecipientPanel::chooseType);
    connect(list1, &widgets::HeadingGrid::tickChanged, this, [this](int row) {
        m_wanted[row] = list1->isTicked(row);
        tellCount();
        Q_EMIT changed();
    });
    for (size_t box = 0; box < kBoxes.size(); ++box) {
        const auto take = [this, box] { takeBox(box); };
        if (auto* line = qobject_cast<QLineEdit*>(m_boxes.at(qsizetype(box))))
            connect(line, &QLineEdit::textEdited, this, take);
        else
            connect(qobject_cast<QComboBox*>(m_boxes.at(qsizetype(box))), &QComboBox::currentTextChanged,
                this, take);
    }
    connect(m_picker, &PeoplePicker::picked, this, qOverload<const QList<qint64>&>(&RecipientPanel::add));
    connect(m_picker, &PeoplePicker::finished, this, [this] {
        m_pages->setCurrentWidget(m_fields);
        list1->setFocus();
    });
}

void RecipientPanel::load()
{
    DBCperson->setSource([this] {
        QStringList names = core::firstColumn(m_context.data, recipientNamesSql());
        names.removeAll(QString());
        return names;
    });
    for (const auto& [name, vocabulary] : {std::pair{u"DBCcity", core::Vocabulary::TopCities},
             std::pair{u"DBCcountry", core::Vocabulary::Countries}})
        child<widgets::FilledCombo>(this, QStringView(name).toString())->setSource([this, list = vocabulary] {
            return core::readVocabulary(m_context.data, m_context.info, list, m_context.shared.NationalMode);
        });
    fillList(-1);
}

// Who was taken out of the book stays on the letter, as somebody who is not in it.
void RecipientPanel::bookChanged()
{
    DBCperson->refill();
    m_picker->readAgain();
    if (!m_isAddressTyped)
        return readAddresses();
    for (Recipient& to : m_recipients) {
        if (to.id != 0 && m_context.data.openRecordset(core::contactNameSql(to.id)).isEmpty())
            to.id = 0;
    }
}

// ---- who

QList<Recipient> RecipientPanel::recipients() const
{
    if (m_recipients.isEmpty() && m_free != Recipient())
        return {m_free};
    if (m_ticks == Ticks::None)
        return m_recipients;
    QList<Recipient> wanted;
    for (qsizetype row = 0; row < m_recipients.size(); ++row) {
        if (m_wanted.at(row))
            wanted << m_recipients.at(row);
    }
    return wanted;
}

Recipient RecipientPanel::current() const
{
    return m_recipients.value(list1->currentRow(), m_free);
}

bool RecipientPanel::isTyped() const
{
    return m_isAddressTyped || m_free != Recipient()
        || std::any_of(
            m_recipients.begin(), m_recipients.end(), [](const Recipient& to) { return to.id == 0; });
}

AddressType RecipientPanel::addressType() const
{
    return AddressType(std::max(0, m_type));
}

void RecipientPanel::setAddressType(AddressType type)
{
    m_type = int(type);
    Combo1->setCurrentIndex(m_type);
}

void RecipientPanel::setRecipients(const QList<Recipient>& recipients, bool areAsInBook)
{
    m_recipients = recipients;
    m_wanted = QList<bool>(recipients.size(), true);
    m_free = {};
    m_isAddressTyped = !areAsInBook;
    fillList(m_recipients.isEmpty() ? -1 : 0);
    Q_EMIT changed();
}

std::optional<QList<Recipient>> RecipientPanel::readContacts(const QList<qint64>& ids)
{
    QList<Recipient> found;
    core::Progress progress(u"recipientProgress"_s, tr("Recipients"), tr("Reading the addresses"),
        static_cast<int>(ids.size()), this, 2000);
    int done = 0;
    for (const qint64 id : ids) {
        const jet::Recordset contact
            = m_context.data.openRecordset(u"select * from cnt_main where id="_s + QString::number(id));
        if (contact.hasRow())
            found << recipientOf(contact, addressType());
        if (!progress.advance(++done))
            return std::nullopt;
    }
    return found;
}

void RecipientPanel::add(const QList<qint64>& ids)
{
    QSet<qint64> there;
    for (const Recipient& to : std::as_const(m_recipients))
        there.insert(to.id);
    QList<qint64> added = ids;
    added.removeIf([&there](qint64 id) { return there.contains(id); });
    if (added.size() > kMany
        && m_context.services.boxes.ask(tr("Do you want to write to %1 people?").arg(added.size()),
               m_context.shared.AppTitle, platform::Icon::Warning)
            == platform::Answer::No)
        return;
    if (const auto found = readContacts(added))
        add(*found);
}

void RecipientPanel::add(const QList<Recipient>& recipients)
{
    if (recipients.isEmpty())
        return;
    if (m_recipients.isEmpty() && !m_free.address.isEmpty())
        m_recipients << m_free;
    m_free = {};
    m_recipients << recipients;
    while (m_wanted.size() < m_recipients.size())
        m_wanted << true;
    fillList(static_cast<int>(m_recipients.size()) - 1);
    Q_EMIT changed();
}

// Of several people with the name all are put into the list, where their cities tell them apart.
qsizetype RecipientPanel::takeTypedName()
{
    const QString name = DBCperson->currentText().trimmed();
    if (name.isEmpty())
        return 0;
    const jet::Recordset known = m_context.data.openRecordset(
        u"select id from cnt_main where name='"_s + core::inQuotes(name) + u'\'');
    QList<qint64> ids;
    for (int row = 0; row < known.count(); ++row)
        ids << known.valueAt(row, 0).toLongLong();
    DBCperson->setText({});
    if (!ids.isEmpty()) {
        add(ids);
        return ids.size();
    }
    Recipient stranger = m_recipients.isEmpty() ? m_free : Recipient();
    stranger.name = name;
    if (stranger.salutation.trimmed().isEmpty())
        stranger.salutation = name;
    m_free = {};
    add(QList<Recipient>{stranger});
    Q_EMIT typed();
    m_boxes.at(kFirstOfAddress)->setFocus();
    return 0;
}

void RecipientPanel::removeSelected()
{
    QList<int> rows;
    for (const QModelIndex& index : list1->selectionModel()->selectedRows())
        rows << index.row();
    std::sort(rows.rbegin(), rows.rend());
    if (rows.isEmpty())
        return;
    for (const int row : std::as_const(rows)) {
        m_recipients.removeAt(row);
        m_wanted.removeAt(row);
    }
    fillList(std::min(rows.constLast(), static_cast<int>(m_recipients.size()) - 1));
    Q_EMIT changed();
}

void RecipientPanel::showPicker()
{
    m_pages->setCurrentWidget(m_picker);
    m_picker->open();
}

void RecipientPanel::fillList(int row)
{
    QList<QStringList> rows;
    for (const Recipient& to : std::as_const(m_recipients))
        rows << QStringList{QString(), to.name, to.address.city};
    {
        const QSignalBlocker quiet(list1);
        list1->setRows(rows, {u"tick"_s, u"name"_s, u"city"_s});
        list1->tickRows([this](int each) { return m_wanted.value(each); });
        list1->setCurrentRow(row);
    }
    tellCount();
    child<QPushButton>(this, u"CmdRemove"_s)->setEnabled(!m_recipients.isEmpty());
    showCurrent();
    Q_EMIT currentChanged();
}

void RecipientPanel::tellCount()
{
    const qsizetype count = recipients().size();
    m_count->setText(m_recipients.size() > 1 ? tr("%1 recipients").arg(count) : QString());
}

// ---- where

void RecipientPanel::showCurrent()
{
    Recipient to = current();
    m_isShowing = true;
    for (qsizetype box = 0; box < m_boxes.size(); ++box)
        widgets::setTextOf(m_boxes.at(box), kBoxes.at(size_t(box)).part(to));
    m_isShowing = false;
}

// Only the box that was changed: a line shows less than an address of several lines holds.
void RecipientPanel::takeBox(size_t box)
{
    if (m_isShowing)
        return;
    const int row = list1->currentRow();
    const bool isListed = row >= 0 && row < m_recipients.size();
    Recipient& to = isListed ? m_recipients[row] : m_free;
    kBoxes.at(box).part(to) = widgets::textOf(m_boxes.at(qsizetype(box)));
    if (!isListed)
        to.name = to.salutation;
    m_isAddressTyped |= box >= kFirstOfAddress;
    Q_EMIT typed();
    Q_EMIT changed();
}

void RecipientPanel::chooseType()
{
    const int type = Combo1->currentIndex();
    if (type == m_type)
        return;
    if (m_isAddressTyped
        && m_context.services.boxes.ask(
               tr("You have changed an address by hand. Do you want to replace it by that of the book?"),
               m_context.shared.AppTitle, platform::Icon::Warning)
            == platform::Answer::No) {
        Combo1->setCurrentIndex(m_type);
        return;
    }
    m_type = type;
    m_isAddressTyped = false;
    readAddresses();
    Q_EMIT changed();
}

void RecipientPanel::readAddresses()
{
    for (Recipient& to : m_recipients) {
        if (to.id == 0)
            continue;
        const jet::Recordset contact
            = m_context.data.openRecordset(u"select * from cnt_main where id="_s + QString::number(to.id));
        if (!contact.hasRow()) {
            to.id = 0;
            continue;
        }
        const QString spokenTo = to.salutation == to.name ? QString() : to.salutation;
        to = recipientOf(contact, addressType());
        if (!spokenTo.isEmpty())
            to.salutation = spokenTo;
    }
    fillList(list1->currentRow());
}

} // namespace letters
