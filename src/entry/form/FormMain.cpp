#include "entry/form/FormMain.h"

#include "core/contact_category.h"
#include "core/contact_lookups.h"
#include "core/contact_names.h"
#include "core/date_patterns.h"
#include "core/frame.h"
#include "core/mail_key.h"
#include "core/merged_category.h"
#include "core/record_steps.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "entry/assists/assist_panel.h"
#include "entry/assists/entry_assists.h"
#include "entry/form/entered_contact.h"
#include "entry/form/entry_lists.h"
#include "entry/form/entry_pages.h"
#include "entry/form/photo_field.h"
#include "entry/form/save_checks.h"
#include "entry/form/save_effects.h"
#include "entry/form/user_fields.h"
#include "platform/clock.h"
#include "platform/contact_sync.h"
#include "platform/message_boxes.h"
#include "widgets/date_box.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/heading_grid.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace entry {

namespace {

QString caption(const char* text)
{
    return QCoreApplication::translate("entry", text);
}

/// Fields that do not show their column as it is when a record is put on the form.
const QSet<QString> kNotFromColumn{u"dtcmbcity1"_s, u"DtcmbCate"_s, u"DtcmbSubCate"_s, u"txtemail1"_s};

/// The name of what is entered, by a view of names that a check has found to be one.
QString composedName(const FormValues& values)
{
    return core::composeName(*core::nameViewOf(values.text(u"cmbnview")), namePartsOf(values));
}

} // namespace

FormMain::FormMain(core::Context& context, const FormVariant& variant, QWidget* parent)
    : Screen(context, parent)
    , m_variant(variant)
    , sstab1(new QTabWidget)
    , grdEditList(new widgets::HeadingGrid)
    , m_assist(new AssistPanel(context.info, context.shared))
    , m_editor(context)
{
    layOut();
    m_assists = new EntryAssists(this, sstab1, context);
    if (m_variant.hasUserFields)
        m_userFields = new UserFields(this, context.data);
    wire();
}

// On unload nobody asks for an edit any more.
FormMain::~FormMain()
{
    shared().EditRequested = false;
}

// ---- layout

void FormMain::layOut()
{
    setWindowTitle(caption(m_variant.caption));
    sstab1->setObjectName(u"sstab1"_s);
    grdEditList->setObjectName(u"grdEditList"_s);
    grdEditList->setAccessibleName(tr("Contacts to edit"));
    grdEditList->setMinimumWidth(180);
    grdEditList->setMaximumWidth(260);

    const auto sizeOf = [this](QStringView column) { return context().schema.textSize(u"cnt_main", column); };
    for (const EntryPage& page : m_variant.pages) {
        QWidget* laidOut = page.layOut(sizeOf);
        laidOut->setObjectName(page.name.toString());
        sstab1->addTab(laidOut, widgets::icon(page.icon), caption(page.title));
    }

    auto* middle = new QSplitter(Qt::Horizontal);
    middle->addWidget(grdEditList);
    middle->addWidget(sstab1);
    middle->addWidget(m_assist);
    middle->setStretchFactor(1, 1);
    middle->setChildrenCollapsible(false);
    grdEditList->hide();
    m_assist->hide();

    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(12, 8, 12, 8);
    whole->addWidget(entryHead());
    whole->addWidget(middle, 1);
    whole->addWidget(entryButtons());
    m_photo = new PhotoField(this, context());

    m_fields = widgets::FieldSet(sstab1);
}

