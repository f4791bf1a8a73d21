#include "telephone/number_hand_over.h"

#include "core/handover/number_dialer.h"
#include "core/screens.h"

#include <QAbstractButton>
#include <QCoreApplication>

namespace telephone {

namespace {

constexpr QStringView kDialer = u"FrmDialer";

QString translated(const char* text)
{
    return QCoreApplication::translate("telephone", text);
}

} // namespace

void handOverNumber(core::Context& context, const QString& number, const QString& who)
{
    if (auto* dialer = context.screens.load<core::NumberDialer>(kDialer))
        dialer->offerNumber(number, who);
    context.screens.show(kDialer);
}

bool hasDialer(const core::Context& context)
{
    return context.screens.has(kDialer);
}

void enableDialling(
    const core::Context& context, QAbstractButton* button, bool hasNumber, const QString& withoutNumber)
{
    button->setEnabled(hasNumber && hasDialer(context));
    button->setToolTip(!hasDialer(context) ? translated("The dialer is not there yet")
            : hasNumber                    ? translated("Show the number in the dialer")
                                           : withoutNumber);
}

} // namespace telephone
