#include "entry/simple/FrmContacts.h"

#include "core/contact_category.h"
#include "core/contact_lookups.h"
#include "core/contact_names.h"
#include "core/contact_tool_table.h"
#include "core/contact_tools.h"
#include "core/date_patterns.h"
#include "core/list_presenter.h"
#include "core/merged_category.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/touched_fields.h"
#include "entry/form/entered_contact.h"
#include "entry/form/entry_lists.h"
#include "entry/form/save_effects.h"
#include "entry/simple/simple_columns.h"
#include "platform/clock.h"
#include "platform/message_boxes.h"
#include "platform/text_file.h"
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
using widgets::child;

namespace entry {

namespace {

constexpr QStringView kRowTools[] = {u"Edit", u"Delete", u"Caller", u"ID_Ex", u"Letter2"};

} // namespace

FrmContacts::FrmContacts(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_editor(context)
    , m_tools(new core::ContactTools(context, core::selectorTools(),
          {.callerForm = u"FrmContacts"_s,
              .chosen =
                  [this] {
                      return core::ChosenContact{m_editor.id(), m_editor.id()};
                  },
              .sounds = true},
          this))
    , DBList1(new widgets::RecordList)
    , m_list(new core::ListPresenter(context.data, DBList1, this))
    , lblname(new QLabel)
    , m_mode(new QLabel)
{
    setWindowTitle(tr("Contacts"));
    DBList1->setObjectName(u"DBList1"_s);
    DBList1->setAccessibleName(tr("Contacts"));
    DBList1->setEmptyText(tr("No contacts yet"));
    DBList1->setMinimumWidth(180);
    auto* splitter = new QSplitter;
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(DBList1);
    splitter->addWidget(layOutForm());
    splitter->setStretchFactor(0, 0);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({185, 755});
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
    form.nextColumn(2)
        .group(tr("Phone and e-mail"))
        .line(u"txtMobile"_s, tr("&Mobile"), u"Mobile"_s)
        .line(u"txtstd"_s, tr("&Home"), u"h_std"_s, widgets::KeyFilter::NoLetters)
        .hint(tr("Area code"))
        .beside(2)
        .line(u"txtph1"_s, {}, u"H_Ph1"_s)
        .line(u"txtbph1"_s, tr("&Work"), u"B_Ph1"_s)
        .line(u"txtemail1"_s, tr("&E-mail"), u"H_email1"_s)
        .line(u"txtbemail1"_s, tr("At wor&k"), u"b_email1"_s)
        .hint(tr("E-mail address at work"));
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
        .button(u"CmdVCF"_s, tr("&Quick fill..."), u"card", tr("Fill the fields from a vCard file"))
        .stretch()
        .button(u"Command1"_s, tr("&Save"), u"save", tr("Save what was entered (Ctrl+S)"))
        .button(u"CmdCancel"_s, tr("&Cancel"), u"cancel", tr("Take back what was entered (Esc)"));
    m_fields = widgets::FieldSet(page);
    m_fields.control<widgets::DateBox>(u"DateBday"_s)->setFormat(core::datePattern(shared().NationalMode));
}

void FrmContacts::setSources()
{
    setListSources(this, context());
    setFixedLists(this);
    connect(m_fields.control<QComboBox>(u"DtcmbCate"_s), &QComboBox::currentTextChanged,
        m_fields.control<widgets::FilledCombo>(u"DtcmbSubCate"_s), &widgets::FilledCombo::refill);
    m_isMerged = shared().ContMerge;
    if (m_isMerged)
        core::showSubcategory(this, false);
}

// What was typed and not saved stays, in the new way.
void FrmContacts::vocabulariesChanged()
{
    Screen::vocabulariesChanged();
    followCategorySwitch(this, m_fields, m_isMerged, shared().ContMerge);
}

void FrmContacts::connectControls()
{
    const auto onClick = [this](const QString& name, auto handler) {
        auto* button = child<QPushButton>(this, name);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, handler);
    };
    onClick(u"SSCommand3"_s, &FrmContacts::beginNew);
    onClick(u"CmdDelete"_s, [this] { m_tools->action(u"Delete")->trigger(); });
    onClick(u"CmdVCF"_s, &FrmContacts::fillFromCard);
    onClick(u"Command1"_s, &FrmContacts::save);
    onClick(u"CmdCancel"_s, &FrmContacts::cancel);
    connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, this, &FrmContacts::beginNew);
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
    connect(m_list, &core::ListPresenter::currentChanged, this, &FrmContacts::rowChanged);
    connect(DBList1, &widgets::RecordList::chosen, this,
        [this] { child<QWidget>(this, u"dtcmbfname"_s)->setFocus(); });
    for (const QString& name : {u"Cmbtitle"_s, u"dtcmbfname"_s, u"dtcmblname"_s, u"cmbnview"_s})
        connect(child<QComboBox>(this, name), &QComboBox::currentTextChanged, this, &FrmContacts::showHead);
    connect(child<QLineEdit>(this, u"txtcmpny"_s), &QLineEdit::textChanged, this, &FrmContacts::showHead);
}

