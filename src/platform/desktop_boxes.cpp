#include "platform/desktop_boxes.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>

#include "platform/file_filter.h"

using namespace Qt::StringLiterals;

namespace platform {

namespace {

QMessageBox::Icon boxIcon(Icon icon)
{
    switch (icon) {
    case Icon::None: return QMessageBox::NoIcon;
    case Icon::Information: return QMessageBox::Information;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Warning: return QMessageBox::Warning;
    case Icon::Critical: return QMessageBox::Critical;
    }
    Q_UNREACHABLE();
    return QMessageBox::NoIcon;
}

/// What a box stands above. A splash goes when it likes, and would take the box with it.
QWidget* windowBelow()
{
    QWidget* window = QApplication::activeWindow();
    return window && window->windowType() == Qt::SplashScreen ? nullptr : window;
}

int show(const QString& text, const QString& title, Icon icon, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(boxIcon(icon), title, text, buttons, windowBelow());
    // Texts hold what the user typed; a "<" in it must not become markup.
    box.setTextFormat(Qt::PlainText);
    box.setObjectName(u"messageBox"_s);
    // What can be lost is not lost by an Enter too many.
    if (buttons.testFlag(QMessageBox::No) && (icon == Icon::Warning || icon == Icon::Critical))
        box.setDefaultButton(QMessageBox::No);
    return box.exec();
}

std::optional<QString> chosen(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
}

} // namespace

void DesktopBoxes::information(const QString& text, const QString& title)
{
    show(text, title, Icon::Information, QMessageBox::Ok);
}

void DesktopBoxes::warning(const QString& text, const QString& title)
{
    show(text, title, Icon::Warning, QMessageBox::Ok);
}

void DesktopBoxes::stop(const QString& text, const QString& title)
{
    show(text, title, Icon::Critical, QMessageBox::Ok);
}

Answer DesktopBoxes::ask(const QString& text, const QString& title, Icon icon)
{
    return show(text, title, icon, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes ? Answer::Yes
                                                                                           : Answer::No;
}

std::optional<QString> DesktopBoxes::openFile(
    const QString& title, const QString& filter, const QString& folder)
{
    QFileDialog dialog(windowBelow(), title, folder, dialogFilter(filter));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return chosen(dialog);
}

std::optional<QStringList> DesktopBoxes::openFiles(const QString& title, const QString& filter)
{
    QFileDialog dialog(windowBelow(), title, QString(), dialogFilter(filter));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    return chosen(dialog) ? std::optional(dialog.selectedFiles()) : std::nullopt;
}

std::optional<QString> DesktopBoxes::saveFile(
    const QString& title, const QString& filter, const FileSuggestion& suggestion)
{
    QFileDialog dialog(windowBelow(), title, suggestion.folder, dialogFilter(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(defaultSuffix(filter));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& chosenFilter) {
        dialog.setDefaultSuffix(defaultSuffix(filter, dialog.nameFilters().indexOf(chosenFilter)));
    });
    dialog.selectFile(suggestion.name);
    return chosen(dialog);
}

std::optional<QString> DesktopBoxes::folder(const QString& title)
{
    QFileDialog dialog(windowBelow(), title);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return chosen(dialog);
}

std::optional<QString> DesktopBoxes::inputText(const QString& title, const QString& label)
{
    bool accepted = false;
    const QString text
        = QInputDialog::getText(windowBelow(), title, label, QLineEdit::Normal, QString(), &accepted);
    return accepted ? std::optional(text) : std::nullopt;
}

} // namespace platform
