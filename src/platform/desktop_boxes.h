#pragma once

#include "platform/message_boxes.h"

namespace platform {

/// Message boxes and file dialogs over the window that is active.
class DesktopBoxes final : public MessageBoxes {
public:
    void information(const QString& text, const QString& title) override;
    void warning(const QString& text, const QString& title) override;
    void stop(const QString& text, const QString& title) override;
    Answer ask(const QString& text, const QString& title, Icon icon) override;
    std::optional<QString> openFile(
        const QString& title, const QString& filter, const QString& folder) override;
    std::optional<QStringList> openFiles(const QString& title, const QString& filter) override;
    std::optional<QString> saveFile(
        const QString& title, const QString& filter, const FileSuggestion& suggestion) override;
    std::optional<QString> folder(const QString& title) override;
    std::optional<QString> inputText(const QString& title, const QString& label) override;
};

} // namespace platform
