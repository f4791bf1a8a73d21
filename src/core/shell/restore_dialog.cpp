#include "core/shell/restore_dialog.h"

#include "widgets/theme.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
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
    for (const core::Backup& backup : backups) {
        const double megabytes = double(QFileInfo(backup.path).size()) / (1024 * 1024);
        const QString day = QLocale().toString(backup.day, QLocale::LongFormat);
        const QString when = backup.time.isValid()
            ? QObject::tr("%1, %2, before a deletion")
                  .arg(day, QLocale().toString(backup.time, QLocale::ShortFormat))
            : day;
        list->addItem(QObject::tr("%1   (%2 MB)").arg(when, QLocale().toString(megabytes, 'f', 1)));
    }
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
    dialog.resize(420, 320);
    if (dialog.exec() != QDialog::Accepted || list->currentRow() < 0)
        return {};
    return backups.at(list->currentRow());
}

} // namespace shell
