#include "editor/own_words.h"

#include "platform/speller.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace editor {

namespace {

QString text(const char* source)
{
    return QCoreApplication::translate("editor::OwnWords", source);
}

} // namespace

void showOwnWords(platform::Speller& speller, QWidget* over)
{
    QDialog dialog(over);
    dialog.setObjectName(u"dlgOwnWords"_s);
    dialog.setWindowTitle(text("Your Own Words"));
    auto* told = new QLabel(text("You have added these words to the dictionary."));
    told->setWordWrap(true);
    auto* list = new QListWidget;
    list->setObjectName(u"lstOwnWords"_s);
    list->setAccessibleName(dialog.windowTitle());
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    list->addItems(speller.ownWords());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton* remove = buttons->addButton(text("&Delete"), QDialogButtonBox::ActionRole);
    remove->setObjectName(u"cmdDeleteWord"_s);
    remove->setEnabled(false);
    const auto tellEmpty = [&] {
        if (list->count() == 0)
            told->setText(text("You have not added a word to the dictionary yet. Right-click an unknown word "
                               "in a text to do so."));
    };
    const auto removeSelected = [&] {
        for (QListWidgetItem* item : list->selectedItems()) {
            if (!speller.removeWord(item->text())) {
                told->setText(text("The words could not be deleted: your list could not be stored."));
                return;
            }
            delete item;
        }
        tellEmpty();
    };
    tellEmpty();
    QObject::connect(list, &QListWidget::itemSelectionChanged, remove,
        [&] { remove->setEnabled(!list->selectedItems().isEmpty()); });
    QObject::connect(remove, &QPushButton::clicked, list, removeSelected);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* deleteKey = new QShortcut(QKeySequence::Delete, list);
    deleteKey->setContext(Qt::WidgetShortcut);
    QObject::connect(deleteKey, &QShortcut::activated, list, removeSelected);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(told);
    layout->addWidget(list);
    layout->addWidget(buttons);
    dialog.resize(360, 380);
    dialog.exec();
}

} // namespace editor
