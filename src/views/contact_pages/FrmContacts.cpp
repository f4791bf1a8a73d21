#include "views/contact_pages/FrmContacts.h"

#include "core/contact_category.h"
#include "core/contact_lookups.h"
#include "core/contact_names.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/date_patterns.h"
#include "core/mail_key.h"
#include "core/merged_category.h"
#include "core/save_failure.h"
#include "core/scheduler_rows.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "platform/clock.h"
#include "platform/contact_sync.h"
#include "platform/message_boxes.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"
#include "widgets/theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;
using core::Vocabulary;
using widgets::child;

namespace views {

namespace {

constexpr QStringView kRowTools[] = {u"Edit", u"Delete", u"Caller", u"ID_Ex", u"Letter2"};

struct ListRow {
    QStringView control;
    Vocabulary list;
};
constexpr ListRow kLists[] = {
    {u"dtcmbfname", Vocabulary::FirstNames},
    {u"dtcmblname", Vocabulary::LastNames},
    {u"dtcmbcity", Vocabulary::TopCities},
    {u"dtcmbcountry", Vocabulary::Countries},
};

} // namespace

FrmContacts::FrmContacts(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_tools(new core::ContactTools(context, core::selectorTools(),
          {.callerForm = u"FrmContacts"_s,
              .chosen =
                  [this] {
                      return core::ChosenContact{m_id, m_id};
                  },
              .sounds = true},
          this))
    , DBList1(new widgets::RecordList)
    , lblname(new QLabel)
    , m_mode(new QLabel)
{
    setWindowTitle(tr("Contacts"));
    DBList1->setObjectName(u"DBList1"_s);
    DBList1->setAccessibleName(tr("Contacts"));
    DBList1->setEmptyText(tr("No contacts yet"));
    DBList1->setMinimumWidth(200);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(DBList1);
    splitter->addWidget(layOutForm());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 700});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(splitter);
    setFocusProxy(DBList1);
    setSources();
    connectControls();
}

QWidget* FrmContacts::layOutForm()
{
    lblname->setObjectName(u"lblname"_s);
    lblname->setTextFormat(Qt::PlainText);
    lblname->setStyleSheet(u"font-size: 15pt; font-weight: 600;"_s);
    lblname->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_mode->setObjectName(u"lblview"_s);
    m_mode->setForegroundRole(QPalette::PlaceholderText);
    auto* head = new QHBoxLayout;
    head->setContentsMargins(12, 4, 12, 0);
    head->addWidget(lblname, 1);
    head->addWidget(m_mode);
    auto* fields = new QWidget;
    layOutName(fields);
    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addWidget(fields, 1);
    return side;
}

void FrmContacts::layOutName(QWidget* page)
{
    widgets::FormKit form(
        page, [this](QStringView column) { return context().schema.textSize(u"cnt_main", column); });
    form.group(tr("Name"))
        .combo(u"Cmbtitle"_s, tr("&Title"), u"Title"_s)
        .combo(u"dtcmbfname"_s, tr("&First name"), u"First"_s)
        .combo(u"dtcmblname"_s, tr("&Last name"), u"Last"_s)
        .line(u"txtcmpny"_s, tr("C&ompany"), u"Company"_s)
        .fixedCombo(u"cmbnview"_s, tr("Name &view"), u"Nview"_s)
        .hint(tr("How the name is put together for the lists"))
        .combo(u"DtcmbCate"_s, tr("Cate&gory"), u"category1"_s)
        .combo(u"DtcmbSubCate"_s, tr("S&ub category"), u"category2"_s)
        .date(u"DateBday"_s, tr("&Birthday"), u"M_BD"_s);
    form.group(tr("Note"));
    form.memo(u"txtMemo"_s, {}, u"memo1"_s, 4);
    form.last()->setAccessibleName(tr("Note"));
    form.nextColumn()
        .group(tr("Phone and e-mail"))
        .line(u"txtMobile"_s, tr("&Mobile"), u"Mobile"_s)
        .line(u"txtstd"_s, tr("&Home"), u"h_std"_s, widgets::KeyFilter::NoLetters)
        .hint(tr("Area code"))
        .beside(2)
        .line(u"txtph1"_s, {}, u"H_Ph1"_s)
        .line(u"txtbph1"_s, tr("&Work"), u"B_Ph1"_s)
        .line(u"txtemail1"_s, tr("&E-mail"), u"H_email1"_s);
    form.group(tr("Home address"))
        .line(u"txtadd1"_s, tr("&Address"), u"h_add1"_s)
        .line(u"txtadd2"_s, {}, u"h_add2"_s)
        .combo(u"dtcmbcity"_s, tr("C&ity"), u"h_city"_s)
        .line(u"dtcmbpin"_s, tr("&Pin"), u"h_pin"_s)
        .line(u"dtcmbstate"_s, tr("Stat&e"), u"h_state"_s)
        .combo(u"dtcmbcountry"_s, tr("Count&ry"), u"h_country"_s);
    form.buttonRow()
        .button(u"SSCommand3"_s, tr("&New"), u"person-add", tr("Enter another contact (Ctrl+N)"))
        .button(u"CmdDelete"_s, tr("&Delete"), u"delete", tr("Delete this contact"))
        .stretch()
        .button(u"Command1"_s, tr("&Save"), u"save", tr("Save what was entered (Ctrl+S)"))
        .button(u"CmdCancel"_s, tr("&Cancel"), u"cancel", tr("Take back what was entered (Esc)"));
    DateBday = child<widgets::DateBox>(page, u"DateBday"_s);
}

