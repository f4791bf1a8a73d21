#include "views/edit_contact.h"

#include "core/handover/contact_screen.h"
#include "core/screens.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

namespace views {

void editContact(core::Context& context, qint64 id)
{
    context.shared.EditRequested = true;
    auto* form = context.screens.load<core::ContactScreen>(u"FormMain");
    if (form && !form->showContact(id)) {
        context.shared.EditRequested = false;
        context.services.boxes.information(
            QCoreApplication::translate("views", "Error"), context.shared.AppTitle);
    }
    context.screens.show(u"FormMain");
}

} // namespace views
