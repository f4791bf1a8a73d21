#include "letters/creator/letter_creator.h"

#include "core/frame.h"
#include "core/progress.h"
#include "core/save_failure.h"
#include "core/screens.h"
#include "core/settings.h"
#include "core/sound_files.h"
#include "core/tool_set.h"
#include "editor/text_editor.h"
#include "jet/date_text.h"
#include "letters/creator/letter_database.h"
#include "letters/creator/letter_draft.h"
#include "letters/creator/letter_fields.h"
#include "letters/creator/letter_files.h"
#include "letters/creator/letter_merge.h"
#include "letters/creator/recipient_panel.h"
#include "output/letters/letter_report.h"
#include "output/preview/FrmReportViewer.h"
#include "platform/clock.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "platform/storage.h"
#include "widgets/fields.h"

#include <QAction>
#include <QFileInfo>
#include <QLocale>
#include <QSaveFile>
#include <QTabWidget>

using namespace Qt::StringLiterals;
using widgets::child;

namespace letters {

namespace {

constexpr QStringView kPreviewDate = u"mmm dd-yy";
constexpr QStringView kFileDate = u"mmm-dd-YYYY";
constexpr QStringView kDatabaseFolder = u"C:\\OVUserfiles";
constexpr qsizetype kMostNames = 12; ///< that a message can hold

QString someOf(const QStringList& names)
{
    if (names.size() <= kMostNames)
        return names.join(u", "_s);
    return LetterCreator::tr("%1 and %2 more")
        .arg(names.mid(0, kMostNames).join(u", "_s))
        .arg(names.size() - kMostNames);
}

bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()
        && platform::commitWhole(file);
}

/// The user as the sender of a letter.
void fillSender(jet::Database& data, output::LetterLook& look)
{
    const jet::Recordset user = data.openRecordset(u"select * from cnt_user");
    look.senderName = user.textOrEmpty(u"Name");
    for (const QStringView column : {u"h_add1", u"h_add2", u"h_city", u"h_state", u"h_pin", u"h_country"}) {
        if (const QString line = user.textOrEmpty(column).trimmed(); !line.isEmpty())
            look.senderAddress << line;
    }
}

} // namespace

/// Those that the letter goes to; says so when there are none.
QList<Recipient> LetterCreator::chosenRecipients()
{
    if (m_recipients->takeTypedName() > 1) {
        child<QTabWidget>(this, u"LetterSides"_s)->setCurrentIndex(0);
        inform(tr("Several people have this name, and all of them are in the list now. Take those off it "
                  "whom you do not mean, and try again."));
        return {};
    }
    compose();
    const QList<Recipient> recipients = m_recipients->recipients();
    if (recipients.isEmpty())
        inform(tr("Record not selected"));
    return recipients;
}

bool LetterCreator::save()
{
    const QList<Recipient> recipients = chosenRecipients();
    if (recipients.isEmpty() || m_details->hasBadDate())
        return false;
    const QDate today = context().services.clock.today();
    const LetterDetails::Values details = m_details->values();
    LetterToKeep letter{.parts = parts(),
        .caption = m_caption,
        .category = details.category,
        .type = details.type,
        .serialNumber = details.serialNumber,
        .kind = m_kind,
        .note = details.note,
        .hasNote = m_form.hasNote,
        .date = details.date.isValid() ? details.date : today,
        .today = today,
        .folder = m_details->folder()};
    if (const auto whyNot
        = keepLetters(context().data, context().services.drive, letter, recipients, lettersTo())) {
        if (whyNot->isEmpty())
            core::tellFailedSave(context());
        else
            warn(tr("The letter was not saved. Its file could not be written: %1.").arg(*whyNot));
        return false;
    }
    m_isDirty = false;
    playSound(core::sounds::Save);
    tellSaved(recipients.size() == 1 ? tr("the letter to %1").arg(recipients.constFirst().name)
                                     : tr("the letter to %1 people").arg(recipients.size()));
    m_details->showHistory(context().data, m_recipients->current().name);
    context().screens.tellBookChanged(this);
    return true;
}