void FormMain::wire()
{
    const auto onClick = [this](const QString& name, auto handler) {
        connect(widgets::child<QPushButton>(this, name), &QPushButton::clicked, this, handler);
    };
    onClick(u"Command1"_s, &FormMain::save);
    onClick(u"CmdCancel"_s, &FormMain::cancel);
    onClick(u"SSCommand3"_s, &FormMain::startAdding);
    onClick(u"SSCommand10"_s, &FormMain::startEditing);
    onClick(u"SSCommand6"_s, [this] { turnPage(true); });
    onClick(u"SSCommand7"_s, [this] { turnPage(false); });
    onClick(u"SSCommand8"_s, [this] { context().screens.show(u"FrmOthers", core::Shown::Modally); });
    onClick(u"ssassist"_s, &FormMain::toggleAssist);
    onClick(u"CmdSave"_s, &FormMain::saveAs);
    onClick(u"CmdHelp"_s, [this] { showHelp(m_variant.helpCode.toString(), control(u"CmdHelp"_s)); });
    widgets::child<QPushButton>(this, u"SSCommand8"_s)->setEnabled(context().screens.has(u"FrmOthers"));
    widgets::child<QPushButton>(this, u"CmdSave"_s)->setEnabled(context().screens.has(u"FrmAddSave"));

    for (const QString& name : {u"cmbnview"_s, u"Cmbtitle"_s, u"dtcmbfname"_s, u"dtcmblname"_s})
        connect(widgets::child<QComboBox>(this, name), &QComboBox::currentTextChanged, this,
            &FormMain::showNameLabel);
    connect(widgets::child<QLineEdit>(this, u"txtcmpny"_s), &QLineEdit::textChanged, this,
        &FormMain::showNameLabel);
    for (const QString& name : {u"dtcmbfname"_s, u"dtcmblname"_s})
        connect(widgets::child<QComboBox>(this, name)->lineEdit(), &QLineEdit::textEdited, this,
            &FormMain::takeUsualNameView);

    const auto chooseRow = [this](int row) { chooseRecord(grdEditList->textAt(row, u"ID"_s)); };
    connect(grdEditList, &widgets::HeadingGrid::chosen, this, chooseRow);
    connect(grdEditList, &QAbstractItemView::clicked, this,
        [chooseRow](const QModelIndex& index) { chooseRow(index.row()); });

    connect(m_assist, &AssistPanel::picked, m_assists, [this](AssistPanel::Tab tab, const QString& value) {
        m_assists->takePick(tab, value, m_assist->country());
    });
    connect(m_assist, &AssistPanel::scopeChosen, m_assists, &EntryAssists::takeScope);
    connect(m_assist, &AssistPanel::keyPressed, m_assists, &EntryAssists::pressKey);
}

// ---- load and modes

void FormMain::load()
{
    for (widgets::DateBox* box : findChildren<widgets::DateBox*>())
        box->setFormat(core::datePattern(shared().NationalMode));
    const jet::Upkeep clearing(context().data);
    context().data.execute(
        u"delete * from CNT_MAIN where len(trim(name))=0 and len(trim(first))=0 and len(trim(last))=0 and len(trim(company))=0"_s);
    if (m_userFields)
        m_userFields->showLabels();
    const auto fill = [this](const QString& name, const QStringList& values) {
        widgets::child<widgets::FilledCombo>(this, name)->setValues(values);
    };
    setFixedLists(this);
    QStringList sexes;
    for (const QStringView sex : m_variant.sexes)
        sexes << sex.toString();
    fill(u"CmbSex"_s, sexes);
    fill(u"cmbpriority"_s, {u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s});
    clearForm();
    setListSources(this, context());
    m_assist->selectScope(CityScope::All);
    m_isMerged = shared().ContMerge;
    if (m_isMerged)
        core::showSubcategory(this, false);
    setFrameTitle(caption(m_variant.title));
    turnPage(true);
    go(Mode::Idle);
}

void FormMain::vocabulariesChanged()
{
    Screen::vocabulariesChanged();
    if (m_userFields)
        m_userFields->showLabels();
    followCategorySwitch(this, m_fields, m_isMerged, shared().ContMerge);
}

void FormMain::go(Mode mode)
{
    m_mode = mode;
    IsEditing = mode == Mode::Editing;
    const bool idle = mode == Mode::Idle;
    for (const QString& name : {u"Command1"_s, u"CmdCancel"_s, u"CmdSave"_s})
        control(name)->setVisible(!idle);
    for (const QString& name : {u"SSCommand3"_s, u"SSCommand10"_s})
        control(name)->setVisible(idle);
    setText(u"Label10"_s, idle ? QString() : mode == Mode::Adding ? tr("Add Mode") : tr("Edit Mode"));
    grdEditList->setVisible(mode == Mode::Editing);
    // What is typed outside a mode could not be saved, and the next mode begins with a blank form.
    for (int page = 0; page < sstab1->count(); ++page)
        sstab1->widget(page)->setEnabled(!idle);
    control(u"lblhint"_s)->setVisible(idle);
    // Without a record there is nothing that a change could be written to.
    control(u"Command1"_s)
        ->setEnabled(mode != Mode::Editing || !widgets::textOf(control(u"lblid"_s)).isEmpty());
    m_fields.keepAsLoaded();
}