void FrmContacts::setSources()
{
    const auto combo
        = [this](QStringView name) { return child<widgets::FilledCombo>(this, name.toString()); };
    const auto words = [this](Vocabulary list) {
        return core::readVocabulary(context().data, context().info, list, shared().NationalMode);
    };
    for (const ListRow& row : kLists)
        combo(row.control)->setSource([words, list = row.list] { return words(list); });
    combo(u"DtcmbCate")->setSource([this, words] {
        return words(shared().ContMerge ? Vocabulary::MergedCategories : Vocabulary::Categories);
    });
    combo(u"DtcmbSubCate")->setSource([this, combo] {
        return core::firstColumn(context().data, core::subcategoriesSql(combo(u"DtcmbCate")->currentText()));
    });
    connect(combo(u"DtcmbCate"), &QComboBox::currentTextChanged, combo(u"DtcmbSubCate"),
        &widgets::FilledCombo::refill);
    combo(u"Cmbtitle")->setValues({u"Dr."_s, u"Miss."_s, u"Mr."_s, u"Mrs."_s, u"Ms."_s, u"Prof."_s});
    combo(u"cmbnview")->setValues(core::nameViews());
    m_isMerged = shared().ContMerge;
    if (m_isMerged)
        core::showSubcategory(this, false);
}

// What was typed and not saved stays, in the new way.
void FrmContacts::vocabulariesChanged()
{
    Screen::vocabulariesChanged();
    if (m_isMerged == shared().ContMerge)
        return;
    const bool wasTouched = isTouched();
    m_isMerged = shared().ContMerge;
    core::mergeCategoryLists(this, m_isMerged);
    if (!wasTouched)
        m_untouched = values();
}

void FrmContacts::connectControls()
{
    const auto onClick = [this](const QString& name, auto handler) {
        auto* button = child<QPushButton>(this, name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, handler);
    };
    const auto startAnother = [this] {
        if (mayDiscard())
            startNew();
    };
    onClick(u"SSCommand3"_s, startAnother);
    onClick(u"CmdDelete"_s, [this] { m_tools->action(u"Delete")->trigger(); });
    onClick(u"Command1"_s, &FrmContacts::save);
    onClick(u"CmdCancel"_s, &FrmContacts::cancel);
    connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, this, startAnother);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, &FrmContacts::save);
    connect(m_tools, &core::ContactTools::contactDeleted, this, &FrmContacts::afterDelete);

    auto* menu = new QMenu(this);
    menu->setObjectName(u"Menu"_s);
    menu->setToolTipsVisible(true);
    for (const QStringView id : kRowTools)
        menu->addAction(m_tools->action(id));
    DBList1->addAction(m_tools->action(u"Delete"));
    DBList1->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(DBList1, &QWidget::customContextMenuRequested, this,
        [this, menu](const QPoint& at) { menu->popup(DBList1->viewport()->mapToGlobal(at)); });
    connect(DBList1, &widgets::RecordList::currentRowChanged, this, &FrmContacts::rowChanged);
    connect(DBList1, &widgets::RecordList::chosen, this,
        [this] { child<QWidget>(this, u"dtcmbfname"_s)->setFocus(); });
    for (const QString& name : {u"Cmbtitle"_s, u"dtcmbfname"_s, u"dtcmblname"_s, u"cmbnview"_s})
        connect(child<QComboBox>(this, name), &QComboBox::currentTextChanged, this, &FrmContacts::showHead);
    connect(child<QLineEdit>(this, u"txtcmpny"_s), &QLineEdit::textChanged, this, &FrmContacts::showHead);
}