void LetterCreator::preview(int style)
{
    m_style = style;
    constexpr QStringView kStyles[] = {u"Style1", u"Style2", u"Style3"};
    for (int each = 0; each < int(std::size(kStyles)); ++each)
        m_tools->action(kStyles[each])->setChecked(each == style);
    const QList<Recipient> recipients = chosenRecipients();
    if (recipients.isEmpty() || m_details->hasBadDate())
        return;
    const LetterParts text = parts();
    if (!fillPreviewRows(context().data, text, recipients))
        return core::tellFailedSave(context());
    const QDate date = m_details->values().date;
    output::LetterLook look{.style = output::LetterStyle(style),
        .isUSLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem,
        .date = jet::formatDate(date.isValid() ? date : context().services.clock.today(), kPreviewDate),
        .greeting = u"Dear"_s,
        .closing = {text.closings[0], text.closings[1]},
        .ending = text.ending,
        .signature = text.signature,
        .body = openingsAndBody(text)};
    look.closing.removeAll(QString());
    if (m_isHandmade) {
        // What was changed by hand has its closing in it, and may speak to its readers in its own way.
        const formats::RichText whole = RText->text();
        const MergedFor letters = lettersTo();
        look.isGreetedInBody = !spokenTo(whole, m_head);
        for (const Recipient& to : recipients)
            look.readers << spokenTo(letters(to), letterHead(to)).value_or(QString());
        look.body = belowHead(whole, m_head);
        look.closing.clear();
        look.ending.clear();
        look.signature.clear();
    } else {
        for (const Recipient& to : recipients)
            look.readers << to.salutation;
    }
    fillSender(context().data, look);
    const auto rows = std::make_shared<output::RecordsetSource>(
        context().data.openRecordset(u"Select * from rptletter"), output::reportDates(shared().NationalMode));
    output::ShowReportViewer(context(), output::letterReport(look, rows), tr("Letter Preview"));
}

void LetterCreator::writeFiles()
{
    const QList<Recipient> recipients = chosenRecipients();
    if (recipients.isEmpty())
        return;
    LetterFolder folder(context().services.drive, m_details->folder());
    const formats::RichText today
        = formats::RichText::fromPlain(jet::formatDate(context().services.clock.today(), kFileDate));
    const auto letterTo = [today, merged = lettersTo()](const Recipient& to) {
        formats::RichText dated = today;
        dated.append(merged(to));
        return dated;
    };
    const LettersWritten outcome = [&] {
        core::Progress progress(u"letterProgress"_s, tr("Contact Letters"), tr("Saving "),
            static_cast<int>(recipients.size()), this, 5);
        return writeLetterFiles(folder, recipients, letterTo, [&progress](int done, const QString& reader) {
            progress.say(tr("Saving ") + reader);
            return progress.advance(done);
        });
    }();
    const QString place = m_details->folder();
    if (outcome.missing.isEmpty()) {
        playSound(core::sounds::Save);
        return tellPlace(tr("Letters saved in %1: %2").arg(place).arg(outcome.readers.size()), place);
    }
    const QString told
        = tr("Written: %1.\nNot written: %2.")
              .arg(outcome.readers.isEmpty() ? tr("none") : someOf(outcome.readers), someOf(outcome.missing));
    if (outcome.stopped)
        inform(tr("Stopped.") + u'\n' + told);
    else
        warn(tr("No more letters could be saved in %1: %2.").arg(place, outcome.whyNot) + u'\n' + told);
}

void LetterCreator::writeDatabase()
{
    const QList<Recipient> recipients = chosenRecipients();
    if (recipients.isEmpty())
        return;
    const platform::Drive& drive = context().services.drive;
    drive.ensureFolder(kDatabaseFolder);
    auto file = context().services.boxes.saveFile(tr("Save the letters as a database of this program"),
        u"Database |*.mdb"_s, {drive.local(kDatabaseFolder), u"Letters.mdb"_s});
    if (!file)
        return;
    if (!file->endsWith(u".mdb", Qt::CaseInsensitive))
        *file += u".mdb"_s;
    const LetterDatabase written = writeLetterDatabase(drive, *file, recipients, lettersTo());
    if (!written.whyNot.isEmpty())
        return warn(tr("The letters could not be saved as %1: %2.").arg(*file, written.whyNot));
    playSound(core::sounds::Save);
    tellPlace(tr("Saved %1, and %2 for other programs")
                  .arg(QFileInfo(*file).fileName(), QFileInfo(written.csv).fileName()),
        written.csv);
}

