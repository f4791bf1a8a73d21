#include "letters/lists/FrmList.h"

#include "core/frame.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/take_back.h"
#include "widgets/fields.h"
#include "widgets/filled_combo.h"
#include "widgets/form_kit.h"
#include "widgets/record_list.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

FrmList::FrmList(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_names(new widgets::RecordList)
{
    setWindowTitle(tr("Add to a list"));
    m_names->setEmptyText(
        tr("Nobody is chosen.\nChoose contacts in another screen and its tool \"Add to a list\"."));
    widgets::FormKit form(this);
    form.group()
        .combo(u"cmbList"_s, tr("&List"))
        .hint(tr("A list that is there, or the name of a new mailing list"))
        .caption(u"lblWhat"_s)
        .caption(u"lblPeople"_s)
        .wide(u"lstPeople"_s, tr("People to be added"), m_names);
    form.buttonRow()
        .stretch()
        .button(u"cmdOk"_s, tr("&Add"), u"add", tr("Put the people into the list (Enter)"))
        .button(u"cmdCancel"_s, tr("Close"), u"exit", tr("Close the screen (Esc)"));
    cmbList = child<widgets::FilledCombo>(this, u"cmbList"_s);
    cmbList->lineEdit()->setMaxLength(255);
    cmbList->lineEdit()->setPlaceholderText(tr("Choose a list, or name a new one"));
    lblPeople = child<QLabel>(this, u"lblPeople"_s);
    lblWhat = child<QLabel>(this, u"lblWhat"_s);
    lblWhat->setWordWrap(true);
    cmdOk = child<QPushButton>(this, u"cmdOk"_s);
    setFocusProxy(cmbList);
    connect(cmbList, &QComboBox::currentTextChanged, this, &FrmList::follow);
    connect(cmdOk, &QPushButton::clicked, this, &FrmList::add);
    connect(child<QPushButton>(this, u"cmdCancel"_s), &QPushButton::clicked, this, &Screen::closeRequested);
}

void FrmList::load()
{
    setFrameTitle(windowTitle());
    readLists();
    showPeople();
}

bool FrmList::showContact(qint64 id)
{
    return takeContacts({id}, {});
}

bool FrmList::takeContacts(const QList<qint64>& ids, const QString& listName)
{
    const QSet<qint64> each(ids.begin(), ids.end());
    m_people = each.values();
    if (!listName.isEmpty())
        cmbList->setText(PickedList{ListKind::Mail, listName}.caption());
    showPeople();
    return !m_people.isEmpty();
}

bool FrmList::isTouched() const
{
    const auto list = picked();
    return cmbList->lineEdit()->isModified() && list && !m_lists.contains(*list);
}

void FrmList::bookChanged()
{
    readLists();
    showPeople();
}

void FrmList::readLists()
{
    m_lists = pickableLists(context().data);
    QStringList captions;
    for (const PickedList& list : std::as_const(m_lists))
        captions << list.caption();
    cmbList->setValues(captions);
}

// Those who are gone are added no more.
void FrmList::showPeople()
{
    QList<QStringList> names;
    QList<qint64> there;
    for (const QString& ids : idLists(m_people)) {
        jet::Recordset people = context().data.openRecordset(
            u"select id,name from cnt_main where id in (%1) order by name"_s.arg(ids));
        for (; people.hasRow(); people.moveNext()) {
            there << people.number(u"id");
            names << QStringList{people.textOrEmpty(u"name"), QString::number(there.last())};
        }
    }
    m_people = there;
    m_names->setRows(names, {u"Name"_s, u"id"_s});
    lblPeople->setText(m_people.isEmpty() ? tr("Nobody is chosen")
            : m_people.size() == 1        ? tr("One person is to be added:")
                                          : tr("%1 people are to be added:").arg(m_people.size()));
    follow();
}

std::optional<PickedList> FrmList::picked() const
{
    const QString typed = cmbList->currentText().trimmed();
    const auto isTyped
        = [&typed](const QString& text) { return text.trimmed().compare(typed, Qt::CaseInsensitive) == 0; };
    for (const PickedList& list : m_lists) {
        if (isTyped(list.caption()))
            return list;
    }
    for (const PickedList& list : m_lists) {
        if (list.kind == ListKind::Mail && isTyped(list.name))
            return list;
    }
    if (typed.isEmpty())
        return {};
    return PickedList{ListKind::Mail, typed};
}

void FrmList::follow()
{
    const auto list = picked();
    cmdOk->setEnabled(list && !m_people.isEmpty());
    if (!list)
        return lblWhat->clear();
    const bool isThere = m_lists.contains(*list);
    lblWhat->setText(isThere ? tr("Adds to %1 %2").arg(wordOf(list->kind), list->name)
                             : tr("Makes the mailing list %1").arg(list->name));
}

void FrmList::add()
{
    const auto list = picked();
    if (!list || m_people.isEmpty())
        return;
    const MembersAdded added = addToList(context().data, *list, m_people);
    if (!added.isStored)
        return core::tellFailedSave(context());
    cmbList->lineEdit()->setModified(false);
    tell(*list, added);
    if (added.added == 0)
        return;
    playSound(core::sounds::Save);
    context().screens.tellBookChanged(this);
    Q_EMIT closeRequested();
}

void FrmList::tell(const PickedList& list, const MembersAdded& added)
{
    if (!added.without.isEmpty()) {
        constexpr qsizetype kToldNames = 10;
        QString names = added.without.mid(0, kToldNames).join(u", "_s);
        if (added.without.size() > kToldNames)
            names += u", ..."_s;
        inform(tr("A list of the dialer has ten places, each for a number. These were not added: %1.")
                   .arg(names));
    }
    if (added.added == 0 && added.without.isEmpty())
        return inform(m_people.size() == 1 ? tr("This person is in %1 already.").arg(list.name)
                                           : tr("All of them are in %1 already.").arg(list.name));
    if (added.added > 0)
        context().frame.showNotice(added.added == 1
                ? tr("Added one person to %1").arg(list.name)
                : tr("Added %1 people to %2").arg(added.added).arg(list.name),
            tr("Undo"), [&context = context(), id = context().data.lastChange()->id] {
                core::takeBack(context, jet::StepDirection::Back, id);
            });
}

void FrmList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeRequested();
    else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && cmdOk->isEnabled())
        cmdOk->click();
    else
        Screen::keyPressEvent(event);
}

} // namespace letters
