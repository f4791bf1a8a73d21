#include "core/sibling_start.h"

#include "core/screens.h"
#include "platform/shell.h"

namespace core {

bool startSibling(Context& context, const SiblingStart& start)
{
    platform::Shell& desktop = context.services.shell;
    const QString file = u'\\' + start.program.toString();
    const bool isThere = desktop.siblingExists(file);
    if (isThere && !context.screens.mayCloseAll())
        return false;
    {
        const jet::Upkeep byItself(context.data);
        for (const QString& statement : start.statements)
            context.data.execute(statement);
    }
    if (!isThere) {
        if (start.instead && start.instead())
            return true;
        context.screens.show(u"FrmProjectMsg", Shown::Modally);
        return false;
    }
    if (!desktop.startSibling(file))
        return false;
    desktop.endProgram();
    return true;
}

} // namespace core
