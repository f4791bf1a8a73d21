#include "anniversaries/wishes/send_letter.h"

#include "core/handover/contact_screen.h"
#include "core/handover/page_screen.h"
#include "core/screens.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

namespace anniversaries {

void writeWishLetter(core::Context& context, const jet::Recordset& contact, const QString& kind)
{
    const qint64 id = contact.number(u"id");
    if (id == 0) {
        context.services.boxes.information(
            QCoreApplication::translate("anniversaries", "Record not selected"), context.shared.AppTitle);
        return;
    }
    context.shared.selectedContactId = id;
    context.shared.selectedContactName = contact.textOrEmpty(u"Name");
    auto* contactLetter = context.screens.load<core::ContactScreen>(kLetterScreen);
    // The person may go on with the letter that is there.
    const bool isTaken = contactLetter && contactLetter->showContact(id);
    if (auto* letter = context.screens.load<core::PageScreen>(kLetterScreen); letter && isTaken)
        letter->openPage(kind);
    context.screens.show(kLetterScreen);
}

} // namespace anniversaries
