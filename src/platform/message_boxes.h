#pragma once

#include <optional>

#include <QStringList>

namespace platform {

enum class Answer { Yes, No };
enum class Icon { None, Information, Question, Warning, Critical };

/// Where a file dialog begins.
struct FileSuggestion {
    QString folder = {}; ///< on this computer; empty for wherever the dialog was last
    QString name = {}; ///< of the file to be saved
};

/// What the program tells and asks the user. All calls wait for the answer. File paths given back are paths
/// of this computer (Drive::named() gives the program's spelling); no value means that the user cancelled.
/// Filters are written as label and pattern with bars between, "VCF (*.vcf)|*.vcf".
class MessageBoxes {
public:
    MessageBoxes() = default;
    MessageBoxes(const MessageBoxes&) = delete;
    MessageBoxes& operator=(const MessageBoxes&) = delete;
    virtual ~MessageBoxes() = default;

    virtual void information(const QString& text, const QString& title) = 0;
    /// With the exclamation mark.
    virtual void warning(const QString& text, const QString& title) = 0;
    /// With the stop sign.
    virtual void stop(const QString& text, const QString& title) = 0;
    /// Yes or No; a box that is closed otherwise counts as No. With the icon of a warning or a critical one
    /// No is the default: for questions whose Yes loses something.
    virtual Answer ask(const QString& text, const QString& title, Icon icon = Icon::Question) = 0;
    /// @param folder of this computer where the choice begins; anywhere when it is empty
    virtual std::optional<QString> openFile(
        const QString& title, const QString& filter, const QString& folder = {})
        = 0;
    virtual std::optional<QStringList> openFiles(const QString& title, const QString& filter) = 0;
    /// Asks before a file that is there is replaced. A name without an extension gets that of the chosen
    /// filter.
    virtual std::optional<QString> saveFile(
        const QString& title, const QString& filter, const FileSuggestion& suggestion = {})
        = 0;
    virtual std::optional<QString> folder(const QString& title) = 0;
    virtual std::optional<QString> inputText(const QString& title, const QString& label) = 0;
};

} // namespace platform