void FormMain::startAdding()
{
    clearForm();
    go(Mode::Adding);
    playSound(core::sounds::Add);
    sstab1->setCurrentIndex(0);
    control(u"dtcmbfname"_s)->setFocus();
}

bool FormMain::beginNew()
{
    if (!mayDiscard())
        return false;
    startAdding();
    return true;
}

void FormMain::startEditing()
{
    grdEditList->fill(u"|Name                    ",
        context().data.openRecordset(u"Select id,Name from cnt_main order by name"_s));
    clearForm();
    go(Mode::Editing);
    // Kept: the start of an edit sounds like a deletion.
    playSound(core::sounds::Delete);
    grdEditList->setFocus();
}

void FormMain::cancel()
{
    clearForm();
    shared().EditRequested = false;
    m_assist->hide();
    setText(u"ssassist"_s, tr("Assist"));
    go(Mode::Idle);
    playSound(core::sounds::Cancel);
}

jet::Recordset& FormMain::contacts()
{
    if (!Adodc1.isValid())
        Adodc1 = context().data.openRecordset(u"select * from CNT_MAIN order by name"_s, jet::Way::Ado);
    return Adodc1;
}

bool FormMain::showContact(qint64 id)
{
    // The request was for this form, and is heard now.
    shared().EditRequested = false;
    if (!contacts().findFirst(u"id=%1"_s.arg(id))) {
        // Another screen may have added it since the list was read.
        Adodc1 = {};
        if (!contacts().findFirst(u"id=%1"_s.arg(id)))
            return false;
    }
    // What is being entered stays, and is saved as what it is.
    if (!mayDiscard())
        return true;
    if (!showRecord(QString::number(id)))
        return false;
    go(Mode::Editing);
    grdEditList->hide();
    setPosition(core::positionText(Adodc1));
    return true;
}

void FormMain::clearForm()
{
    m_assists->setQuiet(true);
    m_fields.clear();
    m_editor.startNew();
    setText(u"lblid"_s, {});
    setText(u"LblStateFull"_s, {});
    m_photo->load({});
    setText(u"Cmbtitle"_s, u"Mr."_s);
    const auto setup = core::readSettings(context().data);
    if (setup.hasRow()) {
        const core::Category category{setup.textOrEmpty(u"categ1"), setup.textOrEmpty(u"categ2")};
        setText(u"DtcmbCate"_s, core::shownCategory(category, shared().ContMerge));
        setText(u"DtcmbSubCate"_s, category.subcategory);
        setText(u"cmbpriority"_s, setup.textOrEmpty(u"Priority"));
        setText(u"txtcmpnySuffix"_s, setup.textOrEmpty(u"cmpnysuffix"));
    }
    m_assists->setQuiet(false);
    showNameLabel();
}

void FormMain::chooseRecord(const QString& id)
{
    // The second click of a double click must not undo what was typed between.
    const bool isShown = id == widgets::textOf(control(u"lblid"_s));
    if (!(isShown && isTouched()) && mayDiscard())
        showRecord(id);
}

