#include "letters/lists/FrmMailLstAdd.h"

#include "core/frame.h"
#include "core/progress.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/take_back.h"
#include "core/vocabularies.h"
#include "letters/lists/list_members.h"
#include "letters/lists/update_mail.h"
#include "platform/message_boxes.h"
#include "widgets/button_key.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr QStringView kLists = u"FormMailList";
constexpr QStringView kHeadings
    = u"|City                          |First                        |Last            "
      u"            |Name                                |Category                "
      u"|Select ";
const QStringList kColumns{
    QString(), u"h_city"_s, u"first"_s, u"last"_s, u"name"_s, u"category1"_s, u"sex"_s};
constexpr int kLongestListName = 255;
constexpr qsizetype kToldNames = 10;
constexpr int kTooFewToWatch = 2000;

QString someOf(const QStringList& names)
{
    return names.mid(0, kToldNames).join(u'\n') + (names.size() > kToldNames ? u"\n..."_s : QString());
}

} // namespace

FrmMailLstAdd::FrmMailLstAdd(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , Grid2(new widgets::HeadingGrid)
{
    setWindowTitle(tr("Mailing list members"));
    layOut();
    connectControls();
}

void FrmMailLstAdd::layOut()
{
    Grid2->setEmptyText(tr("No contacts here"));
    Grid2->setHeadings(kHeadings, kColumns);
    // The ticks stand where the rows have the sex; they are none of the book and never go into it.
    Grid2->setTickColumn(u"sex"_s);
    Grid2->setMayTick(true);
    Grid2->letColumnsGiveWay();
    widgets::FormKit form(this);
    form.group()
        .caption(u"lblCaption"_s)
        .combo(u"DBCFirst"_s, tr("&First"))
        .beside()
        .combo(u"DBCLast"_s, tr("&Last"))
        .beside()
        .combo(u"DBCcity"_s, tr("C&ity"))
        .beside()
        .combo(u"DBCCate"_s, tr("Cate&gory"))
        .wide(u"Grid2"_s, tr("Contacts; the blank key ticks one"), Grid2)
        .button(u"cmdTickAll"_s, tr("&Tick all shown"), u"add", tr("Tick everybody who is listed now"))
        .button(
            u"cmdTickNone"_s, tr("&Untick all shown"), u"cancel", tr("Untick everybody who is listed now"))
        .button(u"CmdRefresh"_s, tr("&Refresh"), u"restore",
            tr("Begin anew: nobody is ticked or selected to be printed"))
        .beside()
        .caption(u"lblCount"_s)
        .combo(u"cmbListName"_s, tr("Mail List &Name"));
    form.buttonRow()
        .button(u"CmdEmail"_s, tr("Ask for the address by &e-mail"), u"envelope",
            tr("Send those ticked a page with what is known of them, to be mended and mailed back"))
        .stretch()
        .button(u"Cmd1"_s, tr("&Add to the list"), u"save")
        .button(u"CmdExit"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    for (const QString& name : {u"DBCFirst"_s, u"DBCLast"_s, u"DBCcity"_s, u"DBCCate"_s})
        m_filters << child<widgets::FilledCombo>(this, name);
    cmbListName = child<widgets::FilledCombo>(this, u"cmbListName"_s);
    cmbListName->lineEdit()->setMaxLength(kLongestListName);
    lblCaption = child<QLabel>(this, u"lblCaption"_s);
    QFont strong = lblCaption->font();
    strong.setBold(true);
    lblCaption->setFont(strong);
    lblCount = child<QLabel>(this, u"lblCount"_s);
    Cmd1 = child<QPushButton>(this, u"Cmd1"_s);
    setFocusProxy(Grid2);
}

void FrmMailLstAdd::connectControls()
{
    for (widgets::FilledCombo* combo : std::as_const(m_filters))
        connect(combo, &QComboBox::currentTextChanged, this, &FrmMailLstAdd::readContacts);
    connect(Grid2, &widgets::HeadingGrid::tickChanged, this, [this](int row) {
        if (Grid2->isTicked(Grid2->sourceRow(row)))
            m_ticked.insert(Grid2->keyAt(row));
        else
            m_ticked.remove(Grid2->keyAt(row));
        followTicks();
    });
    connect(Grid2, &widgets::HeadingGrid::currentRowChanged, this, [this](int row) {
        setPosition(row < 0 ? QString() : u"%1 of %2"_s.arg(row + 1).arg(Grid2->rowCount()));
    });
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"cmdTickAll"_s, [this] { tickShown(true); });
    onClick(u"cmdTickNone"_s, [this] { tickShown(false); });
    onClick(u"CmdRefresh"_s, [this] { refresh(); });
    onClick(u"CmdEmail"_s, [this] { sendMail(); });
    onClick(u"Cmd1"_s, [this] { store(); });
    onClick(u"CmdExit"_s, [this] { Q_EMIT closeRequested(); });
    widgets::setKey(Cmd1, QKeySequence::Save);
}

void FrmMailLstAdd::load()
{
    const auto offer = [this](widgets::FilledCombo* combo, const QString& sql) {
        combo->setSource(
            [this, sql] { return QStringList{u"All"_s} + core::firstColumn(context().data, sql); });
        const QSignalBlocker quiet(combo);
        combo->setText(u"All"_s);
    };
    offer(m_filters[0], firstNamesSql());
    offer(m_filters[1], lastNamesSql());
    offer(m_filters[2], citiesSql());
    offer(m_filters[3], categoriesSql());
    cmbListName->setSource(
        [this] { return core::firstColumn(context().data, mailGroupsSql(MailTab::Lists)); });
    setPurpose(Purpose::List);
    readContacts();
}

void FrmMailLstAdd::setPurpose(Purpose purpose)
{
    m_purpose = purpose;
    const bool isList = purpose == Purpose::List;
    setFrameTitle(isList ? windowTitle() : tr("Print selection"));
    lblCaption->setText(
        isList ? tr("Select Contacts to Add in Mailing List") : tr("Select Contacts to Print"));
    Cmd1->setText(isList ? tr("&Add to the list") : tr("&Select to print"));
    Cmd1->setToolTip(isList ? tr("Put those ticked into the mailing list (Ctrl+S)")
                            : tr("Those ticked are the ones to be printed (Ctrl+S)"));
    cmbListName->setEnabled(isList);
    m_stored.clear();
    if (!isList) {
        const jet::Recordset marked
            = context().data.openRecordset(u"select id from cnt_main where selected=true"_s);
        for (int row = 0; row < marked.count(); ++row)
            m_stored.insert(marked.keyAt(row));
        m_ticked = m_stored;
    }
    followTicks();
}

bool FrmMailLstAdd::takeContacts(const QList<qint64>& ids, const QString& listName)
{
    if (!mayDiscard())
        return false;
    m_ticked = QSet<qint64>(ids.begin(), ids.end());
    cmbListName->setText(listName);
    cmbListName->lineEdit()->setModified(false);
    setPurpose(Purpose::List);
    m_stored = m_ticked;
    readContacts();
    return true;
}

void FrmMailLstAdd::openPage(const QString& page)
{
    const Purpose wanted = page == u"Print" ? Purpose::Print : Purpose::List;
    if (wanted == m_purpose && wanted == Purpose::List)
        return;
    if (!mayDiscard())
        return;
    m_ticked.clear();
    setPurpose(wanted);
    readContacts();
}

bool FrmMailLstAdd::isTouched() const
{
    return m_ticked != m_stored || cmbListName->lineEdit()->isModified();
}

void FrmMailLstAdd::bookChanged()
{
    for (widgets::FilledCombo* combo : std::as_const(m_filters))
        combo->refill();
    cmbListName->refill();
    readContacts();
}

AddFilter FrmMailLstAdd::filter() const
{
    return {m_filters[0]->currentText(), m_filters[1]->currentText(), m_filters[2]->currentText(),
        m_filters[3]->currentText()};
}

// A text that makes no statement, such as half a pattern, leaves the list as it was.
void FrmMailLstAdd::readContacts()
{
    jet::Recordset rows = context().data.openRecordset(addableContactsSql(filter()));
    if (!rows.isValid())
        return;
    const qint64 current = Grid2->currentKey();
    Grid2->fill(std::move(rows));
    Grid2->tickRows([this](int row) { return m_ticked.contains(Grid2->recordset().keyAt(row)); });
    if (current == 0 || !Grid2->selectKey(current))
        Grid2->setCurrentRow(-1);
    followTicks();
}

void FrmMailLstAdd::followTicks()
{
    lblCount->setText(m_ticked.isEmpty()
            ? tr("Nobody is ticked")
            : tr("%1 ticked, %2 listed").arg(m_ticked.size()).arg(Grid2->rowCount()));
    child<QPushButton>(this, u"CmdEmail"_s)->setEnabled(!m_ticked.isEmpty());
}

void FrmMailLstAdd::tickShown(bool ticked)
{
    for (int row = 0; row < Grid2->rowCount(); ++row) {
        if (ticked)
            m_ticked.insert(Grid2->recordset().keyAt(row));
        else
            m_ticked.remove(Grid2->recordset().keyAt(row));
    }
    Grid2->tickRows([this](int row) { return m_ticked.contains(Grid2->recordset().keyAt(row)); });
    followTicks();
}

void FrmMailLstAdd::refresh()
{
    if (!clearSelection(context().data))
        return core::tellFailedSave(context());
    m_ticked.clear();
    setPurpose(m_purpose);
    readContacts();
    context().screens.tellBookChanged(this);
}

QList<qint64> FrmMailLstAdd::ticked() const
{
    QList<qint64> ids = m_ticked.values();
    std::ranges::sort(ids);
    return ids;
}

void FrmMailLstAdd::store()
{
    if (m_purpose == Purpose::Print)
        return storeSelection();
    if (cmbListName->currentText().trimmed().isEmpty()) {
        warn(tr("Please define Mail List Name"));
        return cmbListName->setFocus();
    }
    if (m_ticked.isEmpty())
        return inform(tr("Record not selected"));
    storeList();
}

void FrmMailLstAdd::storeList()
{
    const QString list = cmbListName->currentText().trimmed();
    const QList<qint64> ids = ticked();
    const MembersAdded added = [&] {
        core::Progress progress(u"addProgress"_s, windowTitle(), tr("Adding people to %1").arg(list),
            int(ids.size()), this, kTooFewToWatch);
        return addListMembers(
            context().data, list, ids, [&progress](int done) { return progress.advance(done); });
    }();
    if (added.isStopped)
        return inform(tr("Stopped. Nobody was added."));
    if (!added.isStored)
        return core::tellFailedSave(context());
    playSound(core::sounds::Save);
    if (added.added > 0)
        context().frame.showNotice(added.known == 0
                ? tr("Added %1 to %2").arg(QString::number(added.added), list)
                : tr("Added %1 to %2, %3 were in it already")
                      .arg(QString::number(added.added), list, QString::number(added.known)),
            tr("Undo"), [&context = context(), id = context().data.lastChange()->id] {
                core::takeBack(context, jet::StepDirection::Back, id);
            });
    else
        context().frame.showNotice(tr("All of them are in %1 already").arg(list));
    backToLists(u"List:"_s + list);
}

void FrmMailLstAdd::storeSelection()
{
    const QList<qint64> marked = (m_ticked - m_stored).values();
    const QList<qint64> unmarked = (m_stored - m_ticked).values();
    jet::Batch batch(context().data);
    selectContacts(context().data, marked, true);
    selectContacts(context().data, unmarked, false);
    if (!batch.commit())
        return core::tellFailedSave(context());
    context().frame.showNotice(tr("%1 are selected to be printed").arg(m_ticked.size()));
    backToLists({});
}

// The lists show what they have now.
void FrmMailLstAdd::backToLists(const QString& page)
{
    m_ticked.clear();
    m_stored.clear();
    cmbListName->lineEdit()->setModified(false);
    core::Screens& screens = context().screens;
    screens.tellBookChanged(this);
    if (auto* lists = screens.load<core::PageScreen>(kLists); lists && !page.isEmpty())
        lists->openPage(page);
    screens.show(kLists);
    Q_EMIT closeRequested();
}

void FrmMailLstAdd::sendMail()
{
    const auto answer = context().services.boxes.ask(
        tr("Do you want to ask %1 of them for the address by e-mail?").arg(m_ticked.size()),
        shared().AppTitle);
    if (answer == platform::Answer::No)
        return;
    const UpdateMails mails = sendUpdateMails(context(), ticked(), this);
    if (mails.isStopped)
        inform(tr("Stopped. %1 messages were written.").arg(mails.sent));
    if (!mails.failed.isEmpty())
        warn(tr("%1 messages are in the outbox. These were not written:").arg(mails.sent) + u"\n\n"_s
            + someOf(mails.failed));
    else if (!mails.isStopped)
        context().frame.showNotice(mails.sent == 1 ? tr("One message is in the outbox")
                                                   : tr("%1 messages are in the outbox").arg(mails.sent));
}

void FrmMailLstAdd::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else
        Screen::keyPressEvent(event);
}

} // namespace letters
