#include "core/save_cards.h"

#include "core/vcard_export.h"
#include "platform/message_boxes.h"

#include <QCoreApplication>
#include <QProgressDialog>

#include <memory>

using namespace Qt::StringLiterals;

namespace core {

namespace {

// So many are written before one could read what a dialog says.
constexpr int kTooFewForProgress = 200;

QString translated(const char* text)
{
    return QCoreApplication::translate("core", text);
}

std::unique_ptr<QProgressDialog> progressDialog(int contacts, QWidget* over)
{
    if (contacts <= kTooFewForProgress)
        return nullptr;
    auto dialog = std::make_unique<QProgressDialog>(
        translated("Saving the cards of %1 contacts").arg(contacts), translated("Stop"), 0, contacts, over);
    dialog->setObjectName(u"cardProgress"_s);
    dialog->setWindowTitle(translated("Save as vCard"));
    // No other window takes input meanwhile, so nothing that the work reads can close.
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setMinimumDuration(0);
    dialog->setMinimumWidth(360);
    dialog->setAutoReset(false);
    dialog->setValue(0);
    return dialog;
}

} // namespace

void saveCards(Context& context, const QString& idList, const QString& folder, QWidget* over)
{
    const int contacts = static_cast<int>(idList.count(u',')) + 1;
    std::unique_ptr<QProgressDialog> dialog = progressDialog(contacts, over);
    const CardsWritten result
        = WriteVCards(context.data, context.services.drive, idList, folder, [&dialog](int done) {
              if (dialog)
                  dialog->setValue(done); // and lets the window live
              return !dialog || !dialog->wasCanceled();
          });
    dialog.reset();
    platform::MessageBoxes& boxes = context.services.boxes;
    const QString title = context.shared.AppTitle;
    if (result.stopped)
        boxes.information(translated("Stopped. %1 of %2 VCF files were saved on %3")
                              .arg(QString::number(result.written), QString::number(contacts), folder),
            title);
    else if (result.written > 0)
        boxes.information(translated("VCF File Saved on %1").arg(folder), title);
    if (result.refused > 0)
        boxes.warning(
            translated("%1 VCF files could not be written. A contact whose name can not be the name "
                       "of a file has none.")
                .arg(result.refused),
            title);
}

} // namespace core
