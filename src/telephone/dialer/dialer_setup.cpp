#include "telephone/dialer/dialer_setup.h"

#include "core/save_failure.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/vocabularies.h"
#include "platform/sounds.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"
#include "widgets/heading_grid.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;
using widgets::child;
using widgets::KeyFilter;

namespace telephone {

DialerSetup::DialerSetup(core::Context& context, QWidget* parent)
    : QFrame(parent)
    , m_context(context)
    , Grid2(new widgets::HeadingGrid)
{
    setObjectName(u"FrmeCall"_s);
    layOut();
    const auto onClick = [this](const QString& name, auto act) {
        connect(child<QPushButton>(this, name), &QPushButton::clicked, this, act);
    };
    onClick(u"CmdNew"_s, [this] {
        Text2->clear();
        setMode(Mode::New);
    });
    onClick(u"CmdEdit"_s, [this] { startEdit(); });
    onClick(u"CmdSave"_s, [this] { saveName(); });
    onClick(u"CmdDel"_s, [this] { deleteList(); });
    onClick(u"CmdPh"_s, [this] { savePrefixes(); });
    onClick(u"CmdModems"_s, [this] { Q_EMIT modemsWanted(); });
    onClick(u"CmdHideSetup"_s, [this] { Q_EMIT finished(); });
    connect(Text2, &QLineEdit::returnPressed, this, &DialerSetup::saveName);
    connect(Grid2, &widgets::HeadingGrid::chosen, this, &DialerSetup::startEdit);
    setMode(Mode::None);
}

void DialerSetup::layOut()
{
    Grid2->setHeadings(u"Memory list                ", {u"LIST"_s});
    Grid2->setEmptyText(tr("No list yet: New begins one"));
    const auto sizeOf = [this](QStringView column) {
        return column == u"List" ? m_context.schema.textSize(u"cnt_phonenum", column)
                                 : m_context.schema.textSize(u"cntb_setup", column);
    };
    widgets::FormKit form(this, sizeOf);
    form.group(tr("Memory lists"))
        .wide(u"Grid2"_s, tr("Memory lists"), Grid2)
        .button(u"CmdNew"_s, tr("Ne&w"), u"add", tr("Begin a list of another name"))
        .button(u"CmdEdit"_s, tr("Ren&ame"), u"edit", tr("Change the name of the list that is marked"))
        .button(u"CmdDel"_s, tr("De&lete"), u"delete", tr("Delete the list with its numbers"))
        .line(u"Text2"_s, tr("&Name"), u"List"_s, KeyFilter::NoApostrophe)
        .beside()
        .button(u"CmdSave"_s, tr("&Save"), u"save", tr("Store the name (Enter)"))
        .caption(u"lblListHint"_s);
    form.group(tr("Dialled before a number"))
        .line(u"txtpbx"_s, tr("P&BX (outside line)"), u"PBX"_s, KeyFilter::NoApostrophe)
        .beside()
        .line(u"txtprefix1"_s, tr("Prefix &1"), u"Prefix1"_s, KeyFilter::NoApostrophe)
        .line(u"txtPrefix2"_s, tr("Prefix &2"), u"Prefix2"_s, KeyFilter::NoApostrophe)
        .beside()
        .line(u"txtPrefix3"_s, tr("Prefix &3"), u"Prefix3"_s, KeyFilter::NoApostrophe)
        .button(u"CmdPh"_s, tr("Save &prefixes"), u"save", tr("Store the prefixes"));
    form.buttonRow()
        .button(u"CmdModems"_s, tr("Modems Setup"), u"setup", tr("Which device is behind each port"))
        .stretch()
        .button(u"CmdHideSetup"_s, tr("Bac&k"), u"cancel", tr("Back to the dialer (Esc)"));
    Text2 = child<QLineEdit>(this, u"Text2"_s);
    m_hint = child<QLabel>(this, u"lblListHint"_s);
}

void DialerSetup::read()
{
    const jet::Recordset settings = core::readSettings(m_context.data);
    m_stored = {settings.textOrEmpty(u"Prefix1"), settings.textOrEmpty(u"Prefix2"),
        settings.textOrEmpty(u"Prefix3"), settings.textOrEmpty(u"PBX")};
    const auto show = [this](const QString& line, const QString& text) {
        widgets::setTextOf(child<QLineEdit>(this, line), text);
    };
    show(u"txtprefix1"_s, m_stored.p1);
    show(u"txtPrefix2"_s, m_stored.p2);
    show(u"txtPrefix3"_s, m_stored.p3);
    show(u"txtpbx"_s, m_stored.pbx);
    m_stored = prefixes(); // as the lines have them
    Text2->clear();
    m_hint->clear();
    setMode(Mode::None);
    readLists({});
}

bool DialerSetup::isTouched() const
{
    const DialPrefixes now = prefixes();
    const bool isNameTyped = m_mode != Mode::None && Text2->text().trimmed() != m_renamed;
    return isNameTyped || now.p1 != m_stored.p1 || now.p2 != m_stored.p2 || now.p3 != m_stored.p3
        || now.pbx != m_stored.pbx;
}

void DialerSetup::setMode(Mode mode)
{
    m_mode = mode;
    m_renamed = mode == Mode::Edit ? Grid2->currentText(u"LIST"_s) : QString();
    Text2->setEnabled(mode != Mode::None);
    child<QPushButton>(this, u"CmdSave"_s)->setEnabled(mode != Mode::None);
    m_hint->clear();
    if (mode != Mode::None)
        Text2->setFocus();
}

void DialerSetup::startEdit()
{
    if (Grid2->currentRow() < 0)
        return m_hint->setText(tr("Mark a list first"));
    setMode(Mode::Edit);
    widgets::setTextOf(Text2, m_renamed);
    Text2->selectAll();
}

void DialerSetup::saveName()
{
    const QString name = Text2->text().trimmed();
    if (m_mode == Mode::None)
        return;
    if (name.isEmpty())
        return m_hint->setText(tr("A list needs a name"));
    const QStringList there = core::firstColumn(m_context.data, memoryListsSql());
    const bool isOwn = m_mode == Mode::Edit && name.compare(m_renamed, Qt::CaseInsensitive) == 0;
    if (!isOwn && there.contains(name, Qt::CaseInsensitive))
        return m_hint->setText(tr("There is a list of this name already"));
    if (m_mode == Mode::New)
        addList(name);
    else
        renameList(name);
}

void DialerSetup::addList(const QString& name)
{
    {
        const jet::Step step(m_context.data, tr("the memory list %1").arg(name));
        jet::Recordset rows = m_context.data.openRecordset(u"Select * from cnt_phonenum"_s);
        rows.addNew();
        rows.set(u"List", name);
        if (!rows.update())
            return core::tellFailedSave(m_context);
    }
    m_context.services.sounds.play(core::sounds::Save);
    setMode(Mode::None);
    readLists(name);
    Q_EMIT listAdded(name);
}

// A list that has gone meanwhile can not be renamed, which is told.
void DialerSetup::renameList(const QString& to)
{
    {
        const jet::Step step(m_context.data, tr("the name of the memory list %1").arg(to));
        if (m_context.data.execute(renameListSql(m_renamed, to)).changed == 0)
            return core::tellFailedSave(m_context);
    }
    m_context.services.sounds.play(core::sounds::Save);
    setMode(Mode::None);
    readLists(to);
    Q_EMIT listsChanged();
}

void DialerSetup::deleteList()
{
    const QString name = Grid2->currentText(u"LIST"_s);
    if (Grid2->currentRow() < 0)
        return m_hint->setText(tr("Mark a list first"));
    {
        const jet::Step step(m_context.data, tr("deleting the memory list %1").arg(name));
        const jet::Outcome deleted = m_context.data.execute(deleteListSql(name));
        if (!deleted)
            return core::tellFailedSave(m_context);
        if (deleted.changed == 0)
            return m_hint->setText(tr("There is no list of that name"));
    }
    m_context.services.sounds.play(core::sounds::Delete);
    Text2->clear();
    setMode(Mode::None);
    readLists({});
    Q_EMIT listDeleted(name);
}

void DialerSetup::readLists(const QString& current)
{
    Grid2->fill(m_context.data.openRecordset(u"select distinct list from  cnt_phonenum"_s));
    for (int row = 0; row < Grid2->rowCount(); ++row) {
        if (Grid2->textAt(row, u"LIST"_s) == current)
            Grid2->setCurrentRow(row);
    }
}

DialPrefixes DialerSetup::prefixes() const
{
    const auto text = [this](const QString& line) { return child<QLineEdit>(this, line)->text().trimmed(); };
    return {text(u"txtprefix1"_s), text(u"txtPrefix2"_s), text(u"txtPrefix3"_s), text(u"txtpbx"_s)};
}

void DialerSetup::savePrefixes()
{
    const jet::Step step(m_context.data, tr("the prefixes of the dialer"));
    if (m_context.data.execute(storePrefixesSql(prefixes())).changed == 0)
        return core::tellFailedSave(m_context);
    m_stored = prefixes();
    m_context.services.sounds.play(core::sounds::Save);
    Q_EMIT finished();
}

} // namespace telephone
