#include "entry/form/FrmAddSave.h"

#include "core/handover/save_source.h"
#include "core/mail_key.h"
#include "core/screens.h"
#include "core/sound_files.h"
#include "core/vcard_export.h"
#include "platform/card_folder.h"
#include "platform/special_folders.h"
#include "widgets/dialog_keys.h"
#include "widgets/fields.h"
#include "widgets/form_kit.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;
using widgets::child;

namespace entry {

namespace {

constexpr int kLeastWidth = 420;
constexpr QStringView kCardFolder = u"C:\\OVUserFiles\\Contacts\\VCF";

QString translated(const char* text)
{
    return QCoreApplication::translate("entry", text);
}

} // namespace

/// What stood in the form when it was to be saved; storing it in the book blanks the form.
struct FrmAddSave::Entered {
    core::SaveSource& source;
    formats::CardValues card;
    QString mailKey;
    platform::MailChange mailChange;
};

struct FrmAddSave::TargetRow {
    QStringView box;
    const char* label;
    const char* toolTip;
    bool (FrmAddSave::*save)(Entered& entered);
};

// The book is first, since only a stored contact has the key by which the mail client's item is linked to it.
const FrmAddSave::TargetRow FrmAddSave::kTargets[] = {
    {u"chkMLdb", QT_TRANSLATE_NOOP("entry", "&Orvane Contacts"),
        QT_TRANSLATE_NOOP("entry", "Store the contact in this address book"), &FrmAddSave::toBook},
    {u"chkOutlookdb", QT_TRANSLATE_NOOP("entry", "The &mail client's contacts"),
        QT_TRANSLATE_NOOP("entry", "Add the contact to the mail client, or change it there"),
        &FrmAddSave::toMailClient},
    {u"chkOutlookexxpdb", QT_TRANSLATE_NOOP("entry", "The &second address book"),
        QT_TRANSLATE_NOOP("entry", "Add a card to the address book of the second mail client"),
        &FrmAddSave::toAddressBook},
    {u"ChkVcf", QT_TRANSLATE_NOOP("entry", "A &vCard file among the user files"),
        QT_TRANSLATE_NOOP("entry", "Write a VCF file to C:\\OVUserFiles\\Contacts\\VCF"),
        &FrmAddSave::toCardFolder},
    {u"ChkVCFDesk", QT_TRANSLATE_NOOP("entry", "A vCard file on the &desktop"),
        QT_TRANSLATE_NOOP("entry", "Write a VCF file to the desktop"), &FrmAddSave::toDesktop},
};

FrmAddSave::FrmAddSave(core::Context& context, QWidget* parent)
    : Screen(context, parent)
{
    setWindowTitle(tr("Save as"));
    setMinimumWidth(kLeastWidth);
    layOut();
}

void FrmAddSave::layOut()
{
    widgets::FormKit form(this);
    form.group(tr("Save this contact to"));
    for (const TargetRow& target : kTargets) {
        form.check(target.box.toString(), translated(target.label)).hint(translated(target.toolTip));
        m_boxes << child<QCheckBox>(this, target.box.toString());
        connect(m_boxes.constLast(), &QCheckBox::toggled, this, &FrmAddSave::allowSave);
    }
    form.buttonRow()
        .stretch()
        .button(u"CmdSave"_s, tr("&Save"), u"save", tr("Save to all places that are ticked (Enter)"))
        .button(u"CmdCancel"_s, tr("Cancel"), u"cancel", tr("Save nothing (Esc)"));
    m_save = child<QPushButton>(this, u"CmdSave"_s);
    m_save->setDefault(true);
    connect(m_save, &QPushButton::clicked, this, &FrmAddSave::save);
    connect(child<QPushButton>(this, u"CmdCancel"_s), &QPushButton::clicked, this, &FrmAddSave::cancel);
    setFocusProxy(m_boxes.constFirst());
}

void FrmAddSave::load()
{
    m_caller = shared().CallerForm;
    child<QCheckBox>(this, u"chkMLdb"_s)->setChecked(true);
    allowSave();
}

void FrmAddSave::allowSave()
{
    const bool any = std::ranges::any_of(m_boxes, [](const QCheckBox* box) { return box->isChecked(); });
    m_save->setEnabled(any && context().screens.find<core::SaveSource>(m_caller));
}

// What fails says so by itself, and the rest is saved all the same; only without the book, when that was
// asked for, nothing else is.
void FrmAddSave::save()
{
    auto* source = context().screens.find<core::SaveSource>(m_caller);
    if (!source || !source->mayBeSaved()) {
        Q_EMIT closeRequested();
        return;
    }
    Entered entered{*source, source->cardValues(), source->mailKey(), source->mailChange()};
    bool allSaved = true;
    auto box = m_boxes.constBegin();
    for (const TargetRow& target : kTargets) {
        if (!(*box++)->isChecked())
            continue;
        const bool saved = (this->*target.save)(entered);
        allSaved = allSaved && saved;
        if (!saved && target.save == &FrmAddSave::toBook)
            break;
    }
    if (allSaved) {
        // The form has its own sound for what it stored.
        if (!child<QCheckBox>(this, u"chkMLdb"_s)->isChecked())
            playSound(core::sounds::Save);
        inform(tr("All data saved successfully"));
    }
    Q_EMIT closeRequested();
}

bool FrmAddSave::toBook(Entered& entered)
{
    const qint64 id = entered.source.saveContact();
    if (id != 0)
        entered.mailKey = core::mailKeyOf(id);
    return id != 0;
}

bool FrmAddSave::toMailClient(Entered& entered)
{
    platform::MailContacts& contacts = context().services.mailContacts;
    const bool known = !entered.mailKey.isEmpty() && contacts.contains(entered.mailKey);
    platform::MailContact item;
    item.key = entered.mailKey;
    entered.mailChange(item);
    const bool saved = known ? contacts.update(entered.mailKey, entered.mailChange) : contacts.add(item);
    if (!saved)
        warn(tr("The mail client did not take the contact."));
    return saved;
}

bool FrmAddSave::toAddressBook(Entered& entered)
{
    const bool saved = core::WriteVCardValues(
        context().services.drive, platform::addressBookFolder(context().services.folders), entered.card);
    if (!saved)
        warn(tr("The card could not be written to the second address book."));
    return saved;
}

bool FrmAddSave::toCardFolder(Entered& entered)
{
    return toFile(entered, kCardFolder.toString());
}

bool FrmAddSave::toDesktop(Entered& entered)
{
    return toFile(entered, context().services.folders.SpecialFolderPath(platform::csidlDesktop));
}

bool FrmAddSave::toFile(const Entered& entered, const QString& folder)
{
    const QString path = folder + u'\\' + entered.card.name + u".vcf"_s;
    const bool saved = core::WriteVCardValues(context().services.drive, folder, entered.card);
    if (saved)
        inform(tr("VCF File Saved on %1").arg(path));
    else
        warn(tr("The VCF file could not be written: %1").arg(path));
    return saved;
}

void FrmAddSave::cancel()
{
    playSound(core::sounds::Cancel);
    Q_EMIT closeRequested();
}

void FrmAddSave::keyPressEvent(QKeyEvent* event)
{
    if (!widgets::answerDialogKey(
            event, this,
            [this] {
                if (m_save->isEnabled())
                    save();
            },
            [this] { cancel(); }))
        Screen::keyPressEvent(event);
}

} // namespace entry
