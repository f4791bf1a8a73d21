#include "core/vcard_export.h"

#include "core/contact_record.h"
#include "platform/card_folder.h"
#include "platform/drive.h"
#include "platform/storage.h"

using namespace Qt::StringLiterals;

namespace core {

namespace {

// As many as the person does not wait for between two looks at the stop button.
constexpr qsizetype kIdsAtATime = 250;
constexpr int kContactsAStep = 25;
constexpr int kNamesKept = 1000;

} // namespace

CardsWritten WriteVCards(jet::Database& book, const platform::Drive& drive, const QString& idList,
    const QString& folder, const CardProgress& progress)
{
    using Written = platform::CardFolder::Written;
    CardsWritten result;
    platform::CardFolder cards(drive, folder);
    QHash<QString, int> contactsOfFile;
    const auto noteName = [&](const QString& name) {
        const int contacts = ++contactsOfFile[name.toLower()];
        result.overwritten += contacts > 1 ? 1 : 0;
        if (contacts == 2)
            result.shared << name;
    };
    const QStringList ids = idList.split(u',', Qt::SkipEmptyParts);
    for (qsizetype at = 0; at < ids.size(); at += kIdsAtATime) {
        jet::Recordset rows = book.openRecordset(
            u"Select * from cnt_main where id in ( "_s + ids.mid(at, kIdsAtATime).join(u',') + u')');
        for (; rows.hasRow(); rows.moveNext()) {
            const formats::CardValues values = cardValuesOf(ContactRecord(rows));
            switch (cards.write(values.name, formats::contactCardLines(values))) {
            case Written::Yes:
                ++result.written;
                noteName(values.name);
                break;
            case Written::BadName:
                if (++result.badNames <= kNamesKept)
                    result.refused << values.name;
                break;
            case Written::Failed: ++result.failed; break;
            }
            if (result.failed > 0 && !platform::isWritable(drive.local(folder))) {
                result.stoppedBy = platform::whyNotWritable(drive.local(folder));
                return result;
            }
            const int done = result.written + result.badNames + result.failed;
            if (progress && done % kContactsAStep == 0 && !progress(done)) {
                result.stopped = true;
                return result;
            }
        }
    }
    return result;
}

bool WriteVCardValues(const platform::Drive& drive, const QString& folder, const formats::CardValues& values)
{
    return platform::CardFolder(drive, folder).write(values.name, formats::enteredCardLines(values))
        == platform::CardFolder::Written::Yes;
}

bool writeSenderCard(const platform::Drive& drive, const QString& name, const QString& email)
{
    return platform::CardFolder(drive, u"C:\\OVUserFiles\\VCF"_s)
               .write(name, formats::senderCardLines(name, email))
        == platform::CardFolder::Written::Yes;
}

} // namespace core