void FrmContacts::load()
{
    setFrameTitle(u"Contacts"_s);
    DateBday->setFormat(core::datePattern(shared().NationalMode));
    readList();
    startNew();
}

// What is being typed stays.
void FrmContacts::bookChanged()
{
    readList();
    if (!isTouched() && m_id != 0)
        display(m_id);
}

void FrmContacts::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Escape)
        return Screen::keyPressEvent(event);
    if (isTouched())
        cancel();
    else
        Q_EMIT closeRequested();
}

bool FrmContacts::showContact(qint64 id)
{
    if (id == 0 || !context().data.openRecordset(core::contactByIdSql(id)).hasRow())
        return false;
    if (id == m_id || mayDiscard())
        display(id);
    return true;
}

void FrmContacts::readList()
{
    const bool quiet = std::exchange(m_quiet, true);
    DBList1->fill(context().data.openRecordset(core::contactListSql()));
    if (m_id == 0 || !DBList1->selectKey(m_id))
        DBList1->setCurrentRow(-1);
    m_quiet = quiet;
}

void FrmContacts::rowChanged(int row)
{
    const qint64 id = DBList1->keyAt(row);
    if (m_quiet || id == 0 || id == m_id)
        return;
    if (mayDiscard())
        return display(id);
    // The list goes back behind the event that moved it.
    QMetaObject::invokeMethod(
        this,
        [this] {
            const bool quiet = std::exchange(m_quiet, true);
            if (m_id == 0 || !DBList1->selectKey(m_id))
                DBList1->setCurrentRow(-1);
            m_quiet = quiet;
        },
        Qt::QueuedConnection);
}

void FrmContacts::display(qint64 id)
{
    const jet::Recordset contact = context().data.openRecordset(core::contactByIdSql(id));
    if (!contact.hasRow())
        return startNew();
    m_id = id;
    m_loaded = core::LoadedRow(contact);
    shared().selectedContactId = id;
    shared().selectedContactName = contact.textOrEmpty(u"Name");
    showValues(simpleValuesOf(contact, shared().ContMerge));
    const bool quiet = std::exchange(m_quiet, true);
    if (DBList1->currentKey() != id)
        DBList1->selectKey(id);
    m_quiet = quiet;
}

void FrmContacts::startNew()
{
    m_id = 0;
    SimpleValues blank;
    const jet::Recordset setup = core::readSettings(context().data);
    const core::Category category{setup.hasRow() ? setup.textOrEmpty(u"categ1") : QString(),
        setup.hasRow() ? setup.textOrEmpty(u"categ2") : QString()};
    blank.texts = {{u"Cmbtitle"_s, u"Mr."_s}, {u"cmbnview"_s, core::nameViews().constFirst()},
        {u"DtcmbCate"_s,
            category.category.isEmpty() ? QString() : core::shownCategory(category, shared().ContMerge)},
        {u"DtcmbSubCate"_s, category.subcategory}};
    showValues(blank);
    const bool quiet = std::exchange(m_quiet, true);
    DBList1->setCurrentRow(-1);
    m_quiet = quiet;
    child<QWidget>(this, u"dtcmbfname"_s)->setFocus();
}

SimpleValues FrmContacts::values() const
{
    SimpleValues values;
    for (const SimpleField& field : simpleFields())
        values.texts.insert(
            field.control.toString(), widgets::textOf(child<QWidget>(this, field.control.toString())));
    for (const QString& name : {u"DtcmbCate"_s, u"DtcmbSubCate"_s, u"DateBday"_s})
        values.texts.insert(name, widgets::textOf(child<QWidget>(this, name)));
    values.birthday = DateBday->date();
    return values;
}

void FrmContacts::showValues(const SimpleValues& shown)
{
    for (const SimpleField& field : simpleFields())
        widgets::setTextOf(child<QWidget>(this, field.control.toString()), shown.text(field.control));
    for (const QString& name : {u"DtcmbCate"_s, u"DtcmbSubCate"_s})
        widgets::setTextOf(child<QWidget>(this, name), shown.text(name));
    DateBday->setDate(shown.birthday);
    m_untouched = values();
    child<QPushButton>(this, u"CmdDelete"_s)->setEnabled(m_id != 0);
    m_mode->setText(m_id == 0 ? tr("New contact") : QString());
    showHead();
}

void FrmContacts::showHead()
{
    const auto text = [this](const QString& name) { return widgets::textOf(child<QWidget>(this, name)); };
    const auto view = core::nameViewOf(text(u"cmbnview"_s));
    const QString name = view
        ? core::composeName(
            *view, {text(u"Cmbtitle"_s), text(u"dtcmbfname"_s), text(u"dtcmblname"_s), text(u"txtcmpny"_s)})
              .trimmed()
        : QString();
    lblname->setText(name);
}