bool FormMain::showRecord(const QString& id)
{
    const auto row = context().data.openRecordset(u"Select * from cnt_main where id="_s + id);
    if (!row.hasRow())
        return false;
    clearForm();
    m_assists->setQuiet(true);
    m_editor.take(row);
    m_fields.showRow(row, kNotFromColumn);
    for (const ChangedColumn& changed : m_variant.changedColumns) {
        if (!row.value(changed.column).isNull())
            setText(changed.control.toString(), row.textOrEmpty(changed.column));
    }
    // The company as it is, without a suffix of its own: one that is chosen now is added to it.
    setText(u"txtcmpnyPrefix"_s, row.textOrEmpty(u"Company"));
    setText(u"txtcmpnySuffix"_s, {});
    setText(u"dtcmbcity1"_s, row.textOrEmpty(u"h_city"));
    const core::Category category{row.textOrEmpty(u"category1"), row.textOrEmpty(u"category2")};
    setText(u"DtcmbCate"_s, core::shownCategory(category, shared().ContMerge));
    setText(u"DtcmbSubCate"_s, category.subcategory);
    const QString email = row.textOrEmpty(u"H_email1");
    const qsizetype at = email.indexOf(u'@');
    setText(u"txtemail1"_s, at < 0 ? email : email.left(at));
    setText(u"cboemail1"_s, at < 0 ? QString() : email.mid(at + 1));
    setText(u"lblid"_s, row.textOrEmpty(u"id"));
    m_photo->load(row.textOrEmpty(u"PhotLoc"));
    m_assists->setQuiet(false);
    showNameLabel();
    control(u"Command1"_s)->setEnabled(true);
    m_fields.keepAsLoaded();
    return true;
}

void FormMain::showNameLabel()
{
    const FormValues now = values();
    const auto view = core::nameViewOf(now.text(u"cmbnview"));
    setText(u"lblname"_s, view ? core::nameForLabel(*view, namePartsOf(now)) : QString());
}

// A view that is blank when a name is typed becomes the one used last, so that a first contact can be saved.
void FormMain::takeUsualNameView()
{
    if (!m_fields.text(u"cmbnview"_s).trimmed().isEmpty())
        return;
    const auto last = context().data.openRecordset(
        u"select nview from cnt_main where id in (select max(id) from cnt_main)"_s);
    const auto view = core::nameViewOf(last.textOrEmpty(u"nview"));
    setText(u"cmbnview"_s, view ? last.textOrEmpty(u"nview") : core::nameViews().constFirst());
}

void FormMain::toggleAssist()
{
    const bool shown = !m_assist->isVisible();
    m_assist->setVisible(shown);
    setText(u"ssassist"_s, shown ? tr("Assist Off") : tr("Assist"));
}

void FormMain::turnPage(bool simple)
{
    sstab1->setCurrentWidget(sstab1->findChild<QWidget*>(simple ? u"Contact"_s : u"Personal"_s));
    control(u"SSCommand6"_s)->setVisible(!simple);
    control(u"SSCommand7"_s)->setVisible(simple);
}

// ---- reading the form

void FormMain::setText(const QString& name, const QString& text)
{
    if (auto* widget = findChild<QWidget*>(name))
        widgets::setTextOf(widget, text);
}

FormValues FormMain::values() const
{
    FormValues result = m_fields.values();
    result.texts.insert(u"Photo"_s, m_photo->path());
    return result;
}

// Coming back from the set-up, where a list may have changed.
bool FormMain::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        refillLists(this);
    return Screen::event(event);
}

bool FormMain::isTouched() const
{
    return m_mode != Mode::Idle && (m_fields.isTouched() || m_photo->isTouched());
}

// ---- save

void FormMain::refuse(int refusal)
{
    const auto why = Refusal(refusal);
    tellRefusal(context(), why);
    sstab1->setCurrentIndex(0);
    if (why != Refusal::NoNameView)
        return control(u"dtcmbfname"_s)->setFocus();
    auto* views = m_fields.control<QComboBox>(u"cmbnview"_s);
    views->setFocus();
    views->showPopup();
}

bool FormMain::mayBeSaved()
{
    if (widgets::DateBox* bad = m_fields.firstBadDate()) {
        bad->askToMend();
        return false;
    }
    if (IsEditing && widgets::textOf(control(u"lblid"_s)).isEmpty()) {
        inform(tr("Record not selected"));
        return false;
    }
    auto refusal = refusalOfSave(values());
    if (!refusal && IsEditing)
        refusal = refusalOfEdit(values());
    if (refusal)
        refuse(int(*refusal));
    return !refusal;
}

formats::CardValues FormMain::cardValues() const
{
    const FormValues now = values();
    return core::cardValuesOf(enteredContact(enteredColumns(), now, composedName(now)));
}