void LetterCreator::merge(bool withLetterFile)
{
    const QList<Recipient> recipients = chosenRecipients();
    if (recipients.isEmpty())
        return;
    const auto merged = mergeLetters(context().services.wordProcessor,
        m_isHandmade ? belowHead(RText->text(), m_head) : composedLetter(formats::RichText(), parts()),
        recipients, m_form.mergeFolder.toString(), context().services.clock.today());
    if (!merged)
        return;
    if (!*merged)
        return warn(tr("The letters could not be merged: %1.").arg(merged->whyNot));
    const QString file = merged->files.value(0);
    tellPlace(
        tr("Merged letters: %1").arg(m_form.mergeFolder.toString() + u'\\' + QFileInfo(file).fileName()),
        file);
    if (withLetterFile)
        writeLetterFile(recipients);
}

void LetterCreator::writeLetterFile(const QList<Recipient>& recipients)
{
    const MergedFor merged = lettersTo();
    QList<formats::RichText> pages;
    for (const Recipient& to : recipients)
        pages << merged(to);
    const QByteArray bytes = letterFile(pages, windowTitle(), context().services.clock.today());
    const bool isJournalled = core::readSettings(context().data).flag(u"ltrtojrnl");
    const platform::Drive& drive = context().services.drive;
    for (const QStringView path : {kLetterFile, kJournalFile}) {
        if (path == kJournalFile && !isJournalled)
            continue;
        if (const QString local = drive.local(path); !writeBytes(local, bytes))
            warn(tr("%1 could not be written: %2.").arg(path.toString(), platform::whyNotReplaced(local)));
    }
}

void LetterCreator::tellPlace(const QString& text, const QString& file)
{
    context().frame.showNotice(
        text, tr("Open"), [&shell = context().services.shell, file] { shell.openFile(file); });
}

// ---- a letter that was not saved

bool LetterCreator::asksToSave()
{
    return context().services.boxes.ask(
               tr("You did not  save the changes, Wish to save? "), shared().AppTitle)
        == platform::Answer::Yes;
}

// Closed without being saved it comes back when the screen is opened again.
bool LetterCreator::mayClose()
{
    if (!m_isDirty)
        return true;
    if (asksToSave())
        return save();
    keepDraft();
    playSound(core::sounds::Cancel);
    return true;
}

bool LetterCreator::mayEndProgram()
{
    if (!m_isDirty)
        return true;
    return asksToSave() ? save() : mayDiscard();
}

void LetterCreator::keepDraft()
{
    const LetterDetails::Values details = m_details->values();
    LetterDraft draft{.letter = {.parts = parts(),
                          .caption = m_caption,
                          .category = details.category,
                          .type = details.type,
                          .serialNumber = details.serialNumber,
                          .kind = m_kind,
                          .note = details.note,
                          .date = details.date},
        .recipients = m_recipients->recipients(),
        .addressType = m_recipients->addressType(),
        .isAddressTyped = m_recipients->isAddressTyped()};
    if (m_isHandmade)
        draft.whole = RText->text();
    shared().unsavedEntries.insert(objectName(), draftValues(draft));
}

void LetterCreator::showDraft()
{
    const auto draft = draftFrom(shared().unsavedEntries.take(objectName()));
    if (!draft)
        return;
    const LetterToKeep& letter = draft->letter;
    m_kind = letter.kind;
    m_caption = letter.caption;
    m_phrases->setCaption(m_caption);
    showParts(letter.parts);
    m_details->show({letter.date, letter.type, letter.category, letter.serialNumber, letter.note});
    m_recipients->setAddressType(draft->addressType);
    m_recipients->setRecipients(draft->recipients, !draft->isAddressTyped);
    m_recipients->bookChanged();
    compose();
    if (draft->whole) {
        setWhole(*draft->whole);
        setHandmade(true);
    }
    m_isDirty = true;
    context().frame.showNotice(tr("The letter that was not saved is here again"), tr("Discard"),
        [&screens = context().screens, name = objectName()] {
            if (auto* creator = dynamic_cast<LetterCreator*>(screens.find(name)))
                creator->begin();
        });
}

} // namespace letters
