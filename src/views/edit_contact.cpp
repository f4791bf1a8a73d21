#include "views/edit_contact.h"

#include "core/handover/contact_screen.h"
#include "core/screens.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>

namespace views {

bool editContact(core::Context& context, qint64 id)
{
    context.shared.EditRequested = true;
    auto* form = context.screens.load<core::ContactScreen>(u"FormMain");
    const bool found = !form || form->showContact(id);
    if (!found) {
        context.shared.EditRequested = false;
        context.services.boxes.information(
            QCoreApplication::translate("views", "Error"), context.shared.AppTitle);
    }
    context.screens.show(u"FormMain");
    return found;
}

} // namespace views