QString FormMain::mailKey() const
{
    const qint64 id = widgets::textOf(control(u"lblid"_s)).toLongLong();
    return id == 0 ? QString() : core::mailKeyOf(id);
}

platform::MailChange FormMain::mailChange() const
{
    const FormValues now = values();
    return [contact = enteredContact(enteredColumns(), now, composedName(now))](
               platform::MailContact& item) { core::fillMailItem(item, contact); };
}

void FormMain::save()
{
    if (mayBeSaved())
        saveContact();
}

qint64 FormMain::saveContact()
{
    const FormValues now = values();
    const QString name = composedName(now);
    auto* progress = widgets::child<QProgressBar>(this, u"ProgressBar1"_s);
    progress->setValue(0);
    progress->show();
    // What could not be stored stays on the form, so that it can be saved again.
    const qint64 id = IsEditing ? edit(now, name) : add(now, name);
    if (id != 0) {
        progress->setValue(50);
        endSave(name);
    }
    progress->hide();
    return id;
}

SaveOptions FormMain::saveOptions(const QString& name) const
{
    return {name, context().services.clock.today(), shared().ContMerge};
}

qint64 FormMain::add(const FormValues& values, const QString& name)
{
    shared().TableName = u"Contact-AddData"_s;
    core::StoredFile photo = m_photo->store();
    FormValues stored = values;
    stored.texts[u"Photo"_s] = photo.path();
    const qint64 id = [&] {
        jet::Step step(context().data, {});
        step.follow(photo.follower());
        return addContact(
            context(), newContactOf(m_variant, values, name), [this, &stored, &name](jet::Recordset& rows) {
                assign(rows, m_variant.addColumns, stored, saveOptions(name));
            });
    }();
    if (id == 0)
        core::tellFailedSave(context());
    else
        photo.keep();
    return id;
}

qint64 FormMain::edit(const FormValues& values, const QString& name)
{
    jet::Recordset rows = m_editor.open();
    if (!rows.hasRow())
        return addAgain(rows, values, name);
    core::StoredFile photo = m_photo->store();
    FormValues stored = values;
    stored.texts[u"Photo"_s] = photo.path();
    const auto edits = columnEdits(m_variant.editColumns, stored, saveOptions(name),
        {.isTouched =
                [this](const QString& control) {
                    return m_fields.has(control) ? m_fields.isTouched(control) : m_photo->isTouched();
                },
            .label =
                [this](const QString& control) {
                    return m_fields.has(control) ? m_fields.label(control) : tr("Picture");
                }});
    if (!m_editor.mayOverwrite(rows, edits))
        return 0;
    const bool isStored = [&] {
        jet::Step step(context().data, {});
        step.follow(photo.follower());
        return m_editor.write(rows, edits);
    }();
    if (!isStored) {
        core::tellFailedSave(context());
        return 0;
    }
    photo.keep();
    applyEditEffects(context(), m_variant, values, name, m_editor.id());
    return m_editor.id();
}

// Somebody deleted the contact while it was being changed here.
qint64 FormMain::addAgain(const jet::Recordset& read, const FormValues& values, const QString& name)
{
    if (!read.isValid()) {
        core::tellFailedSave(context());
        return 0;
    }
    const auto answer = context().services.boxes.ask(
        tr("This contact was deleted while you were changing it. Do you want to store what stands in the "
           "form as a new contact?"),
        shared().AppTitle, platform::Icon::Warning);
    return answer == platform::Answer::Yes ? add(values, name) : 0;
}

void FormMain::endSave(const QString& name)
{
    shared().EditRequested = false;
    Adodc1 = {};
    setPosition(u"1 of %1"_s.arg(context().data.openRecordset(core::contactCountSql()).textAt(0)));
    clearForm();
    go(Mode::Idle);
    sstab1->setCurrentIndex(0);
    context().screens.tellBookChanged(this);
    playSound(core::sounds::Save);
    tellSaved(name);
    // The next step is another contact.
    control(u"SSCommand3"_s)->setFocus();
}

void FormMain::saveAs()
{
    shared().CallerForm = m_variant.form.toString();
    context().screens.show(u"FrmAddSave", core::Shown::Modally);
}

} // namespace entry
