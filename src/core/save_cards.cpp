#include "core/save_cards.h"

#include "core/progress.h"
#include "core/vcard_export.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace core {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("core", text);
}

/// Nothing, or a paragraph that names the contacts of which only the last one has a file.
QString aboutSharedNames(const CardsWritten& result)
{
    if (result.shared.isEmpty())
        return {};
    return u"\n\n"_s
        + translated("Contacts of one name share a file, which holds the last of them: %1")
              .arg(namesForReading(result.shared, static_cast<int>(result.shared.size())));
}

} // namespace

QString namesForReading(const QStringList& names, int all)
{
    constexpr qsizetype kNamesShown = 10;
    constexpr qsizetype kLettersShown = 60;
    QStringList shown;
    for (const QString& name : names.mid(0, kNamesShown)) {
        const QString line = name.simplified();
        shown << (line.size() > kLettersShown ? line.left(kLettersShown) + u'\u2026' : line);
    }
    const QString text = shown.join(u", "_s);
    return all > shown.size() ? translated("%1 and %2 more").arg(text).arg(all - shown.size()) : text;
}

int saveCards(
    Context& context, const QString& idList, const QString& folder, QWidget* over, const QString& savedWords)
{
    const int contacts = static_cast<int>(idList.count(u',')) + 1;
    const CardsWritten result = [&] {
        Progress progress(u"cardProgress"_s, translated("Save as vCard"),
            translated("Saving the cards of %1 contacts").arg(contacts), contacts, over);
        return WriteVCards(context.data, context.services.drive, idList, folder,
            [&progress](int done) { return progress.advance(done); });
    }();
    platform::MessageBoxes& boxes = context.services.boxes;
    const QString title = context.shared.AppTitle;
    const QString sharing = aboutSharedNames(result);
    const QString saved = QString::number(result.written);
    if (!result.stoppedBy.isEmpty())
        boxes.warning(translated("%1 of %2 VCF files were saved on %3. No more could be written: %4.")
                          .arg(saved, QString::number(contacts), folder, result.stoppedBy)
                + sharing,
            title);
    else if (result.stopped)
        boxes.information(translated("Stopped. %1 of %2 VCF files were saved on %3")
                              .arg(saved, QString::number(contacts), folder)
                + sharing,
            title);
    else if (result.written > 0)
        boxes.information((savedWords.isEmpty() ? translated("VCF File Saved on %1") : savedWords).arg(folder)
                + (contacts > 1 && savedWords.isEmpty()
                        ? u"\n\n"_s + translated("Files written: %1").arg(result.written - result.overwritten)
                        : QString())
                + sharing,
            title);
    if (result.badNames > 0)
        boxes.warning(
            translated("%1 VCF files could not be written. A contact whose name can not be the name "
                       "of a file has none.")
                    .arg(result.badNames)
                + u"\n\n"_s + namesForReading(result.refused, result.badNames),
            title);
    if (result.failed > 0 && result.stoppedBy.isEmpty())
        boxes.warning(
            translated("%1 VCF files could not be written in %2.").arg(result.failed).arg(folder), title);
    return result.written;
}

} // namespace core
