#include "core/shell/restore_dialog.h"

#include "widgets/theme.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace shell {

std::optional<core::Backup> chooseBackup(QWidget* parent, const QList<core::Backup>& backups)
{
    QDialog dialog(parent);
    dialog.setObjectName(u"FrmRestore"_s);
    dialog.setWindowTitle(QObject::tr("Restore from a backup"));
    auto* text
        = new QLabel(QObject::tr("The address book will be as it was on the day that you choose. The present "
                                 "one is kept beside it."));
    text->setWordWrap(true);
    auto* list = new QListWidget;
    list->setObjectName(u"lstBackups"_s);
    list->setAccessibleName(QObject::tr("Backups"));
    for (const core::Backup& backup : backups)
        list->addItem(core::describedBackup(backup));
    list->setCurrentRow(0);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    QPushButton* restore = buttons->addButton(QObject::tr("&Restore"), QDialogButtonBox::AcceptRole);
    restore->setObjectName(u"cmdRestore"_s);
    widgets::setIcon(restore, u"restore");
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemActivated, &dialog, &QDialog::accept);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(list);
    layout->addWidget(buttons);
    dialog.resize(520, 340);
    if (dialog.exec() != QDialog::Accepted || list->currentRow() < 0)
        return {};
    return backups.at(list->currentRow());
}

} // namespace shell