void FrmContacts::load()
{
    setFrameTitle(u"Contacts"_s);
    m_list->open(core::contactListSql());
    startNew();
}

// What is being typed stays.
void FrmContacts::bookChanged()
{
    m_list->refresh();
    m_list->point(m_editor.id());
    if (!isTouched() && m_editor.id() != 0)
        display(m_editor.id());
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
    if (id == 0 || !context().data.openRecordset(core::contactNameSql(id)).hasRow())
        return false;
    if (id == m_editor.id() || mayDiscard())
        display(id);
    return true;
}

bool FrmContacts::beginNew()
{
    if (!mayDiscard())
        return false;
    startNew();
    return true;
}

void FrmContacts::rowChanged(int row)
{
    const qint64 id = DBList1->keyAt(row);
    if (id == 0 || id == m_editor.id())
        return;
    if (mayDiscard())
        return display(id);
    // The list goes back behind the event that moved it.
    QMetaObject::invokeMethod(
        this, [this] { m_list->point(m_editor.id()); }, Qt::QueuedConnection);
}

void FrmContacts::display(qint64 id)
{
    const jet::Recordset contact = m_editor.load(id);
    if (!contact.hasRow())
        return startNew();
    shared().selectedContactId = id;
    shared().selectedContactName = contact.textOrEmpty(u"Name");
    m_fields.showRow(contact, {u"DtcmbCate"_s, u"DtcmbSubCate"_s});
    const core::Category category{contact.textOrEmpty(u"category1"), contact.textOrEmpty(u"category2")};
    m_fields.setText(u"DtcmbCate"_s, core::shownCategory(category, shared().ContMerge));
    m_fields.setText(u"DtcmbSubCate"_s, category.subcategory);
    // Imported contacts may have none.
    if (m_fields.text(u"cmbnview"_s).trimmed().isEmpty())
        m_fields.setText(u"cmbnview"_s, core::nameViews().constFirst());
    showForm();
}

void FrmContacts::startNew()
{
    m_editor.startNew();
    m_fields.clear();
    const jet::Recordset setup = core::readSettings(context().data);
    const core::Category category{setup.textOrEmpty(u"categ1"), setup.textOrEmpty(u"categ2")};
    if (!category.category.isEmpty())
        m_fields.setText(u"DtcmbCate"_s, core::shownCategory(category, shared().ContMerge));
    m_fields.setText(u"DtcmbSubCate"_s, category.subcategory);
    m_fields.setText(u"Cmbtitle"_s, u"Mr."_s);
    m_fields.setText(u"cmbnview"_s, core::nameViews().constFirst());
    showForm();
    m_fields.control(u"dtcmbfname"_s)->setFocus();
}

void FrmContacts::showForm()
{
    m_fields.keepAsLoaded();
    m_list->point(m_editor.id());
    const bool isNew = m_editor.id() == 0;
    child<QPushButton>(this, u"CmdDelete"_s)->setEnabled(!isNew);
    m_mode->setText(isNew ? tr("New contact") : QString());
    showHead();
}

void FrmContacts::showHead()
{
    lblname->setText(simpleName(m_fields.values()).trimmed());
}