void FrmContacts::refuse(SimpleRefusal refusal)
{
    switch (refusal) {
    case SimpleRefusal::AllBlank:
        inform(tr("First, Last and Company are blank. At least one of these should not be blank."));
        break;
    case SimpleRefusal::NoNameView: warn(tr("Not a Valid Name View")); break;
    case SimpleRefusal::NoName: warn(tr("Either Name or Company should be entered")); break;
    }
    child<QWidget>(this, refusal == SimpleRefusal::AllBlank ? u"dtcmbfname"_s : u"cmbnview"_s)->setFocus();
}

void FrmContacts::save()
{
    const SimpleValues now = values();
    if (const auto refusal = refusalOf(now))
        return refuse(*refusal);
    if (DateBday->holdsBadText())
        return DateBday->askToMend();
    // What could not be stored stays on the form, so that it can be saved again.
    const bool isNew = m_id == 0;
    const qint64 id = isNew ? add(now) : change(now);
    if (id == 0)
        return;
    m_id = id;
    tellMailClient(now, isNew);
    readList();
    display(m_id);
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    tellSaved(shared().selectedContactName);
}

SimpleSave FrmContacts::saveOptions() const
{
    const jet::Recordset setup = core::readSettings(context().data);
    return {context().services.clock.today(), shared().ContMerge,
        setup.hasRow() ? setup.textOrEmpty(u"Priority") : QString()};
}

bool FrmContacts::reachesOthers() const
{
    const jet::Recordset setup = core::readSettings(context().data);
    return setup.hasRow() && setup.flag(u"UpdOutllook");
}

// The contact and its rows of the scheduler, or neither.
qint64 FrmContacts::add(const SimpleValues& now)
{
    jet::Batch batch(context().data);
    jet::Recordset rows = context().data.openRecordset(u"Select * from cnt_main where 1>2");
    rows.addNew();
    assignNew(rows, now, saveOptions());
    const qint64 id = rows.update() ? rows.lastAddedKey() : 0;
    if (id != 0 && reachesOthers()) {
        platform::MailContact item;
        fillMailItem(item, now);
        const core::ScheduledDates dates{id, item.first, item.last, {}, {}, now.birthday, {}, {}, {}};
        core::addSchedulerRows(
            context().data, core::schedulerRows(dates, context().services.clock.today().year()));
    }
    if (batch.commit() && id != 0)
        return id;
    core::tellFailedSave(context());
    return 0;
}

qint64 FrmContacts::change(const SimpleValues& now)
{
    jet::Recordset rows = context().data.openRecordset(u"Select * from cnt_main where id=%1"_s.arg(m_id));
    if (!rows.hasRow()) {
        warn(tr("This contact is not there any more. Choose New to enter it again."));
        return 0;
    }
    const auto edits = changedColumns(now, saveOptions(),
        {[this, &now](const QString& control) { return now.text(control) != m_untouched.text(control); },
            [this](const QString& control) { return child<QWidget>(this, control)->accessibleName(); }});
    const auto clashes = m_loaded.clashes(rows, edits);
    if (!clashes.isEmpty()
        && context().services.boxes.ask(
               core::clashQuestion(clashes), shared().AppTitle, platform::Icon::Warning)
            != platform::Answer::Yes)
        return 0;
    rows.edit();
    m_loaded.assign(rows, edits);
    if (rows.update())
        return m_id;
    core::tellFailedSave(context());
    return 0;
}

void FrmContacts::tellMailClient(const SimpleValues& now, bool isNew)
{
    if (!reachesOthers())
        return;
    platform::MailContacts& client = context().services.mailContacts;
    platform::MailContact item;
    item.key = core::mailKeyOf(m_id);
    if (!isNew) {
        client.update(item.key, [&now](platform::MailContact& stored) { fillMailItem(stored, now); });
        return;
    }
    fillMailItem(item, now);
    client.add(item);
}

void FrmContacts::cancel()
{
    if (m_id != 0)
        display(m_id);
    else
        startNew();
    playSound(core::sounds::Cancel);
}

// The contact below takes its place, or the one above the last.
void FrmContacts::afterDelete()
{
    const int row = DBList1->currentRow();
    m_id = 0;
    readList();
    const qint64 neighbour = DBList1->keyAt(std::min(row, DBList1->rowCount() - 1));
    if (neighbour != 0)
        display(neighbour);
    else
        startNew();
}

} // namespace views