// What stands in the form is replaced by a Yes only.
void FrmContacts::fillFromCard()
{
    platform::MessageBoxes& boxes = context().services.boxes;
    const auto file = boxes.openFile(tr("Quick fill"), u"VCF (*.vcf)|*.vcf"_s);
    if (!file)
        return;
    const auto text = platform::readForeignText(*file);
    if (!text)
        return warn(tr("This file can not be read."));
    const FormValues now = m_fields.values();
    const FormValues card = simpleValuesOf(formats::readCard(*text));
    QStringList replaced;
    for (auto one = card.texts.cbegin(); one != card.texts.cend(); ++one) {
        const QString there = now.trimmed(one.key());
        if (!there.isEmpty() && there != one.value())
            replaced << m_fields.label(one.key());
    }
    for (auto one = card.dates.cbegin(); one != card.dates.cend(); ++one) {
        if (now.date(one.key()) && now.date(one.key()) != one.value())
            replaced << m_fields.label(one.key());
    }
    replaced.sort();
    if (!replaced.isEmpty()
        && boxes.ask(tr("Replace what stands in these fields by what the card has?\n\n%1")
                         .arg(replaced.join(u", "_s)),
               shared().AppTitle, platform::Icon::Warning)
            != platform::Answer::Yes)
        return;
    m_fields.show(card);
    showHead();
}

void FrmContacts::refuse(const FormValues& now)
{
    const Refusal refusal = *refusalOfSimple(now);
    tellRefusal(context(), refusal);
    m_fields.control(refusal == Refusal::AllBlank ? u"dtcmbfname"_s : u"cmbnview"_s)->setFocus();
}

void FrmContacts::save()
{
    const FormValues now = m_fields.values();
    if (refusalOfSimple(now))
        return refuse(now);
    if (widgets::DateBox* bad = m_fields.firstBadDate())
        return bad->askToMend();
    // What could not be stored stays on the form, so that it can be saved again.
    const qint64 id = m_editor.id() == 0 ? add(now) : change(now);
    if (id == 0)
        return;
    m_list->refresh();
    display(id);
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    tellSaved(shared().selectedContactName);
}

qint64 FrmContacts::add(const FormValues& now)
{
    FormValues stored = now;
    stored.texts.insert(u"cmbpriority"_s, core::readSettings(context().data).textOrEmpty(u"Priority"));
    NewContact contact;
    contact.name = simpleName(now);
    core::fillMailItem(contact.mail, enteredContact(simpleColumns(), now, contact.name));
    contact.dates.first = contact.mail.first;
    contact.dates.last = contact.mail.last;
    contact.dates.birthday = now.date(u"DateBday");
    const SaveOptions options{contact.name, context().services.clock.today(), shared().ContMerge};
    const qint64 id = addContact(context(), contact, [&](jet::Recordset& rows) {
        assign(rows, simpleColumns(), stored, options);
        assign(rows, simpleColumnsOfNew(), stored, options);
    });
    if (id == 0)
        core::tellFailedSave(context());
    return id;
}

qint64 FrmContacts::change(const FormValues& now)
{
    const QString name = simpleName(now);
    const SaveOptions options{name, context().services.clock.today(), shared().ContMerge};
    switch (m_editor.store(simpleEdits(now, options, core::touchedFieldsOf(m_fields)))) {
    case core::RecordEditor::Outcome::Stored: break;
    case core::RecordEditor::Outcome::Gone: m_editor.sayGone(); return 0;
    case core::RecordEditor::Outcome::NotStored: return 0;
    }
    changeMailItem(context(), m_editor.id(), enteredContact(simpleColumns(), now, name));
    return m_editor.id();
}

void FrmContacts::cancel()
{
    if (m_editor.id() != 0)
        display(m_editor.id());
    else
        startNew();
    playSound(core::sounds::Cancel);
}

// The contact below takes its place, or the one above the last.
void FrmContacts::afterDelete(qint64 gone)
{
    const qint64 neighbour = m_list->neighbourOf(gone);
    m_editor.startNew();
    m_list->refresh();
    if (neighbour != 0)
        display(neighbour);
    else
        startNew();
}

} // namespace entry
